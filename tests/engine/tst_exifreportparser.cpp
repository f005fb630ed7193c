#include "engine/exifreportparser.h"

#include <QtTest>

using Records = QHash<QString, TagDictionary>;
Q_DECLARE_METATYPE(Records)

namespace {

const QByteArray header = "<?xml version='1.0' encoding='UTF-8'?>\n"
                          "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>\n";
const QByteArray footer = "</rdf:RDF>\n";

QByteArray record(const QByteArray &directory, const QByteArray &name, const QByteArray &tags)
{
    return "<rdf:Description rdf:about='" + directory + "/" + name +
           "'\n  xmlns:System='http://ns.exiftool.org/File/System/1.0/'>\n"
           " <System:FileName>" +
           name + "</System:FileName>\n <System:Directory>" + directory + "</System:Directory>\n" +
           tags + "</rdf:Description>\n";
}

TagDictionary tags(const QString &directory, const QString &name,
                   std::initializer_list<std::pair<QString, QString>> more)
{
    TagDictionary result{{QStringLiteral("System:FileName"), name},
                         {QStringLiteral("System:Directory"), directory}};
    for (const auto &[key, value] : more)
        result.insert(key, value);
    return result;
}

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TestExifReportParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void chunkedFeedGivesTheSameRecords_data() { parse_data(); }
    void chunkedFeedGivesTheSameRecords();
    void malformedReportIsFlaggedAndLaterDataIgnored();
};

void TestExifReportParser::parse_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<Records>("expected");

    QTest::newRow("empty buffer") << QByteArray() << Records{};
    QTest::newRow("no records") << header + footer << Records{};
    QTest::newRow("not xml at all") << QByteArray("Error: File not found - x.jpg\n") << Records{};

    QTest::newRow("simple tags")
        << header +
               record("/p", "a.jpg",
                      " <IFD0:Make>Canon</IFD0:Make>\n <ExifIFD:ISO>400</ExifIFD:ISO>\n") +
               footer
        << Records{
               {s("/p/a.jpg"), tags(s("/p"), s("a.jpg"),
                                    {{s("IFD0:Make"), s("Canon")}, {s("ExifIFD:ISO"), s("400")}})}};

    QTest::newRow("list joined, comma in item escaped")
        << header +
               record("/p", "a.jpg",
                      " <IPTC:Keywords>\n  <rdf:Bag>\n   <rdf:li>a</rdf:li>\n"
                      "   <rdf:li>b,c</rdf:li>\n   <rdf:li>d</rdf:li>\n  </rdf:Bag>\n"
                      " </IPTC:Keywords>\n") +
               footer
        << Records{
               {s("/p/a.jpg"), tags(s("/p"), s("a.jpg"), {{s("IPTC:Keywords"), s("a,b\\,c,d")}})}};

    QTest::newRow("single-item list is the item")
        << header +
               record("/p", "a.jpg",
                      " <XMP-dc:Title><rdf:Alt><rdf:li xml:lang='x-default'>Hi</rdf:li>"
                      "</rdf:Alt></XMP-dc:Title>\n") +
               footer
        << Records{{s("/p/a.jpg"), tags(s("/p"), s("a.jpg"), {{s("XMP-dc:Title"), s("Hi")}})}};

    QTest::newRow("empty element absent, spaces kept, entities decoded")
        << header +
               record("/p", "a.jpg",
                      " <IFD0:Artist></IFD0:Artist>\n <IFD0:Copyright/>\n"
                      " <XMP-dc:Title>  </XMP-dc:Title>\n"
                      " <IFD0:ImageDescription>Tom &amp; Jerry&#39;s "
                      "&lt;b&gt;</IFD0:ImageDescription>\n") +
               footer
        << Records{{s("/p/a.jpg"), tags(s("/p"), s("a.jpg"),
                                        {{s("XMP-dc:Title"), s("  ")},
                                         {s("IFD0:ImageDescription"), s("Tom & Jerry's <b>")}})}};

    QTest::newRow("keyed by directory and file name as printed")
        << header + record("/p/q", "O&#39;Brien caf\xc3\xa9.jpg", "") +
               record("/p", "-x.png", " <PNG:Gamma>2.2</PNG:Gamma>\n") + footer
        << Records{
               {s("/p/q/O'Brien caf\u00e9.jpg"), tags(s("/p/q"), s("O'Brien caf\u00e9.jpg"), {})},
               {s("/p/-x.png"), tags(s("/p"), s("-x.png"), {{s("PNG:Gamma"), s("2.2")}})}};

    QTest::newRow("record without a directory matches nothing")
        << header +
               "<rdf:Description><System:FileName>a.jpg</System:FileName>"
               "<IFD0:Make>X</IFD0:Make></rdf:Description>\n" +
               record("/p", "b.jpg", "") + footer
        << Records{{s("/p/b.jpg"), tags(s("/p"), s("b.jpg"), {})}};

    QTest::newRow("undeclared namespaces are fine")
        << header +
               record("/p", "a.jpg",
                      " <Sony:Weird-1>7</Sony:Weird-1>\n <Mystery:X>y</Mystery:X>\n") +
               footer
        << Records{{s("/p/a.jpg"), tags(s("/p"), s("a.jpg"),
                                        {{s("Sony:Weird-1"), s("7")}, {s("Mystery:X"), s("y")}})}};

    QTest::newRow("malformed in the middle keeps earlier records")
        << header + record("/p", "a.jpg", " <IFD0:Make>A</IFD0:Make>\n") +
               record("/p", "b.jpg", " <IFD0:Make>B</IFD0:Mak>\n") + record("/p", "c.jpg", "") +
               footer
        << Records{{s("/p/a.jpg"), tags(s("/p"), s("a.jpg"), {{s("IFD0:Make"), s("A")}})}};

    QTest::newRow("cut off inside a record keeps earlier records")
        << header + record("/p", "a.jpg", "") + record("/p", "b.jpg", " <IFD0:Make>B").left(90)
        << Records{{s("/p/a.jpg"), tags(s("/p"), s("a.jpg"), {})}};
}

void TestExifReportParser::parse()
{
    QFETCH(QByteArray, report);
    QFETCH(Records, expected);
    QCOMPARE(ExifReportParser::parse(report), expected);
}

void TestExifReportParser::chunkedFeedGivesTheSameRecords()
{
    // Pipe reads split anywhere, also inside a UTF-8 sequence or an entity.
    QFETCH(QByteArray, report);
    QFETCH(Records, expected);
    for (int size : {1, 3, 7, 64}) {
        ExifReportParser parser;
        for (qsizetype at = 0; at < report.size(); at += size)
            parser.addData(report.mid(at, size));
        QCOMPARE(parser.finish(), expected);
    }
}

void TestExifReportParser::malformedReportIsFlaggedAndLaterDataIgnored()
{
    ExifReportParser parser;
    parser.addData(header + record("/p", "a.jpg", "") + "<oops></nope>");
    QVERIFY(parser.hasFailed());
    parser.addData(record("/p", "b.jpg", "") + footer);
    QCOMPARE(parser.finish().keys(), QStringList{s("/p/a.jpg")});
}

QTEST_GUILESS_MAIN(TestExifReportParser)
#include "tst_exifreportparser.moc"
