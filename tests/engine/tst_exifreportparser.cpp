#include "engine/exifreportparser.h"

#include <QtTest>

using Records = QHash<QString, TagDictionary>;
Q_DECLARE_METATYPE(Records)

namespace {

const QByteArray header = "<?xml version='1.0' encoding='UTF-8'?>\n"
                          "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>\n";
const QByteArray footer = "</rdf:RDF>\n";

QByteArray record(const QByteArray &name, const QByteArray &tags = {})
{
    return "<rdf:Description rdf:about='/p/" + name +
           "'\n  xmlns:System='http://ns.exiftool.org/File/System/1.0/'>\n <System:FileName>" +
           name + "</System:FileName>\n <System:Directory>/p</System:Directory>\n" + tags +
           "</rdf:Description>\n";
}

// The record as parsed: the two file tags plus the given ones, keyed by its path.
Records expect(std::initializer_list<std::pair<const char *, QStringList>> records)
{
    Records result;
    for (const auto &[name, tags] : records) {
        TagDictionary &data = result[u"/p/"_qs + QString::fromUtf8(name)];
        data.insert(u"System:FileName"_qs, QString::fromUtf8(name));
        data.insert(u"System:Directory"_qs, u"/p"_qs);
        for (qsizetype i = 0; i + 1 < tags.size(); i += 2)
            data.insert(tags.at(i), tags.at(i + 1));
    }
    return result;
}

} // namespace

class TestExifReportParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<Records>("expected");

        QTest::newRow("empty") << QByteArray() << Records{};
        QTest::newRow("not xml") << QByteArray("Error: File not found - x.jpg\n") << Records{};
        QTest::newRow("tags")
            << header +
                   record("a.jpg", " <IFD0:Make>Canon</IFD0:Make>\n <Sony:W-1>7</Sony:W-1>\n"
                                   " <IPTC:Keywords><rdf:Bag>\n <rdf:li>a</rdf:li>\n"
                                   " <rdf:li>b,c</rdf:li>\n</rdf:Bag></IPTC:Keywords>\n"
                                   " <XMP-dc:Title><rdf:Alt><rdf:li xml:lang='x-default'>Hi"
                                   "</rdf:li></rdf:Alt></XMP-dc:Title>\n"
                                   " <IFD0:Artist></IFD0:Artist>\n <IFD0:Copyright/>\n"
                                   " <XMP-dc:Rights>  </XMP-dc:Rights>\n <IFD0:ImageDescription>"
                                   "Tom &amp; Jerry&#39;s &lt;b&gt;</IFD0:ImageDescription>\n") +
                   footer
            << expect({{"a.jpg",
                        {u"IFD0:Make"_qs, u"Canon"_qs, u"Sony:W-1"_qs, u"7"_qs, u"IPTC:Keywords"_qs,
                         u"a,b\\,c"_qs, u"XMP-dc:Title"_qs, u"Hi"_qs, u"XMP-dc:Rights"_qs, u"  "_qs,
                         u"IFD0:ImageDescription"_qs, u"Tom & Jerry's <b>"_qs}}});
        QTest::newRow("names as printed")
            << header + record("O&#39;Brien caf\xc3\xa9.jpg") + record("-x.png") + footer
            << expect({{"O'Brien caf\xc3\xa9.jpg", {}}, {"-x.png", {}}});
        QTest::newRow("no directory")
            << header +
                   "<rdf:Description><System:FileName>a.jpg</System:FileName></rdf:Description>\n" +
                   record("b.jpg") + footer
            << expect({{"b.jpg", {}}});
        QTest::newRow("malformed keeps earlier")
            << header + record("a.jpg") + record("b.jpg", " <IFD0:Make>B</IFD0:Mak>\n") +
                   record("c.jpg") + footer
            << expect({{"a.jpg", {}}});
        QTest::newRow("cut off keeps earlier")
            << header + record("a.jpg") + record("b.jpg", " <IFD0:Make>B").left(90)
            << expect({{"a.jpg", {}}});
    }

    void parse()
    {
        QFETCH(QByteArray, report);
        QTEST(ExifReportParser::parse(report), "expected");
    }

    void chunkedFeedGivesTheSameRecords_data() { parse_data(); }
    void chunkedFeedGivesTheSameRecords()
    {
        // Pipe reads split anywhere, also inside a UTF-8 sequence or an entity.
        QFETCH(QByteArray, report);
        for (int size : {1, 3, 7, 64}) {
            ExifReportParser parser;
            for (qsizetype at = 0; at < report.size(); at += size)
                parser.addData(report.mid(at, size));
            QTEST(parser.finish(), "expected");
        }
    }

    void malformedReportIsFlaggedAndLaterDataIgnored()
    {
        ExifReportParser parser;
        parser.addData(header + record("a.jpg") + "<oops></nope>");
        QVERIFY(parser.hasFailed());
        parser.addData(record("b.jpg") + footer);
        QCOMPARE(parser.finish().keys(), QStringList{u"/p/a.jpg"_qs});
    }
};

QTEST_GUILESS_MAIN(TestExifReportParser)
#include "tst_exifreportparser.moc"
