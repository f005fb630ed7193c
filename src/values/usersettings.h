#pragma once

#include <QString>
#include <QVariant>

// The per-user settings store (organisation and application "Tagsmith") with the program's
// registered defaults. The store is read once and kept; every call may come from any thread
// (the engine reads the save options on its background thread while the preferences window
// writes them), and every change is on disk before the call returns.
class UserSettings
{
public:
    static inline const QString GpsFormat = QStringLiteral("GPS_FORMAT");
    static inline const QString ForceFixBase = QStringLiteral("EXIFTOOL_OPTIONS_FORCE-F");
    static inline const QString IgnoreMinorErrors = QStringLiteral("EXIFTOOL_OPTIONS_FORCE-m");
    static inline const QString FileModifyDate = QStringLiteral("FILE_MODIFY_DATE");
    static inline const QString FileCreateDate = QStringLiteral("FILE_CREATE_DATE");
    // "Verify image data when saving": true or false once the user chose; until then camera
    // raw files are checked and others not.
    static inline const QString VerifyImageData = QStringLiteral("VERIFY_IMAGE_DATA");
    // "Write XMP to sidecars for raw files": a raw file without a sidecar gets one at its
    // first XMP edit. Off by default.
    static inline const QString WriteXmpSidecars = QStringLiteral("WRITE_XMP_SIDECARS");
    // "Write files that are read-only": a file without its owner's write permission, or
    // owned by another user, is saved all the same. Off by default.
    static inline const QString WriteReadOnlyFiles = QStringLiteral("WRITE_READ_ONLY_FILES");
    // "Show every tag as a row of its own": the caption's XMP, IPTC and EXIF copies (and those
    // of the other properties kept in several standards) get a row each, and an edit writes
    // only its row's tag. Off by default: one row shows and writes every copy.
    static inline const QString ShowEveryTag = QStringLiteral("SHOW_EVERY_TAG_AS_ROW");
    // The last choice of the paste dialog.
    static inline const QString PasteEverything = QStringLiteral("PASTE_METADATA_EVERYTHING");
    static inline const QString PasteSections = QStringLiteral("PASTE_METADATA_SECTIONS");

    enum class GpsDisplay {
        DegreesMinutesSeconds = 0,
        DegreesDecimalMinutes = 1,
        DecimalDegrees = 2
    };
    enum class FileDate { FromMetadata = 0, KeepPrevious = 1, LeaveAsWritten = 2 };

    // Sends every later call to this INI file instead of the user's (tests); empty restores
    // the user's store. The file is read again at the next call, even when it is the same.
    static void setStoreFile(const QString &path);
    static QString storeFile();

    static QVariant defaultValue(const QString &key);
    // The stored value, or the registered default when the user never set one.
    static QVariant value(const QString &key);
    static void setValue(const QString &key, const QVariant &value);
    static void remove(const QString &key);

    static int gpsFormat();
    // Any stored number other than 1 and 2 shows degrees, minutes and seconds.
    static GpsDisplay gpsDisplay();
    static bool forceFixBase();
    static bool ignoreMinorErrors();
    static int fileModifyDate();
    static int fileCreateDate();
    // Numbers other than 0 and 1 leave the date the write produced.
    static FileDate fileModifyDateMode();
    static FileDate fileCreateDateMode();
    // Whether a save of this file compares the image data of the old and the new file.
    static bool verifiesImageData(const QString &path);
    static bool writesXmpSidecars();
    static bool writesReadOnlyFiles();
    static bool showsEveryTag();

private:
    static int intValue(const QString &key);
};
