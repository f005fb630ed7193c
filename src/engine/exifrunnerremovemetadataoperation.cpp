#include "engine/exifrunnerremovemetadataoperation.h"

#include "engine/revertrecord.h"
#include "engine/metadatareader.h"
#include "values/trcontext.h"

#include <QFileInfo>

#include <array>

namespace {

const QString MimeTypeKey = QStringLiteral("File:MIMEType");
const QString Jpeg = QStringLiteral("image/jpeg");
const QString Tiff = QStringLiteral("image/tiff");
const QString Photoshop = QStringLiteral("application/vnd.adobe.photoshop");

constexpr TrContext tr{"ExifRunnerRemoveMetadataOperation"};

// ExifTool cannot drop the IFD0 of a TIFF (it holds the image), says so, and keeps it. The
// user asked for nothing that failed, so the warning is not shown.
const QString IFD0MinorWarning = QStringLiteral("[minor] Can't delete IFD0 from ");

bool isKeptKey(const QString &key)
{
    static const std::array keptPrefixes{
        QStringLiteral("System:"),   QStringLiteral("File:"),        QStringLiteral("Composite:"),
        QStringLiteral("ExifTool:"), QStringLiteral("ICC_Profile:"), QStringLiteral("ICC-header:"),
    };
    static const QSet<QString> keptKeys{
        QStringLiteral("IFD0:ImageWidth"),
        QStringLiteral("IFD0:ImageHeight"),
        QStringLiteral("IFD0:SensorWidth"),
    };
    // "::TIFF-EPStandardID" has always had its doubled colon, so a plain "IFD0:TIFF-EPStandardID"
    // is removable.
    static const std::array keptSuffixes{
        QStringLiteral(":BitsPerSample"),        QStringLiteral(":CFAPattern2"),
        QStringLiteral(":CFARepeatPatternDim"),  QStringLiteral(":Compression"),
        QStringLiteral(":PreviewImageLength"),   QStringLiteral(":PreviewImageStart"),
        QStringLiteral(":RawImageSegmentation"), QStringLiteral(":SampleFormat"),
        QStringLiteral(":SensorHeight"),         QStringLiteral(":SensorLeftBorder"),
        QStringLiteral(":SensorTopBorder"),      QStringLiteral(":SensorWidth"),
        QStringLiteral(":StripByteCounts"),      QStringLiteral(":StripOffsets"),
        QStringLiteral("::TIFF-EPStandardID"),   QStringLiteral(":ThumbnailLength"),
        QStringLiteral(":ThumbnailOffset"),
    };
    for (const QString &prefix : keptPrefixes) {
        if (key.startsWith(prefix))
            return true;
    }
    if (keptKeys.contains(key))
        return true;
    for (const QString &suffix : keptSuffixes) {
        if (key.endsWith(suffix))
            return true;
    }
    return false;
}

} // namespace

ExifRunnerRemoveMetadataOperation::ExifRunnerRemoveMetadataOperation(ExifFileInfoPtr efi,
                                                                     ExifOperationOption options)
    : FileRewriteOperation(std::move(efi), options)
{
}

bool ExifRunnerRemoveMetadataOperation::canStrip(const QString &mimeType)
{
    // ExifTool keeps what these need to show their picture; a raw file would lose the tags its
    // decoder reads, and it goes by its own MIME type, even when it is TIFF inside.
    static const QSet<QString> strippable{
        Jpeg,
        Tiff,
        Photoshop,
        QStringLiteral("image/png"),
        QStringLiteral("image/gif"),
        QStringLiteral("image/webp"),
        QStringLiteral("image/heic"),
        QStringLiteral("image/heif"),
        QStringLiteral("image/avif"),
        QStringLiteral("image/jxl"),
    };
    return strippable.contains(mimeType);
}

QStringList ExifRunnerRemoveMetadataOperation::removeArguments(const QString &mimeType)
{
    if (!canStrip(mimeType))
        return {};
    QStringList arguments{QStringLiteral("-all=")};
    // "-all=" alone leaves the TIFF's own IFD0 tags (Make, Artist, Copyright...) in place.
    if (mimeType == Tiff)
        arguments.append(QStringLiteral("-CommonIFD0="));
    return arguments;
}

void ExifRunnerRemoveMetadataOperation::run()
{
    auto errors = std::make_shared<ErrorMessages>(fileName());
    const QString mimeType = efi()->exifValue(MimeTypeKey);
    if (!canStrip(mimeType)) {
        const QString type = efi()->exifValue(QStringLiteral("File:FileType"));
        errors->addError(tr("%1 was not changed: all metadata cannot be removed from a %2 file "
                            "without making it unreadable.")
                             .arg(QFileInfo(fileName()).fileName(),
                                  type.isEmpty() ? tr("file of this type") : type));
        storeResults(errors, std::nullopt);
        return;
    }

    QString keepError;
    const QString keepAt = RevertRecord::newKeptPath(fileName(), &keepError);
    keepReplacedFileAt(keepAt);
    const WriteResult result = writeFile(addRemoveArgs(removeArguments(mimeType)), *errors);
    if (mimeType != Jpeg && hasIFD0MinorWarning(*errors))
        removeIFD0MinorWarning(*errors);
    if (result.replaced) {
        RevertEntry entry;
        entry.path = fileName();
        entry.keptFile = keptFile();
        QString error = keepError;
        if (entry.keptFile.isEmpty() || !RevertRecord::store(entry, &error)) {
            RevertRecord::removeKeptFile(entry.keptFile);
            RevertRecord::discard(fileName());
            errors->addWarning(tr("This removal cannot be reverted: %1").arg(error));
        }
    } else {
        RevertRecord::removeKeptFile(keepAt);
    }
    storeResults(errors, adoptRewrittenFile(result));
}

bool ExifRunnerRemoveMetadataOperation::hasIFD0MinorWarning(const ErrorMessages &errors)
{
    for (const ErrorMessage &message : errors.messages()) {
        if (message.message().contains(IFD0MinorWarning))
            return true;
    }
    return false;
}

void ExifRunnerRemoveMetadataOperation::removeIFD0MinorWarning(ErrorMessages &errors)
{
    // Bounded by the list itself, not by count(), which deletions do not lower; and the index
    // stays put after a deletion so that two warnings in a row both go.
    qsizetype index = 0;
    while (index < errors.messages().size()) {
        if (errors.messages().at(index).message().contains(IFD0MinorWarning))
            errors.deleteMessageAtIndex(index);
        else
            ++index;
    }
}

QSet<QString> ExifRunnerRemoveMetadataOperation::collectRemovableItems(const QStringList &keys)
{
    QSet<QString> removable;
    for (const QString &key : keys) {
        if (!isKeptKey(key))
            removable.insert(key);
    }
    return removable;
}

QStringList ExifRunnerRemoveMetadataOperation::addRemoveArgs(QStringList arguments) const
{
    // No "-charset", "-lang", "-F" or "-m": a strip takes none of the user's save options.
    arguments << QStringLiteral("-n") << QStringLiteral("-X");
    return arguments + MetadataReader::structureArguments();
}
