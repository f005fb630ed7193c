#include "engine/exifbackgroundrunner.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/exifrunner.h"
#include "engine/exifrunnersaveoperation.h"
#include "engine/exifutil.h"
#include "engine/filereplacement.h"
#include "values/tagsmithexception.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QStringList FixtureTags{
    u"-IFD0:Artist=Nobody"_qs,
    u"-IFD0:Copyright=Old"_qs,
    u"-IFD0:Orientation#=1"_qs,
    u"-IFD0:ModifyDate=2010:05:01 10:00:00"_qs,
    u"-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"_qs,
    u"-ExifIFD:ISO=100"_qs,
    u"-IPTC:Keywords=old"_qs,
    u"-GPS:GPSLatitude=10"_qs,
    u"-GPS:GPSLatitudeRef=N"_qs,
};

class RecordingListener final : public ExifBackgroundRunnerListener
{
public:
    void fileToBeProcessed(const ExifFileInfoPtr &file, const ExifOperationStatus &status) override
    {
        events << QStringLiteral("before %1 %2/%3 %4")
                      .arg(QFileInfo(status.fileName()).fileName())
                      .arg(status.processedTasks())
                      .arg(status.totalTasks())
                      .arg(file || status.errors() ? u"bad"_qs : u"-"_qs);
    }
    void fileProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &status) override
    {
        events << QStringLiteral("after %1 %2/%3")
                      .arg(QFileInfo(status.fileName()).fileName())
                      .arg(status.processedTasks())
                      .arg(status.totalTasks());
    }
    void finishProcessing(const QHash<QString, ErrorMessagesPtr> &map) override
    {
        events << QStringLiteral("finish %1").arg(map.size());
        results = map;
        finished = true;
    }

    QStringList events;
    QHash<QString, ErrorMessagesPtr> results;
    bool finished = false;
};

// Reports which thread ran it, then fails the way a bug would.
class ThrowingOperation final : public ExifRunnerOperation
{
public:
    QString fileName() const override { return u"/nowhere/x.jpg"_qs; }
    ErrorMessagesPtr errors() const override { return nullptr; }
    void run() override
    {
        threadName = QThread::currentThread()->objectName();
        throw TagsmithException(TagsmithException::LogicError, u"broken"_qs);
    }
    QString threadName;
};

QStringList messagesOf(const ErrorMessagesPtr &errors)
{
    QStringList texts;
    if (errors) {
        for (const ErrorMessage &message : errors->messages())
            texts << QString::number(message.type()) + u' ' + message.message();
    }
    return texts;
}

} // namespace

class TestExifBackgroundRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        m_template = m_dir.filePath(u"template.jpg"_qs);
        const QString error = Fixtures::makeImage(m_template, FixtureTags);
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }

    void init() { UserSettings::setValue(UserSettings::FileModifyDate, 2); }

    void savedEditsReadBackAndBothRunnersAgree_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "plain.jpg";
        QTest::newRow("percent signs") << "100%done/%d %f%c.jpg";
        QTest::newRow("dash, quote, unicode") << "-x 'ünï' \"q\".jpg";
    }
    void savedEditsReadBackAndBothRunnersAgree()
    {
        QFETCH(QString, name);
        QByteArray bytes[2];
        QStringList messages[2];
        for (int kind = 0; kind < 2; ++kind) {
            const QString path = fixture(QStringLiteral("e2e%1-%2/")
                                             .arg(kind)
                                             .arg(QString::fromLatin1(QTest::currentDataTag())) +
                                         name);
            QVERIFY(!path.isEmpty());
            const ExifFileInfoPtr file = readFile(path);
            file->setExifValue(u"IFD0:Artist"_qs, u"-Jane \"JD\" = x\nline two"_qs);
            file->setExifValue(u"IPTC:Keywords"_qs, u"Łódź,東京,Smith\\, John,new"_qs);
            file->setExifValue(u"IFD0:Orientation"_qs, u"6"_qs);
            file->setExifValue(u"IPTC:DateCreated"_qs, u"2014:3:7"_qs);
            file->setExifValue(u"ExifIFD:DateTimeOriginal"_qs, u"+1d2h"_qs);
            file->setExifValue(u"GPS:GPSLatitude"_qs, u"33.8688"_qs);
            file->setExifValue(u"GPS:GPSLatitudeRef"_qs, u"S"_qs);
            file->removeExifValue(u"IFD0:Copyright"_qs);

            const auto results = save({file}, kind == 0 ? ExifToolSessionKind::Persistent
                                                        : ExifToolSessionKind::OneShot);
            messages[kind] = messagesOf(results.value(path));
            QCOMPARE(messages[kind], QStringList());

            const QJsonObject tags = readWithExifTool(path);
            QCOMPARE(tags.value(u"IFD0:Artist"_qs).toString(), u"-Jane \"JD\" = x\nline two"_qs);
            QCOMPARE(tags.value(u"IPTC:Keywords"_qs).toArray().toVariantList(),
                     QVariantList({u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs, u"new"_qs}));
            QCOMPARE(tags.value(u"IFD0:Orientation"_qs).toInt(), 6);
            QCOMPARE(tags.value(u"IPTC:DateCreated"_qs).toString(), u"2014:03:07"_qs);
            QCOMPARE(tags.value(u"ExifIFD:DateTimeOriginal"_qs).toString(),
                     u"2010:05:02 12:00:00"_qs);
            QCOMPARE(tags.value(u"GPS:GPSLatitude"_qs).toDouble(), 33.8688);
            QCOMPARE(tags.value(u"GPS:GPSLatitudeRef"_qs).toString(), u"S"_qs);
            QVERIFY(!tags.contains(u"IFD0:Copyright"_qs));

            // The window now shows the file as it is, and the shift is not pending any more.
            QCOMPARE(file->originalExifData().value(u"ExifIFD:DateTimeOriginal"_qs),
                     u"2010:05:02 12:00:00"_qs);
            QCOMPARE(file->exifData().value(u"ExifIFD:DateTimeOriginal"_qs),
                     u"2010:05:02 12:00:00"_qs);
            QCOMPARE(file->originalExifData().value(u"System:FileName"_qs),
                     QFileInfo(path).fileName());
            QVERIFY(!isExifFileModified(*file));
            QCOMPARE(QDir(QFileInfo(path).path())
                         .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                     QStringList{QFileInfo(path).fileName()});
            bytes[kind] = ::readFile(path);
        }
        QCOMPARE(bytes[0], bytes[1]);
        QCOMPARE(messages[0], messages[1]);
    }

    void listenerHearsEachFileInOrder()
    {
        QList<ExifFileInfoPtr> files;
        for (const QString &name : {u"o1.jpg"_qs, u"o2.jpg"_qs, u"o3.jpg"_qs}) {
            files << readFile(fixture(u"order/"_qs + name));
            files.last()->setExifValue(u"IFD0:Artist"_qs, name);
        }
        files.insert(1, readFile(fixture(u"order/unchanged.jpg"_qs)));
        ExifBackgroundRunner runner;
        RecordingListener listener;
        runner.setListener(&listener);
        QCOMPARE(runner.saveFiles(files, 1), 3);
        QTRY_VERIFY_WITH_TIMEOUT(listener.finished, 60000);
        QCOMPARE(listener.events,
                 QStringList({u"before o1.jpg 1/3 -"_qs, u"after o1.jpg 1/3"_qs,
                              u"before o2.jpg 2/3 -"_qs, u"after o2.jpg 2/3"_qs,
                              u"before o3.jpg 3/3 -"_qs, u"after o3.jpg 3/3"_qs, u"finish 3"_qs}));
    }

    void batchWithoutEditsStillFinishes()
    {
        ExifBackgroundRunner runner;
        RecordingListener listener;
        runner.setListener(&listener);
        QCOMPARE(runner.saveFiles({readFile(fixture(u"none/a.jpg"_qs))}, 1), 0);
        QTRY_VERIFY_WITH_TIMEOUT(listener.finished, 10000);
        QCOMPARE(listener.events, QStringList{u"finish 0"_qs});
    }

    void invalidValueFailsOnlyItsFile()
    {
        QList<ExifFileInfoPtr> files;
        for (const QString &name : {u"d1.jpg"_qs, u"d2.jpg"_qs, u"d3.jpg"_qs})
            files << readFile(fixture(u"invalid/"_qs + name));
        for (const ExifFileInfoPtr &file : files)
            file->setExifValue(u"IPTC:DateCreated"_qs, u"2014:03:08"_qs);
        files[1]->setExifValue(u"IPTC:DateCreated"_qs, u"2014:03"_qs);
        const QByteArray before = ::readFile(files[1]->fileName());

        const auto results = save(files);
        QCOMPARE(::readFile(files[1]->fileName()), before);
        QCOMPARE(messagesOf(results.value(files[1]->fileName())),
                 QStringList{u"3 The value \"2014:03\" of Date Created is not a valid date."_qs});
        // The edit stays pending for the user to correct.
        QVERIFY(isExifFileModified(*files[1]));
        for (const int i : {0, 2}) {
            QCOMPARE(messagesOf(results.value(files[i]->fileName())), QStringList());
            QCOMPARE(
                readWithExifTool(files[i]->fileName()).value(u"IPTC:DateCreated"_qs).toString(),
                u"2014:03:08"_qs);
        }
    }

    void valuesThatDidNotReadBackAreNamed()
    {
        const ExifFileInfoPtr file = readFile(fixture(u"verify/a.jpg"_qs));
        // en_US groups thousands, and ExifTool reads "12,345" as 12.
        file->setExifValue(u"ExifIFD:ISO"_qs, u"12345"_qs);
        // A shift of a date the file does not have writes nothing.
        file->setExifValue(u"ExifIFD:CreateDate"_qs, u"+1h"_qs);
        file->setExifValue(u"IFD0:Artist"_qs, u"kept"_qs);
        const QStringList messages = messagesOf(save({file}).value(file->fileName()));
        QVERIFY2(messages.contains(u"2 ISO Speed (ExifIFD:ISO) did not read back as written."_qs),
                 qPrintable(messages.join(u'|')));
        QVERIFY2(messages.filter(u"(ExifIFD:CreateDate) did not read back"_qs).size() == 1,
                 qPrintable(messages.join(u'|')));
        QVERIFY(messages.filter(u"IFD0:Artist"_qs).isEmpty());
        QCOMPARE(readWithExifTool(file->fileName()).value(u"IFD0:Artist"_qs).toString(),
                 u"kept"_qs);
    }

    void fileDatesFollowTheSettings_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("modifyDate"); // written into IFD0:ModifyDate, or a shift
        QTest::addColumn<QString>("expected");   // local time; "kept" or "now"
        QTest::newRow("from the tag") << 0 << ""
                                      << "2010-05-01T10:00:00";
        QTest::newRow("from the shifted tag") << 0 << "+1d2h"
                                              << "2010-05-02T12:00:00";
        QTest::newRow("from the tag shifted back") << 0 << "-1d2h"
                                                   << "2010-04-30T08:00:00";
        QTest::newRow("kept to the nanosecond") << 1 << ""
                                                << "kept";
        QTest::newRow("left as written") << 2 << ""
                                         << "now";
    }
    void fileDatesFollowTheSettings()
    {
        QFETCH(int, mode);
        QFETCH(QString, modifyDate);
        QFETCH(QString, expected);
        UserSettings::setValue(UserSettings::FileModifyDate, mode);
        const QString path =
            fixture(u"dates/"_qs + QString::fromLatin1(QTest::currentDataTag()) + u".jpg"_qs);
        const timespec before{1'234'567'890, 123'456'789};
        QVERIFY(setFileModificationTime(path, before, nullptr));
        const ExifFileInfoPtr file = readFile(path);
        file->setExifValue(u"IFD0:Artist"_qs, u"dated"_qs);
        if (!modifyDate.isEmpty())
            file->setExifValue(u"IFD0:ModifyDate"_qs, modifyDate);
        const QDateTime started = QDateTime::currentDateTime();
        QCOMPARE(messagesOf(save({file}).value(path)), QStringList());

        struct stat st
        {
        };
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &st), 0);
        if (expected == u"kept") {
            QCOMPARE(qint64(st.st_mtim.tv_sec), qint64(before.tv_sec));
            QCOMPARE(qint64(st.st_mtim.tv_nsec), qint64(before.tv_nsec));
        } else if (expected == u"now") {
            QVERIFY(qint64(st.st_mtim.tv_sec) >= started.toSecsSinceEpoch() - 1);
        } else {
            QCOMPARE(QDateTime::fromSecsSinceEpoch(st.st_mtim.tv_sec),
                     QDateTime::fromString(expected, Qt::ISODate));
        }
    }

    void twoSavesInOneSecondUseDifferentTemporaryNames()
    {
        const ExifFileInfoPtr file = readFile(fixture(u"twice/a.jpg"_qs));
        file->setExifValue(u"IFD0:Artist"_qs, u"again"_qs);
        const auto first = ExifRunnerSaveOperation::create(file, 0);
        const auto second = ExifRunnerSaveOperation::create(file, 0);
        ExifBackgroundRunner runner;
        RecordingListener listener;
        runner.setListener(&listener);
        runner.queueOperations({first, second});
        QTRY_VERIFY_WITH_TIMEOUT(listener.finished, 60000);
        QVERIFY(!first->tempFileName().isEmpty());
        QVERIFY(first->tempFileName() != second->tempFileName());
        QCOMPARE(messagesOf(first->errors()), QStringList());
        QCOMPARE(messagesOf(second->errors()), QStringList());
    }

    void exceptionBecomesTheFilesErrorOnTheRunnerThread()
    {
        const auto throwing = std::make_shared<ThrowingOperation>();
        ExifBackgroundRunner runner;
        RecordingListener listener;
        runner.setListener(&listener);
        runner.queueOperations({throwing});
        QTRY_VERIFY_WITH_TIMEOUT(listener.finished, 10000);
        QCOMPARE(throwing->threadName, u"Exif Operations Background Runner"_qs);
        QCOMPARE(messagesOf(listener.results.value(u"/nowhere/x.jpg"_qs)),
                 QStringList{u"3 Unknown error occured during processing"_qs});
    }

private:
    QString fixture(const QString &relative)
    {
        const QString path = m_dir.filePath(relative);
        QDir().mkpath(QFileInfo(path).path());
        return QFile::copy(m_template, path) ? path : QString();
    }

    ExifFileInfoPtr readFile(const QString &path)
    {
        auto file = std::make_shared<ExifFileInfo>(path);
        ExifRunner().loadExifInformation(file);
        return file;
    }

    QHash<QString, ErrorMessagesPtr>
    save(const QList<ExifFileInfoPtr> &files,
         ExifToolSessionKind kind = ExifToolSessionKind::Persistent)
    {
        ExifBackgroundRunner runner(nullptr, kind);
        RecordingListener listener;
        runner.setListener(&listener);
        runner.saveFiles(files, 1);
        if (!QTest::qWaitFor([&] { return listener.finished; }, 60000))
            return {};
        return listener.results;
    }

    static QJsonObject readWithExifTool(const QString &path)
    {
        const Fixtures::ToolRun run = Fixtures::runExifTool(
            {u"-j"_qs, u"-G1"_qs, u"-n"_qs, u"-charset"_qs, u"UTF-8"_qs, u"--"_qs, path});
        return QJsonDocument::fromJson(run.out).array().at(0).toObject();
    }

    QTemporaryDir m_dir;
    QString m_template;
};

QTEST_GUILESS_MAIN(TestExifBackgroundRunner)
#include "tst_exifbackgroundrunner.moc"
