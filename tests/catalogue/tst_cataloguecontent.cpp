#include "catalogue/exiffieldscontroller.h"
#include "catalogue/stringtables.h"
#include "engine/exifreportparser.h"
#include "engine/metadatareader.h"

#include "../support/fixtures.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using R = FieldDataRepresentation;
Q_DECLARE_METATYPE(FieldDataRepresentation)

// The shipped catalogue is generated from ExifTool's tag database: a misspelt key or a printed
// instead of raw enumeration code would silently hide a field from every user.
namespace {

struct Tag
{
    const char *key;
    const char *assign; // "#=" hands ExifTool the raw code, the form the reader sees with -n
    const char *value;
    R representation;
};

const Tag tags[] = {
    {"IFD0:Make", "=", "Canon", R::None},
    {"IFD0:Orientation", "#=", "6", R::Enum},
    {"ExifIFD:DateTimeOriginal", "=", "2024:05:06 07:08:09", R::DateTime},
    {"ExifIFD:FNumber", "=", "5.6", R::Number},
    {"ExifIFD:ExposureTime", "=", "0.004", R::Fraction},
    {"GPS:GPSLatitude", "=", "47.5", R::Latitude},
    {"GPS:GPSLatitudeRef", "=", "S", R::Enum},
    {"GPS:GPSDateStamp", "=", "2024:05:06", R::Date},
    {"IPTC:Keywords", "=", "lake,dawn", R::Strings},
    {"XMP-dc:Subject", "=", "lake", R::Strings},
    {"XMP-xmpRights:Marked", "=", "True", R::Enum},
    // IPTC Extension properties that are plain values, not structures.
    {"XMP-iptcExt:PersonInImage", "=", "Ann,Bob", R::Strings},
    {"XMP-iptcExt:MaxAvailWidth", "=", "6000", R::Number},
    {"XMP-iptcExt:DigitalSourceType", "=",
     "http://cv.iptc.org/newscodes/digitalsourcetype/trainedAlgorithmicMedia", R::None},
    {"XMP-iptcExt:AISystemUsed", "=", "Model X", R::None},
    {"XMP-plus:ModelReleaseStatus", "#=", "MR-NON", R::Enum},
    {"XMP-plus:DataMining", "#=", "DMI-PROHIBITED-AIMLTRAINING", R::Enum},
};

QString sourcePath(const QString &relative)
{
    return QStringLiteral(TAGSMITH_SOURCE_DIR "/") + relative;
}

} // namespace

class TestCatalogueContent : public QObject
{
    Q_OBJECT

    ExifFieldsController *m_catalogue = ExifFieldsController::defaultInstance();
    TagDictionary m_report;
    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        // An unknown type keyword or a bad key is logged while loading.
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_catalogue->initializeConfigurations();
        QVERIFY(m_catalogue->configurations().size() >= 400);

        const QString path = m_dir.filePath(u"tagged.jpg"_s);
        QStringList arguments{u"-sep"_s, u","_s};
        for (const Tag &tag : tags)
            arguments << u'-' + QLatin1String(tag.key) + QLatin1String(tag.assign) +
                             QString::fromUtf8(tag.value);
        const QString error = Fixtures::makeImage(path, arguments);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        const auto run = Fixtures::runExifTool(MetadataReader::readCommandArguments({path}));
        QVERIFY2(run.ok(), run.err.constData());
        const auto records = ExifReportParser::parse(run.out);
        QCOMPARE(records.size(), 1);
        m_report = records.cbegin().value();
    }

    void reportedValuesMatchCatalogue_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<FieldDataRepresentation>("representation");
        for (const Tag &tag : tags)
            QTest::newRow(tag.key) << QString::fromUtf8(tag.value) << tag.representation;
    }

    void reportedValuesMatchCatalogue()
    {
        const QString key = QString::fromLatin1(QTest::currentDataTag());
        QTEST(m_report.value(key), "value");
        const ExifFieldPtr field = m_catalogue->field(key);
        QVERIFY2(field, "not in the catalogue");
        QTEST(field->dataRepresentation(), "representation");
        QVERIFY(field->writable());
    }

    void everyReportedCodeIsListed()
    {
        int checked = 0;
        for (auto it = m_report.cbegin(); it != m_report.cend(); ++it) {
            const ExifFieldPtr field = m_catalogue->field(it.key());
            if (!field || field->dataRepresentation() != R::Enum)
                continue;
            ++checked;
            QVERIFY2(field->values()->contains(it.value()),
                     qPrintable(it.key() + u'=' + it.value()));
        }
        QVERIFY(checked >= 5); // with what ExifTool adds by itself (resolution unit...)
    }

    void catalogueIsWellFormed()
    {
        QFile file(sourcePath(u"resources/Fields.xml"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        // An unknown representation keyword loads silently as none.
        static const QSet<QString> known{
            u"number"_s,   u"date"_s,      u"datetime"_s, u"enum"_s,    u"multi-enum"_s,
            u"fraction"_s, u"longitude"_s, u"latitude"_s, u"strings"_s, u"structure"_s};
        static const QRegularExpression attribute(u"representation=\"([^\"]*)\""_s);
        for (const auto &match : attribute.globalMatch(QString::fromUtf8(file.readAll())))
            QVERIFY2(known.contains(match.captured(1)), qPrintable(match.captured(1)));

        const auto &fields = m_catalogue->configurations();
        QCOMPARE(m_catalogue->configurationsMap().size(), fields.size()); // no key twice
        static const QRegularExpression keyPattern(u"^[A-Za-z0-9-]+:[A-Za-z0-9_-]+$"_s);
        QSet<QString> makers, makerGroups;
        for (const ExifFieldPtr &field : fields) {
            const QString &key = field->xmlName();
            QVERIFY2(keyPattern.match(key).hasMatch(), qPrintable(key));
            const bool enumerated = field->dataRepresentation() == R::Enum ||
                                    field->dataRepresentation() == R::MultiEnum;
            QVERIFY2(enumerated == (field->values() && !field->values()->isEmpty()),
                     qPrintable(key));
            // A missing text shows the key itself to the user.
            QVERIFY2(!field->title().isEmpty() && field->title() != key, qPrintable(key));
            if (field->values()) {
                for (auto it = field->values()->cbegin(); it != field->values()->cend(); ++it)
                    QVERIFY2(it.value() != key + u':' + it.key(),
                             qPrintable(key + u':' + it.key()));
            }
            if (!field->maker().isEmpty()) {
                makers.insert(field->maker());
                makerGroups.insert(key.section(u':', 0, 0));
            }
        }
        // The form matches makers by names it derives from IFD0:Make; Sony and Panasonic have
        // none of their own there and fall under "Unknown".
        for (const char *maker :
             {"Canon", "Nikon", "Olympus", "Pentax", "Fuji", "Leica", "Unknown"})
            QVERIFY2(makers.contains(QLatin1String(maker)), maker);
        for (const char *group :
             {"Canon", "Nikon", "Sony", "FujiFilm", "Olympus", "Panasonic", "Pentax", "Leica"})
            QVERIFY2(makerGroups.contains(QLatin1String(group)), group);

        for (const char *tag : {"Latitude", "LongitudeRef", "Altitude", "TimeStamp"})
            QCOMPARE(m_catalogue->field(u"GPS:GPS"_s + QLatin1String(tag))->sectionName(),
                     u"GPS"_s);
        QCOMPARE(m_catalogue->field(u"IFD0:Make"_s)->title(), u"Camera Make"_s); // custom table
        QCOMPARE(StringTables::instance().lookup(u"Fields"_s, u"ExifIFD:DateTimeOriginal"_s),
                 u"Date/Time Original"_s);
    }

    void regenerationReproducesCommittedFiles()
    {
        const QString python = QStandardPaths::findExecutable(u"python3"_s);
        if (python.isEmpty())
            QSKIP("python3 is not installed");
        QProcess generator;
        generator.start(python, {sourcePath(u"scripts/generate-catalogue.py"_s),
                                 Fixtures::exifTool(), u"--out"_s, m_dir.path()});
        QVERIFY(generator.waitForFinished(240000));
        QVERIFY2(generator.exitCode() == 0, generator.readAllStandardError().constData());
        for (const char *name : {"Fields.xml", "i18n/fields_en.ts"}) {
            QFile committed(sourcePath(u"resources/"_s) + QLatin1String(name));
            QFile generated(m_dir.filePath(QLatin1String(name)));
            QVERIFY(committed.open(QIODevice::ReadOnly) && generated.open(QIODevice::ReadOnly));
            QVERIFY2(committed.readAll() == generated.readAll(), name);
        }
    }
};

QTEST_GUILESS_MAIN(TestCatalogueContent)
#include "tst_cataloguecontent.moc"
