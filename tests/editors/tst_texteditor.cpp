#include "editorfixtures.h"

#include "catalogue/exifconfiguration.h"
#include "controls/attachedwindow.h"
#include "editors/enumeditor.h"
#include "editors/texteditor.h"
#include "values/usersettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest>

using namespace EditorFixtures;

namespace {

const QString Latitude = u"GPS:GPSLatitude"_qs;
const QString LatitudeRef = u"GPS:GPSLatitudeRef"_qs;
const QString Longitude = u"GPS:GPSLongitude"_qs;
const QString LongitudeRef = u"GPS:GPSLongitudeRef"_qs;

void typeAndCommit(QLineEdit *edit, const QString &text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    if (!text.isEmpty())
        QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

} // namespace

class TstTextEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        UserSettings::setValue(UserSettings::GpsFormat, 2);
    }

    void coordinateWritesMagnitudeAndHemisphere_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("reference");

        QTest::newRow("signed latitude is south")
            << Latitude << u"-33.8688"_qs << u"33.8688"_qs << u"S"_qs;
        QTest::newRow("plus longitude is east")
            << Longitude << u"+151.2093"_qs << u"151.2093"_qs << u"E"_qs;
        QTest::newRow("minus longitude is west")
            << Longitude << u"-0.1276"_qs << u"0.1276"_qs << u"W"_qs;
        QTest::newRow("letter wins over nothing")
            << Latitude << u"33°52'7.68\"S"_qs << u"33.8688"_qs << u"S"_qs;
        QTest::newRow("five decimals at most")
            << Latitude << u"12.1234567N"_qs << u"12.12346"_qs << u"N"_qs;
        QTest::newRow("bare number keeps the old reference")
            << Latitude << u"10.5"_qs << u"10.5"_qs << u"old"_qs;
    }

    void coordinateWritesMagnitudeAndHemisphere()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QFETCH(QString, reference);

        const QString refKey = key == Latitude ? LatitudeRef : LongitudeRef;
        Row<TextEditor> row(makeField(key, key == Latitude ? FieldDataRepresentation::Latitude
                                                           : FieldDataRepresentation::Longitude));
        const auto files = makeFiles(key, {u"1"_qs, u"2"_qs, QString()});
        for (const auto &file : files)
            file->setExifValue(refKey, u"old"_qs);
        row.editor.setExifFiles(files);
        auto spy = updateSpy();

        typeAndCommit(row.editor.editor(), typed);

        QCOMPARE(currentValues(files, key), QStringList(3, stored));
        QCOMPARE(currentValues(files, refKey), QStringList(3, reference));
        QVERIFY(!row.editor.errorMessageWindow());
        // One post for the coordinate, and one for the hemisphere when it was named.
        QCOMPARE(spy.size(), reference == u"old" ? 1 : 2);
        const ExifFilesUpdate last = updateAt(spy, spy.size() - 1);
        QCOMPARE(last.xmlName, key);
        QCOMPARE(last.newValue, std::optional<QString>(stored));
        if (reference != u"old")
            QCOMPARE(updateAt(spy, 0).newValue, std::optional<QString>(reference));
    }

    void badCoordinateShowsPopupAndWritesNothing_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("typed");
        QTest::newRow("words") << Latitude << u"north of here"_qs;
        QTest::newRow("east is no latitude") << Latitude << u"33.5E"_qs;
        QTest::newRow("degrees without a number") << Longitude << u"°12'E"_qs;
    }

    void badCoordinateShowsPopupAndWritesNothing()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        Row<TextEditor> row(makeField(key, key == Latitude ? FieldDataRepresentation::Latitude
                                                           : FieldDataRepresentation::Longitude));
        const auto files = makeFiles(key, {u"48.5"_qs, QString()});
        row.editor.setExifFiles(files);
        auto spy = updateSpy();

        typeAndCommit(row.editor.editor(), typed);

        QCOMPARE(currentValues(files, key), (QStringList{u"48.5"_qs, u"<absent>"_qs}));
        QVERIFY(row.editor.errorMessageWindow());
        QVERIFY(row.editor.errorMessageWindow()->isVisible());
        QCOMPARE(spy.size(), 0);

        // A good coordinate afterwards closes it.
        typeAndCommit(row.editor.editor(), u"1.5"_qs);
        QTRY_VERIFY(!row.editor.errorMessageWindow());
        QCOMPARE(currentValues(files, key), QStringList(2, u"1.5"_qs));
    }

    void hemisphereRowFollowsTypedSign()
    {
        QWidget parent;
        parent.resize(600, 200);
        TextEditor latitude(makeField(Latitude, FieldDataRepresentation::Latitude));
        EnumEditor reference(
            makeField(LatitudeRef, FieldDataRepresentation::Enum,
                      QHash<QString, QString>{{u"N"_qs, u"North"_qs}, {u"S"_qs, u"South"_qs}}));
        latitude.setMaxLabelWidth(100);
        reference.setMaxLabelWidth(100);
        reference.createEditor(&parent, latitude.createEditor(&parent, 0));
        const auto files = makeFiles(Latitude, {u"10"_qs, u"20"_qs});
        for (const auto &file : files)
            file->setExifValue(LatitudeRef, u"N"_qs);
        latitude.setExifFiles(files);
        reference.setExifFiles(files);
        QCOMPARE(reference.popupButton()->currentText(), u"North"_qs);

        typeAndCommit(latitude.editor(), u"-33.8688"_qs);

        QCOMPARE(reference.popupButton()->currentText(), u"South"_qs);
    }

    void displayAndStorageByRepresentation_data()
    {
        QTest::addColumn<int>("representation");
        QTest::addColumn<QString>("fileValue");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");

        const int fraction = static_cast<int>(FieldDataRepresentation::Fraction);
        const int latitude = static_cast<int>(FieldDataRepresentation::Latitude);
        const int text = static_cast<int>(FieldDataRepresentation::None);
        QTest::newRow("fraction shows reciprocal")
            << fraction << u"0.004"_qs << u"1/250"_qs << u"1/250"_qs << u"0.004000"_qs;
        QTest::newRow("fraction above one as is")
            << fraction << u"2.5"_qs << u"2.5"_qs << u"3"_qs << u"3"_qs;
        QTest::newRow("fraction with two slashes writes nothing")
            << fraction << u"0.5"_qs << u"1/2"_qs << u"1/2/3"_qs << u"0.5"_qs;
        QTest::newRow("latitude in decimal degrees")
            << latitude << u"33.8688"_qs << u"33.868800"_qs << u"33.8688"_qs << u"33.8688"_qs;
        QTest::newRow("text trimmed")
            << text << u"old"_qs << u"old"_qs << u"  new words \t"_qs << u"new words"_qs;
        QTest::newRow("blanks remove the tag")
            << text << u"old"_qs << u"old"_qs << u"   "_qs << u"<absent>"_qs;
    }

    void displayAndStorageByRepresentation()
    {
        QFETCH(int, representation);
        QFETCH(QString, fileValue);
        QFETCH(QString, shown);
        QFETCH(QString, typed);
        QFETCH(QString, stored);

        const QString key = u"ExifIFD:Test"_qs;
        Row<TextEditor> row(makeField(key, static_cast<FieldDataRepresentation>(representation)));
        const auto files = makeFiles(key, {fileValue, fileValue});
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->text(), shown);

        typeAndCommit(row.editor.editor(), typed);
        QCOMPARE(currentValues(files, key), QStringList(2, stored));
    }

    void numberFieldRejectsOutOfRange()
    {
        const QString key = u"ExifIFD:ISO"_qs;
        Row<TextEditor> row(
            makeField(key, FieldDataRepresentation::Number, std::nullopt, FieldDataType::UInt16));
        const auto files = makeFiles(key, {u"100"_qs});
        row.editor.setExifFiles(files);

        typeAndCommit(row.editor.editor(), u"70000"_qs);
        QCOMPARE(currentValues(files, key), QStringList{u"100"_qs});
        typeAndCommit(row.editor.editor(), u"x"_qs);
        QCOMPARE(row.editor.editor()->text(), QString());

        typeAndCommit(row.editor.editor(), u"400"_qs);
        QCOMPARE(currentValues(files, key), QStringList{u"400"_qs});
    }

    void presetRoundTrip_data()
    {
        QTest::addColumn<int>("representation");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("boxOn");
        QTest::addColumn<QString>("changed");
        QTest::addColumn<bool>("removed");
        QTest::addColumn<QString>("shownBefore");

        const int text = static_cast<int>(FieldDataRepresentation::None);
        const int fraction = static_cast<int>(FieldDataRepresentation::Fraction);
        const int latitude = static_cast<int>(FieldDataRepresentation::Latitude);
        QTest::newRow("box off leaves the tag alone")
            << text << u"x"_qs << false << QString() << false << u"0.5"_qs;
        QTest::newRow("box on and empty deletes")
            << text << QString() << true << QString() << true << u"0.5"_qs;
        QTest::newRow("box on stores text")
            << text << u"Tom & Jerry"_qs << true << u"Tom & Jerry"_qs << false << u"0.5"_qs;
        QTest::newRow("fraction divided")
            << fraction << u"1/4"_qs << true << u"0.250000"_qs << false << u"1/2"_qs;
        QTest::newRow("south latitude signed")
            << latitude << u"-33.8688"_qs << true << u"-33.868800"_qs << false << u"0.500000"_qs;
    }

    void presetRoundTrip()
    {
        QFETCH(int, representation);
        QFETCH(QString, typed);
        QFETCH(bool, boxOn);
        QFETCH(QString, changed);
        QFETCH(bool, removed);
        QFETCH(QString, shownBefore);

        const QString key = u"XMP-dc:Test"_qs;
        Row<TextEditor> row(makeField(key, static_cast<FieldDataRepresentation>(representation)),
                            true);
        ExifConfiguration preset;
        preset.changedValues().insert(key, u"0.5"_qs);
        row.editor.setExifConfiguration(&preset);
        QVERIFY(row.editor.removeButton()->isChecked());
        QCOMPARE(row.editor.editor()->text(), shownBefore);

        row.editor.editor()->setText(typed);
        row.editor.removeButton()->setChecked(boxOn);
        QVERIFY(row.editor.copyToConfiguration(preset));
        QCOMPARE(preset.changedValues().value(key), changed);
        QCOMPARE(preset.removedValues().contains(key), removed);

        // What was stored shows again the same way.
        TextEditor reread(row.editor.field());
        reread.setShowRemoveButton(true);
        QWidget parent;
        parent.resize(600, 100);
        reread.createEditor(&parent, 0);
        reread.setExifConfiguration(&preset);
        QCOMPARE(reread.removeButton()->isChecked(), boxOn);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(TstTextEditor)
#include "tst_texteditor.moc"
