#include "windows/thumbnailmaker.h"

#include "engine/exiftoolprocess.h"
#include "values/imagefiletypes.h"
#include "values/logging.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTransform>

#include <algorithm>
#include <optional>

namespace {

// A large raw file takes ExifTool a few seconds at worst; a hung one must not stall the list.
constexpr int exifToolTimeoutMs = 30000;

// Embedded previews up to this size are small enough to decode quickly; beyond it they are
// full-size pictures, used only when the file has nothing smaller.
constexpr qint64 smallPreviewBytes = 1024 * 1024;

const QStringList &previewTags()
{
    static const QStringList tags{QStringLiteral("PreviewImage"), QStringLiteral("JpgFromRaw"),
                                  QStringLiteral("ThumbnailImage"),
                                  QStringLiteral("PhotoshopThumbnail")};
    return tags;
}

QSize fittedSize(const QSize &size, const QSize &box)
{
    if (size.width() <= box.width() && size.height() <= box.height())
        return size;
    return size.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

// Reads at the reduced size: the JPEG decoder then scales while decoding, so a 24-megapixel
// picture never exists in memory at full size.
QImage readScaled(QImageReader &reader, const QSize &box, bool autoTransform)
{
    reader.setAutoTransform(autoTransform);
    const QSize size = reader.size();
    if (size.isValid()) {
        QSize fit = box;
        // The reduced size applies before the orientation is.
        if (autoTransform && (reader.transformation() & QImageIOHandler::TransformationRotate90))
            fit.transpose();
        reader.setScaledSize(fittedSize(size, fit));
    }
    QImage image = reader.read();
    if (!image.isNull() && (image.width() > box.width() || image.height() > box.height()))
        image = image.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

std::optional<qint64> binaryLength(const QJsonValue &value)
{
    static const QRegularExpression pattern(QStringLiteral("^\\(Binary data (\\d+) bytes"));
    const QRegularExpressionMatch match = pattern.match(value.toString());
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1).toLongLong();
}

// The largest preview that is still small, else the smallest there is.
QString choosePreviewTag(const QJsonObject &tags)
{
    QString best;
    qint64 bestLength = 0;
    for (const QString &tag : previewTags()) {
        const std::optional<qint64> length = binaryLength(tags.value(tag));
        if (!length || *length <= 0)
            continue;
        const bool isSmall = *length <= smallPreviewBytes;
        const bool isBestSmall = !best.isEmpty() && bestLength <= smallPreviewBytes;
        const bool isBetter = best.isEmpty() ||
                              (isSmall && (!isBestSmall || *length > bestLength)) ||
                              (!isSmall && !isBestSmall && *length < bestLength);
        if (isBetter) {
            best = tag;
            bestLength = *length;
        }
    }
    return best;
}

} // namespace

ThumbnailMaker::ThumbnailMaker(QString exifToolProgram)
    : m_exifToolProgram(std::move(exifToolProgram))
{
}

ThumbnailMaker::~ThumbnailMaker() = default;

bool ThumbnailMaker::prefersEmbeddedPreview(const QString &path)
{
    // Raw files are TIFF-like enough for Qt to try, and then give a full-size decode or a
    // tiny first-directory thumbnail; Photoshop files Qt cannot read at all.
    const QString extension = ImageFileTypes::extensionOf(path);
    return ImageFileTypes::isCameraRawFile(path) || extension == u"psd"_qs ||
           extension == u"psb"_qs;
}

bool ThumbnailMaker::decodesAtFullSizeOnly(const QString &path)
{
    // Qt reads these only through an optional plugin, and then decodes the whole picture before
    // scaling it; an embedded thumbnail, where there is one, is many times faster.
    static const QSet<QString> suffixes{QStringLiteral("heic"), QStringLiteral("heif"),
                                        QStringLiteral("hif"), QStringLiteral("avif"),
                                        QStringLiteral("jxl")};
    return suffixes.contains(QFileInfo(path).suffix().toLower());
}

QImage ThumbnailMaker::make(const QString &path, const QSize &box)
{
    if (!box.isValid() || box.isEmpty())
        return {};
    const bool isEmbeddedFirst = decodesAtFullSizeOnly(path);
    if (!prefersEmbeddedPreview(path) && !isEmbeddedFirst) {
        QImageReader reader(path);
        QImage image = readScaled(reader, box, true);
        if (!image.isNull())
            return image;
    }
    if (!QFileInfo(path).isFile())
        return {};
    QImage image = embeddedPreview(path, box);
    if (image.isNull() && isEmbeddedFirst) {
        QImageReader reader(path);
        image = readScaled(reader, box, true);
    }
    return image;
}

QImage ThumbnailMaker::embeddedPreview(const QString &path, const QSize &box)
{
    if (!m_exifTool)
        m_exifTool = std::make_unique<ExifToolProcess>(m_exifToolProgram);

    QStringList query{QStringLiteral("-j"), QStringLiteral("-n")};
    for (const QString &tag : previewTags())
        query << QLatin1Char('-') + tag;
    query << QStringLiteral("-Orientation") << QStringLiteral("--") << path;
    const ExifToolResult listing = m_exifTool->execute(query, exifToolTimeoutMs);
    if (!listing.hasStarted()) {
        qCWarning(lcTagsmith).noquote() << listing.errorMessage;
        return {};
    }
    const QJsonObject tags =
        QJsonDocument::fromJson(listing.standardOutput).array().at(0).toObject();
    const QString tag = choosePreviewTag(tags);
    if (tag.isEmpty())
        return {};

    // -b writes the preview's bytes alone, unchanged, to standard output.
    const ExifToolResult extraction = m_exifTool->execute(
        {QStringLiteral("-b"), QLatin1Char('-') + tag, QStringLiteral("--"), path},
        exifToolTimeoutMs);
    if (!extraction.hasSucceeded() || extraction.standardOutput.isEmpty())
        return {};
    QByteArray bytes = extraction.standardOutput;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    // The file's orientation rules; the preview's own, if any, must not turn it twice.
    const int orientation = tags.value(QStringLiteral("Orientation")).toInt(1);
    const bool isQuarterTurn = orientation >= 5 && orientation <= 8;
    const QImage image = readScaled(reader, isQuarterTurn ? box.transposed() : box, false);
    return oriented(image, orientation);
}

QImage ThumbnailMaker::oriented(const QImage &image, int orientation)
{
    // Mirror first, then turn clockwise: the order in which EXIF defines values 5 and 7.
    const bool mirrorsHorizontally = orientation == 2 || orientation == 3 || orientation == 7;
    const bool mirrorsVertically = orientation == 3 || orientation == 4 || orientation == 5;
    QImage result = image.mirrored(mirrorsHorizontally, mirrorsVertically);
    if (orientation >= 5 && orientation <= 7)
        result = result.transformed(QTransform().rotate(90));
    else if (orientation == 8)
        result = result.transformed(QTransform().rotate(270));
    return result;
}
