#pragma once

#include "engine/exiffileinfo.h"
#include "engine/exifoperationstatus.h"

#include <QHash>
#include <QString>

// Told of a batch's progress, always on the main thread: for each file fileToBeProcessed then
// fileProcessed, files in batch order, finishProcessing last.
class ExifBackgroundRunnerListener
{
public:
    virtual ~ExifBackgroundRunnerListener() = default;

    // file is always null: listeners know the file by the status's fileName.
    virtual void fileToBeProcessed(const ExifFileInfoPtr &file,
                                   const ExifOperationStatus &status) = 0;
    virtual void fileProcessed(const ExifFileInfoPtr &file, const ExifOperationStatus &status) = 0;
    // File path -> its messages; files whose operation stored none are absent.
    virtual void finishProcessing(const QHash<QString, ErrorMessagesPtr> &results) = 0;
};
