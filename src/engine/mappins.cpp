#include "engine/mappins.h"

#include "engine/editsession.h"
#include "values/gpslocation.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

const QStringList &gpsKeys()
{
    // The order the notifications go out in.
    static const QStringList keys{MapPins::LongitudeKey, MapPins::LongitudeRefKey,
                                  MapPins::LatitudeKey, MapPins::LatitudeRefKey};
    return keys;
}

} // namespace

const QStringList &MapPins::pinKeys()
{
    // An altitude or a GPS time left behind would describe a place the photo no longer has.
    static const QStringList keys = gpsKeys() + QStringList{QStringLiteral("GPS:GPSAltitude"),
                                                            QStringLiteral("GPS:GPSAltitudeRef"),
                                                            QStringLiteral("GPS:GPSDateStamp"),
                                                            QStringLiteral("GPS:GPSTimeStamp")};
    return keys;
}

MapPins::MapPins(EditSession &session, QObject *parent)
    : QObject(parent)
    , m_session(&session)
{
    connect(&session, &EditSession::exifFilesUpdated, this, &MapPins::handleExifFilesUpdate);
}

std::optional<MapPin> MapPins::createPointAnnotation(const ExifFileInfo &file)
{
    const EditedValues data = file.editedValues();
    for (const QString &key : gpsKeys()) {
        if (!data.contains(key))
            return std::nullopt;
    }
    const auto latitude = GPSLocation::signedDegreesFromTags(
        data.value(LatitudeKey), data.value(LatitudeRefKey), GPSLocation::Latitude);
    const auto longitude = GPSLocation::signedDegreesFromTags(
        data.value(LongitudeKey), data.value(LongitudeRefKey), GPSLocation::Longitude);
    if (!latitude || !longitude)
        return std::nullopt;

    MapPin pin;
    pin.fileName = file.fileName();
    pin.title = QFileInfo(file.fileName()).fileName();
    pin.latitude = *latitude;
    pin.longitude = *longitude;
    return pin;
}

std::optional<MapRegion> MapPins::regionForPins(const QList<MapPin> &pins)
{
    if (pins.isEmpty())
        return std::nullopt;
    if (pins.size() == 1)
        return MapRegion{pins.first().latitude, pins.first().longitude, 1.0, 1.0};

    // The longitude start values are kept from the original design even though they clip the
    // box at 90 degrees when every pin lies further east or west.
    double minLatitude = 180;
    double maxLatitude = -180;
    double minLongitude = 90;
    double maxLongitude = -90;
    for (const MapPin &pin : pins) {
        minLatitude = std::min(minLatitude, pin.latitude);
        maxLatitude = std::max(maxLatitude, pin.latitude);
        minLongitude = std::min(minLongitude, pin.longitude);
        maxLongitude = std::max(maxLongitude, pin.longitude);
    }
    MapRegion region;
    region.latitude = minLatitude + (maxLatitude - minLatitude) * 0.5;
    region.longitude = minLongitude + (maxLongitude - minLongitude) * 0.5;
    region.latitudeSpan = 2 * std::abs(minLatitude - region.latitude);
    region.longitudeSpan = 2 * std::abs(minLongitude - region.longitude);
    return region;
}

void MapPins::updatePinAnnotationExifFile(ExifFileInfo &file, double latitude, double longitude)
{
    for (const auto &[key, value] : gpsPositionTags(latitude, longitude))
        file.setExifValue(key, value);
}

void MapPins::setFiles(const QList<ExifFileInfoPtr> &files)
{
    m_files = files;
    m_annotations.clear();
    for (const ExifFileInfoPtr &file : files) {
        if (!file)
            continue;
        if (std::optional<MapPin> pin = createPointAnnotation(*file))
            m_annotations.insert(pin->fileName, *pin);
    }
    const QList<MapPin> shown = pins();
    Q_EMIT pinsChanged(shown);

    if (std::optional<MapRegion> region = regionForPins(shown)) {
        m_region = region;
        Q_EMIT regionChanged(*region);
    }
    Q_EMIT buttonsChanged(isAddEnabled(), isRemoveEnabled());
}

bool MapPins::isAddEnabled() const
{
    return m_annotations.size() < m_files.size();
}

bool MapPins::isRemoveEnabled() const
{
    return !m_annotations.isEmpty();
}

void MapPins::setCenter(double latitude, double longitude)
{
    m_centerLatitude = latitude;
    m_centerLongitude = longitude;
}

void MapPins::addPin()
{
    QList<ExifFileInfoPtr> pinned;
    for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
        if (!file || m_annotations.contains(file->fileName()))
            continue;
        updatePinAnnotationExifFile(*file, m_centerLatitude, m_centerLongitude);
        m_annotations.insert(file->fileName(),
                             MapPin{file->fileName(), QFileInfo(file->fileName()).fileName(),
                                    m_centerLatitude, m_centerLongitude});
        pinned << file;
    }
    Q_EMIT pinsChanged(pins());
    notifyFilesChange(pinned);
}

QList<ExifFileInfoPtr> MapPins::filesWithPinValues() const
{
    QList<ExifFileInfoPtr> files;
    for (const ExifFileInfoPtr &file : m_files) {
        if (file && std::any_of(pinKeys().cbegin(), pinKeys().cend(),
                                [&file](const QString &key) { return file->hasExifValue(key); }))
            files << file;
    }
    return files;
}

void MapPins::removePin()
{
    const QList<ExifFileInfoPtr> changed = filesWithPinValues();
    for (const ExifFileInfoPtr &file : changed) {
        for (const QString &key : pinKeys())
            file->removeExifValue(key);
    }
    if (!changed.isEmpty() && m_session) {
        for (const QString &key : pinKeys())
            m_session->post(key, changed, std::nullopt, changed, this);
    }
    m_annotations.clear();
    Q_EMIT pinsChanged({});
    Q_EMIT buttonsChanged(isAddEnabled(), isRemoveEnabled());
}

void MapPins::movePin(const QString &fileName, double latitude, double longitude)
{
    const ExifFileInfoPtr file = fileNamed(fileName);
    if (!file)
        return;
    updatePinAnnotationExifFile(*file, latitude, longitude);
    notifyFilesChange({file});
}

void MapPins::changeMapType(int segment)
{
    const MapType type = static_cast<MapType>(std::clamp(segment, 0, 2));
    if (type == m_mapType)
        return;
    m_mapType = type;
    Q_EMIT mapTypeChanged(type);
}

void MapPins::handleExifFilesUpdate(const ExifFilesUpdate &update)
{
    // Our own posts come back here too, so every change ends in a rebuild and a new frame.
    if (gpsKeys().contains(update.xmlName))
        setFiles(m_files);
}

void MapPins::notifyFilesChange(const QList<ExifFileInfoPtr> &files)
{
    if (files.isEmpty() || !m_session)
        return;
    for (const QString &key : gpsKeys())
        m_session->post(key, files, files.first()->exifValue(key), files, this);
}

ExifFileInfoPtr MapPins::fileNamed(const QString &fileName) const
{
    for (const ExifFileInfoPtr &file : m_files) {
        if (file && file->fileName() == fileName)
            return file;
    }
    return nullptr;
}
