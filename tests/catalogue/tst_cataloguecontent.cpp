#include "catalogue/exiffieldscontroller.h"

#include "../support/fixtures.h"

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

// The shipped catalogue is data, generated from ExifTool's tag database: these tests hold it to
// what ExifTool really reports, since a misspelt key or a printed instead of raw enumeration code
// would silently hide a field from every user.
namespace {

struct CatalogueEntry
{
    QString key;
    QString section;
    QString representation;
    QString maker;
    bool writable = true;
    QStringList values;
};

QString sourcePath(const QString &relative)
{
    return QStringLiteral(TAGSMITH_SOURCE_DIR "/") + relative;
}

QList<CatalogueEntry> readCatalogue(const QString &path)
{
    QList<CatalogueEntry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    QXmlStreamReader xml(&file);
    QString section;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto attributes = xml.attributes();
        if (xml.name() == QLatin1String("section")) {
            section = attributes.value(QLatin1String("name")).toString();
        } else if (xml.name() == QLatin1String("field")) {
            CatalogueEntry entry;
            entry.key = attributes.value(QLatin1String("name")).toString();
            entry.section = section;
            entry.representation = attributes.value(QLatin1String("representation")).toString();
            entry.maker = attributes.value(QLatin1String("maker")).toString();
            entry.writable = attributes.value(QLatin1String("writable")) != QLatin1String("false");
            entries.append(entry);
        } else if (xml.name() == QLatin1String("value") && !entries.isEmpty()) {
            entries.last().values.append(xml.readElementText());
        }
    }
    if (xml.hasError())
        entries.clear();
    return entries;
}

QHash<QString, QString> readTranslations(const QString &path)
{
    QHash<QString, QString> texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation"))
            texts.insert(source, xml.readElementText());
    }
    return texts;
}

// Top-level tag elements of one "-g1 -X" record, list items joined the way the reader joins them.
QHash<QString, QString> readReport(const QByteArray &report)
{
    QHash<QString, QString> tags;
    QXmlStreamReader xml(report);
    int depth = 0;
    QString current;
    QString text;
    QStringList items;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            if (++depth == 3) {
                current = xml.qualifiedName().toString();
                items.clear();
            }
            text.clear();
        } else if (xml.isCharacters()) {
            text += xml.text();
        } else if (xml.isEndElement()) {
            if (xml.qualifiedName() == QLatin1String("rdf:li"))
                items.append(text);
            if (depth-- == 3) {
                const QString value = items.isEmpty() ? text : items.join(u',');
                if (!value.isEmpty())
                    tags.insert(current, value);
            }
            text.clear();
        }
    }
    return tags;
}

} // namespace

class TestCatalogueContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void reportedValuesMatchCatalogue_data();
    void reportedValuesMatchCatalogue();
    void everyEnumeratedCodeInReportIsKnown();
    void catalogueCoversWhatTheFormNeeds();
    void everyKeyHasAnEnglishText();
    void applicationLoadsTheWholeCatalogueInEnglish();
    void regenerationReproducesCommittedFiles();

private:
    QList<CatalogueEntry> m_entries;
    QHash<QString, CatalogueEntry> m_byKey;
    QHash<QString, QString> m_report;
    QTemporaryDir m_dir;
};

void TestCatalogueContent::initTestCase()
{
    m_entries = readCatalogue(sourcePath(QStringLiteral("resources/Fields.xml")));
    QVERIFY(!m_entries.isEmpty());
    for (const auto &entry : std::as_const(m_entries))
        m_byKey.insert(entry.key, entry);

    QVERIFY(m_dir.isValid());
    const QString path = m_dir.filePath(QStringLiteral("tagged.jpg"));
    // "#=" hands ExifTool the raw code, the form the reading side sees with -n.
    const QStringList assignments = {
        QStringLiteral("-IFD0:Make=Canon"),
        QStringLiteral("-IFD0:Orientation#=6"),
        QStringLiteral("-IFD0:ImageDescription=A lake, at dawn"),
        QStringLiteral("-ExifIFD:DateTimeOriginal=2024:05:06 07:08:09"),
        QStringLiteral("-ExifIFD:ExposureProgram#=3"),
        QStringLiteral("-ExifIFD:Flash#=16"),
        QStringLiteral("-ExifIFD:FNumber=5.6"),
        QStringLiteral("-ExifIFD:ExposureTime=0.004"),
        QStringLiteral("-GPS:GPSLatitude=47.5"),
        QStringLiteral("-GPS:GPSLatitudeRef=S"),
        QStringLiteral("-GPS:GPSLongitude=8.25"),
        QStringLiteral("-GPS:GPSLongitudeRef=W"),
        QStringLiteral("-GPS:GPSAltitude=410"),
        QStringLiteral("-GPS:GPSAltitudeRef#=0"),
        QStringLiteral("-GPS:GPSDateStamp=2024:05:06"),
        QStringLiteral("-GPS:GPSTimeStamp=10:20:30"),
        QStringLiteral("-IPTC:Keywords=lake"),
        QStringLiteral("-IPTC:Keywords=dawn"),
        QStringLiteral("-IPTC:DateCreated=2024:05:06"),
        QStringLiteral("-IPTC:City=Zurich"),
        QStringLiteral("-IPTC:By-line=Ann"),
        QStringLiteral("-XMP-dc:Subject=lake"),
        QStringLiteral("-XMP-dc:Description=A lake"),
        QStringLiteral("-XMP-photoshop:City=Zurich"),
        QStringLiteral("-XMP-xmp:CreateDate=2024:05:06 07:08:09"),
        QStringLiteral("-XMP-iptcCore:CountryCode=CH"),
        QStringLiteral("-XMP-xmpRights:Marked=True"),
    };
    const QString error = Fixtures::makeImage(path, assignments);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    const auto run =
        Fixtures::runExifTool({QStringLiteral("-g1"), QStringLiteral("-X"), QStringLiteral("-n"),
                               QStringLiteral("-charset"), QStringLiteral("UTF-8"), path});
    QVERIFY2(run.ok(), run.err.constData());
    m_report = readReport(run.out);
    QVERIFY(m_report.contains(QStringLiteral("System:FileName")));
}

void TestCatalogueContent::reportedValuesMatchCatalogue_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("reported");

    QTest::newRow("make") << "IFD0:Make"
                          << ""
                          << "Canon";
    QTest::newRow("orientation code") << "IFD0:Orientation"
                                      << "enum"
                                      << "6";
    QTest::newRow("caption") << "IFD0:ImageDescription"
                             << ""
                             << "A lake, at dawn";
    QTest::newRow("capture date") << "ExifIFD:DateTimeOriginal"
                                  << "datetime"
                                  << "2024:05:06 07:08:09";
    QTest::newRow("program code") << "ExifIFD:ExposureProgram"
                                  << "enum"
                                  << "3";
    QTest::newRow("flash code") << "ExifIFD:Flash"
                                << "enum"
                                << "16";
    QTest::newRow("aperture") << "ExifIFD:FNumber"
                              << "number"
                              << "5.6";
    QTest::newRow("exposure time") << "ExifIFD:ExposureTime"
                                   << "fraction"
                                   << "0.004";
    QTest::newRow("latitude") << "GPS:GPSLatitude"
                              << "latitude"
                              << "47.5";
    QTest::newRow("latitude ref") << "GPS:GPSLatitudeRef"
                                  << "enum"
                                  << "S";
    QTest::newRow("longitude") << "GPS:GPSLongitude"
                               << "longitude"
                               << "8.25";
    QTest::newRow("longitude ref") << "GPS:GPSLongitudeRef"
                                   << "enum"
                                   << "W";
    QTest::newRow("altitude") << "GPS:GPSAltitude"
                              << "number"
                              << "410";
    QTest::newRow("altitude ref") << "GPS:GPSAltitudeRef"
                                  << "enum"
                                  << "0";
    QTest::newRow("gps date") << "GPS:GPSDateStamp"
                              << "date"
                              << "2024:05:06";
    QTest::newRow("gps time") << "GPS:GPSTimeStamp"
                              << ""
                              << "10:20:30";
    QTest::newRow("iptc list") << "IPTC:Keywords"
                               << "strings"
                               << "lake,dawn";
    QTest::newRow("iptc date") << "IPTC:DateCreated"
                               << "date"
                               << "2024:05:06";
    QTest::newRow("iptc city") << "IPTC:City"
                               << ""
                               << "Zurich";
    QTest::newRow("iptc by-line") << "IPTC:By-line"
                                  << "strings"
                                  << "Ann";
    QTest::newRow("xmp bag") << "XMP-dc:Subject"
                             << "strings"
                             << "lake";
    QTest::newRow("xmp lang-alt") << "XMP-dc:Description"
                                  << ""
                                  << "A lake";
    QTest::newRow("xmp city") << "XMP-photoshop:City"
                              << ""
                              << "Zurich";
    QTest::newRow("xmp date") << "XMP-xmp:CreateDate"
                              << "datetime"
                              << "2024:05:06 07:08:09";
    QTest::newRow("iptc core") << "XMP-iptcCore:CountryCode"
                               << ""
                               << "CH";
    QTest::newRow("xmp boolean") << "XMP-xmpRights:Marked"
                                 << "enum"
                                 << "True";
}

void TestCatalogueContent::reportedValuesMatchCatalogue()
{
    QFETCH(QString, key);
    QFETCH(QString, representation);
    QFETCH(QString, reported);

    QVERIFY2(m_report.contains(key), qPrintable(key + QStringLiteral(" not in the report")));
    QCOMPARE(m_report.value(key), reported);
    QVERIFY2(m_byKey.contains(key), qPrintable(key + QStringLiteral(" not in the catalogue")));
    const auto entry = m_byKey.value(key);
    QCOMPARE(entry.representation, representation);
    QVERIFY(entry.writable);
    if (representation == QLatin1String("enum"))
        QVERIFY2(entry.values.contains(reported), qPrintable(reported));
}

void TestCatalogueContent::everyEnumeratedCodeInReportIsKnown()
{
    int checked = 0;
    for (auto it = m_report.cbegin(); it != m_report.cend(); ++it) {
        const auto entry = m_byKey.value(it.key());
        if (entry.representation != QLatin1String("enum"))
            continue;
        ++checked;
        QVERIFY2(
            entry.values.contains(it.value()),
            qPrintable(it.key() + u'=' + it.value() + QStringLiteral(" is not a listed code")));
    }
    // Written ones plus what ExifTool adds by itself (resolution unit, YCbCr positioning...).
    QVERIFY(checked >= 8);
}

void TestCatalogueContent::catalogueCoversWhatTheFormNeeds()
{
    QVERIFY(m_entries.size() >= 400);
    QCOMPARE(m_byKey.size(), m_entries.size()); // no key listed twice

    static const QSet<QString> representations = {{},
                                                  QStringLiteral("number"),
                                                  QStringLiteral("date"),
                                                  QStringLiteral("datetime"),
                                                  QStringLiteral("enum"),
                                                  QStringLiteral("multi-enum"),
                                                  QStringLiteral("fraction"),
                                                  QStringLiteral("longitude"),
                                                  QStringLiteral("latitude"),
                                                  QStringLiteral("strings")};
    static const QRegularExpression keyPattern(QStringLiteral("^[A-Za-z0-9-]+:[A-Za-z0-9_-]+$"));
    QSet<QString> makers;
    QSet<QString> makerGroups;
    for (const auto &entry : std::as_const(m_entries)) {
        QVERIFY2(keyPattern.match(entry.key).hasMatch(), qPrintable(entry.key));
        QVERIFY2(representations.contains(entry.representation), qPrintable(entry.key));
        const bool enumerated = entry.representation.endsWith(QLatin1String("enum"));
        QVERIFY2(enumerated == !entry.values.isEmpty(), qPrintable(entry.key));
        QCOMPARE(QSet<QString>(entry.values.cbegin(), entry.values.cend()).size(),
                 entry.values.size());
        if (!entry.maker.isEmpty()) {
            makers.insert(entry.maker);
            makerGroups.insert(entry.key.section(u':', 0, 0));
        }
    }
    // The form matches makers by the names it derives from IFD0:Make; Sony and Panasonic have
    // none of their own there and fall under "Unknown".
    for (const char *maker : {"Canon", "Nikon", "Olympus", "Pentax", "Fuji", "Leica", "Unknown"})
        QVERIFY2(makers.contains(QLatin1String(maker)), maker);
    for (const char *group :
         {"Canon", "Nikon", "Sony", "FujiFilm", "Olympus", "Panasonic", "Pentax", "Leica"})
        QVERIFY2(makerGroups.contains(QLatin1String(group)), group);

    for (const char *key :
         {"GPS:GPSLatitude", "GPS:GPSLatitudeRef", "GPS:GPSLongitude", "GPS:GPSLongitudeRef",
          "GPS:GPSAltitude", "GPS:GPSAltitudeRef", "GPS:GPSDateStamp", "GPS:GPSTimeStamp"})
        QCOMPARE(m_byKey.value(QLatin1String(key)).section, QStringLiteral("GPS"));
}

void TestCatalogueContent::everyKeyHasAnEnglishText()
{
    const auto texts = readTranslations(sourcePath(QStringLiteral("resources/i18n/fields_en.ts")));
    int expected = 0;
    for (const auto &entry : std::as_const(m_entries)) {
        ++expected;
        QVERIFY2(!texts.value(entry.key).isEmpty(), qPrintable(entry.key));
        for (const auto &value : entry.values) {
            ++expected;
            const QString key = entry.key + u':' + value;
            QVERIFY2(!texts.value(key).isEmpty(), qPrintable(key));
        }
    }
    QCOMPARE(texts.size(), expected);
    QCOMPARE(texts.value(QStringLiteral("ExifIFD:ExposureProgram:3")),
             QStringLiteral("Aperture-priority AE"));
    QCOMPARE(texts.value(QStringLiteral("ExifIFD:DateTimeOriginal")),
             QStringLiteral("Date/Time Original"));
}

void TestCatalogueContent::applicationLoadsTheWholeCatalogueInEnglish()
{
    auto *controller = ExifFieldsController::defaultInstance();
    controller->initializeConfigurations();
    QCOMPARE(controller->configurations().size(), m_entries.size());
    QCOMPARE(controller->configurationsMap().size(), m_byKey.size());

    const auto program = controller->field(QStringLiteral("ExifIFD:ExposureProgram"));
    QVERIFY(program);
    QCOMPARE(program->title(), QStringLiteral("Exposure Program"));
    QVERIFY(program->values().has_value());
    QCOMPARE(program->values()->value(QStringLiteral("3")), QStringLiteral("Aperture-priority AE"));
    const auto lens = controller->field(QStringLiteral("Canon:LensType"));
    QVERIFY(lens);
    QCOMPARE(lens->maker(), QStringLiteral("Canon"));
    QVERIFY(lens->writable());
    QVERIFY(lens->values()->size() > 100);
}

void TestCatalogueContent::regenerationReproducesCommittedFiles()
{
    const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
    if (python.isEmpty())
        QSKIP("python3 is not installed");
    QProcess generator;
    generator.start(python, {sourcePath(QStringLiteral("scripts/generate-catalogue.py")),
                             Fixtures::exifTool(), QStringLiteral("--out"), m_dir.path()});
    QVERIFY(generator.waitForFinished(240000));
    QVERIFY2(generator.exitCode() == 0, generator.readAllStandardError().constData());

    for (const char *name : {"Fields.xml", "i18n/fields_en.ts"}) {
        QFile committed(sourcePath(QStringLiteral("resources/")) + QLatin1String(name));
        QFile generated(m_dir.filePath(QLatin1String(name)));
        QVERIFY(committed.open(QIODevice::ReadOnly));
        QVERIFY(generated.open(QIODevice::ReadOnly));
        QVERIFY2(committed.readAll() == generated.readAll(), name);
    }
}

QTEST_GUILESS_MAIN(TestCatalogueContent)
#include "tst_cataloguecontent.moc"
