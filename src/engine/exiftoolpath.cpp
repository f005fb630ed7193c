#include "engine/exiftoolpath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

// The relative paths from the installed bin folder, computed by the build from the install
// folders it was configured with.
const QString LibexecFromBin = QStringLiteral(TAGSMITH_LIBEXEC_FROM_BIN);
const QString DataFromBin = QStringLiteral(TAGSMITH_DATA_FROM_BIN);

QString firstExisting(const QString &applicationDir, const QStringList &candidates)
{
    const QDir dir(applicationDir);
    for (const QString &candidate : candidates) {
        const QString path = QDir::cleanPath(dir.filePath(candidate));
        if (QFileInfo::exists(path))
            return path;
    }
    return QDir::cleanPath(dir.filePath(candidates.constFirst()));
}

} // namespace

QString BundledPaths::exifTool(const QString &applicationDir)
{
    return firstExisting(applicationDir, {QStringLiteral("Contents/Resources/exiftool/exiftool"),
                                          LibexecFromBin + QStringLiteral("/exiftool/exiftool")});
}

QString BundledPaths::mapPage(const QString &applicationDir)
{
    return firstExisting(applicationDir, {QStringLiteral("Contents/Resources/map/page/map.html"),
                                          DataFromBin + QStringLiteral("/map/page/map.html")});
}

QString exifToolPath()
{
    const QString configured = qEnvironmentVariable("TAGSMITH_EXIFTOOL");
    if (!configured.isEmpty())
        return configured;
    return BundledPaths::exifTool(QCoreApplication::applicationDirPath());
}
