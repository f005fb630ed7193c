#pragma once

#include "engine/exiffileinfo.h"
#include "engine/exifoperationstatus.h"
#include "engine/exifrunneroperation.h"
#include "engine/exiftoolsession.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class QThread;

// Runs the batches of file operations one after another in submission order on its own thread
// named "Exif Operations Background Runner", which a second thread helps with up to two files of
// a batch at once, and signals every step in the thread that made it, files in batch order: for
// each file fileStarted then fileFinished, the batch's batchFinished last. Each thread keeps one
// ExifTool session for all of its operations, and puts the new files of a batch in place in
// groups: written and checked one by one, flushed to disk together, then renamed in order, so a
// file is reported finished once its group is. The thread that made the runner must run an event
// loop for any signal to come; none comes once the runner is destroyed.
class WriteQueue : public QObject
{
    Q_OBJECT

public:
    static inline const QString ThreadName = QStringLiteral("Exif Operations Background Runner");

    explicit WriteQueue(QObject *parent = nullptr,
                        ExifToolSessionKind sessionKind = ExifToolSessionKind::Persistent,
                        QString exifToolProgram = exifToolPath());
    // Lets queued batches finish (a file is never left half-written), then stops the thread.
    ~WriteQueue() override;

    // Each queues one batch (also when it is empty) and returns how many operations it holds.
    virtual qsizetype saveFiles(const QList<ExifFileInfoPtr> &files, ExifOperationOption options);
    virtual qsizetype removeAllMetadata(const QList<ExifFileInfoPtr> &files,
                                        ExifOperationOption options);
    virtual qsizetype removeMakerNotesFromFiles(const QList<ExifFileInfoPtr> &files,
                                                ExifOperationOption options);

    QList<ExifRunnerOperationPtr> createSaveOperations(const QList<ExifFileInfoPtr> &files,
                                                       ExifOperationOption options) const;
    QList<ExifRunnerOperationPtr> createRemoveOperations(const QList<ExifFileInfoPtr> &files,
                                                         ExifOperationOption options) const;
    QList<ExifRunnerOperationPtr>
    createRemoveMakerNotesOperations(const QList<ExifFileInfoPtr> &files,
                                     ExifOperationOption options) const;

    // Queues any prepared batch; the three calls above end here.
    qsizetype queueOperations(QList<ExifRunnerOperationPtr> operations);

    // How many files of a batch may be worked on at once: 1 or 2 (the default). Each file still
    // goes through one operation on one ExifTool session. Applies to batches not yet started.
    void setMaximumConcurrentOperations(int count);
    int maximumConcurrentOperations() const;

    // New files are flushed in groups of at most this many files, or of the files written
    // within this many milliseconds of the group's first (by default 64 and 250 ms). Applies
    // from the next file written.
    void setFlushGroupLimits(int files, int milliseconds);

    // Blocks until every queued batch has run (its signals may still be on their way to the
    // runner's thread). For tests and for quitting.
    bool waitForIdle(int timeoutMs = -1);

Q_SIGNALS:
    // file is the record of the operation, null for an operation without one. The status of
    // fileStarted carries no errors.
    void fileStarted(const ExifFileInfoPtr &file, const ExifOperationStatus &status);
    // The file's record already holds what the operation left on disk.
    void fileFinished(const ExifFileInfoPtr &file, const ExifOperationStatus &status);
    // File path -> its messages; files whose operation stored none are absent.
    void batchFinished(const QHash<QString, ErrorMessagesPtr> &results);

private:
    class Worker;
    std::unique_ptr<Worker> m_worker;
};
