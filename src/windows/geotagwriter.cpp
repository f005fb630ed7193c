#include "windows/geotagwriter.h"

#include "windows/mappins.h"

#include "editors/exiffilesupdate.h"

#include <QMap>

QList<ExifFileInfoPtr> applyGeotagMatches(const QList<FileMatch> &matches, const void *source)
{
    QList<ExifFileInfoPtr> changed;
    QStringList keys;
    QMap<QString, QList<ExifFileInfoPtr>> filesByKey;
    for (const auto &[file, match] : matches) {
        if (!file || !match.isMatched())
            continue;
        MapPins::updatePinAnnotationExifFile(*file, match.latitude, match.longitude);
        for (const auto &[key, value] : GeotagMatcher::gpsValues(match)) {
            // The position itself went in through the pin's path above.
            if (key != MapPins::LatitudeKey && key != MapPins::LatitudeRefKey &&
                key != MapPins::LongitudeKey && key != MapPins::LongitudeRefKey) {
                file->setExifValue(key, value);
            }
            if (!keys.contains(key))
                keys << key;
            filesByKey[key] << file;
        }
        changed << file;
    }
    for (const QString &key : std::as_const(keys)) {
        const QList<ExifFileInfoPtr> &files = filesByKey[key];
        ExifFilesUpdateCenter::instance().post(key, files, files.first()->exifValue(key), files,
                                               source);
    }
    return changed;
}
