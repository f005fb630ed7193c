#pragma once

#include "windows/windowpart.h"
#include "catalogue/presetstore.h"

#include <QObject>
#include <QStringList>

class FileListPresenter;
class MainWindowMenus;

// The Presets menu: one item per stored preset, in name order, each applied to the selected
// files as pending edits.
class PresetsMenu : public WindowPart
{
    Q_OBJECT

public:
    PresetsMenu(const WindowContext &context, PresetStore &store, QObject *parent);
    void updateConfigurations();
    const QStringList &configIds() const { return m_configIds; }
    void handleConfigurationClick(int tag);
    void applyConfiguration(const Preset &configuration);
    void updateEnablement(const CommandState &state) override;

Q_SIGNALS:
    // The menu or the files' values changed.
    void changed();

private:
    PresetStore &m_store;
    QStringList m_configIds;
};
