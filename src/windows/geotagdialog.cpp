#include "windows/geotagdialog.h"

#include "catalogue/stringtables.h"
#include "engine/editsession.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimeZone>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QString TimeFormat = QStringLiteral("yyyy-MM-dd HH:mm:ss");

} // namespace

GeotagDialog::GeotagDialog(const QList<ExifFileInfoPtr> &files, EditSession &session,
                           QWidget *parent)
    : QDialog(parent)
    , m_files(files)
    , m_session(&session)
{
    setWindowTitle(localized("Geotag from Track Log"));
    resize(720, 640);

    // Track logs.
    auto *logsBox = new QGroupBox(localized("Track Logs (GPX)"), this);
    m_gpxList = new QListWidget(logsBox);
    m_gpxList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_gpxList->setMaximumHeight(80);
    auto *addButton = new QPushButton(localized("Add GPX Files…"), logsBox);
    auto *removeButton = new QPushButton(localized("Remove"), logsBox);
    connect(addButton, &QPushButton::clicked, this, &GeotagDialog::onAddGpxFiles);
    connect(removeButton, &QPushButton::clicked, this, &GeotagDialog::onRemoveGpxFiles);
    m_trackLabel = new QLabel(localized("No track log chosen."), logsBox);
    m_trackLabel->setWordWrap(true);
    auto *logButtons = new QVBoxLayout;
    logButtons->addWidget(addButton);
    logButtons->addWidget(removeButton);
    logButtons->addStretch();
    auto *logsRow = new QHBoxLayout;
    logsRow->addWidget(m_gpxList, 1);
    logsRow->addLayout(logButtons);
    auto *logsLayout = new QVBoxLayout(logsBox);
    logsLayout->addLayout(logsRow);
    logsLayout->addWidget(m_trackLabel);

    // The camera's clock.
    auto *clockBox = new QGroupBox(localized("Camera Clock"), this);
    m_zoneCombo = new QComboBox(clockBox);
    m_zoneCombo->setEditable(true);
    m_zoneCombo->setInsertPolicy(QComboBox::NoInsert);
    // The computer's zone is offered first but never taken unasked: photos from a trip were
    // often taken in another one.
    const QByteArray systemZone = QTimeZone::systemTimeZoneId();
    m_zoneCombo->addItem(QString::fromLatin1(systemZone));
    m_zoneCombo->addItem(QStringLiteral("UTC"));
    for (const QByteArray &id : QTimeZone::availableTimeZoneIds()) {
        if (id != systemZone && id != "UTC")
            m_zoneCombo->addItem(QString::fromLatin1(id));
    }
    m_zoneCombo->setCurrentIndex(-1);
    m_zoneCombo->lineEdit()->setPlaceholderText(
        localized("Choose the zone the camera's clock was set to"));
    m_zoneCombo->completer()->setFilterMode(Qt::MatchContains);
    m_zoneCombo->completer()->setCompletionMode(QCompleter::PopupCompletion);
    for (const ExifFileInfoPtr &file : std::as_const(m_files))
        m_filesWithoutZone += GeotagMatcher::recordedZone(*file) ? 0 : 1;
    m_zoneNote = new QLabel(clockBox);
    m_zoneNote->setWordWrap(true);
    const int withZone = int(m_files.size()) - m_filesWithoutZone;
    QStringList note;
    if (withZone > 0) {
        note << tr("%n photo(s) recorded the camera's time zone (OffsetTimeOriginal); it is used "
                   "for them.",
                   nullptr, withZone);
    }
    if (m_filesWithoutZone > 0) {
        note << tr("%n photo(s) carry no time zone: they are matched in the zone chosen here.",
                   nullptr, m_filesWithoutZone);
    }
    m_zoneNote->setText(note.join(u' '));
    m_zoneCombo->setEnabled(m_filesWithoutZone > 0);

    m_rightButton = new QRadioButton(localized("The camera's clock was right"), clockBox);
    m_rightButton->setChecked(true);
    m_lateButton = new QRadioButton(localized("The camera was"), clockBox);
    m_lateMinutes = new QSpinBox(clockBox);
    m_lateMinutes->setRange(0, 24 * 60 * 7);
    m_lateMinutes->setSuffix(localized(" minutes"));
    m_lateDirection = new QComboBox(clockBox);
    m_lateDirection->addItem(localized("late"));
    m_lateDirection->addItem(localized("early"));
    auto *lateRow = new QHBoxLayout;
    lateRow->addWidget(m_lateButton);
    lateRow->addWidget(m_lateMinutes);
    lateRow->addWidget(m_lateDirection);
    lateRow->addStretch();

    m_referenceButton =
        new QRadioButton(localized("A photo of the GPS device's screen:"), clockBox);
    m_referencePhoto = new QComboBox(clockBox);
    for (const ExifFileInfoPtr &file : std::as_const(m_files))
        m_referencePhoto->addItem(QFileInfo(file->fileName()).fileName());
    m_referenceTime = new QDateTimeEdit(clockBox);
    m_referenceTime->setDisplayFormat(TimeFormat);
    m_referenceTime->setTimeSpec(Qt::UTC);
    auto *referenceRow = new QHBoxLayout;
    referenceRow->addWidget(m_referenceButton);
    referenceRow->addWidget(m_referencePhoto, 1);
    referenceRow->addWidget(new QLabel(localized("showed"), clockBox));
    referenceRow->addWidget(m_referenceTime);

    auto *clockLayout = new QFormLayout(clockBox);
    clockLayout->addRow(localized("Time zone of the clock:"), m_zoneCombo);
    clockLayout->addRow(m_zoneNote);
    clockLayout->addRow(m_rightButton);
    clockLayout->addRow(lateRow);
    clockLayout->addRow(referenceRow);

    // Matching.
    m_interpolate = new QCheckBox(localized("Interpolate between track points"), this);
    m_interpolate->setChecked(true);
    m_maxGap = new QSpinBox(this);
    m_maxGap->setRange(1, 24 * 60);
    m_maxGap->setValue(30);
    m_maxGap->setSuffix(localized(" minutes"));
    auto *matchRow = new QHBoxLayout;
    matchRow->addWidget(m_interpolate);
    matchRow->addStretch();
    matchRow->addWidget(new QLabel(localized("Largest gap between points:"), this));
    matchRow->addWidget(m_maxGap);

    m_results = new QTreeWidget(this);
    m_results->setRootIsDecorated(false);
    m_results->setHeaderLabels(
        {localized("File"), localized("Taken (camera clock)"), localized("Position")});
    m_results->header()->setStretchLastSection(true);
    m_results->setColumnWidth(0, 200);
    m_results->setColumnWidth(1, 160);
    m_summary = new QLabel(this);

    auto *buttons = new QDialogButtonBox(this);
    m_previewButton = buttons->addButton(localized("Preview on Map"), QDialogButtonBox::ActionRole);
    m_applyButton = buttons->addButton(localized("Apply"), QDialogButtonBox::ApplyRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(m_previewButton, &QPushButton::clicked, this,
            [this] { Q_EMIT previewRequested(m_track.points, proposedPins()); });
    connect(m_applyButton, &QPushButton::clicked, this, &GeotagDialog::apply);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // Return confirms a typed zone, never the whole dialog: no button is pressed by it (an
    // accepting button would be made the default when the box is shown, hence Apply's role).
    for (QPushButton *button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(logsBox);
    layout->addWidget(clockBox);
    layout->addLayout(matchRow);
    layout->addWidget(m_results, 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);

    const auto rematchOnChange = [this] { rematch(); };
    connect(m_zoneCombo, &QComboBox::currentTextChanged, this, rematchOnChange);
    connect(m_rightButton, &QRadioButton::toggled, this, rematchOnChange);
    connect(m_lateButton, &QRadioButton::toggled, this, rematchOnChange);
    connect(m_lateMinutes, &QSpinBox::valueChanged, this, [this] {
        m_lateButton->setChecked(true);
        rematch();
    });
    connect(m_lateDirection, &QComboBox::currentIndexChanged, this, [this] {
        m_lateButton->setChecked(true);
        rematch();
    });
    connect(m_referencePhoto, &QComboBox::currentIndexChanged, this,
            &GeotagDialog::handleReferencePhotoChanged);
    connect(m_referenceTime, &QDateTimeEdit::dateTimeChanged, this, [this] {
        m_referenceButton->setChecked(true);
        rematch();
    });
    connect(m_interpolate, &QCheckBox::toggled, this, rematchOnChange);
    connect(m_maxGap, &QSpinBox::valueChanged, this, rematchOnChange);

    handleReferencePhotoChanged();
    m_rightButton->setChecked(true);
    rematch();
}

void GeotagDialog::setGpxFiles(const QStringList &paths)
{
    m_gpxFiles = paths;
    m_gpxList->clear();
    for (const QString &path : paths)
        m_gpxList->addItem(QFileInfo(path).fileName());
    m_track = GpxTrack::readFiles(paths);

    QStringList lines = m_track.errors;
    if (!m_track.isEmpty()) {
        lines.prepend(localized("%1 points from %2 to %3 (UTC).")
                          .arg(m_track.points.size())
                          .arg(m_track.points.first().time.toString(TimeFormat),
                               m_track.points.last().time.toString(TimeFormat)));
    } else if (paths.isEmpty()) {
        lines << localized("No track log chosen.");
    }
    m_trackLabel->setText(lines.join(u'\n'));
    rematch();
}

GeotagOptions GeotagDialog::options() const
{
    GeotagOptions options;
    options.clock.zone = chosenZone().value_or(QTimeZone());
    if (m_lateButton->isChecked()) {
        const qint64 seconds = qint64(m_lateMinutes->value()) * 60;
        options.clock.correctionSeconds = m_lateDirection->currentIndex() == 0 ? seconds : -seconds;
    } else if (m_referenceButton->isChecked()) {
        const int row = m_referencePhoto->currentIndex();
        const QDateTime reading =
            row >= 0 && row < m_files.size()
                ? GeotagMatcher::parseWallClock(GeotagMatcher::captureTime(*m_files[row]))
                : QDateTime();
        if (reading.isValid()) {
            options.clock.correctionSeconds =
                CameraClock::correctionFromReference(reading, m_referenceTime->dateTime());
        }
    }
    options.interpolate = m_interpolate->isChecked();
    options.maxGapSeconds = qint64(m_maxGap->value()) * 60;
    return options;
}

QList<MapPin> GeotagDialog::proposedPins() const
{
    QList<MapPin> pins;
    for (const auto &[file, match] : m_matches) {
        if (match.isMatched()) {
            pins << MapPin{file->fileName(), QFileInfo(file->fileName()).fileName(), match.latitude,
                           match.longitude};
        }
    }
    return pins;
}

QString GeotagDialog::describe(const GeotagMatch &match)
{
    switch (match.status) {
    case GeotagStatus::Exact:
    case GeotagStatus::Interpolated:
    case GeotagStatus::Nearest: {
        QString position = QString::number(match.latitude, 'f', 6) + u", "_qs +
                           QString::number(match.longitude, 'f', 6);
        if (match.altitude)
            position += u", "_qs + QString::number(*match.altitude, 'f', 1) + u" m"_qs;
        return position;
    }
    case GeotagStatus::NoCaptureTime:
        return localized("not matched: no capture time");
    case GeotagStatus::BeforeTrack:
        return localized("not matched: before the track");
    case GeotagStatus::AfterTrack:
        return localized("not matched: after the track");
    case GeotagStatus::InGap:
        return localized("not matched: in a gap of %1 minutes").arg((match.gapSeconds + 59) / 60);
    }
    return {};
}

void GeotagDialog::apply()
{
    if (!m_session)
        return;
    const QList<ExifFileInfoPtr> changed = applyGeotagMatches(m_matches, *m_session, this);
    Q_EMIT applied(changed);
    accept();
}

void GeotagDialog::onAddGpxFiles()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, localized("Choose Track Logs"), QString(), localized("GPS track logs (*.gpx *.GPX)"));
    if (paths.isEmpty())
        return;
    QStringList all = m_gpxFiles;
    for (const QString &path : paths) {
        if (!all.contains(path))
            all << path;
    }
    setGpxFiles(all);
}

void GeotagDialog::onRemoveGpxFiles()
{
    QStringList kept;
    for (int row = 0; row < m_gpxFiles.size(); ++row) {
        if (!m_gpxList->item(row)->isSelected())
            kept << m_gpxFiles[row];
    }
    setGpxFiles(kept);
}

void GeotagDialog::handleReferencePhotoChanged()
{
    const int row = m_referencePhoto->currentIndex();
    const QDateTime reading =
        row >= 0 && row < m_files.size()
            ? GeotagMatcher::parseWallClock(GeotagMatcher::captureTime(*m_files[row]))
            : QDateTime();
    // Start from what the camera recorded; the user types what the screen showed.
    const QSignalBlocker blocker(m_referenceTime);
    m_referenceTime->setDateTime(reading.isValid() ? reading : QDateTime::currentDateTimeUtc());
    m_referenceButton->setChecked(true);
    rematch();
}

void GeotagDialog::rematch()
{
    const GeotagMatcher matcher(m_track.points, options());
    m_matches.clear();
    m_results->clear();
    const bool zoneChosen = chosenZone().has_value();
    int matched = 0;
    for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
        const std::optional<QTimeZone> recorded = GeotagMatcher::recordedZone(*file);
        const bool canMatch = !m_track.isEmpty() && (recorded || zoneChosen);
        const GeotagMatch match = canMatch ? matcher.matchFile(*file) : GeotagMatch{};
        m_matches << FileMatch{file, match};
        matched += match.isMatched() ? 1 : 0;
        auto *item = new QTreeWidgetItem(m_results);
        item->setText(0, QFileInfo(file->fileName()).fileName());
        const QString taken = GeotagMatcher::captureTime(*file);
        item->setText(1, recorded || zoneChosen
                             ? taken + u' ' + QString::fromUtf8(matcher.zoneFor(*file).id())
                             : taken);
        if (!m_track.isEmpty())
            item->setText(2, canMatch ? describe(match)
                                      : localized("not matched: choose a time zone"));
    }
    QString summary = localized("%1 of %2 files matched.").arg(matched).arg(m_files.size());
    if (m_filesWithoutZone > 0 && !zoneChosen)
        summary += u' ' + localized("Choose the time zone of the camera's clock.");
    m_summary->setText(summary);
    m_applyButton->setEnabled(matched > 0 && (m_filesWithoutZone == 0 || zoneChosen));
    m_previewButton->setEnabled(!m_track.isEmpty());
}

std::optional<QTimeZone> GeotagDialog::chosenZone() const
{
    const QString name = m_zoneCombo->currentText().trimmed();
    if (name.isEmpty())
        return std::nullopt;
    const QTimeZone zone(name.toLatin1());
    return zone.isValid() ? std::optional(zone) : std::nullopt;
}
