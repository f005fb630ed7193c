#include "values/tagsmithexception.h"

TagsmithException::TagsmithException(QString name, QString reason)
    : m_name(std::move(name))
    , m_reason(std::move(reason))
    , m_what((m_name + QStringLiteral(": ") + m_reason).toUtf8())
{
}
