// The page only draws: pins, framing and the map type come from the application, which also
// decides what a drag or a new centre means for the files.
'use strict';

const esriAttribution = 'Tiles &copy; Esri &mdash; Source: Esri, Maxar, Earthstar Geographics, '
    + 'and the GIS User Community';
const esriTiles = 'https://server.arcgisonline.com/ArcGIS/rest/services/';

function tiles(url, attribution) {
    return L.tileLayer(url, { attribution: attribution, maxZoom: 19 });
}

function mapTypes() {
    return [
        [tiles('https://tile.openstreetmap.org/{z}/{x}/{y}.png',
            '&copy; <a href="https://www.openstreetmap.org/copyright">OpenStreetMap</a> contributors')],
        [tiles(esriTiles + 'World_Imagery/MapServer/tile/{z}/{y}/{x}', esriAttribution)],
        [tiles(esriTiles + 'World_Imagery/MapServer/tile/{z}/{y}/{x}', esriAttribution),
         tiles(esriTiles + 'Reference/World_Boundaries_and_Places/MapServer/tile/{z}/{y}/{x}',
            'Labels &copy; Esri')],
    ];
}

L.Icon.Default.imagePath = '../leaflet/images/';

const map = L.map('map', { worldCopyJump: true }).setView([0, 0], 2);
const types = mapTypes();
const markers = L.layerGroup().addTo(map);
const track = L.layerGroup().addTo(map);
const notice = document.getElementById('notice');
let currentType = -1;
let bridge = null;
let loadedTiles = 0;
let failedTiles = 0;

// A failed tile shows the notice until a tile loads again.
function tilesFailed(failed) {
    notice.hidden = !failed;
    if (bridge)
        bridge.tilesFailed(failed);
}

for (const layers of types) {
    for (const layer of layers) {
        layer.on('tileerror', () => { ++failedTiles; tilesFailed(true); });
        layer.on('tileload', () => { ++loadedTiles; if (!notice.hidden) tilesFailed(false); });
    }
}

function setMapType(type) {
    if (type === currentType || !types[type])
        return;
    if (currentType >= 0)
        types[currentType].forEach(layer => map.removeLayer(layer));
    types[type].forEach(layer => layer.addTo(map));
    currentType = type;
}

function showPins(pins) {
    markers.clearLayers();
    for (const pin of pins) {
        const marker = L.marker([pin.latitude, pin.longitude],
            { draggable: true, title: pin.title, alt: pin.title });
        marker.on('dragend', () => {
            const position = marker.getLatLng().wrap();
            bridge.pinDragged(pin.fileName, position.lat, position.lng);
        });
        markers.addLayer(marker);
    }
}

// A track log with the positions it proposes; the proposals are not draggable, since nothing is
// decided until the user applies them.
function showTrack(line, proposed) {
    track.clearLayers();
    const bounds = L.latLngBounds([]);
    if (line.length > 0) {
        const polyline = L.polyline(line, { color: '#ff7a1a', weight: 3, opacity: 0.9 });
        track.addLayer(polyline);
        bounds.extend(polyline.getBounds());
    }
    for (const pin of proposed) {
        const marker = L.circleMarker([pin.latitude, pin.longitude],
            { radius: 6, color: '#ffffff', weight: 2, fillColor: '#2f7de1', fillOpacity: 1 });
        marker.bindTooltip(pin.title);
        marker.options.title = pin.title;
        track.addLayer(marker);
        bounds.extend(marker.getLatLng());
    }
    if (bounds.isValid()) {
        // The window may have been resized since the page last measured it.
        map.invalidateSize();
        map.fitBounds(bounds, { padding: [40, 40], maxZoom: 17 });
    }
}

function frame(latitude, longitude, latitudeSpan, longitudeSpan) {
    const south = Math.max(latitude - latitudeSpan / 2, -85);
    const north = Math.min(latitude + latitudeSpan / 2, 85);
    // The padding keeps the pins' heads, drawn above their points, inside the view.
    map.fitBounds([[south, longitude - longitudeSpan / 2], [north, longitude + longitudeSpan / 2]],
        { padding: [40, 40] });
}

function reportCentre() {
    if (!bridge)
        return;
    const centre = map.getCenter().wrap();
    bridge.centerChanged(centre.lat, centre.lng);
}

setMapType(0);
map.on('moveend', reportCentre);

// What tests and the application may ask of the page.
window.tagsmithMap = {
    connected: false,
    pinTitles: () => markers.getLayers().map(marker => marker.options.title).sort(),
    tileCounts: () => ({ loaded: loadedTiles, failed: failedTiles }),
    noticeShown: () => !notice.hidden,
    trackShown: () => ({
        lines: track.getLayers().filter(layer => layer instanceof L.Polyline).length,
        proposed: track.getLayers().filter(layer => layer instanceof L.CircleMarker)
            .map(marker => marker.options.title).sort(),
    }),
};

new QWebChannel(qt.webChannelTransport, channel => {
    bridge = channel.objects.tagsmith;
    bridge.pinsUpdated.connect(showPins);
    bridge.regionUpdated.connect(frame);
    bridge.mapTypeUpdated.connect(setMapType);
    bridge.trackUpdated.connect(showTrack);
    window.tagsmithMap.connected = true;
    reportCentre();
    bridge.pageReady();
});
