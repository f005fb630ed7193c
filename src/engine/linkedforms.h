#pragma once

#include "catalogue/fieldtypes.h"
#include "engine/editedvalues.h"

#include <QList>
#include <QString>
#include <QStringList>

class ExifField;
class ExifFileInfo;

// The tags that hold one property in several standards at once, such as the caption in XMP
// (dc:description), IPTC-IIM (Caption-Abstract) and EXIF (ImageDescription), seen as the one
// value a row shows and writes. Other programs read whichever copy they know, so an edit writes
// every copy, and a file whose copies disagree says so. A field without linked copies gives its
// own tag alone, and everything here is then the plain tag's behaviour.
class LinkedForms
{
public:
    struct Copy
    {
        QString key;
        QString value;
    };

    LinkedForms() = default;
    explicit LinkedForms(const ExifField &field);
    // The forms of the property whose row writes key (the key alone when no row links it).
    static LinkedForms ofKey(const QString &key);

    bool isLinked() const { return m_keys.size() > 1; }
    // The row's own tag first.
    const QStringList &keys() const { return m_keys; }

    // What the property is in these values: the row's own tag, else the first other copy with
    // text (an old file often has the IPTC caption only). Null when no copy is there.
    QString valueIn(const EditedValues &values) const;
    QString valueIn(const TagDictionary &values) const;
    // valueIn and whether differingCopies would find any, in one pass over the copies: what the
    // form asks of every file on each selection.
    struct Reading
    {
        QString value;
        bool copiesDiffer = false;
    };
    Reading read(const EditedValues &values) const;
    // Whether any copy differs from what was read.
    bool isChanged(const EditedValues &values) const;
    // The copies present, when they do not all say the same; empty when they agree.
    QList<Copy> differingCopies(const EditedValues &values) const;

    // Each copy's value in keys() order, null where absent; and the same put back.
    QStringList copiesIn(const EditedValues &values) const;
    void setCopies(ExifFileInfo &file, const QStringList &copies) const;

    // A copy's stored text as the row holds the value.
    QString rowValueOf(const QString &key, const QString &stored) const;

    void set(ExifFileInfo &file, const QString &value) const;
    void remove(ExifFileInfo &file) const;
    void restoreOriginal(ExifFileInfo &file) const;

    // "XMP", "IPTC" or "EXIF": the standard a tag key belongs to, for the user.
    static QString standardOfKey(const QString &key);

private:
    template <typename Lookup> QString firstValue(const Lookup &lookup) const;
    QString comparable(const QString &value) const;
    // Whether a file gets its copy of the property in key: an IPTC copy only where an IPTC
    // record belongs.
    static bool takesCopy(const ExifFileInfo &file, const QString &key);
    // A copy kept as one text where the row has a list (EXIF's Artist beside XMP's creators,
    // "A; B" as the Metadata Working Group joins them): its value as the row holds it, and
    // back.
    QString rowValue(qsizetype index, const QString &stored) const;
    QString storedValue(qsizetype index, const QString &value) const;

    QStringList m_keys;
    QList<bool> m_joined;
    FieldDataRepresentation m_representation = FieldDataRepresentation::None;
};
