#include "editorfixtures.h"

#include "catalogue/preset.h"
#include "controls/attachedwindow.h"
#include "editors/texteditor.h"
#include "values/usersettings.h"

#include <QCheckBox>
#include <QLabel>
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
        QTest::newRow("minus latitude is south")
            << Latitude << u"-33.8688"_qs << u"33.8688"_qs << u"S"_qs;
        QTest::newRow("plus longitude is east")
            << Longitude << u"+151.2093"_qs << u"151.2093"_qs << u"E"_qs;
        QTest::newRow("letter given")
            << Latitude << u"33°52'7.68\"S"_qs << u"33.8688"_qs << u"S"_qs;
        QTest::newRow("five decimals at most")
            << Latitude << u"12.1234567N"_qs << u"12.12346"_qs << u"N"_qs;
        QTest::newRow("bare number keeps reference")
            << Latitude << u"10.5"_qs << u"10.5"_qs << u"old"_qs;
    }
    void coordinateWritesMagnitudeAndHemisphere()
    {
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QFETCH(QString, reference);
        const QString refKey = key + u"Ref";
        Row<TextEditor> row(coordinate(key));
        const auto files = makeFiles(key, {u"1"_qs, u"2"_qs, QString()});
        for (const auto &file : files)
            file->setExifValue(refKey, u"old"_qs);
        row.editor.setExifFiles(files);
        auto spy = updateSpy(row.session);
        QFETCH(QString, typed);
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
        QTest::newRow("east is no latitude") << Latitude << u"33.5E"_qs;
        QTest::newRow("degrees without a number") << Longitude << u"°12'E"_qs;
    }
    void badCoordinateShowsPopupAndWritesNothing()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        Row<TextEditor> row(coordinate(key));
        const auto files = makeFiles(key, {u"48.5"_qs, QString()});
        row.editor.setExifFiles(files);
        auto spy = updateSpy(row.session);
        typeAndCommit(row.editor.editor(), typed);
        QCOMPARE(currentValues(files, key), (QStringList{u"48.5"_qs, u"<absent>"_qs}));
        QVERIFY(row.editor.errorMessageWindow() && row.editor.errorMessageWindow()->isVisible());
        QCOMPARE(spy.size(), 0);

        typeAndCommit(row.editor.editor(), u"1.5"_qs);
        QTRY_VERIFY(!row.editor.errorMessageWindow());
        QCOMPARE(currentValues(files, key), QStringList(2, u"1.5"_qs));
    }

    // Numbers are typed in the user's own locale and stored as a read would show them.
    void displayAndStorage_data()
    {
        QTest::addColumn<FieldDataRepresentation>("representation");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("fileValue");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        using R = FieldDataRepresentation;
        using T = FieldDataType;
        const auto row = [](const char *name, R r, T type, const char *locale, const char *file,
                            const char *shown, const char *typed, const char *stored) {
            QTest::newRow(name) << r << type << QString::fromLatin1(locale)
                                << QString::fromUtf8(file) << QString::fromUtf8(shown)
                                << QString::fromUtf8(typed) << QString::fromUtf8(stored);
        };
        row("fraction shows reciprocal", R::Fraction, T::String, "C", "0.004", "1/250", "1/250",
            "0.004000");
        row("fraction above one", R::Fraction, T::String, "C", "2.5", "2.5", "3", "3");
        row("two slashes write nothing", R::Fraction, T::String, "C", "0.5", "1/2", "1/2/3", "0.5");
        row("zero denominator writes nothing", R::Fraction, T::String, "C", "0.5", "1/2", "1/0",
            "0.5");
        row("text trimmed", R::None, T::String, "C", "old", "old", " new words \t", "new words");
        row("blanks remove the tag", R::None, T::String, "C", "old", "old", "   ", "<absent>");
        row("number out of range", R::Number, T::UInt16, "C", "100", "100", "70000", "100");
        row("en_US point", R::Number, T::UDouble, "en_US", "1", "1", "3.14159", "3.14");
        row("en_US grouping", R::Number, T::UDouble, "en_US", "1", "1", "1,234.5", "1,234.5");
        row("de_DE comma", R::Number, T::UDouble, "de_DE", "1", "1", "3,14159", "3,14");
        row("de_DE grouping", R::Number, T::UDouble, "de_DE", "1", "1", "1.234,5", "1.234,5");
    }
    void displayAndStorage()
    {
        QFETCH(FieldDataRepresentation, representation);
        QFETCH(FieldDataType, type);
        QFETCH(QString, locale);
        QFETCH(QString, fileValue);
        QFETCH(QString, typed);
        const QLocale saved;
        QLocale::setDefault(QLocale(locale));
        const auto restore = qScopeGuard([&] { QLocale::setDefault(saved); });
        const QString key = u"ExifIFD:Test"_qs;
        auto field = makeField(key, representation, std::nullopt, type);
        field->setDecimals(2);
        Row<TextEditor> row(field);
        const auto files = makeFiles(key, {fileValue, fileValue});
        row.editor.setExifFiles(files);
        QTEST(row.editor.editor()->text(), "shown");
        typeAndCommit(row.editor.editor(), typed);
        QFETCH(QString, stored);
        QCOMPARE(currentValues(files, key), QStringList(2, stored));
    }

    void presetRoundTrip_data()
    {
        QTest::addColumn<FieldDataRepresentation>("representation");
        QTest::addColumn<QString>("shownBefore"); // the preset holds 0.5
        QTest::addColumn<QString>("typed");       // "<off>" unticks the box
        QTest::addColumn<QString>("entry");
        using R = FieldDataRepresentation;
        QTest::newRow("box off leaves the tag") << R::None << u"0.5"_qs << u"<off>"_qs << u""_qs;
        QTest::newRow("empty deletes") << R::None << u"0.5"_qs << u""_qs << u"<removed>"_qs;
        QTest::newRow("fraction divided")
            << R::Fraction << u"1/2"_qs << u"1/4"_qs << u"0.250000"_qs;
        QTest::newRow("south latitude")
            << R::Latitude << u"0.500000"_qs << u"-33.8688"_qs << u"-33.868800"_qs;
    }
    void presetRoundTrip()
    {
        QFETCH(FieldDataRepresentation, representation);
        QFETCH(QString, typed);
        const QString key = u"XMP-dc:Test"_qs;
        Row<TextEditor> row(makeField(key, representation), true);
        Preset preset;
        preset.changedValues().insert(key, u"0.5"_qs);
        row.editor.setExifConfiguration(&preset);
        QTEST(row.editor.editor()->text(), "shownBefore");
        row.editor.editor()->setText(typed);
        row.editor.removeButton()->setChecked(typed != u"<off>");
        QTEST(presetEntry(row.editor, preset, key), "entry");
    }

    // The row says how many other languages the selected files hold (none: no mark), and an
    // edit of it changes the default language's value only.
    void otherLanguagesShown_data()
    {
        QTest::addColumn<QStringList>("languagesPerFile"); // "de,fr" per file
        QTest::addColumn<QString>("shown");                // "" when hidden
        QTest::newRow("none") << QStringList{u""_qs, u""_qs} << QString();
        QTest::newRow("one file with two")
            << QStringList{u"de,fr"_qs, u""_qs} << u"2 other languages"_qs;
        QTest::newRow("same language in both")
            << QStringList{u"de"_qs, u"de"_qs} << u"1 other language"_qs;
    }
    void otherLanguagesShown()
    {
        QFETCH(QStringList, languagesPerFile);
        const QString key = u"XMP-dc:Description"_qs;
        Row<TextEditor> row(
            makeField(key, FieldDataRepresentation::None, std::nullopt, FieldDataType::LangAlt));
        QList<ExifFileInfoPtr> files;
        for (const QString &languages : std::as_const(languagesPerFile)) {
            TagDictionary data{{key, u"English"_qs}};
            for (const QString &language : languages.split(u',', Qt::SkipEmptyParts))
                data.insert(key + u'-' + language, language);
            files << std::make_shared<ExifFileInfo>(u"/p/%1.jpg"_qs.arg(files.size()));
            files.last()->setReadData(data);
        }
        row.editor.setExifFiles(files);
        QLabel *label = row.editor.otherLanguagesLabel();
        QVERIFY(label);
        QFETCH(QString, shown);
        QCOMPARE(label->isVisibleTo(row.editor.editor()) ? label->text() : QString(), shown);
        typeAndCommit(row.editor.editor(), u"New"_qs);
        QCOMPARE(currentValues(files, key), QStringList(files.size(), u"New"_qs));
        if (!shown.isEmpty())
            QCOMPARE(files.first()->exifValue(key + u"-de"_qs), u"de"_qs);
    }

    // An IIM text counts bytes as it is typed: shown while typing, and after it while over.
    void bytesLeftWhileTyping_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("whileTyping");
        QTest::addColumn<QString>("afterwards"); // "" when hidden
        QTest::newRow("room left") << u"Jane"_qs << u"28 bytes left"_qs << QString();
        QTest::newRow("one left, in two-byte letters")
            << QString(15, u'é') + u'x' << u"1 byte left"_qs << QString();
        QTest::newRow("over") << QString(11, QChar(0x20AC)) << u"1 byte too many"_qs
                              << u"1 byte too many"_qs;
    }
    void bytesLeftWhileTyping()
    {
        QFETCH(QString, typed);
        ExifFieldPtr field = makeField(u"IPTC:By-line"_qs, FieldDataRepresentation::None);
        field->setMaxBytes(32);
        Row<TextEditor> row(field);
        const ExifFileInfoPtr file = std::make_shared<ExifFileInfo>(u"/p/a.jpg"_qs);
        file->setReadData({});
        row.editor.setExifFiles({file});
        QLabel *label = row.editor.bytesLeftLabel();
        QVERIFY(label);
        QLineEdit *edit = row.editor.editor();
        edit->setFocus();
        // One key event carrying the whole text: keyClicks takes Latin-1 only.
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, typed, Qt::NoModifier);
        QCOMPARE(edit->text(), typed);
        QVERIFY(label->isVisibleTo(edit));
        QTEST(label->text(), "whileTyping");
        QTest::keyClick(edit, Qt::Key_Return);
        QTEST(label->isVisibleTo(edit) ? label->text() : QString(), "afterwards");
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(TstTextEditor)
#include "tst_texteditor.moc"
