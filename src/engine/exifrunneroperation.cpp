#include "engine/exifrunneroperation.h"

#include "engine/exiftoolsession.h"
#include "values/debugmode.h"
#include "values/logging.h"

#include <QList>

ExifRunnerOperation::~ExifRunnerOperation() = default;

void ExifRunnerOperation::run()
{
}

FileReplacement *ExifRunnerOperation::runUntilFlush()
{
    run();
    return nullptr;
}

void ExifRunnerOperation::runAfterFlush()
{
}

void ExifRunnerOperation::readErrors(ErrorMessages &errors, QByteArrayView data) const
{
    errors.addExifToolOutput(data);
}

int ExifRunnerOperation::runExifToolWithArgs(const QStringList &arguments, ErrorMessages &errors)
{
    const ExifToolResult result = exifToolSession().execute(arguments, m_commandTimeoutMs);
    if (DebugMode::isEnabled()) {
        debugPrintExifToolOut(result.standardOutput);
        debugPrintExifToolOut(result.standardError);
    }
    readErrors(errors, result.standardOutput);
    readErrors(errors, result.standardError);
    if (result.outcome != ExifToolResult::Outcome::Finished) {
        errors.addError(result.errorMessage);
        // A crash or a timeout may have left exit code 0 behind; it must never read as success.
        return result.exitCode != 0 ? result.exitCode : -1;
    }
    return result.exitCode;
}

void ExifRunnerOperation::debugPrintExifToolOut(QByteArrayView output) const
{
    if (output.isEmpty())
        return;
    QString text;
    for (const QByteArrayView line : QByteArray(output.toByteArray()).split('\n'))
        text += QString::fromUtf8(line) + u'\n';
    qCInfo(lcTagsmith).noquote() << text;
}

void ExifRunnerOperation::postProcessInMainThread()
{
}

ExifToolSession &ExifRunnerOperation::exifToolSession()
{
    if (m_session)
        return *m_session;
    if (!m_ownSession)
        m_ownSession = makeExifToolSession(ExifToolSessionKind::OneShot);
    return *m_ownSession;
}
