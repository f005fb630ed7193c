#include "windows/preferenceswindow.h"

#include "catalogue/stringtables.h"
#include "values/usersettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QtConcurrent/QtConcurrentRun>

PreferencesWindow::PreferencesWindow(const QString &exifToolProgram, QWidget *parent)
    : QWidget(parent, Qt::Window)
{
    setWindowTitle(localized(QStringLiteral("Preferences")));
    setObjectName(QStringLiteral("PreferencesWindow"));
    // Never the window that keeps the program running: closing the main window quits.
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumWidth(480);

    auto *layout = new QVBoxLayout(this);

    auto *display = new QGroupBox(localized(QStringLiteral("Display")), this);
    auto *displayForm = new QFormLayout(display);
    displayForm->addRow(localized(QStringLiteral("GPS coordinates:")),
                        addChoice(UserSettings::GpsFormat,
                                  {{0, localized(QStringLiteral("Degrees, minutes and seconds"))},
                                   {1, localized(QStringLiteral("Degrees and decimal minutes"))},
                                   {2, localized(QStringLiteral("Decimal degrees"))}}));
    QCheckBox *everyTag = addFlag(
        UserSettings::ShowEveryTag,
        localized(QStringLiteral("Show every tag as a row of its own (takes effect at the next "
                                 "start)")));
    everyTag->setToolTip(localized(QStringLiteral(
        "Caption, keywords, creator, copyright and the other fields that XMP, IPTC and EXIF "
        "each keep are one row by default, and an edit writes every copy. Ticked, each copy "
        "has its own row and an edit changes only that tag.")));
    displayForm->addRow(everyTag);
    layout->addWidget(display);

    auto *saving = new QGroupBox(localized(QStringLiteral("Saving")), this);
    auto *savingLayout = new QVBoxLayout(saving);
    auto *savingForm = new QFormLayout;
    savingLayout->addLayout(savingForm);
    savingForm->addRow(addFlag(
        UserSettings::ForceFixBase,
        localized(QStringLiteral("Fix the maker notes offsets while writing (ExifTool -F)"))));
    savingForm->addRow(
        addFlag(UserSettings::IgnoreMinorErrors,
                localized(QStringLiteral("Ignore minor errors and warnings (ExifTool -m)"))));
    savingForm->addRow(addFlag(UserSettings::WriteXmpSidecars,
                               localized(QStringLiteral("Write XMP to sidecars for raw files"))));
    savingForm->addRow(addFlag(UserSettings::WriteReadOnlyFiles,
                               localized(QStringLiteral("Write files that are read-only"))));
    savingForm->addRow(localized(QStringLiteral("File modification date:")),
                       addChoice(UserSettings::FileModifyDate,
                                 {{0, localized(QStringLiteral("Set to the image's modify date"))},
                                  {1, localized(QStringLiteral("Keep the date the file had"))},
                                  {2, localized(QStringLiteral("Leave the date of the write"))}}));
    savingForm->addRow(localized(QStringLiteral("File creation date:")),
                       addChoice(UserSettings::FileCreateDate,
                                 {{0, localized(QStringLiteral("Set to the image's create date"))},
                                  {1, localized(QStringLiteral("Keep the date the file had"))},
                                  {2, localized(QStringLiteral("Leave the date of the write"))}}));
    savingForm->addRow(localized(QStringLiteral("Verify image data when saving:")),
                       addImageDataCheck());
    auto *creationNote = new QLabel(
        localized(QStringLiteral("Linux file systems do not let programs set a file's creation "
                                 "date; this setting applies only where the system allows it.")),
        saving);
    creationNote->setWordWrap(true);
    savingLayout->addWidget(creationNote);
    layout->addWidget(saving);

    auto *tool = new QGroupBox(localized(QStringLiteral("ExifTool")), this);
    auto *toolLayout = new QVBoxLayout(tool);
    m_exifToolVersion =
        new QLabel(localized(QStringLiteral("Checking the ExifTool version…")), tool);
    m_exifToolVersion->setObjectName(QStringLiteral("exifToolVersion"));
    m_exifToolVersion->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_exifToolVersion->setWordWrap(true);
    m_exifToolWarning = new QLabel(tool);
    m_exifToolWarning->setObjectName(QStringLiteral("warning"));
    m_exifToolWarning->setWordWrap(true);
    m_exifToolWarning->hide();
    toolLayout->addWidget(m_exifToolVersion);
    toolLayout->addWidget(m_exifToolWarning);
    layout->addWidget(tool);
    layout->addStretch();

    reloadSettings();
    // Sized for the wrapped note's height at this width, not for its one-line width.
    adjustSize();

    // Asking ExifTool takes a Perl start-up; the window does not wait for it.
    connect(&m_versionWatcher, &QFutureWatcher<ExifToolVersion>::finished, this,
            &PreferencesWindow::handleExifToolVersion);
    m_versionWatcher.setFuture(
        QtConcurrent::run([exifToolProgram] { return exifToolVersion(exifToolProgram); }));
}

PreferencesWindow::~PreferencesWindow()
{
    m_versionWatcher.waitForFinished();
}

void PreferencesWindow::showWindow()
{
    reloadSettings();
    show();
    raise();
    activateWindow();
}

void PreferencesWindow::reloadSettings()
{
    for (QComboBox *box : std::as_const(m_choices)) {
        const QSignalBlocker blocker(box);
        int index = box->findData(UserSettings::value(box->objectName()).toInt());
        // Unknown numbers mean what the program does with them: degrees, minutes and seconds
        // for coordinates, the date of the write for file dates. Shown so, not stored so.
        if (index < 0)
            index = box->objectName() == UserSettings::GpsFormat ? 0 : box->count() - 1;
        box->setCurrentIndex(index);
    }
    if (m_imageDataCheck) {
        const QSignalBlocker blocker(m_imageDataCheck);
        const QVariant stored = UserSettings::value(UserSettings::VerifyImageData);
        m_imageDataCheck->setCurrentIndex(!stored.isValid() ? 0 : stored.toBool() ? 1 : 2);
    }
    for (QCheckBox *flag : std::as_const(m_flags)) {
        const QSignalBlocker blocker(flag);
        flag->setChecked(UserSettings::value(flag->objectName()).toBool());
    }
}

QComboBox *PreferencesWindow::addChoice(const QString &key,
                                        const QList<std::pair<int, QString>> &choices)
{
    auto *box = new QComboBox(this);
    box->setObjectName(key);
    for (const auto &[value, text] : choices)
        box->addItem(text, value);
    connect(box, &QComboBox::activated, this,
            [box, key](int index) { UserSettings::setValue(key, box->itemData(index).toInt()); });
    m_choices.append(box);
    return box;
}

// Three choices over a setting that is a yes or a no once chosen: until then the program checks
// camera raw files only, so the first choice clears the setting rather than storing a value.
QComboBox *PreferencesWindow::addImageDataCheck()
{
    m_imageDataCheck = new QComboBox(this);
    m_imageDataCheck->setObjectName(UserSettings::VerifyImageData);
    m_imageDataCheck->addItems({localized(QStringLiteral("Camera raw files only")),
                                localized(QStringLiteral("All files")),
                                localized(QStringLiteral("No files"))});
    connect(m_imageDataCheck, &QComboBox::activated, this, [](int index) {
        if (index == 0)
            UserSettings::remove(UserSettings::VerifyImageData);
        else
            UserSettings::setValue(UserSettings::VerifyImageData, index == 1);
    });
    return m_imageDataCheck;
}

QCheckBox *PreferencesWindow::addFlag(const QString &key, const QString &text)
{
    auto *flag = new QCheckBox(text, this);
    flag->setObjectName(key);
    connect(flag, &QCheckBox::toggled, this,
            [key](bool checked) { UserSettings::setValue(key, checked); });
    m_flags.append(flag);
    return flag;
}

void PreferencesWindow::handleExifToolVersion()
{
    const ExifToolVersion version = m_versionWatcher.result();
    if (version.isKnown())
        m_exifToolVersion->setText(
            localized(QStringLiteral("ExifTool %1 at %2")).arg(version.version, version.program));
    else
        m_exifToolVersion->setText(version.errorMessage);
    const QString warning = version.warning();
    m_exifToolWarning->setText(warning);
    m_exifToolWarning->setVisible(!warning.isEmpty());
    // The path and the warning wrap over more lines than the placeholder text did.
    adjustSize();
}
