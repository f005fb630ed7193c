#include "windows/mapwindowcontroller.h"

// Placeholder until the map is built; the "map" work replaces this file.
MapWindowController::MapWindowController(QWidget *parent)
    : QWidget(parent, Qt::Window)
{
}

MapWindowController::~MapWindowController() = default;
void MapWindowController::showWindow()
{
    show();
    raise();
    activateWindow();
}
void MapWindowController::setFiles(const QList<ExifFileInfoPtr> &files)
{
    m_files = files;
}
