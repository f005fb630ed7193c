// The main window's presets menu and its secondary windows.
#include "app/mainwindowcontroller.h"

#include "app/filelistmodel.h"
#include "app/mainwindow.h"
#include "app/previewpanel.h"
#include "catalogue/ui/presetswindowcontroller.h"
#include "engine/presetbatch.h"
#include "editors/configurationviewcontroller.h"
#include "windows/mapwindowcontroller.h"
#include "windows/resultswindowcontroller.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

// --- Presets -----------------------------------------------------------------------------------

void MainWindowController::updateConfigurations()
{
    QMenu *menu = m_menus->configsMenu();
    for (QAction *action : menu->actions()) {
        if (action->data().isValid() && action->data().toInt() >= 0) {
            menu->removeAction(action);
            action->deleteLater();
        }
    }
    m_configIds.clear();
    QList<ExifConfigurationPtr> presets = m_store.configurations().values();
    std::stable_sort(presets.begin(), presets.end(),
                     [](const ExifConfigurationPtr &a, const ExifConfigurationPtr &b) {
                         return a->name() > b->name();
                     });
    // Each goes in at position 1, so the menu ends up in ascending order.
    for (int i = 0; i < presets.size(); ++i) {
        m_configIds.append(presets.at(i)->identifier());
        auto *item = new QAction(PresetsWindowController::menuTitle(*presets.at(i)), menu);
        item->setData(i);
        const QList<QAction *> actions = menu->actions();
        menu->insertAction(actions.size() > 1 ? actions.at(1) : nullptr, item);
    }
    recheckUIEnablement();
}

void MainWindowController::handleConfigurationClick(int tag)
{
    if (tag < 0 || tag >= m_configIds.size())
        return;
    if (const ExifConfigurationPtr preset = m_store.loadConfiguration(m_configIds.at(tag)))
        applyConfiguration(*preset);
}

void MainWindowController::applyConfiguration(const ExifConfiguration &configuration,
                                              const ExifFileInfoPtr &file)
{
    applyPreset(configuration, *file);
}

void MainWindowController::applyConfiguration(const ExifConfiguration &configuration)
{
    m_configController->commitPendingInput();
    for (const ExifFileInfoPtr &file : std::as_const(m_currentFiles))
        applyConfiguration(configuration, file);
    m_configController->setExifFiles(m_currentFiles);
    m_model->refreshAll();
    updateWindowModified();
    recheckUIEnablement();
}

// --- Other windows -----------------------------------------------------------------------------

void MainWindowController::showConfigurations()
{
    if (!m_settingsWindowController)
        m_settingsWindowController = new PresetsWindowController(m_window.get(), m_store);
    m_settingsWindowController->showWindow();
}

void MainWindowController::showMap()
{
    if (!m_mapWindowController) {
        m_mapWindowController = new MapWindowController(*m_session, m_window.get());
        // Only the coordinate rows follow the notifications; the altitude and GPS date and time
        // rows are refreshed by showing the selection again.
        connect(m_mapWindowController, &MapWindowController::pinsRemoved, this, [this] {
            m_configController->commitPendingInput();
            m_configController->setExifFiles(m_currentFiles);
        });
    }
    m_mapWindowController->showWindow();
    reloadMapFiles();
}

void MainWindowController::reloadMapFiles()
{
    if (m_mapWindowController)
        m_mapWindowController->setFiles(m_currentFiles);
}

void MainWindowController::showHideResultsWindow()
{
    if (!m_resultsWindowController)
        m_resultsWindowController = new ResultsWindowController(m_window.get());
    if (m_resultsWindowController->isVisible())
        m_resultsWindowController->hide();
    else
        m_resultsWindowController->showWindow();
}

void MainWindowController::displayErrors(const QHash<QString, ErrorMessagesPtr> &results)
{
    if (!m_resultsWindowController)
        m_resultsWindowController = new ResultsWindowController(m_window.get());
    m_resultsWindowController->displayErrors(results);
    m_resultsWindowController->showWindow();
}

void MainWindowController::showHideQuickLook()
{
    if (!m_previewPanel)
        m_previewPanel = new PreviewPanel(m_window.get());
    if (m_previewPanel->isVisible()) {
        m_previewPanel->hide();
        return;
    }
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    if (selected.isEmpty())
        return;
    m_previewPanel->setFile(selected.first()->fileName());
    m_previewPanel->show();
}
