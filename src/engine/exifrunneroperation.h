#pragma once

#include "engine/exiffileinfo.h"
#include "engine/exifoperationstatus.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <memory>

class ExifToolSession;
class FileReplacement;

// What a file-changing operation does besides its write.
enum class ExifOperationOption {
    None,
    // Reads the file back once it is in place, so its record holds what is on disk and its
    // edits are no longer pending.
    ReReadFile,
};

// Anything that runs ExifTool on the background runner's thread. The runner hands in the
// ExifTool session it keeps on that thread; without one, each run starts a process of its own.
class ExifRunnerOperation
{
public:
    virtual ~ExifRunnerOperation();

    virtual QString fileName() const = 0;
    // The record the operation works on; null for one that stands for no record.
    virtual ExifFileInfoPtr file() const = 0;
    virtual ErrorMessagesPtr errors() const = 0;

    // Background thread.
    virtual void run();
    // run() in two halves, so that the runner can flush the new files of several operations at
    // once: runUntilFlush stops where the operation's new file only waits to reach the disk and
    // returns it; the runner then flushes it and calls runAfterFlush. Null means the operation
    // has run to its end (nothing to put in place, a failure, or one that does not stop).
    virtual FileReplacement *runUntilFlush();
    virtual void runAfterFlush();
    // ExifTool's "Error: " and "Warning: " lines into messages.
    virtual void readErrors(ErrorMessages &errors, QByteArrayView data) const;
    // Runs ExifTool and returns its exit status; a run that could not start, crashed or timed
    // out returns non-zero and leaves an error saying so.
    virtual int runExifToolWithArgs(const QStringList &arguments, ErrorMessages &errors);
    virtual void debugPrintExifToolOut(QByteArrayView output) const;

    // Main thread, after run and before fileFinished is signalled for the file.
    virtual void postProcessInMainThread();

    void setExifToolSession(ExifToolSession *session) { m_session = session; }

protected:
    ExifToolSession &exifToolSession();
    // Applies to the ExifTool commands that follow; < 0 waits as long as it takes.
    void setCommandTimeout(int timeoutMs) { m_commandTimeoutMs = timeoutMs; }
    int commandTimeout() const { return m_commandTimeoutMs; }

private:
    ExifToolSession *m_session = nullptr;
    std::unique_ptr<ExifToolSession> m_ownSession;
    int m_commandTimeoutMs = -1;
};

using ExifRunnerOperationPtr = std::shared_ptr<ExifRunnerOperation>;
