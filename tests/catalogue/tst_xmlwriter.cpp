#include "catalogue/xmlwriter.h"
#include "values/tagsmithexception.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Steps separated by "|": "<a" start, ">" end, "!" forced end, "/a" named end, "@k=v" attribute,
// "'t" content, "#t" comment, "%3" indent, "?" declaration.
void play(XMLWriter &w, const QString &steps)
{
    for (const QString &step : steps.split(u'|')) {
        const QString arg = step.mid(1);
        // clang-format off
        switch (step.at(0).unicode()) {
        case '<': w.startElement(arg); break;
        case '>': w.endElement(); break;
        case '!': w.endElementForceClose(true); break;
        case '/': w.endElementNamed(arg); break;
        case '@': w.writeAttribute(arg.section(u'=', 0, 0), arg.section(u'=', 1)); break;
        case '\'': w.writeContent(arg); break;
        case '#': w.writeComment(arg); break;
        case '%': w.setIndent(arg.toInt()); break;
        case '?': w.setXmlTagEnabled(true); break;
        }
        // clang-format on
    }
}

} // namespace

class TestXmlWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Presets are stored in exactly this layout, quirks included.
    void writesExactOutput_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char16_t *steps, const char16_t *expected) {
            QTest::newRow(name) << QString::fromUtf16(steps) << QString::fromUtf16(expected);
        };
        row("one blank per level", u"<a|@x=1|<b|'t|>|<c|>|>",
            u"\n<a x=\"1\">\n <b>t</b>\n <c/>\n</a>");
        row("set indent", u"%3|<a|<b|<c|>|>|>", u"\n<a>\n   <b>\n      <c/>\n   </b>\n</a>");
        row("forced close", u"<a|!", u"\n<a></a>");
        row("comment last", u"<a|#note|>", u"\n<a>\n<!--note-->\n/>");
        row("declaration once", u"?|<a|<b|>|>",
            u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n <b/>\n</a>");
        row("content escapes", u"<v|'a<b> Tom & Jerry say \"hi\" it's\nnext\r\tend|>",
            u"\n<v>a&lt;b&gt; Tom &amp; Jerry say \"hi\" it's\nnext&#13;\tend</v>");
        row("content control char", u"<v|'bell\u0007|>", u"\n<v>bell<?tagsmith-char 7?></v>");
        row("attribute escapes", u"<v|@n=<\"&'>\n\t\r東京|>",
            u"\n<v n=\"&lt;&quot;&amp;'&gt;&#10;&#9;&#13;東京\"/>");
    }

    void writesExactOutput()
    {
        QFETCH(QString, steps);
        XMLWriter writer;
        play(writer, steps);
        QTEST(writer.output(), "expected");
        QCOMPARE(writer.currentLevel(), 0);
    }

    void refusesMisuse_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        const QString logic = TagsmithException::LogicError;
        const QString illegal = TagsmithException::IllegalArgument;
        QTest::newRow("attribute first") << u"@a="_s << logic << u"Write element at first"_s;
        QTest::newRow("wrong close") << u"<outer|<inner|/outer"_s << logic
                                     << u"Invalid closing tag \"outer\". It should be: \"inner\""_s;
        QTest::newRow("empty attribute")
            << u"<a|@=v"_s << illegal << u"Xml attribute cannot be empty"_s;
        QTest::newRow("colon attribute")
            << u"<a|@a:b=v"_s << illegal << u"\"a:b\" is not a valid xml attribute name."_s;
    }

    void refusesMisuse()
    {
        QFETCH(QString, steps);
        XMLWriter writer;
        try {
            play(writer, steps);
            QFAIL("no exception thrown");
        } catch (const TagsmithException &e) {
            QTEST(e.name(), "name");
            QTEST(e.reason(), "reason");
        }
    }
};

QTEST_GUILESS_MAIN(TestXmlWriter)
#include "tst_xmlwriter.moc"
