#include "catalogue/exiffieldsconfigurationparser.h"
#include "catalogue/exiffieldscontroller.h"
#include "catalogue/stringtables.h"

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString describe(const ExifField &f)
{
    return QStringLiteral("w%1 e%2 d%3 t%4 r%5 m%6")
        .arg(f.writable())
        .arg(f.enabled())
        .arg(f.decimals())
        .arg(int(f.dataType()))
        .arg(int(f.dataRepresentation()))
        .arg(f.maker().isNull() ? QStringLiteral("-") : u'[' + f.maker() + u']');
}

// One line per group, section and field, so that a test sees the whole tree at once.
QString outline(const ExifFieldsConfigurationParser &parser)
{
    QStringList lines;
    for (const auto &group : parser.groups()) {
        lines << group->name();
        for (const auto &section : group->sections()) {
            lines << u' ' + section->name();
            for (const auto &field : section->fields())
                lines << u"  " + field->xmlName();
        }
    }
    for (const auto &field : parser.fields()) {
        QStringList values = field->values() ? field->values()->keys() : QStringList();
        values.sort();
        lines << QStringLiteral("%1 in %2/%3 {%4}")
                     .arg(field->xmlName(),
                          field->groupName().isNull() ? u"-"_s : field->groupName(),
                          field->sectionName().isNull() ? u"-"_s : field->sectionName(),
                          field->values() ? u'"' + values.join(u"\",\"") + u'"' : u"none"_s);
    }
    return lines.join(u'\n');
}

} // namespace

class TestExifFieldsConfigurationParser : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_tablesError;

    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write a test file");
        return path;
    }

    void parse(ExifFieldsConfigurationParser &parser, const QByteArray &xml)
    {
        parser.parseFile(write(QStringLiteral("fields.xml"), xml), false);
    }

    bool compileTable(const char *file, const char *table, const QByteArray &messages)
    {
        const QString ts = write(QString::fromLatin1(file) + u".ts",
                                 "<?xml version=\"1.0\"?><TS version=\"2.1\"><context><name>" +
                                     QByteArray(table) + "</name>" + messages + "</context></TS>");
        const QString lrelease = QLibraryInfo::path(QLibraryInfo::BinariesPath) + u"/lrelease";
        return QProcess::execute(lrelease, {u"-silent"_s, ts, u"-qm"_s,
                                            m_dir.filePath(QString::fromLatin1(file) + u".qm")}) ==
               0;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const auto message = [](const char *key, const char *text) -> QByteArray {
            return "<message><source>" + QByteArray(key) + "</source><translation>" + text +
                   "</translation></message>";
        };
        if (!compileTable("custom_en", "CustomFields",
                          message("A:Both", "Custom both") + message("A:Same", "a:same") +
                              message("A:Empty", "") + message("A:Both:1", "One")) ||
            !compileTable("fields_en", "Fields",
                          message("A:Both", "Fields both") + message("A:Only", "Fields only") +
                              message("A:Same", "Fields same") +
                              message("A:Empty", "Fields empty") +
                              message("A:Both:1", "Fields one") + message("A:Both:2", "Two")) ||
            !compileTable("table_en", "T",
                          message("both", "Both en") + message("enOnly", "En only") +
                              message("empty", "") +
                              "<message><source>draft</source><translation type=\"unfinished\">"
                              "</translation></message>") ||
            !compileTable("table_de", "T", message("both", "Beide") + message("deEmpty", ""))) {
            m_tablesError = QStringLiteral("lrelease could not compile the test tables");
        }
    }

    // lrelease keeps a finished empty translation (as a null string) and drops an unfinished
    // empty one: that is what lets a table tell an empty entry from a missing one.
    void stringTableLookup_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("key");
        QTest::addColumn<std::optional<QString>>("expected");
        const auto row = [](const char *name, QLocale::Language language, const char *key,
                            std::optional<QString> expected) {
            QTest::newRow(name) << QLocale(language) << QString::fromLatin1(key) << expected;
        };
        const std::nullopt_t absent = std::nullopt;
        row("entry", QLocale::English, "both", u"Both en"_s);
        row("empty entry is present", QLocale::English, "empty", QStringLiteral(""));
        row("unfinished empty is absent", QLocale::English, "draft", absent);
        row("missing key", QLocale::English, "nope", absent);
        row("de overrides en", QLocale::German, "both", u"Beide"_s);
        row("de falls back to en", QLocale::German, "enOnly", u"En only"_s);
        row("de empty entry", QLocale::German, "deEmpty", QStringLiteral(""));
        row("unknown language uses en", QLocale::French, "both", u"Both en"_s);
    }

    void stringTableLookup()
    {
        if (!m_tablesError.isEmpty())
            QSKIP(qPrintable(m_tablesError));
        QFETCH(QLocale, locale);
        QFETCH(QString, key);
        QFETCH(std::optional<QString>, expected);
        const StringTables tables(m_dir.path(), locale);
        const auto text = tables.lookup(QStringLiteral("T"), key);
        QCOMPARE(text, expected);
        QVERIFY(!text || !text->isNull());
        QCOMPARE(tables.lookup(QStringLiteral("Other table"), key), std::nullopt);
        QCOMPARE(tables.localizedString(key, QStringLiteral("T")), text.value_or(key));
        QCOMPARE(tables.localizedString(key, QStringLiteral("T"), QStringLiteral("D")),
                 text.value_or(u"D"_s));
    }

    void fieldAttributes_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("log");
        QTest::addColumn<QString>("expected"); // empty: the field is skipped

        const auto row = [](const char *name, const char *element, const char *expected,
                            const char *log = "") {
            QTest::newRow(name) << QByteArray(element) << QString::fromLatin1(log)
                                << QString::fromLatin1(expected);
        };
        row("defaults", R"(name="IFD0:Make")", "w1 e1 d-1 t0 r0 m-");
        row("everything", R"(name="C:L" writable="false" representation="enum" datatype="uint16"
            enabled="false" decimals="2" maker="Canon")",
            "w0 e0 d2 t5 r4 m[Canon]");
        row("flags only exactly false", R"(name="A:B" writable="FALSE" enabled="no")",
            "w1 e1 d-1 t0 r0 m-");
        row("no colon", R"(name="Make")", "", "Field element contains an invalid name: Make");
        row("empty name", R"(name="" datatype="int8")", "");
        row("keywords are case-sensitive", R"(name="A:B" datatype="Int8" representation="Date")",
            "w1 e1 d-1 t0 r0 m-", "Unknown FieldDataType: Int8");
        row("decimals leading integer", R"(name="A:B" decimals="  -3.7x")", "w1 e1 d-3 t0 r0 m-");
        row("decimals overflow saturates", R"(name="A:B" decimals="99999999999999999999")",
            "w1 e1 d9223372036854775807 t0 r0 m-");
        row("empty maker is not absent", R"(name="A:B" maker="")", "w1 e1 d-1 t0 r0 m[]");
    }

    void fieldAttributes()
    {
        QFETCH(QByteArray, element);
        QFETCH(QString, log);
        QFETCH(QString, expected);
        if (!log.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, log.toUtf8().constData());
        ExifFieldsConfigurationParser parser;
        parse(parser, "<f><group name=\"G\"><section name=\"S\"><field " + element +
                          "/></section></group></f>");
        QCOMPARE(parser.groups().at(0)->sections().at(0)->fields().size(),
                 expected.isEmpty() ? 0 : 1);
        QCOMPARE(parser.fields().size(), expected.isEmpty() ? 0 : 1);
        if (!expected.isEmpty())
            QCOMPARE(describe(*parser.fields().at(0)), expected);
    }

    void treeFollowsTagOrder()
    {
        QTest::ignoreMessage(QtWarningMsg, "Field element contains an invalid name: Bad");
        ExifFieldsConfigurationParser parser;
        parse(parser, R"(<root>
            <section name="Loose"><field name="L:One"/></section><field name="L:Bare"/>
            <group name="G1"><section name="S1"><field name="A:X" representation="enum">
                <value> 1 </value><value>0</value><value/><value>a&amp;b</value>
                <value><![CDATA[<x>]]></value></field></section>
              <field name="A:InGroup"/>
              <section name="S2"><field name="Bad"><value>9</value></field><field name="A:Y"/>
                <field name="A:X"/></section></group>
            <group name="G2"><other><section name="S3"><field name="B:Z"/></section></other></group>
            </root>)");
        QCOMPARE(outline(parser), QStringLiteral(R"(G1
 S1
  A:X
 S2
  A:Y
  A:X
G2
 S3
  B:Z
L:One in -/Loose {none}
L:Bare in -/- {none}
A:X in G1/S1 {""," 1 ","0","<x>","a&b"}
A:InGroup in G1/- {none}
A:Y in G1/S2 {none}
A:X in G1/S2 {none}
B:Z in G2/S3 {none})"));
    }

    void malformedXmlKeepsWhatCameBefore()
    {
        ExifFieldsConfigurationParser parser;
        parse(parser, R"(<f><group name="G1"><field name="A:One"/></group></f>)");
        parse(parser, R"(<f><group name="G2"><section name="S"><field name="A:Two"/>
            <field name="A:Three"></section><field name="A:Four"/>)");
        QCOMPARE(outline(parser), QStringLiteral("G1\nG2\n S\n  A:Two\n  A:Three\n"
                                                 "A:Two in G2/S {none}\nA:Three in G2/S {none}"));
        parser.parseFile(m_dir.filePath(QStringLiteral("missing.xml")), false);
        QVERIFY(parser.fields().isEmpty());
    }

    void localisation_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("value"); // null: check the title
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *field, const char *value,
                            const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(field)
                                << (value ? QString::fromLatin1(value) : QString())
                                << QString::fromLatin1(expected);
        };
        row("custom overrides fields", "A:Both", nullptr, "Custom both");
        row("fields only", "A:Only", nullptr, "Fields only");
        row("custom repeating its key is missing", "A:Same", nullptr, "Fields same");
        row("custom empty is missing", "A:Empty", nullptr, "Fields empty");
        row("in neither table", "A:Nowhere", nullptr, "A:Nowhere");
        row("value from custom", "A:Both", "1", "One");
        row("value from fields", "A:Both", "2", "Two");
        row("value in neither", "A:Both", " 3 ", "A:Both: 3 ");
    }

    void localisation()
    {
        if (!m_tablesError.isEmpty())
            QSKIP(qPrintable(m_tablesError));
        QFETCH(QString, field);
        QFETCH(QString, value);
        QFETCH(QString, expected);
        ExifFieldsConfigurationParser parser;
        parse(parser, "<f><field name=\"" + field.toUtf8() + "\"><value>" + value.toUtf8() +
                          "</value></field></f>");
        parser.localizeFields(StringTables(m_dir.path(), QLocale(QLocale::English)));
        const ExifField &result = *parser.fields().at(0);
        QCOMPARE(value.isNull() ? result.title() : result.values()->value(value), expected);
    }

    void controllerMapsLaterDuplicate()
    {
        ExifFieldsController *controller = ExifFieldsController::defaultInstance();
        controller->initializeConfigurations(
            write(u"dup.xml"_s, R"(<f><section name="S1"><field name="A:X" datatype="int8"/>
                </section><group name="G"><section name="S2"><field name="A:X" datatype="uint8"/>
                </section></group></f>)"),
            false);
        QCOMPARE(controller->configurations().size(), 2);
        QCOMPARE(controller->configurationsMap().size(), 1);
        QCOMPARE(controller->field(u"A:X"_s), controller->configurations().at(1));
        QCOMPARE(controller->groups().size(), 1);
    }

    void controllerLoadsBundledCatalogue()
    {
        ExifFieldsController *controller = ExifFieldsController::defaultInstance();
        QCOMPARE(ExifFieldsController::defaultInstance(), controller);
        controller->initializeConfigurations();
        QVERIFY(controller->configurations().size() > 50);
        QCOMPARE(controller->field(QStringLiteral("IFD0:Make"))->title(), u"Camera Make"_s);
        for (const ExifFieldPtr &field : controller->configurations())
            QVERIFY2(!field->title().isEmpty(), qPrintable(field->xmlName()));
    }
};

QTEST_GUILESS_MAIN(TestExifFieldsConfigurationParser)
#include "tst_exiffieldsconfigurationparser.moc"
