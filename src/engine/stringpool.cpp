#include "engine/stringpool.h"

QString StringPool::intern(const QString &text)
{
    // Null and empty texts share nothing worth keeping.
    if (text.isEmpty())
        return text;
    const auto found = m_texts.constFind(text);
    if (found != m_texts.cend())
        return *found;
    // Text built up piece by piece carries spare room; the kept copy should not.
    const QString compact =
        text.capacity() > text.size() ? QString(text.constData(), text.size()) : text;
    m_texts.insert(compact);
    return compact;
}
