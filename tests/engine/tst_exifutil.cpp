#include "engine/exifutil.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/exifrunner.h"
#include "../support/fixtures.h"
#include "values/taglist.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <QElapsedTimer>

#include <algorithm>
#include <atomic>
#include <thread>
#include <ctime>

class TestExifUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void valuesEqual_data();
    void valuesEqual();
    void changeModel_data();
    void changeModel();
    void dateRepair_data();
    void dateRepair();
    void modifiedOverManyFiles();
    void changesAreTakenFromOneStateWhileEdited();
    void generatedKeysNeverMakeAFileModified();
    void keywordsReadFromAFileSplitWhole();
};

namespace {

// Table cells cannot carry a null text apart from an empty one.
const QString absent = u"<absent>"_qs;

QString cell(const QString &text)
{
    return text == absent ? QString() : text;
}

ExifFileInfoPtr fileWith(const TagDictionary &original, const TagDictionary &current)
{
    auto file = std::make_shared<ExifFileInfo>(u"/photos/a.jpg"_qs);
    file->setOriginalExifData(original);
    file->setExifData(current);
    return file;
}

QStringList sorted(QStringList list)
{
    std::sort(list.begin(), list.end());
    return list;
}

QStringList sorted(const QSet<QString> &set)
{
    return sorted(QStringList(set.cbegin(), set.cend()));
}

} // namespace

void TestExifUtil::initTestCase()
{
    // A zone with daylight saving, so that a repair through the calendar would move wall times.
    qputenv("TZ", "Europe/Berlin");
    tzset();
    ExifFieldsController::defaultInstance()->initializeConfigurations();
    const auto *catalogue = ExifFieldsController::defaultInstance();
    QCOMPARE(catalogue->field(u"IPTC:Keywords"_qs)->dataRepresentation(),
             FieldDataRepresentation::Strings);
    QCOMPARE(catalogue->field(u"ExifIFD:ExposureTime"_qs)->dataRepresentation(),
             FieldDataRepresentation::Fraction);
    QCOMPARE(catalogue->field(u"ExifIFD:DateTimeOriginal"_qs)->dataRepresentation(),
             FieldDataRepresentation::DateTime);
}

void TestExifUtil::valuesEqual_data()
{
    QTest::addColumn<FieldDataRepresentation>("representation");
    QTest::addColumn<QString>("newValue");
    QTest::addColumn<QString>("oldValue");
    QTest::addColumn<bool>("equal");

    using R = FieldDataRepresentation;
    QTest::newRow("number: same text") << R::Number << u"100"_qs << u"100"_qs << true;
    QTest::newRow("number: text, not value") << R::Number << u"100.0"_qs << u"100"_qs << false;
    QTest::newRow("none: both absent never equal") << R::None << absent << absent << false;
    QTest::newRow("enum: removed") << R::Enum << absent << u"1"_qs << false;
    QTest::newRow("latitude: added") << R::Latitude << u"48.1"_qs << absent << false;
    QTest::newRow("none: empty is not absent") << R::None << u""_qs << absent << false;

    QTest::newRow("date: zero padding") << R::Date << u"2012:01:05"_qs << u"2012:1:5"_qs << true;
    QTest::newRow("date: next day") << R::Date << u"2012:01:06"_qs << u"2012:01:05"_qs << false;
    QTest::newRow("date: shift against date") << R::Date << u"+1d"_qs << u"2012:01:05"_qs << false;
    QTest::newRow("date: same shift") << R::Date << u"+1d"_qs << u"+1d"_qs << true;
    QTest::newRow("date: other shift") << R::Date << u"+2d"_qs << u"+1d"_qs << false;
    QTest::newRow("date: shift hours ignored") << R::Date << u"+1d2h"_qs << u"+1d"_qs << true;
    QTest::newRow("datetime: shift hours count")
        << R::DateTime << u"+1d2h"_qs << u"+1d"_qs << false;
    QTest::newRow("datetime: removed")
        << R::DateTime << absent << u"2012:01:05 09:03:07"_qs << false;
    QTest::newRow("datetime: zero padding")
        << R::DateTime << u"2012:01:05 09:03:07"_qs << u"2012:1:5 9:3:7"_qs << true;
    QTest::newRow("datetime: one second later")
        << R::DateTime << u"2012:01:05 09:03:08"_qs << u"2012:01:05 09:03:07"_qs << false;
    QTest::newRow("datetime: both unreadable") << R::DateTime << u"abc"_qs << u"0000"_qs << true;

    QTest::newRow("multi-enum: order and blanks")
        << R::MultiEnum << u"a  b"_qs << u"b a"_qs << true;
    QTest::newRow("multi-enum: one more") << R::MultiEnum << u"a b"_qs << u"a b c"_qs << false;
    QTest::newRow("multi-enum: duplicate") << R::MultiEnum << u"a b b"_qs << u"b a"_qs << true;

    QTest::newRow("fraction: rounding") << R::Fraction << u"0.33333"_qs << u"0.3333"_qs << true;
    QTest::newRow("fraction: real change") << R::Fraction << u"0.3334"_qs << u"0.3332"_qs << false;
    QTest::newRow("fraction: just over the tolerance")
        << R::Fraction << u"0.00011"_qs << u"0"_qs << false;
    QTest::newRow("fraction: large values") << R::Fraction << u"1/250"_qs << u"1"_qs << true;
    QTest::newRow("fraction: no number reads as 0") << R::Fraction << u"abc"_qs << u"0"_qs << true;
    QTest::newRow("fraction: removed zero") << R::Fraction << absent << u"0"_qs << false;

    QTest::newRow("strings: other order") << R::Strings << u"x,y"_qs << u"y,x"_qs << true;
    QTest::newRow("strings: duplicate") << R::Strings << u"x,y,x"_qs << u"y,x"_qs << true;
    QTest::newRow("strings: empty item counts") << R::Strings << u"x,,y"_qs << u"x,y"_qs << false;
    QTest::newRow("strings: escaped comma is no separator")
        << R::Strings << u"x\\,y"_qs << u"x,y"_qs << false;
    QTest::newRow("strings: unicode reordered")
        << R::Strings << u"Łódź,東京,Smith\\, John"_qs << u"Smith\\, John,東京,Łódź"_qs << true;
    QTest::newRow("strings: no cut to eight bits")
        << R::Strings << u"Łódź"_qs << u"Aódz"_qs << false;
    QTest::newRow("strings: subset") << R::Strings << u"x"_qs << u"x,y"_qs << false;
}

void TestExifUtil::valuesEqual()
{
    QFETCH(FieldDataRepresentation, representation);
    QFETCH(QString, newValue);
    QFETCH(QString, oldValue);
    QFETCH(bool, equal);
    QCOMPARE(valuesEqualForRepresentation(cell(newValue), cell(oldValue), representation), equal);
}

void TestExifUtil::changeModel_data()
{
    QTest::addColumn<TagDictionary>("original");
    QTest::addColumn<TagDictionary>("current");
    QTest::addColumn<bool>("modified");
    QTest::addColumn<QStringList>("changed");
    QTest::addColumn<TagDictionary>("assignments");
    QTest::addColumn<QStringList>("removed");

    const QString artist = u"IFD0:Artist"_qs;
    const QString keywords = u"IPTC:Keywords"_qs;
    const QString exposure = u"ExifIFD:ExposureTime"_qs;
    const QString original = u"ExifIFD:DateTimeOriginal"_qs;
    const TagDictionary base{{artist, u"Jane"_qs},
                             {keywords, u"Łódź,東京,Smith\\, John"_qs},
                             {exposure, u"0.004"_qs},
                             {original, u"2012:01:05 09:03:07"_qs},
                             {u"System:FileName"_qs, u"a.jpg"_qs}};
    auto with = [&](const QString &key, const QString &value) {
        TagDictionary d = base;
        if (value.isNull())
            d.remove(key);
        else
            d.insert(key, value);
        return d;
    };

    QTest::newRow("untouched") << base << base << false << QStringList{} << TagDictionary{}
                               << QStringList{};
    QTest::newRow("tag outside the catalogue") << base << with(u"XMP-x:Other"_qs, u"v"_qs) << false
                                               << QStringList{} << TagDictionary{} << QStringList{};
    QTest::newRow("keywords reordered")
        << base << with(keywords, u"Smith\\, John,Łódź,東京,東京"_qs) << false << QStringList{}
        << TagDictionary{} << QStringList{};
    QTest::newRow("keyword comma unescaped")
        << base << with(keywords, u"Łódź,東京,Smith, John"_qs) << true << QStringList{keywords}
        << TagDictionary{{keywords, u"Łódź,東京,Smith, John"_qs}} << QStringList{};
    QTest::newRow("exposure rounded") << base << with(exposure, u"0.00400001"_qs) << false
                                      << QStringList{} << TagDictionary{} << QStringList{};
    QTest::newRow("artist edited") << base << with(artist, u"Joe"_qs) << true << QStringList{artist}
                                   << TagDictionary{{artist, u"Joe"_qs}} << QStringList{};
    QTest::newRow("artist removed")
        << base << with(artist, QString()) << true << QStringList{artist} << TagDictionary{}
        << QStringList{artist};
    QTest::newRow("artist cleared to blanks")
        << base << with(artist, u"   "_qs) << true << QStringList{artist}
        << TagDictionary{{artist, u"   "_qs}} << QStringList{artist};
    QTest::newRow("artist added") << TagDictionary{} << TagDictionary{{artist, u"Joe"_qs}} << true
                                  << QStringList{artist} << TagDictionary{{artist, u"Joe"_qs}}
                                  << QStringList{};
    QTest::newRow("date shift pending")
        << base << with(original, u"+1d2h"_qs) << true << QStringList{original}
        << TagDictionary{{original, u"+1d2h"_qs}} << QStringList{};
    QTest::newRow("edited date is not repaired")
        << with(original, u"2012:1:5 9:03:07"_qs) << with(original, u"2013:2:6 9:03:07"_qs) << true
        << QStringList{original} << TagDictionary{{original, u"2013:2:6 9:03:07"_qs}}
        << QStringList{};
    QTest::newRow("unedited malformed date is repaired, file not modified")
        << with(original, u"2012:1:5 9:03:07"_qs) << with(original, u"2012:1:5 9:03:07"_qs) << false
        << QStringList{} << TagDictionary{{original, u"2012:01:05 09:03:07"_qs}} << QStringList{};
}

void TestExifUtil::changeModel()
{
    QFETCH(TagDictionary, original);
    QFETCH(TagDictionary, current);
    QFETCH(bool, modified);
    QFETCH(QStringList, changed);
    QFETCH(TagDictionary, assignments);
    QFETCH(QStringList, removed);

    const ExifFileInfoPtr file = fileWith(original, current);
    QCOMPARE(isExifFileModified(*file), modified);
    QCOMPARE(sorted(ExifUtil::changedFieldsArray(*file)), sorted(changed));
    QCOMPARE(ExifUtil::changedFieldsDictionary(*file), assignments);
    QCOMPARE(sorted(ExifUtil::removedFieldsSet(*file)), sorted(removed));
}

void TestExifUtil::dateRepair_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("repaired");

    const QString modify = u"IFD0:ModifyDate"_qs;
    const QString created = u"IPTC:DateCreated"_qs;
    const QString gpsDate = u"GPS:GPSDateStamp"_qs;
    QTest::newRow("date-time lacking zeros")
        << modify << u"2012:1:5 9:03:07"_qs << u"2012:01:05 09:03:07"_qs;
    QTest::newRow("date-time well formed") << modify << u"2012:01:05 09:03:07"_qs << QString();
    QTest::newRow("date-time with five numbers") << modify << u"2012:1:5 9:03"_qs << QString();
    QTest::newRow("date-time with seven numbers")
        << modify << u"2012:1:5 9:03:07:01"_qs << QString();
    QTest::newRow("date-time with a zone") << modify << u"2012:1:5 9:03:07+02:00"_qs << QString();
    QTest::newRow("date-time not numbers") << modify << u"2012:1:x 9:03:07"_qs << QString();
    QTest::newRow("date-time month rolls over")
        << modify << u"2012:13:5 9:03:07"_qs << u"2013:01:05 09:03:07"_qs;

    QTest::newRow("wall time skipped in Berlin is kept")
        << modify << u"2013:3:31 2:30:00"_qs << u"2013:03:31 02:30:00"_qs;
    QTest::newRow("day past the month's end rolls over")
        << modify << u"2013:2:29 2:30:00"_qs << u"2013:03:01 02:30:00"_qs;
    QTest::newRow("date lacking zeros gains a time")
        << created << u"2012:1:5"_qs << u"2012:01:05 00:00:00"_qs;
    QTest::newRow("date well formed") << gpsDate << u"2012:01:05"_qs << QString();
    QTest::newRow("date with a time is left alone") << created << u"2012:1:5 10:00"_qs << QString();
    QTest::newRow("absent") << created << QString() << QString();
}

void TestExifUtil::dateRepair()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, repaired);

    TagDictionary data;
    if (!value.isNull())
        data.insert(key, value);
    const ExifFileInfoPtr file = fileWith(data, data);
    const TagDictionary expected =
        repaired.isNull() ? TagDictionary{} : TagDictionary{{key, repaired}};
    QCOMPARE(ExifUtil::changedFieldsDictionary(*file), expected);

    // The repair entry points fill in only their own key and leave other changes alone.
    TagDictionary changes{{u"IFD0:Artist"_qs, u"Joe"_qs}};
    if (key == u"IFD0:ModifyDate")
        ExifUtil::injectInvalidDateTime(key, changes, *file);
    else
        ExifUtil::injectInvalidDate(key, changes, *file);
    QCOMPARE(changes.value(u"IFD0:Artist"_qs), u"Joe"_qs);
    QCOMPARE(changes.value(key), repaired);
}

void TestExifUtil::modifiedOverManyFiles()
{
    const TagDictionary data{{u"IFD0:Artist"_qs, u"Jane"_qs}};
    const ExifFileInfoPtr clean = fileWith(data, data);
    const ExifFileInfoPtr dirty = fileWith(data, {{u"IFD0:Artist"_qs, u"Joe"_qs}});

    QVERIFY(!ExifUtil::exifFilesInArrayModified({}));
    QVERIFY(!ExifUtil::exifFilesInArrayModified({clean, clean}));
    QVERIFY(ExifUtil::exifFilesInArrayModified({clean, dirty}));
    QVERIFY(ExifUtil::hasDiretyFiles({dirty, clean}));
    QVERIFY(!ExifUtil::exifFilesInDictionaryModified({}));
    QVERIFY(!ExifUtil::exifFilesInDictionaryModified({{u"a"_qs, clean}}));
    QVERIFY(ExifUtil::exifFilesInDictionaryModified({{u"a"_qs, clean}, {u"b"_qs, dirty}}));
}

// The save operation asks for its changes on one thread while an editor may write on another.
void TestExifUtil::changesAreTakenFromOneStateWhileEdited()
{
    const QString artist = u"IFD0:Artist"_qs;
    const ExifFileInfoPtr file = fileWith({{artist, u"Jane"_qs}}, {{artist, u"Jane"_qs}});
    std::atomic<bool> stop = false;
    std::thread editor([&] {
        for (int i = 0; !stop; ++i)
            file->setExifValue(artist, i % 2 ? u"Joe"_qs : u"Jane"_qs);
    });
    const TagDictionary edited{{artist, u"Joe"_qs}};
    int mixed = 0;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 300) {
        const TagDictionary changes = ExifUtil::changedFieldsDictionary(*file);
        if (!changes.isEmpty() && changes != edited)
            ++mixed;
    }
    stop = true;
    editor.join();
    QCOMPARE(mixed, 0);
}

void TestExifUtil::generatedKeysNeverMakeAFileModified()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QFile catalogueFile(dir.filePath(u"fields.xml"_qs));
    QVERIFY(catalogueFile.open(QIODevice::WriteOnly));
    catalogueFile.write(R"(<fields><group name="G"><section name="S">
        <field name="System:FileSize" representation="number" datatype="uint32"/>
        <field name="IFD1:ThumbnailOffset" representation="number" datatype="uint32"/>
        </section></group></fields>)");
    catalogueFile.close();
    auto *catalogue = ExifFieldsController::defaultInstance();
    catalogue->initializeConfigurations(catalogueFile.fileName(), false);

    const ExifFileInfoPtr file =
        fileWith({{u"System:FileSize"_qs, u"1000"_qs}, {u"IFD1:ThumbnailOffset"_qs, u"8"_qs}},
                 {{u"System:FileSize"_qs, u"2000"_qs}, {u"IFD1:ThumbnailOffset"_qs, u"8"_qs}});
    const bool modified = isExifFileModified(*file);
    const QStringList changed = ExifUtil::changedFieldsArray(*file);
    catalogue->initializeConfigurations();

    QVERIFY(ExifUtil::isAutomaticallyGeneratedFieldXmlName(u"System:FileModifyDate"_qs));
    QVERIFY(!ExifUtil::isAutomaticallyGeneratedFieldXmlName(u"System:FileCreateDate"_qs));
    QVERIFY(!modified);
    // Only the dirty question skips them; a catalogue that lists one still reports its change.
    QCOMPARE(changed, QStringList{u"System:FileSize"_qs});
}

// The reader escapes commas inside list items; splitting must undo exactly that.
void TestExifUtil::keywordsReadFromAFileSplitWhole()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(u"k.jpg"_qs);
    const QStringList keywords{u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs, u"a\\b"_qs};
    QStringList arguments{u"-charset"_qs, u"iptc=UTF8"_qs, u"-IPTC:CodedCharacterSet=UTF8"_qs};
    for (const QString &keyword : keywords)
        arguments << u"-IPTC:Keywords="_qs + keyword;
    const QString error = Fixtures::makeImage(path, arguments);
    QVERIFY2(error.isEmpty(), qPrintable(error));

    const ExifFileInfoPtr file = std::make_shared<ExifFileInfo>(path);
    ExifRunner runner(Fixtures::exifTool());
    QVERIFY(runner.loadExifInformations({file}).ok());
    const QString value = file->exifValue(u"IPTC:Keywords"_qs);
    QCOMPARE(splitStringsItems(value), keywords);

    // A save of the unchanged field writes nothing; an item split at its comma would.
    file->setExifValue(u"IPTC:Keywords"_qs, joinStringsValue(splitStringsItems(value)));
    QVERIFY(!isExifFileModified(*file));
}

QTEST_GUILESS_MAIN(TestExifUtil)
#include "tst_exifutil.moc"
