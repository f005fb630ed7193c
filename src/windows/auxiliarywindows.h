#pragma once

#include "windows/windowpart.h"
#include "engine/exifoperationstatus.h"

#include <QHash>
#include <QObject>
#include <QPointer>

class EditSession;
class PresetStore;
class FileListPresenter;
class MainWindow;
class MainWindowMenus;
class MapWindow;
class PresetsWindow;
class PreviewPanel;
class ResultsWindow;
class ReviewChangesWindow;

// The windows beside the main one: presets, map, results, review of changes and the preview
// of the selected file. Each is made on first use.
class AuxiliaryWindows : public WindowPart
{
    Q_OBJECT

public:
    AuxiliaryWindows(const WindowContext &context, PresetStore &store, QObject *parent);

    void showConfigurations();
    void showMap();
    void showHideResultsWindow();
    void showHideQuickLook();
    void reviewChanges();
    void displayErrors(const QHash<QString, ErrorMessagesPtr> &results);
    // The selection changed: the map and the preview show it.
    void followSelection();
    void updateEnablement(const CommandState &state) override;

    MapWindow *mapWindow() const;
    ResultsWindow *resultsWindow() const;
    PresetsWindow *presetsWindow() const;

Q_SIGNALS:
    // Save from the review window.
    void saveRequested();

private:
    PresetStore &m_store;
    bool m_saving = false;
    QPointer<MapWindow> m_map;
    QPointer<ResultsWindow> m_results;
    QPointer<PresetsWindow> m_presets;
    QPointer<ReviewChangesWindow> m_review;
    QPointer<PreviewPanel> m_preview;
};
