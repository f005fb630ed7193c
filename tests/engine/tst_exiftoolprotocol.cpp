#include "engine/exiftoolprotocol.h"

#include <QTest>

using namespace ExifToolProtocol;

class TestExifToolProtocol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodeArgument_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QByteArray>("line"); // null: refused
        auto row = [](const char *name, const QString &argument, const char *line) {
            QTest::newRow(name) << argument << QByteArray(line);
        };
        row("line breaks", u"a\nb\r\nc"_qs, "#[CSTR]a\\nb\\r\\nc");
        row("blank edges, hash", u"  #x  "_qs, "#[CSTR]  #x  ");
        row("backslashes", u"\\n \\"_qs, "#[CSTR]\\\\n \\\\");
        row("unicode", u"-Artist=Zoë 東京"_qs,
            "#[CSTR]-Artist=Zo\xc3\xab \xe6\x9d\xb1\xe4\xba\xac");
        // "$" would be expanded inside a C string, so such values go plain or not at all.
        row("dollar plain", u"-Copyright=$5 a@b.c "_qs, "-Copyright=$5 a@b.c ");
        row("dollar, blank after =", u"-Comment= $5"_qs, nullptr);
        row("dollar, line break", u"$5\nx"_qs, nullptr);
        row("numbered execute", u"-EXECUTE12"_qs, nullptr);
        row("stay_open", u"-stay_open"_qs, nullptr);
        row("nul", QString(u"a" + QChar(0) + u"b"), nullptr);
    }
    void encodeArgument()
    {
        QFETCH(QString, argument);
        QTEST(ExifToolProtocol::encodeArgument(argument).value_or(QByteArray()), "line");
    }

    void command()
    {
        // The end of options goes; names after it that start with a dash become relative paths.
        QCOMPARE(withoutEndOfOptions({u"-m"_qs, u"--"_qs, u"-a.jpg"_qs, u"/b/-c.jpg"_qs, u"--"_qs}),
                 QStringList({u"-m"_qs, u"./-a.jpg"_qs, u"/b/-c.jpg"_qs, u"./--"_qs}));
        QCOMPARE(withoutEndOfOptions({u"-ver"_qs, u"-a.jpg"_qs}),
                 QStringList({u"-ver"_qs, u"-a.jpg"_qs}));
        QCOMPARE(withoutEndOfOptions({QString(2, QChar(0x2212)), u"\u2212x"_qs}),
                 QStringList{u"./\u2212x"_qs});
        QCOMPARE(encodeCommand({u"-m"_qs, u"--"_qs, u"-x.jpg"_qs}, 7).value_or(QByteArray()),
                 QByteArray("-echo4\n{tagsmith-status 7 ${status}}\n"
                            "#[CSTR]-m\n#[CSTR]./-x.jpg\n-execute7\n"));
        QVERIFY(!encodeCommand({u"-ver"_qs, u"-Comment= $5"_qs}, 1));
    }

    void splitStatus_data()
    {
        QTest::addColumn<QByteArray>("standardError");
        QTest::addColumn<QByteArray>("errors");
        QTest::addColumn<int>("status"); // -1: not complete yet
        auto row = [](const char *name, const char *standardError, const char *errors, int status) {
            QTest::newRow(name) << QByteArray(standardError) << QByteArray(errors) << status;
        };
        row("alone", "{tagsmith-status 3 0}\n", "", 0);
        row("after errors", "Error: File not found - x\nWarning: y\n{tagsmith-status 3 1}\n",
            "Error: File not found - x\nWarning: y\n", 1);
        row("half a line", "Error: a\n{tagsmith-status 3 ", "", -1);
        row("other command", "{tagsmith-status 2 0}\n{tagsmith-status 31 0}\n", "", -1);
        row("inside a message", "Warning: {tagsmith-status 3 0}\n", "", -1);
        row("errors after", "{tagsmith-status 3 0}\nError: z\n", "", -1);
        row("not a number", "{tagsmith-status 3 ${status}}\n", "", -1);
    }
    void splitStatus()
    {
        QFETCH(QByteArray, standardError);
        const std::optional<StatusLine> line = ExifToolProtocol::splitStatus(standardError, 3);
        QTEST(line ? line->status : -1, "status");
        QTEST(line ? line->errors : QByteArray(), "errors");
    }

    void outputBeforeReady_data()
    {
        QTest::addColumn<QByteArray>("standardOutput");
        QTest::addColumn<QByteArray>("output"); // null: not complete yet
        QTest::newRow("text") << QByteArray("13.59\n{ready4}\n") << QByteArray("13.59\n");
        QTest::newRow("binary") << QByteArray("\xff\xd8\xff{ready4}\n")
                                << QByteArray("\xff\xd8\xff");
        QTest::newRow("half marker") << QByteArray("x\n{rea") << QByteArray();
        QTest::newRow("longer number") << QByteArray("{ready41}\n") << QByteArray();
    }
    void outputBeforeReady()
    {
        QFETCH(QByteArray, standardOutput);
        QFETCH(QByteArray, output);
        const auto result = ExifToolProtocol::outputBeforeReady(standardOutput, 4);
        QCOMPARE(result.has_value(), !output.isNull());
        QCOMPARE(result.value_or(QByteArray()), output);
    }
};

QTEST_GUILESS_MAIN(TestExifToolProtocol)
#include "tst_exiftoolprotocol.moc"
