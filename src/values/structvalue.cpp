#include "values/structvalue.h"

#include <algorithm>

namespace {

// As ExifTool escapes a value: the bracket that would close it, a comma and the bar itself
// anywhere, and a blank or an opening bracket at its start.
QString escaped(const QString &text, QChar close)
{
    QString out;
    out.reserve(text.size() + 2);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == close || c == u',' || c == u'|' ||
            (i == 0 && (c.isSpace() || c == u'[' || c == u'{')))
            out += u'|';
        out += c;
    }
    return out;
}

// ExifTool's reading of the same form: blanks before a value are dropped, those after it kept.
class Reader
{
public:
    explicit Reader(const QString &text)
        : m_text(text)
    {
    }

    std::optional<StructValue> value(QChar close)
    {
        skipBlanks();
        if (peek() == u'[')
            return list();
        if (peek() == u'{')
            return structure();
        return StructValue::makeText(plain(close));
    }
    bool atEnd()
    {
        skipBlanks();
        return m_pos >= m_text.size();
    }

private:
    QChar peek() const { return m_pos < m_text.size() ? m_text.at(m_pos) : QChar(); }
    void skipBlanks()
    {
        while (m_pos < m_text.size() && m_text.at(m_pos).isSpace())
            ++m_pos;
    }

    QString plain(QChar close)
    {
        QString out;
        while (m_pos < m_text.size()) {
            const QChar c = m_text.at(m_pos);
            if (c == u'|' && m_pos + 1 < m_text.size()) {
                out += m_text.at(m_pos + 1);
                m_pos += 2;
                continue;
            }
            if (c == u',' || (!close.isNull() && c == close))
                break;
            out += c;
            ++m_pos;
        }
        return out;
    }

    QString name()
    {
        skipBlanks();
        const qsizetype start = m_pos;
        while (m_pos < m_text.size() &&
               (m_text.at(m_pos).isLetterOrNumber() || m_text.at(m_pos) == u'_' ||
                m_text.at(m_pos) == u'-' || m_text.at(m_pos) == u':' || m_text.at(m_pos) == u'.'))
            ++m_pos;
        const QString found = m_text.mid(start, m_pos - start);
        skipBlanks();
        return found;
    }

    std::optional<StructValue> list()
    {
        ++m_pos;
        StructValue result = StructValue::makeList();
        skipBlanks();
        if (peek() == u']') {
            ++m_pos;
            return result;
        }
        for (;;) {
            auto item = value(u']');
            if (!item)
                return std::nullopt;
            result.items.append(*item);
            skipBlanks();
            if (peek() == u',') {
                ++m_pos;
                continue;
            }
            if (peek() == u']') {
                ++m_pos;
                return result;
            }
            return std::nullopt;
        }
    }

    std::optional<StructValue> structure()
    {
        ++m_pos;
        StructValue result = StructValue::makeStruct();
        skipBlanks();
        if (peek() == u'}') {
            ++m_pos;
            return result;
        }
        for (;;) {
            const QString memberName = name();
            if (memberName.isEmpty() || peek() != u'=')
                return std::nullopt;
            ++m_pos;
            auto member = value(u'}');
            if (!member)
                return std::nullopt;
            result.members.append({memberName, *member});
            skipBlanks();
            if (peek() == u',') {
                ++m_pos;
                continue;
            }
            if (peek() == u'}') {
                ++m_pos;
                return result;
            }
            return std::nullopt;
        }
    }

    const QString &m_text;
    qsizetype m_pos = 0;
};

} // namespace

StructValue StructValue::makeText(QString text)
{
    StructValue value;
    value.text = std::move(text);
    return value;
}

StructValue StructValue::makeList(QList<StructValue> items)
{
    StructValue value;
    value.kind = Kind::List;
    value.items = std::move(items);
    return value;
}

StructValue StructValue::makeStruct(QList<QPair<QString, StructValue>> members)
{
    StructValue value;
    value.kind = Kind::Struct;
    value.members = std::move(members);
    return value;
}

std::optional<StructValue> StructValue::parse(const QString &serialized)
{
    Reader reader(serialized);
    auto value = reader.value(QChar());
    if (!value || !reader.atEnd())
        return std::nullopt;
    return value;
}

QString StructValue::serialized() const
{
    return serializedIn(QChar());
}

QString StructValue::serializedIn(QChar close) const
{
    switch (kind) {
    case Kind::Text:
        return escaped(text, close);
    case Kind::List: {
        QStringList parts;
        for (const StructValue &item : items)
            parts.append(item.serializedIn(u']'));
        return u'[' + parts.join(u',') + u']';
    }
    case Kind::Struct: {
        QList<QPair<QString, StructValue>> sorted = members;
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const auto &a, const auto &b) { return a.first < b.first; });
        QStringList parts;
        for (const auto &[name, value] : sorted)
            parts.append(name + u'=' + value.serializedIn(u'}'));
        return u'{' + parts.join(u',') + u'}';
    }
    }
    return {};
}

const StructValue *StructValue::member(const QString &name) const
{
    for (const auto &entry : members) {
        if (entry.first == name)
            return &entry.second;
    }
    return nullptr;
}

void StructValue::setMemberText(const QString &name, const QString &value)
{
    for (qsizetype i = 0; i < members.size(); ++i) {
        if (members.at(i).first != name)
            continue;
        if (value.isEmpty())
            members.removeAt(i);
        else
            members[i].second = makeText(value);
        return;
    }
    if (!value.isEmpty())
        members.append({name, makeText(value)});
}

bool StructValue::operator==(const StructValue &other) const
{
    if (kind != other.kind)
        return false;
    switch (kind) {
    case Kind::Text:
        return text == other.text;
    case Kind::List:
        return items == other.items;
    case Kind::Struct:
        if (members.size() != other.members.size())
            return false;
        return std::all_of(members.cbegin(), members.cend(), [&other](const auto &entry) {
            const StructValue *found = other.member(entry.first);
            return found && *found == entry.second;
        });
    }
    return false;
}
