#pragma once

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class ErrorMessages;
class ExifToolSession;

// What a file held, before its last save, in the tags that save changed: enough to write them
// back exactly. Previous values are kept as ExifTool exports them (raw values, lists as arrays,
// binary as base64), because ExifTool takes that very form back without conversion.
struct RevertEntry
{
    QString path;
    // The file as the save left it; any other size or time means someone changed it since.
    qint64 size = -1;
    qint64 modifiedNs = 0;
    QJsonObject previous; // "Group:Tag" -> value
    QStringList absent;   // tags the file did not have, which a revert removes
    // The whole file as it was, for an operation no list of tags can undo (removing all
    // metadata): a second name of the old file, beside it, that a revert puts back in place.
    QString keptFile;

    bool isEmpty() const { return previous.isEmpty() && absent.isEmpty() && keptFile.isEmpty(); }
    // Whether the file on disk is still the one the save wrote.
    bool matchesDisk() const;
};

// One record per file, for its last save only, one small JSON file each in the per-user data
// folder, so they survive a restart and a save of 10,000 files rewrites nothing shared.
// Thread-safe: the background runner's two threads store while the window asks.
class RevertRecord
{
public:
    // Where records live: by default "revert" in the per-user data folder, or beside a settings
    // store set apart with UserSettings::setStoreFile. Empty restores the default.
    static void setDirectory(const QString &directory);
    static QString directory();

    // Reads the tags' present values through session (one ExifTool command). nullopt, with
    // error set, when ExifTool could not tell.
    static std::optional<RevertEntry> capture(ExifToolSession &session, const QString &path,
                                              const QStringList &keys, int timeoutMs,
                                              QString *error);
    // Tags a save writes besides the keys it was asked to: ExifTool sets the IPTC character set
    // and its own XMP toolkit name, so both are recorded too.
    static QStringList keysWrittenWith(const QStringList &keys);

    // The entry taken from what the file held when it was read (ExifTool's "-X -n" form,
    // numbers of the catalogue shown in the user's locale), which spares the save a read. Only
    // for a file untouched since that read; nullopt when a value cannot be given back that way
    // (binary data, a read that was not complete).
    static std::optional<RevertEntry> fromEarlierRead(const QString &path, const QStringList &keys,
                                                      const QHash<QString, QString> &read);
    // The save's two steps: before the write, the previous values of the keys it changes or
    // removes; after the new file replaced the old, the record, with the tags ExifTool added on
    // its own (in reRead but not in original) to be removed as well. A failure costs only the
    // record, and says so in errors.
    static std::optional<RevertEntry> captureBeforeSave(ExifToolSession &session,
                                                        const QString &path,
                                                        const QStringList &keys,
                                                        ErrorMessages &errors);
    static void storeAfterSave(const QString &path, std::optional<RevertEntry> entry,
                               const QHash<QString, QString> &original,
                               const std::optional<QHash<QString, QString>> &reRead,
                               ErrorMessages &errors);

    // A new name for keeping a whole file, in the hidden folder KeptFolder beside it (the same
    // file system, so the old file moves there without a copy). Empty, with error set, when the
    // folder cannot be made.
    static QString newKeptPath(const QString &path, QString *error);
    // Removes a kept file and, once empty, its folder.
    static void removeKeptFile(const QString &keptFile);
    static inline const QString KeptFolder = QStringLiteral(".tagsmith-kept");

    // Stamps entry with the file's present size and time and keeps it in place of any earlier
    // record of that file, whose kept file, if any, goes.
    static bool store(RevertEntry entry, QString *error = nullptr);
    static std::optional<RevertEntry> load(const QString &path);
    static bool contains(const QString &path);
    // Forgets the record; keepsFile leaves its kept file where it is (a revert has just moved
    // it back in place).
    static void discard(const QString &path, bool keepsFile = false);

    // ExifTool's JSON import of entry's previous values, "#" marking them as raw.
    static QByteArray importJson(const RevertEntry &entry);
};
