#include "engine/exifrunnerrevertoperation.h"

#include "engine/exifrunnersaveoperation.h"

#include "values/datevalue.h"
#include "values/trcontext.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

constexpr TrContext tr{"ExifRunnerRevertOperation"};

} // namespace

std::shared_ptr<ExifRunnerRevertOperation>
ExifRunnerRevertOperation::create(ExifFileInfoPtr efi, ExifOperationOption options)
{
    std::optional<RevertEntry> entry = RevertRecord::load(efi->fileName());
    if (!entry || entry->isEmpty())
        return nullptr;
    return std::make_shared<ExifRunnerRevertOperation>(std::move(efi), options, std::move(*entry));
}

ExifRunnerRevertOperation::ExifRunnerRevertOperation(ExifFileInfoPtr efi,
                                                     ExifOperationOption options, RevertEntry entry)
    : FileRewriteOperation(std::move(efi), options)
    , m_entry(std::move(entry))
{
}

QStringList ExifRunnerRevertOperation::exifToolArguments(const QString &importPath) const
{
    QStringList arguments;
    if (!m_entry.previous.isEmpty())
        arguments.append(QStringLiteral("-j=") + importPath);
    for (const QString &key : m_entry.absent)
        arguments.append(u'-' + ExifRunnerSaveOperation::writtenForm(key) + u'=');
    return arguments + ExifRunnerSaveOperation::otherExifFileArguments();
}

void ExifRunnerRevertOperation::run()
{
    auto errors = std::make_shared<ErrorMessages>(fileName());
    if (!m_entry.matchesDisk()) {
        // Writing the old values over someone else's later changes would lose those.
        errors->addError(tr("The file was changed after the last save (its size or modification "
                            "date differ), so that save was not reverted."));
        storeResults(errors, std::nullopt);
        return;
    }
    if (!m_entry.keptFile.isEmpty()) {
        restoreKeptFile(errors);
        return;
    }
    QTemporaryFile import(QDir::tempPath() + QStringLiteral("/tagsmith-revert-XXXXXX.json"));
    if (!m_entry.previous.isEmpty() &&
        (!import.open() || import.write(RevertRecord::importJson(m_entry)) < 0 ||
         !import.flush())) {
        errors->addError(tr("The last save could not be reverted: %1").arg(import.errorString()));
        storeResults(errors, std::nullopt);
        return;
    }
    const WriteResult result = writeFile(exifToolArguments(import.fileName()), *errors);
    if (result.replaced)
        RevertRecord::discard(fileName());
    // The record holds only what the save wrote into the file itself.
    if (result.replaced && !efi()->sidecarPath().isEmpty()) {
        errors->addWarning(tr("The sidecar %1 keeps the XMP values of that save; only the file "
                              "itself was reverted.")
                               .arg(QFileInfo(efi()->sidecarPath()).fileName()));
    }
    storeResults(errors, reReads() ? result.reRead : std::nullopt);
}

void ExifRunnerRevertOperation::restoreKeptFile(const ErrorMessagesPtr &errors)
{
    if (!mayWrite(*errors)) {
        storeResults(errors, std::nullopt);
        return;
    }
    // Through a symbolic link, its target is what the removal replaced.
    const QFileInfo info(fileName());
    const QString target = info.isSymLink() ? info.canonicalFilePath() : fileName();
    if (!QFileInfo::exists(m_entry.keptFile) ||
        ::rename(QFile::encodeName(m_entry.keptFile).constData(),
                 QFile::encodeName(target).constData()) != 0) {
        errors->addError(tr("The file as it was before its metadata was removed could not be put "
                            "back (%1); the file is unchanged.")
                             .arg(QString::fromLocal8Bit(std::strerror(errno))));
        storeResults(errors, std::nullopt);
        return;
    }
    RevertRecord::discard(fileName(), true);
    RevertRecord::removeKeptFile(m_entry.keptFile);
    // Without this the rename itself may not survive a power cut.
    const int folder = ::open(QFile::encodeName(QFileInfo(target).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0 || ::fsync(folder) != 0)
        errors->addWarning(tr("The folder of the file could not be written to disk."));
    if (folder >= 0)
        ::close(folder);
    efi()->setIdentity(FileIdentity::of(fileName()));
    const std::optional<TagDictionary> reRead =
        reReads() ? std::optional<TagDictionary>(loadOldDataWithErrors(*errors)) : std::nullopt;
    storeResults(errors, reRead);
}

void ExifRunnerRevertOperation::postProcessInMainThread()
{
    const std::optional<TagDictionary> data = oldData();
    if (reReads() && data && !m_entry.keptFile.isEmpty()) {
        // The whole file is back: every value is what it holds, as after a removal.
        efi()->setExifData(*data);
        efi()->setOriginalExifData(*data);
        return;
    }
    if (reReads() && data) {
        // The reverted tags take their values on disk, unless the user has edited one since.
        const TagDictionary before = efi()->originalExifData();
        const auto adopt = [&](const QString &key) {
            if (efi()->exifValue(key) != before.value(key))
                return;
            const auto value = data->constFind(key);
            if (value != data->cend())
                efi()->setExifValue(key, value.value());
            else
                efi()->removeExifValue(key);
        };
        for (auto it = m_entry.previous.constBegin(); it != m_entry.previous.constEnd(); ++it)
            adopt(it.key());
        for (const QString &key : m_entry.absent)
            adopt(key);
    }
    FileRewriteOperation::postProcessInMainThread();
}

void ExifRunnerRevertOperation::verifyWrittenValues(const TagDictionary &written,
                                                    ErrorMessages &errors)
{
    // Values are compared by presence only: the record holds ExifTool's raw form, the read-back
    // its display form.
    for (auto it = m_entry.previous.constBegin(); it != m_entry.previous.constEnd(); ++it) {
        // A language alternative's other languages ("XMP-dc:Title-de") need not read back as
        // tags of their own.
        const bool languageVariant = it.key().count(u'-') > 1;
        if (!written.contains(it.key()) && !languageVariant)
            errors.addWarning(tr("%1 could not be restored.").arg(it.key()));
    }
    for (const QString &key : m_entry.absent) {
        if (written.contains(key))
            errors.addWarning(tr("%1 is still in the file after the revert.").arg(key));
    }
}

std::optional<QDateTime> ExifRunnerRevertOperation::findDateForFile(const QString &key) const
{
    // The working values still hold what was saved; the file's date follows what it reverts to.
    if (m_entry.absent.contains(key))
        return std::nullopt;
    const auto previous = m_entry.previous.constFind(key);
    if (previous == m_entry.previous.constEnd())
        return FileRewriteOperation::findDateForFile(key);
    const auto components = parseDateTimeValue(previous.value().toString());
    if (!components)
        return std::nullopt;
    const QDateTime date = dateFromComponents(*components);
    return date.isValid() ? std::optional<QDateTime>(date) : std::nullopt;
}
