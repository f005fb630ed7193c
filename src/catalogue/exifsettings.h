#pragma once

#include "catalogue/exifconfiguration.h"

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

// The presets, kept in the user settings store: "settings-names" lists the identifiers, and each
// identifier's entry holds that preset as an XML document. Main thread only.
class ExifSettings : public QObject
{
    Q_OBJECT

public:
    static inline const QString SettingsNamesKey = QStringLiteral("settings-names");

    // A separate store is only for tests; the program uses instance().
    explicit ExifSettings(QObject *parent = nullptr);
    static ExifSettings &instance();

    void initializeSettings();

    const QMap<QString, ExifConfigurationPtr> &configurations() const { return m_configurations; }
    ExifConfigurationPtr loadConfiguration(const QString &identifier) const;
    void saveConfiguration(const ExifConfigurationPtr &configuration);
    void removeConfigurationIdentifier(const QString &identifier);
    QString findUnusedNewIdentifier() const;

    // Connects receiver to presetsChanged so that what it throws is logged and the receivers
    // after it are still told; an exception must never cross the signal itself.
    QMetaObject::Connection onPresetsChanged(const QObject *context,
                                             std::function<void()> receiver);

    static QString configurationToXml(const ExifConfiguration &configuration);
    // Null when the text holds no well-formed preset document.
    static ExifConfigurationPtr loadConfigurationFromXml(const QString &text);

Q_SIGNALS:
    // After every change of the presets (a save or a removal).
    void presetsChanged();

private:
    void writeConfigurationNames();
    void fireConfigurationChangeEvent();

    QMap<QString, ExifConfigurationPtr> m_configurations;
};
