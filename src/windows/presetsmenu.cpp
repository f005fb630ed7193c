#include "windows/presetsmenu.h"

#include "windows/filelistpresenter.h"
#include "windows/mainwindowmenus.h"
#include "windows/presetswindow.h"
#include "engine/presetbatch.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

PresetsMenu::PresetsMenu(const WindowContext &context, PresetStore &store, QObject *parent)
    : WindowPart(context, parent)
    , m_store(store)
{
    m_store.onPresetsChanged(this, [this] { updateConfigurations(); });
    connect(m_menus->configsMenu(), &QMenu::triggered, this, [this](QAction *action) {
        const int tag = action->data().toInt();
        if (tag >= 0)
            handleConfigurationClick(tag);
    });
    updateConfigurations();
}

void PresetsMenu::updateConfigurations()
{
    QMenu *menu = m_menus->configsMenu();
    for (QAction *action : menu->actions()) {
        if (action->data().isValid() && action->data().toInt() >= 0) {
            menu->removeAction(action);
            action->deleteLater();
        }
    }
    m_configIds.clear();
    QList<PresetPtr> presets = m_store.configurations().values();
    std::stable_sort(presets.begin(), presets.end(),
                     [](const PresetPtr &a, const PresetPtr &b) { return a->name() > b->name(); });
    // Each goes in at position 1, so the menu ends up in ascending order.
    for (int i = 0; i < presets.size(); ++i) {
        m_configIds.append(presets.at(i)->identifier());
        auto *item = new QAction(PresetsWindow::menuTitle(*presets.at(i)), menu);
        item->setData(i);
        const QList<QAction *> actions = menu->actions();
        menu->insertAction(actions.size() > 1 ? actions.at(1) : nullptr, item);
    }
    Q_EMIT changed();
}

void PresetsMenu::handleConfigurationClick(int tag)
{
    if (tag < 0 || tag >= m_configIds.size())
        return;
    if (const PresetPtr preset = m_store.loadConfiguration(m_configIds.at(tag)))
        applyConfiguration(*preset);
}

void PresetsMenu::applyConfiguration(const Preset &configuration)
{
    m_list->commitPendingInput();
    for (const ExifFileInfoPtr &file : m_list->currentFiles())
        applyPreset(configuration, *file);
    m_list->showCurrentFilesAgain();
    m_list->refreshAll();
    Q_EMIT changed();
}

void PresetsMenu::updateEnablement(const CommandState &state)
{
    // Presets are applied to the selection like any other edit.
    for (QAction *preset : m_menus->configsMenu()->actions()) {
        if (preset->data().toInt() >= 0 && !preset->isSeparator())
            preset->setEnabled(!state.saving && !state.selected.isEmpty());
    }
}
