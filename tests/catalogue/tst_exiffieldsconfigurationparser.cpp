#include "catalogue/exiffieldsconfigurationparser.h"
#include "catalogue/exiffieldscontroller.h"
#include "catalogue/stringtables.h"

#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

Q_DECLARE_METATYPE(FieldDataType)
Q_DECLARE_METATYPE(FieldDataRepresentation)

class TestExifFieldsConfigurationParser : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QTemporaryDir m_tables;
    QString m_tablesError;
    int m_fileCount = 0;

    QString writeCatalogue(const QByteArray &xml)
    {
        const QString path = m_dir.filePath(QStringLiteral("fields%1.xml").arg(++m_fileCount));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
            qFatal("cannot write the test catalogue");
        return path;
    }

    QList<ExifFieldPtr> parse(const QByteArray &xml, ExifFieldsConfigurationParser &parser)
    {
        parser.parseFile(writeCatalogue(xml), false);
        return parser.fields();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid() && m_tables.isValid());
        const QString lrelease =
            QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/lrelease");
        if (!QFileInfo::exists(lrelease)) {
            m_tablesError = QStringLiteral("lrelease is not installed");
            return;
        }
        writeTable(m_tables.filePath(QStringLiteral("custom_en.ts")), "CustomFields",
                   {{"A:Both", "Custom both"},
                    {"A:Same", "a:same"},
                    {"A:Empty", ""},
                    {"A:Both:1", "One"}});
        writeTable(m_tables.filePath(QStringLiteral("fields_en.ts")), "Fields",
                   {{"A:Both", "Fields both"},
                    {"A:FieldsOnly", "Fields only"},
                    {"A:Same", "Fields same"},
                    {"A:Empty", "Fields empty"},
                    {"A:Both:1", "Fields one"},
                    {"A:Both:2", "Two"}});
        for (const char *name : {"custom_en", "fields_en"}) {
            const QString base = m_tables.filePath(QString::fromLatin1(name));
            QCOMPARE(QProcess::execute(lrelease, {QStringLiteral("-silent"), base + u".ts",
                                                  QStringLiteral("-qm"), base + u".qm"}),
                     0);
        }
    }

    void fieldAttributes_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("log");
        QTest::addColumn<bool>("writable");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<qint64>("decimals");
        QTest::addColumn<FieldDataType>("dataType");
        QTest::addColumn<FieldDataRepresentation>("representation");
        QTest::addColumn<QString>("maker");

        const auto none = FieldDataRepresentation::None;
        const auto unknown = FieldDataType::Unknown;
        QTest::newRow("defaults") << QByteArray(R"(<field name="IFD0:Make"/>)") << true << QString()
                                  << true << true << qint64(-1) << unknown << none << QString();
        QTest::newRow("everything")
            << QByteArray(R"(<field name="Canon:LensType" writable="false"
            representation="enum" datatype="uint16" enabled="false" decimals="2" maker="Canon"/>)")
            << true << QString() << false << false << qint64(2) << FieldDataType::UInt16
            << FieldDataRepresentation::Enum << QStringLiteral("Canon");
        QTest::newRow("flags only exactly false")
            << QByteArray(R"(<field name="A:B" writable="FALSE" enabled="no"/>)") << true
            << QString() << true << true << qint64(-1) << unknown << none << QString();
        QTest::newRow("no colon") << QByteArray(R"(<field name="Make"/>)") << false
                                  << QStringLiteral("Field element contains an invalid name: Make")
                                  << true << true << qint64(-1) << unknown << none << QString();
        QTest::newRow("empty name") << QByteArray(R"(<field name=""/>)") << false << QString()
                                    << true << true << qint64(-1) << unknown << none << QString();
        QTest::newRow("no name") << QByteArray(R"(<field datatype="int8"/>)") << false << QString()
                                 << true << true << qint64(-1) << unknown << none << QString();
        QTest::newRow("type keywords are case-sensitive")
            << QByteArray(R"(<field name="A:B" datatype="Int8" representation="Date"/>)") << true
            << QStringLiteral("Unknown FieldDataType: Int8") << true << true << qint64(-1)
            << unknown << none << QString();
        QTest::newRow("empty type is logged")
            << QByteArray(R"(<field name="A:B" datatype=""/>)") << true
            << QStringLiteral("Unknown FieldDataType: ") << true << true << qint64(-1) << unknown
            << none << QString();
        QTest::newRow("every type keyword")
            << QByteArray(R"(<field name="A:B" datatype="rdf-bag" representation="multi-enum"/>)")
            << true << QString() << true << true << qint64(-1) << FieldDataType::RdfBag
            << FieldDataRepresentation::MultiEnum << QString();
        QTest::newRow("decimals leading integer")
            << QByteArray(R"(<field name="A:B" decimals="  -3.7x" datatype="udouble"/>)") << true
            << QString() << true << true << qint64(-3) << FieldDataType::UDouble << none
            << QString();
        QTest::newRow("decimals without digits")
            << QByteArray(R"(<field name="A:B" decimals="two"/>)") << true << QString() << true
            << true << qint64(0) << unknown << none << QString();
        QTest::newRow("decimals empty")
            << QByteArray(R"(<field name="A:B" decimals=""/>)") << true << QString() << true << true
            << qint64(0) << unknown << none << QString();
        QTest::newRow("decimals overflow saturates")
            << QByteArray(R"(<field name="A:B" decimals="99999999999999999999"/>)") << true
            << QString() << true << true << std::numeric_limits<qint64>::max() << unknown << none
            << QString();
        QTest::newRow("empty maker is kept")
            << QByteArray(R"(<field name="A:B" maker=""/>)") << true << QString() << true << true
            << qint64(-1) << unknown << none << QStringLiteral("");
    }

    void fieldAttributes()
    {
        QFETCH(QByteArray, element);
        QFETCH(bool, accepted);
        QFETCH(QString, log);
        if (!log.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, log.toUtf8().constData());

        ExifFieldsConfigurationParser parser;
        const auto fields = parse("<fields><group name=\"G\"><section name=\"S\">" + element +
                                      "</section></group></fields>",
                                  parser);
        QCOMPARE(fields.size(), accepted ? 1 : 0);
        QCOMPARE(parser.groups().at(0)->sections().at(0)->fields().size(), accepted ? 1 : 0);
        if (!accepted)
            return;
        const ExifField &field = *fields.at(0);
        QTEST(field.writable(), "writable");
        QTEST(field.enabled(), "enabled");
        QTEST(field.decimals(), "decimals");
        QTEST(field.dataType(), "dataType");
        QTEST(field.dataRepresentation(), "representation");
        QFETCH(QString, maker);
        QCOMPARE(field.maker().isNull(), maker.isNull());
        QCOMPARE(field.maker(), maker);
        QCOMPARE(field.groupName(), QStringLiteral("G"));
        QCOMPARE(field.sectionName(), QStringLiteral("S"));
        QVERIFY(field.title().isNull());
    }

    void valuesAreStoredRaw()
    {
        ExifFieldsConfigurationParser parser;
        const auto fields = parse(R"(<fields><field name="A:E" representation="enum">
            <value> 1 </value><value>0</value><value></value><value/><value>a&amp;b</value>
            <value><![CDATA[<x>]]></value></field>
            <field name="A:Plain"/></fields>)",
                                  parser);
        QCOMPARE(fields.size(), 2);
        const auto values = fields.at(0)->values();
        QVERIFY(values.has_value());
        const QStringList expected{QStringLiteral(" 1 "), QStringLiteral("0"), QString(),
                                   QStringLiteral("a&b"), QStringLiteral("<x>")};
        QCOMPARE(values->size(), expected.size());
        for (const QString &key : expected)
            QCOMPARE(values->value(key, QStringLiteral("missing")), key);
        QVERIFY(!fields.at(1)->values().has_value());
    }

    void valuesOfSkippedFieldGoNowhere()
    {
        QTest::ignoreMessage(QtWarningMsg, "Field element contains an invalid name: Bad");
        ExifFieldsConfigurationParser parser;
        const auto fields = parse(R"(<fields><field name="A:One"><value>1</value></field>
            <field name="Bad"><value>2</value></field><field name="A:Two"/></fields>)",
                                  parser);
        QCOMPARE(fields.size(), 2);
        QCOMPARE(fields.at(0)->values()->keys(), QStringList{QStringLiteral("1")});
        QVERIFY(!fields.at(1)->values().has_value());
    }

    void nestingFollowsTagOrder()
    {
        ExifFieldsConfigurationParser parser;
        const auto fields = parse(R"(<root>
            <section name="Loose"><field name="L:One"/></section>
            <field name="L:Bare"/>
            <group name="G1"><section name="S1"><field name="A:X"/></section>
              <field name="A:InGroupOnly"/>
              <section name="S2"><field name="A:Y"/><field name="A:X"/></section></group>
            <group name="G2"><other><section name="S3"><field name="B:Z"/></section></other></group>
            </root>)",
                                  parser);
        QStringList names;
        for (const auto &field : fields)
            names << field->xmlName();
        QCOMPARE(names, QStringLiteral("L:One L:Bare A:X A:InGroupOnly A:Y A:X B:Z").split(u' '));
        QVERIFY(fields.at(0)->groupName().isNull());
        QCOMPARE(fields.at(0)->sectionName(), QStringLiteral("Loose"));
        QVERIFY(fields.at(1)->sectionName().isNull());
        QCOMPARE(fields.at(3)->groupName(), QStringLiteral("G1"));
        QVERIFY(fields.at(3)->sectionName().isNull());

        const auto &groups = parser.groups();
        QCOMPARE(groups.size(), 2);
        QCOMPARE(groups.at(0)->sections().size(), 2);
        QCOMPARE(groups.at(0)->sections().at(1)->fields().size(), 2);
        QCOMPARE(groups.at(1)->sections().at(0)->name(), QStringLiteral("S3"));
        QCOMPARE(groups.at(1)->sections().at(0)->fields().at(0)->groupName(), QStringLiteral("G2"));
        QVERIFY(groups.at(0)->sectionsMap().isEmpty());
    }

    void malformedXmlKeepsWhatCameBefore()
    {
        ExifFieldsConfigurationParser parser;
        const auto fields = parse(R"(<fields><group name="G"><section name="S">
            <field name="A:One"/><field name="A:Two"></section><field name="A:Three"/>)",
                                  parser);
        QCOMPARE(fields.size(), 2);
        QCOMPARE(parser.groups().size(), 1);

        parser.parseFile(m_dir.filePath(QStringLiteral("missing.xml")), false);
        QVERIFY(parser.fields().isEmpty());
    }

    void secondParseReplacesFieldsButAppendsGroups()
    {
        ExifFieldsConfigurationParser parser;
        parse(R"(<f><group name="G1"><field name="A:One"/></group></f>)", parser);
        const auto fields =
            parse(R"(<f><group name="G2"><field name="A:Two"/></group></f>)", parser);
        QCOMPARE(fields.size(), 1);
        QCOMPARE(fields.at(0)->xmlName(), QStringLiteral("A:Two"));
        QCOMPARE(parser.groups().size(), 2);
    }

    void localisation_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        QTest::newRow("custom overrides fields")
            << QStringLiteral("A:Both") << QStringLiteral("Custom both");
        QTest::newRow("fields only")
            << QStringLiteral("A:FieldsOnly") << QStringLiteral("Fields only");
        QTest::newRow("custom repeating its key is missing")
            << QStringLiteral("A:Same") << QStringLiteral("Fields same");
        QTest::newRow("custom empty is missing")
            << QStringLiteral("A:Empty") << QStringLiteral("Fields empty");
        QTest::newRow("in neither table")
            << QStringLiteral("A:Nowhere") << QStringLiteral("A:Nowhere");
        QTest::newRow("value from custom") << QStringLiteral("A:Both:1") << QStringLiteral("One");
        QTest::newRow("value from fields") << QStringLiteral("A:Both:2") << QStringLiteral("Two");
        QTest::newRow("value in neither")
            << QStringLiteral("A:Both: 3 ") << QStringLiteral("A:Both: 3 ");
    }

    void localisation()
    {
        QFETCH(QString, key);
        QFETCH(QString, expected);
        if (!m_tablesError.isEmpty())
            QSKIP(qPrintable(m_tablesError));

        ExifFieldsConfigurationParser parser;
        const QStringList parts = key.split(u':');
        const QString fieldName = parts.at(0) + u':' + parts.at(1);
        QByteArray xml = "<f><field name=\"" + fieldName.toUtf8() + "\">";
        if (parts.size() > 2)
            xml += "<value>" + parts.mid(2).join(u':').toUtf8() + "</value>";
        parse(xml + "</field></f>", parser);
        parser.localizeFields(StringTables(m_tables.path(), QLocale(QLocale::English)));

        const ExifField &field = *parser.fields().at(0);
        if (parts.size() > 2)
            QCOMPARE(field.values()->value(parts.mid(2).join(u':')), expected);
        else
            QCOMPARE(field.title(), expected);
    }

    void controllerLoadsBundledCatalogue()
    {
        ExifFieldsController *controller = ExifFieldsController::defaultInstance();
        QCOMPARE(ExifFieldsController::defaultInstance(), controller);
        controller->initializeConfigurations();
        QVERIFY(controller->configurations().size() > 50);
        QVERIFY(!controller->groups().isEmpty());

        const ExifFieldPtr make = controller->field(QStringLiteral("IFD0:Make"));
        QVERIFY(make);
        QCOMPARE(make->title(), QStringLiteral("Camera Make"));
        const ExifFieldPtr fNumber = controller->field(QStringLiteral("ExifIFD:FNumber"));
        QVERIFY(fNumber);
        QCOMPARE(fNumber->dataType(), FieldDataType::UDouble);
        for (const ExifFieldPtr &field : controller->configurations()) {
            QVERIFY2(field->xmlName().contains(u':'), qPrintable(field->xmlName()));
            QVERIFY2(!field->title().isEmpty(), qPrintable(field->xmlName()));
        }
    }

private:
    static void writeTable(const QString &path, const char *context,
                           const QList<std::pair<const char *, const char *>> &entries)
    {
        QByteArray ts = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                        "<TS version=\"2.1\" language=\"en\"><context><name>";
        ts += context;
        ts += "</name>";
        for (const auto &[source, translation] : entries) {
            ts += "<message><source>" + QByteArray(source) + "</source><translation>" +
                  QByteArray(translation) + "</translation></message>";
        }
        ts += "</context></TS>\n";
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(ts) != ts.size())
            qFatal("cannot write a test string table");
    }
};

QTEST_GUILESS_MAIN(TestExifFieldsConfigurationParser)
#include "tst_exiffieldsconfigurationparser.moc"
