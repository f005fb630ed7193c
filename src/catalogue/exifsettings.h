#pragma once

#include "catalogue/exifconfiguration.h"

#include <QList>
#include <QMap>
#include <QString>

// Told after every change of the presets (a save or a removal).
class ExifSettingsListener
{
public:
    virtual ~ExifSettingsListener() = default;
    virtual void updateConfigurations() = 0;
};

// The presets, kept in the user settings store: "settings-names" lists the identifiers, and each
// identifier's entry holds that preset as an XML document. Main thread only.
class ExifSettings
{
public:
    static inline const QString SettingsNamesKey = QStringLiteral("settings-names");

    // A separate store is only for tests; the program uses instance().
    ExifSettings() = default;
    static ExifSettings &instance();

    void initializeSettings();

    const QMap<QString, ExifConfigurationPtr> &configurations() const { return m_configurations; }
    ExifConfigurationPtr loadConfiguration(const QString &identifier) const;
    void saveConfiguration(const ExifConfigurationPtr &configuration);
    void removeConfigurationIdentifier(const QString &identifier);
    QString findUnusedNewIdentifier() const;

    void addListener(ExifSettingsListener *listener);
    void removeListener(ExifSettingsListener *listener);

    static QString configurationToXml(const ExifConfiguration &configuration);
    // Null when the text holds no well-formed preset document.
    static ExifConfigurationPtr loadConfigurationFromXml(const QString &text);

private:
    void writeConfigurationNames();
    void fireConfigurationChangeEvent();

    QMap<QString, ExifConfigurationPtr> m_configurations;
    QList<ExifSettingsListener *> m_listeners;
};
