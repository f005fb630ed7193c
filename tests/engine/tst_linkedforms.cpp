#include "catalogue/exiffieldscontroller.h"
#include "catalogue/preset.h"
#include "engine/exiffileinfo.h"
#include "engine/linkedforms.h"
#include "engine/presetbatch.h"

#include <QtTest>

namespace {

const QString Description = QStringLiteral("XMP-dc:Description");
const QString Caption = QStringLiteral("IPTC:Caption-Abstract");
const QString ImageDescription = QStringLiteral("IFD0:ImageDescription");
const QString Subject = QStringLiteral("XMP-dc:Subject");
const QString Keywords = QStringLiteral("IPTC:Keywords");
const QString Rights = QStringLiteral("XMP-dc:Rights");
const QString CopyrightNotice = QStringLiteral("IPTC:CopyrightNotice");
const QString Copyright = QStringLiteral("IFD0:Copyright");
const QString Creator = QStringLiteral("XMP-dc:Creator");
const QString ByLine = QStringLiteral("IPTC:By-line");
const QString Artist = QStringLiteral("IFD0:Artist");

using Values = QMap<QString, QString>;

ExifFileInfoPtr fileWith(const Values &values)
{
    auto file = std::make_shared<ExifFileInfo>(u"/photos/a.jpg"_qs);
    TagDictionary data{{u"IFD0:Make"_qs, u"Nikon"_qs}};
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        data.insert(it.key(), it.value());
    file->setReadData(data);
    return file;
}

// The copies of the keys asked for, "<absent>" for a missing one.
Values copiesOf(const ExifFileInfo &file, const QStringList &keys)
{
    Values values;
    for (const QString &key : keys)
        values.insert(key, file.hasExifValue(key) ? file.exifValue(key) : u"<absent>"_qs);
    return values;
}

} // namespace

// A property kept in several standards, seen as one value: which copy a row shows, when the
// copies count as disagreeing, and how a preset reaches every copy.
class TestLinkedForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ExifFieldsController::defaultInstance()->initializeConfigurations(); }
    void cleanup() { ExifFieldsController::defaultInstance()->setLinksForms(true); }

    void theRowShowsTheFirstCopyWithText_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<Values>("values");
        QTest::addColumn<QString>("shown");
        // EXIF keeps the creators in one text, joined as the Metadata Working Group says.
        QTest::newRow("creators from EXIF's artist")
            << Artist << Values{{Artist, u"Ann Smith; Bob, Jr.;"_qs}} << u"Ann Smith,Bob\\, Jr."_qs;
        QTest::newRow("creators from XMP first")
            << Artist << Values{{Creator, u"Ann"_qs}, {Artist, u"Bob"_qs}} << u"Ann"_qs;
        QTest::newRow("XMP first")
            << Caption << Values{{Description, u"x"_qs}, {Caption, u"i"_qs}} << u"x"_qs;
        QTest::newRow("IPTC only, as in older files")
            << Caption << Values{{Caption, u"i"_qs}} << u"i"_qs;
        QTest::newRow("EXIF only") << Caption << Values{{ImageDescription, u"e"_qs}} << u"e"_qs;
        QTest::newRow("empty XMP, text in EXIF")
            << Caption << Values{{Description, u""_qs}, {ImageDescription, u"e"_qs}} << u"e"_qs;
        QTest::newRow("empty XMP only") << Caption << Values{{Description, u""_qs}} << u""_qs;
        QTest::newRow("none") << Caption << Values{} << QString();
    }
    void theRowShowsTheFirstCopyWithText()
    {
        QFETCH(QString, key);
        QFETCH(Values, values);
        QFETCH(QString, shown);
        const LinkedForms forms = LinkedForms::ofKey(key);
        QCOMPARE(forms.keys().size(), 3);
        const QString value = forms.valueIn(fileWith(values)->editedValues());
        QCOMPARE(value, shown);
        QCOMPARE(value.isNull(), shown.isNull());
    }

    void copiesDisagree_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<Values>("values");
        QTest::addColumn<bool>("differ");
        QTest::newRow("all three agree")
            << Description
            << Values{{Description, u"a"_qs}, {Caption, u"a"_qs}, {ImageDescription, u"a"_qs}}
            << false;
        QTest::newRow("one copy") << Description << Values{{Caption, u"a"_qs}} << false;
        // EXIF and IPTC readers drop trailing blanks that XMP keeps.
        QTest::newRow("trailing blank")
            << Description << Values{{Description, u"a "_qs}, {Caption, u"a"_qs}} << false;
        QTest::newRow("other text")
            << Description << Values{{Description, u"a"_qs}, {Caption, u"b"_qs}} << true;
        QTest::newRow("empty against text")
            << Description << Values{{Description, u""_qs}, {ImageDescription, u"a"_qs}} << true;
        QTest::newRow("leading blank")
            << Description << Values{{Description, u" a"_qs}, {Caption, u"a"_qs}} << true;
        QTest::newRow("keywords in another order")
            << Subject << Values{{Subject, u"sea,dawn"_qs}, {Keywords, u"dawn,sea"_qs}} << false;
        QTest::newRow("a keyword missing")
            << Subject << Values{{Subject, u"sea,dawn"_qs}, {Keywords, u"sea"_qs}} << true;
        QTest::newRow("creators joined in EXIF")
            << Creator
            << Values{{Creator, u"Ann,Bob"_qs}, {ByLine, u"Ann,Bob"_qs}, {Artist, u"Ann; Bob"_qs}}
            << false;
        QTest::newRow("a creator missing from EXIF")
            << Creator << Values{{Creator, u"Ann,Bob"_qs}, {Artist, u"Ann"_qs}} << true;
        QTest::newRow("an item with a comma against two items")
            << Subject << Values{{Subject, u"Smith\\, John"_qs}, {Keywords, u"Smith,John"_qs}}
            << true;
    }
    void copiesDisagree()
    {
        QFETCH(QString, key);
        QFETCH(Values, values);
        QFETCH(bool, differ);
        const LinkedForms forms = LinkedForms::ofKey(key);
        const QList<LinkedForms::Copy> copies =
            forms.differingCopies(fileWith(values)->editedValues());
        QCOMPARE(!copies.isEmpty(), differ);
        if (differ) {
            // Every copy present, in the row's order, with its own text.
            QStringList keys;
            for (const LinkedForms::Copy &copy : copies) {
                keys.append(copy.key);
                QCOMPARE(copy.value, values.value(copy.key));
            }
            QStringList expected;
            for (const QString &form : forms.keys()) {
                if (values.contains(form))
                    expected.append(form);
            }
            QCOMPARE(keys, expected);
        }
    }

    void presetsReachEveryCopy_data()
    {
        QTest::addColumn<bool>("linked");
        QTest::addColumn<Values>("before");
        QTest::addColumn<Values>("changed");
        QTest::addColumn<QStringList>("removed");
        QTest::addColumn<Values>("after");
        const QStringList none;
        QTest::newRow("a copy's value goes to every copy")
            << true << Values{{Description, u"old"_qs}} << Values{{Caption, u"new"_qs}} << none
            << Values{
                   {Description, u"new"_qs}, {Caption, u"new"_qs}, {ImageDescription, u"new"_qs}};
        QTest::newRow("the row's own tag wins over a copy")
            << true << Values{} << Values{{Caption, u"iptc"_qs}, {Description, u"xmp"_qs}} << none
            << Values{
                   {Description, u"xmp"_qs}, {Caption, u"xmp"_qs}, {ImageDescription, u"xmp"_qs}};
        QTest::newRow("of two copies, the first in the row's order")
            << true << Values{} << Values{{ImageDescription, u"exif"_qs}, {Caption, u"iptc"_qs}}
            << none
            << Values{{Description, u"iptc"_qs},
                      {Caption, u"iptc"_qs},
                      {ImageDescription, u"iptc"_qs}};
        QTest::newRow("removing one copy removes them all")
            << true << Values{{Rights, u"r"_qs}, {CopyrightNotice, u"r"_qs}, {Copyright, u"r"_qs}}
            << Values{} << QStringList{Copyright}
            << Values{{Rights, u"<absent>"_qs},
                      {CopyrightNotice, u"<absent>"_qs},
                      {Copyright, u"<absent>"_qs}};
        QTest::newRow("a value given beats a copy removed")
            << true << Values{{Copyright, u"old"_qs}} << Values{{Rights, u"new"_qs}}
            << QStringList{Copyright}
            << Values{{Rights, u"new"_qs}, {CopyrightNotice, u"new"_qs}, {Copyright, u"new"_qs}};
        QTest::newRow("creators joined for EXIF")
            << true << Values{} << Values{{Creator, u"Ann,Bob\\, Jr."_qs}} << none
            << Values{{Creator, u"Ann,Bob\\, Jr."_qs},
                      {ByLine, u"Ann,Bob\\, Jr."_qs},
                      {Artist, u"Ann; Bob, Jr."_qs}};
        QTest::newRow("EXIF's artist split for the lists")
            << true << Values{} << Values{{Artist, u"Ann; Bob"_qs}} << none
            << Values{{Creator, u"Ann,Bob"_qs}, {ByLine, u"Ann,Bob"_qs}, {Artist, u"Ann; Bob"_qs}};
        QTest::newRow("a row per tag: the tag alone")
            << false << Values{{Description, u"old"_qs}} << Values{{Caption, u"new"_qs}} << none
            << Values{{Description, u"old"_qs},
                      {Caption, u"new"_qs},
                      {ImageDescription, u"<absent>"_qs}};
        QTest::newRow("a row per tag: removal of the tag alone")
            << false << Values{{Rights, u"r"_qs}, {Copyright, u"r"_qs}} << Values{}
            << QStringList{Copyright}
            << Values{{Rights, u"r"_qs},
                      {CopyrightNotice, u"<absent>"_qs},
                      {Copyright, u"<absent>"_qs}};
    }
    void presetsReachEveryCopy()
    {
        QFETCH(bool, linked);
        QFETCH(Values, before);
        QFETCH(Values, changed);
        QFETCH(QStringList, removed);
        QFETCH(Values, after);
        ExifFieldsController::defaultInstance()->setLinksForms(linked);
        Preset preset;
        for (auto it = changed.cbegin(); it != changed.cend(); ++it)
            preset.changedValues().insert(it.key(), it.value());
        for (const QString &key : removed)
            preset.removedValues().insert(key);
        const ExifFileInfoPtr file = fileWith(before);
        applyPreset(preset, *file);
        QCOMPARE(copiesOf(*file, after.keys()), after);
        QCOMPARE(file->exifValue(u"IFD0:Make"_qs), u"Nikon"_qs);
    }

    // Each tag its own row: nothing is linked and no tag is hidden behind another's row.
    void aRowPerTagLinksNothing()
    {
        ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
        catalogue->setLinksForms(false);
        for (const ExifFieldPtr &field : catalogue->configurations()) {
            QVERIFY2(field->linkedKeys().isEmpty() && field->rowKey().isEmpty(),
                     qPrintable(field->xmlName()));
        }
        catalogue->setLinksForms(true);
        QCOMPARE(catalogue->field(Copyright)->rowKey(), Rights);
        QCOMPARE(catalogue->field(Rights)->linkedKeys(), (QStringList{CopyrightNotice, Copyright}));
    }
};

QTEST_GUILESS_MAIN(TestLinkedForms)
#include "tst_linkedforms.moc"
