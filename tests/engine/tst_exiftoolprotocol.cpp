#include "engine/exiftoolprotocol.h"

#include <QTest>

using namespace ExifToolProtocol;

class TestExifToolProtocol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodeArgument_data();
    void encodeArgument();
    void withoutEndOfOptions_data();
    void withoutEndOfOptions();
    void commandAsksStatusFirstAndEndsWithItsNumber();
    void commandIsRefusedWhenOneArgumentCannotBeCarried();
    void splitStatus_data();
    void splitStatus();
    void outputBeforeReady_data();
    void outputBeforeReady();
};

void TestExifToolProtocol::encodeArgument_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<bool>("isCarried");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("option") << u"-ver"_qs << true << QByteArray("#[CSTR]-ver");
    QTest::newRow("line breaks") << u"a\nb\r\nc"_qs << true << QByteArray("#[CSTR]a\\nb\\r\\nc");
    QTest::newRow("blank edges") << u"  x  "_qs << true << QByteArray("#[CSTR]  x  ");
    QTest::newRow("backslashes") << u"\\n \\"_qs << true << QByteArray("#[CSTR]\\\\n \\\\");
    QTest::newRow("comment look") << u"#x"_qs << true << QByteArray("#[CSTR]#x");
    QTest::newRow("empty") << QString() << true << QByteArray("#[CSTR]");
    QTest::newRow("unicode") << u"-Artist=Zoë 東京"_qs << true
                             << QByteArray("#[CSTR]-Artist=Zo\xc3\xab \xe6\x9d\xb1\xe4\xba\xac");
    QTest::newRow("dollar and at, plain")
        << u"-Copyright=$5 a@b.c "_qs << true << QByteArray("-Copyright=$5 a@b.c ");
    QTest::newRow("dollar after blank after equals") << u"-Comment= $5"_qs << false << QByteArray();
    QTest::newRow("dollar with blank before equals") << u"-Comment =$5"_qs << false << QByteArray();
    QTest::newRow("dollar with leading blank") << u" $5"_qs << false << QByteArray();
    QTest::newRow("dollar with line break") << u"$5\nx"_qs << false << QByteArray();
    QTest::newRow("numbered execute") << u"-EXECUTE12"_qs << false << QByteArray();
    QTest::newRow("stay_open") << u"-stay_open"_qs << false << QByteArray();
    QTest::newRow("nul") << QString(u"a" + QChar(0) + u"b") << false << QByteArray();
}

void TestExifToolProtocol::encodeArgument()
{
    QFETCH(QString, argument);
    QFETCH(bool, isCarried);
    QFETCH(QByteArray, line);

    const std::optional<QByteArray> encoded = ExifToolProtocol::encodeArgument(argument);
    QCOMPARE(encoded.has_value(), isCarried);
    if (encoded)
        QCOMPARE(*encoded, line);
}

void TestExifToolProtocol::withoutEndOfOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << QStringList{u"-ver"_qs, u"-a.jpg"_qs}
                          << QStringList{u"-ver"_qs, u"-a.jpg"_qs};
    QTest::newRow("dashed file names")
        << QStringList{u"-m"_qs, u"--"_qs, u"-a.jpg"_qs, u"/b/-c.jpg"_qs, u"--"_qs}
        << QStringList{u"-m"_qs, u"./-a.jpg"_qs, u"/b/-c.jpg"_qs, u"./--"_qs};
    QTest::newRow("unicode minus")
        << QStringList{QString(2, QChar(0x2212)), u"\u2212x"_qs} << QStringList{u"./\u2212x"_qs};
}

void TestExifToolProtocol::withoutEndOfOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, expected);

    QCOMPARE(ExifToolProtocol::withoutEndOfOptions(arguments), expected);
}

void TestExifToolProtocol::commandAsksStatusFirstAndEndsWithItsNumber()
{
    const std::optional<QByteArray> command = encodeCommand({u"-m"_qs, u"--"_qs, u"-x.jpg"_qs}, 7);
    QVERIFY(command);
    QCOMPARE(*command, QByteArray("-echo4\n{tagsmith-status 7 ${status}}\n"
                                  "#[CSTR]-m\n#[CSTR]./-x.jpg\n-execute7\n"));
}

void TestExifToolProtocol::commandIsRefusedWhenOneArgumentCannotBeCarried()
{
    QVERIFY(!encodeCommand({u"-ver"_qs, u"-Comment= $5"_qs}, 1));
}

void TestExifToolProtocol::splitStatus_data()
{
    QTest::addColumn<QByteArray>("standardError");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("isComplete");
    QTest::addColumn<QByteArray>("errors");
    QTest::addColumn<int>("status");

    QTest::newRow("alone") << QByteArray("{tagsmith-status 3 0}\n") << 3 << true << QByteArray()
                           << 0;
    QTest::newRow("after errors")
        << QByteArray("Error: File not found - x\nWarning: y\n{tagsmith-status 12 1}\n") << 12
        << true << QByteArray("Error: File not found - x\nWarning: y\n") << 1;
    QTest::newRow("half a line") << QByteArray("Error: a\n{tagsmith-status 3 ") << 3 << false
                                 << QByteArray() << -1;
    QTest::newRow("other command")
        << QByteArray("{tagsmith-status 2 0}\n") << 3 << false << QByteArray() << -1;
    QTest::newRow("marker inside a message")
        << QByteArray("Warning: {tagsmith-status 3 0}\n") << 3 << false << QByteArray() << -1;
    QTest::newRow("errors after marker")
        << QByteArray("{tagsmith-status 3 0}\nError: z\n") << 3 << false << QByteArray() << -1;
    QTest::newRow("not a number") << QByteArray("{tagsmith-status 3 ${status}}\n") << 3 << false
                                  << QByteArray() << -1;
}

void TestExifToolProtocol::splitStatus()
{
    QFETCH(QByteArray, standardError);
    QFETCH(int, number);
    QFETCH(bool, isComplete);
    QFETCH(QByteArray, errors);
    QFETCH(int, status);

    const std::optional<StatusLine> line = ExifToolProtocol::splitStatus(standardError, number);
    QCOMPARE(line.has_value(), isComplete);
    if (line) {
        QCOMPARE(line->errors, errors);
        QCOMPARE(line->status, status);
    }
}

void TestExifToolProtocol::outputBeforeReady_data()
{
    QTest::addColumn<QByteArray>("standardOutput");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("isComplete");
    QTest::addColumn<QByteArray>("output");

    QTest::newRow("text") << QByteArray("13.59\n{ready4}\n") << 4 << true << QByteArray("13.59\n");
    QTest::newRow("binary without line break")
        << QByteArray("\xff\xd8\xff{ready4}\n") << 4 << true << QByteArray("\xff\xd8\xff");
    QTest::newRow("nothing") << QByteArray("{ready4}\n") << 4 << true << QByteArray();
    QTest::newRow("half marker") << QByteArray("x\n{rea") << 4 << false << QByteArray();
    QTest::newRow("longer number") << QByteArray("{ready41}\n") << 4 << false << QByteArray();
}

void TestExifToolProtocol::outputBeforeReady()
{
    QFETCH(QByteArray, standardOutput);
    QFETCH(int, number);
    QFETCH(bool, isComplete);
    QFETCH(QByteArray, output);

    const std::optional<QByteArray> result =
        ExifToolProtocol::outputBeforeReady(standardOutput, number);
    QCOMPARE(result.has_value(), isComplete);
    if (result)
        QCOMPARE(*result, output);
}

QTEST_GUILESS_MAIN(TestExifToolProtocol)
#include "tst_exiftoolprotocol.moc"
