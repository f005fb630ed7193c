#pragma once

#include "engine/exiffileinfo.h"
#include "engine/exiftoolcommand.h"
#include "engine/stringpool.h"
#include "engine/tagdictionary.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <unordered_map>

class ErrorMessages;
class ExifField;
class NumberFormatter;

// How a read went. The records are filled whenever ExifTool ran; when it could not be started
// they are left as they were and the message says which program was tried.
struct ExifReadResult
{
    QString errorMessage; // user-presentable; empty when ExifTool ran
    // Files ExifTool got stuck on: read no further, and left not valid.
    QStringList timedOut;

    bool ok() const { return errorMessage.isEmpty(); }
};

// Reads files' metadata with one ExifTool run per call (split only where the argument list would
// pass the kernel's limit). Not reentrant: one instance per thread.
class MetadataReader
{
public:
    explicit MetadataReader(QString exifToolProgram = exifToolPath());
    // Every report of a file's values gives an XMP structure (Location Shown, Artwork or
    // Object...) whole, as well as its members as flat tags: the form edits the whole.
    static QStringList structureArguments()
    {
        return {QStringLiteral("-api"), QStringLiteral("struct=2")};
    }
    ~MetadataReader();
    MetadataReader(const MetadataReader &) = delete;
    MetadataReader &operator=(const MetadataReader &) = delete;

    bool backupFiles() const { return m_backupFiles; }
    void setBackupFiles(bool backup) { m_backupFiles = backup; }

    // Told, on the reading thread, how many records of the current ExifTool run are complete.
    void setRecordsReadHandler(std::function<void(qsizetype records)> handler)
    {
        m_recordsRead = std::move(handler);
    }

    // How long a read may go without ExifTool finishing a file before that file is given up
    // (tests shorten it). Process-wide.
    static void setReadTimeout(int milliseconds);
    static int readTimeout();

    // Missing files become not valid and stay out of the run; so do files ExifTool got stuck
    // on (ExifReadResult::timedOut), whose batch goes on without them. Every other file is valid
    // afterwards, with empty dictionaries when ExifTool reported nothing for it.
    ExifReadResult readRecords(const QList<ExifFileInfoPtr> &files);
    // The same for one file; a missing file only becomes not valid.
    ExifReadResult readRecord(const ExifFileInfoPtr &file);
    // Replaces only the as-read snapshot; a missing file changes nothing.
    ExifReadResult rereadOriginal(const ExifFileInfoPtr &file);

    // The bare read command over the given paths; the report is in standardOutput.
    ExifToolResult executeRawCommand_FileInfo(const QStringList &paths) const;
    static QStringList readCommandArguments(const QStringList &paths);

    // With a pool, keys and values are shared with equal ones already in it: a batch of files
    // repeats most of its keys and many values, and keeps them for as long as it is open.
    TagDictionary preformatValues(const TagDictionary &values, StringPool *pool = nullptr);
    QString formatValue(const QString &value, const ExifField &field);
    QString formatNumberFromExifTool(const QString &value, const ExifField &field);
    static void filterLeicaLensData(TagDictionary &values);
    // A raw file's values with its sidecar's XMP values over them.
    static TagDictionary withSidecarValues(TagDictionary fileValues,
                                           const TagDictionary &sidecarXmp);

    // Copies the file to its first free backup name. Failures go to errors.
    static bool backupExifFile(const ExifFileInfo &file, ErrorMessages &errors);

private:
    struct Report
    {
        QHash<QString, TagDictionary> records;
        ExifReadResult result;
        bool ran = false;
    };
    // With a handler, records go to it as they arrive and the report keeps none.
    Report readReport(const QStringList &paths,
                      const std::function<void(const QString &, TagDictionary)> &onRecord = {});

    ExifToolCommand m_command;
    std::function<void(qsizetype)> m_recordsRead;
    bool m_backupFiles = false;
    // A formatter per field for the length of one batch; making one per value would dominate a
    // large read. Only within a batch, as the catalogue is the only owner of the fields.
    bool m_cachesFormatters = false;
    std::unordered_map<const ExifField *, std::unique_ptr<NumberFormatter>> m_formatters;
};
