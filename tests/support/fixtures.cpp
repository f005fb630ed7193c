#include "fixtures.h"

#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QProcess>

namespace Fixtures {

QString exifTool()
{
    return QStringLiteral(TAGSMITH_TEST_EXIFTOOL);
}

ToolRun runExifTool(const QStringList &arguments)
{
    QProcess process;
    process.start(exifTool(), arguments);
    ToolRun run;
    if (!process.waitForStarted(30000)) {
        run.err = process.errorString().toUtf8();
        return run;
    }
    process.closeWriteChannel();
    process.waitForFinished(120000);
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return run;
}

QString makeImage(const QString &path, const QStringList &exifToolArguments)
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(QColor(40, 90, 160));
    QPainter painter(&image);
    painter.fillRect(8, 8, 24, 16, QColor(230, 200, 40));
    painter.end();
    const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
    if (!image.save(path, format.isEmpty() ? "jpg" : format.constData()))
        return QStringLiteral("could not write the image ") + path;
    if (exifToolArguments.isEmpty())
        return {};
    QStringList arguments{QStringLiteral("-overwrite_original")};
    arguments << exifToolArguments << QStringLiteral("--") << path;
    const ToolRun run = runExifTool(arguments);
    if (!run.ok())
        return QStringLiteral("exiftool failed on ") + path + QStringLiteral(": ") +
               QString::fromUtf8(run.err);
    return {};
}

QByteArray readBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size() && file.flush();
}

} // namespace Fixtures
