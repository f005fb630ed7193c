#include "windows/mapbridge.h"

#include "engine/mappins.h"

#include "values/logging.h"

#include <QVariantMap>

MapBridge::MapBridge(MapPins *pins, QObject *parent)
    : QObject(parent)
    , m_pins(pins)
{
    connect(pins, &MapPins::pinsChanged, this, &MapBridge::sendPins);
    connect(pins, &MapPins::regionChanged, this, &MapBridge::sendRegion);
    connect(pins, &MapPins::mapTypeChanged, this,
            [this](MapType type) { Q_EMIT mapTypeUpdated(static_cast<int>(type)); });
}

void MapBridge::pageReady()
{
    Q_EMIT mapTypeUpdated(static_cast<int>(m_pins->mapType()));
    sendPins();
    if (const std::optional<MapRegion> region = m_pins->region())
        sendRegion(*region);
    if (!m_trackLine.isEmpty() || !m_trackProposed.isEmpty())
        Q_EMIT trackUpdated(m_trackLine, m_trackProposed);
}

void MapBridge::showTrack(const QVariantList &line, const QVariantList &proposed)
{
    m_trackLine = line;
    m_trackProposed = proposed;
    Q_EMIT trackUpdated(line, proposed);
}

void MapBridge::pinDragged(const QString &fileName, double latitude, double longitude)
{
    m_pins->movePin(fileName, latitude, longitude);
}

void MapBridge::centerChanged(double latitude, double longitude)
{
    m_pins->setCenter(latitude, longitude);
}

void MapBridge::tilesFailed(bool failed)
{
    if (failed && !m_tilesFailed)
        qCWarning(lcTagsmith) << "Map tiles could not be loaded";
    m_tilesFailed = failed;
}

void MapBridge::sendPins()
{
    QVariantList pins;
    for (const MapPin &pin : m_pins->pins()) {
        pins << QVariantMap{{QStringLiteral("fileName"), pin.fileName},
                            {QStringLiteral("title"), pin.title},
                            {QStringLiteral("latitude"), pin.latitude},
                            {QStringLiteral("longitude"), pin.longitude}};
    }
    Q_EMIT pinsUpdated(pins);
}

void MapBridge::sendRegion(const MapRegion &region)
{
    Q_EMIT regionUpdated(region.latitude, region.longitude, region.latitudeSpan,
                         region.longitudeSpan);
}
