#include "windows/progresspanel.h"

#include "engine/exifoperationstatus.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class TestProgressPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversItsParentAndCentresTheSpinner_data();
    void coversItsParentAndCentresTheSpinner();
    void spinnerWrapsAfterTwelveSteps();
    void statusFollowsTheBatch();
    void clicksNeverReachTheCoveredControls();
    void coveredControlsAreDisabledAndEnabledAgain();
    void fadeOutTwiceStartsOneAnimation();
    void fadeInStopsAFadeOutAndRestsAtNinetyPercent();
    void fadeOutEndsTransparentAtRest();
    void curveStopsAtNinetyPercent_data();
    void curveStopsAtNinetyPercent();
};

void TestProgressPanel::coversItsParentAndCentresTheSpinner_data()
{
    QTest::addColumn<QSize>("parentSize");
    QTest::addColumn<QSize>("resizedTo");
    QTest::addColumn<QRect>("spinner");
    QTest::addColumn<QRect>("status");

    QTest::newRow("800x600") << QSize(800, 600) << QSize() << QRect(390, 290, 20, 20)
                             << QRect(420, 290, 400, 20);
    QTest::newRow("odd size") << QSize(801, 33) << QSize() << QRect(390, 6, 20, 20)
                              << QRect(420, 6, 400, 20);
    QTest::newRow("parent grows afterwards") << QSize(800, 600) << QSize(1000, 700)
                                             << QRect(490, 340, 20, 20) << QRect(520, 340, 400, 20);
}

void TestProgressPanel::coversItsParentAndCentresTheSpinner()
{
    QFETCH(QSize, parentSize);
    QFETCH(QSize, resizedTo);
    QFETCH(QRect, spinner);
    QFETCH(QRect, status);

    QWidget content;
    content.resize(parentSize);
    auto *panel = new ProgressPanel(&content);
    content.show();
    QVERIFY(QTest::qWaitForWindowExposed(&content));
    if (resizedTo.isValid())
        content.resize(resizedTo);

    QCOMPARE(panel->geometry(), content.rect());
    QCOMPARE(panel->indicatorGeometry(), spinner);
    QCOMPARE(panel->statusTextField()->geometry(), status);
    QCOMPARE(panel->opacity(), 0.0);
}

void TestProgressPanel::spinnerWrapsAfterTwelveSteps()
{
    ProgressPanel panel;
    panel.timer()->stop();
    QCOMPARE(panel.indicatorValue(), 0.0);
    for (int step = 1; step < ProgressPanel::SpinnerSteps; ++step) {
        panel.animate();
        QCOMPARE(panel.indicatorValue(), step / 12.0);
    }
    panel.animate();
    QCOMPARE(panel.indicatorValue(), 0.0);
}

void TestProgressPanel::statusFollowsTheBatch()
{
    ProgressPanel panel;
    const QStringList files{QStringLiteral("/photos/a b/IMG_1.jpg"),
                            QStringLiteral("/photos/東京/IMG_2.tif")};
    QStringList shown;
    for (qsizetype i = 0; i < files.size(); ++i) {
        panel.fileToBeProcessed(
            ExifOperationStatus(0, files.at(i), quint64(i + 1), quint64(files.size()), nullptr));
        shown << panel.statusText();
    }
    QCOMPARE(shown, QStringList({QStringLiteral("Processing IMG_1.jpg"),
                                 QStringLiteral("Processing IMG_2.tif")}));
    panel.progressStep(1.0, QStringLiteral("Done"));
    QCOMPARE(panel.statusTextField()->text(), QStringLiteral("Done"));
}

void TestProgressPanel::clicksNeverReachTheCoveredControls()
{
    QWidget content;
    content.resize(300, 200);
    auto *button = new QPushButton(QStringLiteral("Save"), &content);
    button->setGeometry(10, 10, 100, 30);
    content.show();
    QVERIFY(QTest::qWaitForWindowExposed(&content));
    QSignalSpy clicked(button, &QPushButton::clicked);

    // Routed through the window, so the click goes wherever the pointer is on top.
    QTest::mouseClick(content.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
    QCOMPARE(clicked.count(), 1);

    auto *panel = new ProgressPanel(&content);
    panel->show();
    QTest::mouseClick(content.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
    QCOMPARE(clicked.count(), 1);
}

void TestProgressPanel::coveredControlsAreDisabledAndEnabledAgain()
{
    QWidget content;
    auto *list = new QWidget(&content);
    auto *field = new QLineEdit(list);
    auto *button = new QPushButton(&content);
    auto *panel = new ProgressPanel(&content);

    panel->enableSuperviewSubviews(&content, false);
    QVERIFY(!list->isEnabled());
    QVERIFY(!field->isEnabled());
    QVERIFY(!button->isEnabled());
    QVERIFY(panel->isEnabled());

    panel->enableSuperviewSubviews(&content, true);
    QVERIFY(list->isEnabled());
    QVERIFY(field->isEnabled());
    QVERIFY(button->isEnabled());
}

void TestProgressPanel::fadeOutTwiceStartsOneAnimation()
{
    ProgressPanel panel;
    panel.setOpacity(1.0);
    panel.fadeOut();
    QPropertyAnimation *first = panel.animation();
    QVERIFY(first);
    QCOMPARE(panel.state(), ProgressPanel::FadeState::FadingOut);
    panel.fadeOut();
    QCOMPARE(panel.animation(), first);
    QCOMPARE(first->state(), QAbstractAnimation::Running);
}

void TestProgressPanel::fadeInStopsAFadeOutAndRestsAtNinetyPercent()
{
    ProgressPanel panel;
    panel.setOpacity(0.5);
    panel.fadeOut();
    QPointer<QPropertyAnimation> fadeOut = panel.animation();
    panel.fadeIn();
    QVERIFY(!fadeOut || fadeOut->state() != QAbstractAnimation::Running);
    QVERIFY(panel.animation() != fadeOut);
    QTRY_VERIFY_WITH_TIMEOUT(!panel.animation(), 3000);
    QCOMPARE(panel.state(), ProgressPanel::FadeState::AtRest);
    // From 0.5 the capped curve stops at 90 % of the way to 1.
    QVERIFY(qAbs(panel.opacity() - 0.95) < 0.01);
}

void TestProgressPanel::fadeOutEndsTransparentAtRest()
{
    ProgressPanel panel;
    panel.fadeIn();
    QTRY_VERIFY_WITH_TIMEOUT(!panel.animation(), 3000);
    QVERIFY(qAbs(panel.opacity() - ProgressPanel::FadeInOpacity) < 0.01);

    panel.fadeOut();
    QTRY_VERIFY_WITH_TIMEOUT(!panel.animation(), 3000);
    QCOMPARE(panel.state(), ProgressPanel::FadeState::AtRest);
    QCOMPARE(panel.opacity(), 0.0);
}

void TestProgressPanel::curveStopsAtNinetyPercent_data()
{
    QTest::addColumn<qreal>("progress");
    QTest::addColumn<qreal>("value");
    QTest::newRow("start") << 0.0 << 0.0;
    QTest::newRow("middle") << 0.5 << 0.5;
    QTest::newRow("at the cap") << 0.9 << 0.9;
    QTest::newRow("end") << 1.0 << 0.9;
}

void TestProgressPanel::curveStopsAtNinetyPercent()
{
    QFETCH(qreal, progress);
    QFETCH(qreal, value);
    QCOMPARE(ProgressPanel::valueForProgress(progress), value);
}

QTEST_MAIN(TestProgressPanel)
#include "tst_progresspanel.moc"
