#include "teststore.h"

#include "values/usersettings.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

QString storeFolder()
{
    static QTemporaryDir dir;
    if (!dir.isValid())
        qFatal("No temporary folder for the settings store: %s", qPrintable(dir.errorString()));
    return dir.path();
}

// Every test program starts on a settings store of its own, so no test reads the user's
// settings or leaves its own behind, even one that never thought of the store. Tests that need
// a fresh store per case call useFreshSettingsStore.
void useTemporaryStore()
{
    QStandardPaths::setTestModeEnabled(true);
    UserSettings::setStoreFile(storeFolder() + QStringLiteral("/settings.ini"));
}

} // namespace

void useFreshSettingsStore()
{
    static int count = 0;
    UserSettings::setStoreFile(storeFolder() + QStringLiteral("/store-%1.ini").arg(++count));
}

Q_COREAPP_STARTUP_FUNCTION(useTemporaryStore)
