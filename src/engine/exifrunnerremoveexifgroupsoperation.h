#pragma once

#include "engine/filerewriteoperation.h"

#include <QStringList>

// Removes the maker notes, with the camera make and model, from a file.
class ExifRunnerRemoveExifGroupsOperation : public FileRewriteOperation
{
public:
    ExifRunnerRemoveExifGroupsOperation(ExifFileInfoPtr efi, ExifOperationOption options);

    void run() override;

    // Set by the runner on every such operation; run() removes the notes either way.
    bool removeMakerNotes() const { return m_removeMakerNotes; }
    void setRemoveMakerNotes(bool remove) { m_removeMakerNotes = remove; }

    // ExifTool's arguments, up to but without "-o" and the paths.
    QStringList addRemoveArgs() const;
    // Notes that ExifTool found but could not decode need a pass of their own, made first.
    static bool hasUndecodedMakerNotes(const TagDictionary &tags);
    static QStringList undecodedMakerNotesArgs();

private:
    void finish(const WriteResult &result, const ErrorMessagesPtr &errors);

    bool m_removeMakerNotes = false;
};
