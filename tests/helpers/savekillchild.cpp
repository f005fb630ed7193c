// Saves every *.jpg of a folder with the title "new", the way the save operations do (one
// persistent ExifTool, "-o" to a scratch file, then the swap), so that a test can kill it at
// any moment:
//   savekillchild loop FOLDER   saves the files over and over until killed
//   savekillchild once FOLDER   saves each file once; exits 0 when all were saved
#include "engine/errormessages.h"
#include "engine/exiftoolsession.h"
#include "engine/filereplacement.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

namespace {

bool save(ExifToolSession &session, const QString &path)
{
    FileReplacement replacement(path);
    if (!replacement.prepare()) {
        std::fprintf(stderr, "%s\n", qPrintable(replacement.errorString()));
        return false;
    }
    const ExifToolResult result =
        session.execute({QStringLiteral("-o"), replacement.exifToolOutputPath(),
                         QStringLiteral("-XMP:Title=new"), QStringLiteral("--"), path});
    if (!result.hasSucceeded()) {
        std::fprintf(stderr, "%s%s\n", result.standardError.constData(),
                     qPrintable(result.errorMessage));
        return false;
    }
    ErrorMessages errors(path);
    if (!replacement.commit(errors)) {
        std::fprintf(stderr, "%s\n", qPrintable(replacement.errorString()));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const bool loop = qstrcmp(argv[1], "loop") == 0;
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    const QStringList names = folder.entryList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Name);
    if (names.isEmpty())
        return 3;

    const auto session = makeExifToolSession(ExifToolSessionKind::Persistent);
    do {
        for (const QString &name : names) {
            if (!save(*session, folder.filePath(name)))
                return 1;
            std::printf("saved %s\n", qPrintable(name));
            std::fflush(stdout);
        }
    } while (loop);
    return 0;
}
