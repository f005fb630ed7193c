#pragma once

#include "engine/exiffileinfo.h"

#include <QList>
#include <QWidget>

// The map of the selected files' GPS positions: pins to add, drag and remove, written into the
// files' current values (nothing reaches the disk before a save).
class MapWindowController : public QWidget
{
    Q_OBJECT

public:
    explicit MapWindowController(QWidget *parent = nullptr);
    ~MapWindowController() override;

    // Shows the window in front.
    void showWindow();
    // The main window's selection; rebuilds the pins and frames them.
    void setFiles(const QList<ExifFileInfoPtr> &files);
    const QList<ExifFileInfoPtr> &files() const { return m_files; }

private:
    QList<ExifFileInfoPtr> m_files;
};
