#pragma once

#include <QSet>
#include <QString>

// Hands out one shared copy of each distinct text, so many records holding equal keys and
// values share their characters. Lives as long as a read; the texts outlive it in the records.
class StringPool
{
public:
    QString intern(const QString &text);
    qsizetype size() const { return m_texts.size(); }

private:
    QSet<QString> m_texts;
};
