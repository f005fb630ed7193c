#include "engine/exifrunnersaveoperation.h"

#include "catalogue/exiffieldscontroller.h"
#include "values/usersettings.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

class TestExifRunnerSaveOperation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void valuesAreConvertedByRepresentation_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("converted"); // null: left out, with the failure below
        QTest::addColumn<QString>("failure");
        const auto row = [](const char *tag, const char *locale, const QString &key,
                            const QString &value, const QString &converted,
                            const QString &failure = {}) {
            QTest::newRow(tag) << QString::fromLatin1(locale) << key << value << converted
                               << failure;
        };
        const QString date = u"IPTC:DateCreated"_qs;
        row("date drops its time", "C", date, u"2014:3:7 10:00:00"_qs, u"2014:03:07"_qs);
        row("date shift", "C", date, u"+1y2d"_qs, u"+1:0:2"_qs);
        row("number cut to its decimals", "en_US", u"ExifIFD:FNumber"_qs, u"2.83"_qs, u"2.8"_qs);
        row("decimal comma of the user", "de_DE", u"ExifIFD:FNumber"_qs, u"2,83"_qs, u"2.8"_qs);
        row("unknown key as text", "C", u"XMP-x:Odd"_qs, u" -a=b\n"_qs, u" -a=b\n"_qs);
        row("date too short", "C", date, u"2014:03"_qs, {},
            u"The value \"2014:03\" of Date Created is not a valid date."_qs);
        row("number that does not parse", "C", u"ExifIFD:ISO"_qs, u"fast"_qs, {},
            u"The value \"fast\" of ISO Speed is not a valid number."_qs);
    }
    void valuesAreConvertedByRepresentation()
    {
        QFETCH(QString, locale);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(QString, converted);
        QFETCH(QString, failure);
        QLocale::setDefault(QLocale(locale));
        QStringList failures;
        const TagDictionary result =
            ExifRunnerSaveOperation::convertValuesToChange({{key, value}}, &failures);
        QCOMPARE(result.contains(key), !converted.isNull());
        QCOMPARE(result.value(key), converted);
        QCOMPARE(failures, failure.isEmpty() ? QStringList() : QStringList{failure});
    }

    void iptcChangesDeclareUtf8()
    {
        const QString utf8 = u"\x1b%G"_qs;
        const TagDictionary iptc = ExifRunnerSaveOperation::convertValuesToChange(
            {{u"IPTC:Caption-Abstract"_qs, u"x"_qs}, {u"IFD0:Artist"_qs, u"y"_qs}});
        QVERIFY(ExifRunnerSaveOperation::gatherExifToolArgumentsToChange(iptc).contains(
            u"-CodedCharacterSet="_qs + utf8));
        QVERIFY(!ExifRunnerSaveOperation::convertValuesToChange({{u"IFD0:Artist"_qs, u"y"_qs}})
                     .contains(u"CodedCharacterSet"_qs));
    }

    void changeArguments_data()
    {
        QTest::addColumn<TagDictionary>("changes");
        QTest::addColumn<QStringList>("arguments"); // sorted

        const QString k = u"IPTC:Keywords"_qs;
        QTest::newRow("shift, list, empty text")
            << TagDictionary{{u"IPTC:DateCreated"_qs, u"-1:0:0"_qs},
                             {k, u"a,b,a"_qs},
                             {u"IFD0:Artist"_qs, {}}}
            << QStringList{u"-IFD0:Artist="_qs, u"-IPTC:DateCreated-='1:0:0'"_qs,
                           u"-IPTC:Keywords=a"_qs, u"-IPTC:Keywords=b"_qs};
        // An empty assignment among the items would delete the items before it.
        QTest::newRow("empty item") << TagDictionary{{k, u"x,,y"_qs}}
                                    << QStringList{u"-IPTC:Keywords=x"_qs, u"-IPTC:Keywords=y"_qs};
        QTest::newRow("trailing comma")
            << TagDictionary{{k, u"x,"_qs}} << QStringList{u"-IPTC:Keywords=x"_qs};
        QTest::newRow("blank item") << TagDictionary{{k, u"x, ,y"_qs}}
                                    << QStringList{u"-IPTC:Keywords=x"_qs, u"-IPTC:Keywords=y"_qs};
        QTest::newRow("only separators")
            << TagDictionary{{k, u", ,"_qs}} << QStringList{u"-IPTC:Keywords="_qs};
    }

    void changeArguments()
    {
        QFETCH(TagDictionary, changes);
        QStringList arguments = ExifRunnerSaveOperation::gatherExifToolArgumentsToChange(changes);
        arguments.sort();
        QTEST(arguments, "arguments");
    }

    void fixedArgumentsFollowTheForceSettings()
    {
        const QStringList always{u"-n"_qs,    u"-lang"_qs, u"en"_qs,   u"-charset"_qs,
                                 u"UTF-8"_qs, u"-X"_qs,    u"-api"_qs, u"struct=2"_qs};
        for (const bool on : {false, true}) {
            UserSettings::setValue(UserSettings::ForceFixBase, on);
            UserSettings::setValue(UserSettings::IgnoreMinorErrors, on);
            const QStringList extra = on ? QStringList{u"-F"_qs, u"-m"_qs} : QStringList();
            QCOMPARE(ExifRunnerSaveOperation::otherExifFileArguments(), always + extra);
        }
        UserSettings::remove(UserSettings::ForceFixBase);
        UserSettings::remove(UserSettings::IgnoreMinorErrors);
    }

    void imageDataCheckDefaultsToRawFiles()
    {
        QVERIFY(UserSettings::verifiesImageData(u"/p/a.NEF"_qs));
        QVERIFY(!UserSettings::verifiesImageData(u"/p/a.jpg"_qs));
        UserSettings::setValue(UserSettings::VerifyImageData, true);
        QVERIFY(UserSettings::verifiesImageData(u"/p/a.jpg"_qs));
        UserSettings::remove(UserSettings::VerifyImageData);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestExifRunnerSaveOperation)
#include "tst_exifrunnersaveoperation.moc"
