#pragma once

#include <QList>
#include <QLocale>
#include <QString>

#include <memory>
#include <optional>

class QTranslator;

// The localisation string tables: a table is a .ts context, a key its source text. Files are
// compiled into the resources as :/i18n/<name>_<language>.qm.
class StringTables
{
public:
    static StringTables &instance();

    // Looked up in list order: the first translator that knows the key wins.
    explicit StringTables(QList<std::shared_ptr<QTranslator>> translators);
    // The .qm files of a directory for a locale, each falling back to its _en file.
    StringTables(const QString &directory, const QLocale &locale);
    ~StringTables();

    // (Re)loads the resource tables of the locale, falling back to the _en ones.
    void load(const QLocale &locale);

    // Absent distinctly from empty: nullopt when the table has no entry for the key.
    std::optional<QString> lookup(const QString &table, const QString &key) const;
    // The entry, or defaultValue when absent (defaultValue null -> the key itself).
    QString localizedString(const QString &key,
                            const QString &table = QStringLiteral("Localizable"),
                            const QString &defaultValue = QString()) const;

private:
    StringTables();
    void loadDirectory(const QString &directory, const QLocale &locale);

    QList<std::shared_ptr<QTranslator>> m_translators;
};
