#pragma once

#include <QString>
#include <QtGlobal>

// One complaint about one file. Immutable, so it can be read from any thread.
class ErrorMessage
{
public:
    // The numbers are stored by the results window and compared by the counters: keep them.
    enum Type : qint32 { Info = 1, Warning = 2, Error = 3 };

    ErrorMessage(QString fileName, QString message, qint32 type);

    const QString &fileName() const { return m_fileName; }
    const QString &message() const { return m_message; }
    // Any other value is allowed and counts as no kind.
    qint32 type() const { return m_type; }

    bool isError() const { return m_type == Error; }
    bool isWarn() const { return m_type == Warning; }
    bool isInfo() const { return m_type == Info; }

private:
    QString m_fileName;
    QString m_message;
    qint32 m_type;
};
