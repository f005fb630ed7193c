#include "engine/languagealternatives.h"

#include "engine/exiffileinfo.h"

#include <QRegularExpression>

QMap<QString, QString> otherLanguages(const ExifFileInfo &file, const QString &key)
{
    const QString prefix = key + u'-';
    const EditedValues values = file.editedValues();
    QMap<QString, QString> languages;
    // The original's language keys are kept apart; an edit may add others.
    QStringList keys = file.languageKeys();
    for (auto it = values.changed().cbegin(); it != values.changed().cend(); ++it)
        keys.append(it.key());
    for (const QString &languageKey : std::as_const(keys)) {
        if (!languageKey.startsWith(prefix))
            continue;
        const QString text = values.value(languageKey);
        if (!text.isNull())
            languages.insert(languageKey.mid(prefix.size()), text);
    }
    return languages;
}

void setOtherLanguage(ExifFileInfo &file, const QString &key, const QString &language,
                      const QString &text)
{
    const QString languageKey = key + u'-' + language;
    if (text.isEmpty())
        file.removeExifValue(languageKey);
    else
        file.setExifValue(languageKey, text);
}

QString normalizedLanguage(const QString &code)
{
    static const QRegularExpression pattern(u"^[A-Za-z]{1,8}(-[A-Za-z0-9]{1,8})*$"_qs);
    const QString trimmed = code.trimmed();
    if (!pattern.match(trimmed).hasMatch())
        return {};
    QStringList parts = trimmed.split(u'-');
    parts[0] = parts[0].toLower();
    for (qsizetype i = 1; i < parts.size(); ++i)
        parts[i] = parts[i].size() == 2 ? parts[i].toUpper() : parts[i];
    const QString normal = parts.join(u'-');
    if (normal.compare(u"x-default", Qt::CaseInsensitive) == 0)
        return {};
    return normal;
}

QList<LanguageAcrossFiles> languagesAcross(const QList<const ExifFileInfo *> &files,
                                           const QString &key)
{
    QMap<QString, QString> common;
    QMap<QString, int> count;
    for (const ExifFileInfo *file : files) {
        const QMap<QString, QString> languages = otherLanguages(*file, key);
        for (auto it = languages.cbegin(); it != languages.cend(); ++it) {
            const auto seen = common.constFind(it.key());
            if (seen == common.cend())
                common.insert(it.key(), it.value());
            else if (*seen != it.value())
                common[it.key()] = QString();
            ++count[it.key()];
        }
    }
    QList<LanguageAcrossFiles> result;
    for (auto it = common.cbegin(); it != common.cend(); ++it) {
        const bool everywhere = count.value(it.key()) == files.size();
        result.append({it.key(), everywhere ? it.value() : QString()});
    }
    return result;
}
