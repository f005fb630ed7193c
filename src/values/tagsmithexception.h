#pragma once

#include <QString>

#include <exception>

// Thrown only for misuse of an object (calls out of order, abstract operations, impossible
// states); failures of work are returned as values instead.
class TagsmithException : public std::exception
{
public:
    TagsmithException(QString name, QString reason);

    const QString &name() const { return m_name; }
    const QString &reason() const { return m_reason; }
    const char *what() const noexcept override { return m_what.constData(); }

    static inline const QString LogicError = QStringLiteral("LogicError");
    static inline const QString IllegalArgument = QStringLiteral("IllegalArgument");
    static inline const QString NotImplemented = QStringLiteral("NotImplemented");
    static inline const QString Unimplemented = QStringLiteral("Unimplemented");
    static inline const QString Invalid = QStringLiteral("Invalid");

private:
    QString m_name;
    QString m_reason;
    QByteArray m_what;
};
