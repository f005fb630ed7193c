#pragma once

#include <QLocale>
#include <QString>

#include <optional>

// Parses and prints numbers the way the catalogue configures them for a field: locale, fraction
// digits, whether fractions are allowed, and inclusive bounds.
class NumberFormatter
{
public:
    explicit NumberFormatter(QLocale locale = QLocale::system());

    const QLocale &locale() const { return m_locale; }
    void setLocale(const QLocale &locale) { m_locale = locale; }
    bool isLenient() const { return m_lenient; }
    void setLenient(bool lenient) { m_lenient = lenient; }
    int minimumFractionDigits() const { return m_minimumFractionDigits; }
    void setMinimumFractionDigits(int digits) { m_minimumFractionDigits = digits; }
    // 3 unless set, as a decimal-style formatter has by default.
    int maximumFractionDigits() const { return m_maximumFractionDigits; }
    void setMaximumFractionDigits(int digits) { m_maximumFractionDigits = digits; }
    bool generatesDecimalNumbers() const { return m_generatesDecimalNumbers; }
    void setGeneratesDecimalNumbers(bool on) { m_generatesDecimalNumbers = on; }
    bool allowsFloats() const { return m_allowsFloats; }
    void setAllowsFloats(bool on) { m_allowsFloats = on; }
    bool localizesFormat() const { return m_localizesFormat; }
    void setLocalizesFormat(bool on) { m_localizesFormat = on; }
    // Prints the decimal mark even when no fraction digit follows it ("3." in en_US).
    bool alwaysShowsDecimalSeparator() const { return m_alwaysShowsDecimalSeparator; }
    void setAlwaysShowsDecimalSeparator(bool on) { m_alwaysShowsDecimalSeparator = on; }
    const std::optional<double> &minimum() const { return m_minimum; }
    void setMinimum(std::optional<double> minimum) { m_minimum = minimum; }
    const std::optional<double> &maximum() const { return m_maximum; }
    void setMaximum(std::optional<double> maximum) { m_maximum = maximum; }

    // nullopt when the text is not a number, has a fraction where none is allowed, or is out
    // of bounds.
    std::optional<double> numberFromString(const QString &text) const;
    QString stringFromNumber(double number) const;

    enum class Input { Acceptable, Intermediate, Invalid };
    // How a text being typed stands: empty (which removes the value) or a number is acceptable;
    // text made only of digits, blanks, signs, separators and exponents may still become one;
    // anything else is refused.
    Input classifyInput(const QString &text) const;

private:
    QLocale m_locale;
    bool m_lenient = false;
    int m_minimumFractionDigits = 0;
    int m_maximumFractionDigits = 3;
    bool m_generatesDecimalNumbers = false;
    bool m_allowsFloats = true;
    bool m_localizesFormat = true;
    bool m_alwaysShowsDecimalSeparator = false;
    std::optional<double> m_minimum;
    std::optional<double> m_maximum;
};
