#include "engine/exiftoolcommand.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>

#include <algorithm>

ExifToolCommand::ExifToolCommand(QString program)
    : m_program(std::move(program))
{
}

ExifToolResult ExifToolCommand::run(const QStringList &arguments, const OutputHandler &onOutput,
                                    int timeoutMs) const
{
    ExifToolResult result;
    QProcess process;
    process.setProgram(m_program);
    process.setArguments(arguments);
    process.start(QIODevice::ReadOnly);
    if (!process.waitForStarted(-1)) {
        result.outcome = ExifToolResult::Outcome::FailedToStart;
        result.errorMessage = QCoreApplication::translate("Localizable",
                                                          "ExifTool could not be started from "
                                                          "\"%1\": %2")
                                  .arg(m_program, process.errorString());
        return result;
    }

    const QDeadlineTimer deadline = timeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever)
                                                  : QDeadlineTimer(timeoutMs);
    auto drain = [&] {
        const QByteArray chunk = process.readAllStandardOutput();
        if (chunk.isEmpty())
            return;
        if (onOutput)
            onOutput(chunk);
        else
            result.standardOutput += chunk;
    };
    while (process.state() != QProcess::NotRunning) {
        if (deadline.hasExpired()) {
            process.kill();
            process.waitForFinished(-1);
            result.outcome = ExifToolResult::Outcome::TimedOut;
            result.errorMessage = QCoreApplication::translate(
                                      "Localizable", "ExifTool (\"%1\") did not answer in time.")
                                      .arg(m_program);
            result.standardError = process.readAllStandardError();
            return result;
        }
        const int slice = deadline.isForever()
                              ? 1000
                              : int(std::clamp<qint64>(deadline.remainingTime(), 0, 1000));
        if (!process.waitForReadyRead(slice))
            process.waitForFinished(slice);
        drain();
    }
    drain();
    result.standardError = process.readAllStandardError();
    if (process.exitStatus() == QProcess::CrashExit) {
        result.outcome = ExifToolResult::Outcome::Crashed;
        result.errorMessage = QCoreApplication::translate("Localizable",
                                                          "ExifTool (\"%1\") stopped unexpectedly.")
                                  .arg(m_program);
        return result;
    }
    result.outcome = ExifToolResult::Outcome::Finished;
    result.exitCode = process.exitCode();
    return result;
}
