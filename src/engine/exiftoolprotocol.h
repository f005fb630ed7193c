#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

// The text protocol of a persistent "exiftool -stay_open True -@ -" process, as pure functions.
namespace ExifToolProtocol {

// One argument as one line of the argument stream, or nothing when the stream cannot carry it
// unchanged (the caller then runs that command in a process of its own). ExifTool's "#[CSTR]"
// lines keep blanks and line breaks but, in 13.59, put a backslash before every "$" and "@";
// plain lines keep those but lose leading blanks, blank lines and the blanks around "=".
std::optional<QByteArray> encodeArgument(const QString &argument);

// After "--" ExifTool no longer sees "-execute", so the stream cannot use "--": it is dropped and
// the file names after it that begin with "-" get a "./" so they still name the same files.
QStringList withoutEndOfOptions(const QStringList &arguments);

// The whole command numbered `number`: its exit status is echoed on standard error, then the
// command is run. Nothing when one of the arguments cannot be carried.
std::optional<QByteArray> encodeCommand(const QStringList &arguments, int number);

// What ExifTool prints on standard output once command `number` is complete.
QByteArray readyMarker(int number);

// Command `number`'s output when `standardOutput` ends with its ready marker.
std::optional<QByteArray> outputBeforeReady(const QByteArray &standardOutput, int number);

struct StatusLine
{
    QByteArray errors; // what the command printed on standard error before its status
    int status = -1;
};

// Command `number`'s errors and exit status when `standardError` ends with its status line.
std::optional<StatusLine> splitStatus(const QByteArray &standardError, int number);

} // namespace ExifToolProtocol
