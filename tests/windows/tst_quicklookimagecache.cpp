#include "values/tagsmithexception.h"
#include "windows/quicklookimagecache.h"
#include "windows/thumbnailmaker.h"

#include "../support/fixtures.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>
#include <stdexcept>

namespace {

constexpr int timeoutMs = 30000;

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
        calls.append({path, image, QThread::currentThread() == qApp->thread()});
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
    QPainter(&image).fillRect(0, 0, width / 2, height, Qt::red);
    return image;
}

bool isNear(QColor actual, QColor expected)
{
    return qAbs(actual.red() - expected.red()) + qAbs(actual.green() - expected.green()) +
               qAbs(actual.blue() - expected.blue()) <
           120;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// The smallest Photoshop file: 4x3, one grey channel, no resources. Qt has no reader for it.
bool writePsd(const QString &path)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.writeRawData("8BPS", 4);
    out << quint16(1) << quint32(0) << quint16(0) << quint16(1) << quint32(3) << quint32(4)
        << quint16(8) << quint16(1) << quint32(0) << quint32(0) << quint32(0) << quint16(0);
    return writeFile(path, bytes + QByteArray(12, char(128)));
}

bool runExifTool(const QStringList &arguments)
{
    const Fixtures::ToolRun run = Fixtures::runExifTool(arguments);
    if (!run.ok())
        qWarning("%s", run.err.constData());
    return run.ok();
}

// Photoshop files carry the halves picture as their preview; ExifTool writes one only into a
// file with the Photoshop suffix, so it is renamed afterwards.
bool makeFixture(const QString &file, const QString &kind, const QString &halvesJpeg)
{
    const QByteArray format = QFileInfo(file).suffix().toLower().toLatin1();
    const QString psd = file + QStringLiteral(".psd");
    const QString overwrite = QStringLiteral("-overwrite_original");
    if (kind == u"qt")
        return halves(60, 40).save(file, format.constData(), 95);
    if (kind == u"jpg6")
        return halves(60, 40).save(file, "jpg", 95) &&
               runExifTool({overwrite, QStringLiteral("-Orientation#=6"), file});
    if (kind == u"gif") // Qt writes no GIF: this is halves at 4x2
        return writeFile(file,
                         QByteArray::fromHex("47494638396104000200f00000ff00000000ff21f904"
                                             "00000000002c000000000400020000020404128605003b"));
    if (kind.startsWith(u"psd"))
        return writePsd(psd) &&
               runExifTool({overwrite, QStringLiteral("-PhotoshopThumbnail<=") + halvesJpeg,
                            QStringLiteral("-Orientation#=%1").arg(kind == u"psd6" ? 6 : 1),
                            psd}) &&
               QFile::rename(psd, file);
    if (kind == u"barepsd")
        return writePsd(file);
    if (kind == u"text")
        return writeFile(file, "hello\n");
    if (kind == u"empty")
        return writeFile(file, {});
    return kind == u"missing";
}

} // namespace

class TestQuickLookImageCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void previewOfEachKindOfFile_data();
    void previewOfEachKindOfFile();
    void bigJpegIsReadAtReducedSize();
    void orientationsMatchQtReading_data();
    void orientationsMatchQtReading();
    void eachFileIsMadeOnce();
    void listenerExceptionIsLoggedAndOthersAreTold_data();
    void listenerExceptionIsLoggedAndOthersAreTold();
    void removedPreviewsAreMadeAgain();
    void memoryBudgetDropsLeastRecentlyUsed();
    void manyRequestsNeverBlockAndNewestComeFirst();

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
};

void TestQuickLookImageCache::initTestCase()
{
    QVERIFY(makeFixture(path(QStringLiteral("halves.jpg")), QStringLiteral("qt"), {}));
}

void TestQuickLookImageCache::previewOfEachKindOfFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QSize>("box");
    QTest::addColumn<QSize>("size"); // invalid: the placeholder, at the box's size
    QTest::addColumn<bool>("isTurned");
    const QSize box(100, 100);
    const QSize natural(60, 40);
    QTest::newRow("jpeg") << "a.jpg"
                          << "qt" << box << natural << false;
    QTest::newRow("upper-case suffix") << "B.JPG"
                                       << "qt" << box << natural << false;
    QTest::newRow("png") << "a.png"
                         << "qt" << box << natural << false;
    QTest::newRow("tiff") << "a.tif"
                          << "qt" << box << natural << false;
    QTest::newRow("gif") << "a.gif"
                         << "gif" << box << QSize(4, 2) << false;
    QTest::newRow("jpeg turned") << "t.jpg"
                                 << "jpg6" << box << QSize(40, 60) << true;
    QTest::newRow("turned into a wide box") << "w.jpg"
                                            << "jpg6" << QSize(60, 30) << QSize(20, 30) << true;
    QTest::newRow("photoshop preview") << "p.psd"
                                       << "psd" << box << natural << false;
    QTest::newRow("photoshop named TIFF") << "p.tif"
                                          << "psd" << box << natural << false;
    QTest::newRow("photoshop preview turned") << "t.psd"
                                              << "psd6" << box << QSize(40, 60) << true;
    QTest::newRow("text named JPEG") << "n.jpg"
                                     << "text" << box << QSize() << false;
    QTest::newRow("text named raw") << "n.nef"
                                    << "text" << box << QSize() << false;
    QTest::newRow("empty PNG") << "e.png"
                               << "empty" << box << QSize() << false;
    QTest::newRow("photoshop without preview") << "b.psd"
                                               << "barepsd" << box << QSize() << false;
    QTest::newRow("missing file") << "gone.jpg"
                                  << "missing" << box << QSize() << false;
}

void TestQuickLookImageCache::previewOfEachKindOfFile()
{
    QFETCH(QString, name);
    QFETCH(QString, kind);
    QFETCH(QSize, box);
    QFETCH(QSize, size);
    QFETCH(bool, isTurned);
    const QString file = path(name);
    QVERIFY(makeFixture(file, kind, path(QStringLiteral("halves.jpg"))));

    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    QVERIFY(cache.loadImage(file, box.width(), box.height()).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 1, timeoutMs);
    const RecordingListener::Call call = listener.calls.first();
    QCOMPARE(call.path, file);
    QVERIFY(call.isOnMainThread);
    QCOMPARE(QuickLookImageCache::isPlaceholder(call.image), !size.isValid());
    QCOMPARE(call.image.size(), size.isValid() ? size : box); // small pictures are not blown up
    if (size.isValid()) {
        // A quarter turn clockwise brings the left (red) half to the top.
        const QImage &image = call.image;
        const int w = image.width(), h = image.height();
        QVERIFY(isNear(image.pixelColor(isTurned ? QPoint(w / 2, h / 4) : QPoint(w / 4, h / 2)),
                       Qt::red));
        QVERIFY(
            isNear(image.pixelColor(isTurned ? QPoint(w / 2, 3 * h / 4) : QPoint(3 * w / 4, h / 2)),
                   Qt::blue));
    }
    // Kept, also when there is no preview, so a list that repaints does not ask again.
    QCOMPARE(cache.loadImage(file, box.width(), box.height()).cacheKey(), call.image.cacheKey());
    QCOMPARE(cache.pendingCount(), 0);
}

void TestQuickLookImageCache::bigJpegIsReadAtReducedSize()
{
    const QString file = path(QStringLiteral("big.jpg"));
    QVERIFY(halves(6000, 4000).save(file, "jpg", 90));
    QElapsedTimer timer;
    timer.start();
    const QImage preview = ThumbnailMaker().make(file, QSize(100, 100));
    const qint64 reducedMs = timer.restart();
    QVERIFY(!QImage(file).isNull());
    qInfo("24-megapixel JPEG: preview in %lld ms, full decode in %lld ms", reducedMs,
          timer.elapsed());
    QCOMPARE(preview.width(), 100);
    QVERIFY(preview.height() == 66 || preview.height() == 67);
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
    QVERIFY(runExifTool({QStringLiteral("-overwrite_original"),
                         QStringLiteral("-Orientation#=%1").arg(orientation), file}));
    QImageReader reader(file);
    reader.setAutoTransform(true);
    QCOMPARE(ThumbnailMaker::oriented(pixels, orientation).convertToFormat(QImage::Format_RGB32),
             reader.read().convertToFormat(QImage::Format_RGB32));
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
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 1, timeoutMs);
    QTRY_COMPARE(cache.pendingCount(), 0);
    QTest::qWait(200);
    QCOMPARE(listener.calls.size(), 1);
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
    auto gone = std::make_unique<RecordingListener>();
    RecordingListener failing;
    RecordingListener next;
    failing.onCall = [isTagsmithException] {
        if (isTagsmithException)
            throw TagsmithException(TagsmithException::Invalid, QStringLiteral("listener broke"));
        throw std::runtime_error("boom");
    };
    for (RecordingListener *listener : {gone.get(), &failing, &next})
        cache.addListener(listener);
    gone.reset(); // a listener that went away is skipped, not called

    QTest::ignoreMessage(QtWarningMsg, message.toUtf8().constData());
    cache.loadImage(path(QStringLiteral("halves.jpg")), 100, 100);
    QTRY_COMPARE_WITH_TIMEOUT(next.calls.size(), 1, timeoutMs);
    QCOMPARE(failing.calls.size(), 1);
}

void TestQuickLookImageCache::removedPreviewsAreMadeAgain()
{
    const QString file = path(QStringLiteral("halves.jpg"));
    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    cache.loadImage(file, 100, 100);
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 1, timeoutMs);
    cache.removeImage(file);
    QVERIFY(cache.loadImage(file, 100, 100).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 2, timeoutMs);
    cache.removeAll();
    QVERIFY(cache.loadImage(file, 100, 100).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), 3, timeoutMs);
}

void TestQuickLookImageCache::memoryBudgetDropsLeastRecentlyUsed()
{
    // 60x40 previews take 9 KB each: a 20 KB budget holds two.
    QuickLookImageCache cache(nullptr, 20 * 1024);
    RecordingListener listener;
    cache.addListener(&listener);
    QStringList files;
    for (int i = 0; i < 3; ++i) {
        files << path(QStringLiteral("budget%1.png").arg(i));
        QVERIFY(makeFixture(files.last(), QStringLiteral("qt"), {}));
        cache.loadImage(files.last(), 100, 100);
        QTRY_COMPARE_WITH_TIMEOUT(listener.calls.size(), i + 1, timeoutMs);
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
    for (int i = 0; i <= 400; ++i) {
        files << path(QStringLiteral("many%1.jpg").arg(i));
        QVERIFY(QFile::copy(source, files.last()));
    }
    const QString late = files.takeLast();

    QuickLookImageCache cache;
    RecordingListener listener;
    cache.addListener(&listener);
    QElapsedTimer timer;
    timer.start();
    for (const QString &file : std::as_const(files))
        QVERIFY(cache.loadImage(file, 100, 100).isNull());
    qInfo("400 requests queued in %lld ms", timer.elapsed());
    QVERIFY2(timer.elapsed() < 1000, "queueing previews must not wait for them");
    QVERIFY(cache.pendingCount() < 300); // rows scrolled past long ago are dropped

    QCoreApplication::processEvents(); // the next paint: a later batch
    cache.loadImage(late, 100, 100);
    QTRY_COMPARE_WITH_TIMEOUT(listener.count(late), 1, timeoutMs);
    int position = 0;
    while (listener.calls.at(position).path != late)
        ++position;
    // Served in order of asking, it would come after the 256 still waiting.
    qInfo("the latest request came out after %d others", position);
    QVERIFY(position < 100);
}

QTEST_MAIN(TestQuickLookImageCache)
#include "tst_quicklookimagecache.moc"
