#include "engine/errormessage.h"

ErrorMessage::ErrorMessage(QString fileName, QString message, qint32 type)
    : m_fileName(std::move(fileName))
    , m_message(std::move(message))
    , m_type(type)
{
}
