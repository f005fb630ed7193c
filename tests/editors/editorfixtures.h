#pragma once

#include "catalogue/preset.h"
#include "catalogue/exiffield.h"
#include "editors/fieldeditor.h"
#include "engine/editsession.h"
#include "engine/exiffileinfo.h"

#include <QLineEdit>
#include <QList>
#include <QSignalSpy>
#include <QString>
#include <QTest>
#include <QWidget>

#include <memory>
#include <optional>

// Files live in memory only; the row is a real widget.
namespace EditorFixtures {

inline ExifFieldPtr makeField(const QString &key, FieldDataRepresentation representation,
                              std::optional<QHash<QString, QString>> values = std::nullopt,
                              FieldDataType type = FieldDataType::String)
{
    auto field = std::make_shared<ExifField>();
    field->setXmlName(key);
    field->setTitle(key.section(u':', 1));
    field->setDataRepresentation(representation);
    field->setDataType(type);
    field->setValues(std::move(values));
    field->setEnabled(true);
    return field;
}

// One file per value; a null value is a file without the tag. IFD0:Make lets a test see that
// other tags are left alone.
inline QList<ExifFileInfoPtr> makeFiles(const QString &key, const QList<QString> &values,
                                        const QString &suffix = u".jpg"_qs)
{
    QList<ExifFileInfoPtr> files;
    for (int i = 0; i < values.size(); ++i) {
        auto file = std::make_shared<ExifFileInfo>(u"/photos/IMG_%1"_qs.arg(i) + suffix);
        TagDictionary data{{u"IFD0:Make"_qs, u"Canon"_qs}};
        if (!values.at(i).isNull())
            data.insert(key, values.at(i));
        file->setReadData(data);
        files.append(file);
    }
    return files;
}

inline QStringList currentValues(const QList<ExifFileInfoPtr> &files, const QString &key)
{
    QStringList values;
    for (const auto &file : files)
        values.append(file->hasExifValue(key) ? file->exifValue(key) : u"<absent>"_qs);
    return values;
}

template <typename Editor> struct Row
{
    explicit Row(ExifFieldPtr field, bool showRemoveButton = false)
        : editor(std::move(field))
    {
        editor.setEditSession(&session);
        parent.resize(600, 200);
        editor.setMaxLabelWidth(120);
        editor.setBoldFontOnChange(true);
        editor.setShowRemoveButton(showRemoveButton);
        editor.setTheme(u"ApertureTheme"_qs);
        editor.createEditor(&parent, 0);
        parent.show();
    }
    EditSession session;
    QWidget parent;
    Editor editor;
};

inline void typeAndCommit(QLineEdit *edit, const QString &text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

// What a row leaves in a preset: the value, "<removed>", or "" when it leaves the tag alone.
inline QString presetEntry(FieldEditor &editor, Preset &preset, const QString &key)
{
    if (!editor.copyToConfiguration(preset))
        return u"<refused>"_qs;
    return preset.changedValues().value(key) +
           (preset.removedValues().contains(key) ? u"<removed>"_qs : QString());
}

inline QSignalSpy updateSpy(EditSession &session)
{
    return QSignalSpy(&session, &EditSession::exifFilesUpdated);
}

inline ExifFilesUpdate updateAt(const QSignalSpy &spy, qsizetype index)
{
    return spy.at(index).at(0).value<ExifFilesUpdate>();
}

} // namespace EditorFixtures
