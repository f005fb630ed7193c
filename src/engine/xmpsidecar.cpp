#include "engine/xmpsidecar.h"

#include "values/imagefiletypes.h"

#include <QDir>
#include <QFileInfo>

namespace XmpSidecar {

bool isXmpKey(const QString &key)
{
    return key.startsWith(QLatin1String("XMP-")) || key.startsWith(QLatin1String("XMP:"));
}

TagDictionary xmpPart(const TagDictionary &values)
{
    TagDictionary part;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (isXmpKey(it.key()))
            part.insert(it.key(), it.value());
    }
    return part;
}

QString newPathFor(const QString &path)
{
    const QFileInfo info(path);
    return info.path() + u'/' + info.completeBaseName() + QStringLiteral(".xmp");
}

QString Finder::sidecarFor(const QString &path)
{
    if (!ImageFileTypes::isCameraRawFile(path))
        return {};
    const QFileInfo info(path);
    const QString folder = info.path();
    auto listing = m_folders.find(folder);
    if (listing == m_folders.end()) {
        QHash<QString, QString> names;
        const QStringList entries =
            QDir(folder).entryList({QStringLiteral("*.[xX][mM][pP]")}, QDir::Files | QDir::Hidden);
        for (const QString &name : entries)
            names.insert(name.toLower(), name);
        listing = m_folders.insert(folder, names);
    }
    const QString name = info.fileName().toLower();
    const QStringList candidates{name + QStringLiteral(".xmp"),
                                 info.completeBaseName().toLower() + QStringLiteral(".xmp")};
    for (const QString &candidate : candidates) {
        const auto found = listing->constFind(candidate);
        if (found != listing->cend())
            return folder + u'/' + found.value();
    }
    return {};
}

} // namespace XmpSidecar
