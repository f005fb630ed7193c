#include "engine/writequeue.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/metadatareader.h"
#include "engine/filerewriteoperation.h"
#include "engine/exifrunnersaveoperation.h"
#include "engine/exifutil.h"
#include "engine/filereplacement.h"
#include "values/tagsmithexception.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString Faulty = QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/faultyexiftool");
constexpr auto Persistent = ExifToolSessionKind::Persistent;

using Fixtures::readBytes;

QJsonObject readWithExifTool(const QString &path)
{
    const QStringList arguments{u"-j"_qs, u"-G1"_qs, u"-n"_qs, u"-charset"_qs, u"UTF-8"_qs, path};
    return QJsonDocument::fromJson(Fixtures::runExifTool(arguments).out)[0].toObject();
}

struct ThrowingOperation final : ExifRunnerOperation
{
    QString fileName() const override { return u"/nowhere/x.jpg"_qs; }
    ExifFileInfoPtr file() const override { return nullptr; }
    ErrorMessagesPtr errors() const override { return nullptr; }
    void run() override
    {
        threadName = QThread::currentThread()->objectName();
        throw TagsmithException(TagsmithException::LogicError, u"broken"_qs);
    }
    QString threadName;
};

} // namespace

class TestWriteQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        const QString error =
            Fixtures::makeImage(m_template, {u"-IFD0:Artist=Old"_qs, u"-IFD0:Copyright=Old"_qs,
                                             u"-IFD0:ModifyDate=2010:05:01 10:00:00"_qs,
                                             u"-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"_qs,
                                             u"-IPTC:Keywords=old"_qs, u"-GPS:GPSLatitude=10"_qs});
        QVERIFY2(error.isEmpty(), qPrintable(error));
        qputenv("FAULTY_CONTROL", QFile::encodeName(m_dir.filePath(u"control"_qs)));
        qputenv("FAULTY_REAL_EXIFTOOL", QFile::encodeName(Fixtures::exifTool()));
    }

    void init()
    {
        UserSettings::setValue(UserSettings::FileModifyDate, 2);
        FileRewriteOperation::setCommandTimeouts(120'000, 10'000);
        m_concurrent = 2;
    }

    void savedEditsReadBackAndBothRunnersAgree()
    {
        const TagDictionary edits{{u"IFD0:Artist"_qs, u"-Jane \"JD\" = x\nline two"_qs},
                                  {u"IPTC:Keywords"_qs, u"Łódź,東京,Smith\\, John,new"_qs},
                                  {u"IFD0:Orientation"_qs, u"6"_qs},
                                  {u"IPTC:DateCreated"_qs, u"2014:3:7"_qs},
                                  {u"ExifIFD:DateTimeOriginal"_qs, u"+1d2h"_qs},
                                  {u"GPS:GPSLatitude"_qs, u"33.8688"_qs},
                                  {u"GPS:GPSLatitudeRef"_qs, u"S"_qs}};
        const QJsonObject expected{
            {u"IFD0:Artist"_qs, edits[u"IFD0:Artist"_qs]},
            {u"IPTC:Keywords"_qs, QJsonArray{u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs, u"new"_qs}},
            {u"IFD0:Orientation"_qs, 6},
            {u"IPTC:DateCreated"_qs, u"2014:03:07"_qs},
            {u"ExifIFD:DateTimeOriginal"_qs, u"2010:05:02 12:00:00"_qs},
            {u"GPS:GPSLatitude"_qs, 33.8688},
            {u"GPS:GPSLatitudeRef"_qs, u"S"_qs}};
        QByteArray bytes[2];
        for (const int k : {0, 1}) {
            const ExifFileInfoPtr file =
                load(QString::number(k) + u"/100%done/-x %d 'ünï' \"q\"%f%c.jpg"_qs);
            for (auto it = edits.cbegin(); it != edits.cend(); ++it)
                file->setExifValue(it.key(), it.value());
            file->removeExifValue(u"IFD0:Copyright"_qs);
            QCOMPARE(save({file}, k ? ExifToolSessionKind::OneShot : Persistent)
                         ->messages(file->fileName()),
                     QStringList());
            const QJsonObject tags = readWithExifTool(file->fileName());
            for (const QString &key : expected.keys())
                QVERIFY2(tags.value(key) == expected.value(key), qPrintable(key));
            QVERIFY(!tags.contains(u"IFD0:Copyright"_qs));
            // The window shows what is on disk, with the shift no longer pending.
            QCOMPARE(file->originalExifData().value(u"ExifIFD:DateTimeOriginal"_qs),
                     expected[u"ExifIFD:DateTimeOriginal"_qs].toString());
            QVERIFY(!isExifFileModified(*file));
            QCOMPARE(QDir(QFileInfo(file->fileName()).path()).count(), 3); // ".", "..", the file
            bytes[k] = readBytes(file->fileName());
        }
        QCOMPARE(bytes[0], bytes[1]);
    }

    // The second file's date cannot be written: it alone fails, and the order stays strict.
    void batchOfThreeWithAnInvalidDate()
    {
        QList<ExifFileInfoPtr> files;
        for (const QString &name : {u"o1.jpg"_qs, u"o2.jpg"_qs, u"o3.jpg"_qs}) {
            files << load(u"order/"_qs + name);
            files.last()->setExifValue(u"IPTC:DateCreated"_qs, u"2014:03:08"_qs);
        }
        files[1]->setExifValue(u"IPTC:DateCreated"_qs, u"2014:03"_qs);
        files.insert(1, load(u"order/unchanged.jpg"_qs));
        const QByteArray before = readBytes(files[2]->fileName());
        const auto heard = save(files);
        QCOMPARE(heard->events,
                 QStringList({u"before o1.jpg 1/3"_qs, u"after o1.jpg 1/3"_qs,
                              u"before o2.jpg 2/3"_qs, u"after o2.jpg 2/3"_qs,
                              u"before o3.jpg 3/3"_qs, u"after o3.jpg 3/3"_qs, u"finish 3"_qs}));
        // Each step names the record itself, not merely its path.
        const QList<ExifFileInfoPtr> saved{files[0], files[2], files[3]};
        QCOMPARE(heard->startedFiles, saved);
        QCOMPARE(heard->finishedFiles, saved);
        QCOMPARE(readBytes(files[2]->fileName()), before);
        QCOMPARE(heard->messages(files[2]->fileName()),
                 QStringList{u"3 The value \"2014:03\" of Date Created is not a valid date."_qs});
        QVERIFY(isExifFileModified(*files[2])); // left for the user to correct
        for (const int i : {0, 3}) {
            QCOMPARE(heard->messages(files[i]->fileName()), QStringList());
            QCOMPARE(readWithExifTool(files[i]->fileName())[u"IPTC:DateCreated"_qs].toString(),
                     u"2014:03:08"_qs);
        }
        // A batch with nothing to save must still end, or the window waits forever.
        QCOMPARE(save({files[1]})->events, QStringList{u"finish 0"_qs});
    }

    // The window and a panel both hear every step; a batch still on its way when the runner
    // goes is heard by no one, as its receivers may be gone too.
    void everyReceiverHearsEachFileAndNothingAfterTheRunnerGoes()
    {
        const QList files{load(u"two/a.jpg"_qs, u"A"_qs), load(u"two/b.jpg"_qs, u"B"_qs)};
        RunListener window, panel, late;
        {
            WriteQueue runner;
            window.listen(runner);
            panel.listen(runner);
            QCOMPARE(runner.saveFiles(files, ExifOperationOption::ReReadFile), 2);
            QVERIFY(window.wait());
            late.listen(runner);
            files[0]->setExifValue(u"IFD0:Artist"_qs, u"Again"_qs);
            QCOMPARE(runner.saveFiles(files, ExifOperationOption::ReReadFile), 1);
            QVERIFY(runner.waitForIdle(120'000));
        }
        QCoreApplication::processEvents();
        QCOMPARE(window.events,
                 QStringList({u"before a.jpg 1/2"_qs, u"after a.jpg 1/2"_qs, u"before b.jpg 2/2"_qs,
                              u"after b.jpg 2/2"_qs, u"finish 2"_qs}));
        QCOMPARE(panel.events, window.events);
        QCOMPARE(panel.finishedFiles, files);
        QVERIFY(late.events.isEmpty());
        QCOMPARE(readWithExifTool(files[0]->fileName())[u"IFD0:Artist"_qs].toString(), u"Again"_qs);
    }

    void valuesThatDidNotReadBackAreNamed()
    {
        const ExifFileInfoPtr file = load(u"verify/a.jpg"_qs, u"kept"_qs);
        file->setExifValue(u"ExifIFD:ISO"_qs, u"12345"_qs);
        file->setExifValue(u"ExifIFD:CreateDate"_qs, u"+1h"_qs); // shifts a date that is absent
        QStringList messages = save({file})->messages(file->fileName());
        QCOMPARE(messages, QStringList{u"2 Date Digitized (ExifIFD:CreateDate) did not read back "
                                       "as written."_qs});
        const QJsonObject tags = readWithExifTool(file->fileName());
        QCOMPARE(tags[u"IFD0:Artist"_qs].toString(), u"kept"_qs);
        QCOMPARE(tags[u"ExifIFD:ISO"_qs].toInt(), 12345);
    }

    // ExifTool adds and drops tags on its own: a first position brings GPS:GPSVersionID, and the
    // IPTC record goes with its last dataset. Neither is an edit for the next save to undo.
    void tagsTheWriteAddsOrDropsAreNotEdits_data()
    {
        QTest::addColumn<QStringList>("fixture");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("follower");
        QTest::newRow("gps version added")
            << QStringList() << u"GPS:GPSLatitude"_qs << u"33.8688"_qs << u"GPS:GPSVersionID"_qs;
        QTest::newRow("iptc record dropped")
            << QStringList{u"-IPTC:Keywords=last"_qs} << u"IPTC:Keywords"_qs << QString()
            << u"IPTC:ApplicationRecordVersion"_qs;
    }

    void tagsTheWriteAddsOrDropsAreNotEdits()
    {
        QFETCH(QStringList, fixture);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(QString, follower);
        const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()) + u".jpg");
        QCOMPARE(Fixtures::makeImage(path, fixture), QString());
        const ExifFileInfoPtr file = load(path);
        const bool before = file->originalExifData().contains(follower);
        if (value.isNull())
            file->removeExifValue(key);
        else
            file->setExifValue(key, value);
        QCOMPARE(save({file})->messages(file->fileName()), QStringList());
        QCOMPARE(readWithExifTool(file->fileName()).contains(follower), !before);
        QCOMPARE(file->originalExifData().contains(follower), !before);
        QVERIFY(!isExifFileModified(*file));
    }

    void fileDatesFollowTheSettings_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("modifyDate"); // written to IFD0:ModifyDate when set
        QTest::addColumn<QString>("expected");   // local time, "kept" or "now"
        const auto row = [](const char *tag, int mode, const QString &date, const QString &want) {
            QTest::newRow(tag) << mode << date << want;
        };
        row("from the tag", 0, {}, u"2010-05-01T10:00:00"_qs);
        row("from the shifted tag", 0, u"-1d2h"_qs, u"2010-04-30T08:00:00"_qs);
        row("kept to the nanosecond", 1, {}, u"kept"_qs);
        row("left as written", 2, {}, u"now"_qs);
    }
    void fileDatesFollowTheSettings()
    {
        QFETCH(int, mode);
        QFETCH(QString, modifyDate);
        QFETCH(QString, expected);
        UserSettings::setValue(UserSettings::FileModifyDate, mode);
        const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()) + u".jpg");
        QVERIFY(QFile::copy(m_template, path));
        const timespec before{1'234'567'890, 123'456'789};
        QVERIFY(setFileModificationTime(path, before, nullptr));
        const ExifFileInfoPtr file = load(path, u"dated"_qs);
        if (!modifyDate.isEmpty())
            file->setExifValue(u"IFD0:ModifyDate"_qs, modifyDate);
        const qint64 started = QDateTime::currentSecsSinceEpoch();
        QCOMPARE(save({file})->messages(file->fileName()), QStringList());

        struct stat st = {};
        QCOMPARE(::stat(QFile::encodeName(file->fileName()).constData(), &st), 0);
        QString actual = QDateTime::fromSecsSinceEpoch(st.st_mtim.tv_sec).toString(Qt::ISODate);
        if (st.st_mtim.tv_sec == before.tv_sec && st.st_mtim.tv_nsec == before.tv_nsec)
            actual = u"kept"_qs;
        else if (st.st_mtim.tv_sec >= started - 1)
            actual = u"now"_qs;
        QCOMPARE(actual, expected);
    }

    void operationsQueuedByHand()
    {
        const ExifFileInfoPtr file = load(u"twice/a.jpg"_qs, u"again"_qs);
        const auto first = ExifRunnerSaveOperation::create(file, ExifOperationOption::None);
        const auto second = ExifRunnerSaveOperation::create(file, ExifOperationOption::None);
        const auto throwing = std::make_shared<ThrowingOperation>();
        const auto heard = run([&](WriteQueue &runner) {
            return runner.queueOperations({first, second, throwing});
        });
        // Two saves within one second must not share a temporary file.
        QVERIFY(!first->tempFileName().isEmpty());
        QVERIFY(first->tempFileName() != second->tempFileName());
        QCOMPARE(RunListener::texts(first->errors()) + RunListener::texts(second->errors()),
                 QStringList());
        QVERIFY(throwing->threadName.startsWith(WriteQueue::ThreadName));
        QCOMPARE(heard->messages(throwing->fileName()),
                 QStringList{u"3 Unknown error occurred during processing"_qs});
    }

    // Whatever records name one file, a batch changes it once: twice would shift its dates
    // twice, and the runner's two threads at once would undo one write with the other.
    void oneFileUnderTwoNamesIsChangedOnce_data()
    {
        QTest::addColumn<QString>("alias"); // of TAG/d/a.jpg
        QTest::newRow("dot") << u"d/./a.jpg"_qs;
        QTest::newRow("dot dot") << u"d/../d/a.jpg"_qs;
        QTest::newRow("linked folder") << u"link/a.jpg"_qs;
        QTest::newRow("hard link") << u"d/hard.jpg"_qs;
    }
    void oneFileUnderTwoNamesIsChangedOnce()
    {
        QFETCH(QString, alias);
        const QString tag = u"alias-"_qs + QString::fromLatin1(QTest::currentDataTag());
        const QString folder = m_dir.filePath(tag);
        const QString path = m_dir.filePath(tag + u"/d/a.jpg"_qs);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(QFile::copy(m_template, path));
        QVERIFY(QFile::link(folder + u"/d"_qs, folder + u"/link"_qs));
        const bool isHardLink = alias == u"d/hard.jpg"_qs;
        // Made before the reads: a new link changes the file's change time, as another
        // program's edit would.
        if (isHardLink) {
            QCOMPARE(::link(QFile::encodeName(path).constData(),
                            QFile::encodeName(folder + u'/' + alias).constData()),
                     0);
        }
        const ExifFileInfoPtr first = load(path);
        const ExifFileInfoPtr second = load(folder + u'/' + alias);
        for (const ExifFileInfoPtr &file : {first, second})
            file->setExifValue(u"ExifIFD:DateTimeOriginal"_qs, u"+1h"_qs);
        first->setExifValue(u"IFD0:ImageDescription"_qs, u"Caption"_qs);
        second->setExifValue(u"IFD0:Artist"_qs, u"Second"_qs);

        const auto heard = save({first, second});
        const QJsonObject tags = readWithExifTool(first->fileName());
        QCOMPARE(tags[u"ExifIFD:DateTimeOriginal"_qs].toString(), u"2010:05:01 11:00:00"_qs);
        QCOMPARE(tags[u"IFD0:ImageDescription"_qs].toString(), u"Caption"_qs);
        QCOMPARE(tags[u"IFD0:Artist"_qs].toString(), u"Old"_qs);
        // Saving through one name of a hard-linked file warns that the others keep the old one.
        QCOMPARE(heard->results.value(first->fileName())->errorsCount(), 0u);
        QCOMPARE(heard->messages(second->fileName()),
                 QStringList{u"3 "_qs + second->fileName() + u" is the same file as "_qs +
                             first->fileName() +
                             u", which this batch already changes, so it was not changed a "
                             u"second time."_qs});
        QVERIFY(isExifFileModified(*second)); // its edits stay for the user to see
        QCOMPARE(heard->finishedFiles, (QList<ExifFileInfoPtr>{first, second}));
        if (isHardLink)
            return; // the save has made two files of the two names

        // Read again: the save gave the file a new inode, which the second record cannot know.
        MetadataReader().readRecord(second);
        const auto removed = run([&](WriteQueue &runner) {
            return runner.removeAllMetadata({second, first}, ExifOperationOption::ReReadFile);
        });
        QCOMPARE(removed->events.last(), u"finish 2"_qs);
        QCOMPARE(removed->messages(second->fileName()), QStringList());
        QCOMPARE(removed->messages(first->fileName()).size(), 1);
        QVERIFY(!readWithExifTool(first->fileName()).contains(u"IFD0:ImageDescription"_qs));
    }

    void faultyExifToolLeavesTheOriginal_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("persistent");
        QTest::addColumn<QString>("message");
        const std::pair<const char *, const char *> faults[] = {{"nothing", "wrote no file"},
                                                                {"half", "incomplete"},
                                                                {"hang", "did not answer in time"},
                                                                {"flood", "flooded"},
                                                                {"die", "stopped unexpectedly"}};
        for (const auto &[fault, message] : faults) {
            for (const bool persistent : {true, false}) {
                QTest::addRow("%s, %s", fault, persistent ? "persistent" : "one-shot")
                    << QString::fromLatin1(fault) << persistent << QString::fromLatin1(message);
            }
        }
    }
    void faultyExifToolLeavesTheOriginal()
    {
        QFETCH(QString, fault);
        QFETCH(bool, persistent);
        QFETCH(QString, message);
        QVERIFY2(QFileInfo(Faulty).isExecutable(), "build the test helpers first");
        if (fault == u"hang")
            FileRewriteOperation::setCommandTimeouts(8000, 0);
        const QString tag = QString::fromLatin1(QTest::currentDataTag());
        const QList files{load(tag + u"/a.jpg"_qs, u"New"_qs), load(tag + u"/b.jpg"_qs, u"New"_qs)};
        const QByteArray original = readBytes(files[0]->fileName());
        QFile control(m_dir.filePath(u"control"_qs));
        QVERIFY(control.open(QIODevice::WriteOnly) && control.write(fault.toUtf8() + '\n') > 0);
        control.close();

        m_concurrent = 1; // the next file must go through the session that failed
        const auto heard =
            save(files, persistent ? Persistent : ExifToolSessionKind::OneShot, Faulty);
        QCOMPARE(readBytes(files[0]->fileName()), original);
        const QString errors = heard->messages(files[0]->fileName()).join(u'|');
        QVERIFY2(errors.contains(message), qPrintable(errors));
        QCOMPARE(files[0]->originalExifData().value(u"IFD0:Artist"_qs), u"Old"_qs);
        QCOMPARE(heard->messages(files[1]->fileName()), QStringList());
        QCOMPARE(files[1]->originalExifData().value(u"IFD0:Artist"_qs), u"New"_qs);
        QCOMPARE(QDir(m_dir.filePath(tag))
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({u"a.jpg"_qs, u"b.jpg"_qs}));
    }

    // Files are flushed and put in place in groups; one that fails its check costs its group
    // nothing but itself, wherever it stands and however the batch is cut.
    void oneFileOfAGroupFailsItsCheck_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<int>("groupSize");
        QTest::addColumn<int>("threads");
        QTest::newRow("first of one group") << u"a.jpg"_qs << 64 << 1;
        QTest::newRow("middle of one group") << u"c.jpg"_qs << 64 << 1;
        QTest::newRow("last of one group") << u"e.jpg"_qs << 64 << 1;
        QTest::newRow("groups of two") << u"c.jpg"_qs << 2 << 1;
        QTest::newRow("each file alone") << u"d.jpg"_qs << 1 << 1;
        QTest::newRow("two threads") << u"b.jpg"_qs << 64 << 2;
    }
    void oneFileOfAGroupFailsItsCheck()
    {
        QFETCH(QString, failing);
        QFETCH(int, groupSize);
        QFETCH(int, threads);
        const QString tag = u"group-"_qs + QString::fromLatin1(QTest::currentDataTag());
        QList<ExifFileInfoPtr> files;
        QHash<QString, QByteArray> before;
        for (const QString &name :
             {u"a.jpg"_qs, u"b.jpg"_qs, u"c.jpg"_qs, u"d.jpg"_qs, u"e.jpg"_qs}) {
            files << load(tag + u'/' + name, u"New "_qs + name);
            before.insert(name, readBytes(files.last()->fileName()));
        }
        QFile control(m_dir.filePath(u"control"_qs));
        QVERIFY(control.open(QIODevice::WriteOnly) && control.write("half " + failing.toUtf8()));
        control.close();

        auto listener = std::make_unique<RunListener>();
        WriteQueue runner(nullptr, Persistent, Faulty);
        listener->listen(runner);
        runner.setMaximumConcurrentOperations(threads);
        runner.setFlushGroupLimits(groupSize, 600'000);
        runner.saveFiles(files, ExifOperationOption::ReReadFile);
        QVERIFY(listener->wait());

        QCOMPARE(listener->finishedFiles, files);
        for (const ExifFileInfoPtr &file : std::as_const(files)) {
            const QString name = QFileInfo(file->fileName()).fileName();
            const QStringList messages = listener->messages(file->fileName());
            if (name == failing) {
                QCOMPARE(readBytes(file->fileName()), before.value(name));
                QCOMPARE(messages.size(), 1);
                QVERIFY2(messages.first().contains(u"incomplete"_qs), qPrintable(messages.first()));
                QVERIFY(isExifFileModified(*file));
            } else {
                QCOMPARE(messages, QStringList());
                QCOMPARE(readWithExifTool(file->fileName())[u"IFD0:Artist"_qs].toString(),
                         u"New "_qs + name);
                QVERIFY(!isExifFileModified(*file));
            }
        }
        QCOMPARE(QDir(m_dir.filePath(tag))
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({u"a.jpg"_qs, u"b.jpg"_qs, u"c.jpg"_qs, u"d.jpg"_qs, u"e.jpg"_qs}));
    }

    // A checked file waits for the rest of its group before its rename: what another program
    // writes to the file meanwhile is kept, and the save says so.
    void outsideWriteWhileWaitingForTheGroupIsKept()
    {
        const ExifFileInfoPtr file = load(u"staged/a.jpg"_qs, u"Ours"_qs);
        const auto operation =
            ExifRunnerSaveOperation::create(file, ExifOperationOption::ReReadFile);
        QVERIFY(operation->runUntilFlush());
        QVERIFY(Fixtures::runExifTool(
                    {u"-overwrite_original"_qs, u"-IFD0:Artist=Theirs"_qs, file->fileName()})
                    .ok());
        operation->runAfterFlush();
        QCOMPARE(readWithExifTool(file->fileName())[u"IFD0:Artist"_qs].toString(), u"Theirs"_qs);
        QCOMPARE(RunListener::texts(operation->errors()),
                 QStringList{u"3 a.jpg was changed by another program after it was read; reload "
                             u"it to see its new values."_qs});
        QVERIFY(isExifFileModified(*file)); // the edit stays for the user
        QCOMPARE(QDir(QFileInfo(file->fileName()).path())
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"a.jpg"_qs});
    }

    // IIM keeps a text in a dataset of so many bytes and ExifTool cuts a longer one, which other
    // programs would then read: such a value is refused before anything is written.
    void iimTextOverItsLimitIsNotCut_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("saved");
        QTest::newRow("ASCII at the limit") << u"IPTC:By-line"_qs << QString(32, u'b') << true;
        QTest::newRow("ASCII over it") << u"IPTC:By-line"_qs << QString(33, u'b') << false;
        QTest::newRow("two-byte letters at it") << u"IPTC:By-line"_qs << QString(16, u'é') << true;
        QTest::newRow("three-byte signs over it")
            << u"IPTC:By-line"_qs << QString(11, QChar(0x20AC)) << false;
        QTest::newRow("one keyword of many over it")
            << u"IPTC:Keywords"_qs << u"short,"_qs + QString(65, u'k') << false;
        QTest::newRow("XMP has no such limit") << u"XMP-dc:Title"_qs << QString(300, u't') << true;
    }
    void iimTextOverItsLimitIsNotCut()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(bool, saved);
        const ExifFileInfoPtr file =
            load(u"iim/"_qs + QString::fromLatin1(QTest::currentDataTag()) + u".jpg"_qs);
        const QByteArray before = readBytes(file->fileName());
        file->setExifValue(key, value);
        const QStringList messages = save({file})->messages(file->fileName());
        const QJsonValue written = readWithExifTool(file->fileName()).value(key);
        if (saved) {
            QCOMPARE(messages, QStringList());
            QCOMPARE(written.toString(), value);
            QVERIFY(!isExifFileModified(*file));
            return;
        }
        QCOMPARE(readBytes(file->fileName()), before);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.first().contains(u"longer than IPTC allows"_qs),
                 qPrintable(messages.first()));
        QVERIFY(isExifFileModified(*file)); // still there for the user to shorten
    }

    void readOnlyFolderGivesAClearError()
    {
        if (::geteuid() != 0)
            QSKIP("a read-only bind mount needs root");
        const QString source = QFileInfo(load(u"ro-source/a.jpg"_qs)->fileName()).path();
        const QString mounted = m_dir.filePath(u"ro"_qs);
        QVERIFY(QDir().mkpath(mounted));
        if (QProcess::execute(u"mount"_qs, {u"--bind"_qs, source, mounted}))
            QSKIP("mount --bind is not permitted here");
        const auto unmount = qScopeGuard([&] { QProcess::execute(u"umount"_qs, {mounted}); });
        if (QProcess::execute(u"mount"_qs, {u"-o"_qs, u"remount,bind,ro"_qs, mounted}))
            QSKIP("a read-only remount is not permitted here");
        const ExifFileInfoPtr file = load(mounted + u"/a.jpg"_qs, u"New"_qs);
        const QByteArray original = readBytes(file->fileName());
        const QString messages = save({file})->messages(file->fileName()).join(u'|');
        QCOMPARE(readBytes(file->fileName()), original);
        QVERIFY2(messages.startsWith(u"3 "_qs), qPrintable(messages));
    }

private:
    // A copy of the template under the test folder (absolute paths are read as they are), with
    // an edited artist when one is given.
    ExifFileInfoPtr load(const QString &path, const QString &artist = {})
    {
        const QString copy = path.startsWith(u'/') ? path : m_dir.filePath(path);
        if (!path.startsWith(u'/')) {
            QDir().mkpath(QFileInfo(copy).path());
            QFile::copy(m_template, copy);
        }
        auto file = std::make_shared<ExifFileInfo>(copy);
        MetadataReader().readRecord(file);
        if (!artist.isEmpty())
            file->setExifValue(u"IFD0:Artist"_qs, artist);
        return file;
    }

    std::unique_ptr<RunListener> run(const std::function<qsizetype(WriteQueue &)> &queue,
                                     ExifToolSessionKind kind = Persistent,
                                     const QString &tool = exifToolPath())
    {
        auto listener = std::make_unique<RunListener>();
        WriteQueue runner(nullptr, kind, tool);
        listener->listen(runner);
        runner.setMaximumConcurrentOperations(m_concurrent);
        queue(runner);
        if (!listener->wait())
            qWarning("the batch did not finish");
        return listener;
    }

    std::unique_ptr<RunListener> save(const QList<ExifFileInfoPtr> &files,
                                      ExifToolSessionKind kind = Persistent,
                                      const QString &tool = exifToolPath())
    {
        return run(
            [&](WriteQueue &runner) {
                return runner.saveFiles(files, ExifOperationOption::ReReadFile);
            },
            kind, tool);
    }

    QTemporaryDir m_dir;
    int m_concurrent = 2;
    const QString m_template = m_dir.filePath(u"template.jpg"_qs);
};

QTEST_GUILESS_MAIN(TestWriteQueue)
#include "tst_writequeue.moc"
