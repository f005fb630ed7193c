#include "engine/exifbackgroundrunner.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/exifrunner.h"
#include "engine/exifrunnerfilemodifiyoperation.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace {

const QString Faulty = QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/faultyexiftool");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Listener final : public ExifBackgroundRunnerListener
{
public:
    void fileToBeProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &) override {}
    void fileProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &) override {}
    void finishProcessing(const QHash<QString, ErrorMessagesPtr> &map) override
    {
        results = map;
        finished = true;
    }
    QHash<QString, ErrorMessagesPtr> results;
    bool finished = false;
};

QString errorsOf(const ErrorMessagesPtr &errors)
{
    QStringList texts;
    for (const ErrorMessage &message : errors->messages()) {
        if (message.isError())
            texts << message.message();
    }
    return texts.join(u'|');
}

} // namespace

// ExifTool failing in every way we know of: the original must survive byte for byte, the user
// must read why, and the next file of the batch must still be saved.
class TestSaveFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        QVERIFY2(QFileInfo(Faulty).isExecutable(), "build the test helpers first");
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        UserSettings::setValue(UserSettings::FileModifyDate, 2);
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        m_template = m_dir.filePath(u"template.jpg"_qs);
        const QString error = Fixtures::makeImage(m_template, {u"-IFD0:Artist=Old"_qs});
        QVERIFY2(error.isEmpty(), qPrintable(error));
        m_control = m_dir.filePath(u"control"_qs);
        qputenv("FAULTY_CONTROL", QFile::encodeName(m_control));
        qputenv("FAULTY_REAL_EXIFTOOL", QFile::encodeName(Fixtures::exifTool()));
    }

    void cleanup() { ExifRunnerFileModifiyOperation::setCommandTimeouts(120'000, 10'000); }

    void originalSurvivesAndNextFileIsSaved_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("persistent");
        QTest::addColumn<QString>("message");
        const QList<std::pair<QString, QString>> faults{
            {u"nothing"_qs, u"wrote no file"_qs},       {u"half"_qs, u"incomplete"_qs},
            {u"hang"_qs, u"did not answer in time"_qs}, {u"flood"_qs, u"flooded"_qs},
            {u"die"_qs, u"stopped unexpectedly"_qs},
        };
        for (const auto &[fault, message] : faults) {
            QTest::addRow("%s, persistent", qPrintable(fault)) << fault << true << message;
            QTest::addRow("%s, one-shot", qPrintable(fault)) << fault << false << message;
        }
    }
    void originalSurvivesAndNextFileIsSaved()
    {
        QFETCH(QString, fault);
        QFETCH(bool, persistent);
        QFETCH(QString, message);
        if (fault == u"hang")
            ExifRunnerFileModifiyOperation::setCommandTimeouts(8000, 0);
        const QString folder = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(QDir().mkpath(folder));
        QList<ExifFileInfoPtr> files;
        for (const QString &name : {u"a.jpg"_qs, u"b.jpg"_qs}) {
            const QString path = folder + u'/' + name;
            QVERIFY(QFile::copy(m_template, path));
            auto file = std::make_shared<ExifFileInfo>(path);
            ExifRunner().loadExifInformation(file);
            file->setExifValue(u"IFD0:Artist"_qs, u"New"_qs);
            files << file;
        }
        const QByteArray original = contentOf(files[0]->fileName());
        QFile control(m_control);
        QVERIFY(control.open(QIODevice::WriteOnly | QIODevice::Truncate));
        control.write(fault.toUtf8() + '\n');
        control.close();

        Listener listener;
        {
            ExifBackgroundRunner runner(nullptr,
                                        persistent ? ExifToolSessionKind::Persistent
                                                   : ExifToolSessionKind::OneShot,
                                        Faulty);
            runner.setListener(&listener);
            QCOMPARE(runner.saveFiles(files, 1), 2);
            QTRY_VERIFY_WITH_TIMEOUT(listener.finished, 120000);
        }

        QCOMPARE(contentOf(files[0]->fileName()), original);
        const QString errors = errorsOf(listener.results.value(files[0]->fileName()));
        QVERIFY2(errors.contains(message), qPrintable(errors));
        QCOMPARE(errorsOf(listener.results.value(files[1]->fileName())), QString());
        QCOMPARE(files[1]->originalExifData().value(u"IFD0:Artist"_qs), u"New"_qs);
        // The failed file shows what is really on disk.
        QCOMPARE(files[0]->originalExifData().value(u"IFD0:Artist"_qs), u"Old"_qs);
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({u"a.jpg"_qs, u"b.jpg"_qs}));
    }

    void readOnlyFolderGivesAClearError()
    {
        if (::geteuid() != 0)
            QSKIP("a read-only bind mount needs root");
        const QString source = m_dir.filePath(u"ro-source"_qs);
        const QString mounted = m_dir.filePath(u"ro"_qs);
        QVERIFY(QDir().mkpath(source) && QDir().mkpath(mounted));
        QVERIFY(QFile::copy(m_template, source + u"/a.jpg"_qs));
        if (QProcess::execute(u"mount"_qs, {u"--bind"_qs, source, mounted}) != 0)
            QSKIP("mount --bind is not permitted here");
        const auto unmount = qScopeGuard([&] { QProcess::execute(u"umount"_qs, {mounted}); });
        if (QProcess::execute(u"mount"_qs, {u"-o"_qs, u"remount,bind,ro"_qs, mounted}) != 0)
            QSKIP("a read-only remount is not permitted here");

        const QString path = mounted + u"/a.jpg"_qs;
        auto file = std::make_shared<ExifFileInfo>(path);
        ExifRunner().loadExifInformation(file);
        file->setExifValue(u"IFD0:Artist"_qs, u"New"_qs);
        const QByteArray original = contentOf(path);
        Listener listener;
        ExifBackgroundRunner runner;
        runner.setListener(&listener);
        runner.saveFiles({file}, 1);
        QTRY_VERIFY_WITH_TIMEOUT(listener.finished, 60000);
        QCOMPARE(contentOf(path), original);
        QVERIFY(!errorsOf(listener.results.value(path)).isEmpty());
    }

private:
    QTemporaryDir m_dir;
    QString m_template;
    QString m_control;
};

QTEST_GUILESS_MAIN(TestSaveFaults)
#include "tst_savefaults.moc"
