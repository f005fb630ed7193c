#include "app/mainwindowcontroller.h"

void MainWindowController::reviewChanges()
{
    // Placeholder: the review window replaces this.
}

void MainWindowController::revertLastSave()
{
    // Placeholder: reverting replaces this.
}

bool MainWindowController::canRevertLastSave() const
{
    return false;
}
