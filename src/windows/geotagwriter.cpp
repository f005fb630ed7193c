#include "windows/geotagwriter.h"

#include "engine/editsession.h"

#include <QMap>

QList<ExifFileInfoPtr> applyGeotagMatches(const QList<FileMatch> &matches, EditSession &session,
                                          const void *source)
{
    QList<ExifFileInfoPtr> changed;
    QStringList keys;
    QMap<QString, QList<ExifFileInfoPtr>> filesByKey;
    for (const auto &[file, match] : matches) {
        if (!file || !match.isMatched())
            continue;
        // The position's tags are the ones a pin dragged on the map writes.
        for (const auto &[key, value] : GeotagMatcher::gpsValues(match)) {
            file->setExifValue(key, value);
            if (!keys.contains(key))
                keys << key;
            filesByKey[key] << file;
        }
        changed << file;
    }
    for (const QString &key : std::as_const(keys)) {
        const QList<ExifFileInfoPtr> &files = filesByKey[key];
        session.post(key, files, files.first()->exifValue(key), files, source);
    }
    return changed;
}
