#include "catalogue/exiffield.h"
#include "values/numberformatter.h"

#include <QTest>

#include <limits>

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
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<double>("value");

        const auto row = [](const char *name, const QLocale &locale, FieldDataType type,
                            const char16_t *text, bool accepted, double value = 0) {
            QTest::newRow(name) << locale << type << QString::fromUtf16(text) << accepted << value;
        };
        using T = FieldDataType;
        row("uint8 max", enUS, T::UInt8, u"255", true, 255);
        row("uint8 above max", enUS, T::UInt8, u"256", false);
        row("uint8 negative", enUS, T::UInt8, u"-1", false);
        row("uint8 fraction", enUS, T::UInt8, u"12.5", false);
        row("uint8 whole fraction", enUS, T::UInt8, u"12.0", false);
        row("uint16 exponent", enUS, T::UInt16, u"1e3", false);
        row("int8 min", deDE, T::Int8, u"-128", true, -128);
        row("int8 below min", deDE, T::Int8, u"-129", false);
        row("int16 bounds", enUS, T::Int16, u"-32,768", true, -32768);
        row("uint16 above", enUS, T::UInt16, u"65536", false);
        row("int32 min", enUS, T::Int32, u"-2147483648", true, -2147483648.0);
        row("int32 above", enUS, T::Int32, u"2147483648", false);
        row("uint32 max grouped de", deDE, T::UInt32, u"4.294.967.295", true, 4294967295.0);
        row("uint32 above", deDE, T::UInt32, u"4294967296", false);
        row("double zero refused", enUS, T::Double, u"0", false);
        row("double negative refused", enUS, T::Double, u"-1.5", false);
        row("double small positive", enUS, T::Double, u"0.001", true, 0.001);
        row("double de decimal comma", deDE, T::Double, u"0,001", true, 0.001);
        row("udouble zero", enUS, T::UDouble, u"0", true, 0);
        row("udouble negative", enUS, T::UDouble, u"-0.5", false);
        row("float above single max", enUS, T::Float, u"3.5e38", false);
        row("float zero refused", deDE, T::Float, u"0", false);
        row("en grouping", enUS, T::UDouble, u"1,234.5", true, 1234.5);
        row("de grouping", deDE, T::UDouble, u"1.234,5", true, 1234.5);
        row("de misplaced group is not a decimal point", deDE, T::UDouble, u"1.5", false);
        row("en comma misplaced", enUS, T::UDouble, u"1,5", false);
        row("lenient blanks", enUS, T::UInt16, u"  42 ", true, 42);
        row("lenient plus", enUS, T::Int16, u"+7", true, 7);
        row("string type unbounded", enUS, T::String, u"-99999999999", true, -99999999999.0);
        row("unknown type no fractions", enUS, T::Unknown, u"0.5", false);
        row("empty", enUS, T::UInt8, u"", false);
        row("letters", enUS, T::UInt8, u"12a", false);
        row("infinity", enUS, T::String, u"inf", false);
        row("not a number", enUS, T::String, u"nan", false);
    }

    void parsesWithinFieldBounds()
    {
        QFETCH(QLocale, locale);
        QFETCH(FieldDataType, type);
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        QFETCH(double, value);
        const auto number = formatterFor(type, -1, locale)->numberFromString(text);
        QCOMPARE(number.has_value(), accepted);
        if (accepted)
            QCOMPARE(*number, value);
    }

    void printsWithFieldDigits_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<qint64>("decimals");
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        using T = FieldDataType;
        QTest::newRow("float two digits")
            << enUS << T::Float << qint64(2) << 1.2345 << QStringLiteral("1.23");
        QTest::newRow("no trailing zeros")
            << enUS << T::Float << qint64(2) << 1.5 << QStringLiteral("1.5");
        QTest::newRow("1.005 at two digits")
            << enUS << T::Float << qint64(2) << 1.005 << QStringLiteral("1");
        QTest::newRow("default three digits")
            << enUS << T::Double << qint64(-1) << 3.14159 << QStringLiteral("3.142");
        QTest::newRow("zero decimals rounds")
            << enUS << T::UDouble << qint64(0) << 2.6 << QStringLiteral("3");
        QTest::newRow("negative decimals show none")
            << enUS << T::UDouble << qint64(-4) << 2.4 << QStringLiteral("2");
        QTest::newRow("en grouping")
            << enUS << T::UDouble << qint64(1) << 1234.56 << QStringLiteral("1,234.6");
        QTest::newRow("de grouping")
            << deDE << T::UDouble << qint64(1) << 1234.56 << QStringLiteral("1.234,6");
        QTest::newRow("integer type drops fraction")
            << deDE << T::UInt32 << qint64(3) << 7.4 << QStringLiteral("7");
        QTest::newRow("uint32 max")
            << enUS << T::UInt32 << qint64(-1) << 4294967295.0 << QStringLiteral("4,294,967,295");
        QTest::newRow("no negative zero")
            << enUS << T::Int16 << qint64(-1) << -0.2 << QStringLiteral("0");
    }

    void printsWithFieldDigits()
    {
        QFETCH(QLocale, locale);
        QFETCH(FieldDataType, type);
        QFETCH(qint64, decimals);
        QFETCH(double, number);
        QTEST(formatterFor(type, decimals, locale)->stringFromNumber(number), "text");
    }

    void realTypesKeepPositiveNormalMinima()
    {
        const auto floatFormatter = formatterFor(FieldDataType::Float, -1, enUS);
        QCOMPARE(*floatFormatter->minimum(), double(std::numeric_limits<float>::min()));
        QCOMPARE(*floatFormatter->maximum(), double(std::numeric_limits<float>::max()));
        QVERIFY(floatFormatter->allowsFloats());
        QCOMPARE(floatFormatter->maximumFractionDigits(), 3);
        const auto doubleFormatter = formatterFor(FieldDataType::Double, 4, enUS);
        QCOMPARE(*doubleFormatter->minimum(), std::numeric_limits<double>::min());
        QCOMPARE(doubleFormatter->maximumFractionDigits(), 4);
        QVERIFY(doubleFormatter->isLenient());
        QVERIFY(!formatterFor(FieldDataType::Binary, -1, enUS)->minimum());
        QVERIFY(!formatterFor(FieldDataType::RdfBag, -1, enUS)->maximum());
    }

    void printedNumbersParseBack_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("en_US") << enUS;
        QTest::newRow("de_DE") << deDE;
    }

    void printedNumbersParseBack()
    {
        QFETCH(QLocale, locale);
        const auto formatter = formatterFor(FieldDataType::UDouble, 2, locale);
        for (double number : {0.0, 0.5, 12.25, 1234.5, 1234567.75}) {
            const QString text = formatter->stringFromNumber(number);
            QCOMPARE(formatter->numberFromString(text), std::optional<double>(number));
        }
    }

    void plainFormatterOptions()
    {
        NumberFormatter formatter(enUS);
        QCOMPARE(formatter.numberFromString(QStringLiteral("1234.5")), 1234.5);
        QVERIFY(!formatter.numberFromString(QStringLiteral("1,234.5")));
        QVERIFY(!formatter.numberFromString(QStringLiteral(" 1")));
        formatter.setLenient(true);
        QCOMPARE(formatter.numberFromString(QStringLiteral("1,234.5")), 1234.5);
        formatter.setAlwaysShowsDecimalSeparator(true);
        QCOMPARE(formatter.stringFromNumber(3), QStringLiteral("3."));
        formatter.setLocale(deDE);
        QCOMPARE(formatter.stringFromNumber(3.25), QStringLiteral("3,25"));
        QCOMPARE(formatter.stringFromNumber(3), QStringLiteral("3,"));
    }
};

QTEST_GUILESS_MAIN(TestNumberFormatter)
#include "tst_numberformatter.moc"
