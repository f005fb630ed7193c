#include "values/usersettings.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

// Every test program starts on a settings store of its own, so no test reads the user's
// settings or leaves its own behind, even one that never thought of the store. Tests that need
// a fresh store per case still set one.
void useTemporaryStore()
{
    QStandardPaths::setTestModeEnabled(true);
    static QTemporaryDir dir;
    if (!dir.isValid())
        qFatal("No temporary folder for the settings store: %s", qPrintable(dir.errorString()));
    UserSettings::setStoreFile(dir.filePath(QStringLiteral("settings.ini")));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(useTemporaryStore)
