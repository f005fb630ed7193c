#include "engine/filereadqueue.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QPromise>
#include <QThreadPool>

#include <memory>

FileReadQueue::FileReadQueue(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcher<ExifReadResult>::finished, this,
            &FileReadQueue::handleFinished);
    // Polled rather than signalled per record: ExifTool reports hundreds of files a second.
    m_progressTimer.setInterval(250);
    connect(&m_progressTimer, &QTimer::timeout, this, &FileReadQueue::reportProgress);
}

FileReadQueue::~FileReadQueue()
{
    m_queue.clear();
    m_watcher.disconnect(this);
    m_watcher.waitForFinished();
}

void FileReadQueue::enqueue(Batch batch)
{
    const bool wasBusy = isBusy();
    for (const ExifFileInfoPtr &file : std::as_const(batch.files))
        m_pendingPaths.insert(file->fileName());
    // Adds that arrive before the next read starts (the desktop hands over files one by one)
    // share one read and one selection.
    if (m_queue.empty() || m_queue.back().isReload != batch.isReload) {
        m_queue.push_back(std::move(batch));
    } else {
        m_queue.back().files.append(batch.files);
        m_queue.back().rejected.append(batch.rejected);
    }
    if (!wasBusy)
        Q_EMIT busyChanged(true);
    if (!m_isReading && !m_isStartScheduled) {
        m_isStartScheduled = true;
        QTimer::singleShot(0, this, [this] {
            m_isStartScheduled = false;
            startNext();
        });
    }
}

void FileReadQueue::cancel()
{
    if (!isBusy())
        return;
    m_queue.clear();
    if (m_isReading) {
        m_isChunkAbandoned = m_isChunkRunning;
        finishBatch(m_readCount);
    }
    m_pendingPaths.clear();
    Q_EMIT busyChanged(false);
}

void FileReadQueue::startNext()
{
    // An abandoned chunk still holds the runner's thread; its end starts the next batch.
    if (m_isReading || m_isChunkRunning || m_queue.empty())
        return;
    m_current = std::move(m_queue.front());
    m_queue.pop_front();
    m_isReading = true;
    m_readCount = 0;
    Q_EMIT progressChanged(0, int(m_current.files.size()));
    m_progressTimer.start();
    startChunk();
}

void FileReadQueue::startChunk()
{
    const QList<ExifFileInfoPtr> chunk = m_current.files.mid(m_readCount, m_chunkSize);
    m_chunkCount = chunk.size();
    m_chunkProgress.storeRelaxed(0);
    m_isChunkRunning = true;
    // The records go to the pool thread by shared pointer; the main thread does not look at
    // them until the chunk comes back. A runner per read: it is not reentrant.
    auto promise = std::make_shared<QPromise<ExifReadResult>>();
    m_watcher.setFuture(promise->future());
    promise->start();
    QThreadPool::globalInstance()->start([promise, chunk, progress = &m_chunkProgress] {
        MetadataReader runner;
        runner.setRecordsReadHandler(
            [progress](qsizetype records) { progress->storeRelaxed(qint32(records)); });
        promise->addResult(runner.readRecords(chunk));
        promise->finish();
    });
}

void FileReadQueue::handleFinished()
{
    m_isChunkRunning = false;
    const ExifReadResult result = m_watcher.result();
    if (m_isChunkAbandoned) {
        m_isChunkAbandoned = false;
        startNext();
        return;
    }
    m_readCount += m_chunkCount;
    m_current.result.timedOut += result.timedOut;
    if (!result.ok() && m_current.result.ok())
        m_current.result.errorMessage = result.errorMessage;
    reportProgress();
    // A cancel from the progress signal has already told the batch.
    if (!m_isReading)
        return;
    // When ExifTool cannot be started the rest would fail alike; the unread records stay not
    // valid and are told as such.
    if (m_readCount < m_current.files.size() && result.ok()) {
        startChunk();
        return;
    }
    finishBatch(m_current.files.size());
    if (!isBusy())
        Q_EMIT busyChanged(false);
    startNext();
}

void FileReadQueue::finishBatch(qsizetype keptFiles)
{
    m_progressTimer.stop();
    m_isReading = false;
    Batch done = std::move(m_current);
    m_current = Batch();
    for (const ExifFileInfoPtr &file : std::as_const(done.files))
        m_pendingPaths.remove(file->fileName());
    done.files.resize(keptFiles);
    Q_EMIT batchRead(done);
}

void FileReadQueue::reportProgress()
{
    if (!m_isReading)
        return;
    const qsizetype inChunk = m_isChunkRunning ? m_chunkProgress.loadRelaxed() : 0;
    Q_EMIT progressChanged(int(m_readCount + qMin(inChunk, m_chunkCount)),
                           int(m_current.files.size()));
}

bool FileReadQueue::waitForIdle(int timeoutMs)
{
    QDeadlineTimer deadline(timeoutMs);
    while (isBusy() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    }
    return !isBusy();
}
