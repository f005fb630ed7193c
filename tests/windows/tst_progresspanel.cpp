#include "windows/progresspanel.h"

#include "engine/exifoperationstatus.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class TestProgressPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusNamesTheFileBeingProcessed();
    void coversItsParentAndTakesItsClicks();
    void fadesEndAtNinetyPercentAndAtNothing();
};

void TestProgressPanel::statusNamesTheFileBeingProcessed()
{
    ProgressPanel panel;
    panel.fileToBeProcessed(ExifOperationStatus(0, u"/photos/a b/IMG_1.jpg"_qs, 1, 2, nullptr));
    QCOMPARE(panel.statusText(), u"Processing IMG_1.jpg"_qs);
    panel.fileToBeProcessed(ExifOperationStatus(0, u"/photos/東京/IMG_2.tif"_qs, 2, 2, nullptr));
    QCOMPARE(panel.statusText(), u"Processing IMG_2.tif"_qs);
}

void TestProgressPanel::coversItsParentAndTakesItsClicks()
{
    QWidget content;
    content.resize(300, 200);
    auto *button = new QPushButton(u"Save"_qs, &content);
    button->setGeometry(10, 10, 100, 30);
    auto *field = new QLineEdit(button); // a nested control is disabled too
    field->setGeometry(0, 0, 10, 10);
    content.show();
    QVERIFY(QTest::qWaitForWindowExposed(&content));
    QSignalSpy clicked(button, &QPushButton::clicked);

    // Routed through the window, so the click goes to whatever is on top.
    QTest::mouseClick(content.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
    QCOMPARE(clicked.count(), 1);
    auto *panel = new ProgressPanel(&content);
    panel->show();
    content.resize(500, 400);
    QCOMPARE(panel->geometry(), content.rect());
    QTest::mouseClick(content.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
    QCOMPARE(clicked.count(), 1);

    panel->enableSuperviewSubviews(&content, false);
    QVERIFY(!button->isEnabled() && !field->isEnabled() && panel->isEnabled());
    panel->enableSuperviewSubviews(&content, true);
    QVERIFY(button->isEnabled() && field->isEnabled());
}

void TestProgressPanel::fadesEndAtNinetyPercentAndAtNothing()
{
    ProgressPanel panel;
    panel.setOpacity(0.5);
    panel.fadeOut();
    QPointer<QPropertyAnimation> fadeOut = panel.animation();
    panel.fadeOut(); // a second call joins the running fade
    QCOMPARE(panel.animation(), fadeOut.data());
    panel.fadeIn();
    QVERIFY(!fadeOut || fadeOut->state() != QAbstractAnimation::Running);
    QTRY_VERIFY_WITH_TIMEOUT(!panel.animation(), 3000);
    QCOMPARE(panel.state(), ProgressPanel::FadeState::AtRest);
    QVERIFY(qAbs(panel.opacity() - 0.95) < 0.01); // the capped curve stops 90 % of the way up

    panel.fadeOut();
    QTRY_VERIFY_WITH_TIMEOUT(!panel.animation(), 3000);
    QCOMPARE(panel.opacity(), 0.0);
}

QTEST_MAIN(TestProgressPanel)
#include "tst_progresspanel.moc"
