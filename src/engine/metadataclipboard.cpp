#include "engine/metadataclipboard.h"

#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"

namespace {

const QString MakeKey = QStringLiteral("IFD0:Make");

} // namespace

bool MetadataClipboard::isFileSpecific(const QString &key)
{
    // Whole groups: what ExifTool computes or reads from the file system, and the thumbnail IFD.
    static const QSet<QString> groups{
        QStringLiteral("File"),     QStringLiteral("System"), QStringLiteral("Composite"),
        QStringLiteral("ExifTool"), QStringLiteral("IFD1"),   QStringLiteral("MakerNotes"),
    };
    // Tag names in any group.
    static const QSet<QString> names{
        // dimensions
        QStringLiteral("ImageWidth"),
        QStringLiteral("ImageHeight"),
        QStringLiteral("ExifImageWidth"),
        QStringLiteral("ExifImageHeight"),
        QStringLiteral("ImageSize"),
        QStringLiteral("CanonImageSize"),
        QStringLiteral("ImageSizeRAW"),
        QStringLiteral("PentaxImageSize"),
        QStringLiteral("RawJpgSize"),
        QStringLiteral("RawImageSize"),
        // image data locations
        QStringLiteral("StripOffsets"),
        QStringLiteral("StripByteCounts"),
        QStringLiteral("TileOffsets"),
        QStringLiteral("TileByteCounts"),
        QStringLiteral("MakerNoteOffset"),
        QStringLiteral("OffsetSchema"),
        // names and identities of this one file
        QStringLiteral("FileName"),
        QStringLiteral("DocumentName"),
        QStringLiteral("RawFileName"),
        QStringLiteral("OriginalRawFileName"),
        QStringLiteral("PreservedFileName"),
        QStringLiteral("ImageUniqueID"),
        QStringLiteral("DocumentID"),
        QStringLiteral("InstanceID"),
        QStringLiteral("OriginalDocumentID"),
        QStringLiteral("ImageNumber"),
        QStringLiteral("FileNumber"),
        QStringLiteral("ShutterCount"),
        QStringLiteral("MechanicalShutterCount"),
        QStringLiteral("XMPToolkit"),
    };
    // Embedded images and their positions.
    static const QStringList namePrefixes{
        QStringLiteral("Thumbnail"),
        QStringLiteral("Preview"),
        QStringLiteral("JpgFromRaw"),
        QStringLiteral("OtherImage"),
    };
    const qsizetype colon = key.indexOf(u':');
    const QString group = colon < 0 ? QString() : key.left(colon);
    const QString name = key.mid(colon + 1);
    if (groups.contains(group) || names.contains(name))
        return true;
    for (const QString &prefix : namePrefixes) {
        if (name.startsWith(prefix))
            return true;
    }
    return false;
}

void MetadataClipboard::copyFrom(const ExifFileInfo &file)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    const TagDictionary current = file.exifData();
    m_values.clear();
    for (auto it = current.cbegin(); it != current.cend(); ++it) {
        const ExifFieldPtr field = catalogue->field(it.key());
        if (field && field->writable() && !it.value().isEmpty() && !isFileSpecific(it.key()))
            m_values.insert(it.key(), it.value());
    }
    m_sourceFileName = file.fileName();
    m_sourceMake = current.value(MakeKey);
}

void MetadataClipboard::clear()
{
    m_values.clear();
    m_sourceFileName.clear();
    m_sourceMake.clear();
}

TagDictionary MetadataClipboard::valuesFor(const MetadataSelection &selection) const
{
    if (selection.everything)
        return m_values;
    TagDictionary chosen;
    for (auto it = m_values.cbegin(); it != m_values.cend(); ++it) {
        const ExifFieldPtr field = ExifFieldsController::defaultInstance()->field(it.key());
        if (field && selection.sections.contains(
                         MetadataSelection::sectionKey(field->groupName(), field->sectionName())))
            chosen.insert(it.key(), it.value());
    }
    return chosen;
}

QStringList MetadataClipboard::pasteInto(ExifFileInfo &file,
                                         const MetadataSelection &selection) const
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    // Another make's maker notes mean nothing here, and ExifTool would refuse them.
    const bool sameMake = file.exifValue(MakeKey) == m_sourceMake;
    const TagDictionary chosen = valuesFor(selection);
    QStringList changed;
    for (auto it = chosen.cbegin(); it != chosen.cend(); ++it) {
        const ExifFieldPtr field = catalogue->field(it.key());
        if (field && !field->maker().isEmpty() && !sameMake)
            continue;
        if (file.hasExifValue(it.key()) && file.exifValue(it.key()) == it.value())
            continue;
        file.setExifValue(it.key(), it.value());
        changed.append(it.key());
    }
    return changed;
}
