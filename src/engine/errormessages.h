#pragma once

#include "engine/errormessage.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <exception>

class TagsmithException;

// What went wrong for one file in one ExifTool run. Filled on one thread and only read after
// it has been handed over, so it has no lock of its own.
class ErrorMessages
{
public:
    explicit ErrorMessages(QString fileName = QString());

    const QString &fileName() const { return m_fileName; }
    const QList<ErrorMessage> &messages() const { return m_messages; }
    quint64 count() const { return m_count; }
    quint64 errorsCount() const { return m_errorsCount; }
    quint64 warnsCount() const { return m_warnsCount; }
    quint64 infosCount() const { return m_infosCount; }

    // Orders collections by path: <0, 0 or >0.
    int compare(const ErrorMessages &other) const;
    bool operator<(const ErrorMessages &other) const { return compare(other) < 0; }

    void addErrorMessage(const ErrorMessage &message);
    // The reason goes to the log only; the user sees a fixed text.
    void addException(const TagsmithException &exception);
    void addException(const std::exception &exception);
    // A null text stands for an unknown error or warning.
    void addError(const QString &text = QString());
    void addWarning(const QString &text = QString());
    // Turns ExifTool's "Error: " and "Warning: " lines into messages; other lines are ignored.
    void addExifToolOutput(QByteArrayView output);

    // Leaves count() as it was, so afterwards it no longer matches messages().size(); the
    // results window has always relied on that.
    void deleteMessageAtIndex(qsizetype index);
    void removeAllMessages();

private:
    void adjustKindCounter(qint32 type, int delta);

    QString m_fileName;
    QList<ErrorMessage> m_messages;
    quint64 m_count = 0;
    quint64 m_errorsCount = 0;
    quint64 m_warnsCount = 0;
    quint64 m_infosCount = 0;
};
