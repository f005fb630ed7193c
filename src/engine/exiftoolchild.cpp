#include "engine/exiftoolchild.h"

#include <QCoreApplication>
#include <QProcess>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace ExifToolChild {

void prepare(QProcess &process)
{
    const pid_t parent = getpid();
    // SIGINT rather than SIGKILL: ExifTool's own handler deletes its half-written temporary file
    // and lets a file replacement already under way finish.
    process.setChildProcessModifier([parent] {
        prctl(PR_SET_PDEATHSIG, SIGINT);
        // The parent may have died before prctl took effect.
        if (getppid() != parent)
            _exit(127);
    });
}

QString startFailedMessage(const QString &program, const QString &reason)
{
    return QCoreApplication::translate("Localizable",
                                       "ExifTool could not be started from \"%1\": %2")
        .arg(program, reason);
}

QString crashedMessage(const QString &program)
{
    return QCoreApplication::translate("Localizable", "ExifTool (\"%1\") stopped unexpectedly.")
        .arg(program);
}

QString timedOutMessage(const QString &program)
{
    return QCoreApplication::translate("Localizable", "ExifTool (\"%1\") did not answer in time.")
        .arg(program);
}

} // namespace ExifToolChild
