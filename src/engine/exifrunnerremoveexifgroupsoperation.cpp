#include "engine/exifrunnerremoveexifgroupsoperation.h"

#include <QMutexLocker>

ExifRunnerRemoveExifGroupsOperation::ExifRunnerRemoveExifGroupsOperation(ExifFileInfoPtr efi,
                                                                         quint32 options)
    : ExifRunnerFileModifiyOperation(std::move(efi), options)
{
}

void ExifRunnerRemoveExifGroupsOperation::run()
{
    auto errors = std::make_shared<ErrorMessages>(fileName());
    // Stored before ExifTool runs, so that an exception later on still reaches the file's
    // results.
    storeResults(errors, std::nullopt);
    const WriteResult result = writeFile(addRemoveArgs(), *errors);

    QMutexLocker locker(&m_lock);
    std::optional<TagDictionary> reRead;
    if (reReads() && result.reRead) {
        reRead = result.reRead;
        efi()->setExifData(*reRead);
        efi()->setOriginalExifData(*reRead);
    }
    if (result.replaced)
        updateFileDates();
    locker.unlock();
    if (reRead)
        storeResults(errors, reRead);
}

QStringList ExifRunnerRemoveExifGroupsOperation::addRemoveArgs() const
{
    // Make and model go with the notes on purpose: the camera maker is what brings the
    // maker-note fields into the form, and they would have nothing left to show.
    return {QStringLiteral("-n"), QStringLiteral("-X"), QStringLiteral("-make="),
            QStringLiteral("-model="), QStringLiteral("-makernotes=")};
}
