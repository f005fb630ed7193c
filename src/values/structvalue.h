#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <optional>

// A value of an XMP structure (IPTC's Location Shown, Artwork or Object...) as ExifTool writes
// and reads it in its own serialized form: "[{City=Vienna,LocationId=[a,b]},{City=Paris|,
// France}]". Braces hold a structure's members, brackets a list's items, and a bar escapes the
// characters that would end a value. A member in a language other than the default is a member of
// its own
// ("AOTitle-fr"), as ExifTool reads it.
struct StructValue
{
    enum class Kind { Text, List, Struct };

    Kind kind = Kind::Text;
    QString text;
    QList<StructValue> items;
    QList<QPair<QString, StructValue>> members;

    static StructValue makeText(QString text);
    static StructValue makeList(QList<StructValue> items = {});
    static StructValue makeStruct(QList<QPair<QString, StructValue>> members = {});

    // Null when the text is not well formed.
    static std::optional<StructValue> parse(const QString &serialized);
    // Members in name order, as ExifTool serializes them.
    QString serialized() const;

    // The member of that name, or null.
    const StructValue *member(const QString &name) const;
    // Sets (or, for an empty text, removes) a text member.
    void setMemberText(const QString &name, const QString &text);

    // Same content: members compared by name whatever their order.
    bool operator==(const StructValue &other) const;

private:
    QString serializedIn(QChar close) const;
};
