#pragma once

#include "engine/exiffileinfo.h"
#include "engine/exifrunner.h"
#include "engine/fileadmission.h"

#include <QFutureWatcher>
#include <QList>
#include <QObject>

#include <deque>

// Reads added files one batch at a time on a pool thread, so a large batch does not freeze the
// window. Each batch is told back on the main thread, in the order the batches were queued, with
// its records filled and the rejections found before the read.
class FileReadQueue : public QObject
{
    Q_OBJECT

public:
    struct Batch
    {
        QList<ExifFileInfoPtr> files;
        QList<FileRejection> rejected;
        ExifReadResult result;
    };

    explicit FileReadQueue(QObject *parent = nullptr);
    // Waits for the batch being read; the ones still queued are dropped.
    ~FileReadQueue() override;

    void enqueue(Batch batch);
    bool isBusy() const { return m_isReading || !m_queue.empty(); }
    // Whether a queued or running batch holds this path.
    bool isQueued(const QString &path) const;
    // For tests and quitting: processes events until every batch was told, or the time is up.
    bool waitForIdle(int timeoutMs = 30000);

Q_SIGNALS:
    void busyChanged(bool busy);
    void batchRead(const FileReadQueue::Batch &batch);

private:
    void startNext();
    void handleFinished();

    std::deque<Batch> m_queue;
    Batch m_current;
    bool m_isReading = false;
    bool m_isStartScheduled = false;
    QFutureWatcher<ExifReadResult> m_watcher;
};
