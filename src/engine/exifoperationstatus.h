#pragma once

#include "engine/errormessages.h"

#include <QString>

#include <memory>

using ErrorMessagesPtr = std::shared_ptr<ErrorMessages>;

// Progress of one file in a batch, as the runner signals it. Immutable.
class ExifOperationStatus
{
public:
    ExifOperationStatus(qint32 operationType, QString fileName, quint64 processedTasks,
                        quint64 totalTasks, ErrorMessagesPtr errors)
        : m_operationType(operationType)
        , m_fileName(std::move(fileName))
        , m_processedTasks(processedTasks)
        , m_totalTasks(totalTasks)
        , m_errors(std::move(errors))
    {
    }

    qint32 operationType() const { return m_operationType; }
    const QString &fileName() const { return m_fileName; }
    // 1-based position of the file in its batch, also in the status sent before it runs.
    quint64 processedTasks() const { return m_processedTasks; }
    quint64 totalTasks() const { return m_totalTasks; }
    // Null before the file ran, and for an operation that stored no messages.
    const ErrorMessagesPtr &errors() const { return m_errors; }

private:
    qint32 m_operationType;
    QString m_fileName;
    quint64 m_processedTasks;
    quint64 m_totalTasks;
    ErrorMessagesPtr m_errors;
};
