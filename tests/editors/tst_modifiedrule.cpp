#include "catalogue/exiffieldscontroller.h"
#include "editors/dateeditor.h"
#include "editors/enumeditor.h"
#include "editors/stringseditor.h"
#include "editors/texteditor.h"
#include "engine/exifutil.h"
#include "windows/reviewchangesmodel.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

namespace {

// The row the form shows for the field.
std::unique_ptr<FieldEditor> rowFor(const ExifFieldPtr &field)
{
    switch (field->dataRepresentation()) {
    case FieldDataRepresentation::Enum:
        return std::make_unique<EnumEditor>(field);
    case FieldDataRepresentation::Date:
    case FieldDataRepresentation::DateTime:
        return std::make_unique<DateEditor>(field);
    case FieldDataRepresentation::Strings:
        return std::make_unique<StringsEditor>(field);
    default:
        return std::make_unique<TextEditor>(field);
    }
}

} // namespace

// One rule for "modified": the file list's mark, the row's bold label, the review window and
// what a save would write all agree, for every kind of field.
class TestModifiedRule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ExifFieldsController::defaultInstance()->initializeConfigurations(); }

    void allFourAgree_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("original"); // null: the file has no such tag
        QTest::addColumn<QString>("current");
        QTest::addColumn<bool>("modified");
        const QString absent;
        const auto row = [](const char *name, const char *key, const QString &original,
                            const QString &current, bool modified) {
            QTest::newRow(name) << QString::fromLatin1(key) << original << current << modified;
        };
        row("text same", "IFD0:Artist", u"Ann"_qs, u"Ann"_qs, false);
        row("text blank kept", "IFD0:ImageDescription", u"   "_qs, u"   "_qs, false);
        row("text changed", "IFD0:Artist", u"Ann"_qs, u"Bob"_qs, true);
        row("text removed", "IFD0:Artist", u"Ann"_qs, absent, true);
        row("text added", "IFD0:Artist", absent, u"Ann"_qs, true);
        row("number written otherwise", "ExifIFD:ImageNumber", u"100"_qs, u"100.0"_qs, false);
        row("number changed", "ExifIFD:ImageNumber", u"100"_qs, u"101"_qs, true);
        row("latitude in the map's form", "GPS:GPSLatitude", u"33.8688"_qs, u"33.868800"_qs, false);
        row("latitude moved", "GPS:GPSLatitude", u"33.8688"_qs, u"33.8689"_qs, true);
        row("longitude in the map's form", "GPS:GPSLongitude", u"151.2093"_qs, u"151.209300"_qs,
            false);
        row("date padded", "IPTC:DateCreated", u"2012:1:5"_qs, u"2012:01:05"_qs, false);
        row("date-time zone removed", "ExifIFD:DateTimeOriginal", u"2013:05:01 10:00:00+02:00"_qs,
            u"2013:05:01 10:00:00"_qs, true);
        row("date-time shifted", "ExifIFD:DateTimeOriginal", u"2013:05:01 10:00:00"_qs, u"+1h"_qs,
            true);
        row("enum same", "ExifIFD:ExposureProgram", u"2"_qs, u"2"_qs, false);
        row("enum changed", "ExifIFD:ExposureProgram", u"2"_qs, u"3"_qs, true);
        row("fraction rounded", "ExifIFD:ExposureTime", u"0.0333333"_qs, u"0.0333"_qs, false);
        row("fraction changed", "ExifIFD:ExposureTime", u"0.0333333"_qs, u"0.04"_qs, true);
        row("list reordered", "IPTC:ContentLocationCode", u"a,b"_qs, u"b,a"_qs, false);
        row("list item added", "IPTC:ContentLocationCode", u"a,b"_qs, u"a,b,c"_qs, true);
    }

    void allFourAgree()
    {
        QFETCH(QString, key);
        QFETCH(QString, original);
        QFETCH(QString, current);
        QFETCH(bool, modified);
        const ExifFieldPtr field = ExifFieldsController::defaultInstance()->field(key);
        QVERIFY2(field, qPrintable(key));

        auto file = std::make_shared<ExifFileInfo>(u"/photos/a.jpg"_qs);
        TagDictionary read{{u"IFD0:Make"_qs, u"Canon"_qs}};
        if (!original.isNull())
            read.insert(key, original);
        file->setReadData(read);
        if (current.isNull())
            file->removeExifValue(key);
        else
            file->setExifValue(key, current);

        // The list's mark.
        QCOMPARE(isExifFileModified(*file), modified);
        // The row's bold label.
        QWidget form;
        form.resize(600, 200);
        const std::unique_ptr<FieldEditor> row = rowFor(field);
        row->createEditor(&form, 0);
        row->setExifFiles({file});
        QCOMPARE(row->isModified(), modified);
        // The review window.
        ReviewChangesModel review;
        QSignalSpy filled(&review, &ReviewChangesModel::filled);
        review.setFiles({file});
        QVERIFY(!review.isFilling() || filled.wait());
        QCOMPARE(review.rowCount() > 0, modified);
        // What a save would send.
        const bool saved = ExifUtil::changedFieldsDictionary(*file).contains(key) ||
                           ExifUtil::removedFieldsSet(*file).contains(key);
        QCOMPARE(saved, modified);
    }
};

QTEST_MAIN(TestModifiedRule)
#include "tst_modifiedrule.moc"
