#include "windows/mapwindow.h"

#include "windows/mapbridge.h"
#include "engine/mappins.h"

#include "catalogue/stringtables.h"
#include "engine/exiftoolpath.h"
#include "values/logging.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineView>

namespace {

// Qt ships the channel's client script in its own resources; the page is a local file and
// cannot load qrc: itself, so the script is put into every page before its own scripts run.
QWebEngineScript webChannelScript()
{
    QFile file(QStringLiteral(":/qtwebchannel/qwebchannel.js"));
    QWebEngineScript script;
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcTagsmith) << "The web channel script is missing from Qt's resources";
        return script;
    }
    script.setName(QStringLiteral("qwebchannel"));
    script.setSourceCode(QString::fromUtf8(file.readAll()));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    return script;
}

} // namespace

MapWindow::MapWindow(EditSession &session, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_pins(new MapPins(session, this))
    , m_bridge(new MapBridge(m_pins, this))
{
    setWindowTitle(localized("Map"));
    resize(800, 600);

    auto *addPinButton = new QPushButton(localized("Add Pin"), this);
    auto *removePinButton = new QPushButton(localized("Remove Pin"), this);
    m_addPinButton = addPinButton;
    m_removePinButton = removePinButton;
    connect(addPinButton, &QPushButton::clicked, m_pins, &MapPins::addPin);
    connect(removePinButton, &QPushButton::clicked, this, &MapWindow::confirmRemovePin);

    // One control of three segments; the theme gives push buttons no checked look of their own.
    auto *segments = new QWidget(this);
    segments->setStyleSheet(
        QStringLiteral("QPushButton { border-radius: 0; padding: 2px 12px; }"
                       "QPushButton:checked { background: rgb(90, 135, 200); color: white; }"));
    auto *segmentsLayout = new QHBoxLayout(segments);
    segmentsLayout->setContentsMargins(0, 0, 0, 0);
    segmentsLayout->setSpacing(0);
    m_mapTypeControl = new QButtonGroup(this);
    const char *segmentNames[] = {"Standard", "Satellite", "Hybrid"};
    for (int segment = 0; segment < 3; ++segment) {
        auto *button = new QPushButton(localized(segmentNames[segment]), segments);
        button->setCheckable(true);
        button->setChecked(segment == static_cast<int>(m_pins->mapType()));
        m_mapTypeControl->addButton(button, segment);
        segmentsLayout->addWidget(button);
    }
    connect(m_mapTypeControl, &QButtonGroup::idClicked, m_pins, &MapPins::changeMapType);

    auto *bar = new QHBoxLayout;
    bar->addWidget(addPinButton);
    bar->addWidget(removePinButton);
    bar->addStretch();
    bar->addWidget(segments);

    m_mapView = new QWebEngineView(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addLayout(bar);
    layout->addWidget(m_mapView, 1);

    connect(m_pins, &MapPins::buttonsChanged, this, &MapWindow::handleButtonsChanged);
    handleButtonsChanged(m_pins->isAddEnabled(), m_pins->isRemoveEnabled());
    loadPage();
}

MapWindow::~MapWindow() = default;

void MapWindow::showWindow()
{
    show();
    raise();
    activateWindow();
}

void MapWindow::setFiles(const QList<ExifFileInfoPtr> &files)
{
    m_files = files;
    m_pins->setFiles(files);
}

void MapWindow::confirmRemovePin()
{
    const QList<ExifFileInfoPtr> files = m_pins->filesWithPinValues();
    if (files.isEmpty())
        return;
    auto *sheet = new QMessageBox(this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->setIcon(QMessageBox::Warning);
    sheet->setText(QCoreApplication::translate("MapWindow", "Remove the pin from %n file(s)?",
                                               nullptr, int(files.size())));
    sheet->setInformativeText(localized("Their GPS position, altitude and GPS date and time are "
                                        "removed. The files change when you save them."));
    QPushButton *remove = sheet->addButton(localized("Remove Pin"), QMessageBox::AcceptRole);
    QPushButton *cancel = sheet->addButton(QMessageBox::Cancel);
    sheet->setDefaultButton(cancel);
    sheet->setEscapeButton(cancel);
    connect(sheet, &QMessageBox::finished, this, [this, sheet, remove, files] {
        if (sheet->clickedButton() != remove)
            return;
        // The files shown may have changed meanwhile: only the ones the question named go.
        if (m_pins->filesWithPinValues() != files)
            return;
        m_pins->removePin();
        Q_EMIT pinsRemoved(files);
    });
    sheet->open();
}

void MapWindow::showTrack(const QList<TrackPoint> &points, const QList<MapPin> &proposed)
{
    QVariantList line;
    line.reserve(points.size());
    for (const TrackPoint &point : points)
        line << QVariant(QVariantList{point.latitude, point.longitude});
    QVariantList pins;
    for (const MapPin &pin : proposed) {
        pins << QVariantMap{{QStringLiteral("title"), pin.title},
                            {QStringLiteral("latitude"), pin.latitude},
                            {QStringLiteral("longitude"), pin.longitude}};
    }
    m_bridge->showTrack(line, pins);
}

QString MapWindow::pagePath()
{
    return BundledPaths::mapPage(QCoreApplication::applicationDirPath());
}

void MapWindow::loadPage()
{
    QWebEnginePage *page = m_mapView->page();
    // The page is a local file; its tiles come from the network.
    page->settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
    page->scripts().insert(webChannelScript());
    // OpenStreetMap's tile policy asks every application to name itself.
    QWebEngineProfile *profile = page->profile();
    if (!profile->httpUserAgent().contains(u"Tagsmith"))
        profile->setHttpUserAgent(profile->httpUserAgent() + u" Tagsmith");

    auto *channel = new QWebChannel(page);
    channel->registerObject(QStringLiteral("tagsmith"), m_bridge);
    page->setWebChannel(channel);

    const QString path = pagePath();
    if (!QFileInfo::exists(path)) {
        qCWarning(lcTagsmith) << "The map page is missing:" << path;
        m_mapView->setHtml(
            u"<body style=\"background:#2b2b2b;color:#e8e8e8;font:13px sans-serif\">"_qs +
            localized("The map could not be shown: its page is missing at") + u" "_qs +
            path.toHtmlEscaped() + u"</body>"_qs);
        return;
    }
    m_mapView->load(QUrl::fromLocalFile(path));
}

void MapWindow::handleButtonsChanged(bool addEnabled, bool removeEnabled)
{
    m_addPinButton->setEnabled(addEnabled);
    m_removePinButton->setEnabled(removeEnabled);
}
