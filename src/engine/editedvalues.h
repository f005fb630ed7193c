#pragma once

#include "engine/tagdictionary.h"

#include <QSet>
#include <QString>

// A file's current values kept as the values it was read with and the edits over them, so that
// an edit costs the edit alone and not a copy of every tag: a caption typed over ten thousand
// photos would otherwise copy ten thousand dictionaries. Copies share their data.
class EditedValues
{
public:
    EditedValues() = default;
    explicit EditedValues(TagDictionary original);

    const TagDictionary &original() const { return m_original; }
    // A new original under the same current values.
    void setOriginal(TagDictionary original);

    QString value(const QString &key) const;
    bool contains(const QString &key) const;
    void set(const QString &key, const QString &value);
    void remove(const QString &key);

    // Every current value: the original itself when nothing is edited, else a new dictionary.
    TagDictionary values() const;
    void setValues(const TagDictionary &values);

    bool isEdited() const { return !m_changed.isEmpty() || !m_removed.isEmpty(); }
    // Values that differ from the original's or that it lacks; a null value is a value here.
    const TagDictionary &changed() const { return m_changed; }
    // Keys of the original without a current value.
    const QSet<QString> &removed() const { return m_removed; }

private:
    TagDictionary m_original;
    TagDictionary m_changed;
    QSet<QString> m_removed;
};
