// Times the reads a save makes of the settings store (the save options, once per file) with a
// store holding some presets, from the main thread and from a second thread at once.
//   bench_settings [reads=10000] [presets=20]

#include "values/usersettings.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <future>

namespace {

// What one file's save asks of the store.
int readSaveOptions()
{
    return int(UserSettings::forceFixBase()) + int(UserSettings::ignoreMinorErrors()) +
           int(UserSettings::writesReadOnlyFiles()) + int(UserSettings::writesXmpSidecars()) +
           int(UserSettings::verifiesImageData(QStringLiteral("/photos/a.nef"))) +
           int(UserSettings::fileModifyDateMode()) + int(UserSettings::fileCreateDateMode());
}

int readMany(int reads)
{
    int sum = 0;
    for (int i = 0; i < reads; ++i)
        sum += readSaveOptions();
    return sum;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int reads = args.size() > 1 ? args.at(1).toInt() : 10000;
    const int presets = args.size() > 2 ? args.at(2).toInt() : 20;
    QTextStream out(stdout);
    if (reads < 1 || presets < 0) {
        out << "usage: bench_settings [reads=10000] [presets=20]\n";
        return 2;
    }

    QTemporaryDir dir;
    UserSettings::setStoreFile(dir.filePath(QStringLiteral("settings.ini")));
    for (int i = 0; i < presets; ++i) {
        UserSettings::setValue(
            QStringLiteral("configuration-%1").arg(i),
            QStringLiteral("<configuration name=\"Preset %1\">%2</configuration>")
                .arg(i)
                .arg(QString(400, u'x')));
    }
    UserSettings::setValue(UserSettings::ForceFixBase, true);

    QElapsedTimer timer;
    timer.start();
    const int one = readMany(reads);
    const double alone = double(timer.nsecsElapsed()) / reads / 1000.0;

    timer.restart();
    auto other = std::async(std::launch::async, readMany, reads);
    const int two = readMany(reads) + other.get();
    const double together = double(timer.nsecsElapsed()) / (2.0 * reads) / 1000.0;

    out << "save options read " << reads << " times from a store of " << presets << " presets\n"
        << "  one thread:  " << alone << " µs per file\n"
        << "  two threads: " << together << " µs per file (wall time / reads)\n";
    return one * 2 == two ? 0 : 1;
}
