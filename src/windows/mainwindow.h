#pragma once

#include <QMainWindow>

#include <functional>

class FileListView;
class IndeterminateProgressIndicatorCell;
class QLabel;
class QProgressBar;
class QPushButton;
class QSplitter;
class QToolButton;

// The main window's widgets: the file list and its buttons on the left, the form on the right.
// Holds no logic; the controller connects it. Asks closeHandler before it closes.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(bool debug, QWidget *parent = nullptr);
    ~MainWindow() override;

    void setCloseHandler(std::function<bool()> handler) { m_closeHandler = std::move(handler); }
    void setFormArea(QWidget *form);

    QWidget *content() const { return m_content; }
    FileListView *filesTable() const { return m_filesTable; }
    QSplitter *splitter() const { return m_splitter; }
    QPushButton *addButton() const { return m_addButton; }
    QPushButton *removeButton() const { return m_removeButton; }
    QToolButton *presetsButton() const { return m_presetsButton; }
    QPushButton *processButton() const { return m_processButton; }
    QPushButton *reviewButton() const { return m_reviewButton; }
    IndeterminateProgressIndicatorCell *readingIndicator() const { return m_readingIndicator; }
    // Shown while added files are read: "Reading N of M files…" and a Cancel button.
    QWidget *readingBar() const { return m_readingBar; }
    QPushButton *cancelReadingButton() const { return m_cancelReadingButton; }
    void showReadingProgress(int read, int total);
    // Only in debug mode; null otherwise.
    QPushButton *loadTestFilesButton() const { return m_loadTestFilesButton; }
    QPushButton *presetsQuickButton() const { return m_presetsQuickButton; }
    QPushButton *resultsButton() const { return m_resultsButton; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *buildBottomBar(bool debug);
    QWidget *buildReadingBar();

    std::function<bool()> m_closeHandler;
    QWidget *m_content = nullptr;
    QSplitter *m_splitter = nullptr;
    FileListView *m_filesTable = nullptr;
    QPushButton *m_addButton = nullptr;
    QPushButton *m_removeButton = nullptr;
    QToolButton *m_presetsButton = nullptr;
    QPushButton *m_processButton = nullptr;
    QPushButton *m_reviewButton = nullptr;
    IndeterminateProgressIndicatorCell *m_readingIndicator = nullptr;
    QWidget *m_readingBar = nullptr;
    QLabel *m_readingLabel = nullptr;
    QProgressBar *m_readingProgress = nullptr;
    QPushButton *m_cancelReadingButton = nullptr;
    QPushButton *m_loadTestFilesButton = nullptr;
    QPushButton *m_presetsQuickButton = nullptr;
    QPushButton *m_resultsButton = nullptr;
};
