#include "windows/fileinfocell.h"
#include "windows/quicklookimagecache.h"

#include <QListView>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Counts the list's paints, and notes the count when told of a preview after the cell was.
class PaintWatcher : public QObject, public QuickLookImageCacheListener
{
public:
    void imageLoaded(const QImage &, const QString &, QuickLookImageCache *) override
    {
        paintsWhenTold = paints;
    }
    int paints = 0;
    int paintsWhenTold = -1;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

bool hasColourIn(const QImage &image, const QRect &area, const std::function<bool(QColor)> &test)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.rect().contains(x, y) && test(image.pixelColor(x, y)))
                return true;
        }
    }
    return false;
}

bool isRed(QColor c)
{
    return c.red() > 190 && c.green() < 70 && c.blue() < 70;
}

// The error line's red and the modified mark's amber, as drawn over the dark list.
bool isErrorRed(QColor c)
{
    return c.red() > 150 && c.red() - c.green() > 70 && c.red() - c.blue() > 70;
}

bool isAmber(QColor c)
{
    return c.red() > 200 && c.green() > 130 && c.green() < 190 && c.blue() < 80;
}

} // namespace

class TestFileInfoCell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void framesFollowTheRowHeight_data();
    void framesFollowTheRowHeight();
    void rowShowsThePreviewOnceItIsMade();
    void errorLineAndModifiedMarkShowOnlyWhenSet_data();
    void errorLineAndModifiedMarkShowOnlyWhenSet();
};

void TestFileInfoCell::framesFollowTheRowHeight_data()
{
    QTest::addColumn<QRectF>("interior");
    QTest::addColumn<QRectF>("image");
    QTest::addColumn<QRectF>("title");
    QTest::addColumn<QRectF>("error");
    // 100 high: a preview area 84 high and 135 wide.
    QTest::newRow("list row") << QRectF(0, 0, 400, 100) << QRectF(8, 8, 135, 84)
                              << QRectF(143, 8, 257, 16) << QRectF(143, 40, 257, 16);
    // 1.6 x 44 = 70.4, rounded up; the origin moves every frame.
    QTest::newRow("shorter row further down")
        << QRectF(10, 200, 300, 60) << QRectF(18, 208, 71, 44) << QRectF(89, 208, 221, 16)
        << QRectF(89, 240, 221, 16);
}

void TestFileInfoCell::framesFollowTheRowHeight()
{
    QFETCH(QRectF, interior);
    QFETCH(QRectF, image);
    QFETCH(QRectF, title);
    QFETCH(QRectF, error);
    const FileInfoCell::Frames frames = FileInfoCell::frames(interior, 16);
    QCOMPARE(frames.image, image);
    QCOMPARE(frames.title, title);
    QCOMPARE(frames.subtitle, title.translated(0, 16));
    QCOMPARE(frames.error, error);
}

void TestFileInfoCell::rowShowsThePreviewOnceItIsMade()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("red.jpg"));
    QImage picture(1200, 800, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(file));

    QuickLookImageCache cache;
    QStandardItemModel model;
    auto *item = new QStandardItem;
    item->setData(file, FileInfoCell::PathRole);
    model.appendRow(item);
    QListView view;
    view.setModel(&model);
    view.setItemDelegate(new FileInfoCell(&cache, &view));
    // Told after the cell: by then the cell has asked for the repaint that shows the preview.
    PaintWatcher watcher;
    view.viewport()->installEventFilter(&watcher);
    cache.addListener(&watcher);
    view.resize(420, 130);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const QRect row = view.visualRect(model.index(0, 0));
    QCOMPARE(row.height(), FileInfoCell::rowHeight);
    QTRY_VERIFY_WITH_TIMEOUT(watcher.paintsWhenTold >= 0, 30000);
    QTRY_VERIFY(watcher.paints > watcher.paintsWhenTold);
    const QRect imageFrame =
        FileInfoCell::frames(row, 16).image.toRect().adjusted(20, 20, -20, -20);
    QVERIFY(hasColourIn(view.viewport()->grab().toImage(), imageFrame, isRed));
}

void TestFileInfoCell::errorLineAndModifiedMarkShowOnlyWhenSet_data()
{
    QTest::addColumn<bool>("hasError");
    QTest::addColumn<bool>("isModified");
    QTest::newRow("plain") << false << false;
    QTest::newRow("error") << true << false;
    QTest::newRow("modified") << false << true;
    QTest::newRow("both") << true << true;
}

void TestFileInfoCell::errorLineAndModifiedMarkShowOnlyWhenSet()
{
    QFETCH(bool, hasError);
    QFETCH(bool, isModified);
    QStandardItemModel model;
    auto *item = new QStandardItem(QStringLiteral("IMG_0031.JPG"));
    item->setData(QStringLiteral("/photos/IMG_0031.JPG"), FileInfoCell::PathRole);
    item->setData(QStringLiteral("Error in image - invalid maker metadata"),
                  FileInfoCell::ErrorTextRole);
    item->setData(hasError, FileInfoCell::HasErrorRole);
    item->setData(isModified, FileInfoCell::ModifiedRole);
    model.appendRow(item);
    QListView view;
    view.setModel(&model);
    view.setItemDelegate(new FileInfoCell(nullptr, &view));
    view.setStyleSheet(QStringLiteral("QListView { background: #303030; color: #e0e0e0; }"));
    view.resize(420, 130);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const QImage shot = view.viewport()->grab().toImage();
    const QRect row = view.visualRect(model.index(0, 0));
    const FileInfoCell::Frames frames =
        FileInfoCell::frames(row, QFontMetricsF(view.font()).height());
    QCOMPARE(hasColourIn(shot, frames.error.toRect(), isErrorRed), hasError);
    QCOMPARE(hasColourIn(shot, frames.title.toRect(), isAmber), isModified);
}

QTEST_MAIN(TestFileInfoCell)
#include "tst_fileinfocell.moc"
