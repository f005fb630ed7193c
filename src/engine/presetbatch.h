#pragma once

#include "engine/exiffileinfo.h"

#include <QList>
#include <QString>
#include <QStringList>

class Preset;

// Sets a preset's values in a file's current values and removes the tags it removes; nothing is
// written until the file is saved.
void applyPreset(const Preset &preset, ExifFileInfo &file);

// Applies a preset to files without a window (the command line's --apply-preset): admits the
// paths as the window would, reads them, applies the preset and saves the files it changes
// through the same safe save as the window. Runs an event loop until the saves are done.
class PresetBatch
{
public:
    enum class Outcome { Saved, Unchanged, Failed };
    struct FileResult
    {
        QString path;
        Outcome outcome = Outcome::Failed;
        // Errors of a failed file; warnings of a saved one.
        QStringList messages;
    };

    static QList<FileResult> run(const Preset &preset, const QStringList &paths);
    // "PATH: saved", "PATH: unchanged", or "PATH: " and what went wrong.
    static QString describe(const FileResult &result);
};
