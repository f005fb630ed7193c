// Times the main window with a large batch of typical camera JPEGs (about 200 tags each): the
// chunked read against one bare ExifTool read of all files, resident memory once loaded, showing
// all files in the form, a caption edit over all files, and optionally saving them all against
// one ExifTool batch write of the same value.
//   bench_scale [files=10000] [--save] [--one-run] [--no-bare-read]
// With --save it also prints the ratio of the save to one bare batch write and to one batch
// write plus one batch read, the cost per file of saving 500 files against all of them, and
// the peak of resident memory while saving.
//
// The files are copies of one picture written once by ExifTool; each copy gets its own serial
// number, caption, title and identifiers by overwriting a placeholder of the same length in the
// copied bytes, so no two records are alike without running ExifTool per file.

#include "engine/filelistmodel.h"
#include "windows/filelistview.h"
#include "engine/filereadqueue.h"
#include "windows/auxiliarywindows.h"
#include "windows/fileoperations.h"
#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowcontroller.h"
#include "catalogue/exiffieldscontroller.h"
#include "editors/configurationviewcontroller.h"
#include "editors/texteditor.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "values/usersettings.h"
#include "windows/fileinfocell.h"

#include "benchexiftool.h"

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <QTimer>

#include <malloc.h>

#include <algorithm>
#include <cstdio>

namespace {

const QString exifTool = QStringLiteral(TAGSMITH_BENCH_EXIFTOOL);
const QByteArray placeholder = QByteArrayLiteral("QQQQQQQQ");
const QString caption = QStringLiteral("Evening light over the harbour");

// Tags a camera, a phone's GPS and a photographer's cataloguing leave; with the XMP mirrors of
// the EXIF tags and ExifTool's own File, JFIF and Composite tags, about 215 per file.
const char *const templateTags[] = {
    "IFD0:Make=NIKON CORPORATION",
    "IFD0:Model=NIKON D850",
    "IFD0:ImageDescription=Frame QQQQQQQQ, evening light over the harbour",
    "IFD0:Artist=A. Photographer",
    "IFD0:Copyright=(c) 2024 A. Photographer",
    "IFD0:Software=Ver.1.10",
    "IFD0:Orientation=1",
    "IFD0:XResolution=300",
    "IFD0:YResolution=300",
    "IFD0:ResolutionUnit=2",
    "IFD0:ModifyDate=2024:06:15 18:30:00",
    "IFD0:YCbCrPositioning=2",
    "ExifIFD:ExposureTime=0.004",
    "ExifIFD:FNumber=5.6",
    "ExifIFD:ExposureProgram=3",
    "ExifIFD:ISO=200",
    "ExifIFD:SensitivityType=2",
    "ExifIFD:ExifVersion=0231",
    "ExifIFD:DateTimeOriginal=2024:06:15 18:30:00",
    "ExifIFD:CreateDate=2024:06:15 18:30:00",
    "ExifIFD:OffsetTime=+02:00",
    "ExifIFD:OffsetTimeOriginal=+02:00",
    "ExifIFD:OffsetTimeDigitized=+02:00",
    "ExifIFD:ComponentsConfiguration=1 2 3 0",
    "ExifIFD:ExposureCompensation=-0.33",
    "ExifIFD:MaxApertureValue=2.8",
    "ExifIFD:MeteringMode=5",
    "ExifIFD:LightSource=0",
    "ExifIFD:Flash=16",
    "ExifIFD:FocalLength=35",
    "ExifIFD:UserComment=QQQQQQQQ",
    "ExifIFD:SubSecTime=42",
    "ExifIFD:SubSecTimeOriginal=42",
    "ExifIFD:SubSecTimeDigitized=42",
    "ExifIFD:FlashpixVersion=0100",
    "ExifIFD:ColorSpace=1",
    "ExifIFD:ExifImageWidth=320",
    "ExifIFD:ExifImageHeight=240",
    "ExifIFD:SensingMethod=2",
    "ExifIFD:FileSource=3",
    "ExifIFD:SceneType=1",
    "ExifIFD:CustomRendered=0",
    "ExifIFD:ExposureMode=0",
    "ExifIFD:WhiteBalance=0",
    "ExifIFD:DigitalZoomRatio=1",
    "ExifIFD:FocalLengthIn35mmFormat=35",
    "ExifIFD:SceneCaptureType=0",
    "ExifIFD:GainControl=0",
    "ExifIFD:Contrast=0",
    "ExifIFD:Saturation=0",
    "ExifIFD:Sharpness=0",
    "ExifIFD:SubjectDistanceRange=0",
    "ExifIFD:SerialNumber=QQQQQQQQ",
    "ExifIFD:LensInfo=24 70 2.8 2.8",
    "ExifIFD:LensMake=NIKON",
    "ExifIFD:LensModel=24-70mm f/2.8",
    "ExifIFD:LensSerialNumber=201234",
    "ExifIFD:ImageUniqueID=QQQQQQQQQQQQQQQQQQQQQQQQQQQQQQQQ",
    "ExifIFD:OwnerName=A. Photographer",
    "GPS:GPSVersionID=2 3 0 0",
    "GPS:GPSLatitudeRef=N",
    "GPS:GPSLatitude=43.2951",
    "GPS:GPSLongitudeRef=E",
    "GPS:GPSLongitude=5.3745",
    "GPS:GPSAltitudeRef=0",
    "GPS:GPSAltitude=35.5",
    "GPS:GPSTimeStamp=16:30:00",
    "GPS:GPSSatellites=8",
    "GPS:GPSMapDatum=WGS-84",
    "GPS:GPSDateStamp=2024:06:15",
    "GPS:GPSImgDirectionRef=T",
    "GPS:GPSImgDirection=212.5",
    "IPTC:ObjectName=Harbour QQQQQQQQ",
    "IPTC:Keywords=harbour",
    "IPTC:Keywords=boats, evening",
    "IPTC:Keywords=Marseille",
    "IPTC:By-line=A. Photographer",
    "IPTC:City=Marseille",
    "IPTC:Province-State=Provence",
    "IPTC:Country-PrimaryLocationName=France",
    "IPTC:Caption-Abstract=Frame QQQQQQQQ, evening light over the harbour",
    "IPTC:CopyrightNotice=(c) 2024",
    "IPTC:DateCreated=2024:06:15",
    "IPTC:TimeCreated=18:30:00+02:00",
    "IPTC:Credit=Agency",
    "IPTC:Source=Own work",
    "IPTC:Headline=Harbour at dusk",
    "IPTC:Urgency=5",
    "IPTC:Category=TRV",
    "XMP-dc:Subject=harbour",
    "XMP-dc:Subject=boats",
    "XMP-dc:Subject=Marseille",
    "XMP-dc:Title=Harbour QQQQQQQQ",
    "XMP-dc:Description=Frame QQQQQQQQ, evening light over the harbour",
    "XMP-dc:Creator=A. Photographer",
    "XMP-dc:Rights=(c) 2024",
    "XMP-xmp:Rating=4",
    "XMP-xmp:Label=Green",
    "XMP-xmp:CreatorTool=Ver.1.10",
    "XMP-xmp:MetadataDate=2024:06:16 09:00:00+02:00",
    "XMP-xmpMM:DocumentID=xmp.did:QQQQQQQQ",
    "XMP-xmpMM:InstanceID=xmp.iid:QQQQQQQQ",
    "XMP-xmpMM:OriginalDocumentID=QQQQQQQQ",
    "XMP-photoshop:City=Marseille",
    "XMP-photoshop:State=Provence",
    "XMP-photoshop:Country=France",
    "XMP-photoshop:Headline=Harbour at dusk",
    "XMP-photoshop:Credit=Agency",
    "XMP-photoshop:Source=Own work",
    "XMP-photoshop:DateCreated=2024:06:15 18:30:00+02:00",
    "XMP-iptcCore:Location=Vieux-Port",
    "XMP-iptcCore:CountryCode=FR",
    "XMP-iptcCore:CreatorWorkEmail=photo@example.org",
    "XMP-aux:Lens=24-70mm f/2.8",
    "XMP-aux:SerialNumber=QQQQQQQQ",
    "XMP-aux:LensID=158",
    "XMP-lr:HierarchicalSubject=Places|France|Marseille",
    "XMP-xmpRights:Marked=True",
    "XMP-xmpRights:UsageTerms=All rights reserved"};

bool makeTemplate(const QString &path)
{
    QImage image(320, 240, QImage::Format_RGB32);
    image.fill(QColor(70, 130, 180));
    if (!image.save(path, "jpg", 85))
        return false;
    QStringList arguments{QStringLiteral("-n"), QStringLiteral("-overwrite_original")};
    for (const char *tag : templateTags)
        arguments.append(QLatin1Char('-') + QString::fromUtf8(tag));
    if (!runExifTool(arguments + QStringList{QStringLiteral("--"), path}))
        return false;
    return runExifTool({QStringLiteral("-overwrite_original"), QStringLiteral("-tagsFromFile"),
                        QStringLiteral("@"), QStringLiteral("-XMP-exif:all<ExifIFD:all"),
                        QStringLiteral("-XMP-tiff:all<IFD0:all"),
                        QStringLiteral("-XMP-exif:all<GPS:all"), QStringLiteral("--"), path});
}

QStringList makeCopies(const QByteArray &bytes, const QString &directory, int count)
{
    QList<qsizetype> spots;
    for (qsizetype at = bytes.indexOf(placeholder); at >= 0;
         at = bytes.indexOf(placeholder, at + placeholder.size()))
        spots.append(at);
    QStringList paths;
    QByteArray copy = bytes;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(placeholder.size(), '0');
        for (const qsizetype at : std::as_const(spots))
            copy.replace(at, number.size(), number);
        const QString path =
            directory + QStringLiteral("/DSC_%1.jpg").arg(i, 5, 10, QLatin1Char('0'));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(copy) != copy.size())
            return {};
        paths.append(path);
    }
    return paths;
}

qint64 residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return -1;
}

bool waitUntil(const std::function<bool()> &done, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!done()) {
        if (timer.elapsed() > timeoutMs)
            return false;
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return true;
}

TextEditor *captionRow(ConfigurationViewController &form)
{
    for (FieldEditor *editor : form.fields()) {
        auto *text = dynamic_cast<TextEditor *>(editor);
        if (text && text->field()->xmlName() == QStringLiteral("IPTC:Caption-Abstract"))
            return text;
    }
    return nullptr;
}

class WaitingListener final : public QObject
{
public:
    void listen(WriteQueue &runner)
    {
        connect(&runner, &WriteQueue::fileFinished, this,
                [this](const ExifFileInfoPtr &, const ExifOperationStatus &status) {
                    ++processed;
                    if (status.errors())
                        problems += qsizetype(status.errors()->errorsCount());
                });
        connect(&runner, &WriteQueue::batchFinished, &loop, &QEventLoop::quit);
    }
    QEventLoop loop;
    qsizetype processed = 0;
    qsizetype problems = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TAGSMITH_EXIFTOOL", exifTool.toUtf8());
    QApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    const bool save = args.removeAll(QStringLiteral("--save")) > 0;
    const bool oneRun = args.removeAll(QStringLiteral("--one-run")) > 0;
    // Skips the bare read (and so the read ratio) when only the later figures are wanted.
    const bool bareRead = args.removeAll(QStringLiteral("--no-bare-read")) == 0;
    const int count = args.isEmpty() ? 10000 : args.first().toInt();
    if (count < 1) {
        std::printf("usage: bench_scale [files=10000] [--save] [--one-run] [--no-bare-read]\n");
        return 2;
    }

    QTemporaryDir dir;
    UserSettings::setStoreFile(dir.filePath(QStringLiteral("settings.ini")));
    UserSettings::setValue(UserSettings::FileModifyDate, 0);
    const QString templatePath = dir.filePath(QStringLiteral("template.jpg"));
    QElapsedTimer timer;
    timer.start();
    QFile templateFile(templatePath);
    if (!makeTemplate(templatePath) || !templateFile.open(QIODevice::ReadOnly)) {
        std::printf("could not make the files with %s\n", qPrintable(exifTool));
        return 1;
    }
    const QByteArray templateBytes = templateFile.readAll();
    const QString folder = dir.filePath(QStringLiteral("photos"));
    QDir().mkpath(folder);
    const QStringList paths = makeCopies(templateBytes, folder, count);
    if (paths.size() != count) {
        std::printf("could not write the copies\n");
        return 1;
    }
    std::printf("made %d files of %lld bytes in %.1f s\n", count,
                static_cast<long long>(templateBytes.size()), timer.nsecsElapsed() / 1e9);
    std::fflush(stdout);

    // The bare read: the arguments our read uses, all files in one run, output thrown away.
    double bare = 0;
    if (bareRead) {
        timer.restart();
        if (!runExifTool(MetadataReader::readCommandArguments(paths))) {
            std::printf("the bare read command failed\n");
            return 1;
        }
        bare = timer.nsecsElapsed() / 1e6;
        std::printf("bare ExifTool read of all files: %.0f ms\n", bare);
        std::fflush(stdout);
    }

    ExifFieldsController::defaultInstance()->initializeConfigurations();
    if (oneRun) {
        // Our read without the window and without chunks, to tell the chunks' share apart.
        QList<ExifFileInfoPtr> files;
        for (const QString &path : paths)
            files.append(std::make_shared<ExifFileInfo>(path));
        timer.restart();
        MetadataReader(exifTool).readRecords(files);
        std::printf("one MetadataReader read of all files: %.0f ms, ratio %.3f\n",
                    timer.nsecsElapsed() / 1e6, timer.nsecsElapsed() / 1e6 / bare);
        std::fflush(stdout);
        // The same chunks as the window's, without the window.
        FileReadQueue queue;
        files.clear();
        for (const QString &path : paths)
            files.append(std::make_shared<ExifFileInfo>(path));
        timer.restart();
        queue.enqueue({files, {}, {}});
        queue.waitForIdle(3600 * 1000);
        std::printf("chunked read without the window: %.0f ms, ratio %.3f\n",
                    timer.nsecsElapsed() / 1e6, timer.nsecsElapsed() / 1e6 / bare);
        std::fflush(stdout);
    }
    MainWindowController controller;
    controller.window()->resize(1200, 800);
    controller.window()->show();
    QApplication::processEvents();
    const qint64 rssBefore = residentKiB();

    timer.restart();
    controller.fileList()->addFiles(paths);
    if (!controller.fileList()->waitForPendingReads(3600 * 1000) ||
        controller.fileList()->files().size() != count) {
        std::printf("the main window read %lld of %d files\n",
                    static_cast<long long>(controller.fileList()->files().size()), count);
        return 1;
    }
    const double ours = timer.nsecsElapsed() / 1e6;
    const qsizetype tags = controller.fileList()->files().first()->exifData().size();
    std::printf("main window read (chunked) of all files: %.0f ms, %lld tags in the first file\n",
                ours, static_cast<long long>(tags));
    if (bareRead)
        std::printf("ratio: %.3f (limit 1.15)\n", ours / bare);
    std::fflush(stdout);

    // The add selected every file, so the form already shows them all; time showing them again.
    QApplication::processEvents();
    const qint64 rssAfter = residentKiB();
    std::printf("resident: %.1f MB before adding, %.1f MB with %d files (limit 300); "
                "%.1f KiB per file\n",
                rssBefore / 1024.0, rssAfter / 1024.0, count, double(rssAfter - rssBefore) / count);
    // What is live, apart from what the allocator keeps after the read's short-lived texts.
    const struct mallinfo2 heap = mallinfo2();
    std::printf("heap in use: %.1f MB\n", double(heap.uordblks + heap.hblkhd) / (1024 * 1024));

    const auto printResident = [](const char *step) {
        std::printf("  resident after %s: %.1f MB\n", step, residentKiB() / 1024.0);
    };
    ConfigurationViewController &form = *controller.configController();
    form.setExifFiles({});
    QApplication::processEvents();
    timer.restart();
    form.setExifFiles(controller.fileList()->files());
    QApplication::processEvents();
    std::printf("setExifFiles with all files: %.0f ms\n", timer.nsecsElapsed() / 1e6);
    printResident("showing all files in the form");

    // As the user sees it: Select All in the list until the form is filled and painted.
    QItemSelectionModel &selection = *controller.fileList()->view()->selectionModel();
    double slowestSelect = 0;
    for (int round = 0; round < 3; ++round) {
        selection.clearSelection();
        QApplication::processEvents();
        timer.restart();
        controller.fileList()->view()->selectAll();
        controller.window()->repaint();
        QApplication::processEvents();
        slowestSelect = std::max(slowestSelect, timer.nsecsElapsed() / 1e6);
    }
    std::printf("select all and show the form (slowest of 3): %.0f ms (limit 1000)\n",
                slowestSelect);
    printResident("selecting all three times");
    std::fflush(stdout);

    TextEditor *row = captionRow(form);
    if (!row || !row->editor()) {
        std::printf("no caption row in the form\n");
        return 1;
    }
    FileListModel &model = *controller.fileList()->model();
    const auto allModified = [&model] {
        for (int r = 0; r < model.rowCount(); ++r) {
            if (!model.data(model.index(r), FileInfoCell::ModifiedRole).toBool())
                return false;
        }
        return true;
    };
    timer.restart();
    // As typed: the row only takes text the user edited.
    row->editor()->setText(caption);
    Q_EMIT row->editor()->textEdited(caption);
    Q_EMIT row->editor()->editingFinished();
    const bool modified = waitUntil(allModified, 60000);
    std::printf("caption edit over all files until the list shows them modified: %.0f ms%s "
                "(limit 1000)\n",
                timer.nsecsElapsed() / 1e6, modified ? "" : " (NOT all modified)");
    printResident("the caption edit");
    std::fflush(stdout);

    if (save) {
        // The same edit written and read back by bare ExifTool, one command each, on copies.
        const QString batchFolder = dir.filePath(QStringLiteral("batch"));
        QDir().mkpath(batchFolder);
        const QStringList batch = makeCopies(templateBytes, batchFolder, count);
        timer.restart();
        const bool wrote = runExifTool(
            QStringList{QStringLiteral("-n"), QStringLiteral("-IPTC:Caption-Abstract=") + caption,
                        QStringLiteral("-CodedCharacterSet=\x1b%G"),
                        QStringLiteral("-overwrite_original")} +
            batch);
        const double batchMs = timer.nsecsElapsed() / 1e6;
        timer.restart();
        const bool read = runExifTool(MetadataReader::readCommandArguments(batch));
        const double batchReadMs = timer.nsecsElapsed() / 1e6;
        if (!wrote || !read) {
            std::printf("the batch write or read failed\n");
            return 1;
        }
        std::printf("one ExifTool batch write: %.0f ms; one batch read of the written files: %.0f "
                    "ms\n",
                    batchMs, batchReadMs);
        printResident("the batch write and read");
        std::fflush(stdout);

        // The cost per file of a small save, on copies of its own, to set against the large one.
        constexpr int Small = 500;
        const QString smallFolder = dir.filePath(QStringLiteral("small"));
        QDir().mkpath(smallFolder);
        QList<ExifFileInfoPtr> small;
        for (const QString &path : makeCopies(templateBytes, smallFolder, std::min(Small, count)))
            small.append(std::make_shared<ExifFileInfo>(path));
        MetadataReader(exifTool).readRecords(small);
        for (const ExifFileInfoPtr &file : std::as_const(small))
            file->setExifValue(QStringLiteral("IPTC:Caption-Abstract"), caption);

        WriteQueue runner(nullptr, ExifToolSessionKind::Persistent, exifTool);
        WaitingListener listener;
        listener.listen(runner);
        timer.restart();
        runner.saveFiles(small, ExifOperationOption::ReReadFile);
        listener.loop.exec();
        const double smallMs = timer.nsecsElapsed() / 1e6;
        listener.processed = 0;
        listener.problems = 0;

        // The window stays usable while saving when its event loop never waits long: the
        // longest gap between ticks of a short timer is the longest pause a user would feel.
        QTimer ticker;
        QElapsedTimer sinceTick;
        qint64 longestPauseNs = 0;
        qint64 peakKiB = residentKiB();
        const struct mallinfo2 heapBefore = mallinfo2();
        std::printf("resident before the save, with the caption edit pending in every file: %.1f "
                    "MB; heap in use %.1f MB\n",
                    peakKiB / 1024.0,
                    double(heapBefore.uordblks + heapBefore.hblkhd) / (1024 * 1024));
        int ticks = 0;
        QObject::connect(&ticker, &QTimer::timeout, [&] {
            longestPauseNs = std::max(longestPauseNs, sinceTick.nsecsElapsed());
            sinceTick.restart();
            if (++ticks % 20 == 0)
                peakKiB = std::max(peakKiB, residentKiB());
        });
        timer.restart();
        runner.saveFiles(controller.fileList()->files(), ExifOperationOption::ReReadFile);
        sinceTick.start();
        ticker.start(5);
        listener.loop.exec();
        ticker.stop();
        peakKiB = std::max(peakKiB, residentKiB());
        const double saved = timer.nsecsElapsed() / 1e6;
        std::printf("WriteQueue save of all files: %.0f ms, %lld told per file, %lld "
                    "errors\n",
                    saved, static_cast<long long>(listener.processed),
                    static_cast<long long>(listener.problems));
        std::printf("ratio to one batch write: %.3f; to one batch write + read: %.3f (limit 1.5)\n",
                    saved / batchMs, saved / (batchMs + batchReadMs));
        std::printf("cost per file: %.2f ms saving %d, %.2f ms saving %d; ratio %.3f (limit 1.2)\n",
                    smallMs / small.size(), int(small.size()), saved / count, count,
                    (saved / count) / (smallMs / small.size()));
        std::printf("longest main-thread pause while saving: %.1f ms (timer every 5 ms, limit "
                    "50)\n",
                    longestPauseNs / 1e6);
        std::printf("resident memory at its peak while saving: %.1f MB (limit 400); %.1f MB "
                    "after\n",
                    peakKiB / 1024.0, residentKiB() / 1024.0);
    }
    return 0;
}
