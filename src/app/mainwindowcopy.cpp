#include "app/mainwindowcontroller.h"

void MainWindowController::copyMetadata()
{
    // Placeholder: copying replaces this.
}

void MainWindowController::pasteMetadata()
{
    // Placeholder: pasting replaces this.
}

bool MainWindowController::hasCopiedMetadata() const
{
    return false;
}
