#pragma once

#include "engine/exiftoolcommand.h"

#include <QString>
#include <QStringList>

#include <memory>

class QDeadlineTimer;
class QProcess;

// One long-lived "exiftool -stay_open True -@ -" process that runs commands one after another,
// so that Perl starts once rather than once per file. Started on the first command and again
// after it died or hung. Blocks the calling thread and needs no event loop; it must be used
// only from the thread that ran its first command, which must outlive it (the child is told
// to die with that thread). Relative paths resolve against the working directory the process
// was started in, so callers pass absolute ones.
class ExifToolProcess
{
public:
    explicit ExifToolProcess(QString program = exifToolPath());
    ~ExifToolProcess();

    ExifToolProcess(const ExifToolProcess &) = delete;
    ExifToolProcess &operator=(const ExifToolProcess &) = delete;

    const QString &program() const { return m_program; }

    // Runs one command and gives its own output, errors and exit status, as a run of
    // "exiftool ARGUMENTS" would. timeoutMs < 0 waits as long as it takes; a command that
    // exceeds it is stopped with the whole process.
    ExifToolResult execute(const QStringList &arguments, int timeoutMs = -1);

    bool isRunning() const;
    qint64 processId() const; // 0 when not running

    // Asks ExifTool to stop, then terminates and kills it if it does not. The next command
    // starts a new process.
    void stop();

private:
    bool ensureStarted(ExifToolResult &result);
    ExifToolResult awaitReply(int number, const QDeadlineTimer &deadline);
    void discardProcess();

    QString m_program;
    std::unique_ptr<QProcess> m_process;
    int m_nextNumber = 1;
};
