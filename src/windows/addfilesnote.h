#pragma once

#include "engine/fileadmission.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QToolButton;

// A non-modal note over the file list after adding: how many paths were not added, and on
// request which ones and why. Stays until dismissed or replaced by the next add.
class AddFilesNote : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Margin = 10;
    static constexpr int MaxWidth = 640;
    static constexpr int DetailLinesShown = 8;

    // parent: the widget the note floats over (the file list); it follows its size.
    explicit AddFilesNote(QWidget *parent);
    ~AddFilesNote() override;

    // Shows the note for these rejections; hides it when there are none.
    void showRejections(const QList<FileRejection> &rejected);
    QString summaryText() const;
    const QList<FileRejection> &rejections() const { return m_rejected; }

    // One line per rejection: the path and why it was not added.
    QStringList detailLines() const;
    bool isShowingDetails() const;
    void setShowingDetails(bool isShowing);

    QToolButton *detailsButton() const { return m_detailsButton; }
    QToolButton *closeButton() const { return m_closeButton; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void followParent();

    QList<FileRejection> m_rejected;
    QLabel *m_summary = nullptr;
    QToolButton *m_detailsButton = nullptr;
    QToolButton *m_closeButton = nullptr;
    QPlainTextEdit *m_details = nullptr;
};
