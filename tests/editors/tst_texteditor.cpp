#include "editorfixtures.h"

#include "catalogue/exifconfiguration.h"
#include "controls/attachedwindow.h"
#include "editors/enumeditor.h"
#include "editors/texteditor.h"
#include "values/usersettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace EditorFixtures;

namespace {

const QString Latitude = u"GPS:GPSLatitude"_qs;
const QString Longitude = u"GPS:GPSLongitude"_qs;

ExifFieldPtr coordinate(const QString &key)
{
    return makeField(key, key == Latitude ? FieldDataRepresentation::Latitude
                                          : FieldDataRepresentation::Longitude);
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

        QTest::newRow("minus latitude is south") << Latitude << "-33.8688"
                                                 << "33.8688"
                                                 << "S";
        QTest::newRow("plus longitude is east") << Longitude << "+151.2093"
                                                << "151.2093"
                                                << "E";
        QTest::newRow("minus longitude is west") << Longitude << "-0.1276"
                                                 << "0.1276"
                                                 << "W";
        QTest::newRow("letter given") << Latitude << u"33°52'7.68\"S"_qs << "33.8688"
                                      << "S";
        QTest::newRow("five decimals at most") << Latitude << "12.1234567N"
                                               << "12.12346"
                                               << "N";
        QTest::newRow("bare number keeps reference") << Latitude << "10.5"
                                                     << "10.5"
                                                     << "old";
    }

    void coordinateWritesMagnitudeAndHemisphere()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QFETCH(QString, reference);

        const QString refKey = key + u"Ref";
        Row<TextEditor> row(coordinate(key));
        const auto files = makeFiles(key, {u"1"_qs, u"2"_qs, QString()});
        for (const auto &file : files)
            file->setExifValue(refKey, u"old"_qs);
        row.editor.setExifFiles(files);
        auto spy = updateSpy();

        typeAndCommit(row.editor.editor(), typed);

        QCOMPARE(currentValues(files, key), QStringList(3, stored));
        QCOMPARE(currentValues(files, refKey), QStringList(3, reference));
        QVERIFY(!row.editor.errorMessageWindow());
        // The hemisphere is announced first when it was named, then the value stored.
        QCOMPARE(spy.size(), reference == u"old" ? 1 : 2);
        QCOMPARE(updateAt(spy, 0).newValue,
                 std::optional(reference == u"old" ? stored : reference));
        QCOMPARE(updateAt(spy, spy.size() - 1).xmlName, key);
        QCOMPARE(updateAt(spy, spy.size() - 1).newValue, std::optional(stored));
    }

    void badCoordinateShowsPopupAndWritesNothing_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("typed");
        QTest::newRow("words") << Latitude << "north of here";
        QTest::newRow("east is no latitude") << Latitude << "33.5E";
        QTest::newRow("degrees without a number") << Longitude << u"°12'E"_qs;
    }

    void badCoordinateShowsPopupAndWritesNothing()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        Row<TextEditor> row(coordinate(key));
        const auto files = makeFiles(key, {u"48.5"_qs, QString()});
        row.editor.setExifFiles(files);
        auto spy = updateSpy();

        typeAndCommit(row.editor.editor(), typed);
        QCOMPARE(currentValues(files, key), (QStringList{u"48.5"_qs, u"<absent>"_qs}));
        QVERIFY(row.editor.errorMessageWindow() && row.editor.errorMessageWindow()->isVisible());
        QCOMPARE(spy.size(), 0);

        typeAndCommit(row.editor.editor(), u"1.5"_qs);
        QTRY_VERIFY(!row.editor.errorMessageWindow());
        QCOMPARE(currentValues(files, key), QStringList(2, u"1.5"_qs));
    }

    void hemisphereRowFollowsTypedSign()
    {
        Row<TextEditor> latitude(coordinate(Latitude));
        Row<EnumEditor> reference(
            makeField(Latitude + u"Ref", FieldDataRepresentation::Enum,
                      QHash<QString, QString>{{u"N"_qs, u"North"_qs}, {u"S"_qs, u"South"_qs}}));
        const auto files = makeFiles(Latitude + u"Ref", {u"N"_qs, u"N"_qs});
        latitude.editor.setExifFiles(files);
        reference.editor.setExifFiles(files);
        QCOMPARE(reference.editor.popupButton()->currentText(), u"North"_qs);

        typeAndCommit(latitude.editor.editor(), u"-33.8688"_qs);
        QCOMPARE(reference.editor.popupButton()->currentText(), u"South"_qs);
    }

    void displayAndStorage_data()
    {
        QTest::addColumn<FieldDataRepresentation>("representation");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<QString>("fileValue");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");

        using R = FieldDataRepresentation;
        const auto text = FieldDataType::String;
        QTest::newRow("fraction shows reciprocal") << R::Fraction << text << "0.004"
                                                   << "1/250"
                                                   << "1/250"
                                                   << "0.004000";
        QTest::newRow("fraction above one") << R::Fraction << text << "2.5"
                                            << "2.5"
                                            << "3"
                                            << "3";
        QTest::newRow("two slashes write nothing") << R::Fraction << text << "0.5"
                                                   << "1/2"
                                                   << "1/2/3"
                                                   << "0.5";
        QTest::newRow("latitude in degrees") << R::Latitude << text << "33.8688"
                                             << "33.868800"
                                             << "33.8688"
                                             << "33.8688";
        QTest::newRow("text trimmed") << R::None << text << "old"
                                      << "old"
                                      << " new words \t"
                                      << "new words";
        QTest::newRow("blanks remove the tag") << R::None << text << "old"
                                               << "old"
                                               << "   "
                                               << "<absent>";
        QTest::newRow("number out of range") << R::Number << FieldDataType::UInt16 << "100"
                                             << "100"
                                             << "70000"
                                             << "100";
        QTest::newRow("number in range") << R::Number << FieldDataType::UInt16 << "100"
                                         << "100"
                                         << "400"
                                         << "400";
    }

    void displayAndStorage()
    {
        QFETCH(FieldDataRepresentation, representation);
        QFETCH(FieldDataType, type);
        QFETCH(QString, fileValue);
        QFETCH(QString, shown);
        QFETCH(QString, typed);
        QFETCH(QString, stored);

        const QString key = u"ExifIFD:Test"_qs;
        Row<TextEditor> row(makeField(key, representation, std::nullopt, type));
        const auto files = makeFiles(key, {fileValue, fileValue});
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->text(), shown);

        typeAndCommit(row.editor.editor(), typed);
        QCOMPARE(currentValues(files, key), QStringList(2, stored));
    }

    void presetRoundTrip_data()
    {
        QTest::addColumn<FieldDataRepresentation>("representation");
        QTest::addColumn<QString>("shownBefore"); // the preset holds 0.5
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("boxOn");
        QTest::addColumn<QString>("changed");
        QTest::addColumn<bool>("removed");

        using R = FieldDataRepresentation;
        QTest::newRow("box off leaves the tag") << R::None << "0.5"
                                                << "x" << false << "" << false;
        QTest::newRow("box on, empty deletes") << R::None << "0.5"
                                               << "" << true << "" << true;
        QTest::newRow("text with &") << R::None << "0.5"
                                     << "Tom & Jerry" << true << "Tom & Jerry" << false;
        QTest::newRow("fraction divided") << R::Fraction << "1/2"
                                          << "1/4" << true << "0.250000" << false;
        QTest::newRow("south latitude signed") << R::Latitude << "0.500000"
                                               << "-33.8688" << true << "-33.868800" << false;
    }

    void presetRoundTrip()
    {
        QFETCH(FieldDataRepresentation, representation);
        QFETCH(QString, shownBefore);
        QFETCH(QString, typed);
        QFETCH(bool, boxOn);
        QFETCH(QString, changed);
        QFETCH(bool, removed);

        const QString key = u"XMP-dc:Test"_qs;
        Row<TextEditor> row(makeField(key, representation), true);
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
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(TstTextEditor)
#include "tst_texteditor.moc"
