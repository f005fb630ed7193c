#include "windows/fileinfocell.h"
#include "windows/quicklookimagecache.h"

#include <QListView>
#include <QStandardItemModel>
#include <QtTest>

namespace {

// Counts the list's paints, and notes the count when told of a preview after the cell was.
struct PaintWatcher : QObject
{
    void listen(QuickLookImageCache &cache)
    {
        cache.onImageReady(this,
                           [this](const QString &, const QImage &) { paintsWhenTold = paints; });
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paints = 0;
    int paintsWhenTold = -1;
};

bool hasColourIn(const QImage &image, const QRectF &area, const std::function<bool(QColor)> &test)
{
    for (int y = int(area.top()); y < int(area.bottom()); ++y)
        for (int x = int(area.left()); x < int(area.right()); ++x)
            if (image.rect().contains(x, y) && test(image.pixelColor(x, y)))
                return true;
    return false;
}

// The preview's red, and the error line's red and modified mark's amber over the dark list.
const auto isRed = [](QColor c) { return c.red() > 190 && c.green() < 70 && c.blue() < 70; };
const auto isErrorRed = [](QColor c) {
    return c.red() - c.green() > 70 && c.red() - c.blue() > 70;
};
const auto isAmber = [](QColor c) {
    return c.red() > 200 && qAbs(c.green() - 160) < 30 && c.blue() < 80;
};

} // namespace

class TestFileInfoCell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowShowsPreviewErrorAndModifiedMark_data()
    {
        QTest::addColumn<bool>("hasError");
        QTest::addColumn<bool>("isModified");
        QTest::newRow("plain") << false << false;
        QTest::newRow("error") << true << false;
        QTest::newRow("modified") << false << true;
    }

    void rowShowsPreviewErrorAndModifiedMark()
    {
        QFETCH(bool, hasError);
        QFETCH(bool, isModified);
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("IMG_0031.JPG"));
        QImage picture(1200, 800, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(file, "jpg"));

        QuickLookImageCache cache;
        QStandardItemModel model;
        auto *item = new QStandardItem(QStringLiteral("IMG_0031.JPG"));
        item->setData(file, FileInfoCell::PathRole);
        item->setData(u"Error in image - invalid maker metadata"_qs, FileInfoCell::ErrorTextRole);
        item->setData(hasError, FileInfoCell::HasErrorRole);
        item->setData(isModified, FileInfoCell::ModifiedRole);
        model.appendRow(item);
        QListView view;
        view.setModel(&model);
        view.setItemDelegate(new FileInfoCell(&cache, &view));
        view.setStyleSheet(QStringLiteral("QListView { background: #303030; color: #e0e0e0; }"));
        view.resize(420, 130);
        // Told after the cell: by then the cell has asked for the repaint that shows the preview.
        PaintWatcher watcher;
        view.viewport()->installEventFilter(&watcher);
        watcher.listen(cache);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QTRY_VERIFY_WITH_TIMEOUT(watcher.paintsWhenTold >= 0, 30000);
        QTRY_VERIFY(watcher.paints > watcher.paintsWhenTold);

        const QImage shot = view.viewport()->grab().toImage();
        const FileInfoCell::Frames frames = FileInfoCell::frames(
            view.visualRect(model.index(0, 0)), QFontMetricsF(view.font()).height());
        QVERIFY(hasColourIn(shot, frames.image.adjusted(20, 20, -20, -20), isRed));
        QCOMPARE(hasColourIn(shot, frames.error, isErrorRed), hasError);
        QCOMPARE(hasColourIn(shot, frames.title, isAmber), isModified);
    }
};

QTEST_MAIN(TestFileInfoCell)
#include "tst_fileinfocell.moc"
