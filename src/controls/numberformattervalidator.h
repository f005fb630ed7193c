#pragma once

#include <QValidator>

#include <memory>

class NumberFormatter;

// Lets a text field hold only what a field's number formatter accepts; an empty text is allowed
// (it removes the value). Text on its way to a number is intermediate, so typing is not blocked.
class NumberFormatterValidator : public QValidator
{
    Q_OBJECT

public:
    NumberFormatterValidator(std::shared_ptr<const NumberFormatter> formatter,
                             QObject *parent = nullptr);

    State validate(QString &input, int &pos) const override;

private:
    std::shared_ptr<const NumberFormatter> m_formatter;
};
