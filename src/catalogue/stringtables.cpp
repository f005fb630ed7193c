#include "catalogue/stringtables.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

StringTables &StringTables::instance()
{
    static StringTables tables;
    return tables;
}

StringTables::StringTables()
{
    load(QLocale());
}

StringTables::StringTables(QList<std::shared_ptr<QTranslator>> translators)
    : m_translators(std::move(translators))
{
}

StringTables::StringTables(const QString &directory, const QLocale &locale)
{
    loadDirectory(directory, locale);
}

StringTables::~StringTables() = default;

void StringTables::load(const QLocale &locale)
{
    loadDirectory(QStringLiteral(":/i18n"), locale);
}

void StringTables::loadDirectory(const QString &directory, const QLocale &locale)
{
    static const QRegularExpression languageSuffix(
        QStringLiteral("^(.+?)_[a-z]{2,3}(?:_[A-Za-z0-9]+)*$"));
    QSet<QString> baseNames;
    const QStringList files =
        QDir(directory).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const auto match = languageSuffix.match(QFileInfo(file).completeBaseName());
        if (match.hasMatch())
            baseNames.insert(match.captured(1));
    }
    QStringList sortedNames(baseNames.begin(), baseNames.end());
    sortedNames.sort();

    QList<std::shared_ptr<QTranslator>> localised;
    QList<std::shared_ptr<QTranslator>> english;
    for (const QString &name : sortedNames) {
        auto translator = std::make_shared<QTranslator>();
        const bool found =
            translator->load(locale, name, QStringLiteral("_"), directory, QStringLiteral(".qm"));
        if (found)
            localised.append(translator);
        auto fallback = std::make_shared<QTranslator>();
        if (fallback->load(name + QStringLiteral("_en"), directory) &&
            (!found || fallback->filePath() != translator->filePath())) {
            english.append(fallback);
        }
    }
    m_translators = localised + english;
}

std::optional<QString> StringTables::lookup(const QString &table, const QString &key) const
{
    const QByteArray context = table.toUtf8();
    const QByteArray source = key.toUtf8();
    for (const auto &translator : m_translators) {
        // QTranslator answers null for a missing entry and a non-null empty text for an
        // entry whose translation is empty.
        QString text = translator->translate(context.constData(), source.constData());
        if (!text.isNull())
            return text;
    }
    return std::nullopt;
}

QString StringTables::localizedString(const QString &key, const QString &table,
                                      const QString &defaultValue) const
{
    if (auto text = lookup(table, key))
        return *text;
    return defaultValue.isNull() ? key : defaultValue;
}
