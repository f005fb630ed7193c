#include "engine/revertrecord.h"

#include "engine/errormessages.h"
#include "catalogue/exiffieldscontroller.h"
#include "engine/exiftoolsession.h"
#include "values/numberformatter.h"
#include "values/taglist.h"
#include "values/trcontext.h"
#include "values/usersettings.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QMutex>
#include <QMutexLocker>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

QMutex s_lock;
QString s_directory;
// Names of the record files, read once: the menus ask about every selected file.
std::optional<QSet<QString>> s_names;

QString recordName(const QString &path)
{
    return QString::fromLatin1(
               QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex()) +
           QStringLiteral(".json");
}

QString directoryLocked()
{
    if (!s_directory.isEmpty())
        return s_directory;
    // Settings kept elsewhere (as tests do) take the records along, out of the user's folder.
    const QString settings = UserSettings::storeFile();
    if (!settings.isEmpty())
        return QFileInfo(settings).path() + QStringLiteral("/revert");
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/revert");
}

QSet<QString> &namesLocked()
{
    static QString namesDirectory;
    if (!s_names || namesDirectory != directoryLocked()) {
        namesDirectory = directoryLocked();
        const QStringList entries =
            QDir(directoryLocked()).entryList({QStringLiteral("*.json")}, QDir::Files);
        s_names = QSet<QString>(entries.cbegin(), entries.cend());
    }
    return *s_names;
}

bool statFile(const QString &path, qint64 &size, qint64 &modifiedNs)
{
    struct stat st
    {
    };
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return false;
    size = st.st_size;
    modifiedNs = qint64(st.st_mtim.tv_sec) * 1'000'000'000 + st.st_mtim.tv_nsec;
    return true;
}

constexpr TrContext tr{"RevertRecord"};

// Tags of the file itself and ExifTool's computed ones are not metadata a write can remove.
bool isMetadataKey(const QString &key)
{
    static const QStringList derived{QStringLiteral("System:"), QStringLiteral("File:"),
                                     QStringLiteral("Composite:"), QStringLiteral("ExifTool:"),
                                     QStringLiteral("IFD1:")};
    return std::none_of(derived.cbegin(), derived.cend(),
                        [&](const QString &prefix) { return key.startsWith(prefix); });
}

} // namespace

bool RevertEntry::matchesDisk() const
{
    qint64 diskSize = -1;
    qint64 diskModified = 0;
    return statFile(path, diskSize, diskModified) && diskSize == size && diskModified == modifiedNs;
}

void RevertRecord::setDirectory(const QString &directory)
{
    QMutexLocker locker(&s_lock);
    s_directory = directory;
    s_names.reset();
}

QString RevertRecord::directory()
{
    QMutexLocker locker(&s_lock);
    return directoryLocked();
}

QStringList RevertRecord::keysWrittenWith(const QStringList &keys)
{
    QStringList all = keys;
    const auto inGroup = [&](QStringView prefix) {
        return std::any_of(keys.cbegin(), keys.cend(),
                           [&](const QString &key) { return key.startsWith(prefix); });
    };
    const QString charset = QStringLiteral("IPTC:CodedCharacterSet");
    if (inGroup(u"IPTC:") && !all.contains(charset))
        all.append(charset);
    const QString toolkit = QStringLiteral("XMP-x:XMPToolkit");
    if (inGroup(u"XMP-") && !all.contains(toolkit))
        all.append(toolkit);
    return all;
}

std::optional<RevertEntry> RevertRecord::capture(ExifToolSession &session, const QString &path,
                                                 const QStringList &keys, int timeoutMs,
                                                 QString *error)
{
    // Quoted numbers keep "1.50" and "007" as they are; -b brings binary values as base64.
    QStringList arguments{QStringLiteral("-j"),       QStringLiteral("-n"),
                          QStringLiteral("-b"),       QStringLiteral("-G1"),
                          QStringLiteral("-api"),     QStringLiteral("StructFormat=JSONQ"),
                          QStringLiteral("-charset"), QStringLiteral("filename=UTF8")};
    for (const QString &key : keys) {
        arguments.append(u'-' + key);
        // Writing a language alternative without a language drops the other languages.
        if (key.startsWith(u"XMP-"))
            arguments.append(u'-' + key + QStringLiteral("-*"));
    }
    arguments.append(path);
    const ExifToolResult result = session.execute(arguments, timeoutMs);
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(result.standardOutput, &parseError);
    if (result.outcome != ExifToolResult::Outcome::Finished || !document.isArray() ||
        document.array().size() != 1) {
        if (error) {
            *error = result.outcome != ExifToolResult::Outcome::Finished
                         ? result.errorMessage
                         : QString::fromUtf8(result.standardError).trimmed();
        }
        return std::nullopt;
    }
    const QJsonObject values = document.array().first().toObject();
    RevertEntry entry;
    entry.path = path;
    for (const QString &key : keys) {
        if (!values.contains(key))
            entry.absent.append(key);
    }
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        if (it.key() != QStringLiteral("SourceFile"))
            entry.previous.insert(it.key(), it.value());
    }
    return entry;
}

std::optional<RevertEntry> RevertRecord::fromEarlierRead(const QString &path,
                                                         const QStringList &keys,
                                                         const QHash<QString, QString> &read)
{
    if (!read.contains(QStringLiteral("File:FileType")))
        return std::nullopt;
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    RevertEntry entry;
    entry.path = path;
    const auto keep = [&](const QString &key, const QString &value) {
        if (value.startsWith(QStringLiteral("(Binary data ")))
            return false;
        const ExifFieldPtr field = catalogue->field(key);
        const auto representation =
            field ? field->dataRepresentation() : FieldDataRepresentation::None;
        if (representation == FieldDataRepresentation::Number) {
            // Shown in the user's locale, and a real number rounded to the field's decimals:
            // only a whole number comes back exactly.
            const FieldDataType type = field->dataType();
            if (type == FieldDataType::Float || type == FieldDataType::Double ||
                type == FieldDataType::UDouble)
                return false;
            const auto number = field->createFormatter()->numberFromString(value);
            if (!number)
                return false;
            entry.previous.insert(
                key, QLocale::c().toString(*number, 'f', QLocale::FloatingPointShortest));
        } else if (representation == FieldDataRepresentation::Strings) {
            entry.previous.insert(key, QJsonArray::fromStringList(splitStringsItems(value)));
        } else {
            entry.previous.insert(key, value);
        }
        return true;
    };
    for (const QString &key : keysWrittenWith(keys)) {
        const auto value = read.constFind(key);
        if (value == read.cend())
            entry.absent.append(key);
        else if (!keep(key, value.value()))
            return std::nullopt;
        // Every language of a language alternative: writing its default one may touch them.
        if (!key.startsWith(u"XMP-"))
            continue;
        const QString languages = key + u'-';
        for (auto it = read.cbegin(); it != read.cend(); ++it) {
            if (it.key().startsWith(languages) && !keep(it.key(), it.value()))
                return std::nullopt;
        }
    }
    return entry;
}

std::optional<RevertEntry> RevertRecord::captureBeforeSave(ExifToolSession &session,
                                                           const QString &path,
                                                           const QStringList &keys,
                                                           ErrorMessages &errors)
{
    QString error;
    // The same limit the write itself starts from.
    auto entry = capture(session, path, keysWrittenWith(keys), 120'000, &error);
    if (!entry)
        errors.addWarning(tr("The previous values could not be read (%1); this save cannot be "
                             "reverted.")
                              .arg(error));
    return entry;
}

void RevertRecord::storeAfterSave(const QString &path, std::optional<RevertEntry> entry,
                                  const QHash<QString, QString> &original,
                                  const std::optional<QHash<QString, QString>> &reRead,
                                  ErrorMessages &errors)
{
    if (!entry) {
        // An older record no longer matches the file, and its kept file, if any, is of no use.
        discard(path);
        return;
    }
    // Without a full earlier read every tag would look new, and a revert would strip them all.
    if (reRead && original.contains(QStringLiteral("File:FileType"))) {
        for (auto it = reRead->cbegin(); it != reRead->cend(); ++it) {
            const QString &key = it.key();
            if (original.contains(key) || entry->previous.contains(key) ||
                entry->absent.contains(key) || !isMetadataKey(key)) {
                continue;
            }
            entry->absent.append(key);
        }
    }
    QString error;
    if (!store(std::move(*entry), &error))
        errors.addWarning(tr("This save cannot be reverted: %1").arg(error));
}

QString RevertRecord::newKeptPath(const QString &path, QString *error)
{
    // Through a symbolic link, its target is the file that gets replaced.
    const QFileInfo info(QFileInfo(path).isSymLink() ? QFileInfo(path).canonicalFilePath() : path);
    const QString folder = info.absolutePath() + u'/' + KeptFolder;
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST) {
        if (error)
            *error = QString::fromLocal8Bit(std::strerror(errno));
        return {};
    }
    return folder + u'/' + info.fileName() + u'.' +
           QString::number(QRandomGenerator::global()->generate64(), 36);
}

void RevertRecord::removeKeptFile(const QString &keptFile)
{
    if (keptFile.isEmpty())
        return;
    QFile::remove(keptFile);
    // Only when nothing else is kept there.
    QDir().rmdir(QFileInfo(keptFile).absolutePath());
}

bool RevertRecord::store(RevertEntry entry, QString *error)
{
    if (!statFile(entry.path, entry.size, entry.modifiedNs)) {
        if (error)
            *error = QStringLiteral("%1 is gone").arg(entry.path);
        return false;
    }
    QJsonObject object{{QStringLiteral("path"), entry.path},
                       {QStringLiteral("size"), QString::number(entry.size)},
                       {QStringLiteral("modified"), QString::number(entry.modifiedNs)},
                       {QStringLiteral("previous"), entry.previous},
                       {QStringLiteral("absent"), QJsonArray::fromStringList(entry.absent)}};
    if (!entry.keptFile.isEmpty())
        object.insert(QStringLiteral("kept"), entry.keptFile);
    // A file has one record: the one it replaces lets its kept file go.
    if (const std::optional<RevertEntry> earlier = load(entry.path);
        earlier && earlier->keptFile != entry.keptFile) {
        removeKeptFile(earlier->keptFile);
    }
    QMutexLocker locker(&s_lock);
    const QString folder = directoryLocked();
    QDir().mkpath(folder);
    const QString name = recordName(entry.path);
    // Written whole and renamed into place, but not flushed: the saved photo is flushed, and a
    // record a power cut takes away only takes away the undo. One that survives without its
    // save no longer matches the file's size and time, and is refused.
    const QString path = folder + u'/' + name;
    QFile file(path + QStringLiteral(".new"));
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                         file.write(QJsonDocument(object).toJson(QJsonDocument::Compact)) >= 0 &&
                         file.flush();
    file.close();
    if (!written || ::rename(QFile::encodeName(file.fileName()).constData(),
                             QFile::encodeName(path).constData()) != 0) {
        if (error)
            *error = written ? QString::fromLocal8Bit(std::strerror(errno)) : file.errorString();
        file.remove();
        return false;
    }
    namesLocked().insert(name);
    return true;
}

std::optional<RevertEntry> RevertRecord::load(const QString &path)
{
    QMutexLocker locker(&s_lock);
    const QString name = recordName(path);
    if (!namesLocked().contains(name))
        return std::nullopt;
    QFile file(directoryLocked() + u'/' + name);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    // Two paths could only share a name by a SHA-1 collision, but a record must never be
    // applied to another file.
    if (object.value(QStringLiteral("path")).toString() != path)
        return std::nullopt;
    RevertEntry entry;
    entry.path = path;
    entry.size = object.value(QStringLiteral("size")).toString().toLongLong();
    entry.modifiedNs = object.value(QStringLiteral("modified")).toString().toLongLong();
    entry.previous = object.value(QStringLiteral("previous")).toObject();
    for (const QJsonValue &key : object.value(QStringLiteral("absent")).toArray())
        entry.absent.append(key.toString());
    entry.keptFile = object.value(QStringLiteral("kept")).toString();
    return entry;
}

bool RevertRecord::contains(const QString &path)
{
    QMutexLocker locker(&s_lock);
    return namesLocked().contains(recordName(path));
}

void RevertRecord::discard(const QString &path, bool keepsFile)
{
    if (!keepsFile) {
        if (const std::optional<RevertEntry> entry = load(path))
            removeKeptFile(entry->keptFile);
    }
    QMutexLocker locker(&s_lock);
    const QString name = recordName(path);
    QFile::remove(directoryLocked() + u'/' + name);
    namesLocked().remove(name);
}

QByteArray RevertRecord::importJson(const RevertEntry &entry)
{
    QJsonObject values;
    for (auto it = entry.previous.constBegin(); it != entry.previous.constEnd(); ++it)
        values.insert(it.key() + u'#', it.value());
    return QJsonDocument(QJsonArray{values}).toJson(QJsonDocument::Compact);
}
