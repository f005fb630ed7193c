#include "engine/exifrunnerremoveexifgroupsoperation.h"

#include "values/tagsmithexception.h"

// Being written alongside the base class; run() is filled in next.
ExifRunnerRemoveExifGroupsOperation::ExifRunnerRemoveExifGroupsOperation(ExifFileInfoPtr efi, quint32 options)
    : ExifRunnerFileModifiyOperation(std::move(efi), options)
{
}

void ExifRunnerRemoveExifGroupsOperation::run()
{
    throw TagsmithException(TagsmithException::NotImplemented, QStringLiteral("Not implemented"));
}

QStringList ExifRunnerRemoveExifGroupsOperation::addRemoveArgs() const
{
    return {};
}
