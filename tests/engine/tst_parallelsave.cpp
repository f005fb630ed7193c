#include "catalogue/exiffieldscontroller.h"
#include "engine/exifbackgroundrunner.h"
#include "engine/exifrunner.h"
#include "engine/exifrunnersaveoperation.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <chrono>

namespace {

// One entry per file, marked when its two calls did not come as a pair.
class OrderListener final : public ExifBackgroundRunnerListener
{
public:
    void fileToBeProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &status) override
    {
        pending = status.fileName();
    }
    void fileProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &status) override
    {
        events << (status.fileName() == pending ? u"" : u"unpaired ") +
                      QFileInfo(status.fileName()).fileName() +
                      (status.errors() && status.errors()->count() ? u"!" : u"");
        pending.clear();
    }
    void finishProcessing(const QHash<QString, ErrorMessagesPtr> &results) override
    {
        events << u"done "_qs + QString::number(results.size());
        finished = true;
    }
    QStringList events;
    QString pending;
    bool finished = false;
};

struct SlowOperation final : ExifRunnerOperation
{
    QString fileName() const override { return name; }
    ErrorMessagesPtr errors() const override { return nullptr; }
    void run() override
    {
        start = std::chrono::steady_clock::now();
        QThread::msleep(ms);
        end = std::chrono::steady_clock::now();
    }
    QString name;
    unsigned long ms = 0;
    std::chrono::steady_clock::time_point start, end;
};

QStringList runBatch(const QList<ExifRunnerOperationPtr> &operations, int concurrency = 2)
{
    ExifBackgroundRunner runner;
    runner.setMaximumConcurrentOperations(concurrency);
    OrderListener listener;
    runner.setListener(&listener);
    runner.queueOperations(operations);
    return QTest::qWaitFor([&] { return listener.finished; }, 120000) ? listener.events
                                                                      : QStringList();
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestParallelSave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Same bytes, same order, and a file failing midway disturbs neither.
    void twoAtOnceWritesWhatOneAtATimeWrites()
    {
        QTemporaryDir dir;
        UserSettings::setStoreFile(dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        const QString source = dir.filePath(u"template.jpg"_qs);
        const QString error = Fixtures::makeImage(
            source, {u"-IFD0:Artist=Old"_qs, u"-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"_qs});
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QStringList expected;
        for (int i = 0; i < 12; ++i)
            expected << QStringLiteral("%1.jpg").arg(i) + (i == 5 ? u"!" : u"");
        expected << u"done 12"_qs;
        QList<QByteArray> serial;
        for (const int concurrency : {1, 2}) {
            QList<ExifRunnerOperationPtr> operations;
            for (int i = 0; i < 12; ++i) {
                const QString path =
                    dir.filePath(QStringLiteral("%1/%2.jpg").arg(concurrency).arg(i));
                QVERIFY(QDir().mkpath(QFileInfo(path).path()) && QFile::copy(source, path));
                auto file = std::make_shared<ExifFileInfo>(path);
                ExifRunner().loadExifInformation(file);
                file->setExifValue(u"IFD0:Artist"_qs, QStringLiteral("Artist %1, ü").arg(i));
                file->setExifValue(u"ExifIFD:DateTimeOriginal"_qs, QStringLiteral("+%1d2h").arg(i));
                if (i == 5)
                    file->setExifValue(u"IPTC:DateCreated"_qs, u"2014:03"_qs);
                operations << ExifRunnerSaveOperation::create(file, 1);
            }
            QCOMPARE(runBatch(operations, concurrency), expected);
            for (int i = 0; i < 12; ++i) {
                const QByteArray bytes = contents(operations.at(i)->fileName());
                QCOMPARE(bytes == contents(source), i == 5);
                if (concurrency == 1)
                    serial << bytes;
                else
                    QCOMPARE(bytes, serial.at(i));
            }
        }
    }

    // "b" ends long before the slow "a" and waits its turn; the second "a" must not start
    // before the first has ended.
    void earlyFinishWaitsAndOneFileNeverRunsTwiceAtOnce()
    {
        QList<std::shared_ptr<SlowOperation>> operations;
        for (const QString &name : {u"a"_qs, u"b"_qs, u"a"_qs, u"c"_qs}) {
            operations << std::make_shared<SlowOperation>();
            operations.last()->name = name;
            operations.last()->ms = operations.size() == 1 ? 400 : 50;
        }
        QCOMPARE(runBatch({operations.begin(), operations.end()}),
                 QStringList({u"a"_qs, u"b"_qs, u"a"_qs, u"c"_qs, u"done 0"_qs}));
        QVERIFY(operations[1]->end < operations[0]->end);
        QVERIFY(operations[2]->start >= operations[0]->end);
    }
};

QTEST_GUILESS_MAIN(TestParallelSave)
#include "tst_parallelsave.moc"
