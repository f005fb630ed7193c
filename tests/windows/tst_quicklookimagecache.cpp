#include "values/tagsmithexception.h"
#include "windows/quicklookimagecache.h"
#include "windows/thumbnailmaker.h"

#include "../support/fixtures.h"

#include <QBuffer>
#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>
#include <stdexcept>

namespace {

constexpr int previewTimeoutMs = 30000;

class RecordingListener : public QuickLookImageCacheListener
{
public:
    struct Call
    {
        QString path;
        QImage image;
        bool isOnMainThread = false;
    };

    void imageLoaded(const QImage &image, const QString &path, QuickLookImageCache *) override
    {
        calls.append(
            {path, image, QThread::currentThread() == QCoreApplication::instance()->thread()});
        if (onCall)
            onCall();
    }

    int count(const QString &path) const
    {
        return int(std::count_if(calls.cbegin(), calls.cend(),
                                 [&path](const Call &call) { return call.path == path; }));
    }

    QList<Call> calls;
    std::function<void()> onCall;
};

// Left half red, right half blue: which way a picture was turned shows at a glance.
QImage halves(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height, Qt::red);
    return image;
}

bool isNear(QColor actual, QColor expected)
{
    return qAbs(actual.red() - expected.red()) < 60 &&
           qAbs(actual.green() - expected.green()) < 60 &&
           qAbs(actual.blue() - expected.blue()) < 60;
}

// The smallest Photoshop file: one grey channel, no resources. Qt has no reader for it.
bool writePsd(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream out(&file);
    const quint32 width = 4, height = 3;
    out.writeRawData("8BPS", 4);
    out << quint16(1) << quint32(0) << quint16(0) << quint16(1) << height << width << quint16(8)
        << quint16(1) << quint32(0) << quint32(0) << quint32(0) << quint16(0);
    for (quint32 i = 0; i < width * height; ++i)
        out << quint8(128);
    return out.status() == QDataStream::Ok;
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return QStringLiteral("could not write ") + path;
    return {};
}

// A Photoshop file carrying `thumbnail` as its embedded preview.
QString makePsdWithThumbnail(const QString &path, const QString &thumbnail, int orientation)
{
    if (!writePsd(path))
        return QStringLiteral("could not write ") + path;
    QStringList arguments{QStringLiteral("-overwrite_original"),
                          QStringLiteral("-PhotoshopThumbnail<=") + thumbnail};
    if (orientation != 0)
        arguments << QStringLiteral("-Orientation#=%1").arg(orientation);
    arguments << QStringLiteral("--") << path;
    const Fixtures::ToolRun run = Fixtures::runExifTool(arguments);
    return run.ok() ? QString() : QString::fromUtf8(run.err);
}

} // namespace

class TestQuickLookImageCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void previewOfEachReadableFormat_data();
    void previewOfEachReadableFormat();
    void bigJpegIsReadAtReducedSize();
    void orientationTurnsThePreview_data();
    void orientationTurnsThePreview();
    void orientationsMatchQtReading_data();
    void orientationsMatchQtReading();
    void embeddedPreviewOfFilesQtCannotRead_data();
    void embeddedPreviewOfFilesQtCannotRead();
    void filesWithoutPreviewGetPlaceholder_data();
    void filesWithoutPreviewGetPlaceholder();
    void eachFileIsMadeOnce();
    void listenerExceptionIsLoggedAndOthersAreTold_data();
    void listenerExceptionIsLoggedAndOthersAreTold();
    void destroyedListenerIsNoLongerTold();
    void removedPreviewsAreMadeAgain();
    void memoryBudgetDropsLeastRecentlyUsed();
    void manyRequestsNeverBlockAndNewestComeFirst();

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
};

void TestQuickLookImageCache::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QCOMPARE(halves(60, 40).save(path(QStringLiteral("halves.jpg")), "jpg", 95), true);
}

void TestQuickLookImageCache::previewOfEachReadableFormat_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("jpeg") << QStringLiteral("a.jpg");
    QTest::newRow("png") << QStringLiteral("a.png");
    QTest::newRow("tiff") << QStringLiteral("a.tif");
    QTest::newRow("gif") << QStringLiteral("a.gif");
    QTest::newRow("upper-case suffix") << QStringLiteral("B.JPG");
}

void TestQuickLookImageCache::previewOfEachReadableFormat()
{
    QFETCH(QString, name);
    const QString file = path(name);
    if (name.endsWith(QStringLiteral(".gif"))) {
        // Qt writes no GIF: an 8x6 picture of one colour, #2060c0.
        QCOMPARE(writeFile(file, QByteArray::fromHex("47494638396108000600f000002060c0000000"
                                                     "21f90400000000002c000000000800060000"
                                                     "0206848fa9cb7d05003b")),
                 QString());
    } else {
        QCOMPARE(Fixtures::makeImage(file), QString());
    }
    const QSize expectedSize = name.endsWith(QStringLiteral(".gif")) ? QSize(8, 6) : QSize(64, 48);

    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    QVERIFY(cache.loadImage(file, 100, 100).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 1, previewTimeoutMs);

    const RecordingListener::Call call = listener.calls.first();
    QCOMPARE(call.path, file);
    QVERIFY(call.isOnMainThread);
    QVERIFY(!QuickLookImageCache::isPlaceholder(call.image));
    QCOMPARE(call.image.size(), expectedSize); // small pictures are not blown up
    QVERIFY(isNear(call.image.pixelColor(2, 2), QColor(0x20, 0x60, 0xc0)) ||
            isNear(call.image.pixelColor(2, 2), QColor(40, 90, 160)));
    QCOMPARE(cache.loadImage(file, 100, 100).cacheKey(), call.image.cacheKey());
}

void TestQuickLookImageCache::bigJpegIsReadAtReducedSize()
{
    const QString file = path(QStringLiteral("big.jpg"));
    QVERIFY(halves(6000, 4000).save(file, "jpg", 90));

    ThumbnailMaker maker;
    QElapsedTimer timer;
    timer.start();
    const QImage preview = maker.make(file, QSize(100, 100));
    const qint64 reducedMs = timer.restart();
    const QImage full(file);
    const qint64 fullMs = timer.elapsed();
    qInfo("24-megapixel JPEG: preview in %lld ms, full decode in %lld ms", reducedMs, fullMs);

    QCOMPARE(preview.width(), 100);
    QVERIFY2(preview.height() == 66 || preview.height() == 67,
             qPrintable(QString::number(preview.height())));
    QVERIFY(isNear(preview.pixelColor(10, 30), Qt::red));
    QVERIFY(isNear(preview.pixelColor(90, 30), Qt::blue));
}

void TestQuickLookImageCache::orientationTurnsThePreview_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("jpeg read by Qt") << QStringLiteral("turned.jpg");
    QTest::newRow("photoshop preview through ExifTool") << QStringLiteral("turned.psd");
}

void TestQuickLookImageCache::orientationTurnsThePreview()
{
    QFETCH(QString, name);
    const QString file = path(name);
    if (name.endsWith(QStringLiteral(".psd"))) {
        QCOMPARE(makePsdWithThumbnail(file, path(QStringLiteral("halves.jpg")), 6), QString());
    } else {
        QVERIFY(QFile::copy(path(QStringLiteral("halves.jpg")), file));
        const Fixtures::ToolRun run = Fixtures::runExifTool(
            {QStringLiteral("-overwrite_original"), QStringLiteral("-Orientation#=6"), file});
        QVERIFY2(run.ok(), run.err.constData());
    }

    // A box wider than high: the turned picture must still fit in it.
    const QImage preview = ThumbnailMaker().make(file, QSize(60, 30));
    QCOMPARE(preview.size(), QSize(20, 30));
    // A quarter turn clockwise brings the left (red) half to the top.
    QVERIFY(isNear(preview.pixelColor(10, 4), Qt::red));
    QVERIFY(isNear(preview.pixelColor(10, 26), Qt::blue));
}

void TestQuickLookImageCache::orientationsMatchQtReading_data()
{
    QTest::addColumn<int>("orientation");
    for (int orientation = 1; orientation <= 8; ++orientation)
        QTest::addRow("orientation %d", orientation) << orientation;
}

void TestQuickLookImageCache::orientationsMatchQtReading()
{
    // Embedded previews are turned by our own code; it must agree with Qt's reading of the
    // same tag on a lossless picture whose six pixels all differ.
    QFETCH(int, orientation);
    QImage pixels(3, 2, QImage::Format_RGB32);
    const QRgb colours[] = {0xff0000, 0x00ff00, 0x0000ff, 0xffff00, 0x00ffff, 0xff00ff};
    for (int i = 0; i < 6; ++i)
        pixels.setPixel(i % 3, i / 3, colours[i]);
    const QString file = path(QStringLiteral("pixels%1.tif").arg(orientation));
    QVERIFY(pixels.save(file, "tif"));
    const Fixtures::ToolRun run =
        Fixtures::runExifTool({QStringLiteral("-overwrite_original"),
                               QStringLiteral("-Orientation#=%1").arg(orientation), file});
    QVERIFY2(run.ok(), run.err.constData());

    QImageReader reader(file);
    reader.setAutoTransform(true);
    const QImage expected = reader.read().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(ThumbnailMaker::oriented(pixels, orientation).convertToFormat(QImage::Format_RGB32),
             expected);
}

void TestQuickLookImageCache::embeddedPreviewOfFilesQtCannotRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("photoshop") << QStringLiteral("embedded.psd");
    QTest::newRow("photoshop named as TIFF") << QStringLiteral("embedded-psd.tif");
}

void TestQuickLookImageCache::embeddedPreviewOfFilesQtCannotRead()
{
    QFETCH(QString, name);
    const QString file = path(name);
    // ExifTool writes into a Photoshop file only under its own suffix.
    const QString written = file + QStringLiteral(".psd");
    QCOMPARE(makePsdWithThumbnail(written, path(QStringLiteral("halves.jpg")), 0), QString());
    QVERIFY(QFile::rename(written, file));
    QVERIFY(QImageReader(file).read().isNull());

    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    QVERIFY(cache.loadImage(file, 100, 100).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 1, previewTimeoutMs);

    const QImage preview = listener.calls.first().image;
    QVERIFY(!QuickLookImageCache::isPlaceholder(preview));
    QCOMPARE(preview.size(), QSize(60, 40));
    QVERIFY(isNear(preview.pixelColor(10, 20), Qt::red));
    QVERIFY(isNear(preview.pixelColor(50, 20), Qt::blue));
}

void TestQuickLookImageCache::filesWithoutPreviewGetPlaceholder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text named as JPEG") << QStringLiteral("notes.jpg") << QByteArray("hello\n");
    QTest::newRow("empty PNG") << QStringLiteral("empty.png") << QByteArray();
    QTest::newRow("text named as raw") << QStringLiteral("notes.nef") << QByteArray("hello\n");
    QTest::newRow("photoshop without preview") << QStringLiteral("bare.psd") << QByteArray();
    QTest::newRow("missing file") << QStringLiteral("gone.jpg") << QByteArray();
}

void TestQuickLookImageCache::filesWithoutPreviewGetPlaceholder()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QString file = path(name);
    if (name == QStringLiteral("bare.psd"))
        QVERIFY(writePsd(file));
    else if (name != QStringLiteral("gone.jpg"))
        QCOMPARE(writeFile(file, content), QString());

    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    QVERIFY(cache.loadImage(file, 135, 84).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 1, previewTimeoutMs);
    QVERIFY(QuickLookImageCache::isPlaceholder(listener.calls.first().image));
    QCOMPARE(listener.calls.first().image.size(), QSize(135, 84));

    // Remembered, so a list that repaints does not ask again and again.
    QVERIFY(QuickLookImageCache::isPlaceholder(cache.loadImage(file, 135, 84)));
    QCOMPARE(cache.pendingCount(), 0);
}

void TestQuickLookImageCache::eachFileIsMadeOnce()
{
    const QString file = path(QStringLiteral("once.jpg"));
    QVERIFY(halves(3000, 2000).save(file, "jpg"));
    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    for (int i = 0; i < 5; ++i) {
        QVERIFY(cache.loadImage(file, 100, 100).isNull());
        QCoreApplication::processEvents(); // later paints ask again while it is being made
    }
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 1, previewTimeoutMs);
    QTRY_COMPARE(cache.pendingCount(), 0);
    QTest::qWait(200);
    QCOMPARE(listener.calls.size(), 1);
    QVERIFY(!cache.loadImage(file, 100, 100).isNull());
}

void TestQuickLookImageCache::listenerExceptionIsLoggedAndOthersAreTold_data()
{
    QTest::addColumn<bool>("isTagsmithException");
    QTest::addColumn<QString>("message");
    QTest::newRow("named exception") << true << QStringLiteral("Exception cought: listener broke");
    QTest::newRow("standard exception") << false << QStringLiteral("Exception cought: boom");
}

void TestQuickLookImageCache::listenerExceptionIsLoggedAndOthersAreTold()
{
    QFETCH(bool, isTagsmithException);
    QFETCH(QString, message);
    QuickLookImageCache cache;
    RecordingListener failing;
    RecordingListener next;
    failing.onCall = [isTagsmithException] {
        if (isTagsmithException)
            throw TagsmithException(TagsmithException::Invalid, QStringLiteral("listener broke"));
        throw std::runtime_error("boom");
    };
    cache.addListener(&failing);
    cache.addListener(&next);

    QTest::ignoreMessage(QtWarningMsg, message.toUtf8().constData());
    const QString file = path(QStringLiteral("halves.jpg"));
    cache.loadImage(file, 100, 100);
    QTRY_COMPARE_WITH_TIMEOUT(next.calls.size(), 1, previewTimeoutMs);
    QCOMPARE(failing.calls.size(), 1);
    QCOMPARE(next.calls.first().path, file);
}

void TestQuickLookImageCache::destroyedListenerIsNoLongerTold()
{
    QuickLookImageCache cache;
    auto gone = std::make_unique<RecordingListener>();
    RecordingListener staying;
    cache.addListener(gone.get());
    cache.addListener(&staying);
    gone.reset();

    cache.loadImage(path(QStringLiteral("halves.jpg")), 100, 100);
    QTRY_COMPARE_WITH_TIMEOUT(staying.calls.size(), 1, previewTimeoutMs);
}

void TestQuickLookImageCache::removedPreviewsAreMadeAgain()
{
    const QString first = path(QStringLiteral("halves.jpg"));
    const QString second = path(QStringLiteral("again.png"));
    QCOMPARE(Fixtures::makeImage(second), QString());
    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    cache.loadImage(first, 100, 100);
    cache.loadImage(second, 100, 100);
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 2, previewTimeoutMs);

    cache.removeImage(first);
    QVERIFY(cache.loadImage(first, 100, 100).isNull());
    QVERIFY(!cache.loadImage(second, 100, 100).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.count(first), 2, previewTimeoutMs);

    cache.removeAll();
    QVERIFY(cache.loadImage(first, 100, 100).isNull());
    QVERIFY(cache.loadImage(second, 100, 100).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.count(second), 2, previewTimeoutMs);
    QTRY_COMPARE_WITH_TIMEOUT(listener.count(first), 3, previewTimeoutMs);
}

void TestQuickLookImageCache::memoryBudgetDropsLeastRecentlyUsed()
{
    // 64x48 previews take 12 KB each: a 30 KB budget holds two.
    QuickLookImageCache cache(nullptr, 30 * 1024);
    RecordingListener listener;
    cache.addListener(&listener);
    QStringList files;
    for (int i = 0; i < 3; ++i) {
        files << path(QStringLiteral("budget%1.png").arg(i));
        QCOMPARE(Fixtures::makeImage(files.last()), QString());
        cache.loadImage(files.last(), 100, 100);
        QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), i + 1, previewTimeoutMs);
        if (i == 1)
            QVERIFY(!cache.loadImage(files.first(), 100, 100).isNull()); // used again: kept
    }
    QVERIFY(!cache.loadImage(files.at(0), 100, 100).isNull());
    QVERIFY(!cache.loadImage(files.at(2), 100, 100).isNull());
    QVERIFY(cache.loadImage(files.at(1), 100, 100).isNull());
}

void TestQuickLookImageCache::manyRequestsNeverBlockAndNewestComeFirst()
{
    const QString source = path(QStringLiteral("many.jpg"));
    QVERIFY(halves(1600, 1200).save(source, "jpg"));
    QStringList files;
    for (int i = 0; i < 400; ++i) {
        files << path(QStringLiteral("many%1.jpg").arg(i));
        QVERIFY(QFile::copy(source, files.last()));
    }
    const QString late = path(QStringLiteral("late.jpg"));
    QVERIFY(QFile::copy(source, late));

    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    QElapsedTimer timer;
    timer.start();
    for (const QString &file : std::as_const(files))
        QVERIFY(cache.loadImage(file, 100, 100).isNull());
    const qint64 requestMs = timer.elapsed();
    qInfo("400 requests queued in %lld ms", requestMs);
    QVERIFY2(requestMs < 1000, "queueing previews must not wait for them");
    // Rows scrolled past long ago are dropped rather than made first.
    QVERIFY(cache.pendingCount() < 300);

    QCoreApplication::processEvents(); // the next paint: a later batch
    cache.loadImage(late, 100, 100);
    QTRY_VERIFY_WITH_TIMEOUT(listener.count(late) == 1, previewTimeoutMs);
    int position = 0;
    while (listener.calls.at(position).path != late)
        ++position;
    // Served in order of asking, it would come after the 256 still waiting.
    qInfo("the latest request came out after %d others", position);
    QVERIFY2(position < 100, qPrintable(QString::number(position)));
}

QTEST_MAIN(TestQuickLookImageCache)
#include "tst_quicklookimagecache.moc"
