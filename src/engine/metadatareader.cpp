#include "engine/metadatareader.h"

#include "engine/errormessages.h"
#include "engine/exifreportparser.h"
#include "engine/xmpsidecar.h"
#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"
#include "values/leadingnumber.h"
#include "values/logging.h"
#include "values/numberformatter.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>

#include <atomic>

namespace {

std::atomic<int> s_readTimeoutMs{60'000};

bool existsOnDisk(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

MetadataReader::MetadataReader(QString exifToolProgram)
    : m_command(std::move(exifToolProgram))
{
}

MetadataReader::~MetadataReader() = default;

QStringList MetadataReader::readCommandArguments(const QStringList &paths)
{
    QStringList arguments{QStringLiteral("-g1"), QStringLiteral("-X"), QStringLiteral("-n"),
                          QStringLiteral("-charset"), QStringLiteral("UTF-8")};
    arguments += structureArguments();
    arguments += paths;
    return arguments;
}

void MetadataReader::setReadTimeout(int milliseconds)
{
    s_readTimeoutMs = milliseconds;
}

int MetadataReader::readTimeout()
{
    return s_readTimeoutMs;
}

ExifToolResult MetadataReader::executeRawCommand_FileInfo(const QStringList &paths) const
{
    return m_command.run(readCommandArguments(paths));
}

MetadataReader::Report
MetadataReader::readReport(const QStringList &paths,
                           const std::function<void(const QString &, TagDictionary)> &onRecord)
{
    // One run for the batch, unless its paths would pass the kernel's limit on the size of an
    // argument list (2 MiB on Linux); a folder of many thousand files can get there.
    constexpr qsizetype argumentBytesPerRun = 1024 * 1024;
    Report report;
    qsizetype recordsHanded = 0;
    qsizetype first = 0;
    while (first < paths.size()) {
        qsizetype end = first;
        qsizetype bytes = 0;
        while (end < paths.size() && (end == first || bytes < argumentBytesPerRun))
            bytes += paths.at(end++).toUtf8().size() + 1;

        ExifReportParser parser;
        QSet<QString> recorded;
        parser.setRecordHandler([&](const QString &path, TagDictionary record) {
            recorded.insert(path);
            if (onRecord)
                onRecord(path, std::move(record));
            else
                report.records.insert(path, std::move(record));
        });
        const qsizetype recordsBefore = report.records.size() + recordsHanded;
        // "-v0" has ExifTool send each file's record as soon as it is done, so that a file it
        // gets stuck on is the first one without a record.
        const ExifToolResult run = m_command.run(
            QStringList{QStringLiteral("-v0")} +
                readCommandArguments(paths.mid(first, end - first)),
            [&](QByteArrayView chunk) {
                parser.addData(chunk.toByteArray());
                if (m_recordsRead)
                    m_recordsRead(recordsBefore + parser.recordCount());
            },
            -1, s_readTimeoutMs);
        recordsHanded += onRecord ? parser.recordCount() : 0;
        parser.finish();
        if (run.outcome == ExifToolResult::Outcome::TimedOut) {
            qsizetype stuck = first;
            while (stuck < end && recorded.contains(paths.at(stuck)))
                ++stuck;
            if (stuck < end) {
                qCWarning(lcTagsmith).noquote()
                    << QStringLiteral("ExifTool got stuck reading %1").arg(paths.at(stuck));
                report.result.timedOut.append(paths.at(stuck));
                report.ran = true;
                first = stuck + 1;
                continue;
            }
        }
        if (run.outcome != ExifToolResult::Outcome::Finished) {
            // After a crash, what did arrive is still the files' true content.
            qCWarning(lcTagsmith).noquote() << run.errorMessage;
            report.result.errorMessage = run.errorMessage;
            if (!run.hasStarted()) {
                report.ran = false;
                return report;
            }
        }
        report.ran = true;
        first = end;
    }
    return report;
}

ExifReadResult MetadataReader::readRecords(const QList<ExifFileInfoPtr> &files)
{
    QList<ExifFileInfoPtr> kept;
    QStringList paths;
    // Raw files' sidecars are read in the same run, each right after its file.
    XmpSidecar::Finder sidecars;
    QHash<QString, TagDictionary> sidecarValues;
    for (const ExifFileInfoPtr &file : files) {
        if (!existsOnDisk(file->fileName())) {
            file->setValid(false);
            continue;
        }
        kept.append(file);
        paths.append(file->fileName());
        const QString sidecar = sidecars.sidecarFor(file->fileName());
        file->setSidecarPath(sidecar);
        if (!sidecar.isEmpty() && !sidecarValues.contains(sidecar)) {
            sidecarValues.insert(sidecar, {});
            paths.append(sidecar);
        }
    }
    if (kept.isEmpty())
        return {};

    // A list may hold two records of one path; both get its values.
    QHash<QString, QList<ExifFileInfoPtr>> byPath;
    byPath.reserve(kept.size());
    // Taken before ExifTool opens the files: a change made while it reads then shows as a
    // change since the read, never the other way round.
    QHash<QString, std::optional<FileIdentity>> identities;
    identities.reserve(kept.size());
    for (const ExifFileInfoPtr &file : std::as_const(kept)) {
        byPath[file->fileName()].append(file);
        identities.insert(file->fileName(), FileIdentity::of(file->fileName()));
    }
    m_cachesFormatters = true;
    StringPool pool;
    // Each record is formatted as it arrives, on this thread while ExifTool works on the next
    // files, and the parsed form is let go at once, so the batch is never held twice.
    const Report report = readReport(paths, [&, this](const QString &path, TagDictionary record) {
        const auto sidecar = sidecarValues.find(path);
        if (sidecar != sidecarValues.end()) {
            *sidecar = preformatValues(XmpSidecar::xmpPart(record), &pool);
            return;
        }
        const auto waiting = byPath.constFind(path);
        if (waiting == byPath.cend())
            return;
        const TagDictionary formatted = preformatValues(record, &pool);
        for (const ExifFileInfoPtr &file : *waiting) {
            file->setReadData(formatted);
            file->setIdentity(identities.value(path));
        }
        byPath.erase(waiting);
    });
    if (report.ran) {
        // What ExifTool reported nothing for is still read, with nothing in it; but a file it
        // got stuck on is not read at all.
        for (auto it = byPath.cbegin(); it != byPath.cend(); ++it) {
            const bool stuck = report.result.timedOut.contains(it.key());
            for (const ExifFileInfoPtr &file : it.value()) {
                if (stuck) {
                    file->setValid(false);
                    continue;
                }
                file->setReadData({});
                file->setIdentity(identities.value(it.key()));
            }
        }
    }
    if (!sidecarValues.isEmpty()) {
        for (const ExifFileInfoPtr &file : std::as_const(kept)) {
            const QString sidecar = file->sidecarPath();
            if (!sidecar.isEmpty() && file->isValid())
                file->setReadData(
                    withSidecarValues(file->originalExifData(), sidecarValues.value(sidecar)));
        }
    }
    m_cachesFormatters = false;
    m_formatters.clear();
    return report.result;
}

TagDictionary MetadataReader::withSidecarValues(TagDictionary fileValues,
                                                const TagDictionary &sidecarXmp)
{
    // The sidecar is the raw file's XMP as far as it goes.
    fileValues.insert(sidecarXmp);
    return fileValues;
}

ExifReadResult MetadataReader::readRecord(const ExifFileInfoPtr &file)
{
    return readRecords({file});
}

ExifReadResult MetadataReader::rereadOriginal(const ExifFileInfoPtr &file)
{
    if (!existsOnDisk(file->fileName()))
        return {};
    const QString sidecar = file->sidecarPath();
    const std::optional<FileIdentity> identity = FileIdentity::of(file->fileName());
    const Report report = readReport(sidecar.isEmpty() ? QStringList{file->fileName()}
                                                       : QStringList{file->fileName(), sidecar});
    if (!report.ran)
        return report.result;
    file->setIdentity(identity);
    TagDictionary values = preformatValues(report.records.value(file->fileName()));
    if (!sidecar.isEmpty())
        values = withSidecarValues(
            values, preformatValues(XmpSidecar::xmpPart(report.records.value(sidecar))));
    file->setOriginalExifData(values);
    return report.result;
}

QString MetadataReader::formatValue(const QString &value, const ExifField &field)
{
    if (field.dataRepresentation() == FieldDataRepresentation::Number)
        return formatNumberFromExifTool(value, field);
    return value;
}

QString MetadataReader::formatNumberFromExifTool(const QString &value, const ExifField &field)
{
    if (value.isEmpty())
        return QString(QLatin1String(""));
    if (!m_cachesFormatters)
        return field.createFormatter()->stringFromNumber(leadingNumber(value));
    std::unique_ptr<NumberFormatter> &formatter = m_formatters[&field];
    if (!formatter)
        formatter = field.createFormatter();
    return formatter->stringFromNumber(leadingNumber(value));
}

TagDictionary MetadataReader::preformatValues(const TagDictionary &values, StringPool *pool)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    // Without a pool (one file read back after its save), tag names still share the copy every
    // other record of the run holds, and values drop the spare room the parser left: thousands
    // of files saved at once would otherwise each hold their own.
    const auto sharedKey = [pool](const QString &key) {
        if (pool)
            return pool->intern(key);
        static QMutex mutex;
        static StringPool names;
        QMutexLocker locker(&mutex);
        return names.intern(key);
    };
    const auto sharedValue = [pool](const QString &text) {
        if (pool)
            return pool->intern(text);
        return text.capacity() > text.size() ? QString(text.constData(), text.size()) : text;
    };
    TagDictionary formatted;
    formatted.reserve(values.size());
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const ExifFieldPtr field = catalogue->field(it.key());
        formatted.insert(sharedKey(it.key()),
                         sharedValue(field ? formatValue(it.value(), *field) : it.value()));
    }
    filterLeicaLensData(formatted);
    return formatted;
}

void MetadataReader::filterLeicaLensData(TagDictionary &values)
{
    static const QString lensTypeKey = QStringLiteral("Leica:LensType");
    auto lensType = values.find(lensTypeKey);
    if (lensType == values.end())
        return;
    const ExifFieldPtr field = ExifFieldsController::defaultInstance()->field(lensTypeKey);
    if (field && field->values() && field->values()->contains(*lensType))
        return;
    // ExifTool appends the focal length to lens codes the catalogue lists on their own.
    *lensType = lensType->section(QLatin1Char(' '), 0, 0);
}

bool MetadataReader::backupExifFile(const ExifFileInfo &file, ErrorMessages &errors)
{
    const QString backupPath = file.backupFileName();
    QFile source(file.fileName());
    if (source.copy(backupPath))
        return true;
    if (!source.errorString().isEmpty()) {
        errors.addErrorMessage(
            ErrorMessage(file.fileName(), source.errorString(), ErrorMessage::Error));
        return false;
    }
    // A failure that names no cause has always counted as done; only the message tells.
    errors.addErrorMessage(ErrorMessage(
        file.fileName(),
        QCoreApplication::translate("Localizable", "Cannot make backup of file %1 to %2")
            .arg(file.fileName(), backupPath),
        ErrorMessage::Error));
    return true;
}
