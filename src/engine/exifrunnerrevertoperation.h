#pragma once

#include "engine/filerewriteoperation.h"
#include "engine/revertrecord.h"

#include <memory>

// Writes back what a file held before its last save, through the same road as the save, or puts
// back the whole file that a removal of all metadata kept, and then forgets the record. A file
// changed on disk since that save is left alone.
class ExifRunnerRevertOperation : public FileRewriteOperation
{
public:
    // Null when the file has no record.
    static std::shared_ptr<ExifRunnerRevertOperation> create(ExifFileInfoPtr efi,
                                                             ExifOperationOption options);

    ExifRunnerRevertOperation(ExifFileInfoPtr efi, ExifOperationOption options, RevertEntry entry);

    void run() override;
    void postProcessInMainThread() override;

    const RevertEntry &entry() const { return m_entry; }
    // ExifTool's arguments, up to but without "-o" and the paths; importPath is the JSON file of
    // the previous values (unused when there are none).
    QStringList exifToolArguments(const QString &importPath) const;

protected:
    void verifyWrittenValues(const TagDictionary &written, ErrorMessages &errors) override;
    std::optional<QDateTime> findDateForFile(const QString &key) const override;

private:
    // Puts the whole file kept by a removal of all metadata back in place.
    void restoreKeptFile(const ErrorMessagesPtr &errors);

    const RevertEntry m_entry;
};
