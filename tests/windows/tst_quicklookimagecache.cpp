#include "values/tagsmithexception.h"
#include "windows/quicklookimagecache.h"
#include "windows/thumbnailmaker.h"

#include "../support/fixtures.h"

#include <QImageReader>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <functional>
#include <stdexcept>

namespace {

constexpr int timeoutMs = 30000;

struct Listener : QObject
{
    void listen(QuickLookImageCache &cache)
    {
        cache.onImageReady(this, [this](const QString &path, const QImage &image) {
            paths << path;
            images << image;
            isOnMainThread = isOnMainThread && QThread::currentThread() == qApp->thread();
            if (onCall)
                onCall();
        });
    }
    QStringList paths;
    QList<QImage> images;
    bool isOnMainThread = true;
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

bool isNear(QColor a, QColor b)
{
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 120;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool exifTool(QStringList arguments)
{
    return Fixtures::runExifTool(arguments << QStringLiteral("-overwrite_original")).ok();
}

// The command-line encoder a kind of fixture needs, if any.
QString encoderOf(const QString &kind)
{
    if (kind.endsWith(u"heic"))
        return QStringLiteral("heif-enc");
    if (kind.endsWith(u"jxl"))
        return QStringLiteral("cjxl");
    return {};
}

// Kinds: "qt" (written by Qt), "jpg6" (turned), "gif", "psd", "psd6" (Photoshop files whose
// embedded preview is the halves), "barepsd" (none), "heic" and "jxl" (encoded from the halves,
// the halves embedded as their thumbnail), "bareheic" and "barejxl" (none), "text", "missing".
bool makeFixture(const QString &file, const QString &kind, const QString &halvesJpeg = {})
{
    if (const QString encoder = encoderOf(kind); !encoder.isEmpty()) {
        const QString png = file + QStringLiteral(".png");
        const QStringList arguments = encoder == u"cjxl"
                                          ? QStringList{QStringLiteral("--container=1"), png, file}
                                          : QStringList{QStringLiteral("-o"), file, png};
        return halves(60, 40).save(png) && QProcess::execute(encoder, arguments) == 0 &&
               (kind.startsWith(u"bare") ||
                exifTool({QStringLiteral("-ThumbnailImage<=") + halvesJpeg, file}));
    }
    if (kind == u"qt" || kind == u"jpg6")
        return halves(60, 40).save(file, kind == u"qt" ? nullptr : "jpg", 95) &&
               (kind == u"qt" || exifTool({QStringLiteral("-Orientation#=6"), file}));
    if (kind == u"gif") // Qt writes no GIF: this is halves at 4x2
        return writeFile(file, QByteArray::fromHex("47494638396104000200f00000ff00000000ff21f9"
                                                   "0400000000002c000000000400020000020404128605"
                                                   "003b"));
    if (kind == u"text")
        return writeFile(file, "hello\n");
    if (!kind.contains(u"psd"))
        return kind == u"missing";
    // The smallest Photoshop file (4x3 grey), which Qt cannot read. ExifTool writes a preview
    // only into a file with the Photoshop suffix, hence the rename.
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.writeRawData("8BPS", 4);
    out << quint16(1) << quint32(0) << quint16(0) << quint16(1) << quint32(3) << quint32(4)
        << quint16(8) << quint16(1) << quint32(0) << quint32(0) << quint32(0) << quint16(0);
    const QString psd = file + QStringLiteral(".psd");
    return writeFile(psd, bytes + QByteArray(12, char(128))) &&
           (kind == u"barepsd" ||
            exifTool({QStringLiteral("-PhotoshopThumbnail<=") + halvesJpeg,
                      QStringLiteral("-Orientation#=") + (kind == u"psd6" ? u'6' : u'1'), psd})) &&
           QFile::rename(psd, file);
}

} // namespace

class TestQuickLookImageCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(makeFixture(path(QStringLiteral("halves.jpg")), u"qt"_qs)); }
    void previewOfEachKindOfFile_data();
    void previewOfEachKindOfFile();
    void bigJpegIsMadeOnceAtReducedSize();
    void listenerExceptionsAreLoggedAndOthersAreTold();
    void manyRequestsNeverBlockAndNewestComeFirst();

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QTemporaryDir m_dir;
};

void TestQuickLookImageCache::previewOfEachKindOfFile_data()
{
    // The row's tag is the file's name; an invalid size means the placeholder, at the box's size.
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QSize>("box");
    QTest::addColumn<QSize>("size");
    const QSize box(100, 100), natural(60, 40), turned(40, 60);
    QTest::newRow("a.jpg") << "qt" << box << natural;
    QTest::newRow("a.png") << "qt" << box << natural;
    QTest::newRow("a.tif") << "qt" << box << natural;
    QTest::newRow("a.gif") << "gif" << box << QSize(4, 2);
    QTest::newRow("turned.jpg") << "jpg6" << box << turned;
    QTest::newRow("turned-in-wide-box.jpg") << "jpg6" << QSize(60, 30) << QSize(20, 30);
    QTest::newRow("preview.psd") << "psd" << box << natural;
    QTest::newRow("PHOTOSHOP.CR2") << "psd" << box << natural;
    QTest::newRow("photoshop.tif") << "psd" << box << natural;
    QTest::newRow("turned.psd") << "psd6" << box << turned;
    QTest::newRow("text.jpg") << "text" << box << QSize();
    QTest::newRow("text.nef") << "text" << box << QSize();
    QTest::newRow("no-preview.psd") << "barepsd" << box << QSize();
    // Qt reads neither without an optional plugin; their previews come through ExifTool.
    QTest::newRow("phone.HEIC") << "heic" << box << natural;
    QTest::newRow("no-preview.heic") << "bareheic" << box << QSize();
    QTest::newRow("export.jxl") << "jxl" << box << natural;
    QTest::newRow("no-preview.jxl") << "barejxl" << box << QSize();
    QTest::newRow("missing.jpg") << "missing" << box << QSize();
}

void TestQuickLookImageCache::previewOfEachKindOfFile()
{
    QFETCH(QString, kind);
    QFETCH(QSize, box);
    QFETCH(QSize, size);
    const QString file = path(QString::fromLatin1(QTest::currentDataTag()));
    const QString encoder = encoderOf(kind);
    if (!encoder.isEmpty() && QStandardPaths::findExecutable(encoder).isEmpty())
        QSKIP(qPrintable(encoder + u" is not installed; scripts/install-deps.sh brings it"_qs));
    if (kind.startsWith(u"bare") && !encoder.isEmpty() &&
        QImageReader::supportedImageFormats().contains(QFileInfo(file).suffix().toLatin1()))
        QSKIP("Qt has a decoder for this format here, so the file has a preview after all");
    QVERIFY(makeFixture(file, kind, path(QStringLiteral("halves.jpg"))));

    QuickLookImageCache cache;
    Listener listener;
    listener.listen(cache);
    QVERIFY(cache.loadImage(file, box.width(), box.height()).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.paths, QStringList{file}, timeoutMs);
    QVERIFY(listener.isOnMainThread);
    const QImage image = listener.images.first();
    QCOMPARE(QuickLookImageCache::isPlaceholder(image), !size.isValid());
    QCOMPARE(image.size(), size.isValid() ? size : box); // small pictures are not blown up
    if (size.isValid()) {
        // A quarter turn clockwise brings the left (red) half to the top.
        const int w = image.width(), h = image.height();
        const QPoint red = h > w ? QPoint(w / 2, h / 4) : QPoint(w / 4, h / 2);
        QVERIFY(isNear(image.pixelColor(red), Qt::red));
        QVERIFY(isNear(image.pixelColor(w - 1 - red.x(), h - 1 - red.y()), Qt::blue));
    }
    // Kept, placeholders too, so a list that repaints does not ask again.
    QCOMPARE(cache.loadImage(file, box.width(), box.height()).cacheKey(), image.cacheKey());
    QCOMPARE(cache.pendingCount(), 0);
}

void TestQuickLookImageCache::bigJpegIsMadeOnceAtReducedSize()
{
    const QString file = path(QStringLiteral("big.jpg"));
    QVERIFY(halves(6000, 4000).save(file, "jpg", 90));
    QuickLookImageCache cache;
    Listener listener;
    listener.listen(cache);
    QElapsedTimer timer;
    timer.start();
    for (int ask = 0; ask < 3; ++ask) { // later paints ask again while it is being made
        QVERIFY(cache.loadImage(file, 100, 100).isNull());
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE_WITH_TIMEOUT(listener.paths.size(), 1, timeoutMs);
    const qint64 reducedMs = timer.restart();
    QVERIFY(!QImage(file).isNull());
    const qint64 fullMs = timer.elapsed();
    qInfo("24-megapixel JPEG: preview in %lld ms, full decode in %lld ms", reducedMs, fullMs);
    QVERIFY2(reducedMs < fullMs, "the preview must not decode the picture at full size");
    QCOMPARE(listener.images.first().width(), 100);
    QVERIFY(qAbs(listener.images.first().height() - 66.7) < 1);
    QTest::qWait(200);
    QCOMPARE(listener.paths.size(), 1);

    cache.removeImage(file); // a saved file is shown afresh
    QVERIFY(cache.loadImage(file, 100, 100).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(listener.paths.size(), 2, timeoutMs);
}

void TestQuickLookImageCache::listenerExceptionsAreLoggedAndOthersAreTold()
{
    QuickLookImageCache cache;
    auto gone = std::make_unique<Listener>();
    Listener named, standard, next;
    named.onCall = [] {
        throw TagsmithException(TagsmithException::Invalid, QStringLiteral("listener broke"));
    };
    standard.onCall = [] { throw std::runtime_error("boom"); };
    for (Listener *listener : {gone.get(), &named, &standard, &next})
        listener->listen(cache);
    gone.reset(); // a listener that went away is skipped, not called

    QTest::ignoreMessage(QtWarningMsg, "Exception caught: listener broke");
    QTest::ignoreMessage(QtWarningMsg, "Exception caught: boom");
    cache.loadImage(path(QStringLiteral("halves.jpg")), 100, 100);
    QTRY_COMPARE_WITH_TIMEOUT(next.paths.size(), 1, timeoutMs);
    QCOMPARE(named.paths.size() + standard.paths.size(), 2);
}

void TestQuickLookImageCache::manyRequestsNeverBlockAndNewestComeFirst()
{
    QVERIFY(halves(1600, 1200).save(path(QStringLiteral("many.jpg")), "jpg"));
    QStringList files;
    for (int i = 0; i <= 400; ++i)
        QVERIFY(QFile::copy(path(QStringLiteral("many.jpg")),
                            files.emplace_back(path(QStringLiteral("many%1.jpg").arg(i)))));
    const QString late = files.takeLast();
    QuickLookImageCache cache;
    Listener listener;
    listener.listen(cache);
    QElapsedTimer timer;
    timer.start();
    for (const QString &file : std::as_const(files))
        QVERIFY(cache.loadImage(file, 100, 100).isNull());
    qInfo("400 requests queued in %lld ms", timer.elapsed());
    QVERIFY2(timer.elapsed() < 1000, "queueing previews must not wait for them");
    QVERIFY(cache.pendingCount() < 300); // rows scrolled past long ago are dropped

    QCoreApplication::processEvents(); // the next paint: a later batch
    cache.loadImage(late, 100, 100);
    QTRY_VERIFY_WITH_TIMEOUT(listener.paths.contains(late), timeoutMs);
    // Served in order of asking, it would come after the 256 still waiting.
    QVERIFY(listener.paths.indexOf(late) < 100);
}

QTEST_MAIN(TestQuickLookImageCache)
#include "tst_quicklookimagecache.moc"
