#pragma once

#include <QList>
#include <QMap>
#include <QString>

class ExifFileInfo;

// The values of a language alternative (XMP's dc:title, dc:description, dc:rights...) in named
// languages beside its default one. The form's row edits the default; these are the others,
// kept as tags of their own ("XMP-dc:Title-de"), which is how ExifTool reads and writes them.

// Language code -> current text, for every named language the file holds for key.
QMap<QString, QString> otherLanguages(const ExifFileInfo &file, const QString &key);
// Sets the text of one language; an empty text removes it from the file.
void setOtherLanguage(ExifFileInfo &file, const QString &key, const QString &language,
                      const QString &text);

// An RFC 3066 code as XMP takes it ("de", "fr-CA", "zh-Hant-TW") in the case ExifTool writes
// it: language lower case, a two-letter region upper case. Null for anything else, and for
// "x-default", which is the row's own value.
QString normalizedLanguage(const QString &code);

// One language over several files: its text when every file has the same, else null.
struct LanguageAcrossFiles
{
    QString language;
    QString commonText; // null: the files differ, or some lack it
};
QList<LanguageAcrossFiles> languagesAcross(const QList<const ExifFileInfo *> &files,
                                           const QString &key);
