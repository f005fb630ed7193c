#include "engine/filerewriteoperation.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/exifreportparser.h"
#include "engine/metadatareader.h"
#include "engine/exiftoolsession.h"
#include "engine/filereplacement.h"
#include "values/dateoffset.h"
#include "values/datevalue.h"
#include "values/debugmode.h"
#include "values/imagefiletypes.h"
#include "values/logging.h"
#include "values/trcontext.h"
#include "values/usersettings.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <utility>

namespace {

std::atomic<int> s_timeoutBaseMs{120'000};
std::atomic<int> s_timeoutPerMegabyteMs{10'000};

const QString FileTypeKey = QStringLiteral("File:FileType");
const QString MimeTypeKey = QStringLiteral("File:MIMEType");
const QString ImageDataHashKey = QStringLiteral("File:ImageDataHash");
const QStringList DimensionKeys{QStringLiteral("File:ImageWidth"),
                                QStringLiteral("File:ImageHeight"),
                                QStringLiteral("Composite:ImageSize")};

constexpr TrContext tr{"FileRewriteOperation"};

// ExifTool names a record "<Directory>/<FileName>" as it printed them, which is the path it was
// given; the file name alone is the fallback should it ever print the folder differently.
TagDictionary recordOf(const QHash<QString, TagDictionary> &records, const QString &path)
{
    const auto exact = records.constFind(path);
    if (exact != records.cend())
        return exact.value();
    const QString name = QFileInfo(path).fileName();
    for (const TagDictionary &record : records) {
        if (record.value(QStringLiteral("System:FileName")) == name)
            return record;
    }
    return {};
}

// ExifTool reads a JPEG cut short without complaint (the header is all it needs), so a partial
// file is told by its missing end marker.
bool endsWithJpegEnd(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() < 2 || !file.seek(file.size() - 2))
        return false;
    return file.read(2) == QByteArrayLiteral("\xff\xd9");
}

bool isBareJpegXlCodestream(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == QByteArrayLiteral("\xff\x0a");
}

timespec toTimespec(const QDateTime &date)
{
    const qint64 ms = date.toMSecsSinceEpoch();
    timespec time{};
    time.tv_sec = time_t(ms / 1000);
    time.tv_nsec = long((ms % 1000) * 1'000'000);
    if (time.tv_nsec < 0) {
        time.tv_nsec += 1'000'000'000;
        time.tv_sec -= 1;
    }
    return time;
}

// ExifTool's own form of a file date, so a re-read value looks like any other.
QString exifToolFileDate(const QDateTime &date)
{
    const int offset = date.offsetFromUtc();
    const int minutes = std::abs(offset) / 60;
    return date.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")) + (offset < 0 ? u'-' : u'+') +
           QString::asprintf("%02d:%02d", minutes / 60, minutes % 60);
}

} // namespace

FileRewriteOperation::FileRewriteOperation(ExifFileInfoPtr efi, ExifOperationOption options)
    : m_fileName(efi->fileName())
    , m_efi(std::move(efi))
    , m_options(options)
{
}

FileRewriteOperation::~FileRewriteOperation() = default;

void FileRewriteOperation::setCommandTimeouts(int baseMs, int perMegabyteMs)
{
    s_timeoutBaseMs = baseMs;
    s_timeoutPerMegabyteMs = perMegabyteMs;
}

ErrorMessagesPtr FileRewriteOperation::errors() const
{
    QMutexLocker locker(&m_lock);
    return m_errors;
}

std::optional<TagDictionary> FileRewriteOperation::oldData() const
{
    QMutexLocker locker(&m_lock);
    return m_oldData;
}

void FileRewriteOperation::storeResults(ErrorMessagesPtr errors,
                                        std::optional<TagDictionary> oldData)
{
    if (oldData)
        shareUnchangedValues(*oldData, m_efi->originalExifData());
    if (oldData && oldData->contains(QStringLiteral("System:FileModifyDate"))) {
        // The dates were set after the new file was read back.
        const QFileInfo info(m_fileName);
        if (info.exists()) {
            oldData->insert(QStringLiteral("System:FileModifyDate"),
                            exifToolFileDate(info.lastModified()));
        }
    }
    QMutexLocker locker(&m_lock);
    m_errors = std::move(errors);
    m_oldData = std::move(oldData);
}

void FileRewriteOperation::postProcessInMainThread()
{
    const std::optional<TagDictionary> data = oldData();
    if (!reReads() || !data)
        return;
    const TagDictionary before = m_efi->originalExifData();
    m_efi->setOriginalExifData(*data);
    // Tags the write itself created (ExifTool adds GPS:GPSVersionID with a first position, for
    // instance) are not edits: without them in the current values they would count as removed,
    // and the next save would delete them.
    for (auto it = data->cbegin(); it != data->cend(); ++it) {
        if (!before.contains(it.key()) && !m_efi->hasExifValue(it.key()))
            m_efi->setExifValue(it.key(), it.value());
    }
    // Likewise tags it dropped on its own (the IPTC record goes with its last dataset): left
    // untouched in the current values, the next save would write them back.
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (!data->contains(it.key()) && m_efi->hasExifValue(it.key()) &&
            m_efi->exifValue(it.key()) == it.value()) {
            m_efi->removeExifValue(it.key());
        }
    }
    replaceDateTimeOffsets();
}

void FileRewriteOperation::replaceDateTimeOffsets()
{
    // Every date field, changed or not: a shift just written must not be applied again.
    const TagDictionary original = m_efi->originalExifData();
    for (const ExifFieldPtr &field : ExifFieldsController::defaultInstance()->configurations()) {
        const FieldDataRepresentation representation = field->dataRepresentation();
        if (representation != FieldDataRepresentation::Date &&
            representation != FieldDataRepresentation::DateTime) {
            continue;
        }
        const auto value = original.constFind(field->xmlName());
        if (value != original.cend())
            m_efi->setExifValue(field->xmlName(), value.value());
        else
            m_efi->removeExifValue(field->xmlName());
    }
}

FileRewriteOperation::WriteResult FileRewriteOperation::writeFile(const QStringList &arguments,
                                                                  ErrorMessages &errors)
{
    stageWrite(arguments, errors);
    return completeWrite(errors);
}

bool FileRewriteOperation::stageWrite(const QStringList &arguments, ErrorMessages &errors)
{
    m_pending = WriteResult();
    m_written.reset();
    m_typeDiffers = false;
    const qint64 megabytes = QFileInfo(m_fileName).size() / (1024 * 1024);
    setCommandTimeout(int(std::min<qint64>(s_timeoutBaseMs + megabytes * s_timeoutPerMegabyteMs,
                                           std::numeric_limits<int>::max())));

    if (!mayWrite(errors)) {
        m_pending.leftAlone = true;
        return false;
    }
    if (createTempFilePathForPath(m_fileName).isEmpty()) {
        errors.addError(tr("The file could not be saved: %1").arg(m_replacement->errorString()));
        return false;
    }
    m_replacement->setExpectedIdentity(m_efi->identity());
    m_replacement->setKeepsReplacedFileAt(m_keepAt);
    QStringList all = arguments;
    // ExifTool puts a bare JPEG XL codestream into a container (losslessly) only when told
    // to ignore minor errors; the read-back still checks every written value.
    if (isBareJpegXlCodestream(m_fileName) && !all.contains(QStringLiteral("-m")))
        all << QStringLiteral("-m");
    all << QStringLiteral("-o") << m_replacement->exifToolOutputPath() << m_fileName;
    if (DebugMode::isEnabled())
        debugPrintArguments(all);
    m_pending.exitStatus = runExifToolWithArgs(all, errors);
    if (m_pending.exitStatus != 0)
        return false;
    // The disk works on the new file while ExifTool reads it back.
    m_replacement->startFlush();
    std::optional<TagDictionary> written = checkNewFile(errors, m_typeDiffers);
    if (!written)
        return false;
    verifyWrittenValues(*written, errors);
    if (!m_replacement->stage(errors)) {
        m_pending.leftAlone = m_replacement->targetChangedOutside();
        return false;
    }
    m_written = std::move(written);
    return true;
}

FileReplacement *FileRewriteOperation::stagedReplacement() const
{
    return m_written ? m_replacement.get() : nullptr;
}

FileRewriteOperation::WriteResult FileRewriteOperation::completeWrite(ErrorMessages &errors)
{
    WriteResult result = std::exchange(m_pending, WriteResult());
    if (m_written) {
        result.replaced = moveTempToFinal(errors);
        result.leftAlone = m_replacement->targetChangedOutside();
        if (result.replaced) {
            updateFileDates();
            m_efi->setIdentity(FileIdentity::of(m_fileName));
        }
        if (result.replaced && reReads() && !m_typeDiffers) {
            describeFinalFile(*m_written);
            result.reRead = std::move(m_written);
        }
        m_written.reset();
    }
    if (m_replacement)
        m_replacement->discard();
    // What is on disk now, whichever file that is; but another program's file is not ours to
    // take in: the record keeps what was read, and its edits, until the user reloads it.
    if (reReads() && !result.reRead && !result.leftAlone)
        result.reRead = loadOldDataWithErrors(errors);
    return result;
}

QString FileRewriteOperation::keptFile() const
{
    return m_replacement ? m_replacement->keptFile() : QString();
}

bool FileRewriteOperation::mayWrite(ErrorMessages &errors) const
{
    const std::optional<FileIdentity> expected = m_efi->identity();
    const std::optional<FileIdentity> current = FileIdentity::of(m_fileName);
    if (expected && current != expected) {
        errors.addError(changedOutsideMessage(m_fileName));
        return false;
    }
    struct stat st
    {
    };
    // Decided by the file's own mode and owner: a root user may write anything, but a file set
    // read-only, or someone else's, is not for this program to change unasked.
    if (!UserSettings::writesReadOnlyFiles() &&
        ::stat(QFile::encodeName(m_fileName).constData(), &st) == 0 &&
        ((st.st_mode & S_IWUSR) == 0 || st.st_uid != ::geteuid())) {
        errors.addError(
            tr("%1 is read-only, so it was not changed.").arg(QFileInfo(m_fileName).fileName()));
        return false;
    }
    return true;
}

std::optional<TagDictionary> FileRewriteOperation::checkNewFile(ErrorMessages &errors,
                                                                bool &typeDiffers)
{
    const QString newPath = m_replacement->temporaryPath();
    const QFileInfo info(newPath);
    if (!info.exists()) {
        errors.addError(tr("ExifTool reported success but wrote no file; the original was kept."));
        return std::nullopt;
    }
    if (info.size() == 0) {
        errors.addError(tr("ExifTool wrote an empty file; the original was kept."));
        return std::nullopt;
    }

    if (endsWithJpegEnd(m_fileName) && !endsWithJpegEnd(newPath)) {
        errors.addError(tr("ExifTool wrote an incomplete file; the original was kept."));
        return std::nullopt;
    }

    const bool verifiesImageData = UserSettings::verifiesImageData(m_fileName);
    TagDictionary original = m_efi->originalExifData();
    // Both hashes come from one run; and without a snapshot to compare with, the original is
    // read alongside.
    const bool readsOriginal = verifiesImageData || !original.contains(FileTypeKey);
    QStringList paths{newPath};
    if (readsOriginal)
        paths.append(m_fileName);
    QStringList extra;
    if (verifiesImageData)
        extra << QStringLiteral("-api") << QStringLiteral("requesttags=ImageDataHash");

    ExifToolResult run;
    const QHash<QString, TagDictionary> records = readFiles(paths, extra, run);
    if (run.outcome != ExifToolResult::Outcome::Finished) {
        errors.addError(tr("The new file could not be read back (%1); the original was kept.")
                            .arg(run.errorMessage));
        return std::nullopt;
    }
    const TagDictionary written = recordOf(records, newPath);
    if (readsOriginal)
        original = recordOf(records, m_fileName);
    if (written.isEmpty() || !written.contains(FileTypeKey)) {
        errors.addError(tr("The new file could not be read back; the original was kept."));
        return std::nullopt;
    }

    const QString oldType = original.value(FileTypeKey);
    const QString newType = written.value(FileTypeKey);
    // A plain WebP becomes an "Extended WEBP" with its first metadata: the same kind of file.
    const QString oldMime = original.value(MimeTypeKey);
    typeDiffers =
        oldType != newType && (oldMime.isEmpty() || oldMime != written.value(MimeTypeKey));
    // Without its extension a TIFF-based raw file reads as a plain TIFF.
    if (typeDiffers &&
        !(newType == QStringLiteral("TIFF") && ImageFileTypes::isCameraRawFile(m_fileName))) {
        errors.addError(tr("The new file is of type %1 instead of %2; the original was kept.")
                            .arg(newType, oldType));
        return std::nullopt;
    }
    for (const QString &key : DimensionKeys) {
        if (original.contains(key) && written.contains(key) &&
            original.value(key) != written.value(key)) {
            errors.addError(tr("The new file's image size is %1 instead of %2; the original was "
                               "kept.")
                                .arg(written.value(key), original.value(key)));
            return std::nullopt;
        }
    }
    if (verifiesImageData) {
        const QString oldHash = original.value(ImageDataHashKey);
        if (!oldHash.isEmpty() && oldHash != written.value(ImageDataHashKey)) {
            errors.addError(tr("Writing the metadata changed the image data; the original was "
                               "kept."));
            return std::nullopt;
        }
    }
    return written;
}

QHash<QString, TagDictionary> FileRewriteOperation::readFiles(const QStringList &paths,
                                                              const QStringList &extra,
                                                              ExifToolResult &result)
{
    QStringList arguments = extra + MetadataReader::readCommandArguments(paths);
    result = exifToolSession().execute(arguments, commandTimeout());
    if (DebugMode::isEnabled()) {
        debugPrintArguments(arguments);
        debugPrintExifToolOut(result.standardError);
    }
    QHash<QString, TagDictionary> records = ExifReportParser::parse(result.standardOutput);
    MetadataReader formatter(exifToolSession().program());
    for (TagDictionary &record : records)
        record = formatter.preformatValues(record);
    return records;
}

void FileRewriteOperation::describeFinalFile(TagDictionary &values) const
{
    // The read-back named the temporary file; the window shows the file itself.
    const TagDictionary original = m_efi->originalExifData();
    const QFileInfo info(m_fileName);
    values.insert(QStringLiteral("System:FileName"), info.fileName());
    values.insert(QStringLiteral("System:Directory"),
                  original.value(QStringLiteral("System:Directory"), info.path()));
    struct stat st
    {
    };
    if (values.contains(QStringLiteral("System:FilePermissions")) &&
        ::stat(QFile::encodeName(m_fileName).constData(), &st) == 0) {
        values.insert(QStringLiteral("System:FilePermissions"), QString::number(st.st_mode, 8));
    }
}

void FileRewriteOperation::verifyWrittenValues(const TagDictionary &, ErrorMessages &)
{
}

TagDictionary FileRewriteOperation::loadOldDataWithErrors(ErrorMessages &)
{
    if (!QFileInfo::exists(m_fileName))
        return {};
    ExifToolResult run;
    return recordOf(readFiles({m_fileName}, {}, run), m_fileName);
}

bool FileRewriteOperation::moveTempToFinal(ErrorMessages &errors)
{
    return m_replacement->commit(errors);
}

void FileRewriteOperation::updateFileDates()
{
    std::optional<timespec> modified;
    switch (UserSettings::fileModifyDateMode()) {
    case UserSettings::FileDate::FromMetadata:
        if (const auto date = findDateForFile(QStringLiteral("IFD0:ModifyDate")))
            modified = toTimespec(*date);
        break;
    case UserSettings::FileDate::KeepPrevious:
        if (m_replacement && m_replacement->originalState())
            modified = m_replacement->originalState()->modified;
        break;
    case UserSettings::FileDate::LeaveAsWritten:
        break;
    }
    // FILE_CREATE_DATE has nothing to act on: Linux keeps a birth time but no call sets it.
    if (!modified)
        return;
    QString error;
    if (!setFileModificationTime(m_fileName, *modified, &error))
        qCWarning(lcTagsmith).noquote() << error;
}

std::optional<QDateTime> FileRewriteOperation::findDateForFile(const QString &key) const
{
    const QString value = m_efi->exifValue(key);
    if (value.isNull())
        return std::nullopt;
    QDateTime date;
    if (!isDateOffsetText(value)) {
        if (const auto components = parseDateTimeValue(value))
            date = dateFromComponents(*components);
    } else {
        // The shifted reading is the camera's wall clock; the file's date is that local time.
        const QDateTime shifted = applyDateOffset(value, m_efi->originalExifData().value(key));
        if (shifted.isValid())
            date = dateFromComponents(componentsFromDate(shifted));
    }
    if (!date.isValid())
        return std::nullopt;
    return date;
}

QString FileRewriteOperation::createTempFilePathForPath(const QString &path)
{
    m_replacement = std::make_unique<FileReplacement>(path);
    m_tempFileName.clear();
    if (m_replacement->prepare())
        m_tempFileName = m_replacement->temporaryPath();
    return m_tempFileName;
}

void FileRewriteOperation::debugPrintArguments(const QStringList &arguments) const
{
    QString text;
    for (const QString &argument : arguments)
        text += argument + u'\n';
    qCInfo(lcTagsmith).noquote() << text;
}

std::optional<TagDictionary> FileRewriteOperation::adoptRewrittenFile(const WriteResult &result)
{
    QMutexLocker locker(&m_lock);
    std::optional<TagDictionary> reRead;
    if (reReads() && result.reRead) {
        reRead = result.reRead;
        m_efi->setExifData(*reRead);
        m_efi->setOriginalExifData(*reRead);
    }
    return reRead;
}
