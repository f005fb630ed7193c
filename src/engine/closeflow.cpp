#include "engine/closeflow.h"

#include <utility>

CloseFlow::Step CloseFlow::closeRequested(bool saving, bool hasModifiedFiles, bool askOpen)
{
    if (saving) {
        // Asked again when the batch ends, when the files' state is known.
        m_closeAfterSaving = true;
        return Step::Refuse;
    }
    if (m_status == Status::MayClose) {
        m_status = Status::Idle;
        return Step::Allow;
    }
    if (!hasModifiedFiles)
        return m_status == Status::QuitWaiting ? Step::AllowAndQuit : Step::Allow;
    return askOpen ? Step::Refuse : Step::Ask;
}

CloseFlow::Step CloseFlow::answered(Answer answer)
{
    const bool quitWaiting = m_status != Status::Idle;
    switch (answer) {
    case Answer::DontSave:
        if (quitWaiting)
            return Step::Quit;
        m_status = Status::MayClose;
        return Step::DropAndClose;
    case Answer::Cancel:
        m_status = Status::Idle;
        return quitWaiting ? Step::CancelQuit : Step::Nothing;
    case Answer::Save:
        m_status = quitWaiting ? Status::SavingToQuit : Status::MayClose;
        return Step::StartSave;
    }
    return Step::Nothing;
}

CloseFlow::Step CloseFlow::saveFinished(bool failed)
{
    const bool closeAgain = std::exchange(m_closeAfterSaving, false);
    if (m_status == Status::MayClose || m_status == Status::SavingToQuit) {
        if (failed)
            return Step::AskAfterFailure;
        return m_status == Status::MayClose ? Step::Close : Step::Quit;
    }
    return closeAgain ? Step::FinishAndClose : Step::Finish;
}

CloseFlow::Step CloseFlow::failureAnswered(FailureAnswer answer)
{
    if (answer == FailureAnswer::DontExit) {
        // The edits that did not reach their files stay in the window, with the reasons.
        const bool quitWaiting = m_status == Status::SavingToQuit;
        m_status = Status::Idle;
        return quitWaiting ? Step::FinishAndCancelQuit : Step::Finish;
    }
    return m_status == Status::MayClose ? Step::Close : Step::Quit;
}
