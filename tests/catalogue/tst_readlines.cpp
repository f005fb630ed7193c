#include "catalogue/readlines.h"

#include <QTest>

class TestReadLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splitsAtEveryTerminator_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");
        const auto list = [](std::initializer_list<const char16_t *> items) {
            QStringList result;
            for (const char16_t *item : items)
                result << QString::fromUtf16(item);
            return result;
        };
        QTest::newRow("empty") << QByteArray() << QStringList();
        QTest::newRow("no terminator") << QByteArray("one") << list({u"one"});
        QTest::newRow("final newline adds no line") << QByteArray("a\nb\n") << list({u"a", u"b"});
        QTest::newRow("crlf is one terminator") << QByteArray("a\r\nb") << list({u"a", u"b"});
        QTest::newRow("lone cr") << QByteArray("a\rb\r") << list({u"a", u"b"});
        QTest::newRow("lf cr is two") << QByteArray("a\n\rb") << list({u"a", u"", u"b"});
        QTest::newRow("blank lines kept") << QByteArray("\n\nx") << list({u"", u"", u"x"});
        QTest::newRow("unicode separators") << QByteArray("a\xe2\x80\xa8"
                                                          "b\xe2\x80\xa9"
                                                          "c\xc2\x85"
                                                          "d")
                                            << list({u"a", u"b", u"c", u"d"});
        QTest::newRow("utf-8 text and blanks kept") << QByteArray("  Caf\xc3\xa9 \t\r\nWarning: x")
                                                    << list({u"  Caf\u00e9 \t", u"Warning: x"});
    }

    void splitsAtEveryTerminator()
    {
        QFETCH(QByteArray, bytes);
        QTEST(readLines(bytes), "lines");
    }
};

QTEST_GUILESS_MAIN(TestReadLines)
#include "tst_readlines.moc"
