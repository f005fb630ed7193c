#include "values/usersettings.h"

#include "values/imagefiletypes.h"

#include <QMutex>
#include <QMutexLocker>
#include <QSettings>
#include <QStringList>

namespace {

QMutex storeFileMutex;
QString storeFilePath;

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
    QMutexLocker lock(&storeFileMutex);
    storeFilePath = path;
}

QString UserSettings::storeFile()
{
    QMutexLocker lock(&storeFileMutex);
    return storeFilePath;
}

std::unique_ptr<QSettings> UserSettings::openStore()
{
    const QString path = storeFile();
    if (!path.isEmpty())
        return std::make_unique<QSettings>(path, QSettings::IniFormat);
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                       QStringLiteral("Tagsmith"), QStringLiteral("Tagsmith"));
}

QVariant UserSettings::defaultValue(const QString &key)
{
    if (key == GpsFormat || key == FileModifyDate || key == FileCreateDate)
        return 0;
    if (key == ForceFixBase || key == IgnoreMinorErrors || key == WriteXmpSidecars ||
        key == WriteReadOnlyFiles || key == PasteEverything)
        return false;
    return {};
}

QVariant UserSettings::value(const QString &key)
{
    return openStore()->value(key, defaultValue(key));
}

void UserSettings::setValue(const QString &key, const QVariant &value)
{
    openStore()->setValue(key, value);
}

void UserSettings::remove(const QString &key)
{
    openStore()->remove(key);
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
