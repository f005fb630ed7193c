#include "catalogue/exiffieldscontroller.h"
#include "engine/exifutil.h"
#include "engine/metadatareader.h"
#include "engine/writequeue.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

namespace {

ExifFileInfoPtr load(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    MetadataReader().readRecord(file);
    return file;
}

// Every tag as ExifTool reads it, structures whole, without the file system's own.
QJsonObject everyTag(const QString &path)
{
    QJsonObject tags = QJsonDocument::fromJson(
                           Fixtures::runExifTool({u"-j"_qs, u"-G1"_qs, u"-n"_qs, u"-struct"_qs,
                                                  u"-charset"_qs, u"iptc=UTF8"_qs, u"--"_qs, path})
                               .out)[0]
                           .toObject();
    for (const QString &key : tags.keys()) {
        if (key.startsWith(u"System:") || key.startsWith(u"File:") || key == u"SourceFile")
            tags.remove(key);
    }
    return tags;
}

const QString AllIptcJson = QStringLiteral(TAGSMITH_SOURCE_DIR "/tests/engine/data/iptc-all.json");

} // namespace

// XMP structures (IPTC's locations, artworks, people, licensors...) read whole, and a save
// that leaves every value it was not asked to change as it was.
class TestStructures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    // The value read is ExifTool's own serialized form, so writing it back is a no-op.
    void readAsExifToolSerializes_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("assignment");
        QTest::newRow("two locations, escapes and a nested list")
            << u"XMP-iptcExt:LocationShown"_qs
            << u"[{City=Vienna,CountryName=Austria,LocationId=[a,b|, c]},{City=Paris|, France "
               "|[left|] ||,Sublocation=Łódź}]"_qs;
        QTest::newRow("a member in three languages")
            << u"XMP-iptcExt:ArtworkOrObject"_qs
            << u"[{AOCreator=[Leonardo],AOTitle=Mona Lisa,AOTitle-de=Mona Lisa (de),"
               "AOTitle-fr=La Joconde}]"_qs;
        QTest::newRow("one structure, not a list")
            << u"XMP-iptcCore:CreatorContactInfo"_qs << u"{CiAdrCity=Lille,CiEmailWork=a@b.c}"_qs;
        QTest::newRow("structures inside a structure")
            << u"XMP-iptcExt:ImageRegion"_qs
            << u"[{Name=Face,RCtype=[{Identifier=[http://cv.iptc.org/x],Name=Human}],"
               "RegionBoundary={RbH=0.4,RbShape=rectangle,RbUnit=relative,RbW=0.3,RbX=0.1,"
               "RbY=0.2}},{RId=r2}]"_qs;
        QTest::newRow("a member with blanks and markup")
            << u"XMP-plus:Licensor"_qs << u"[{LicensorName=| A & B <c>}]"_qs;
    }
    void readAsExifToolSerializes()
    {
        QFETCH(QString, key);
        QFETCH(QString, assignment);
        const QString path =
            m_dir.filePath(u"read-%1.jpg"_qs.arg(QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(Fixtures::makeImage(path, {u'-' + key + u'=' + assignment}), QString());
        const QString exifTools =
            QString::fromUtf8(Fixtures::runExifTool(
                                  {u"-struct"_qs, u"-n"_qs, u"-s3"_qs, u'-' + key, u"--"_qs, path})
                                  .out)
                .trimmed();
        QVERIFY(!exifTools.isEmpty());
        const ExifFileInfoPtr file = load(path);
        QCOMPARE(file->exifValue(key), exifTools);
        // Flattened members stay readable for rows that show them one by one.
        if (key == u"XMP-iptcCore:CreatorContactInfo")
            QCOMPARE(file->exifValue(u"XMP-iptcCore:CreatorCity"_qs), u"Lille"_qs);
    }

    // Every IPTC Core and Extension property, two items in each list of structures and three
    // languages in each language alternative: one unrelated edit saved leaves all the rest.
    void everyIptcPropertySurvivesAnUnrelatedEdit()
    {
        const QString path = m_dir.filePath(u"iptc-all.jpg"_qs);
        QCOMPARE(Fixtures::makeImage(path, {u"-n"_qs, u"-charset"_qs, u"iptc=UTF8"_qs,
                                            u"-IPTC:CodedCharacterSet=UTF8"_qs,
                                            u"-IFD0:Software=Camera"_qs, u"-json=" + AllIptcJson}),
                 QString());
        QFile json(AllIptcJson);
        QVERIFY(json.open(QIODevice::ReadOnly));
        const QJsonObject wanted = QJsonDocument::fromJson(json.readAll())[0].toObject();
        const QJsonObject before = everyTag(path);

        // Each property the file was given is there, and has a row of the form to edit it.
        const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
        int properties = 0;
        for (const QString &key : wanted.keys()) {
            if (key == u"SourceFile")
                continue;
            QVERIFY2(before.contains(key), qPrintable(key));
            if (!key.startsWith(u"XMP") || catalogue->fieldOf(key) != catalogue->field(key))
                continue;
            ++properties;
            // The contact details are shown member by member.
            if (key == u"XMP-iptcCore:CreatorContactInfo") {
                QVERIFY(catalogue->field(u"XMP-iptcCore:CreatorCity"_qs));
                continue;
            }
            QVERIFY2(catalogue->field(key), qPrintable(key));
        }
        QCOMPARE(properties, 66);

        const ExifFileInfoPtr file = load(path);
        QVERIFY(file->isValid());
        file->setExifValue(u"IFD0:Software"_qs, u"Tagsmith test"_qs);
        QCOMPARE(RunListener::save({file})->messages(path), QStringList());

        QJsonObject after = everyTag(path);
        QCOMPARE(after.take(u"IFD0:Software"_qs).toString(), u"Tagsmith test"_qs);
        for (const QString &key : before.keys()) {
            if (key == u"IFD0:Software")
                continue;
            QVERIFY2(after.value(key) == before.value(key),
                     qPrintable(key + u": "_qs +
                                QString::fromUtf8(QJsonDocument(QJsonArray{before.value(key)})
                                                      .toJson(QJsonDocument::Compact)) +
                                u" became "_qs +
                                QString::fromUtf8(QJsonDocument(QJsonArray{after.value(key)})
                                                      .toJson(QJsonDocument::Compact))));
        }
        QCOMPARE(after.size(), before.size() - 1);
        // The record read back after the save holds the structures as they are on disk.
        QVERIFY(!isExifFileModified(*file));
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestStructures)
#include "tst_structures.moc"
