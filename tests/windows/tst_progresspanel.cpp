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
    void statusNamesTheFileBeingProcessed();
    void coveredControlsGetNoClicksAndCanBeDisabled();
    void fadeOutTwiceStartsOneAnimation();
    void fadesEndAtNinetyPercentAndAtNothing();
};

void TestProgressPanel::coversItsParentAndCentresTheSpinner_data()
{
    QTest::addColumn<QSize>("parentSize");
    QTest::addColumn<QSize>("resizedTo");
    QTest::addColumn<QPoint>("spinner");

    QTest::newRow("800x600") << QSize(800, 600) << QSize() << QPoint(390, 290);
    QTest::newRow("odd size") << QSize(801, 33) << QSize() << QPoint(390, 6);
    QTest::newRow("parent grows afterwards")
        << QSize(800, 600) << QSize(1000, 700) << QPoint(490, 340);
}

void TestProgressPanel::coversItsParentAndCentresTheSpinner()
{
    QFETCH(QSize, parentSize);
    QFETCH(QSize, resizedTo);
    QFETCH(QPoint, spinner);

    QWidget content;
    content.resize(parentSize);
    auto *panel = new ProgressPanel(&content);
    content.show();
    QVERIFY(QTest::qWaitForWindowExposed(&content));
    if (resizedTo.isValid())
        content.resize(resizedTo);

    QCOMPARE(panel->geometry(), content.rect());
    QCOMPARE(panel->indicatorGeometry(), QRect(spinner, QSize(20, 20)));
    QCOMPARE(panel->statusTextField()->geometry(), QRect(spinner + QPoint(30, 0), QSize(400, 20)));
}

void TestProgressPanel::spinnerWrapsAfterTwelveSteps()
{
    ProgressPanel panel;
    panel.timer()->stop();
    QList<double> values;
    for (int step = 0; step < 13; ++step) {
        values << panel.indicatorValue();
        panel.animate();
    }
    QCOMPARE(values.mid(0, 3), QList<double>({0.0, 1 / 12.0, 2 / 12.0}));
    QCOMPARE(values.at(11), 11 / 12.0);
    QCOMPARE(values.at(12), 0.0);
}

void TestProgressPanel::statusNamesTheFileBeingProcessed()
{
    ProgressPanel panel;
    QStringList shown;
    const QStringList files{u"/photos/a b/IMG_1.jpg"_qs, u"/photos/東京/IMG_2.tif"_qs};
    for (qsizetype i = 0; i < files.size(); ++i) {
        panel.fileToBeProcessed(ExifOperationStatus(0, files.at(i), quint64(i + 1), 2, nullptr));
        shown << panel.statusText();
    }
    QCOMPARE(shown, QStringList({u"Processing IMG_1.jpg"_qs, u"Processing IMG_2.tif"_qs}));
}

void TestProgressPanel::coveredControlsGetNoClicksAndCanBeDisabled()
{
    QWidget content;
    content.resize(300, 200);
    auto *button = new QPushButton(u"Save"_qs, &content);
    button->setGeometry(10, 10, 100, 30);
    auto *field = new QLineEdit(button);
    field->setGeometry(0, 0, 10, 10);
    content.show();
    QVERIFY(QTest::qWaitForWindowExposed(&content));
    QSignalSpy clicked(button, &QPushButton::clicked);

    // Routed through the window, so the click goes to whatever is on top.
    QTest::mouseClick(content.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
    QCOMPARE(clicked.count(), 1);
    auto *panel = new ProgressPanel(&content);
    panel->show();
    QTest::mouseClick(content.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
    QCOMPARE(clicked.count(), 1);

    panel->enableSuperviewSubviews(&content, false);
    QVERIFY(!button->isEnabled() && !field->isEnabled() && panel->isEnabled());
    panel->enableSuperviewSubviews(&content, true);
    QVERIFY(button->isEnabled() && field->isEnabled());
}

void TestProgressPanel::fadeOutTwiceStartsOneAnimation()
{
    ProgressPanel panel;
    panel.setOpacity(1.0);
    panel.fadeOut();
    QPropertyAnimation *first = panel.animation();
    QVERIFY(first);
    panel.fadeOut();
    QCOMPARE(panel.animation(), first);
    QCOMPARE(first->state(), QAbstractAnimation::Running);
}

void TestProgressPanel::fadesEndAtNinetyPercentAndAtNothing()
{
    ProgressPanel panel;
    panel.setOpacity(0.5);
    panel.fadeOut();
    QPointer<QPropertyAnimation> fadeOut = panel.animation();
    panel.fadeIn();
    QVERIFY(!fadeOut || fadeOut->state() != QAbstractAnimation::Running);
    QTRY_VERIFY_WITH_TIMEOUT(!panel.animation(), 3000);
    QCOMPARE(panel.state(), ProgressPanel::FadeState::AtRest);
    // The capped curve stops at 90 % of the way from 0.5 to 1.
    QVERIFY(qAbs(panel.opacity() - 0.95) < 0.01);

    panel.fadeOut();
    QTRY_VERIFY_WITH_TIMEOUT(!panel.animation(), 3000);
    QCOMPARE(panel.opacity(), 0.0);
}

QTEST_MAIN(TestProgressPanel)
#include "tst_progresspanel.moc"
