#include "catalogue/exiffieldscontroller.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/exifutil.h"
#include "engine/filereplacement.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using Fixtures::readBytes;

namespace {

QString tagOf(const QString &path, const QString &tag)
{
    return QString::fromUtf8(
        Fixtures::runExifTool({u"-s3"_qs, u'-' + tag, u"--"_qs, path}).out.trimmed());
}

ExifFileInfoPtr load(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    MetadataReader().readRecord(file);
    return file;
}

qint64 modifiedNs(const QString &path)
{
    const std::optional<FileIdentity> identity = FileIdentity::of(path);
    return identity ? identity->modifiedNs : -1;
}

// Rewrites a file's bytes in the same inode, as an editor saving in place does.
bool overwriteInPlace(const QString &path, const QByteArray &bytes)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_TRUNC);
    if (fd < 0)
        return false;
    const bool written = ::write(fd, bytes.constData(), size_t(bytes.size())) == bytes.size();
    return ::close(fd) == 0 && written;
}

} // namespace

// Another program changing a file between our read and our write: its change must survive, and
// ours must stay pending, reported.
class TestOutsideChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        QCOMPARE(Fixtures::makeImage(m_template, {u"-IFD0:Artist=Old"_qs}), QString());
    }

    void init()
    {
        UserSettings::setValue(UserSettings::WriteReadOnlyFiles, false);
        UserSettings::setValue(UserSettings::FileModifyDate, 2);
    }

    void fileChangedAfterReadingIsLeftAlone_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("rewritten in place by ExifTool") << u"in place"_qs;
        QTest::newRow("another file moved over it") << u"moved"_qs;
        QTest::newRow("other picture, same size, same modification time") << u"same size"_qs;
    }

    void fileChangedAfterReadingIsLeftAlone()
    {
        QFETCH(QString, change);
        const QString path = copyOfTemplate(u"changed.jpg"_qs);
        const ExifFileInfoPtr file = load(path);
        file->setExifValue(u"IFD0:ImageDescription"_qs, u"Ours"_qs);

        if (change == u"in place") {
            QVERIFY(
                Fixtures::runExifTool({u"-overwrite_original_in_place"_qs, u"-Artist=X"_qs, path})
                    .ok());
        } else if (change == u"moved") {
            const QString other = m_dir.filePath(u"other.jpg"_qs);
            QCOMPARE(Fixtures::makeImage(other, {u"-IFD0:Artist=X"_qs}), QString());
            QCOMPARE(
                ::rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()),
                0);
        } else {
            QByteArray bytes = readBytes(path);
            const qint64 mtime = modifiedNs(path);
            // A few bytes of the picture itself differ; the size and the date stay.
            for (qsizetype i = bytes.size() - 40; i < bytes.size() - 20; ++i)
                bytes[i] = char(bytes.at(i) ^ 0x55);
            QVERIFY(overwriteInPlace(path, bytes));
            const timespec time{time_t(mtime / 1'000'000'000), long(mtime % 1'000'000'000)};
            QVERIFY(setFileModificationTime(path, time, nullptr));
            QCOMPARE(modifiedNs(path), mtime);
        }
        const QByteArray theirs = readBytes(path);

        const auto listener = RunListener::save({file});
        QCOMPARE(listener->messages(path),
                 QStringList{u"3 changed.jpg was changed by another program after it was read; "
                             "reload it to see its new values."_qs});
        QCOMPARE(readBytes(path), theirs);
        // Nothing the user typed is lost.
        QCOMPARE(file->exifValue(u"IFD0:ImageDescription"_qs), u"Ours"_qs);
        QVERIFY(isExifFileModified(*file));
    }

    // Our own save makes the file ours again: a second save needs no reload.
    void secondSaveAfterOwnSave()
    {
        const QString path = copyOfTemplate(u"twice.jpg"_qs);
        const ExifFileInfoPtr file = load(path);
        file->setExifValue(u"IFD0:ImageDescription"_qs, u"First"_qs);
        QCOMPARE(RunListener::save({file})->messages(path), QStringList());
        file->setExifValue(u"IFD0:ImageDescription"_qs, u"Second"_qs);
        QCOMPARE(RunListener::save({file})->messages(path), QStringList());
        QCOMPARE(tagOf(path, u"IFD0:ImageDescription"_qs), u"Second"_qs);
    }

    // ExifTool writing one of the files while a batch saves them all: whichever comes first,
    // its Artist survives. (Had it read the file before our save and renamed its own copy in
    // after, our caption is what it loses; no program can prevent that of another.)
    void outsideWriteDuringABatch()
    {
        constexpr int Rounds = 24;
        // A runner whose ExifTool is already running, as in the window after the first save.
        RunListener listener;
        WriteQueue runner;
        listener.listen(runner);
        runner.saveFiles({load(copyOfTemplate(u"warm.jpg"_qs))}, ExifOperationOption::ReReadFile);
        QVERIFY(listener.wait());
        int reported = 0;
        for (int round = 0; round < Rounds; ++round) {
            QList<ExifFileInfoPtr> files;
            for (int i = 0; i < 3; ++i) {
                files.append(load(copyOfTemplate(u"race-%1.jpg"_qs.arg(i))));
                files.last()->setExifValue(u"IFD0:ImageDescription"_qs, u"Ours"_qs);
            }
            const QString target = files.first()->fileName();
            QProcess outside;
            outside.start(Fixtures::exifTool(),
                          {u"-overwrite_original"_qs, u"-Artist=X"_qs, target});
            // ExifTool needs about a quarter of a second before it writes: the rounds sweep
            // the batch's start across that moment.
            QTest::qWait(200 + round * 20);
            runner.saveFiles(files, ExifOperationOption::ReReadFile);
            QVERIFY(listener.wait(round + 2));
            QVERIFY(outside.state() == QProcess::NotRunning || outside.waitForFinished(60'000));
            QCOMPARE(outside.exitCode(), 0);

            QCOMPARE(tagOf(target, u"IFD0:Artist"_qs), u"X"_qs);
            const QStringList messages = listener.messages(target);
            if (!messages.isEmpty()) {
                QCOMPARE(messages.size(), 1);
                QVERIFY2(messages.first().contains(u"was changed by another program"_qs),
                         qPrintable(messages.first()));
                QCOMPARE(tagOf(target, u"IFD0:ImageDescription"_qs), QString());
                QCOMPARE(files.first()->exifValue(u"IFD0:ImageDescription"_qs), u"Ours"_qs);
                ++reported;
            }
        }
        qInfo("%d of %d rounds reported the outside write", reported, Rounds);
    }

    void readOnlyFiles_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("writesReadOnly");
        QTest::newRow("mode 0444") << u"mode"_qs << false;
        QTest::newRow("another user's") << u"owner"_qs << false;
        QTest::newRow("mode 0444, preference on") << u"mode"_qs << true;
        QTest::newRow("another user's, preference on") << u"owner"_qs << true;
    }

    void readOnlyFiles()
    {
        QFETCH(QString, kind);
        QFETCH(bool, writesReadOnly);
        const QString path = copyOfTemplate(u"locked.jpg"_qs);
        struct stat before = {};
        if (kind == u"mode") {
            QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0444), 0);
        } else {
            const passwd *nobody = ::getpwnam("nobody");
            if (!nobody)
                QSKIP("there is no user nobody to give the file to");
            if (::chown(QFile::encodeName(path).constData(), nobody->pw_uid, nobody->pw_gid) != 0)
                QSKIP("only root can give a file to another user");
        }
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &before), 0);
        UserSettings::setValue(UserSettings::WriteReadOnlyFiles, writesReadOnly);
        const ExifFileInfoPtr file = load(path);
        file->setExifValue(u"IFD0:ImageDescription"_qs, u"Ours"_qs);
        const QByteArray bytes = readBytes(path);
        const qint64 mtime = modifiedNs(path);

        const QStringList messages = RunListener::save({file})->messages(path);
        struct stat after = {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &after), 0);
        if (writesReadOnly) {
            QCOMPARE(messages, QStringList());
            QCOMPARE(tagOf(path, u"IFD0:ImageDescription"_qs), u"Ours"_qs);
            QCOMPARE(after.st_mode, before.st_mode);
            QCOMPARE(after.st_uid, before.st_uid);
        } else {
            QCOMPARE(messages,
                     QStringList{u"3 locked.jpg is read-only, so it was not changed."_qs});
            QCOMPARE(readBytes(path), bytes);
            QCOMPARE(modifiedNs(path), mtime);
            QVERIFY(isExifFileModified(*file));
        }
    }

private:
    QString copyOfTemplate(const QString &name)
    {
        const QString path = m_dir.filePath(name);
        QFile::remove(path);
        if (!QFile::copy(m_template, path))
            qWarning("cannot copy the template");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                        QFile::ReadOther);
        return path;
    }

    QTemporaryDir m_dir;
    const QString m_template = m_dir.filePath(u"template.jpg"_qs);
};

QTEST_GUILESS_MAIN(TestOutsideChanges)
#include "tst_outsidechanges.moc"
