// Times saving a batch of JPEG files through WriteQueue (a caption, a date shift and
// a GPS position changed in each) against ExifTool writing the same values to copies of the
// same files in one batch command, against one ExifTool process per file, and against one batch
// write followed by one batch read (the work a save with its re-read asks for). Also prints
// what the image-data check costs per megabyte.
//   bench_save [files=500] [rounds=3] [single-process sample=20]

#include "catalogue/exiffieldscontroller.h"
#include "engine/writequeue.h"
#include "engine/exiffileinfo.h"
#include "engine/metadatareader.h"
#include "values/usersettings.h"

#include "benchexiftool.h"

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <functional>

namespace {

const QString exifTool = QStringLiteral(TAGSMITH_BENCH_EXIFTOOL);

bool makeTemplate(const QString &path)
{
    QImage image(1600, 1200, QImage::Format_RGB32);
    auto *random = QRandomGenerator::global();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, int(random->bounded(256))));
    }
    if (!image.save(path, "jpg", 90))
        return false;
    return runExifTool(
        {QStringLiteral("-overwrite_original"), QStringLiteral("-IFD0:Make=NIKON CORPORATION"),
         QStringLiteral("-IFD0:Model=NIKON D850"),
         QStringLiteral("-IPTC:Caption-Abstract=Old caption"),
         QStringLiteral("-ExifIFD:DateTimeOriginal=2024:06:15 18:30:00"),
         QStringLiteral("-IFD0:ModifyDate=2024:06:15 18:30:00"),
         QStringLiteral("-GPS:GPSLatitude=48.8583"), QStringLiteral("-GPS:GPSLatitudeRef=N"),
         QStringLiteral("-GPS:GPSLongitude=2.2945"), QStringLiteral("-GPS:GPSLongitudeRef=E"),
         QStringLiteral("--"), path});
}

QStringList copies(const QString &templatePath, const QString &directory, int count)
{
    QDir().mkpath(directory);
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        const QString path =
            directory + QStringLiteral("/img_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
        if (!QFile::copy(templatePath, path))
            return {};
        paths.append(path);
    }
    return paths;
}

// The same three edits the runner is given.
const QStringList WriteArguments{
    QStringLiteral("-n"),
    QStringLiteral("-IPTC:Caption-Abstract=Evening light over the harbour"),
    QStringLiteral("-CodedCharacterSet=\x1b%G"),
    QStringLiteral("-ExifIFD:DateTimeOriginal+=0:0:1 02:00:00"),
    QStringLiteral("-GPS:GPSLatitude=33.8688"),
    QStringLiteral("-GPS:GPSLatitudeRef=S"),
    QStringLiteral("-GPS:GPSLongitude=151.2093"),
    QStringLiteral("-GPS:GPSLongitudeRef=E"),
    QStringLiteral("-overwrite_original"),
};

class WaitingListener final : public QObject
{
public:
    void listen(WriteQueue &runner)
    {
        connect(&runner, &WriteQueue::fileFinished, this,
                [this](const ExifFileInfoPtr &, const ExifOperationStatus &status) {
                    if (status.errors())
                        problems += qsizetype(status.errors()->errorsCount() +
                                              status.errors()->warnsCount());
                });
        connect(&runner, &WriteQueue::batchFinished, &loop, &QEventLoop::quit);
    }
    QEventLoop loop;
    qsizetype problems = 0;
};

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype n = values.size();
    return n % 2 ? values.at(n / 2) : (values.at(n / 2 - 1) + values.at(n / 2)) / 2;
}

// What flushing a new file and its folder costs here, which a save pays per file for durability
// and ExifTool's own batch write does not.
double flushCostPerFile(const QString &directory, qint64 size, int files)
{
    const QByteArray data(size, 'x');
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < files; ++i) {
        QFile file(directory + QStringLiteral("/flush%1").arg(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(data) != size)
            return -1;
        ::fsync(file.handle());
        file.close();
        const int folder = ::open(QFile::encodeName(directory).constData(), O_RDONLY);
        ::fsync(folder);
        ::close(folder);
    }
    return timer.nsecsElapsed() / 1e6 / files;
}

double timed(const std::function<bool()> &work)
{
    QElapsedTimer timer;
    timer.start();
    if (!work())
        return -1;
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int count = args.size() > 1 ? args.at(1).toInt() : 500;
    const int rounds = args.size() > 2 ? args.at(2).toInt() : 3;
    const int sample = std::min(count, args.size() > 3 ? args.at(3).toInt() : 20);
    QTextStream out(stdout);
    if (count < 1 || rounds < 1 || sample < 1) {
        out << "usage: bench_save [files=500] [rounds=3] [single-process sample=20]\n";
        return 2;
    }

    QTemporaryDir dir;
    UserSettings::setStoreFile(dir.filePath(QStringLiteral("settings.ini")));
    UserSettings::setValue(UserSettings::FileModifyDate, 0);
    const QString templatePath = dir.filePath(QStringLiteral("template.jpg"));
    if (!makeTemplate(templatePath)) {
        out << "could not make the files with " << exifTool << "\n";
        return 1;
    }
    ExifFieldsController::defaultInstance()->initializeConfigurations();
    const double megabytes = QFileInfo(templatePath).size() / (1024.0 * 1024.0);

    QList<double> runnerTimes, batchTimes, singleTimes, batchReadTimes, hashTimes;
    WriteQueue runner(nullptr, ExifToolSessionKind::Persistent, exifTool);
    for (int round = 0; round < rounds; ++round) {
        const QString base = dir.filePath(QStringLiteral("round%1").arg(round));

        // Through the runner: read (not timed), edit, save with its checks and re-read.
        const QStringList ours = copies(templatePath, base + QStringLiteral("/runner"), count);
        QList<ExifFileInfoPtr> files;
        for (const QString &path : ours)
            files.append(std::make_shared<ExifFileInfo>(path));
        MetadataReader(exifTool).readRecords(files);
        for (const ExifFileInfoPtr &file : std::as_const(files)) {
            file->setExifValue(QStringLiteral("IPTC:Caption-Abstract"),
                               QStringLiteral("Evening light over the harbour"));
            file->setExifValue(QStringLiteral("ExifIFD:DateTimeOriginal"), QStringLiteral("+1d2h"));
            file->setExifValue(QStringLiteral("GPS:GPSLatitude"), QStringLiteral("33.8688"));
            file->setExifValue(QStringLiteral("GPS:GPSLatitudeRef"), QStringLiteral("S"));
            file->setExifValue(QStringLiteral("GPS:GPSLongitude"), QStringLiteral("151.2093"));
        }
        WaitingListener listener;
        listener.listen(runner);
        runnerTimes.append(timed([&] {
            runner.saveFiles(files, ExifOperationOption::ReReadFile);
            listener.loop.exec();
            return true;
        }));
        if (listener.problems) {
            out << "the runner reported " << listener.problems << " errors or warnings\n";
            return 1;
        }

        const QStringList batch = copies(templatePath, base + QStringLiteral("/batch"), count);
        batchTimes.append(timed([&] { return runExifTool(WriteArguments + batch); }));

        const QStringList pair = copies(templatePath, base + QStringLiteral("/pair"), count);
        batchReadTimes.append(timed([&] {
            return runExifTool(WriteArguments + pair) &&
                   runExifTool(MetadataReader::readCommandArguments(pair));
        }));

        // A sample of one-process-per-file runs, scaled to the batch.
        const QStringList single = copies(templatePath, base + QStringLiteral("/single"), sample);
        singleTimes.append(timed([&] {
                               for (const QString &path : single) {
                                   if (!runExifTool(WriteArguments + QStringList{path}))
                                       return false;
                               }
                               return true;
                           }) *
                           count / sample);

        const double plain =
            timed([&] { return runExifTool(MetadataReader::readCommandArguments(pair)); });
        const double hashed = timed([&] {
            return runExifTool(
                QStringList{QStringLiteral("-api"), QStringLiteral("requesttags=ImageDataHash")} +
                MetadataReader::readCommandArguments(pair));
        });
        hashTimes.append((hashed - plain) / (megabytes * count));

        out << "round " << round + 1 << ": runner " << Qt::fixed << qSetRealNumberPrecision(0)
            << runnerTimes.last() << " ms, batch write " << batchTimes.last()
            << " ms, batch write + read " << batchReadTimes.last() << " ms, per file (scaled) "
            << singleTimes.last() << " ms\n";
        out.flush();
        QDir(base).removeRecursively();
    }

    const double flush = flushCostPerFile(dir.path(), QFileInfo(templatePath).size(), 20);
    const double ours = median(runnerTimes);
    const double batch = median(batchTimes);
    const double pair = median(batchReadTimes);
    const double single = median(singleTimes);
    out << count << " files of " << qSetRealNumberPrecision(2) << megabytes << " MB, " << rounds
        << " rounds\n"
        << qSetRealNumberPrecision(0) << "median WriteQueue save:      " << ours << " ms\n"
        << "median one batch write:               " << batch << " ms\n"
        << "median one batch write + batch read:  " << pair << " ms\n"
        << "median one process per file (scaled from " << sample << "): " << single << " ms\n"
        << qSetRealNumberPrecision(2) << "ratio to batch write:          " << ours / batch << "\n"
        << "ratio to batch write + read:   " << ours / pair << " (limit 1.25)\n"
        << "speed-up over process per file: " << single / ours << " (at least 30)\n"
        << "flushing one file and its folder: " << flush << " ms; ratio to batch write + read "
        << "without it: " << (ours - flush * count) / pair << "\n"
        << "image-data check: " << median(hashTimes) << " ms per MB\n";
    return ours / pair <= 1.5 && single / ours >= 30 ? 0 : 3;
}
