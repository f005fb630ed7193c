#include "catalogue/exiffieldscontroller.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/exifrunnersaveoperation.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QDir>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <chrono>

namespace {

struct SlowOperation final : ExifRunnerOperation
{
    QString fileName() const override { return name; }
    ExifFileInfoPtr file() const override { return nullptr; }
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

std::unique_ptr<RunListener> runBatch(const QList<ExifRunnerOperationPtr> &operations,
                                      int concurrency = 2)
{
    WriteQueue runner;
    runner.setMaximumConcurrentOperations(concurrency);
    auto listener = std::make_unique<RunListener>();
    listener->listen(runner);
    runner.queueOperations(operations);
    listener->wait();
    return listener;
}

// Each file heard before and after, in batch order, then the end.
QStringList inOrder(const QStringList &names, int stored)
{
    QStringList events;
    for (int i = 0; i < names.size(); ++i)
        for (const char *what : {"before ", "after "})
            events << QLatin1String(what) + names[i] +
                          QStringLiteral(" %1/%2").arg(i + 1).arg(names.size());
    return events << u"finish "_qs + QString::number(stored);
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
        QStringList names;
        for (int i = 0; i < 12; ++i)
            names << QStringLiteral("%1.jpg").arg(i);
        QList<QByteArray> serial;
        for (const int concurrency : {1, 2}) {
            QList<ExifRunnerOperationPtr> operations;
            for (int i = 0; i < 12; ++i) {
                const QString path =
                    dir.filePath(QStringLiteral("%1/%2.jpg").arg(concurrency).arg(i));
                QVERIFY(QDir().mkpath(QFileInfo(path).path()) && QFile::copy(source, path));
                auto file = std::make_shared<ExifFileInfo>(path);
                MetadataReader().readRecord(file);
                file->setExifValue(u"IFD0:Artist"_qs, QStringLiteral("Artist %1, ü").arg(i));
                file->setExifValue(u"ExifIFD:DateTimeOriginal"_qs, QStringLiteral("+%1d2h").arg(i));
                if (i == 5)
                    file->setExifValue(u"IPTC:DateCreated"_qs, u"2014:03"_qs);
                operations << ExifRunnerSaveOperation::create(file,
                                                              ExifOperationOption::ReReadFile);
            }
            const auto heard = runBatch(operations, concurrency);
            QCOMPARE(heard->events, inOrder(names, 12));
            for (int i = 0; i < 12; ++i) {
                const QString path = operations.at(i)->fileName();
                QCOMPARE(!heard->messages(path).isEmpty(), i == 5);
                const QByteArray bytes = Fixtures::readBytes(path);
                QCOMPARE(bytes == Fixtures::readBytes(source), i == 5);
                if (concurrency == 1)
                    serial << bytes;
                else
                    QCOMPARE(bytes, serial.at(i));
            }
        }
    }

    // "b" ends long before the slow "a" and waits its turn; "a" under another name must not
    // start before the first has ended.
    void earlyFinishWaitsAndOneFileNeverRunsTwiceAtOnce()
    {
        QList<std::shared_ptr<SlowOperation>> operations;
        for (const QString &name : {u"/x/a"_qs, u"/x/b"_qs, u"/x/./a"_qs, u"/x/c"_qs}) {
            operations << std::make_shared<SlowOperation>();
            operations.last()->name = name;
            operations.last()->ms = operations.size() == 1 ? 400 : 50;
        }
        QCOMPARE(runBatch({operations.begin(), operations.end()})->events,
                 inOrder({u"a"_qs, u"b"_qs, u"a"_qs, u"c"_qs}, 0));
        QVERIFY(operations[1]->end < operations[0]->end);
        QVERIFY(operations[2]->start >= operations[0]->end);
    }
};

QTEST_GUILESS_MAIN(TestParallelSave)
#include "tst_parallelsave.moc"
