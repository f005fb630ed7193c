#include "app/filereadqueue.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>

FileReadQueue::FileReadQueue(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcher<ExifReadResult>::finished, this,
            &FileReadQueue::handleFinished);
}

FileReadQueue::~FileReadQueue()
{
    m_queue.clear();
    m_watcher.disconnect(this);
    m_watcher.waitForFinished();
}

bool FileReadQueue::isQueued(const QString &path) const
{
    const auto holds = [&path](const Batch &batch) {
        for (const ExifFileInfoPtr &file : batch.files) {
            if (file->fileName() == path)
                return true;
        }
        return false;
    };
    if (m_isReading && holds(m_current))
        return true;
    for (const Batch &batch : m_queue) {
        if (holds(batch))
            return true;
    }
    return false;
}

void FileReadQueue::enqueue(Batch batch)
{
    const bool wasBusy = isBusy();
    // Adds that arrive before the next read starts (the desktop hands over files one by one)
    // share one ExifTool run and one selection.
    if (m_queue.empty()) {
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

void FileReadQueue::startNext()
{
    if (m_isReading || m_queue.empty())
        return;
    m_current = std::move(m_queue.front());
    m_queue.pop_front();
    m_isReading = true;
    // The records go to the pool thread by shared pointer; the main thread does not look at
    // them until the batch comes back. A runner per read: it is not reentrant.
    m_watcher.setFuture(QtConcurrent::run([files = m_current.files] {
        ExifRunner runner;
        return runner.loadExifInformations(files);
    }));
}

void FileReadQueue::handleFinished()
{
    m_current.result = m_watcher.result();
    m_isReading = false;
    Batch done = std::move(m_current);
    m_current = Batch();
    Q_EMIT batchRead(done);
    if (!isBusy())
        Q_EMIT busyChanged(false);
    startNext();
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
