#pragma once

#include "engine/tagdictionary.h"

#include <QHash>
#include <QString>

// XMP sidecars of raw files: NAME.ext.xmp or NAME.xmp beside the file, in any letter case.
// Routing is by tag group, so whatever writes XMP tags (edits, date shifts, geotagging) goes to
// the sidecar and everything else to the raw file.
namespace XmpSidecar {

// ExifTool's family-1 XMP groups: "XMP-dc", "XMP-photoshop" and so on.
bool isXmpKey(const QString &key);
TagDictionary xmpPart(const TagDictionary &values);

// Where a new sidecar of a raw file goes.
QString newPathFor(const QString &path);

// Finds existing sidecars; keeps each folder's listing, so a batch lists a folder once.
class Finder
{
public:
    // Empty when the file is no raw file or has no sidecar. NAME.ext.xmp wins over NAME.xmp,
    // which a JPEG of the same name may share.
    QString sidecarFor(const QString &path);

private:
    // Lower-cased name -> name as on disk.
    QHash<QString, QHash<QString, QString>> m_folders;
};

} // namespace XmpSidecar
