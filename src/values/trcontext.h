#pragma once

#include <QCoreApplication>
#include <QString>

// The translated form of a source text under one string-table context, for code outside a
// QObject. A file declares `constexpr TrContext tr{"ClassName"};` and writes tr("…") as a
// QObject would; the context is the class name the translations were made under.
class TrContext
{
public:
    explicit constexpr TrContext(const char *context)
        : m_context(context)
    {
    }

    QString operator()(const char *text) const
    {
        return QCoreApplication::translate(m_context, text);
    }

private:
    const char *m_context;
};
