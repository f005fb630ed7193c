#pragma once

// What closing the main window and quitting do around unsaved edits and saves. The window
// asks; this answers with the step to take and keeps the state between the questions, so the
// whole decision can be tested without a window.
class CloseFlow
{
public:
    enum class Status {
        Idle = 0,
        // A quit waits for this window's close question.
        QuitWaiting = 1,
        // The next close passes.
        MayClose = 2,
        // A save was started on the way to quitting.
        SavingToQuit = 3,
    };
    enum class Answer { Save, Cancel, DontSave };
    enum class FailureAnswer { DontExit, Exit };

    enum class Step {
        Allow,
        // Allow, and tell the application its quit may go on.
        AllowAndQuit,
        Refuse,
        // Refuse, and ask "Save changes to modified files?".
        Ask,
        Quit,
        CancelQuit,
        // Drop the files and close the window again (it passes).
        DropAndClose,
        StartSave,
        // Close the window again (it passes).
        Close,
        // The save failed on the way out: ask whether to exit anyway.
        AskAfterFailure,
        // Nothing to do about closing; the window finishes the save as always.
        Finish,
        // Finish the save, then ask to close again.
        FinishAndClose,
        // Finish the save and show its errors, then cancel the quit that waited.
        FinishAndCancelQuit,
        Nothing,
    };

    Status status() const { return m_status; }
    // The application wants to quit; the window's close question decides.
    void quitRequested() { m_status = Status::QuitWaiting; }

    Step closeRequested(bool saving, bool hasModifiedFiles, bool askOpen);
    Step answered(Answer answer);
    Step saveFinished(bool failed);
    Step failureAnswered(FailureAnswer answer);

private:
    Status m_status = Status::Idle;
    // A close asked for while a batch ran; put again when it ends.
    bool m_closeAfterSaving = false;
};
