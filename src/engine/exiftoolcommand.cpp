#include "engine/exiftoolcommand.h"

#include "engine/exiftoolchild.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <algorithm>

ExifToolCommand::ExifToolCommand(QString program)
    : m_program(std::move(program))
{
}

ExifToolResult ExifToolCommand::run(const QStringList &arguments, const OutputHandler &onOutput,
                                    int timeoutMs, int idleTimeoutMs) const
{
    ExifToolResult result;
    QProcess process;
    process.setProgram(m_program);
    process.setArguments(arguments);
    // Nothing is ever typed into a one-shot run; an argument that makes ExifTool read its input
    // must meet an end of file rather than wait for good.
    process.setStandardInputFile(QProcess::nullDevice());
    ExifToolChild::prepare(process);
    process.start(QIODevice::ReadOnly);
    if (!process.waitForStarted(-1)) {
        result.outcome = ExifToolResult::Outcome::FailedToStart;
        result.errorMessage = ExifToolChild::startFailedMessage(m_program, process.errorString());
        return result;
    }

    const QDeadlineTimer deadline =
        timeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(timeoutMs);
    const auto idleDeadline = [idleTimeoutMs] {
        return idleTimeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever)
                                 : QDeadlineTimer(idleTimeoutMs);
    };
    QDeadlineTimer idle = idleDeadline();
    auto drain = [&] {
        const QByteArray chunk = process.readAllStandardOutput();
        if (chunk.isEmpty())
            return;
        idle = idleDeadline();
        if (onOutput)
            onOutput(chunk);
        else
            result.standardOutput += chunk;
    };
    while (process.state() != QProcess::NotRunning) {
        if (deadline.hasExpired() || idle.hasExpired()) {
            process.kill();
            process.waitForFinished(-1);
            result.outcome = ExifToolResult::Outcome::TimedOut;
            result.errorMessage = ExifToolChild::timedOutMessage(m_program);
            result.standardError = process.readAllStandardError();
            return result;
        }
        const QDeadlineTimer next = std::min(deadline, idle);
        const int slice =
            next.isForever() ? 1000 : int(std::clamp<qint64>(next.remainingTime(), 0, 1000));
        if (!process.waitForReadyRead(slice))
            process.waitForFinished(slice);
        drain();
    }
    drain();
    result.standardError = process.readAllStandardError();
    if (process.exitStatus() == QProcess::CrashExit) {
        result.outcome = ExifToolResult::Outcome::Crashed;
        result.errorMessage = ExifToolChild::crashedMessage(m_program);
        return result;
    }
    result.outcome = ExifToolResult::Outcome::Finished;
    result.exitCode = process.exitCode();
    return result;
}
