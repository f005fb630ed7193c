#include "catalogue/exiffieldscontroller.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/exifutil.h"
#include "engine/fileidentity.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

namespace {

ExifFileInfoPtr load(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    MetadataReader().readRecord(file);
    return file;
}

QJsonObject tagsOf(const QString &path)
{
    return QJsonDocument::fromJson(
               Fixtures::runExifTool({u"-j"_qs, u"-G1"_qs, u"-n"_qs, u"--"_qs, path}).out)[0]
        .toObject();
}

} // namespace

// What is on disk after a save is what the user typed, and only that.
class TestValuesOnDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        UserSettings::setValue(UserSettings::FileModifyDate, 1); // keep the file's date
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    void cleanup() { QLocale::setDefault(QLocale::c()); }

    // Cameras write descriptions of blanks; a Save with nothing edited leaves such files
    // byte for byte, and an edit elsewhere keeps the blank tags.
    void blankValuesAreValues()
    {
        const QStringList blanks{u"-IFD0:ImageDescription="_qs + QString(31, u' '),
                                 u"-IPTC:City= "_qs, u"-XMP-dc:Title= "_qs};
        QList<ExifFileInfoPtr> files;
        QList<QByteArray> bytes;
        QList<FileIdentity> identities;
        for (int i = 0; i < 3; ++i) {
            const QString path = m_dir.filePath(u"blank-%1.jpg"_qs.arg(i));
            QCOMPARE(Fixtures::makeImage(path, blanks), QString());
            files.append(load(path));
            bytes.append(Fixtures::readBytes(path));
            identities.append(*FileIdentity::of(path));
            QCOMPARE(files.last()->exifValue(u"IPTC:City"_qs), u" "_qs);
            QVERIFY(!isExifFileModified(*files.last()));
        }
        RunListener::save(files);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(Fixtures::readBytes(files.at(i)->fileName()), bytes.at(i));
            QCOMPARE(*FileIdentity::of(files.at(i)->fileName()), identities.at(i));
        }

        files.first()->setExifValue(u"IFD0:Artist"_qs, u"Ann"_qs);
        QCOMPARE(RunListener::save({files.first()})->messages(files.first()->fileName()),
                 QStringList());
        const QJsonObject tags = tagsOf(files.first()->fileName());
        QCOMPARE(tags[u"IFD0:ImageDescription"_qs].toString(), QString(31, u' '));
        QCOMPARE(tags[u"IPTC:City"_qs].toString(), u" "_qs);
        QCOMPARE(tags[u"XMP-dc:Title"_qs].toString(), u" "_qs);
        QCOMPARE(tags[u"IFD0:Artist"_qs].toString(), u"Ann"_qs);
    }

    // Typed as the form shows them, in the user's own locale: ExifTool gets plain digits.
    void numbersInEveryLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::newRow("German") << u"de_DE"_qs;
        QTest::newRow("American") << u"en_US"_qs;
        QTest::newRow("French") << u"fr_FR"_qs;
    }

    void numbersInEveryLocale()
    {
        QFETCH(QString, locale);
        const QLocale language(locale);
        QLocale::setDefault(language);
        const QString path = m_dir.filePath(u"numbers-"_qs + locale + u".jpg"_qs);
        QCOMPARE(Fixtures::makeImage(path), QString());
        const ExifFileInfoPtr file = load(path);
        file->setExifValue(u"ExifIFD:ISO"_qs, language.toString(12345));
        file->setExifValue(u"ExifIFD:ExposureCompensation"_qs, language.toString(-1.5));
        file->setExifValue(u"ExifIFD:FocalLength"_qs, language.toString(1234.5));
        file->setExifValue(u"GPS:GPSAltitude"_qs, language.toString(2345.5));

        const QStringList messages = RunListener::save({file})->messages(path);
        QVERIFY2(messages.isEmpty(), qPrintable(messages.join(u'\n')));
        const QJsonObject tags = tagsOf(path);
        QCOMPARE(tags[u"ExifIFD:ISO"_qs].toInt(), 12345);
        QCOMPARE(tags[u"ExifIFD:ExposureCompensation"_qs].toDouble(), -1.5);
        QCOMPARE(tags[u"ExifIFD:FocalLength"_qs].toDouble(), 1234.5);
        QCOMPARE(tags[u"GPS:GPSAltitude"_qs].toDouble(), 2345.5);
        const QStringList stillEdited = ExifUtil::changedFieldsArray(*file);
        QVERIFY2(stillEdited.isEmpty(), qPrintable(stillEdited.join(u' ')));
    }

    // The zone is part of a date: taking it away, or changing only it, is written.
    void zoneOnlyEdits_data()
    {
        QTest::addColumn<QString>("edited");
        QTest::newRow("zone removed") << u"2013:05:01 10:00:00"_qs;
        QTest::newRow("zone changed") << u"2013:05:01 10:00:00+03:00"_qs;
    }

    void zoneOnlyEdits()
    {
        QFETCH(QString, edited);
        const QString key = u"XMP-exif:DateTimeOriginal"_qs;
        const QString path =
            m_dir.filePath(u"zone-"_qs + QString::number(edited.size()) + u".jpg"_qs);
        QCOMPARE(Fixtures::makeImage(path, {u"-"_qs + key + u"=2013:05:01 10:00:00+02:00"_qs}),
                 QString());
        const ExifFileInfoPtr file = load(path);
        QCOMPARE(file->exifValue(key), u"2013:05:01 10:00:00+02:00"_qs);
        file->setExifValue(key, edited);
        QVERIFY(isExifFileModified(*file));
        const QStringList messages = RunListener::save({file})->messages(path);
        QVERIFY2(messages.isEmpty(), qPrintable(messages.join(u'\n')));
        QCOMPARE(tagsOf(path)[key].toString(), edited);
    }

    // The check after writing warns of what did not stick, not of what ExifTool stores in its
    // own form.
    void noFalseAlarms_data()
    {
        QTest::addColumn<QStringList>("fixture");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("onDisk");
        QTest::newRow("date shifted a day")
            << QStringList{u"-IPTC:DateCreated=2013:05:01"_qs} << u"IPTC:DateCreated"_qs
            << u"+1d"_qs << u"2013:05:02"_qs;
        QTest::newRow("date-time with its zone shifted a day")
            << QStringList{u"-XMP-exif:DateTimeOriginal=2013:05:01 10:00:00+02:00"_qs}
            << u"XMP-exif:DateTimeOriginal"_qs << u"+1d"_qs << u"2013:05:02 10:00:00+02:00"_qs;
        QTest::newRow("date-time field holding a date shifted a day")
            << QStringList{u"-XMP-photoshop:DateCreated=2013:05:01"_qs}
            << u"XMP-photoshop:DateCreated"_qs << u"+1d"_qs << u"2013:05:02"_qs;
        QTest::newRow("trailing blanks of an EXIF text")
            << QStringList() << u"IFD0:Artist"_qs << u"Ann  "_qs << u"Ann"_qs;
    }

    void noFalseAlarms()
    {
        QFETCH(QStringList, fixture);
        QFETCH(QString, key);
        QFETCH(QString, value);
        const QString path =
            m_dir.filePath(u"alarm-"_qs + QString::fromLatin1(QTest::currentDataTag()) + u".jpg");
        QCOMPARE(Fixtures::makeImage(path, fixture), QString());
        const ExifFileInfoPtr file = load(path);
        QVERIFY2(ExifFieldsController::defaultInstance()->field(key), qPrintable(key));
        file->setExifValue(key, value);
        const QStringList messages = RunListener::save({file})->messages(path);
        QVERIFY2(messages.isEmpty(), qPrintable(messages.join(u'\n')));
        QTEST(tagsOf(path)[key].toString(), "onDisk");
        QVERIFY(!isExifFileModified(*file));
    }

    // Editing or removing a language alternative's default value keeps its other languages.
    void otherLanguagesKept_data()
    {
        QTest::addColumn<QStringList>("fixture");
        QTest::addColumn<QString>("value"); // empty: removed
        QTest::addColumn<QStringList>("languages");
        const QStringList three{u"-XMP-dc:Description=English"_qs,
                                u"-XMP-dc:Description-de=Deutsch"_qs,
                                u"-XMP-dc:Description-fr-CA=Français"_qs};
        QTest::newRow("edited") << three << u"New words"_qs << QStringList{u"de"_qs, u"fr-CA"_qs};
        QTest::newRow("removed") << three << QString() << QStringList{u"de"_qs, u"fr-CA"_qs};
        QTest::newRow("added beside another") << QStringList{u"-XMP-dc:Description-de=Deutsch"_qs}
                                              << u"First"_qs << QStringList{u"de"_qs};
    }

    void otherLanguagesKept()
    {
        QFETCH(QStringList, fixture);
        QFETCH(QString, value);
        const QString key = u"XMP-dc:Description"_qs;
        const QString path =
            m_dir.filePath(u"lang-"_qs + QString::fromLatin1(QTest::currentDataTag()) + u".jpg");
        QCOMPARE(Fixtures::makeImage(path, fixture), QString());
        const ExifFileInfoPtr file = load(path);
        QStringList languages;
        for (const QString &languageKey : file->languageKeys())
            languages.append(languageKey.mid(key.size() + 1));
        languages.sort();
        QTEST(languages, "languages");
        if (value.isEmpty())
            file->removeExifValue(key);
        else
            file->setExifValue(key, value);
        const QStringList messages = RunListener::save({file})->messages(path);
        QVERIFY2(messages.isEmpty(), qPrintable(messages.join(u'\n')));
        const QJsonObject tags = tagsOf(path);
        QCOMPARE(tags[key].toString(), value);
        QCOMPARE(tags[key + u"-de"_qs].toString(), u"Deutsch"_qs);
        if (fixture.size() > 1)
            QCOMPARE(tags[key + u"-fr-CA"_qs].toString(), u"Français"_qs);
        QVERIFY(!isExifFileModified(*file));
    }

    // Blank items of a list never reach ExifTool as an empty assignment, which would delete
    // the items before it.
    void emptyListItemsAreDropped_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("onDisk");
        const QString iptc = u"IPTC:Keywords"_qs;
        const QString xmp = u"XMP-dc:Subject"_qs;
        QTest::newRow("IPTC empty item") << iptc << u"x,,y"_qs << QStringList{u"x"_qs, u"y"_qs};
        QTest::newRow("IPTC trailing comma") << iptc << u"x,"_qs << QStringList{u"x"_qs};
        QTest::newRow("XMP empty item") << xmp << u"x,,y"_qs << QStringList{u"x"_qs, u"y"_qs};
        QTest::newRow("XMP blank item") << xmp << u"x, ,y, "_qs << QStringList{u"x"_qs, u"y"_qs};
        QTest::newRow("only separators") << xmp << u",,"_qs << QStringList();
    }

    void emptyListItemsAreDropped()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        QFETCH(QStringList, onDisk);
        const QString path =
            m_dir.filePath(u"list-"_qs + QString::fromLatin1(QTest::currentDataTag()) + u".jpg");
        QCOMPARE(Fixtures::makeImage(path, {u"-"_qs + key + u"=old"_qs}), QString());
        const ExifFileInfoPtr file = load(path);
        file->setExifValue(key, typed);
        const QStringList messages = RunListener::save({file})->messages(path);
        QVERIFY2(messages.isEmpty(), qPrintable(messages.join(u'\n')));
        const QJsonValue value = tagsOf(path).value(key);
        QStringList items;
        if (value.isArray()) {
            for (const QJsonValue &item : value.toArray())
                items.append(item.toString());
        } else if (!value.isUndefined()) {
            items.append(value.toString());
        }
        QCOMPARE(items, onDisk);
        const QStringList stillEdited = ExifUtil::changedFieldsArray(*file);
        QVERIFY2(stillEdited.isEmpty(), qPrintable(stillEdited.join(u' ')));
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestValuesOnDisk)
#include "tst_valuesondisk.moc"
