// Saves the title "new" into every *.jpg of a folder through the background runner so that a
// test can kill it at any moment: "loop FOLDER SETTINGS" saves over and over until killed,
// "once FOLDER SETTINGS" saves once and exits 0 when all were saved. Prints "ready" after
// reading, then one "saved NAME" line per file.
#include "catalogue/exiffieldscontroller.h"
#include "engine/errormessages.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/scratchjournal.h"
#include "values/usersettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace {

class Listener final : public QObject
{
public:
    void listen(WriteQueue &runner)
    {
        connect(&runner, &WriteQueue::fileFinished, this,
                [this](const ExifFileInfoPtr &file, const ExifOperationStatus &status) {
                    if (status.errors() && status.errors()->errorsCount() > 0) {
                        std::fprintf(
                            stderr, "%s\n",
                            qPrintable(status.errors()->messages().constFirst().message()));
                        ++failures;
                    }
                    std::printf("saved %s\n", qPrintable(QFileInfo(file->fileName()).fileName()));
                    std::fflush(stdout);
                });
        connect(&runner, &WriteQueue::batchFinished, this, [this] { finished = true; });
    }

    int failures = 0;
    bool finished = false;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 4)
        return 2;
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    UserSettings::setStoreFile(QString::fromLocal8Bit(argv[3]));
    ScratchJournal::setPath(QFileInfo(QString::fromLocal8Bit(argv[3])).absolutePath() +
                            QStringLiteral("/scratch-folders"));
    ExifFieldsController::defaultInstance()->initializeConfigurations();
    QList<ExifFileInfoPtr> files;
    for (const QString &name : folder.entryList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Name))
        files << std::make_shared<ExifFileInfo>(folder.filePath(name));
    if (files.isEmpty() || !MetadataReader().readRecords(files).ok())
        return 3;
    std::printf("ready\n");
    std::fflush(stdout);

    Listener listener;
    WriteQueue runner;
    listener.listen(runner);
    do {
        // Each round starts from what was read, so every file is rewritten.
        for (const ExifFileInfoPtr &file : std::as_const(files)) {
            file->setExifData(file->originalExifData());
            file->setExifValue(QStringLiteral("XMP-dc:Title"), QStringLiteral("new"));
        }
        listener.finished = false;
        runner.saveFiles(files, ExifOperationOption::None);
        while (!listener.finished)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    } while (qstrcmp(argv[1], "loop") == 0 && listener.failures == 0);
    return listener.failures == 0 ? 0 : 1;
}
