#include "windows/mainwindow.h"

#include "windows/filelistview.h"
#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "controls/indeterminateprogressindicatorcell.h"
#include "windows/fileinfocell.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

MainWindow::MainWindow(bool debug, QWidget *parent)
    : QMainWindow(parent)
{
    setWindowTitle(localized("Tagsmith") + QStringLiteral("[*]"));
    resize(1200, 800);

    m_content = new QWidget(this);
    m_content->setAutoFillBackground(true);
    QPalette contentPalette = m_content->palette();
    contentPalette.setColor(QPalette::Window, ApertureTheme::normalSolidFill());
    m_content->setPalette(contentPalette);
    setCentralWidget(m_content);

    auto *contentLayout = new QVBoxLayout(m_content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    m_splitter = new QSplitter(Qt::Horizontal, m_content);
    m_splitter->setChildrenCollapsible(false);
    contentLayout->addWidget(m_splitter);

    auto *listSide = new QWidget(m_splitter);
    auto *listLayout = new QVBoxLayout(listSide);
    listLayout->setContentsMargins(6, 6, 0, 6);
    listLayout->setSpacing(6);
    m_filesTable = new FileListView(listSide);
    m_filesTable->setMinimumWidth(280);
    QPalette listPalette = m_filesTable->palette();
    listPalette.setColor(QPalette::Base, QColor::fromRgbF(0.6f, 0.6f, 0.6f));
    m_filesTable->setPalette(listPalette);
    m_filesTable->setStyleSheet(
        QStringLiteral("FileListView { background-color: rgb(153,153,153); }"));
    listLayout->addWidget(m_filesTable, 1);
    listLayout->addWidget(buildReadingBar());
    listLayout->addWidget(buildBottomBar(debug));
    m_splitter->addWidget(listSide);
    m_splitter->setStretchFactor(0, 0);
}

MainWindow::~MainWindow() = default;

QWidget *MainWindow::buildBottomBar(bool debug)
{
    auto *bar = new QWidget(this);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);

    m_addButton = new QPushButton(QStringLiteral("+"), bar);
    m_addButton->setToolTip(localized("Add Files…"));
    m_removeButton = new QPushButton(QStringLiteral("\u2212"), bar);
    m_removeButton->setToolTip(localized("Remove from List"));
    for (QPushButton *button : {m_addButton, m_removeButton})
        button->setFixedWidth(32);
    m_presetsButton = new QToolButton(bar);
    m_presetsButton->setText(localized("Presets"));
    m_presetsButton->setPopupMode(QToolButton::InstantPopup);
    m_readingIndicator = new IndeterminateProgressIndicatorCell(bar);
    m_readingIndicator->setFixedSize(20, 20);
    m_readingIndicator->hide();
    layout->addWidget(m_addButton);
    layout->addWidget(m_removeButton);
    layout->addWidget(m_presetsButton);
    layout->addWidget(m_readingIndicator);
    layout->addStretch(1);

    // The debug buttons exist only with "-debug".
    if (debug) {
        m_loadTestFilesButton = new QPushButton(QStringLiteral("Test Files"), bar);
        m_presetsQuickButton = new QPushButton(QStringLiteral("Presets"), bar);
        m_resultsButton = new QPushButton(QStringLiteral("Results"), bar);
        layout->addWidget(m_loadTestFilesButton);
        layout->addWidget(m_presetsQuickButton);
        layout->addWidget(m_resultsButton);
    }
    m_reviewButton = new QPushButton(localized("Review…"), bar);
    layout->addWidget(m_reviewButton);
    m_processButton = new QPushButton(localized("Save"), bar);
    m_processButton->setDefault(true);
    layout->addWidget(m_processButton);
    return bar;
}

QWidget *MainWindow::buildReadingBar()
{
    m_readingBar = new QWidget(this);
    auto *layout = new QHBoxLayout(m_readingBar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    m_readingLabel = new QLabel(m_readingBar);
    // A width that fits the longest count, so a new count repaints the label, not the window.
    m_readingLabel->setFixedWidth(
        m_readingLabel->fontMetrics().horizontalAdvance(
            QCoreApplication::translate("Localizable", "Reading %1 of %2 files…")
                .arg(999999)
                .arg(999999)) +
        8);
    m_readingProgress = new QProgressBar(m_readingBar);
    m_readingProgress->setTextVisible(false);
    m_readingProgress->setMaximumHeight(8);
    m_cancelReadingButton = new QPushButton(localized("Cancel"), m_readingBar);
    layout->addWidget(m_readingLabel);
    layout->addWidget(m_readingProgress, 1);
    layout->addWidget(m_cancelReadingButton);
    m_readingBar->hide();
    return m_readingBar;
}

void MainWindow::showReadingProgress(int read, int total)
{
    m_readingLabel->setText(
        QCoreApplication::translate("Localizable", "Reading %1 of %2 files…").arg(read).arg(total));
    m_readingProgress->setRange(0, qMax(total, 1));
    m_readingProgress->setValue(read);
}

void MainWindow::setFormArea(QWidget *form)
{
    m_splitter->addWidget(form);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({360, 840});
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_closeHandler && !m_closeHandler()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}
