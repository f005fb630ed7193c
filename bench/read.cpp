// Times reading a batch of JPEG files through MetadataReader against the bare ExifTool read command
// on the same files, so the cost of parsing and formatting shows as a ratio.
//   bench_read [files=1000] [rounds=5]

#include "engine/exiffileinfo.h"
#include "engine/exifreportparser.h"
#include "engine/metadatareader.h"
#include "catalogue/exiffieldscontroller.h"

#include "benchexiftool.h"

#include <QColor>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

const QString exifTool = QStringLiteral(TAGSMITH_BENCH_EXIFTOOL);

// One picture with the metadata a camera and a photographer typically leave, copied N times.
QStringList makeFiles(const QString &directory, int count)
{
    const QString first = directory + QStringLiteral("/img_0000.jpg");
    QImage image(640, 480, QImage::Format_RGB32);
    image.fill(QColor(40, 90, 160));
    QPainter painter(&image);
    painter.fillRect(80, 80, 240, 160, QColor(230, 200, 40));
    painter.end();
    if (!image.save(first, "jpg"))
        return {};
    const QStringList tags{QStringLiteral("-IFD0:Make=NIKON CORPORATION"),
                           QStringLiteral("-IFD0:Model=NIKON D850"),
                           QStringLiteral("-IFD0:ImageDescription=Evening light over the harbour"),
                           QStringLiteral("-IFD0:Artist=A. Photographer"),
                           QStringLiteral("-IFD0:Copyright=(c) 2024"),
                           QStringLiteral("-ExifIFD:DateTimeOriginal=2024:06:15 18:30:00"),
                           QStringLiteral("-ExifIFD:CreateDate=2024:06:15 18:30:00"),
                           QStringLiteral("-ExifIFD:ExposureTime=0.004"),
                           QStringLiteral("-ExifIFD:FNumber=5.6"),
                           QStringLiteral("-ExifIFD:ISO=200"),
                           QStringLiteral("-ExifIFD:FocalLength=35"),
                           QStringLiteral("-ExifIFD:LensModel=24-70mm f/2.8"),
                           QStringLiteral("-GPS:GPSLatitude=48.8583"),
                           QStringLiteral("-GPS:GPSLatitudeRef=N"),
                           QStringLiteral("-GPS:GPSLongitude=2.2945"),
                           QStringLiteral("-GPS:GPSLongitudeRef=E"),
                           QStringLiteral("-GPS:GPSAltitude=35.5"),
                           QStringLiteral("-IPTC:Keywords=harbour"),
                           QStringLiteral("-IPTC:Keywords=boats, evening"),
                           QStringLiteral("-IPTC:City=Marseille"),
                           QStringLiteral("-XMP-dc:Subject=harbour"),
                           QStringLiteral("-XMP-dc:Subject=boats"),
                           QStringLiteral("-XMP-dc:Title=Harbour"),
                           QStringLiteral("-XMP-xmp:Rating=4")};
    if (!runExifTool(QStringList{QStringLiteral("-overwrite_original")} + tags +
                     QStringList{QStringLiteral("--"), first}))
        return {};
    QStringList paths{first};
    for (int i = 1; i < count; ++i) {
        const QString path =
            directory + QStringLiteral("/img_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
        if (!QFile::copy(first, path))
            return {};
        paths.append(path);
    }
    return paths;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype n = values.size();
    return n % 2 ? values.at(n / 2) : (values.at(n / 2 - 1) + values.at(n / 2)) / 2;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int count = args.size() > 1 ? args.at(1).toInt() : 1000;
    const int rounds = args.size() > 2 ? args.at(2).toInt() : 5;
    QTextStream out(stdout);
    if (count < 1 || rounds < 1) {
        out << "usage: bench_read [files=1000] [rounds=5]\n";
        return 2;
    }

    QTemporaryDir dir;
    const QStringList paths = makeFiles(dir.path(), count);
    if (paths.size() != count) {
        out << "could not make the files with " << exifTool << "\n";
        return 1;
    }
    ExifFieldsController::defaultInstance()->initializeConfigurations();

    MetadataReader runner(exifTool);
    const QStringList bareArguments = MetadataReader::readCommandArguments(paths);
    QList<double> bareTimes;
    QList<double> runnerTimes;
    QList<double> parseTimes;
    QByteArray lastReport;
    qsizetype tagCount = 0;
    // Alternating rounds share out the machine's drift between both sides.
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        QByteArray report;
        if (!runExifTool(bareArguments, &report)) {
            out << "the bare read command failed\n";
            return 1;
        }
        bareTimes.append(timer.nsecsElapsed() / 1e6);
        lastReport = report;

        QList<ExifFileInfoPtr> files;
        files.reserve(count);
        for (const QString &path : paths)
            files.append(std::make_shared<ExifFileInfo>(path));
        timer.restart();
        const ExifReadResult result = runner.readRecords(files);
        runnerTimes.append(timer.nsecsElapsed() / 1e6);
        if (!result.ok()) {
            out << result.errorMessage << "\n";
            return 1;
        }
        tagCount = files.first()->exifData().size();
        out << "round " << round + 1 << ": bare " << Qt::fixed << qSetRealNumberPrecision(1)
            << bareTimes.last() << " ms, readRecords " << runnerTimes.last() << " ms\n";
        out.flush();
    }

    // Our own share, without ExifTool: parsing and formatting the captured report.
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        const QHash<QString, TagDictionary> records = ExifReportParser::parse(lastReport);
        for (const TagDictionary &record : records)
            runner.preformatValues(record);
        parseTimes.append(timer.nsecsElapsed() / 1e6);
    }

    const double bare = median(bareTimes);
    const double loaded = median(runnerTimes);
    out << count << " files, " << tagCount << " tags each, report " << lastReport.size() / 1024
        << " KiB\n"
        << "median bare read command:     " << bare << " ms\n"
        << "median readRecords:  " << loaded << " ms\n"
        << "median parse and format only: " << median(parseTimes) << " ms\n"
        << "ratio: " << qSetRealNumberPrecision(3) << loaded / bare << " (limit 1.10)\n";
    return loaded / bare <= 1.10 ? 0 : 3;
}
