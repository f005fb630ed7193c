#include "engine/filelistmodel.h"
#include "windows/auxiliarywindows.h"
#include "windows/fileoperations.h"
#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowcontroller.h"
#include "windows/mainwindowmenus.h"
#include "catalogue/exiffieldscontroller.h"
#include "editors/configurationviewcontroller.h"
#include "editors/texteditor.h"
#include "engine/editsession.h"
#include "values/usersettings.h"
#include "windows/fileinfocell.h"
#include "windows/geotagdialog.h"
#include "windows/mapwindow.h"

#include "../support/fixtures.h"

#include <QAction>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

namespace {

const QByteArray Track =
    "<?xml version=\"1.0\"?><gpx version=\"1.1\" creator=\"t\" "
    "xmlns=\"http://www.topografix.com/GPX/1/1\"><trk><trkseg>"
    "<trkpt lat=\"48.100000\" lon=\"11.100000\"><ele>600</ele><time>2024-05-01T23:50:00Z</time>"
    "</trkpt><trkpt lat=\"48.200000\" lon=\"-0.300000\"><ele>700</ele>"
    "<time>2024-05-02T00:10:00Z</time></trkpt></trkseg></trk></gpx>";

QStringList readBack(const QString &path)
{
    const Fixtures::ToolRun run = Fixtures::runExifTool(
        {u"-n"_qs, u"-s3"_qs, u"-f"_qs, u"-GPSLatitude"_qs, u"-GPSLatitudeRef"_qs,
         u"-GPSLongitude"_qs, u"-GPSLongitudeRef"_qs, u"-GPSAltitude"_qs, u"-GPSDateStamp"_qs,
         u"-GPSTimeStamp"_qs, u"-DateTimeOriginal"_qs, path});
    return QString::fromUtf8(run.out).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class TestMainWindowGeotag : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<PresetStore> m_store;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"store.ini"_qs));
        m_store = std::make_unique<PresetStore>();
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }
    void cleanupTestCase() { m_store.reset(); }

    void clockCorrection_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<qint64>("correction");
        QTest::newRow("right") << u"right"_qs << 0 << qint64(0);
        QTest::newRow("late") << u"late"_qs << 7 << qint64(420);
        QTest::newRow("early") << u"early"_qs << 7 << qint64(-420);
        QTest::newRow("screen ahead of the camera") << u"reference"_qs << 95 << qint64(95 * 60);
        QTest::newRow("screen behind, across midnight")
            << u"reference"_qs << -130 << qint64(-130 * 60);
    }
    void clockCorrection()
    {
        QFETCH(QString, way);
        QFETCH(int, minutes);
        auto file = std::make_shared<ExifFileInfo>(u"/p/a.jpg"_qs);
        file->setReadData({{u"ExifIFD:DateTimeOriginal"_qs, u"2024:05:02 01:00:00"_qs}});
        EditSession session;
        GeotagDialog dialog({file}, session);
        dialog.zoneCombo()->setCurrentText(u"Europe/Berlin"_qs);
        if (way == u"late" || way == u"early") {
            dialog.lateMinutes()->setValue(minutes);
            dialog.lateDirection()->setCurrentIndex(way == u"late" ? 0 : 1);
        } else if (way == u"reference") {
            QCOMPARE(dialog.referenceTime()->dateTime().toString(Qt::ISODate),
                     u"2024-05-02T01:00:00Z"_qs);
            dialog.referenceTime()->setDateTime(
                dialog.referenceTime()->dateTime().addSecs(minutes * 60));
        }
        QCOMPARE(dialog.options().clock.zone.id(), QByteArray("Europe/Berlin"));
        QTEST(dialog.options().clock.correctionSeconds, "correction");
    }

    // The photos' own zone is used where they carry one; otherwise nothing is matched until the
    // user names the camera's zone, and never in the computer's zone unasked. Track: 23:50 to
    // 00:10 UTC; each photo taken at 02:00 on its clock.
    void zoneFromThePhotos_data()
    {
        QTest::addColumn<QStringList>("zones"); // OffsetTimeOriginal of each photo, "" for none
        QTest::addColumn<QString>("typed");     // typed into the zone box
        QTest::addColumn<QStringList>("results");
        QTest::addColumn<bool>("canApply");
        const QString exact = u"48.150000, 5.400000, 650.0 m"_qs;
        const QString before = u"not matched: before the track"_qs;
        QTest::newRow("all carry a zone") << QStringList{u"+02:00"_qs, u"+03:00"_qs} << QString()
                                          << QStringList{exact, before} << true;
        QTest::newRow("one without, none chosen")
            << QStringList{u"+02:00"_qs, QString()} << QString()
            << QStringList{exact, u"not matched: choose a time zone"_qs} << false;
        QTest::newRow("one without, zone chosen")
            << QStringList{u"+02:00"_qs, QString()} << u"Europe/Paris"_qs
            << QStringList{exact, exact} << true;
        QTest::newRow("not a zone") << QStringList{QString()} << u"Mars/Olympus"_qs
                                    << QStringList{u"not matched: choose a time zone"_qs} << false;
    }
    void zoneFromThePhotos()
    {
        QFETCH(QStringList, zones);
        QFETCH(QString, typed);
        const QString gpx = m_dir.filePath(u"zones.gpx"_qs);
        QVERIFY(Fixtures::writeBytes(gpx, Track));
        QList<ExifFileInfoPtr> files;
        for (const QString &zone : std::as_const(zones)) {
            auto file = std::make_shared<ExifFileInfo>(u"/p/%1.jpg"_qs.arg(files.size()));
            TagDictionary values{{u"ExifIFD:DateTimeOriginal"_qs, u"2024:05:02 02:00:00"_qs}};
            if (!zone.isEmpty())
                values.insert(u"ExifIFD:OffsetTimeOriginal"_qs, zone);
            file->setReadData(values);
            files << file;
        }
        EditSession session;
        GeotagDialog dialog(files, session);
        dialog.setGpxFiles({gpx});
        if (!typed.isEmpty())
            dialog.zoneCombo()->setCurrentText(typed);
        QStringList results;
        for (int row = 0; row < dialog.resultsList()->topLevelItemCount(); ++row)
            results << dialog.resultsList()->topLevelItem(row)->text(2);
        QTEST(results, "results");
        QTEST(dialog.applyButton()->isEnabled(), "canApply");
        QCOMPARE(dialog.zoneCombo()->isEnabled(), zones.contains(QString()));
    }

    // Return in the zone box picks the zone; it does not apply the dialog.
    void returnInZoneBoxDoesNotApply()
    {
        const QString gpx = m_dir.filePath(u"return.gpx"_qs);
        QVERIFY(Fixtures::writeBytes(gpx, Track));
        auto file = std::make_shared<ExifFileInfo>(u"/p/r.jpg"_qs);
        file->setReadData({{u"ExifIFD:DateTimeOriginal"_qs, u"2024:05:02 02:00:00"_qs}});
        EditSession session;
        GeotagDialog dialog({file}, session);
        dialog.setGpxFiles({gpx});
        QSignalSpy applied(&dialog, &GeotagDialog::applied);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.zoneCombo()->setFocus();
        dialog.zoneCombo()->setCurrentText(u"Europe/Paris"_qs);
        QVERIFY(dialog.applyButton()->isEnabled());
        QTest::keyClick(dialog.zoneCombo()->lineEdit(), Qt::Key_Return);
        QTest::keyClick(dialog.zoneCombo(), Qt::Key_Enter);
        QVERIFY(dialog.isVisible());
        QCOMPARE(applied.count(), 0);
        QVERIFY(!file->hasExifValue(u"GPS:GPSLatitude"_qs));
    }

    // From the menu command to the bytes on disk, with ExifTool's own geotagging as reference.
    void geotagsSelectedFilesUntilSaved()
    {
        const QString gpx = m_dir.filePath(u"walk.gpx"_qs);
        QVERIFY(Fixtures::writeBytes(gpx, Track));
        const QString inside = m_dir.filePath(u"inside.jpg"_qs);
        const QString after = m_dir.filePath(u"after.jpg"_qs);
        const QString reference = m_dir.filePath(u"reference.jpg"_qs);
        for (const QString &path : {inside, reference})
            QCOMPARE(Fixtures::makeImage(path, {u"-DateTimeOriginal=2024:05:02 02:04:37"_qs}),
                     QString());
        QCOMPARE(Fixtures::makeImage(after, {u"-DateTimeOriginal=2024:05:02 03:00:00"_qs}),
                 QString());
        const QByteArray afterBytes = Fixtures::readBytes(after);
        QVERIFY(Fixtures::runExifTool({u"-overwrite_original"_qs, u"-geotag"_qs, gpx,
                                       u"-Geotime<${DateTimeOriginal}+02:00"_qs, reference})
                    .ok());

        MainWindowController window(nullptr, *m_store);
        window.window()->show();
        QVERIFY(window.fileList()->addFiles({inside, after}) &&
                window.fileList()->waitForPendingReads());
        window.fileList()->selectRows({0, 1});
        QAction *geotag = window.menus()->action(MainWindowMenus::Command::GeotagFromTrackLog);
        QVERIFY(geotag->isEnabled());
        geotag->trigger();
        auto *dialog = window.window()->findChild<GeotagDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        QVERIFY(!dialog->applyButton()->isEnabled());

        dialog->setGpxFiles({gpx});
        dialog->zoneCombo()->setCurrentText(u"UTC+02:00"_qs);
        const int afterRow = window.fileList()->files().at(0)->fileName() == after ? 0 : 1;
        QCOMPARE(dialog->resultsList()->topLevelItem(afterRow)->text(2),
                 u"not matched: after the track"_qs);
        QVERIFY(dialog->applyButton()->isEnabled());

        QSignalSpy updates(window.editSession(), &EditSession::exifFilesUpdated);
        dialog->applyButton()->click();
        QStringList keys;
        for (const QList<QVariant> &arguments : std::as_const(updates)) {
            const auto update = arguments.first().value<ExifFilesUpdate>();
            QCOMPARE(update.changedFiles.size(), 1);
            keys << update.xmlName;
        }
        QCOMPARE(keys, (QStringList{u"GPS:GPSLongitude"_qs, u"GPS:GPSLongitudeRef"_qs,
                                    u"GPS:GPSLatitude"_qs, u"GPS:GPSLatitudeRef"_qs,
                                    u"GPS:GPSAltitude"_qs, u"GPS:GPSAltitudeRef"_qs,
                                    u"GPS:GPSDateStamp"_qs, u"GPS:GPSTimeStamp"_qs}));
        const auto modified = [&window](int row) {
            return window.fileList()->model()->index(row).data(FileInfoCell::ModifiedRole).toBool();
        };
        QVERIFY(modified(1 - afterRow) && !modified(afterRow));
        // Nothing reaches the disk before a save.
        QCOMPARE(readBack(inside).at(0), u"-"_qs);

        window.operations()->processFiles();
        QTRY_VERIFY_WITH_TIMEOUT(!window.operations()->isSaving(), 20000);
        const QStringList written = readBack(inside);
        const QStringList expected = readBack(reference);
        QCOMPARE(written.size(), 8);
        QCOMPARE(expected.size(), 8);
        // Numbers within rounding, texts exactly. Longitude crosses to the west.
        for (int i = 0; i < 8; ++i) {
            bool number = false;
            const double delta = qAbs(written[i].toDouble(&number) - expected[i].toDouble());
            QVERIFY2(number ? delta < (i == 4 ? 0.06 : 1e-6) : written[i] == expected[i],
                     qPrintable(written[i] + u" / "_qs + expected[i]));
        }
        QCOMPARE(Fixtures::readBytes(after), afterBytes);
        // ExifTool gives the coordinates back in its own form; the saved file is not edited.
        QTRY_VERIFY(!modified(1 - afterRow));
    }

    // Remove Pin names the files it changes, and once agreed to, the next save leaves no
    // position, altitude or GPS time on disk.
    void removedPinLeavesNoGpsOnDisk_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::newRow("agreed") << u"Remove Pin"_qs;
        QTest::newRow("cancelled") << u"Cancel"_qs;
    }
    void removedPinLeavesNoGpsOnDisk()
    {
        QFETCH(QString, answer);
        const QString path =
            m_dir.filePath(u"pinned-%1.jpg"_qs.arg(QLatin1StringView(QTest::currentDataTag())));
        const QString taken = u"2024:05:02 01:50:00"_qs;
        QCOMPARE(
            Fixtures::makeImage(path, {u"-GPSLatitude=48.1"_qs, u"-GPSLatitudeRef=N"_qs,
                                       u"-GPSLongitude=11.5"_qs, u"-GPSLongitudeRef=E"_qs,
                                       u"-GPSAltitude=612.5"_qs, u"-GPSAltitudeRef=0"_qs,
                                       u"-GPSDateStamp=2024:05:01"_qs, u"-GPSTimeStamp=23:50:00"_qs,
                                       u"-DateTimeOriginal="_qs + taken}),
            QString());
        const QStringList before = readBack(path);
        QCOMPARE(before.size(), 8);
        QCOMPARE(before.at(4), u"612.5"_qs);

        MainWindowController window(nullptr, *m_store);
        window.window()->show();
        QVERIFY(window.fileList()->addFiles({path}) && window.fileList()->waitForPendingReads());
        window.fileList()->selectRows({0});
        window.menus()->action(MainWindowMenus::Command::ShowMap)->trigger();
        MapWindow *map = window.auxiliaryWindows()->mapWindow();
        QVERIFY(map && map->removePinButton()->isEnabled());
        map->removePinButton()->click();
        QMessageBox *sheet = nullptr;
        for (QMessageBox *box : map->findChildren<QMessageBox *>())
            sheet = box->isVisible() ? box : sheet;
        QVERIFY(sheet);
        QCOMPARE(sheet->text(), u"Remove the pin from 1 file?"_qs);
        QCOMPARE(sheet->defaultButton()->text(), u"Cancel"_qs);
        QAbstractButton *chosen = nullptr;
        for (QAbstractButton *button : sheet->buttons())
            chosen = button->text() == answer ? button : chosen;
        QVERIFY(chosen);
        chosen->click();

        const ExifFileInfoPtr file = window.fileList()->files().value(0);
        const bool removed = answer == u"Remove Pin";
        for (const QString &key :
             {u"GPS:GPSLatitude"_qs, u"GPS:GPSAltitude"_qs, u"GPS:GPSAltitudeRef"_qs,
              u"GPS:GPSDateStamp"_qs, u"GPS:GPSTimeStamp"_qs})
            QVERIFY2(file->hasExifValue(key) != removed, qPrintable(key));
        // The form shows the selection as it now is, not the altitude just removed.
        TextEditor *altitude = nullptr;
        for (FieldEditor *editor : window.configController()->fields()) {
            if (editor->field()->xmlName() == u"GPS:GPSAltitude")
                altitude = qobject_cast<TextEditor *>(editor);
        }
        QVERIFY(altitude);
        QCOMPARE(altitude->editor()->text().isEmpty(), removed);
        if (!removed)
            return;

        window.operations()->processFiles();
        QTRY_VERIFY_WITH_TIMEOUT(!window.operations()->isSaving(), 20000);
        QStringList gone(7, u"-"_qs);
        QCOMPARE(readBack(path), gone << taken);
    }
};

QTEST_MAIN(TestMainWindowGeotag)
#include "tst_mainwindowgeotag.moc"
