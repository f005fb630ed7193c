#include "engine/exifrunnerremovemetadataoperation.h"

#include "values/tagsmithexception.h"

// Being written alongside the base class; run() is filled in next.
ExifRunnerRemoveMetadataOperation::ExifRunnerRemoveMetadataOperation(ExifFileInfoPtr efi, quint32 options)
    : ExifRunnerFileModifiyOperation(std::move(efi), options)
{
}

void ExifRunnerRemoveMetadataOperation::run()
{
    throw TagsmithException(TagsmithException::NotImplemented, QStringLiteral("Not implemented"));
}

bool ExifRunnerRemoveMetadataOperation::hasIFD0MinorWarning(const ErrorMessages &)
{
    return false;
}

void ExifRunnerRemoveMetadataOperation::removeIFD0MinorWarning(ErrorMessages &) {}

QSet<QString> ExifRunnerRemoveMetadataOperation::collectRemovableItems(const QStringList &)
{
    return {};
}

QStringList ExifRunnerRemoveMetadataOperation::addRemoveArgs(QStringList arguments) const
{
    return arguments;
}
