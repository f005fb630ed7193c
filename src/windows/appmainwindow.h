#pragma once

#include "engine/fileadmission.h"

#include <QObject>
#include <QStringList>

class QWidget;

// What the application shell needs from the main window; MainWindowController implements it,
// tests a stand-in.
class AppMainWindow : public QObject
{
    Q_OBJECT

public:
    virtual QWidget *window() = 0;
    virtual bool hasModifiedFiles() const = 0;
    // A quit waits for the window's close question, which ends it.
    virtual void quitRequested() = 0;
    virtual bool openFile(const QString &path) = 0;
    // Several paths handed over at once (the command line): one add, so one note lists every
    // path that was not added, with those turned away before (rejected).
    virtual bool openFiles(const QStringList &paths, const QList<FileRejection> &rejected = {})
    {
        Q_UNUSED(rejected)
        bool opened = false;
        for (const QString &path : paths)
            opened = openFile(path) || opened;
        return opened;
    }
};
