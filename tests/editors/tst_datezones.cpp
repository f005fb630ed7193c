#include "editors/dateeditorview.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"
#include "catalogue/exiffieldscontroller.h"
#include "controls/dateoffsetfield.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/revertrecord.h"
#include "values/dateoffset.h"
#include "values/zoneshift.h"

#include <QCheckBox>
#include <QLabel>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString DateTimeOriginal = u"ExifIFD:DateTimeOriginal"_qs;
const QString XmpDateTimeOriginal = u"XMP-exif:DateTimeOriginal"_qs;

} // namespace

class TestDateZones : public QObject
{
    Q_OBJECT

    QTemporaryDir m_records;

private Q_SLOTS:
    void initTestCase()
    {
        // Saves keep their revert records here, not in the user's data folder.
        QVERIFY(m_records.isValid());
        RevertRecord::setDirectory(m_records.path());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    // The panel's shift, saved by the real runner and read back by ExifTool: the clock moves,
    // the zone tag moves only when asked, and the GPS date and time (UTC) never move. An XMP
    // date carries its zone inside the value, which must survive the shift.
    void shiftKeepsOrMovesTheZone_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("shift"); // a leading "=" stores it straight, as a preset does
        QTest::addColumn<bool>("moveZone");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("newZone");

        QTest::newRow("clock only") << DateTimeOriginal << u"+02:00"_qs << u"+1h"_qs << false
                                    << u"2024:05:01 11:00:00"_qs << u"+02:00"_qs;
        QTest::newRow("zone too") << DateTimeOriginal << u"+02:00"_qs << u"+1h"_qs << true
                                  << u"2024:05:01 11:00:00"_qs << u"+03:00"_qs;
        QTest::newRow("zone too, back across UTC")
            << DateTimeOriginal << u"+02:00"_qs << u"-2h30m"_qs << true << u"2024:05:01 07:30:00"_qs
            << u"-00:30"_qs;
        QTest::newRow("days leave the zone") << DateTimeOriginal << u"-05:00"_qs << u"+1d"_qs
                                             << true << u"2024:05:02 10:00:00"_qs << u"-05:00"_qs;
        QTest::newRow("preset shift") << DateTimeOriginal << u"+02:00"_qs << u"=+1d1h"_qs << false
                                      << u"2024:05:02 11:00:00"_qs << u"+02:00"_qs;
        QTest::newRow("xmp clock only") << XmpDateTimeOriginal << u"+02:00"_qs << u"+1h"_qs << false
                                        << u"2024:05:01 11:00:00"_qs << u"+02:00"_qs;
        QTest::newRow("xmp zone too") << XmpDateTimeOriginal << u"-05:00"_qs << u"-1d2h"_qs << true
                                      << u"2024:04:30 08:00:00"_qs << u"-07:00"_qs;
    }
    void shiftKeepsOrMovesTheZone()
    {
        QFETCH(QString, key);
        QFETCH(QString, zone);
        QFETCH(QString, shift);
        QFETCH(bool, moveZone);
        const bool xmp = key.startsWith(u"XMP");
        QTemporaryDir dir;
        const QString path = dir.filePath(u"zone.jpg"_qs);
        QCOMPARE(Fixtures::makeImage(
                     path, {xmp ? u"-XMP-exif:DateTimeOriginal=2024:05:01 10:00:00"_qs + zone
                                : u"-DateTimeOriginal=2024:05:01 10:00:00"_qs,
                            xmp ? u"-OffsetTimeOriginal="_qs : u"-OffsetTimeOriginal="_qs + zone,
                            u"-GPSDateStamp=2024:05:01"_qs, u"-GPSTimeStamp=08:00:00"_qs}),
                 QString());
        const QList<ExifFileInfoPtr> files{std::make_shared<ExifFileInfo>(path)};
        MetadataReader().readRecords(files);

        DateEditorView panel(ExifFieldsController::defaultInstance()->field(key),
                             DateEditorTypeDateTime);
        panel.setExifFiles(files);
        QVERIFY(panel.moveZoneBox()->isVisibleTo(&panel));
        QCOMPARE(panel.originalLabel()->text(),
                 QLocale().toString(QDate(2024, 5, 1), u"d MMM yyyy"_qs) + u" 10:00:00"_qs);
        if (shift.startsWith(u'=')) {
            files.first()->setExifValue(key, shift.mid(1));
        } else {
            panel.moveZoneBox()->setChecked(moveZone);
            panel.controlMouseUp(panel.offsetLabel());
            panel.offsetField()->setStringValue(shift);
            panel.saveValue();
            if (xmp && moveZone) {
                // Unchecked, the value goes back to ExifTool's own shift, which keeps the zone.
                panel.moveZoneBox()->click();
                QVERIFY(isDateOffsetText(files.first()->exifValue(key)));
                panel.moveZoneBox()->click();
            }
        }

        WriteQueue runner;
        RunListener listener;
        listener.listen(runner);
        QCOMPARE(runner.saveFiles(files, ExifOperationOption::ReReadFile), 1);
        QVERIFY(listener.wait(1));
        QCOMPARE(listener.messages(path), QStringList());
        const QStringList disk =
            QString::fromUtf8(
                Fixtures::runExifTool({u"-T"_qs, u'-' + key, u"-OffsetTimeOriginal"_qs,
                                       u"-GPSDateStamp"_qs, u"-GPSTimeStamp"_qs, path})
                    .out)
                .trimmed()
                .split(u'\t');
        QFETCH(QString, date);
        QFETCH(QString, newZone);
        const QStringList expected =
            xmp ? QStringList{date + newZone, u"-"_qs} : QStringList{date, newZone};
        QCOMPARE(disk, (expected + QStringList{u"2024:05:01"_qs, u"08:00:00"_qs}));
    }

    void zoneTextArithmetic()
    {
        QCOMPARE(shiftZoneText(u"+0530"_qs, DateComponents{0, 0, 0, 0, 6, 0, 0}), u"-00:30"_qs);
        QCOMPARE(shiftZoneText(u"-12:00"_qs, DateComponents{0, 0, 0, 0, 0, 1, 0}), std::nullopt);
        QCOMPARE(shiftZoneText(u"+13:45"_qs, DateComponents{1, 0, 0, 0, 1, 0, 0}), std::nullopt);
        QCOMPARE(shiftZoneText(u"Z"_qs, DateComponents{0, 0, 0, 0, 1, 0, 0}), u"-01:00"_qs);
        QCOMPARE(shiftZoneText(u"UTC"_qs, DateComponents{}), std::nullopt);
        QCOMPARE(zoneTagForDateKey(u"IFD0:ModifyDate"_qs), u"ExifIFD:OffsetTime"_qs);
    }
};

QTEST_MAIN(TestDateZones)
#include "tst_datezones.moc"
