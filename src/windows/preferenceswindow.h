#pragma once

#include "engine/exiftoolpath.h"
#include "engine/exiftoolversion.h"

#include <QFutureWatcher>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;

// The preferences window: one control per user setting, each writing straight to the settings
// store, and the ExifTool in use. Closing only hides it; it is reused at the next opening.
class PreferencesWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PreferencesWindow(const QString &exifToolProgram = exifToolPath(),
                               QWidget *parent = nullptr);
    ~PreferencesWindow() override;

    // Shows the stored values and brings the window to the front.
    void showWindow();
    void reloadSettings();

private:
    QComboBox *addChoice(const QString &key, const QList<std::pair<int, QString>> &choices);
    QCheckBox *addFlag(const QString &key, const QString &text);
    QComboBox *addImageDataCheck();
    void handleExifToolVersion();

    QList<QComboBox *> m_choices;
    QList<QCheckBox *> m_flags;
    QComboBox *m_imageDataCheck = nullptr;
    QLabel *m_exifToolVersion = nullptr;
    QLabel *m_exifToolWarning = nullptr;
    QFutureWatcher<ExifToolVersion> m_versionWatcher;
};
