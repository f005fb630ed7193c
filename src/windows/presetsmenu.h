#pragma once

#include "windows/commandstate.h"
#include "catalogue/presetstore.h"

#include <QObject>
#include <QStringList>

class FileListPresenter;
class MainWindowMenus;

// The Presets menu: one item per stored preset, in name order, each applied to the selected
// files as pending edits.
class PresetsMenu : public QObject
{
    Q_OBJECT

public:
    PresetsMenu(MainWindowMenus *menus, FileListPresenter *list, PresetStore &store,
                QObject *parent);
    void updateConfigurations();
    const QStringList &configIds() const { return m_configIds; }
    void handleConfigurationClick(int tag);
    void applyConfiguration(const Preset &configuration);
    void updateEnablement(const CommandState &state);

Q_SIGNALS:
    // The menu or the files' values changed.
    void changed();

private:
    MainWindowMenus *m_menus;
    FileListPresenter *m_list;
    PresetStore &m_store;
    QStringList m_configIds;
};
