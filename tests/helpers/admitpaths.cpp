// Admits the paths given as arguments and prints the outcome, one line each: "accepted PATH" or
// "<reason> PATH". Lets a test see admission through the eyes of an unprivileged user.
#include "engine/fileadmission.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const FileAdmissionResult result =
        FileAdmission::preprocessFilesToBeAdded(app.arguments().mid(1), {});
    QTextStream out(stdout);
    for (const QString &path : result.accepted)
        out << "accepted " << path << '\n';
    for (const FileRejection &rejection : result.rejected)
        out << FileAdmission::reasonText(rejection) << ' ' << rejection.path << '\n';
    return 0;
}
