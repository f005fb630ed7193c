#include "engine/editedvalues.h"

namespace {

// A null value never matches: one set on purpose is an edit even where the original has none.
bool sameValue(const TagDictionary &original, const QString &key, const QString &value)
{
    const auto it = original.constFind(key);
    return it != original.cend() && !value.isNull() && !it->isNull() && *it == value;
}

} // namespace

EditedValues::EditedValues(TagDictionary original)
    : m_original(std::move(original))
{
}

void EditedValues::setOriginal(TagDictionary original)
{
    const TagDictionary current = values();
    m_original = std::move(original);
    setValues(current);
}

QString EditedValues::value(const QString &key) const
{
    if (isEdited()) {
        if (const auto it = m_changed.constFind(key); it != m_changed.cend())
            return *it;
        if (m_removed.contains(key))
            return {};
    }
    return m_original.value(key);
}

bool EditedValues::contains(const QString &key) const
{
    if (isEdited()) {
        if (m_changed.contains(key))
            return true;
        if (m_removed.contains(key))
            return false;
    }
    return m_original.contains(key);
}

void EditedValues::set(const QString &key, const QString &value)
{
    m_removed.remove(key);
    if (sameValue(m_original, key, value))
        m_changed.remove(key);
    else
        m_changed.insert(key, value);
}

void EditedValues::remove(const QString &key)
{
    m_changed.remove(key);
    if (m_original.contains(key))
        m_removed.insert(key);
}

TagDictionary EditedValues::values() const
{
    if (!isEdited())
        return m_original;
    TagDictionary all = m_original;
    for (const QString &key : m_removed)
        all.remove(key);
    for (auto it = m_changed.cbegin(); it != m_changed.cend(); ++it)
        all.insert(it.key(), it.value());
    return all;
}

void EditedValues::setValues(const TagDictionary &values)
{
    m_changed.clear();
    m_removed.clear();
    if (values.isSharedWith(m_original))
        return;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (!sameValue(m_original, it.key(), it.value()))
            m_changed.insert(it.key(), it.value());
    }
    for (auto it = m_original.cbegin(); it != m_original.cend(); ++it) {
        if (!values.contains(it.key()))
            m_removed.insert(it.key());
    }
}
