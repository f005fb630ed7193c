#include "catalogue/xmlwriter.h"
#include "values/tagsmithexception.h"

#include <QTest>

#include <functional>

using WriterSteps = std::function<void(XMLWriter &)>;
Q_DECLARE_METATYPE(WriterSteps)

class TestXmlWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesExactOutput_data();
    void writesExactOutput();
    void refusesMisuse_data();
    void refusesMisuse();
};

void TestXmlWriter::writesExactOutput_data()
{
    QTest::addColumn<WriterSteps>("steps");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nested layout with one blank per level") << WriterSteps([](XMLWriter &w) {
        w.startElement(QStringLiteral("a"));
        w.writeAttribute(QStringLiteral("x"), QStringLiteral("1"));
        w.startElement(QStringLiteral("b"));
        w.writeContent(QStringLiteral("t"));
        w.endElement();
        w.startElement(QStringLiteral("c"));
        w.endElement();
        w.endElement();
    }) << QStringLiteral("\n<a x=\"1\">\n <b>t</b>\n <c/>\n</a>");
    QTest::newRow("set indent widens the levels") << WriterSteps([](XMLWriter &w) {
        w.setIndent(3);
        w.startElement(QStringLiteral("a"));
        w.startElement(QStringLiteral("b"));
        w.startElement(QStringLiteral("c"));
        w.endElement();
        w.endElement();
        w.endElement();
    }) << QStringLiteral("\n<a>\n   <b>\n      <c/>\n   </b>\n</a>");
    QTest::newRow("forced close of an empty element") << WriterSteps([](XMLWriter &w) {
        w.startElement(QStringLiteral("a"));
        w.endElementForceClose(true);
    }) << QStringLiteral("\n<a></a>");
    QTest::newRow("comment last leaves the element empty") << WriterSteps([](XMLWriter &w) {
        w.startElement(QStringLiteral("a"));
        w.writeComment(QStringLiteral("note"));
        w.endElement();
    }) << QStringLiteral("\n<a>\n<!--note-->\n/>");
    QTest::newRow("declaration once before the first tag") << WriterSteps([](XMLWriter &w) {
        w.setXmlTagEnabled(true);
        w.startElement(QStringLiteral("a"));
        w.startElement(QStringLiteral("b"));
        w.endElement();
        w.endElement();
    }) << QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n <b/>\n</a>");
    QTest::newRow("content escapes markup but keeps quotes and line breaks")
        << WriterSteps([](XMLWriter &w) {
               w.startElement(QStringLiteral("v"));
               w.writeContent(QStringLiteral("a<b> Tom & Jerry say \"hi\" it's\nnext\r\tend"));
               w.endElement();
           })
        << QStringLiteral("\n<v>a&lt;b&gt; Tom &amp; Jerry say \"hi\" it's\nnext&#13;\tend</v>");
    QTest::newRow("attribute escapes quotes and whitespace") << WriterSteps([](XMLWriter &w) {
        w.startElement(QStringLiteral("v"));
        w.writeAttribute(QStringLiteral("n"), QStringLiteral("<\"&'>\n\t\r東京"));
        w.endElement();
    }) << QStringLiteral("\n<v n=\"&lt;&quot;&amp;'&gt;&#10;&#9;&#13;東京\"/>");
}

void TestXmlWriter::writesExactOutput()
{
    QFETCH(WriterSteps, steps);
    QFETCH(QString, expected);

    XMLWriter writer;
    steps(writer);
    QCOMPARE(writer.output(), expected);
    QCOMPARE(writer.currentLevel(), 0);
}

void TestXmlWriter::refusesMisuse_data()
{
    QTest::addColumn<WriterSteps>("steps");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");

    const QString logic = TagsmithException::LogicError;
    const QString illegal = TagsmithException::IllegalArgument;
    QTest::newRow("attribute before any element")
        << WriterSteps([](XMLWriter &w) { w.writeAttribute(QStringLiteral("a"), QString()); })
        << logic << QStringLiteral("Write element at first");
    QTest::newRow("named close with nothing open")
        << WriterSteps([](XMLWriter &w) { w.endElementNamed(QStringLiteral("a")); }) << logic
        << QStringLiteral("There is nothing to close.");
    QTest::newRow("named close of the wrong element") << WriterSteps([](XMLWriter &w) {
        w.startElement(QStringLiteral("outer"));
        w.startElement(QStringLiteral("inner"));
        w.endElementNamed(QStringLiteral("outer"));
    }) << logic << QStringLiteral("Invalid closing tag \"outer\". It should be: \"inner\"");
    QTest::newRow("empty attribute name") << WriterSteps([](XMLWriter &w) {
        w.startElement(QStringLiteral("a"));
        w.writeAttribute(QString(), QStringLiteral("v"));
    }) << illegal << QStringLiteral("Xml attribute cannot be empty");
    QTest::newRow("colon in attribute name") << WriterSteps([](XMLWriter &w) {
        w.startElement(QStringLiteral("a"));
        w.writeAttribute(QStringLiteral("a:b"), QStringLiteral("v"));
    }) << illegal << QStringLiteral("\"a:b\" is not a valid xml attribute name.");
}

void TestXmlWriter::refusesMisuse()
{
    QFETCH(WriterSteps, steps);
    QFETCH(QString, name);
    QFETCH(QString, reason);

    XMLWriter writer;
    try {
        steps(writer);
        QFAIL("no exception thrown");
    } catch (const TagsmithException &e) {
        QCOMPARE(e.name(), name);
        QCOMPARE(e.reason(), reason);
    }
}

QTEST_GUILESS_MAIN(TestXmlWriter)
#include "tst_xmlwriter.moc"
