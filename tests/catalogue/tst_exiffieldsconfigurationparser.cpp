#include "catalogue/exiffieldsconfigurationparser.h"
#include "catalogue/exiffieldscontroller.h"
#include "catalogue/readlines.h"
#include "catalogue/stringtables.h"

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString orDash(const QString &text)
{
    return text.isNull() ? u"-"_s : text;
}

// The whole tree and field list as text, so one comparison shows every misplaced field.
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
        QStringList values = field->values() ? field->values()->keys() : QStringList{u"-"_s};
        values.sort();
        lines << field->xmlName() + u" in " + orDash(field->groupName()) + u'/' +
                     orDash(field->sectionName()) + u" {" + values.join(u'|') + u'}';
    }
    return lines.join(u'\n');
}

// "key=text|key=text": one .ts context; "key?" is an unfinished empty translation.
QByteArray tsFile(const char *context, const QString &entries)
{
    QByteArray ts = "<TS version=\"2.1\"><context><name>" + QByteArray(context) + "</name>";
    for (const QString &entry : entries.split(u'|')) {
        const bool draft = entry.endsWith(u'?');
        const QString key = draft ? entry.chopped(1) : entry.section(u'=', 0, 0);
        ts += "<message><source>" + key.toUtf8() + "</source><translation" +
              (draft ? " type=\"unfinished\">" : ">") + entry.section(u'=', 1).toUtf8() +
              "</translation></message>";
    }
    return ts + "</context></TS>";
}

} // namespace

class TestExifFieldsConfigurationParser : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_tablesError;

    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write a test file");
        return file.fileName();
    }

    void parse(ExifFieldsConfigurationParser &parser, const QByteArray &xml)
    {
        parser.parseFile(write(u"fields.xml"_s, xml), false);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const QList<std::pair<QString, QByteArray>> tables{
            {u"custom_en"_s,
             tsFile("CustomFields", u"A:Both=Custom both|A:Same=a:same|A:Empty=|A:Both:1=One"_s)},
            {u"fields_en"_s,
             tsFile("Fields", u"A:Both=Fields both|A:Only=Fields only|A:Same=Fields same|"
                              "A:Empty=Fields empty|A:Both:1=Fields one|A:Both:2=Two"_s)},
            {u"table_en"_s, tsFile("T", u"both=Both en|enOnly=En only|empty=|draft?"_s)},
            {u"table_de"_s, tsFile("T", u"both=Beide|deEmpty="_s)}};
        const QString lrelease = QLibraryInfo::path(QLibraryInfo::BinariesPath) + u"/lrelease";
        for (const auto &[name, ts] : tables) {
            if (QProcess::execute(lrelease, {u"-silent"_s, write(name + u".ts", ts), u"-qm"_s,
                                             m_dir.filePath(name + u".qm")}) != 0)
                m_tablesError = u"lrelease could not compile the test tables"_s;
        }
    }

    // lrelease keeps a finished empty translation and drops an unfinished one: that is what
    // tells an empty entry from a missing one.
    void stringTableLookup_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("key");
        QTest::addColumn<std::optional<QString>>("expected");
        const auto row = [](const char *name, const char *locale, const char *key,
                            std::optional<QString> expected) {
            QTest::newRow(name) << QLocale(QLatin1String(locale)) << QString::fromLatin1(key)
                                << expected;
        };
        row("entry", "en", "both", u"Both en"_s);
        row("unfinished empty", "en", "draft", std::nullopt);
        row("missing", "en", "nope", std::nullopt);
        row("de over en", "de", "both", u"Beide"_s);
        row("de empty entry", "de", "deEmpty", u""_s);
        row("unknown language", "fr", "both", u"Both en"_s);
    }

    void stringTableLookup()
    {
        if (!m_tablesError.isEmpty())
            QSKIP(qPrintable(m_tablesError));
        QFETCH(QLocale, locale);
        QFETCH(QString, key);
        QFETCH(std::optional<QString>, expected);
        const StringTables tables(m_dir.path(), locale);
        const auto text = tables.lookup(u"T"_s, key);
        QCOMPARE(text, expected);
        QVERIFY(!text || !text->isNull());
        QCOMPARE(tables.lookup(u"Other"_s, key), std::nullopt);
        QCOMPARE(tables.localizedString(key, u"T"_s), text.value_or(key));
        QCOMPARE(tables.localizedString(key, u"T"_s, u"D"_s), text.value_or(u"D"_s));
    }

    void fieldAttributes_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("expected"); // empty: the field is skipped
        QTest::addColumn<QString>("log");
        const auto row = [](const char *name, const char *element, const char *expected,
                            const char *log = "") {
            QTest::newRow(name) << QByteArray(element) << QString::fromLatin1(expected)
                                << QString::fromLatin1(log);
        };
        row("defaults", R"(name="IFD0:Make")", "w1 e1 d-1 t0 r0 m-");
        row("everything", R"(name="C:L" writable="false" representation="enum" datatype="uint16"
            enabled="false" decimals="2" maker="Canon")",
            "w0 e0 d2 t5 r4 mCanon");
        row("only exactly false", R"(name="A:B" writable="FALSE" enabled="no")",
            "w1 e1 d-1 t0 r0 m-");
        row("no colon", R"(name="Make")", "", "Field element contains an invalid name: Make");
        row("case-sensitive", R"(name="A:B" datatype="Int8" representation="Date")",
            "w1 e1 d-1 t0 r0 m-", "Unknown FieldDataType: Int8");
        row("decimals prefix", R"(name="A:B" decimals="  -3.7x")", "w1 e1 d-3 t0 r0 m-");
        row("empty maker", R"(name="A:B" maker="")", "w1 e1 d-1 t0 r0 m");
    }

    void fieldAttributes()
    {
        QFETCH(QByteArray, element);
        QFETCH(QString, expected);
        QFETCH(QString, log);
        if (!log.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(log));
        ExifFieldsConfigurationParser parser;
        parse(parser, "<f><group name=\"G\"><section name=\"S\"><field " + element +
                          "/></section></group></f>");
        const int count = expected.isEmpty() ? 0 : 1;
        QCOMPARE(parser.groups().at(0)->sections().at(0)->fields().size(), count);
        QCOMPARE(parser.fields().size(), count);
        if (count) {
            const ExifField &f = *parser.fields().at(0);
            QCOMPARE(QString::asprintf("w%d e%d d%lld t%d r%d m", f.writable(), f.enabled(),
                                       f.decimals(), int(f.dataType()),
                                       int(f.dataRepresentation())) +
                         (f.maker().isNull() ? u"-"_s : f.maker()),
                     expected);
        }
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
        QCOMPARE(outline(parser), u"G1\n S1\n  A:X\n S2\n  A:Y\n  A:X\nG2\n S3\n  B:Z\n"
                                  "L:One in -/Loose {-}\nL:Bare in -/- {-}\n"
                                  "A:X in G1/S1 {| 1 |0|<x>|a&b}\nA:InGroup in G1/- {-}\n"
                                  "A:Y in G1/S2 {-}\nA:X in G1/S2 {-}\nB:Z in G2/S3 {-}"_s);
    }

    void malformedXmlKeepsWhatCameBefore()
    {
        ExifFieldsConfigurationParser parser;
        parse(parser, R"(<f><group name="G1"><field name="A:One"/></group></f>)");
        parse(parser, R"(<f><group name="G2"><section name="S"><field name="A:Two"/>
            <field name="A:Three"></section><field name="A:Four"/>)");
        QCOMPARE(outline(parser), u"G1\nG2\n S\n  A:Two\n  A:Three\n"
                                  "A:Two in G2/S {-}\nA:Three in G2/S {-}"_s);
        parser.parseFile(m_dir.filePath(u"missing.xml"_s), false);
        QVERIFY(parser.fields().isEmpty());
    }

    void localisation_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("value"); // null: the title
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *field, const char *value,
                            const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(field) << QString::fromLatin1(value)
                                << QString::fromLatin1(expected);
        };
        row("custom over fields", "A:Both", nullptr, "Custom both");
        row("custom repeating key", "A:Same", nullptr, "Fields same");
        row("custom empty", "A:Empty", nullptr, "Fields empty");
        row("in neither", "A:Nowhere", nullptr, "A:Nowhere");
        row("value custom", "A:Both", "1", "One");
        row("value in neither", "A:Both", " 3 ", "A:Both: 3 ");
    }

    void localisation()
    {
        if (!m_tablesError.isEmpty())
            QSKIP(qPrintable(m_tablesError));
        QFETCH(QString, field);
        QFETCH(QString, value);
        ExifFieldsConfigurationParser parser;
        parse(parser, "<f><field name=\"" + field.toUtf8() + "\"><value>" + value.toUtf8() +
                          "</value></field></f>");
        parser.localizeFields(StringTables(m_dir.path(), QLocale(QLocale::English)));
        const ExifField &result = *parser.fields().at(0);
        QTEST(value.isNull() ? result.title() : result.values()->value(value), "expected");
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

    // ExifTool's messages are split with this; a missed terminator glues two warnings together.
    void readLinesSplitsAtEveryTerminator_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QByteArray &bytes, const char *lines) {
            QTest::newRow(name) << bytes
                                << (*lines ? QString::fromUtf8(lines).split(u'|') : QStringList());
        };
        row("crlf", "a\r\nb", "a|b");
        row("lone cr", "a\rb\r", "a|b");
        row("lf cr", "a\n\rb", "a||b");
        row("unicode", "a\u2028b\u2029c\u0085d", "a|b|c|d");
        row("utf-8 and blanks", "  Café \t\r\nWarning: x", "  Café \t|Warning: x");
    }

    void readLinesSplitsAtEveryTerminator()
    {
        QFETCH(QByteArray, bytes);
        QTEST(readLines(bytes), "lines");
    }
};

QTEST_GUILESS_MAIN(TestExifFieldsConfigurationParser)
#include "tst_exiffieldsconfigurationparser.moc"
