#pragma once

#include "engine/exiffileinfo.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

class EditSession;
struct ExifFilesUpdate;

// One file's position on the map.
struct MapPin
{
    QString fileName;
    QString title;
    double latitude = 0;
    double longitude = 0;
};

// Centre and span in degrees, as the map is framed.
struct MapRegion
{
    double latitude = 0;
    double longitude = 0;
    double latitudeSpan = 0;
    double longitudeSpan = 0;
};

enum class MapType { Standard = 0, Satellite = 1, Hybrid = 2 };

// Everything the map window knows about pins and files, without a widget: which files get a
// pin, how the map is framed, and what adding, dragging and removing pins write into the files'
// current values. The page that draws the map only follows the signals.
class MapPins : public QObject
{
    Q_OBJECT

public:
    static inline const QString LatitudeKey = QStringLiteral("GPS:GPSLatitude");
    static inline const QString LatitudeRefKey = QStringLiteral("GPS:GPSLatitudeRef");
    static inline const QString LongitudeKey = QStringLiteral("GPS:GPSLongitude");
    static inline const QString LongitudeRefKey = QStringLiteral("GPS:GPSLongitudeRef");

    // Pins follow every change of coordinates posted in session, and post their own there.
    explicit MapPins(EditSession &session, QObject *parent = nullptr);

    // What a pin stands for in a file: its position, with the altitude and GPS date and time that
    // were taken there. Removing a pin removes them all, in this order.
    static const QStringList &pinKeys();

    static std::optional<MapPin> createPointAnnotation(const ExifFileInfo &file);
    // Left unset for no pins: the map keeps its region.
    static std::optional<MapRegion> regionForPins(const QList<MapPin> &pins);
    static void updatePinAnnotationExifFile(ExifFileInfo &file, double latitude, double longitude);

    void setFiles(const QList<ExifFileInfoPtr> &files);
    const QList<ExifFileInfoPtr> &files() const { return m_files; }
    // Keyed by file name.
    const QMap<QString, MapPin> &annotations() const { return m_annotations; }
    QList<MapPin> pins() const { return m_annotations.values(); }
    std::optional<MapRegion> region() const { return m_region; }

    bool isAddEnabled() const;
    bool isRemoveEnabled() const;

    // Where the map is centred now; new pins go there.
    void setCenter(double latitude, double longitude);
    void addPin();
    // The files removePin changes: those with any of pinKeys().
    QList<ExifFileInfoPtr> filesWithPinValues() const;
    void removePin();
    // A drag has ended; unknown files are ignored (the pin may have been rebuilt away).
    void movePin(const QString &fileName, double latitude, double longitude);

    MapType mapType() const { return m_mapType; }
    // The segment number of the map-type control.
    void changeMapType(int segment);

Q_SIGNALS:
    void pinsChanged(const QList<MapPin> &pins);
    void regionChanged(const MapRegion &region);
    void buttonsChanged(bool addEnabled, bool removeEnabled);
    void mapTypeChanged(MapType type);

private:
    void handleExifFilesUpdate(const ExifFilesUpdate &update);
    void notifyFilesChange(const QList<ExifFileInfoPtr> &files);
    ExifFileInfoPtr fileNamed(const QString &fileName) const;

    QPointer<EditSession> m_session;
    QList<ExifFileInfoPtr> m_files;
    QMap<QString, MapPin> m_annotations;
    std::optional<MapRegion> m_region;
    double m_centerLatitude = 0;
    double m_centerLongitude = 0;
    MapType m_mapType = MapType::Standard;
};
