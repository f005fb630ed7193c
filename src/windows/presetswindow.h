#pragma once

#include "catalogue/presetstore.h"

#include <QString>
#include <QStringList>
#include <QWidget>

class ConfigurationViewController;
class PresetsListModel;
class QTableView;

// The window where presets are created, named, edited and deleted: the list of presets on the
// left, the form of every field for the selected preset on the right. The store stays the source
// of truth; the preset being edited is saved whenever the user leaves it.
class PresetsWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PresetsWindow(QWidget *parent = nullptr, PresetStore &store = PresetStore::instance());
    ~PresetsWindow() override;

    // Brings the window to the front.
    void showWindow();
    // The preset's name as menus show it, saying how many tags it removes.
    static QString menuTitle(const Preset &preset);

    void reloadConfigurations();
    void selectFirstPreset();
    void addConfiguration();
    void removeConfiguration();
    void renameConfiguration();
    void saveConfiguration();
    // Segment 0 adds, any other removes.
    void addRemoveConfigurationPressed(int segment);
    // Offered as commands, and do nothing.
    void duplicateConfiguration();
    void importConfigurations();
    void exportConfigurations();
    void updateSkin();

    const QStringList &configNames() const { return m_configNames; }
    const QString &currentConfigName() const { return m_currentConfigName; }
    ConfigurationViewController *configController() const { return m_configController; }
    QTableView *configurationsTable() const { return m_configurationsTable; }

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void tableViewSelectionDidChange();
    void renameInPlace(const QString &identifier, const QString &name);
    // The identifier of the selected row, or a null string.
    QString selectedIdentifier() const;
    void selectIdentifier(const QString &identifier);
    void editName(const QString &identifier, bool selectText);

    PresetStore &m_store;
    ConfigurationViewController *m_configController = nullptr;
    QTableView *m_configurationsTable = nullptr;
    PresetsListModel *m_model = nullptr;
    QStringList m_configNames;
    QString m_currentConfigName;
};
