#include "catalogue/exiffield.h"
#include "values/numberformatter.h"

#include <QTest>

Q_DECLARE_METATYPE(FieldDataType)

namespace {

const QLocale enUS(QLocale::English, QLocale::UnitedStates);
const QLocale deDE(QLocale::German, QLocale::Germany);

std::unique_ptr<NumberFormatter> formatterFor(FieldDataType type, qint64 decimals,
                                              const QLocale &locale)
{
    ExifField field;
    field.setDataType(type);
    field.setDecimals(decimals);
    auto formatter = field.createFormatter();
    formatter->setLocale(locale);
    return formatter;
}

} // namespace

class TestNumberFormatter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parsesWithinFieldBounds_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<double>>("expected");
        const auto row = [](const char *name, const QLocale &locale, FieldDataType type,
                            const char16_t *text, std::optional<double> expected) {
            QTest::newRow(name) << locale << type << QString::fromUtf16(text) << expected;
        };
        using T = FieldDataType;
        const std::nullopt_t no = std::nullopt;
        row("uint8 max", enUS, T::UInt8, u"255", 255);
        row("uint8 above max", enUS, T::UInt8, u"256", no);
        row("integer refuses fraction", enUS, T::UInt8, u"12.5", no);
        row("integer refuses decimal mark", deDE, T::UInt8, u"12,0", no);
        row("int8 below min", deDE, T::Int8, u"-129", no);
        row("int32 min grouped", enUS, T::Int32, u"-2,147,483,648", -2147483648.0);
        row("uint32 max grouped de", deDE, T::UInt32, u"4.294.967.295", 4294967295.0);
        row("double zero refused", enUS, T::Double, u"0", no);
        row("double negative refused", enUS, T::Double, u"-1.5", no);
        row("de decimal comma", deDE, T::Double, u"0,001", 0.001);
        row("udouble zero", enUS, T::UDouble, u"0", 0.0);
        row("float above single max", enUS, T::Float, u"3.5e38", no);
        row("de grouping", deDE, T::UDouble, u"1.234,5", 1234.5);
        row("de dot is no decimal mark", deDE, T::UDouble, u"1.5", no);
        row("lenient blanks and plus", enUS, T::Int16, u" +42 ", 42);
        row("trailing letters", enUS, T::UInt8, u"12a", no);
    }

    void parsesWithinFieldBounds()
    {
        QFETCH(QLocale, locale);
        QFETCH(FieldDataType, type);
        QFETCH(QString, text);
        QTEST(formatterFor(type, -1, locale)->numberFromString(text), "expected");
    }

    void printsWithFieldDigits_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<qint64>("decimals");
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QLocale &locale, FieldDataType type,
                            qint64 decimals, double number, const char *text) {
            QTest::newRow(name) << locale << type << decimals << number << QString::fromUtf8(text);
        };
        using T = FieldDataType;
        row("two digits", enUS, T::Float, 2, 1.2345, "1.23");
        row("1.005 at two digits", enUS, T::Float, 2, 1.005, "1");
        row("default three digits", enUS, T::Double, -1, 3.14159, "3.142");
        row("other negative decimals show none", enUS, T::UDouble, -4, 2.4, "2");
        row("de grouping", deDE, T::UDouble, 1, 1234.56, "1.234,6");
        row("integer type ignores decimals", deDE, T::UInt32, 3, 7.4, "7");
        row("no negative zero", enUS, T::Int16, -1, -0.2, "0");
    }

    void printsWithFieldDigits()
    {
        QFETCH(QLocale, locale);
        QFETCH(FieldDataType, type);
        QFETCH(qint64, decimals);
        QFETCH(double, number);
        QTEST(formatterFor(type, decimals, locale)->stringFromNumber(number), "text");
    }

    void printedNumbersParseBack()
    {
        for (const QLocale &locale : {enUS, deDE}) {
            const auto formatter = formatterFor(FieldDataType::UDouble, 2, locale);
            for (double number : {0.0, 0.5, 12.25, 1234.5, 1234567.75})
                QCOMPARE(formatter->numberFromString(formatter->stringFromNumber(number)), number);
        }
    }

    void plainFormatterOptions()
    {
        NumberFormatter formatter(enUS);
        QCOMPARE(formatter.numberFromString(QStringLiteral("1234.5")), 1234.5);
        QVERIFY(!formatter.numberFromString(QStringLiteral("1,234.5")));
        QVERIFY(!formatter.numberFromString(QStringLiteral(" 1")));
        formatter.setAlwaysShowsDecimalSeparator(true);
        QCOMPARE(formatter.stringFromNumber(3), QStringLiteral("3."));
        formatter.setLocale(deDE);
        QCOMPARE(formatter.stringFromNumber(3.25), QStringLiteral("3,25"));
    }
};

QTEST_GUILESS_MAIN(TestNumberFormatter)
#include "tst_numberformatter.moc"
