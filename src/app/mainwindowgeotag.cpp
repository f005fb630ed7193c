#include "app/mainwindowcontroller.h"

void MainWindowController::geotagFromTrackLog()
{
    // Placeholder: geotagging replaces this.
}
