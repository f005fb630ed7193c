#pragma once

#include "engine/exifbackgroundrunnerlistener.h"
#include "engine/exiffileinfo.h"
#include "engine/exifrunneroperation.h"
#include "engine/exiftoolsession.h"

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class QThread;

// Runs the batches of file operations one after another in submission order on its own thread
// named "Exif Operations Background Runner", which a second thread helps with up to two files of
// a batch at once, and tells the listener of every step on the main thread, files in batch
// order. Each thread keeps one ExifTool session for all of its operations. Lives in the thread
// that made it, which must run an event loop for the listener to hear anything.
class ExifBackgroundRunner : public QObject
{
    Q_OBJECT

public:
    static inline const QString ThreadName = QStringLiteral("Exif Operations Background Runner");

    explicit ExifBackgroundRunner(QObject *parent = nullptr,
                                  ExifToolSessionKind sessionKind = ExifToolSessionKind::Persistent,
                                  QString exifToolProgram = exifToolPath());
    // Lets queued batches finish (a file is never left half-written), then stops the thread.
    ~ExifBackgroundRunner() override;

    // Not owned; must outlive the batches it is told of, or be reset to null first.
    void setListener(ExifBackgroundRunnerListener *listener);
    ExifBackgroundRunnerListener *listener() const;

    // Each queues one batch (also when it is empty) and returns how many operations it holds.
    virtual qsizetype saveFiles(const QList<ExifFileInfoPtr> &files, quint32 options);
    virtual qsizetype removeAllMetadata(const QList<ExifFileInfoPtr> &files, quint32 options);
    virtual qsizetype removeMakerNotesFromFiles(const QList<ExifFileInfoPtr> &files,
                                                quint32 options);

    QList<ExifRunnerOperationPtr> createSaveOperations(const QList<ExifFileInfoPtr> &files,
                                                       quint32 options) const;
    QList<ExifRunnerOperationPtr> createRemoveOperations(const QList<ExifFileInfoPtr> &files,
                                                         quint32 options) const;
    QList<ExifRunnerOperationPtr>
    createRemoveMakerNotesOperations(const QList<ExifFileInfoPtr> &files, quint32 options) const;

    // Queues any prepared batch; the three calls above end here.
    qsizetype queueOperations(QList<ExifRunnerOperationPtr> operations);

    // How many files of a batch may be worked on at once: 1 or 2 (the default). Each file still
    // goes through one operation on one ExifTool session. Applies to batches not yet started.
    void setMaximumConcurrentOperations(int count);
    int maximumConcurrentOperations() const;

    // Blocks until every queued batch has run (its listener calls may still be on their way to
    // the main thread). For tests and for quitting.
    bool waitForIdle(int timeoutMs = -1);

private:
    class Worker;
    std::unique_ptr<Worker> m_worker;
};
