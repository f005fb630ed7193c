#include "engine/exiftoolversion.h"

#include "engine/exiftoolcommand.h"

#include <QCoreApplication>

#include <optional>
#include <utility>

namespace {

constexpr int versionTimeoutMs = 30000;
const QString firstSafeRelease = QStringLiteral("12.75");

std::optional<std::pair<int, int>> versionNumbers(const QString &version)
{
    const QStringList parts = version.trimmed().split(u'.');
    if (parts.size() != 2)
        return std::nullopt;
    bool isMajor = false;
    bool isMinor = false;
    const int major = parts.at(0).toInt(&isMajor);
    const int minor = parts.at(1).toInt(&isMinor);
    if (!isMajor || !isMinor)
        return std::nullopt;
    return std::pair(major, minor);
}

} // namespace

bool isExifToolVersionOlder(const QString &version, const QString &than)
{
    const auto left = versionNumbers(version);
    const auto right = versionNumbers(than);
    return left && right && *left < *right;
}

bool ExifToolVersion::isOlderThanSafeRelease() const
{
    return isKnown() && isExifToolVersionOlder(version, firstSafeRelease);
}

QString ExifToolVersion::warning() const
{
    if (!isOlderThanSafeRelease())
        return {};
    return QCoreApplication::translate(
               "Localizable",
               "ExifTool %1 is older than 12.75. Versions 12.45 to 12.74 can corrupt some Sony "
               "ARW files when writing them. Please use ExifTool 12.75 or newer.")
        .arg(version);
}

ExifToolVersion exifToolVersion(const QString &program)
{
    ExifToolVersion result;
    result.program = program;
    const ExifToolResult run =
        ExifToolCommand(program).run({QStringLiteral("-ver")}, {}, versionTimeoutMs);
    if (!run.hasStarted() || run.outcome != ExifToolResult::Outcome::Finished) {
        result.errorMessage = run.errorMessage;
        return result;
    }
    const QString printed = QString::fromUtf8(run.standardOutput).trimmed();
    if (run.exitCode != 0 || !versionNumbers(printed)) {
        result.errorMessage =
            QCoreApplication::translate("Localizable", "\"%1\" did not report an ExifTool version.")
                .arg(program);
        return result;
    }
    result.version = printed;
    return result;
}
