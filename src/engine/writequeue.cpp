#include "engine/writequeue.h"

#include "engine/exifrunnerremoveexifgroupsoperation.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "engine/exifrunnersamefileoperation.h"
#include "engine/exifrunnersaveoperation.h"
#include "engine/filekey.h"
#include "engine/filereplacement.h"
#include "values/logging.h"
#include "values/tagsmithexception.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QPointer>
#include <QSet>
#include <QThread>
#include <QWaitCondition>

#include <algorithm>
#include <atomic>
#include <deque>
#include <exception>
#include <vector>

namespace {

// One batch as its workers share it. Files are claimed in batch order and reported in batch
// order, whichever worker finishes first.
struct BatchRun
{
    enum class State { Waiting, Running, Done };

    explicit BatchRun(QList<ExifRunnerOperationPtr> batch)
        : operations(std::move(batch))
        , states(size_t(operations.size()), State::Waiting)
        , errors(size_t(operations.size()))
    {
    }

    qsizetype size() const { return operations.size(); }
    bool allReported() const { return nextReport >= size(); }

    const QList<ExifRunnerOperationPtr> operations;
    QStringList fileNames;
    QList<ExifFileInfoPtr> files;
    QList<FileKey> fileKeys;
    std::vector<State> states;
    std::vector<ErrorMessagesPtr> errors;
    qsizetype nextClaim = 0;
    qsizetype nextReport = 0;
    bool announced = false; // fileStarted of nextReport is posted
    QSet<FileKey> inFlight;

    QMutex mutex;
    QWaitCondition changed;
};

using BatchRunPtr = std::shared_ptr<BatchRun>;

} // namespace

// The runner's threads and its FIFO of batches. The first thread takes the batches one after
// another; while it runs one, a second thread may help with its files. Each thread makes and
// ends its own ExifTool session, as a process must stay with the thread that started it.
class WriteQueue::Worker
{
public:
    Worker(WriteQueue *runner, ExifToolSessionKind kind, QString program)
        : m_runner(runner)
        , m_kind(kind)
        , m_program(std::move(program))
    {
        m_thread.reset(QThread::create([this] { loop(); }));
        m_thread->setObjectName(ThreadName);
        m_thread->start();
        m_helper.reset(QThread::create([this] { helperLoop(); }));
        m_helper->setObjectName(ThreadName + QStringLiteral(" 2"));
        m_helper->start();
    }

    ~Worker()
    {
        {
            QMutexLocker locker(&m_mutex);
            m_stopping = true;
            m_wake.wakeAll();
        }
        m_thread->wait();
        {
            QMutexLocker locker(&m_mutex);
            m_helperStopping = true;
            m_helperWake.wakeAll();
        }
        m_helper->wait();
    }

    void enqueue(QList<ExifRunnerOperationPtr> batch)
    {
        QMutexLocker locker(&m_mutex);
        m_batches.push_back(std::move(batch));
        m_wake.wakeAll();
    }

    bool waitForIdle(int timeoutMs)
    {
        QDeadlineTimer deadline =
            timeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(timeoutMs);
        QMutexLocker locker(&m_mutex);
        while (!m_batches.empty() || m_busy) {
            if (!m_idle.wait(&m_mutex, deadline))
                return false;
        }
        return true;
    }

    void setMaximumConcurrentOperations(int count) { m_concurrency = std::clamp(count, 1, 2); }
    void setFlushGroupLimits(int files, int milliseconds)
    {
        m_groupSize = std::max(files, 1);
        m_groupTimeMs = std::max(milliseconds, 0);
    }
    int maximumConcurrentOperations() const { return m_concurrency; }

private:
    void loop()
    {
        const std::unique_ptr<ExifToolSession> session = makeExifToolSession(m_kind, m_program);
        for (;;) {
            QList<ExifRunnerOperationPtr> batch;
            {
                QMutexLocker locker(&m_mutex);
                while (m_batches.empty() && !m_stopping)
                    m_wake.wait(&m_mutex);
                // Queued batches still run when the runner goes: a file is never left midway.
                if (m_batches.empty())
                    return;
                batch = std::move(m_batches.front());
                m_batches.pop_front();
                m_busy = true;
            }
            processOperations(std::move(batch), *session);
            QMutexLocker locker(&m_mutex);
            m_busy = false;
            m_idle.wakeAll();
        }
    }

    // The session is made at the first batch it helps with, so a serial runner starts one
    // ExifTool only.
    void helperLoop()
    {
        std::unique_ptr<ExifToolSession> session;
        for (;;) {
            BatchRunPtr run;
            {
                QMutexLocker locker(&m_mutex);
                while (!m_helperRun && !m_helperStopping)
                    m_helperWake.wait(&m_mutex);
                if (!m_helperRun)
                    return;
                run = std::move(m_helperRun);
                m_helperRun.reset();
            }
            if (!session)
                session = makeExifToolSession(m_kind, m_program);
            work(*run, *session);
        }
    }

    void processOperations(QList<ExifRunnerOperationPtr> operations, ExifToolSession &session)
    {
        const auto run = std::make_shared<BatchRun>(std::move(operations));
        for (const ExifRunnerOperationPtr &operation : run->operations) {
            run->fileNames.append(operation->fileName());
            run->files.append(operation->file());
            run->fileKeys.append(FileKey::of(run->fileNames.last()));
        }

        if (m_concurrency > 1 && run->size() > 1) {
            QMutexLocker locker(&m_mutex);
            m_helperRun = run;
            m_helperWake.wakeAll();
        }
        work(*run, session);
        {
            // The helper may still be on its last file.
            QMutexLocker locker(&run->mutex);
            while (!run->allReported())
                run->changed.wait(&run->mutex);
        }

        // In batch order, so that of a file given twice the later result wins.
        QHash<QString, ErrorMessagesPtr> results;
        for (qsizetype i = 0; i < run->size(); ++i) {
            if (run->errors[size_t(i)])
                results.insert(run->fileNames.at(i), run->errors[size_t(i)]);
        }
        post([runner = m_runner, results] { Q_EMIT runner->batchFinished(results); });
    }

    // The files this thread has written and checked and that wait for their flush, which they
    // get together: up to m_groupSize files or m_groupTimeMs of work, whichever comes first, and
    // before the thread would wait for another. Then they are renamed in order, and each of
    // their folders is flushed once.
    struct Group
    {
        QList<qsizetype> indexes;
        QList<FileReplacement *> replacements;
        QElapsedTimer started;
    };

    void work(BatchRun &run, ExifToolSession &session)
    {
        Group group;
        for (;;) {
            const qsizetype i = claim(run, group.indexes.isEmpty());
            if (i == WouldWait) {
                finishGroup(run, group, session);
                continue;
            }
            if (i < 0)
                break;
            ExifRunnerOperation &operation = *run.operations.at(i);
            FileReplacement *staged = nullptr;
            ErrorMessagesPtr errors = runOperation(operation, run.fileNames.at(i), session,
                                                   [&] { staged = operation.runUntilFlush(); });
            if (!staged) {
                done(run, i, std::move(errors));
                continue;
            }
            if (group.indexes.isEmpty())
                group.started.start();
            group.indexes.append(i);
            group.replacements.append(staged);
            if (group.indexes.size() >= m_groupSize || group.started.elapsed() >= m_groupTimeMs)
                finishGroup(run, group, session);
        }
        finishGroup(run, group, session);
    }

    void finishGroup(BatchRun &run, Group &group, ExifToolSession &session)
    {
        if (group.indexes.isEmpty())
            return;
        FileReplacement::flushTogether(group.replacements);
        QList<ErrorMessagesPtr> errors;
        QHash<QString, QList<qsizetype>> folders; // of the files put in place, by position
        for (qsizetype k = 0; k < group.indexes.size(); ++k) {
            FileReplacement *replacement = group.replacements.at(k);
            replacement->setDefersFolderFlush(true);
            const QString folder = replacement->targetFolder();
            const qsizetype i = group.indexes.at(k);
            ExifRunnerOperation &operation = *run.operations.at(i);
            errors.append(runOperation(operation, run.fileNames.at(i), session,
                                       [&] { operation.runAfterFlush(); }));
            if (replacement->isCommitted())
                folders[folder].append(k);
        }
        for (auto it = folders.cbegin(); it != folders.cend(); ++it) {
            const int error = FileReplacement::flushFolder(it.key());
            for (const qsizetype k : it.value()) {
                if (error != 0 && errors.at(k)) {
                    errors.at(k)->addWarning(FileReplacement::folderNotFlushedMessage(
                        run.fileNames.at(group.indexes.at(k)), error));
                }
            }
        }
        for (qsizetype k = 0; k < group.indexes.size(); ++k)
            done(run, group.indexes.at(k), errors.at(k));
        group = Group();
    }

    void done(BatchRun &run, qsizetype i, ErrorMessagesPtr errors)
    {
        QMutexLocker locker(&run.mutex);
        run.errors[size_t(i)] = std::move(errors);
        run.states[size_t(i)] = BatchRun::State::Done;
        run.inFlight.remove(run.fileKeys.at(i));
        report(run);
        run.changed.wakeAll();
    }

    static constexpr qsizetype WouldWait = -2;

    // The next file of the batch, -1 when none is left, or WouldWait when it may not wait and
    // the next file is in flight. Two operations on one file, under whatever names, never run
    // at once: the second waits for the first.
    qsizetype claim(BatchRun &run, bool mayWait)
    {
        QMutexLocker locker(&run.mutex);
        for (;;) {
            if (run.nextClaim >= run.size())
                return -1;
            if (!run.inFlight.contains(run.fileKeys.at(run.nextClaim)))
                break;
            if (!mayWait)
                return WouldWait;
            run.changed.wait(&run.mutex);
        }
        const qsizetype index = run.nextClaim++;
        run.inFlight.insert(run.fileKeys.at(index));
        run.states[size_t(index)] = BatchRun::State::Running;
        report(run);
        return index;
    }

    // Posts, under the batch's lock so that the two threads' posts keep their order, what may
    // be signalled now: a file is announced once it started and the one before it is
    // done, and reported done only after all before it.
    void report(BatchRun &run)
    {
        const quint64 total = quint64(run.size());
        while (!run.allReported()) {
            const qsizetype index = run.nextReport;
            const BatchRun::State state = run.states[size_t(index)];
            const QString fileName = run.fileNames.at(index);
            const ExifFileInfoPtr file = run.files.at(index);
            const quint64 position = quint64(index) + 1;
            if (!run.announced) {
                if (state == BatchRun::State::Waiting)
                    return;
                post([runner = m_runner, file, fileName, position, total] {
                    Q_EMIT runner->fileStarted(
                        file, ExifOperationStatus(0, fileName, position, total, nullptr));
                });
                run.announced = true;
            }
            if (state != BatchRun::State::Done)
                return;
            post([runner = m_runner, operation = run.operations.at(index), file, fileName, position,
                  total, errors = run.errors[size_t(index)]] {
                // Also with no one connected: the record must learn what is on disk.
                try {
                    operation->postProcessInMainThread();
                } catch (const std::exception &exception) {
                    qCWarning(lcTagsmith).noquote() << QString::fromUtf8(exception.what());
                }
                Q_EMIT runner->fileFinished(
                    file, ExifOperationStatus(0, fileName, position, total, errors));
            });
            ++run.nextReport;
            run.announced = false;
        }
    }

    template <typename Step>
    static ErrorMessagesPtr runOperation(ExifRunnerOperation &operation, const QString &fileName,
                                         ExifToolSession &session, Step step)
    {
        ErrorMessagesPtr errors;
        operation.setExifToolSession(&session);
        std::exception_ptr caught;
        try {
            step();
        } catch (...) {
            caught = std::current_exception();
        }
        try {
            errors = operation.errors();
        } catch (...) {
            if (!caught)
                caught = std::current_exception();
        }
        if (caught) {
            // Whatever went wrong, the file's results say so, even when the operation had not
            // yet made its messages.
            if (!errors)
                errors = std::make_shared<ErrorMessages>(fileName);
            addException(*errors, caught);
        }
        return errors;
    }

    static void addException(ErrorMessages &errors, const std::exception_ptr &caught)
    {
        try {
            std::rethrow_exception(caught);
        } catch (const TagsmithException &exception) {
            errors.addException(exception);
        } catch (const std::exception &exception) {
            errors.addException(exception);
        } catch (...) {
            errors.addException(TagsmithException(TagsmithException::LogicError,
                                                  QStringLiteral("unknown exception")));
        }
    }

    // Queued to the runner's thread of birth, never waited for. The runner is the context, so
    // what is still queued when it goes is dropped with it.
    template <typename Call> void post(Call call)
    {
        QMetaObject::invokeMethod(m_runner, std::move(call), Qt::QueuedConnection);
    }

    WriteQueue *m_runner;
    const ExifToolSessionKind m_kind;
    const QString m_program;
    std::unique_ptr<QThread> m_thread;
    std::unique_ptr<QThread> m_helper;

    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    QWaitCondition m_idle;
    QWaitCondition m_helperWake;
    std::deque<QList<ExifRunnerOperationPtr>> m_batches;
    bool m_busy = false;
    bool m_stopping = false;
    BatchRunPtr m_helperRun;
    bool m_helperStopping = false;
    std::atomic<int> m_concurrency{2};
    std::atomic<int> m_groupSize{64};
    std::atomic<int> m_groupTimeMs{250};
};

WriteQueue::WriteQueue(QObject *parent, ExifToolSessionKind sessionKind, QString exifToolProgram)
    : QObject(parent)
    , m_worker(std::make_unique<Worker>(this, sessionKind, std::move(exifToolProgram)))
{
}

WriteQueue::~WriteQueue() = default;

qsizetype WriteQueue::saveFiles(const QList<ExifFileInfoPtr> &files, ExifOperationOption options)
{
    return queueOperations(createSaveOperations(files, options));
}

qsizetype WriteQueue::removeAllMetadata(const QList<ExifFileInfoPtr> &files,
                                        ExifOperationOption options)
{
    return queueOperations(createRemoveOperations(files, options));
}

qsizetype WriteQueue::removeMakerNotesFromFiles(const QList<ExifFileInfoPtr> &files,
                                                ExifOperationOption options)
{
    return queueOperations(createRemoveMakerNotesOperations(files, options));
}

QList<ExifRunnerOperationPtr> WriteQueue::createSaveOperations(const QList<ExifFileInfoPtr> &files,
                                                               ExifOperationOption options) const
{
    QList<ExifRunnerOperationPtr> operations;
    for (const ExifFileInfoPtr &file : files) {
        if (auto operation = ExifRunnerSaveOperation::create(file, options))
            operations.append(std::move(operation));
    }
    return ExifRunnerSameFileOperation::keepOnePerFile(operations);
}

QList<ExifRunnerOperationPtr>
WriteQueue::createRemoveOperations(const QList<ExifFileInfoPtr> &files,
                                   ExifOperationOption options) const
{
    QList<ExifRunnerOperationPtr> operations;
    for (const ExifFileInfoPtr &file : files)
        operations.append(std::make_shared<ExifRunnerRemoveMetadataOperation>(file, options));
    return ExifRunnerSameFileOperation::keepOnePerFile(operations);
}

QList<ExifRunnerOperationPtr>
WriteQueue::createRemoveMakerNotesOperations(const QList<ExifFileInfoPtr> &files,
                                             ExifOperationOption options) const
{
    QList<ExifRunnerOperationPtr> operations;
    for (const ExifFileInfoPtr &file : files) {
        auto operation = std::make_shared<ExifRunnerRemoveExifGroupsOperation>(file, options);
        operation->setRemoveMakerNotes(true);
        operations.append(std::move(operation));
    }
    return ExifRunnerSameFileOperation::keepOnePerFile(operations);
}

qsizetype WriteQueue::queueOperations(QList<ExifRunnerOperationPtr> operations)
{
    const qsizetype count = operations.size();
    m_worker->enqueue(std::move(operations));
    return count;
}

void WriteQueue::setMaximumConcurrentOperations(int count)
{
    m_worker->setMaximumConcurrentOperations(count);
}

int WriteQueue::maximumConcurrentOperations() const
{
    return m_worker->maximumConcurrentOperations();
}

void WriteQueue::setFlushGroupLimits(int files, int milliseconds)
{
    m_worker->setFlushGroupLimits(files, milliseconds);
}

bool WriteQueue::waitForIdle(int timeoutMs)
{
    return m_worker->waitForIdle(timeoutMs);
}
