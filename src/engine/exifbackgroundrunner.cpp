#include "engine/exifbackgroundrunner.h"

#include "engine/exifrunnerremoveexifgroupsoperation.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "engine/exifrunnersaveoperation.h"
#include "values/logging.h"
#include "values/tagsmithexception.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QPointer>
#include <QThread>
#include <QWaitCondition>

#include <deque>
#include <exception>

// The runner's thread and its FIFO of batches. The ExifTool session is made and ended on that
// thread, as its process must be.
class ExifBackgroundRunner::Worker
{
public:
    Worker(ExifBackgroundRunner *runner, ExifToolSessionKind kind, QString program)
        : m_runner(runner)
        , m_kind(kind)
        , m_program(std::move(program))
    {
        m_thread.reset(QThread::create([this] { loop(); }));
        m_thread->setObjectName(ThreadName);
        m_thread->start();
    }

    ~Worker()
    {
        {
            QMutexLocker locker(&m_mutex);
            m_stopping = true;
            m_wake.wakeAll();
        }
        m_thread->wait();
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

    ExifBackgroundRunnerListener *listener() const
    {
        QMutexLocker locker(&m_mutex);
        return m_listener;
    }
    void setListener(ExifBackgroundRunnerListener *listener)
    {
        QMutexLocker locker(&m_mutex);
        m_listener = listener;
    }

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
            processOperations(batch, *session);
            QMutexLocker locker(&m_mutex);
            m_busy = false;
            m_idle.wakeAll();
        }
    }

    void processOperations(const QList<ExifRunnerOperationPtr> &operations,
                           ExifToolSession &session)
    {
        QHash<QString, ErrorMessagesPtr> results;
        const quint64 total = quint64(operations.size());
        for (qsizetype i = 0; i < operations.size(); ++i) {
            const ExifRunnerOperationPtr &operation = operations.at(i);
            const quint64 position = quint64(i) + 1;
            QString fileName;
            ErrorMessagesPtr errors;
            try {
                fileName = operation->fileName();
            } catch (const std::exception &exception) {
                qCWarning(lcTagsmith).noquote() << QString::fromUtf8(exception.what());
            }
            post([fileName, position, total](ExifBackgroundRunnerListener *listener) {
                listener->fileToBeProcessed(
                    nullptr, ExifOperationStatus(0, fileName, position, total, nullptr));
            });

            operation->setExifToolSession(&session);
            std::exception_ptr caught;
            try {
                operation->run();
            } catch (...) {
                caught = std::current_exception();
            }
            try {
                errors = operation->errors();
            } catch (...) {
                if (!caught)
                    caught = std::current_exception();
            }
            if (caught) {
                // Whatever went wrong, the file's results say so, even when the operation had
                // not yet made its messages.
                if (!errors)
                    errors = std::make_shared<ErrorMessages>(fileName);
                addException(*errors, caught);
            }
            if (errors)
                results.insert(fileName, errors);

            post(
                [operation, fileName, position, total,
                 errors](ExifBackgroundRunnerListener *listener) {
                    try {
                        operation->postProcessInMainThread();
                    } catch (const std::exception &exception) {
                        qCWarning(lcTagsmith).noquote() << QString::fromUtf8(exception.what());
                    }
                    listener->fileProcessed(
                        nullptr, ExifOperationStatus(0, fileName, position, total, errors));
                },
                true);
        }
        post([results](ExifBackgroundRunnerListener *listener) {
            listener->finishProcessing(results);
        });
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

    // Queued to the runner's thread of birth, never waited for. postProcess runs even without
    // a listener, as the file record must learn what is on disk.
    template <typename Call> void post(Call call, bool withoutListener = false)
    {
        QMetaObject::invokeMethod(
            m_runner,
            [this, call, withoutListener] {
                ExifBackgroundRunnerListener *current = listener();
                if (current)
                    call(current);
                else if (withoutListener)
                    call(&s_silent);
            },
            Qt::QueuedConnection);
    }

    class SilentListener final : public ExifBackgroundRunnerListener
    {
    public:
        void fileToBeProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &) override {}
        void fileProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &) override {}
        void finishProcessing(const QHash<QString, ErrorMessagesPtr> &) override {}
    };
    static inline SilentListener s_silent;

    ExifBackgroundRunner *m_runner;
    const ExifToolSessionKind m_kind;
    const QString m_program;
    std::unique_ptr<QThread> m_thread;

    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    QWaitCondition m_idle;
    std::deque<QList<ExifRunnerOperationPtr>> m_batches;
    bool m_busy = false;
    bool m_stopping = false;
    ExifBackgroundRunnerListener *m_listener = nullptr;
};

ExifBackgroundRunner::ExifBackgroundRunner(QObject *parent, ExifToolSessionKind sessionKind,
                                           QString exifToolProgram)
    : QObject(parent)
    , m_worker(std::make_unique<Worker>(this, sessionKind, std::move(exifToolProgram)))
{
}

ExifBackgroundRunner::~ExifBackgroundRunner() = default;

void ExifBackgroundRunner::setListener(ExifBackgroundRunnerListener *listener)
{
    m_worker->setListener(listener);
}

ExifBackgroundRunnerListener *ExifBackgroundRunner::listener() const
{
    return m_worker->listener();
}

qsizetype ExifBackgroundRunner::saveFiles(const QList<ExifFileInfoPtr> &files, quint32 options)
{
    return queueOperations(createSaveOperations(files, options));
}

qsizetype ExifBackgroundRunner::removeAllMetadata(const QList<ExifFileInfoPtr> &files,
                                                  quint32 options)
{
    return queueOperations(createRemoveOperations(files, options));
}

qsizetype ExifBackgroundRunner::removeMakerNotesFromFiles(const QList<ExifFileInfoPtr> &files,
                                                          quint32 options)
{
    return queueOperations(createRemoveMakerNotesOperations(files, options));
}

QList<ExifRunnerOperationPtr>
ExifBackgroundRunner::createSaveOperations(const QList<ExifFileInfoPtr> &files,
                                           quint32 options) const
{
    QList<ExifRunnerOperationPtr> operations;
    for (const ExifFileInfoPtr &file : files) {
        if (auto operation = ExifRunnerSaveOperation::create(file, options))
            operations.append(std::move(operation));
    }
    return operations;
}

QList<ExifRunnerOperationPtr>
ExifBackgroundRunner::createRemoveOperations(const QList<ExifFileInfoPtr> &files,
                                             quint32 options) const
{
    QList<ExifRunnerOperationPtr> operations;
    for (const ExifFileInfoPtr &file : files)
        operations.append(std::make_shared<ExifRunnerRemoveMetadataOperation>(file, options));
    return operations;
}

QList<ExifRunnerOperationPtr>
ExifBackgroundRunner::createRemoveMakerNotesOperations(const QList<ExifFileInfoPtr> &files,
                                                       quint32 options) const
{
    QList<ExifRunnerOperationPtr> operations;
    for (const ExifFileInfoPtr &file : files) {
        auto operation = std::make_shared<ExifRunnerRemoveExifGroupsOperation>(file, options);
        operation->setRemoveMakerNotes(true);
        operations.append(std::move(operation));
    }
    return operations;
}

qsizetype ExifBackgroundRunner::queueOperations(QList<ExifRunnerOperationPtr> operations)
{
    const qsizetype count = operations.size();
    m_worker->enqueue(std::move(operations));
    return count;
}

bool ExifBackgroundRunner::waitForIdle(int timeoutMs)
{
    return m_worker->waitForIdle(timeoutMs);
}
