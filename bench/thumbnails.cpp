// Times previews of generated 12-megapixel JPEGs through the preview cache, fed as a scrolling
// list feeds it, and watches how long the main thread ever goes without turning its loop.
//   bench_thumbnails [files=1000]

#include "windows/quicklookimagecache.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace {

class Counter : public QObject
{
public:
    void listen(QuickLookImageCache &cache)
    {
        cache.onImageReady(this, [this](const QString &, const QImage &) { ++made; });
    }
    int made = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int count = argc > 1 ? std::max(1, atoi(argv[1])) : 1000;
    qputenv("TAGSMITH_EXIFTOOL", TAGSMITH_BENCH_EXIFTOOL);

    QTemporaryDir dir;
    QImage picture(4000, 3000, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient gradient(0, 0, 4000, 3000);
    gradient.setColorAt(0, QColor(30, 80, 160));
    gradient.setColorAt(1, QColor(220, 180, 60));
    painter.fillRect(picture.rect(), gradient);
    for (int i = 0; i < 400; ++i)
        painter.fillRect((i * 97) % 3900, (i * 61) % 2900, 100, 100,
                         QColor::fromHsv(i % 360, 200, 200));
    painter.end();
    const QString source = dir.filePath(QStringLiteral("source.jpg"));
    if (!picture.save(source, "jpg", 90))
        return 1;
    QStringList files;
    for (int i = 0; i < count; ++i) {
        files << dir.filePath(QStringLiteral("IMG_%1.jpg").arg(i, 5, 10, QLatin1Char('0')));
        if (!QFile::copy(source, files.last()))
            return 1;
    }
    std::printf("%d JPEGs of 4000x3000, %lld bytes each\n", count, QFile(source).size());

    QuickLookImageCache cache;
    Counter counter;
    counter.listen(cache);
    QElapsedTimer clock;
    clock.start();
    int next = 0;
    qint64 lastTick = 0;
    qint64 longestStall = 0;
    QTimer ticker;
    ticker.setInterval(5);
    QObject::connect(&ticker, &QTimer::timeout, &application, [&] {
        const qint64 now = clock.elapsed();
        longestStall = std::max(longestStall, now - lastTick);
        lastTick = now;
        // A screenful of new rows whenever the cache has caught up with the last one.
        if (cache.pendingCount() < 10)
            for (int i = 0; i < 10 && next < count; ++i)
                cache.loadImage(files.at(next++), 135, 84);
        if (counter.made == count)
            application.quit();
    });
    ticker.start();
    application.exec();

    std::printf("previews made: %d in %.2f s (%.1f ms each)\n", counter.made,
                clock.elapsed() / 1000.0, double(clock.elapsed()) / count);
    std::printf("longest main-thread pause: %lld ms\n", longestStall);
    return 0;
}
