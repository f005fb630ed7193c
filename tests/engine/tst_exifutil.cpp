#include "engine/exifutil.h"

#include "../support/fixtures.h"
#include "catalogue/exiffieldscontroller.h"
#include "engine/metadatareader.h"
#include "values/taglist.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <ctime>
#include <thread>

using R = FieldDataRepresentation;

class TestExifUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A zone with daylight saving, so that dates compared through the calendar would move.
        qputenv("TZ", "Europe/Berlin");
        tzset();
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    void valuesEqual_data()
    {
        QTest::addColumn<R>("representation");
        QTest::addColumn<QString>("newValue");
        QTest::addColumn<QString>("oldValue");
        QTest::addColumn<bool>("equal");
        const QString absent; // a null text: the tag has no value
        auto row = [](const char *name, R r, const QString &n, const QString &o, bool equal) {
            QTest::newRow(name) << r << n << o << equal;
        };
        row("number by value", R::Number, u"100.0"_qs, u"100"_qs, true);
        row("number change", R::Number, u"100.5"_qs, u"100"_qs, false);
        row("coordinate in another decimal form", R::Latitude, u"33.868800"_qs, u"33.8688"_qs,
            true);
        row("coordinate moved a metre", R::Longitude, u"151.20931"_qs, u"151.2093"_qs, false);
        row("zone added", R::DateTime, u"2013:05:01 10:00:00+02:00"_qs, u"2013:05:01 10:00:00"_qs,
            false);
        row("zone changed", R::DateTime, u"2013:05:01 10:00:00+01:00"_qs,
            u"2013:05:01 10:00:00+02:00"_qs, false);
        row("zone spelt two ways", R::DateTime, u"2013:05:01 10:00:00+0200"_qs,
            u"2013:05:01 10:00:00+02:00"_qs, true);
        row("both absent never equal", R::None, absent, absent, false);
        row("empty is not absent", R::Enum, u""_qs, absent, false);
        row("date padding", R::Date, u"2012:01:05"_qs, u"2012:1:5"_qs, true);
        row("datetime shift keeps hours", R::DateTime, u"+1d2h"_qs, u"+1d"_qs, false);
        row("multi-enum order", R::MultiEnum, u"a  b\nb"_qs, u"b a"_qs, true);
        row("fraction rounding", R::Fraction, u"0.33333"_qs, u"0.3333"_qs, true);
        row("fraction change", R::Fraction, u"0.3334"_qs, u"0.3332"_qs, false);
        row("strings order, duplicates", R::Strings, u"x,y,x"_qs, u"y,x"_qs, true);
        row("strings empty item", R::Strings, u"x,,y"_qs, u"x,y"_qs, true);
        row("strings blank item", R::Strings, u"x, "_qs, u"x"_qs, true);
        row("strings escaped comma", R::Strings, u"x\\,y"_qs, u"x,y"_qs, false);
        row("strings unicode", R::Strings, u"Łódź,東京,Smith\\, John"_qs,
            u"Smith\\, John,東京,Łódź"_qs, true);
        row("strings not cut to 8 bits", R::Strings, u"Łódź"_qs, u"Aódz"_qs, false);
    }

    void valuesEqual()
    {
        QFETCH(R, representation);
        QFETCH(QString, newValue);
        QFETCH(QString, oldValue);
        QTEST(valuesEqualForRepresentation(newValue, oldValue, representation), "equal");
    }

    // Columns: the current value of one tag over a file read with the base values, then what a
    // save would write and delete.
    void changeModel_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("current");
        QTest::addColumn<bool>("modified");
        QTest::addColumn<TagDictionary>("assignments");
        QTest::addColumn<bool>("removed");
        const QString artist = u"IFD0:Artist"_qs, keywords = u"IPTC:Keywords"_qs;
        const QString taken = u"ExifIFD:DateTimeOriginal"_qs;
        auto row = [](const char *name, const QString &key, const QString &current, bool modified,
                      const TagDictionary &writes, bool removed) {
            QTest::newRow(name) << key << current << modified << writes << removed;
        };
        row("outside the catalogue", u"XMP-x:Other"_qs, u"v"_qs, false, {}, false);
        row("keywords reordered", keywords, u"Smith\\, John,Łódź,Łódź"_qs, false, {}, false);
        row("keyword comma unescaped", keywords, u"Łódź,Smith, John"_qs, true,
            {{keywords, u"Łódź,Smith, John"_qs}}, false);
        row("artist removed", artist, QString(), true, {}, true);
        row("artist blanked", artist, u"   "_qs, true, {{artist, u"   "_qs}}, false);
        row("untouched blank description", u"IFD0:ImageDescription"_qs, u"   "_qs, false, {},
            false);
        row("date shift", taken, u"+1d2h"_qs, true, {{taken, u"+1d2h"_qs}}, false);
        row("edited date not repaired", taken, u"2013:2:6 9:03:07"_qs, true,
            {{taken, u"2013:2:6 9:03:07"_qs}}, false);
    }

    void changeModel()
    {
        QFETCH(QString, key);
        QFETCH(QString, current);
        QFETCH(bool, modified);
        QFETCH(TagDictionary, assignments);
        QFETCH(bool, removed);
        const TagDictionary base{{u"IFD0:Artist"_qs, u"Jane"_qs},
                                 {u"IFD0:ImageDescription"_qs, u"   "_qs},
                                 {u"IPTC:Keywords"_qs, u"Łódź,Smith\\, John"_qs},
                                 {u"ExifIFD:DateTimeOriginal"_qs, u"2012:1:5 9:03:07"_qs}};
        ExifFileInfo file(u"/a.jpg"_qs);
        file.setReadData(base);
        current.isNull() ? file.removeExifValue(key) : file.setExifValue(key, current);

        QCOMPARE(isExifFileModified(file), modified);
        QCOMPARE(ExifUtil::changedFieldsArray(file), modified ? QStringList{key} : QStringList{});
        // The malformed date that the user did not edit is left as it is.
        QCOMPARE(ExifUtil::changedFieldsDictionary(file), assignments);
        QCOMPARE(ExifUtil::removedFieldsSet(file), removed ? QSet<QString>{key} : QSet<QString>{});
    }

    // The save operation asks for changes on its thread while an editor may write on the main one.
    void changesAreTakenFromOneStateWhileEdited()
    {
        const QString artist = u"IFD0:Artist"_qs;
        ExifFileInfo file(u"/a.jpg"_qs);
        file.setReadData({{artist, u"Jane"_qs}});
        std::atomic<bool> stop = false;
        std::thread editor([&] {
            for (int i = 0; !stop; ++i)
                file.setExifValue(artist, i % 2 ? u"Joe"_qs : u"Jane"_qs);
        });
        int mixed = 0;
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 300) {
            const TagDictionary changes = ExifUtil::changedFieldsDictionary(file);
            mixed += !changes.isEmpty() && changes != TagDictionary{{artist, u"Joe"_qs}};
        }
        stop = true;
        editor.join();
        QCOMPARE(mixed, 0);
    }

    // The reader escapes commas inside list items; splitting must undo exactly that.
    void keywordsReadFromAFileSplitWhole()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"k.jpg"_qs);
        const QStringList keywords{u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs, u"a\\b"_qs};
        QStringList arguments{u"-charset"_qs, u"iptc=UTF8"_qs, u"-IPTC:CodedCharacterSet=UTF8"_qs};
        for (const QString &keyword : keywords)
            arguments << u"-IPTC:Keywords="_qs + keyword;
        const QString error = Fixtures::makeImage(path, arguments);
        QVERIFY2(error.isEmpty(), qPrintable(error));

        const auto file = std::make_shared<ExifFileInfo>(path);
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords({file}).ok());
        const QString value = file->exifValue(u"IPTC:Keywords"_qs);
        QCOMPARE(splitStringsItems(value), keywords);
        file->setExifValue(u"IPTC:Keywords"_qs, joinStringsValue(splitStringsItems(value)));
        QVERIFY(!isExifFileModified(*file));
    }
};

QTEST_GUILESS_MAIN(TestExifUtil)
#include "tst_exifutil.moc"
