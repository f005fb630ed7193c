#include "values/usersettings.h"

#include "values/imagefiletypes.h"

#include <QMutex>
#include <QMutexLocker>
#include <QSettings>
#include <QStringList>

#include <memory>

namespace {

// One QSettings for the process: QSettings is reentrant, not thread-safe, so every use holds
// the mutex.
struct Store
{
    QMutex mutex;
    QString path;
    std::unique_ptr<QSettings> settings;
};

Store &store()
{
    static Store shared;
    return shared;
}

QSettings &openedLocked(Store &s)
{
    if (!s.settings) {
        s.settings = s.path.isEmpty()
                         ? std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                       QStringLiteral("Tagsmith"),
                                                       QStringLiteral("Tagsmith"))
                         : std::make_unique<QSettings>(s.path, QSettings::IniFormat);
        // A change would otherwise post the store a request to write itself, handled later on
        // whichever thread opened it, outside the mutex; changes are written at once instead.
        s.settings->moveToThread(nullptr);
    }
    return *s.settings;
}

UserSettings::FileDate toFileDate(int value)
{
    switch (value) {
    case 0:
        return UserSettings::FileDate::FromMetadata;
    case 1:
        return UserSettings::FileDate::KeepPrevious;
    default:
        return UserSettings::FileDate::LeaveAsWritten;
    }
}

} // namespace

void UserSettings::setStoreFile(const QString &path)
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    s.settings.reset();
    s.path = path;
}

QString UserSettings::storeFile()
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    return s.path;
}

QVariant UserSettings::defaultValue(const QString &key)
{
    if (key == GpsFormat || key == FileModifyDate || key == FileCreateDate)
        return 0;
    if (key == ForceFixBase || key == IgnoreMinorErrors || key == WriteXmpSidecars ||
        key == WriteReadOnlyFiles || key == PasteEverything || key == ShowEveryTag)
        return false;
    return {};
}

QVariant UserSettings::value(const QString &key)
{
    const QVariant fallback = defaultValue(key);
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    return openedLocked(s).value(key, fallback);
}

void UserSettings::setValue(const QString &key, const QVariant &value)
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    QSettings &settings = openedLocked(s);
    settings.setValue(key, value);
    settings.sync();
}

void UserSettings::remove(const QString &key)
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    QSettings &settings = openedLocked(s);
    settings.remove(key);
    settings.sync();
}

int UserSettings::intValue(const QString &key)
{
    bool ok = false;
    const int number = value(key).toInt(&ok);
    return ok ? number : defaultValue(key).toInt();
}

int UserSettings::gpsFormat()
{
    return intValue(GpsFormat);
}

UserSettings::GpsDisplay UserSettings::gpsDisplay()
{
    switch (gpsFormat()) {
    case 1:
        return GpsDisplay::DegreesDecimalMinutes;
    case 2:
        return GpsDisplay::DecimalDegrees;
    default:
        return GpsDisplay::DegreesMinutesSeconds;
    }
}

bool UserSettings::forceFixBase()
{
    return value(ForceFixBase).toBool();
}

bool UserSettings::ignoreMinorErrors()
{
    return value(IgnoreMinorErrors).toBool();
}

int UserSettings::fileModifyDate()
{
    return intValue(FileModifyDate);
}

int UserSettings::fileCreateDate()
{
    return intValue(FileCreateDate);
}

UserSettings::FileDate UserSettings::fileModifyDateMode()
{
    return toFileDate(fileModifyDate());
}

UserSettings::FileDate UserSettings::fileCreateDateMode()
{
    return toFileDate(fileCreateDate());
}

bool UserSettings::verifiesImageData(const QString &path)
{
    const QVariant stored = value(VerifyImageData);
    if (stored.isValid())
        return stored.toBool();
    // Raw writers are where ExifTool's makers' quirks live, and a damaged raw cannot be
    // redeveloped; for the others the check costs more than it is likely to find.
    return ImageFileTypes::isCameraRawFile(path);
}

bool UserSettings::writesXmpSidecars()
{
    return value(WriteXmpSidecars).toBool();
}

bool UserSettings::writesReadOnlyFiles()
{
    return value(WriteReadOnlyFiles).toBool();
}

bool UserSettings::showsEveryTag()
{
    return value(ShowEveryTag).toBool();
}
