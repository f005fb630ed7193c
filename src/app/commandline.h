#pragma once

#include "engine/fileadmission.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// What the program's arguments ask for. Paths come out absolute, resolved against the folder the
// program was started in.
struct CommandLine
{
    enum class Mode { Window, Help, Version, ApplyPreset, Error };

    Mode mode = Mode::Window;
    bool debug = false;
    QString presetName;
    QStringList paths;
    // Names that cannot be opened (not valid UTF-8), for the add-files note.
    QList<FileRejection> rejected;
    QString errorText;

    // arguments[0] is the program, each argument the bytes given. Everything after "--" is a
    // path.
    static CommandLine parse(const QList<QByteArray> &arguments, const QString &currentFolder);
    static CommandLine parse(const QStringList &arguments, const QString &currentFolder);

    // Whether the arguments ask for something done without a window, so no display is needed.
    // Asked before the GUI takes its own options (-platform, -style...) out of the list.
    static bool isHeadless(const QStringList &arguments);

    static QString helpText();
};

// Runs a headless request and gives the exit status: 0 when all went well, 1 when a file
// failed or ExifTool cannot be run, 2 when the command line or the preset name is wrong.
int runHeadless(const CommandLine &commandLine);
