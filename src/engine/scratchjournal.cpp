#include "engine/scratchjournal.h"

#include "engine/filereplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSaveFile>
#include <QSet>
#include <QStandardPaths>

namespace {

QMutex mutex;
QString journalPath;
// Folders cleaned in this run; a folder is only ever added to the journal from here.
QSet<QString> entered;
bool journalRead = false;
QSet<QString> journalled;

QString defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/scratch-folders");
}

QStringList readJournal(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList folders;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (!line.isEmpty())
            folders.append(QString::fromUtf8(line));
    }
    return folders;
}

} // namespace

void ScratchJournal::setPath(const QString &path)
{
    QMutexLocker locker(&mutex);
    journalPath = path;
    entered.clear();
    journalled.clear();
    journalRead = false;
}

QString ScratchJournal::path()
{
    QMutexLocker locker(&mutex);
    return journalPath.isEmpty() ? defaultPath() : journalPath;
}

void ScratchJournal::enter(const QString &folder)
{
    const QString file = path();
    QMutexLocker locker(&mutex);
    if (entered.contains(folder))
        return;
    entered.insert(folder);
    // Once per folder and run: a look at every name in a folder of 10,000 photos before each
    // of their saves made saving them quadratic.
    FileReplacement::removeLeftovers(folder);
    if (!journalRead) {
        const QStringList folders = readJournal(file);
        journalled = QSet<QString>(folders.cbegin(), folders.cend());
        journalRead = true;
    }
    if (journalled.contains(folder))
        return;
    QDir().mkpath(QFileInfo(file).absolutePath());
    QFile journal(file);
    // Appending is one write: two runs noting folders at once interleave whole lines.
    if (journal.open(QIODevice::Append))
        journal.write(folder.toUtf8() + '\n');
    journalled.insert(folder);
}

int ScratchJournal::cleanUp()
{
    const QString file = path();
    // The folders are looked at unlocked: one on a network share that does not answer must not
    // hold up a save elsewhere.
    int removed = 0;
    QStringList kept;
    for (const QString &folder : readJournal(file)) {
        const FileReplacement::Leftovers found = FileReplacement::removeLeftovers(folder);
        removed += found.removed;
        // Another running copy of the program may still be saving there.
        if (found.inUse > 0 && !kept.contains(folder))
            kept.append(folder);
    }
    QMutexLocker locker(&mutex);
    for (const QString &folder : std::as_const(entered)) {
        if (!kept.contains(folder))
            kept.append(folder);
    }
    QSaveFile journal(file);
    if (journal.open(QIODevice::WriteOnly)) {
        for (const QString &folder : std::as_const(kept))
            journal.write(folder.toUtf8() + '\n');
        journal.commit();
    }
    journalled = QSet<QString>(kept.cbegin(), kept.cend());
    journalRead = true;
    return removed;
}
