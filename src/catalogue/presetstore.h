#pragma once

#include "catalogue/preset.h"

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

// The presets, kept in the user settings store: "settings-names" lists the identifiers, and each
// identifier's entry holds that preset as an XML document. Main thread only.
class PresetStore : public QObject
{
    Q_OBJECT

public:
    static inline const QString SettingsNamesKey = QStringLiteral("settings-names");

    // A separate store is only for tests; the program uses instance().
    explicit PresetStore(QObject *parent = nullptr);
    static PresetStore &instance();

    void initializeSettings();

    const QMap<QString, PresetPtr> &configurations() const { return m_configurations; }
    PresetPtr loadConfiguration(const QString &identifier) const;
    void saveConfiguration(const PresetPtr &configuration);
    void removeConfigurationIdentifier(const QString &identifier);
    QString findUnusedNewIdentifier() const;

    // Connects receiver to presetsChanged so that what it throws is logged and the receivers
    // after it are still told; an exception must never cross the signal itself.
    QMetaObject::Connection onPresetsChanged(const QObject *context,
                                             std::function<void()> receiver);

    static QString configurationToXml(const Preset &configuration);
    // Null when the text holds no well-formed preset document.
    static PresetPtr loadConfigurationFromXml(const QString &text);

Q_SIGNALS:
    // After every change of the presets (a save or a removal).
    void presetsChanged();

private:
    void writeConfigurationNames();
    void fireConfigurationChangeEvent();

    QMap<QString, PresetPtr> m_configurations;
};
