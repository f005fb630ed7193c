#include "windows/mapwindow.h"

#include "engine/editsession.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

namespace {

// Runs a script on the page and waits for its answer; invalid when none came in time.
QVariant evaluate(QWebEnginePage *page, const QString &script, int timeoutMs = 5000)
{
    struct Answer
    {
        bool done = false;
        QVariant value;
    };
    auto answer = std::make_shared<Answer>();
    page->runJavaScript(script, [answer](const QVariant &value) {
        answer->value = value;
        answer->done = true;
    });
    QDeadlineTimer deadline(timeoutMs);
    while (!answer->done && !deadline.hasExpired())
        QTest::qWait(20);
    return answer->value;
}

} // namespace

class TestMapWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pinsTravelBothWaysThroughTheChannel();
};

void TestMapWindow::pinsTravelBothWaysThroughTheChannel()
{
    QVERIFY(QFileInfo::exists(MapWindow::pagePath()));
    EditSession session;
    MapWindow window(session);
    window.showWindow();
    QWebEnginePage *page = window.mapView()->page();

    // The first answer can take long while Chromium starts; no answer at all means it could not.
    QVariant alive;
    QDeadlineTimer start(60000);
    while (!alive.isValid() && !start.hasExpired())
        alive = evaluate(page, u"1 + 1"_qs, 2000);
    if (!alive.isValid())
        QSKIP("The web engine did not start on this machine (no answer to a script in 60 s)");
    QTRY_VERIFY_WITH_TIMEOUT(
        evaluate(page, u"!!(window.tagsmithMap && window.tagsmithMap.connected)"_qs).toBool(),
        30000);

    const auto pinned = std::make_shared<ExifFileInfo>(u"/photos/a.jpg"_qs);
    pinned->setReadData({{u"GPS:GPSLatitude"_qs, u"35"_qs},
                         {u"GPS:GPSLatitudeRef"_qs, u"N"_qs},
                         {u"GPS:GPSLongitude"_qs, u"139"_qs},
                         {u"GPS:GPSLongitudeRef"_qs, u"E"_qs}});
    const auto bare = std::make_shared<ExifFileInfo>(u"/photos/b.jpg"_qs);
    window.setFiles({pinned, bare});
    QTRY_COMPARE_WITH_TIMEOUT(evaluate(page, u"tagsmithMap.pinTitles().join()"_qs).toString(),
                              u"a.jpg"_qs, 10000);

    // A drag on the page lands in the file's values.
    evaluate(page, u"markers.getLayers()[0].setLatLng([-12.5, 10]).fire('dragend')"_qs);
    QTRY_COMPARE(pinned->exifValue(u"GPS:GPSLatitude"_qs), u"12.500000"_qs);
    QCOMPARE(pinned->exifValue(u"GPS:GPSLatitudeRef"_qs), u"S"_qs);

    window.addPinButton()->click();
    QTRY_COMPARE_WITH_TIMEOUT(evaluate(page, u"tagsmithMap.pinTitles().join()"_qs).toString(),
                              u"a.jpg,b.jpg"_qs, 10000);
    QVERIFY(bare->hasExifValue(u"GPS:GPSLongitudeRef"_qs));

    // Without a network the page says the tiles are missing; with one, tiles arrive.
    QTRY_VERIFY_WITH_TIMEOUT(
        evaluate(page, u"tagsmithMap.noticeShown() || tagsmithMap.tileCounts().loaded > 0"_qs)
            .toBool(),
        60000);
}

QTEST_MAIN(TestMapWindow)
#include "tst_mapwindow.moc"
