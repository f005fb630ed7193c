#pragma once

#include "engine/exiffileinfo.h"
#include "engine/exifrunneroperation.h"
#include "engine/exiftoolcommand.h"
#include "engine/tagdictionary.h"

#include <QDateTime>
#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class FileReplacement;

// Base of the operations that rewrite one file: ExifTool writes a new file ("-o"), which is
// checked and then put in place of the old one; the file's dates are restored as the settings
// ask, and the file is re-read so the window shows what is on disk.
class FileRewriteOperation : public ExifRunnerOperation
{
public:
    FileRewriteOperation(ExifFileInfoPtr efi, ExifOperationOption options);
    ~FileRewriteOperation() override;

    QString fileName() const override { return m_fileName; }
    ExifFileInfoPtr file() const override { return m_efi; }
    ErrorMessagesPtr errors() const override;
    void postProcessInMainThread() override;

    const ExifFileInfoPtr &efi() const { return m_efi; }
    ExifOperationOption options() const { return m_options; }
    bool reReads() const { return m_options == ExifOperationOption::ReReadFile; }
    QString tempFileName() const { return m_tempFileName; }
    // What the file held after the run, when it was re-read.
    std::optional<TagDictionary> oldData() const;

    // Each ExifTool command of a file gets baseMs plus perMegabyteMs for every megabyte of the
    // file before it is given up (tests shorten it). Process-wide.
    static void setCommandTimeouts(int baseMs, int perMegabyteMs);

protected:
    // The one road by which a file is rewritten; every subclass's run goes through it.
    // arguments are ExifTool's, up to but without "-o", the temporary path and the file's path,
    // which are appended here. Runs ExifTool, checks the new file, puts it in place, and with
    // the re-read option gives what the file now holds. The original is untouched whenever the
    // result is not replaced.
    // Once the new file is in place its dates are set as the settings ask and the record takes
    // its identity, so the next write of this file knows it as ours. A file that changed on
    // disk since it was read, or that the user may not write, is left as it is, and so is
    // the record: its edits stay pending.
    struct WriteResult
    {
        int exitStatus = -1;    // ExifTool's
        bool replaced = false;  // the new file is in place
        bool leftAlone = false; // changed by someone else, or read-only: not touched at all
        std::optional<TagDictionary> reRead;
    };
    WriteResult writeFile(const QStringList &arguments, ErrorMessages &errors);
    // writeFile in two halves, for files put in place in groups: stageWrite runs ExifTool and
    // checks the new file, which then only waits to be flushed (true), or has already failed or
    // been left alone (false); completeWrite puts a staged file in place, flushing it first if
    // no one did, and gives the result either way.
    bool stageWrite(const QStringList &arguments, ErrorMessages &errors);
    WriteResult completeWrite(ErrorMessages &errors);
    FileReplacement *stagedReplacement() const;
    // Asks the next writeFile to move the file it replaces to path instead of letting it go;
    // keptFile() then names it, or is empty when it could not be kept.
    void keepReplacedFileAt(const QString &path) { m_keepAt = path; }
    QString keptFile() const;
    // Whether the file may be written at all: it is still the file that was read, and the
    // user may write it. Adds the reason when not.
    bool mayWrite(ErrorMessages &errors) const;

    // Called by writeFile with what the new file reads back as, before it replaces the old
    // one; a subclass adds warnings for values that did not come out as asked.
    virtual void verifyWrittenValues(const TagDictionary &written, ErrorMessages &errors);

    virtual void replaceDateTimeOffsets();
    virtual TagDictionary loadOldDataWithErrors(ErrorMessages &errors);
    virtual bool moveTempToFinal(ErrorMessages &errors);
    virtual void updateFileDates();
    virtual std::optional<QDateTime> findDateForFile(const QString &key) const;
    virtual QString createTempFilePathForPath(const QString &path);
    virtual void debugPrintArguments(const QStringList &arguments) const;

    // After a removal nothing may stay pending as an edit: the record takes what the file now
    // holds as both its current and its as-read values, at once on this thread. Dates are set
    // only for a file that was really replaced. Gives the re-read, if any.
    std::optional<TagDictionary> adoptRewrittenFile(const WriteResult &result);

    // Hands the run's results over to readers on other threads.
    void storeResults(ErrorMessagesPtr errors, std::optional<TagDictionary> oldData);

    mutable QMutex m_lock;

private:
    // The new file as it reads back, or nullopt (with an error) when it must not replace the
    // original. typeDiffers: ExifTool named its type apart from the original's only because the
    // temporary name has no extension.
    std::optional<TagDictionary> checkNewFile(ErrorMessages &errors, bool &typeDiffers);
    // Reads files through the operation's session, the way MetadataReader reads them.
    QHash<QString, TagDictionary> readFiles(const QStringList &paths, const QStringList &extra,
                                            ExifToolResult &result);
    void describeFinalFile(TagDictionary &values) const;

    const QString m_fileName;
    const ExifFileInfoPtr m_efi;
    const ExifOperationOption m_options;
    QString m_tempFileName;
    ErrorMessagesPtr m_errors;
    std::optional<TagDictionary> m_oldData;
    std::unique_ptr<FileReplacement> m_replacement;
    QString m_keepAt;
    // Between stageWrite and completeWrite.
    WriteResult m_pending;
    std::optional<TagDictionary> m_written;
    bool m_typeDiffers = false;
};
