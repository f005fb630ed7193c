// The XMP sidecar of a raw file: its part of a save. XMP tags go there, everything else to the
// file; both with the same care (a new file that is checked, flushed and put in place whole).
#include "engine/exifrunnersaveoperation.h"

#include "engine/errormessages.h"
#include "engine/exifreportparser.h"
#include "engine/metadatareader.h"
#include "engine/exiftoolsession.h"
#include "engine/filereplacement.h"
#include "engine/xmpsidecar.h"
#include "values/debugmode.h"
#include "values/imagefiletypes.h"
#include "values/trcontext.h"
#include "values/usersettings.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

constexpr TrContext tr{"ExifRunnerSaveOperation"};

QString systemError(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

bool flushToDisk(const QString &path, int flags)
{
    const int fd = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool flushed = ::fsync(fd) == 0;
    ::close(fd);
    return flushed;
}

} // namespace

void ExifRunnerSaveOperation::routeToSidecar()
{
    m_sidecarPath = efi()->sidecarPath();
    const bool exists = !m_sidecarPath.isEmpty();
    if (!exists) {
        if (!ImageFileTypes::isCameraRawFile(fileName()) || !UserSettings::writesXmpSidecars())
            return;
        m_sidecarPath = XmpSidecar::newPathFor(fileName());
        m_createsSidecar = true;
    }
    for (auto it = m_itemsToChange.begin(); it != m_itemsToChange.end();) {
        if (XmpSidecar::isXmpKey(it.key())) {
            m_sidecarChanges.insert(it.key(), it.value());
            it = m_itemsToChange.erase(it);
        } else {
            ++it;
        }
    }
    // Without a sidecar yet, a removed XMP tag can only be in the file itself.
    if (exists) {
        for (auto it = m_itemsToRemove.begin(); it != m_itemsToRemove.end();) {
            if (XmpSidecar::isXmpKey(*it)) {
                m_sidecarRemovals.insert(*it);
                it = m_itemsToRemove.erase(it);
            } else {
                ++it;
            }
        }
    }
    if (m_sidecarChanges.isEmpty() && m_sidecarRemovals.isEmpty()) {
        m_sidecarPath.clear();
        m_createsSidecar = false;
    }
}

QStringList ExifRunnerSaveOperation::sidecarArguments(QStringList *failures) const
{
    if (m_sidecarPath.isEmpty())
        return {};
    return gatherExifToolArgumentsToChange(convertValuesToChange(m_sidecarChanges, failures)) +
           gatherExifToolArgumentsToRemove(m_sidecarRemovals) + otherExifFileArguments();
}

void ExifRunnerSaveOperation::writeSidecar(ErrorMessages &errors, WriteResult &result)
{
    const QStringList arguments = sidecarArguments(nullptr);
    std::optional<TagDictionary> sidecar =
        m_createsSidecar ? createSidecar(arguments, errors) : replaceSidecar(arguments, errors);
    if (sidecar && m_createsSidecar)
        efi()->setSidecarPath(m_sidecarPath);
    if (!reReads())
        return;
    if (!result.reRead)
        result.reRead = loadOldDataWithErrors(errors);
    // After a failure the window shows what the sidecar still holds.
    const QString onDisk = efi()->sidecarPath();
    if (!sidecar && !onDisk.isEmpty())
        sidecar = readSidecar(onDisk, errors);
    if (sidecar)
        result.reRead =
            MetadataReader::withSidecarValues(*result.reRead, XmpSidecar::xmpPart(*sidecar));
}

std::optional<TagDictionary> ExifRunnerSaveOperation::readSidecar(const QString &path,
                                                                  ErrorMessages &errors)
{
    const ExifToolResult run =
        exifToolSession().execute(MetadataReader::readCommandArguments({path}), commandTimeout());
    const QHash<QString, TagDictionary> records = ExifReportParser::parse(run.standardOutput);
    TagDictionary values = records.value(path);
    if (values.isEmpty() && records.size() == 1)
        values = records.cbegin().value();
    if (values.value(QStringLiteral("File:FileType")) != QStringLiteral("XMP")) {
        errors.addError(tr("The sidecar “%1” could not be read back as XMP.").arg(path));
        return std::nullopt;
    }
    MetadataReader formatter(exifToolSession().program());
    return formatter.preformatValues(values);
}

std::optional<TagDictionary> ExifRunnerSaveOperation::replaceSidecar(const QStringList &arguments,
                                                                     ErrorMessages &errors)
{
    FileReplacement replacement(m_sidecarPath);
    if (!replacement.prepare()) {
        errors.addError(tr("The sidecar “%1” could not be saved: %2")
                            .arg(m_sidecarPath, replacement.errorString()));
        return std::nullopt;
    }
    QStringList all = arguments;
    all << QStringLiteral("-o") << replacement.exifToolOutputPath() << m_sidecarPath;
    if (DebugMode::isEnabled())
        debugPrintArguments(all);
    if (runExifToolWithArgs(all, errors) != 0)
        return std::nullopt;
    std::optional<TagDictionary> written = readSidecar(replacement.temporaryPath(), errors);
    if (!written)
        return std::nullopt;
    for (auto it = m_sidecarChanges.cbegin(); it != m_sidecarChanges.cend(); ++it) {
        if (!readsBackAsWritten(it.key(), it.value(), *written))
            errors.addWarning(tr("%1 did not read back as written in the sidecar.").arg(it.key()));
    }
    if (!replacement.commit(errors))
        return std::nullopt;
    if (UserSettings::fileModifyDateMode() == UserSettings::FileDate::KeepPrevious &&
        replacement.originalState()) {
        QString error;
        if (!setFileModificationTime(m_sidecarPath, replacement.originalState()->modified, &error))
            errors.addWarning(error);
    }
    return written;
}

std::optional<TagDictionary> ExifRunnerSaveOperation::createSidecar(const QStringList &arguments,
                                                                    ErrorMessages &errors)
{
    // The raw file's replacement is used only for its private scratch folder beside the file,
    // which it removes again; the raw file itself is not touched.
    FileReplacement scratch(fileName());
    if (!scratch.prepare()) {
        errors.addError(tr("The sidecar “%1” could not be created: %2")
                            .arg(m_sidecarPath, scratch.errorString()));
        return std::nullopt;
    }
    const QString newPath =
        QFileInfo(scratch.temporaryPath()).path() + QStringLiteral("/sidecar.xmp");
    // ExifTool makes a new XMP file when the one it is to write does not exist.
    QStringList all = arguments;
    all << newPath;
    if (DebugMode::isEnabled())
        debugPrintArguments(all);
    if (runExifToolWithArgs(all, errors) != 0)
        return std::nullopt;
    std::optional<TagDictionary> written = readSidecar(newPath, errors);
    if (!written)
        return std::nullopt;
    if (!flushToDisk(newPath, O_RDONLY)) {
        errors.addError(tr("The sidecar “%1” could not be written to disk.").arg(m_sidecarPath));
        return std::nullopt;
    }
    // A link, unlike a rename, never replaces a file that took the name meanwhile.
    if (::link(QFile::encodeName(newPath).constData(),
               QFile::encodeName(m_sidecarPath).constData()) != 0) {
        errors.addError(
            tr("The sidecar “%1” could not be created: %2").arg(m_sidecarPath, systemError(errno)));
        return std::nullopt;
    }
    if (!flushToDisk(QFileInfo(m_sidecarPath).absolutePath(), O_RDONLY | O_DIRECTORY))
        errors.addWarning(
            tr("The folder of “%1” could not be written to disk.").arg(m_sidecarPath));
    return written;
}
