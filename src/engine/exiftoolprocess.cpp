#include "engine/exiftoolprocess.h"

#include "engine/exiftoolchild.h"
#include "engine/exiftoolprotocol.h"
#include "values/logging.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <algorithm>

namespace {

constexpr int waitSliceMs = 200;
constexpr int stopGraceMs = 2000;

int sliceOf(const QDeadlineTimer &deadline)
{
    if (deadline.isForever())
        return waitSliceMs;
    return int(std::clamp<qint64>(deadline.remainingTime(), 0, waitSliceMs));
}

} // namespace

ExifToolProcess::ExifToolProcess(QString program)
    : m_program(std::move(program))
{
}

ExifToolProcess::~ExifToolProcess()
{
    stop();
}

bool ExifToolProcess::isRunning() const
{
    return m_process && m_process->state() == QProcess::Running;
}

qint64 ExifToolProcess::processId() const
{
    return isRunning() ? m_process->processId() : 0;
}

bool ExifToolProcess::ensureStarted(ExifToolResult &result)
{
    if (isRunning())
        return true;
    discardProcess();
    m_process = std::make_unique<QProcess>();
    m_process->setProgram(m_program);
    m_process->setArguments({QStringLiteral("-stay_open"), QStringLiteral("True"),
                             QStringLiteral("-@"), QStringLiteral("-")});
    ExifToolChild::prepare(*m_process);
    m_process->start();
    if (m_process->waitForStarted(-1))
        return true;
    result.outcome = ExifToolResult::Outcome::FailedToStart;
    result.errorMessage = ExifToolChild::startFailedMessage(m_program, m_process->errorString());
    m_process.reset();
    return false;
}

ExifToolResult ExifToolProcess::execute(const QStringList &arguments, int timeoutMs)
{
    const int number = m_nextNumber++;
    const std::optional<QByteArray> command = ExifToolProtocol::encodeCommand(arguments, number);
    if (!command) {
        // Rare arguments the stream cannot carry unchanged: give them a process of their own.
        return ExifToolCommand(m_program).run(arguments, {}, timeoutMs);
    }

    ExifToolResult result;
    if (!ensureStarted(result))
        return result;

    const QDeadlineTimer deadline =
        timeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(timeoutMs);
    m_process->write(*command);
    return awaitReply(number, deadline);
}

ExifToolResult ExifToolProcess::awaitReply(int number, const QDeadlineTimer &deadline)
{
    QProcess &process = *m_process;
    ExifToolResult result;
    QByteArray out;
    QByteArray err;
    std::optional<QByteArray> output;
    std::optional<ExifToolProtocol::StatusLine> status;
    // Both streams are read to their own end marker; whatever arrived in pieces stays in the
    // buffers until the marker completes it.
    for (;;) {
        out += process.readAllStandardOutput();
        err += process.readAllStandardError();
        // ExifTool flushes its errors before it prints the ready marker, so once both markers are
        // in, the command is over and nothing more of it can come.
        if (!status)
            status = ExifToolProtocol::splitStatus(err, number);
        if (status && !output)
            output = ExifToolProtocol::outputBeforeReady(out, number);
        if (status && output)
            break;
        if (process.state() != QProcess::Running) {
            result.outcome = ExifToolResult::Outcome::Crashed;
            result.errorMessage = ExifToolChild::crashedMessage(m_program);
            qCWarning(lcTagsmith) << "ExifTool stopped during a command:" << err;
            break;
        }
        if (deadline.hasExpired()) {
            result.outcome = ExifToolResult::Outcome::TimedOut;
            result.errorMessage = ExifToolChild::timedOutMessage(m_program);
            break;
        }
        if (process.bytesToWrite() > 0) {
            process.waitForBytesWritten(sliceOf(deadline));
        } else {
            const bool isOutputComplete = out.endsWith(ExifToolProtocol::readyMarker(number));
            process.setReadChannel(isOutputComplete ? QProcess::StandardError
                                                    : QProcess::StandardOutput);
            process.waitForReadyRead(sliceOf(deadline));
        }
    }
    if (status && output) {
        result.outcome = ExifToolResult::Outcome::Finished;
        result.exitCode = status->status;
        result.standardOutput = *output;
        result.standardError = status->errors;
    } else {
        result.standardOutput = out;
        result.standardError = err;
    }
    // A process that died or hung is not reused; the next command starts a fresh one.
    if (result.outcome != ExifToolResult::Outcome::Finished || !isRunning())
        discardProcess();
    return result;
}

void ExifToolProcess::stop()
{
    if (!m_process)
        return;
    QProcess &process = *m_process;
    if (process.state() != QProcess::NotRunning) {
        process.write(QByteArrayLiteral("-stay_open\nFalse\n"));
        process.waitForBytesWritten(stopGraceMs);
        process.closeWriteChannel();
        if (!process.waitForFinished(stopGraceMs)) {
            process.terminate();
            if (!process.waitForFinished(stopGraceMs)) {
                process.kill();
                process.waitForFinished(-1);
            }
        }
    }
    m_process.reset();
}

void ExifToolProcess::discardProcess()
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->kill();
        m_process->waitForFinished(-1);
    }
    m_process.reset();
}
