#pragma once

#include "engine/fileadmission.h"

#include <QList>
#include <QWidget>

// A non-modal note over the file list after adding: how many paths were not added, and on
// request which ones and why. Stays until dismissed or replaced by the next add.
class AddFilesNote : public QWidget
{
    Q_OBJECT

public:
    // parent: the widget the note floats over (the file list); it follows its size.
    explicit AddFilesNote(QWidget *parent);
    ~AddFilesNote() override;

    // Shows the note for these rejections; hides it when there are none.
    void showRejections(const QList<FileRejection> &rejected);
    QString summaryText() const;
    const QList<FileRejection> &rejections() const { return m_rejected; }

private:
    QList<FileRejection> m_rejected;
};
