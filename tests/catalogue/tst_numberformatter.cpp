#include "catalogue/exiffield.h"
#include "values/numberformatter.h"

#include <QTest>

using namespace Qt::StringLiterals;
using T = FieldDataType;
Q_DECLARE_METATYPE(FieldDataType)

namespace {

std::unique_ptr<NumberFormatter> formatterFor(FieldDataType type, qint64 decimals,
                                              const QString &locale)
{
    ExifField field;
    field.setDataType(type);
    field.setDecimals(decimals);
    auto formatter = field.createFormatter();
    formatter->setLocale(QLocale(locale));
    return formatter;
}

} // namespace

class TestNumberFormatter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parsesWithinFieldBounds_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<double>>("expected");
        const auto row = [](const char *name, const char *locale, FieldDataType type,
                            const char *text, std::optional<double> expected) {
            QTest::newRow(name) << QString::fromLatin1(locale) << type << QString::fromUtf8(text)
                                << expected;
        };
        const std::nullopt_t no = std::nullopt;
        row("uint8 max", "en_US", T::UInt8, "255", 255);
        row("uint8 above max", "en_US", T::UInt8, "256", no);
        row("integer fraction", "en_US", T::UInt8, "12.5", no);
        row("int32 min grouped", "en_US", T::Int32, "-2,147,483,648", -2147483648.0);
        row("uint32 max grouped de", "de_DE", T::UInt32, "4.294.967.295", 4294967295.0);
        row("double negative", "en_US", T::Double, "-1.5", no);
        row("de decimal comma", "de_DE", T::Double, "0,001", 0.001);
        row("udouble zero", "en_US", T::UDouble, "0", 0.0);
        row("float above max", "en_US", T::Float, "3.5e38", no);
        row("de grouping", "de_DE", T::UDouble, "1.234,5", 1234.5);
        row("blanks and plus", "en_US", T::Int16, " +42 ", 42);
        row("trailing letters", "en_US", T::UInt8, "12a", no);
    }

    void parsesWithinFieldBounds()
    {
        QFETCH(QString, locale);
        QFETCH(FieldDataType, type);
        QFETCH(QString, text);
        QTEST(formatterFor(type, -1, locale)->numberFromString(text), "expected");
    }

    void printsWithFieldDigits_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<qint64>("decimals");
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *locale, FieldDataType type,
                            qint64 decimals, double number, const char *text) {
            QTest::newRow(name) << QString::fromLatin1(locale) << type << decimals << number
                                << QString::fromUtf8(text);
        };
        row("two digits", "en_US", T::Float, 2, 1.2345, "1.23");
        row("1.005 at two", "en_US", T::Float, 2, 1.005, "1");
        row("default three", "en_US", T::Double, -1, 3.14159, "3.142");
        row("de grouping", "de_DE", T::UDouble, 1, 1234.56, "1.234,6");
        row("integer ignores decimals", "de_DE", T::UInt32, 3, 7.4, "7");
        row("no negative zero", "en_US", T::Int16, -1, -0.2, "0");
    }

    void printsWithFieldDigits()
    {
        QFETCH(QString, locale);
        QFETCH(FieldDataType, type);
        QFETCH(qint64, decimals);
        QFETCH(double, number);
        QTEST(formatterFor(type, decimals, locale)->stringFromNumber(number), "text");
    }

    // While a number is typed into a row, text on its way to a number must not be blocked and
    // anything else must not get in.
    void classifiesTypedInput_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<FieldDataType>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<NumberFormatter::Input>("input");
        using I = NumberFormatter::Input;
        const auto row = [](const char *name, const char *locale, FieldDataType type,
                            const char *text, I input) {
            QTest::newRow(name) << QString::fromLatin1(locale) << type << QString::fromUtf8(text)
                                << input;
        };
        row("empty removes the value", "en_US", T::UInt8, "", I::Acceptable);
        row("blanks only", "en_US", T::UInt8, "  ", I::Acceptable);
        row("number", "en_US", T::UInt8, "42", I::Acceptable);
        row("lone minus on the way", "en_US", T::Int16, "-", I::Intermediate);
        row("out of bounds may still be edited", "en_US", T::UInt8, "300", I::Intermediate);
        row("fraction in an integer field", "en_US", T::UInt8, "1.5", I::Intermediate);
        row("exponent started", "en_US", T::Double, "1e", I::Intermediate);
        row("German comma", "de_DE", T::UDouble, "3,5", I::Acceptable);
        row("point in a German field", "de_DE", T::UDouble, "3.", I::Intermediate);
        row("letter", "en_US", T::UDouble, "3x", I::Invalid);
        row("slash", "en_US", T::UDouble, "1/2", I::Invalid);
        row("other script digits", "en_US", T::UInt8, "\u0664\u0662", I::Intermediate);
    }

    void classifiesTypedInput()
    {
        QFETCH(QString, locale);
        QFETCH(FieldDataType, type);
        QFETCH(QString, text);
        QTEST(formatterFor(type, -1, locale)->classifyInput(text), "input");
    }

    void plainFormatterIsStrict()
    {
        NumberFormatter formatter(QLocale(u"en_US"_s));
        QCOMPARE(formatter.numberFromString(u"1234.5"_s), 1234.5);
        QVERIFY(!formatter.numberFromString(u"1,234.5"_s));
        QVERIFY(!formatter.numberFromString(u" 1"_s));
        formatter.setAlwaysShowsDecimalSeparator(true);
        QCOMPARE(formatter.stringFromNumber(3), u"3."_s);
        formatter.setLocale(QLocale(u"de_DE"_s));
        QCOMPARE(formatter.stringFromNumber(3.25), u"3,25"_s);
    }
};

QTEST_GUILESS_MAIN(TestNumberFormatter)
#include "tst_numberformatter.moc"
