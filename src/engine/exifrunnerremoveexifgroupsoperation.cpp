#include "engine/exifrunnerremoveexifgroupsoperation.h"
#include "engine/metadatareader.h"

ExifRunnerRemoveExifGroupsOperation::ExifRunnerRemoveExifGroupsOperation(
    ExifFileInfoPtr efi, ExifOperationOption options)
    : FileRewriteOperation(std::move(efi), options)
{
}

void ExifRunnerRemoveExifGroupsOperation::run()
{
    auto errors = std::make_shared<ErrorMessages>(fileName());
    // Stored before ExifTool runs, so that an exception later on still reaches the file's
    // results.
    storeResults(errors, std::nullopt);

    // ExifTool cannot delete notes it failed to decode once the make is gone in the same
    // command (they turn into an unknown block that no tag name deletes); while the make is
    // still there, the whole group goes. So such notes are removed in a pass of their own.
    if (hasUndecodedMakerNotes(efi()->originalExifData())) {
        const WriteResult first = writeFile(undecodedMakerNotesArgs(), *errors);
        if (!first.replaced) {
            finish(first, errors);
            return;
        }
    }
    finish(writeFile(addRemoveArgs(), *errors), errors);
}

void ExifRunnerRemoveExifGroupsOperation::finish(const WriteResult &result,
                                                 const ErrorMessagesPtr &errors)
{
    if (const std::optional<TagDictionary> reRead = adoptRewrittenFile(result))
        storeResults(errors, reRead);
}

bool ExifRunnerRemoveExifGroupsOperation::hasUndecodedMakerNotes(const TagDictionary &tags)
{
    // ExifTool names the byte order of any notes it found, and files notes of no known maker
    // as MakerNoteUnknown...; decoded notes show under their maker's own group instead.
    for (auto it = tags.cbegin(); it != tags.cend(); ++it) {
        if (it.key().contains(QLatin1String("MakerNote")))
            return true;
    }
    return false;
}

QStringList ExifRunnerRemoveExifGroupsOperation::undecodedMakerNotesArgs()
{
    return QStringList{QStringLiteral("-n"), QStringLiteral("-X"),
                       QStringLiteral("-MakerNotes:all=")} +
           MetadataReader::structureArguments();
}

QStringList ExifRunnerRemoveExifGroupsOperation::addRemoveArgs() const
{
    // Make and model go with the notes on purpose: the camera maker is what brings the
    // maker-note fields into the form, and they would have nothing left to show.
    return QStringList{QStringLiteral("-n"), QStringLiteral("-X"), QStringLiteral("-make="),
                       QStringLiteral("-model="), QStringLiteral("-makernotes=")} +
           MetadataReader::structureArguments();
}
