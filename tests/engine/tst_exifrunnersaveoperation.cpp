#include "engine/exifrunnersaveoperation.h"

#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"
#include "values/usersettings.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

class TestExifRunnerSaveOperation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        QVERIFY(ExifFieldsController::defaultInstance()->field(u"IPTC:DateCreated"_qs));
    }

    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void numbersAreWrittenInEnglishForm_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written"); // null: does not parse

        QTest::newRow("cut to the field's decimals") << "en_US" << 2 << "3.14159"
                                                     << "3.14";

        QTest::newRow("all digits kept") << "en_US" << -1 << "3.14159"
                                         << "3.14159";
        QTest::newRow("thousands grouped") << "en_US" << 0 << "12345"
                                           << "12,345";
        QTest::newRow("decimal comma of the user") << "de_DE" << 1 << "3,5"
                                                   << "3.5";
        QTest::newRow("English form in a comma locale") << "de_DE" << 2 << "0.25"
                                                        << "0.25";

        QTest::newRow("not a number") << "en_US" << 1 << "abc" << QString();
    }
    void numbersAreWrittenInEnglishForm()
    {
        QFETCH(QString, locale);
        QFETCH(int, decimals);
        QFETCH(QString, text);
        QFETCH(QString, written);
        QLocale::setDefault(QLocale(locale));
        ExifField field;
        field.setDataType(FieldDataType::Double);
        field.setDataRepresentation(FieldDataRepresentation::Number);
        field.setDecimals(decimals);
        const std::optional<QString> result =
            ExifRunnerSaveOperation::formatNumberForExifTool(text, field);
        QCOMPARE(result.has_value(), !written.isNull());
        if (result)
            QCOMPARE(*result, written);
    }

    void valuesAreConvertedByRepresentation_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("converted"); // null: left out, with the failure below
        QTest::addColumn<QString>("failure");

        QTest::newRow("date padded") << "IPTC:DateCreated"
                                     << "2014:3:7"
                                     << "2014:03:07"
                                     << "";
        QTest::newRow("date drops its time") << "IPTC:DateCreated"
                                             << "2014:3:7 10:00:00"
                                             << "2014:03:07"
                                             << "";
        QTest::newRow("date shift") << "IPTC:DateCreated"
                                    << "+1y2d"
                                    << "+1:0:2"
                                    << "";
        QTest::newRow("datetime shift") << "ExifIFD:DateTimeOriginal"
                                        << "+1d2h"
                                        << "+0:0:1 02:00:00"
                                        << "";
        QTest::newRow("datetime shift back") << "ExifIFD:DateTimeOriginal"
                                             << "-1y"
                                             << "-1:0:0 00:00:00"
                                             << "";

        QTest::newRow("number") << "ExifIFD:FNumber"
                                << "2.83"
                                << "2.8"
                                << "";
        QTest::newRow("unknown key as text") << "XMP-x:Odd"
                                             << " -a=b\n"
                                             << " -a=b\n"
                                             << "";
        QTest::newRow("date too short")
            << "IPTC:DateCreated"
            << "2014:03" << QString()
            << "The value \"2014:03\" of Date Created is not a valid date.";
        QTest::newRow("number that does not parse")
            << "ExifIFD:ISO"
            << "fast" << QString() << "The value \"fast\" of ISO Speed is not a valid number.";
    }
    void valuesAreConvertedByRepresentation()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(QString, converted);
        QFETCH(QString, failure);
        QStringList failures;
        const TagDictionary result =
            ExifRunnerSaveOperation::convertValuesToChange({{key, value}}, &failures);
        QCOMPARE(result.value(key), converted);
        QCOMPARE(result.contains(key), !converted.isNull());
        QCOMPARE(failures, failure.isEmpty() ? QStringList() : QStringList{failure});
    }

    void iptcChangesDeclareUtf8()
    {
        const QString utf8 = u"\x1b%G"_qs;
        const TagDictionary iptc = ExifRunnerSaveOperation::convertValuesToChange(
            {{u"IPTC:Caption-Abstract"_qs, u"x"_qs}, {u"IFD0:Artist"_qs, u"y"_qs}});
        QCOMPARE(iptc.value(u"CodedCharacterSet"_qs), utf8);
        QVERIFY(ExifRunnerSaveOperation::gatherExifToolArgumentsToChange(iptc).contains(
            u"-CodedCharacterSet="_qs + utf8));
        const TagDictionary exif =
            ExifRunnerSaveOperation::convertValuesToChange({{u"IFD0:Artist"_qs, u"y"_qs}});
        QVERIFY(!exif.contains(u"CodedCharacterSet"_qs));
    }

    void changeArguments_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("shift forward")
            << "ExifIFD:DateTimeOriginal"
            << "+0:0:1 02:00:00" << QStringList{u"-ExifIFD:DateTimeOriginal+='0:0:1 02:00:00'"_qs};
        QTest::newRow("shift back") << "IPTC:DateCreated"
                                    << "-1:0:0" << QStringList{u"-IPTC:DateCreated-='1:0:0'"_qs};
        QTest::newRow("list items, duplicates once")
            << "IPTC:Keywords"
            << "a,b,a" << QStringList{u"-IPTC:Keywords=a"_qs, u"-IPTC:Keywords=b"_qs};
        QTest::newRow("escaped comma stays in its item")
            << "XMP-dc:Subject"
            << "Łódź,東京,Smith\\, John"
            << QStringList{u"-XMP-dc:Subject=Łódź"_qs, u"-XMP-dc:Subject=東京"_qs,
                           u"-XMP-dc:Subject=Smith, John"_qs};
        QTest::newRow("awkward text is one argument")
            << "IFD0:Artist"
            << "-x = \"y\"\nz" << QStringList{u"-IFD0:Artist=-x = \"y\"\nz"_qs};
        QTest::newRow("empty deletes") << "IFD0:Artist"
                                       << "" << QStringList{u"-IFD0:Artist="_qs};
    }
    void changeArguments()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(QStringList, arguments);
        QCOMPARE(sorted(ExifRunnerSaveOperation::gatherExifToolArgumentsToChange({{key, value}})),
                 sorted(arguments));
    }

    void fixedArgumentsFollowTheForceSettings_data()
    {
        QTest::addColumn<bool>("fixBase");
        QTest::addColumn<bool>("ignoreMinor");
        QTest::addColumn<QStringList>("extra");
        QTest::newRow("neither") << false << false << QStringList();
        QTest::newRow("-F") << true << false << QStringList{u"-F"_qs};
        QTest::newRow("-m") << false << true << QStringList{u"-m"_qs};
        QTest::newRow("both") << true << true << QStringList{u"-F"_qs, u"-m"_qs};
    }
    void fixedArgumentsFollowTheForceSettings()
    {
        QFETCH(bool, fixBase);
        QFETCH(bool, ignoreMinor);
        QFETCH(QStringList, extra);
        UserSettings::setValue(UserSettings::ForceFixBase, fixBase);
        UserSettings::setValue(UserSettings::IgnoreMinorErrors, ignoreMinor);
        QCOMPARE(
            ExifRunnerSaveOperation::otherExifFileArguments(),
            QStringList({u"-n"_qs, u"-lang"_qs, u"en"_qs, u"-charset"_qs, u"UTF-8"_qs, u"-X"_qs}) +
                extra);
        UserSettings::remove(UserSettings::ForceFixBase);
        UserSettings::remove(UserSettings::IgnoreMinorErrors);
    }

    void operationHoldsChangesAndRemovals()
    {
        auto unchanged = std::make_shared<ExifFileInfo>(m_dir.filePath(u"a.jpg"_qs));
        unchanged->setReadData({{u"IFD0:Artist"_qs, u"Jane"_qs}});
        QVERIFY(!ExifRunnerSaveOperation::create(unchanged, 1));

        auto file = std::make_shared<ExifFileInfo>(m_dir.filePath(u"b.jpg"_qs));
        file->setReadData({{u"IFD0:Artist"_qs, u"Jane"_qs}, {u"IFD0:Copyright"_qs, u"c"_qs}});
        file->setExifValue(u"IFD0:Artist"_qs, u"Joe"_qs);
        file->removeExifValue(u"IFD0:Copyright"_qs);
        const auto operation = ExifRunnerSaveOperation::create(file, 1);
        QVERIFY(operation);
        QStringList failures;
        QCOMPARE(operation->exifToolArguments(&failures),
                 QStringList({u"-IFD0:Artist=Joe"_qs, u"-IFD0:Copyright="_qs}) +
                     ExifRunnerSaveOperation::otherExifFileArguments());
        QVERIFY(failures.isEmpty());
    }

    void imageDataCheckDefaultsToRawFiles_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("verifies");
        QTest::newRow("raw by default") << QVariant() << "/p/a.NEF" << true;
        QTest::newRow("jpeg by default") << QVariant() << "/p/a.jpg" << false;

        QTest::newRow("on for all") << QVariant(true) << "/p/a.jpg" << true;
    }
    void imageDataCheckDefaultsToRawFiles()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, path);
        QFETCH(bool, verifies);
        if (stored.isValid())
            UserSettings::setValue(UserSettings::VerifyImageData, stored);
        QCOMPARE(UserSettings::verifiesImageData(path), verifies);
        UserSettings::remove(UserSettings::VerifyImageData);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestExifRunnerSaveOperation)
#include "tst_exifrunnersaveoperation.moc"
