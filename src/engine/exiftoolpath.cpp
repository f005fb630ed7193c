#include "engine/exiftoolpath.h"

#include <QCoreApplication>
#include <QDir>

QString exifToolPath()
{
    const QString configured = qEnvironmentVariable("TAGSMITH_EXIFTOOL");
    if (!configured.isEmpty())
        return configured;
    return QDir(QCoreApplication::applicationDirPath())
        .filePath(QStringLiteral("Contents/Resources/exiftool/exiftool"));
}
