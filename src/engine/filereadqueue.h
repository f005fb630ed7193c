#pragma once

#include "engine/exiffileinfo.h"
#include "engine/metadatareader.h"
#include "engine/fileadmission.h"

#include <QAtomicInteger>
#include <QFutureWatcher>
#include <QList>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <deque>

// Reads added files one batch at a time on a pool thread, so a large batch does not freeze the
// window. A batch is read in chunks, one ExifTool run each, so it can be cancelled and its
// progress shown. Each batch is told back on the main thread, in the order the batches were
// queued, with its records filled and the rejections found before the read.
class FileReadQueue : public QObject
{
    Q_OBJECT

public:
    struct Batch
    {
        QList<ExifFileInfoPtr> files;
        QList<FileRejection> rejected;
        ExifReadResult result;
        // New records for files already in the list, which they replace once read.
        bool isReload = false;
    };

    // Large enough that ExifTool's start-up is lost in the run, small enough that a cancel
    // keeps nearly all that was read.
    static constexpr int DefaultChunkSize = 500;

    explicit FileReadQueue(QObject *parent = nullptr);
    // Waits for the chunk being read; the batches still queued are dropped.
    ~FileReadQueue() override;

    void setChunkSize(int files) { m_chunkSize = qMax(1, files); }
    int chunkSize() const { return m_chunkSize; }

    void enqueue(Batch batch);
    // Stops reading: the batch being read is told with the files of its complete chunks only,
    // and the queued batches are dropped. Nothing happens when idle.
    void cancel();
    bool isBusy() const { return m_isReading || !m_queue.empty(); }
    // Whether a queued or running batch holds this path.
    bool isQueued(const QString &path) const { return m_pendingPaths.contains(path); }
    QStringList queuedPaths() const { return m_pendingPaths.values(); }
    // For tests and quitting: processes events until every batch was told, or the time is up.
    bool waitForIdle(int timeoutMs = 30000);

Q_SIGNALS:
    void busyChanged(bool busy);
    // Files read so far of the batch being read.
    void progressChanged(int read, int total);
    void batchRead(const FileReadQueue::Batch &batch);

private:
    void startNext();
    void startChunk();
    void handleFinished();
    void finishBatch(qsizetype keptFiles);
    void reportProgress();

    std::deque<Batch> m_queue;
    Batch m_current;
    QSet<QString> m_pendingPaths;
    int m_chunkSize = DefaultChunkSize;
    qsizetype m_readCount = 0;
    qsizetype m_chunkCount = 0;
    bool m_isReading = false;
    bool m_isStartScheduled = false;
    // A chunk still runs on the pool thread; after a cancel its records are not wanted.
    bool m_isChunkRunning = false;
    bool m_isChunkAbandoned = false;
    // Records parsed in the running chunk, written by the pool thread.
    QAtomicInteger<qint32> m_chunkProgress;
    QTimer m_progressTimer;
    QFutureWatcher<ExifReadResult> m_watcher;
};
