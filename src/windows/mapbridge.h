#pragma once

#include <QObject>
#include <QVariantList>

class MapPins;
struct MapRegion;

// The object the map page sees through the web channel: it forwards the pins' state to the
// page as plain values and the page's drags and moves back to the pins.
class MapBridge : public QObject
{
    Q_OBJECT

public:
    explicit MapBridge(MapPins *pins, QObject *parent = nullptr);

    // The page has connected (again, after a reload): send it everything.
    Q_INVOKABLE void pageReady();
    Q_INVOKABLE void pinDragged(const QString &fileName, double latitude, double longitude);
    Q_INVOKABLE void centerChanged(double latitude, double longitude);
    Q_INVOKABLE void tilesFailed(bool failed);

    bool isTilesFailed() const { return m_tilesFailed; }

    // A track log drawn as a line, as [latitude, longitude] pairs, with the positions proposed
    // for files as {title, latitude, longitude}; empty lists take them away.
    void showTrack(const QVariantList &line, const QVariantList &proposed);

Q_SIGNALS:
    // Each pin as {fileName, title, latitude, longitude}.
    void pinsUpdated(const QVariantList &pins);
    void regionUpdated(double latitude, double longitude, double latitudeSpan,
                       double longitudeSpan);
    void mapTypeUpdated(int type);
    void trackUpdated(const QVariantList &line, const QVariantList &proposed);

private:
    void sendPins();
    void sendRegion(const MapRegion &region);

    MapPins *m_pins;
    bool m_tilesFailed = false;
    QVariantList m_trackLine;
    QVariantList m_trackProposed;
};
