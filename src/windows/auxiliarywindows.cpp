#include "windows/auxiliarywindows.h"

#include "windows/filelistpresenter.h"
#include "windows/filelistview.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowmenus.h"
#include "windows/previewpanel.h"
#include "windows/presetswindow.h"
#include "windows/mapwindow.h"
#include "windows/resultswindow.h"
#include "windows/reviewchangeswindow.h"

#include <QAction>
#include <QPushButton>

AuxiliaryWindows::AuxiliaryWindows(const WindowContext &context, PresetStore &store,
                                   QObject *parent)
    : WindowPart(context, parent)
    , m_store(store)
{
    using C = MainWindowMenus::Command;
    m_menus->onTriggered(C::ShowConfigurations, this, &AuxiliaryWindows::showConfigurations);
    m_menus->onTriggered(C::ShowMap, this, &AuxiliaryWindows::showMap);
    m_menus->onTriggered(C::ShowResults, this, &AuxiliaryWindows::showHideResultsWindow);
    m_menus->onTriggered(C::QuickLook, this, &AuxiliaryWindows::showHideQuickLook);
    m_menus->onTriggered(C::ReviewChanges, this, &AuxiliaryWindows::reviewChanges);
    connect(m_window->reviewButton(), &QPushButton::clicked, this,
            &AuxiliaryWindows::reviewChanges);
    connect(m_window->filesTable(), &FileListView::showHideQuickLookRequested, this,
            &AuxiliaryWindows::showHideQuickLook);
    if (QPushButton *presets = m_window->presetsQuickButton())
        connect(presets, &QPushButton::clicked, this, &AuxiliaryWindows::showConfigurations);
    if (QPushButton *results = m_window->resultsButton())
        connect(results, &QPushButton::clicked, this, &AuxiliaryWindows::showHideResultsWindow);
}

void AuxiliaryWindows::showConfigurations()
{
    if (!m_presets)
        m_presets = new PresetsWindow(m_window, m_store);
    m_presets->showWindow();
}

void AuxiliaryWindows::showMap()
{
    if (!m_map) {
        m_map = new MapWindow(m_session, m_window);
        // Only the coordinate rows follow the notifications; the altitude and GPS date and time
        // rows are refreshed by showing the selection again.
        connect(m_map, &MapWindow::pinsRemoved, this, [this] {
            m_list->commitPendingInput();
            m_list->showCurrentFilesAgain();
        });
    }
    m_map->showWindow();
    m_map->setFiles(m_list->currentFiles());
}

void AuxiliaryWindows::followSelection()
{
    const QList<ExifFileInfoPtr> &current = m_list->currentFiles();
    if (m_preview && m_preview->isVisible())
        m_preview->setFile(current.isEmpty() ? QString() : current.first()->fileName());
    if (m_map)
        m_map->setFiles(current);
}

void AuxiliaryWindows::showHideResultsWindow()
{
    if (!m_results)
        m_results = new ResultsWindow(m_window);
    if (m_results->isVisible())
        m_results->hide();
    else
        m_results->showWindow();
}

void AuxiliaryWindows::displayErrors(const QHash<QString, ErrorMessagesPtr> &results)
{
    if (!m_results)
        m_results = new ResultsWindow(m_window);
    m_results->displayErrors(results);
    m_results->showWindow();
}

void AuxiliaryWindows::showHideQuickLook()
{
    if (!m_preview)
        m_preview = new PreviewPanel(m_window);
    if (m_preview->isVisible()) {
        m_preview->hide();
        return;
    }
    const QList<ExifFileInfoPtr> selected = m_list->selectedFiles();
    if (selected.isEmpty())
        return;
    m_preview->setFile(selected.first()->fileName());
    m_preview->show();
}

void AuxiliaryWindows::reviewChanges()
{
    if (m_saving)
        return;
    // A value still being typed is part of what a save would write.
    m_list->commitPendingInput();
    if (!m_review) {
        m_review = new ReviewChangesWindow(m_window);
        m_review->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_review, &ReviewChangesWindow::saveRequested, this,
                &AuxiliaryWindows::saveRequested);
    }
    m_review->setFiles(m_list->files());
    m_review->showWindow();
}

void AuxiliaryWindows::updateEnablement(const CommandState &state)
{
    using C = MainWindowMenus::Command;
    m_saving = state.saving;
    for (C command : {C::ShowConfigurations, C::ShowMap, C::ShowResults})
        m_menus->action(command)->setEnabled(!state.saving);
    m_menus->action(C::QuickLook)->setEnabled(!state.saving && !state.selected.isEmpty());
    const bool review = !state.saving && state.hasModifiedFiles;
    m_menus->action(C::ReviewChanges)->setEnabled(review);
    m_window->reviewButton()->setEnabled(review);
}

MapWindow *AuxiliaryWindows::mapWindow() const
{
    return m_map;
}

ResultsWindow *AuxiliaryWindows::resultsWindow() const
{
    return m_results;
}

PresetsWindow *AuxiliaryWindows::presetsWindow() const
{
    return m_presets;
}
