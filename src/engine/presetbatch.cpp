#include "engine/presetbatch.h"

#include "catalogue/preset.h"
#include "engine/errormessages.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/exifutil.h"
#include "engine/fileadmission.h"
#include "engine/linkedforms.h"
#include "values/trcontext.h"

#include <QEventLoop>

#include <algorithm>

namespace {

constexpr TrContext tr{"PresetBatch"};

QStringList messagesOfType(const ErrorMessages &messages, qint32 type)
{
    QStringList texts;
    for (const ErrorMessage &message : messages.messages()) {
        if (message.type() == type)
            texts.append(message.message());
    }
    return texts;
}

} // namespace

void applyPreset(const Preset &preset, ExifFileInfo &file)
{
    const auto &changed = preset.changedValues();
    // A value for one copy of a property that the form shows as one row goes to every copy,
    // as the row's edit would. Of several copies in the preset, the row's own tag (else the
    // first in the row's order) gives the value, whatever order the preset keeps.
    const auto givesValue = [&changed](const QString &key, const LinkedForms &forms) {
        for (const QString &form : forms.keys()) {
            if (changed.contains(form))
                return form == key;
        }
        return false;
    };
    for (auto it = changed.cbegin(); it != changed.cend(); ++it) {
        const LinkedForms forms = LinkedForms::ofKey(it.key());
        if (!forms.isLinked())
            file.setExifValue(it.key(), it.value());
        else if (givesValue(it.key(), forms))
            forms.set(file, forms.rowValueOf(it.key(), it.value()));
    }
    for (const QString &key : preset.removedValues()) {
        const LinkedForms forms = LinkedForms::ofKey(key);
        const bool valueGiven =
            std::any_of(forms.keys().cbegin(), forms.keys().cend(),
                        [&changed](const QString &k) { return changed.contains(k); });
        if (!valueGiven)
            forms.remove(file);
    }
}

QList<PresetBatch::FileResult> PresetBatch::run(const Preset &preset, const QStringList &paths)
{
    QList<FileResult> results;
    const FileAdmissionResult admitted = FileAdmission::preprocessFilesToBeAdded(paths, {});
    for (const FileRejection &rejection : admitted.rejected) {
        // What a folder hides, and a second name of a file already taken, are not failures.
        if (rejection.reason != FileRejection::Reason::Hidden &&
            rejection.reason != FileRejection::Reason::SameFile)
            results.append(
                {rejection.path, Outcome::Failed, {FileAdmission::reasonText(rejection)}});
    }

    QList<ExifFileInfoPtr> files;
    for (const QString &path : admitted.accepted)
        files.append(std::make_shared<ExifFileInfo>(path));
    MetadataReader reader;
    const ExifReadResult read = reader.readRecords(files);

    QList<ExifFileInfoPtr> toSave;
    for (const ExifFileInfoPtr &file : std::as_const(files)) {
        const auto rejection = FileAdmission::rejectionAfterReading(file->originalExifData());
        if (!read.ok() || !file->isValid() || rejection) {
            const QString reason = !read.ok() ? read.errorMessage
                                              : FileAdmission::reasonText(rejection.value_or(
                                                    FileRejection::Reason::Unreadable));
            results.append({file->fileName(), Outcome::Failed, {reason}});
            continue;
        }
        applyPreset(preset, *file);
        if (isExifFileModified(*file))
            toSave.append(file);
        else
            results.append({file->fileName(), Outcome::Unchanged, {}});
    }

    if (!toSave.isEmpty()) {
        WriteQueue runner;
        QEventLoop loop;
        QHash<QString, ErrorMessagesPtr> saved;
        QObject::connect(&runner, &WriteQueue::batchFinished, &loop,
                         [&](const QHash<QString, ErrorMessagesPtr> &results) {
                             saved = results;
                             loop.quit();
                         });
        runner.saveFiles(toSave, ExifOperationOption::ReReadFile);
        loop.exec();
        for (const ExifFileInfoPtr &file : std::as_const(toSave)) {
            const ErrorMessagesPtr messages = saved.value(file->fileName());
            if (messages && messages->errorsCount() > 0) {
                results.append({file->fileName(), Outcome::Failed,
                                messagesOfType(*messages, ErrorMessage::Error)});
            } else {
                results.append(
                    {file->fileName(), Outcome::Saved,
                     messages ? messagesOfType(*messages, ErrorMessage::Warning) : QStringList()});
            }
        }
    }
    return results;
}

QString PresetBatch::describe(const FileResult &result)
{
    switch (result.outcome) {
    case Outcome::Saved:
        if (result.messages.isEmpty())
            return tr("%1: saved").arg(result.path);
        return tr("%1: saved, with warnings: %2").arg(result.path, result.messages.join(u' '));
    case Outcome::Unchanged:
        return tr("%1: unchanged").arg(result.path);
    case Outcome::Failed:
        break;
    }
    return QStringLiteral("%1: %2").arg(result.path, result.messages.join(u' '));
}
