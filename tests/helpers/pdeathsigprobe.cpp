// Starts an ExifTool child, prints the child's process id and aborts, so that a test can check
// the child does not outlive it:
//   pdeathsigprobe persistent EXIFTOOL   a persistent ExifTool that has answered one command
//   pdeathsigprobe oneshot FAKEEXIFTOOL  a one-shot child that never ends by itself
#include "engine/exiftoolcommand.h"
#include "engine/exiftoolprocess.h"

#include <QByteArrayView>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString program = QString::fromLocal8Bit(argv[2]);
    if (mode == u"persistent") {
        ExifToolProcess process(program);
        if (!process.execute({QStringLiteral("-ver")}, 60000).hasSucceeded())
            return 1;
        std::printf("%lld\n", static_cast<long long>(process.processId()));
        std::fflush(stdout);
        std::abort();
    }
    ExifToolCommand(program).run({QStringLiteral("pid"), QStringLiteral("hang")},
                                 [](QByteArrayView chunk) {
                                     std::fwrite(chunk.data(), 1, size_t(chunk.size()), stdout);
                                     std::fflush(stdout);
                                     std::abort();
                                 });
    return 1;
}
