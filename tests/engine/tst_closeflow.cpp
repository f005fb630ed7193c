#include "engine/closeflow.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Step = CloseFlow::Step;

// Plays one event ("quit", "close", "close-modified", "close-saving", "close-asking",
// "save", "cancel", "dont-save", "saved", "save-failed", "dont-exit", "exit") and names the
// step it gave.
QString play(CloseFlow &flow, const QString &event)
{
    static const QHash<Step, QString> names{
        {Step::Allow, u"allow"_s},
        {Step::AllowAndQuit, u"allow+quit"_s},
        {Step::Refuse, u"refuse"_s},
        {Step::Ask, u"ask"_s},
        {Step::Quit, u"quit"_s},
        {Step::CancelQuit, u"cancel-quit"_s},
        {Step::DropAndClose, u"drop+close"_s},
        {Step::StartSave, u"start-save"_s},
        {Step::Close, u"close"_s},
        {Step::AskAfterFailure, u"ask-after-failure"_s},
        {Step::Finish, u"finish"_s},
        {Step::FinishAndClose, u"finish+close"_s},
        {Step::FinishAndCancelQuit, u"finish+cancel-quit"_s},
        {Step::Nothing, u"nothing"_s},
    };
    Step step = Step::Nothing;
    if (event == u"quit") {
        flow.quitRequested();
        return u"-"_s;
    }
    if (event == u"close")
        step = flow.closeRequested(false, false, false);
    else if (event == u"close-modified")
        step = flow.closeRequested(false, true, false);
    else if (event == u"close-saving")
        step = flow.closeRequested(true, true, false);
    else if (event == u"close-asking")
        step = flow.closeRequested(false, true, true);
    else if (event == u"save")
        step = flow.answered(CloseFlow::Answer::Save);
    else if (event == u"cancel")
        step = flow.answered(CloseFlow::Answer::Cancel);
    else if (event == u"dont-save")
        step = flow.answered(CloseFlow::Answer::DontSave);
    else if (event == u"saved")
        step = flow.saveFinished(false);
    else if (event == u"save-failed")
        step = flow.saveFinished(true);
    else if (event == u"dont-exit")
        step = flow.failureAnswered(CloseFlow::FailureAnswer::DontExit);
    else if (event == u"exit")
        step = flow.failureAnswered(CloseFlow::FailureAnswer::Exit);
    else
        return u"unknown event "_s + event;
    return names.value(step);
}

} // namespace

class TestCloseFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sequences_data()
    {
        QTest::addColumn<QString>("events");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<int>("status");
        // clang-format off
        QTest::newRow("clean close") << "close" << "allow" << 0;
        QTest::newRow("clean quit") << "quit close" << "- allow+quit" << 1;
        QTest::newRow("modified close asks") << "close-modified" << "ask" << 0;
        QTest::newRow("second close while asking") << "close-modified close-asking" << "ask refuse" << 0;
        QTest::newRow("don't save, close") << "close-modified dont-save close" << "ask drop+close allow" << 0;
        QTest::newRow("don't save, quit") << "quit close-modified dont-save" << "- ask quit" << 1;
        QTest::newRow("cancel, close") << "close-modified cancel" << "ask nothing" << 0;
        QTest::newRow("cancel, quit") << "quit close-modified cancel" << "- ask cancel-quit" << 0;
        QTest::newRow("cancel, then close asks again") << "close-modified cancel close-modified" << "ask nothing ask" << 0;
        QTest::newRow("save, close") << "close-modified save saved close" << "ask start-save close allow" << 0;
        QTest::newRow("save, quit") << "quit close-modified save saved" << "- ask start-save quit" << 3;
        // A failed save keeps the window when the user says so; the edits stay to be saved.
        QTest::newRow("save fails, close, don't exit") << "close-modified save save-failed dont-exit" << "ask start-save ask-after-failure finish" << 0;
        QTest::newRow("save fails, quit, don't exit") << "quit close-modified save save-failed dont-exit" << "- ask start-save ask-after-failure finish+cancel-quit" << 0;
        QTest::newRow("save fails, close, exit") << "close-modified save save-failed exit close" << "ask start-save ask-after-failure close allow" << 0;
        QTest::newRow("save fails, quit, exit") << "quit close-modified save save-failed exit" << "- ask start-save ask-after-failure quit" << 3;
        QTest::newRow("after don't exit, close asks again") << "close-modified save save-failed dont-exit close-modified" << "ask start-save ask-after-failure finish ask" << 0;
        // A close during a batch waits for it, once.
        QTest::newRow("close while saving") << "close-saving saved saved" << "refuse finish+close finish" << 0;
        QTest::newRow("quit while saving") << "quit close-saving saved close" << "- refuse finish+close allow+quit" << 1;
        QTest::newRow("plain save finishes") << "saved save-failed" << "finish finish" << 0;
        // clang-format on
    }

    void sequences()
    {
        QFETCH(QString, events);
        CloseFlow flow;
        QStringList steps;
        for (const QString &event : events.split(u' '))
            steps.append(play(flow, event));
        QTEST(steps.join(u' '), "steps");
        QTEST(int(flow.status()), "status");
    }
};

QTEST_GUILESS_MAIN(TestCloseFlow)
#include "tst_closeflow.moc"
