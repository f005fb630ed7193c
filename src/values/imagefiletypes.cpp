#include "values/imagefiletypes.h"

const QStringList &ImageFileTypes::cameraRawExtensions()
{
    // Only what the bundled ExifTool can write ("exiftool -listwf"): a file it could read but
    // not write would let the user edit it and fail only at saving. Hasselblad's 3fr, Sony's
    // srf and Kodak's kdc are left out for that reason.
    static const QStringList extensions{
        QStringLiteral("arw"), QStringLiteral("cr2"), QStringLiteral("cr3"), QStringLiteral("crw"),
        QStringLiteral("dng"), QStringLiteral("erf"), QStringLiteral("gpr"), QStringLiteral("iiq"),
        QStringLiteral("mef"), QStringLiteral("mos"), QStringLiteral("mrw"), QStringLiteral("nef"),
        QStringLiteral("nrw"), QStringLiteral("orf"), QStringLiteral("pef"), QStringLiteral("raf"),
        QStringLiteral("raw"), QStringLiteral("rw2"), QStringLiteral("rwl"), QStringLiteral("sr2"),
        QStringLiteral("srw"), QStringLiteral("x3f")};
    return extensions;
}

const QStringList &ImageFileTypes::supportedExtensions()
{
    static const QStringList extensions =
        cameraRawExtensions() +
        QStringList{// Still images of the first release.
                    QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("png"),
                    QStringLiteral("psb"), QStringLiteral("psd"), QStringLiteral("tif"),
                    QStringLiteral("tiff"),
                    // Today's phones and web exports.
                    QStringLiteral("heic"), QStringLiteral("heif"), QStringLiteral("hif"),
                    QStringLiteral("avif"), QStringLiteral("webp"), QStringLiteral("jxl"),
                    QStringLiteral("mpo"), QStringLiteral("gif")};
    return extensions;
}

bool ImageFileTypes::isSupportedFile(const QString &path)
{
    return supportedExtensions().contains(extensionOf(path));
}

bool ImageFileTypes::isCameraRawFile(const QString &path)
{
    return cameraRawExtensions().contains(extensionOf(path));
}

QString ImageFileTypes::extensionOf(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    const qsizetype dot = path.lastIndexOf(u'.');
    if (dot <= slash)
        return {};
    return path.mid(dot + 1).toLower();
}

bool ImageFileTypes::holdsIptcRecord(const QString &path)
{
    static const QStringList extensions{u"jpg"_qs, u"jpeg"_qs, u"jpe"_qs, u"tif"_qs, u"tiff"_qs};
    return extensions.contains(extensionOf(path));
}
