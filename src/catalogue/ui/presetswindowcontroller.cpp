#include "catalogue/ui/presetswindowcontroller.h"

// Placeholder until the presets window is built; the "form" work replaces this file.
PresetsWindowController::PresetsWindowController(QWidget *parent, ExifSettings &store)
    : QWidget(parent, Qt::Window)
    , m_store(store)
{
}

PresetsWindowController::~PresetsWindowController() = default;
void PresetsWindowController::showWindow()
{
    show();
    raise();
    activateWindow();
}
void PresetsWindowController::reloadConfigurations()
{
}
void PresetsWindowController::selectFirstPreset()
{
}
void PresetsWindowController::addConfiguration()
{
}
void PresetsWindowController::removeConfiguration()
{
}
void PresetsWindowController::renameConfiguration()
{
}
void PresetsWindowController::saveConfiguration()
{
}
