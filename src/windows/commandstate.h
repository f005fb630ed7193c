#pragma once

#include "engine/exiffileinfo.h"

#include <QList>

// What the enablement of the window's commands depends on; each part of the window decides
// its own commands from it.
struct CommandState
{
    bool saving = false;
    // Some file in the list has unsaved edits.
    bool hasModifiedFiles = false;
    QList<ExifFileInfoPtr> selected;
};
