#pragma once

#include "engine/exiftoolpath.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <functional>

// What one ExifTool run produced. "Could not start" is kept apart from "ran and failed".
struct ExifToolResult
{
    enum class Outcome { Finished, FailedToStart, Crashed, TimedOut };

    Outcome outcome = Outcome::FailedToStart;
    int exitCode = -1;
    QByteArray standardOutput; // empty when the output went to a streaming callback
    QByteArray standardError;
    QString errorMessage; // user-presentable, set for every outcome but Finished

    bool hasStarted() const { return outcome != Outcome::FailedToStart; }
    bool hasSucceeded() const { return outcome == Outcome::Finished && exitCode == 0; }
};

// One ExifTool process per call, started with an argument list (never through a shell).
// Blocks the calling thread; safe to use from any thread.
class ExifToolCommand
{
public:
    using OutputHandler = std::function<void(QByteArrayView chunk)>;

    explicit ExifToolCommand(QString program = exifToolPath());

    const QString &program() const { return m_program; }

    // When onOutput is set, standard output is handed over chunk by chunk as it arrives
    // instead of being collected. timeoutMs < 0 waits as long as it takes; idleTimeoutMs, when
    // not negative, gives up once no output came for that long.
    ExifToolResult run(const QStringList &arguments, const OutputHandler &onOutput = {},
                       int timeoutMs = -1, int idleTimeoutMs = -1) const;

private:
    QString m_program;
};
