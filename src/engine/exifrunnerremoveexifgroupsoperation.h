#pragma once

#include "engine/exifrunnerfilemodifiyoperation.h"

#include <QStringList>

// Removes the maker notes, with the camera make and model, from a file.
class ExifRunnerRemoveExifGroupsOperation : public ExifRunnerFileModifiyOperation
{
public:
    ExifRunnerRemoveExifGroupsOperation(ExifFileInfoPtr efi, quint32 options);

    void run() override;

    bool removeMakerNotes() const { return m_removeMakerNotes; }
    void setRemoveMakerNotes(bool remove) { m_removeMakerNotes = remove; }

protected:
    QStringList addRemoveArgs() const;

private:
    bool m_removeMakerNotes = false;
};
