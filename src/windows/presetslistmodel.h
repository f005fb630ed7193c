#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <functional>

class PresetStore;

// The presets as one column of names, rows in configNames order. Renaming in place goes back to
// the window, which saves and re-sorts.
class PresetsListModel : public QAbstractListModel
{
public:
    using RenameHandler = std::function<void(const QString &identifier, const QString &name)>;

    PresetsListModel(PresetStore &store, QObject *parent = nullptr);

    void setRenameHandler(RenameHandler handler) { m_renameHandler = std::move(handler); }
    void setConfigNames(const QStringList &identifiers);
    const QStringList &configNames() const { return m_configNames; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // Case-blind, with runs of digits compared by value: "Preset 9" before "Preset 10".
    static bool nameLess(const QString &a, const QString &b);

private:
    PresetStore &m_store;
    QStringList m_configNames;
    RenameHandler m_renameHandler;
};
