#include "values/fractionvalue.h"

#include <QTest>

class TestFractionValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displayText_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const char *value, const char *shown) {
            QTest::newRow(name) << QString::fromLatin1(value) << QString::fromLatin1(shown);
        };
        row("exposure", "0.004", "1/250");
        row("rounds to nearest", "0.0066666", "1/150");
        row("one half", "0.5", "1/2");
        row("one stays", "1", "1");
        row("long exposure as it is", "2.5", "2.5");
        row("text after the number kept", "30 s", "30 s");
        row("empty", "", "");
        // Every value below one takes the reciprocal path, without a special case.
        row("zero", "0", "1/inf");
        row("negative", "-0.5", "1/-2");
        row("no number reads as zero", "abc", "1/inf");
    }
    void displayText()
    {
        QFETCH(QString, value);
        QTEST(FractionValue::displayText(value), "shown");
    }

    void storedText_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored"); // "<none>": nothing is stored
        const auto row = [](const char *name, const char *typed, const char *stored) {
            QTest::newRow(name) << QString::fromUtf8(typed) << QString::fromLatin1(stored);
        };
        row("fraction divided", "1/250", "0.004000");
        row("six decimals rounded", "1/3", "0.333333");
        row("decimal pieces", "2.5/10", "0.250000");
        row("blanks around pieces", " 1 / 4 ", "0.250000");
        row("negative numerator", "-1/4", "-0.250000");
        row("negative denominator", "1/-8", "-0.125000");
        row("no slash as typed", "2.5", "2.5");
        row("no slash text kept", "bulb", "bulb");
        row("zero numerator", "0/5", "0.000000");
        row("text numerator reads as zero", "x/5", "0.000000");
        row("zero denominator", "1/0", "<none>");
        row("no denominator", "1/", "<none>");
        row("zero over zero", "0/0", "<none>");
        row("two slashes", "1/2/3", "<none>");
        row("lone slash", "/", "<none>");
    }
    void storedText()
    {
        QFETCH(QString, typed);
        const auto stored = FractionValue::storedText(typed);
        QTEST(stored.value_or(u"<none>"_qs), "stored");
    }
};

QTEST_GUILESS_MAIN(TestFractionValue)
#include "tst_fractionvalue.moc"
