#pragma once

#include <QHash>
#include <QLocale>
#include <QString>

#include <optional>

// The localisation string tables: a table is a .ts context, a key its source text. Files are
// compiled into the resources as :/i18n/<name>_<language>.qm.
class StringTables
{
public:
    static StringTables &instance();
    // Installs the English plural forms of the texts that count with %n ("1 file", "2 files")
    // as the application's translator; once an application object exists, and only once.
    static void installPluralForms();

    // The .qm files of a directory for a locale, each falling back to its _en file.
    StringTables(const QString &directory, const QLocale &locale);

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
    // Adds the entries of a .qm file that are not there yet.
    bool addFile(const QString &path);

    // table -> key -> text
    QHash<QString, QHash<QString, QString>> m_tables;
};

// The default table's ("Localizable") text for a key, the key itself when there is none: how
// windows and editors find their texts.
QString localized(const QString &key);
// The same for a UTF-8 key.
QString localized(const char *key);
