#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

// Runs the bundled ExifTool bare, as the baselines the benchmarks compare with; its output is
// kept only when asked for.
inline bool runExifTool(const QStringList &arguments, QByteArray *output = nullptr)
{
    QProcess process;
    if (!output)
        process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QStringLiteral(TAGSMITH_BENCH_EXIFTOOL), arguments);
    if (!process.waitForStarted(-1) || !process.waitForFinished(-1))
        return false;
    if (output)
        *output = process.readAllStandardOutput();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}
