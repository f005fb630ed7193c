#include "../support/fixtures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

const int FileCount = 5;

QString childProgram()
{
    return QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/savekillchild");
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString fileName(int i)
{
    return QStringLiteral("photo %1.jpg").arg(i);
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

QStringList everything(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

// A save killed at any moment must leave every file whole: its old or its new version, never a
// mix, a truncation or a missing file; what the killed run left is cleared by the next save.
class TestSaveKill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileStaysWholeWhenSavingIsKilled();
};

void TestSaveKill::everyFileStaysWholeWhenSavingIsKilled()
{
    QTemporaryDir root;
    const QString expected = root.path() % QStringLiteral("/expected");
    const QString live = root.path() % QStringLiteral("/live");
    const QString settings = root.path() % QStringLiteral("/settings.ini");
    QVERIFY(QDir().mkpath(expected) && QDir().mkpath(live));

    QList<QByteArray> oldVersions;
    for (int i = 0; i < FileCount; ++i) {
        const QString path = expected % u'/' % fileName(i);
        QCOMPARE(Fixtures::makeImage(path, {QStringLiteral("-XMP:Title=old"),
                                            QStringLiteral("-XMP:Description=file %1").arg(i)}),
                 QString());
        oldVersions << contents(path);
    }
    QElapsedTimer elapsed;
    elapsed.start();
    QProcess once;
    once.start(childProgram(), {QStringLiteral("once"), expected, settings});
    QVERIFY(once.waitForFinished(60000));
    QVERIFY2(once.exitCode() == 0, once.readAllStandardError().constData());
    QList<QByteArray> newVersions;
    for (int i = 0; i < FileCount; ++i) {
        newVersions << contents(expected % u'/' % fileName(i));
        QVERIFY(newVersions.last() != oldVersions.at(i));
    }

    const qint64 onceMs = elapsed.restart();
    int kills = 0;
    int killsAfterASave = 0;
    int killsMidBatch = 0;
    while (kills < 60 && elapsed.elapsed() < 30000) {
        for (int i = 0; i < FileCount; ++i)
            QVERIFY(writeFile(live % u'/' % fileName(i), oldVersions.at(i)));
        QProcess child;
        child.start(childProgram(), {QStringLiteral("loop"), live, settings});
        QVERIFY(child.waitForStarted());
        // Kills spread over ExifTool's start and first write, or a little after a given
        // number of files was saved, so that many land inside a write or a swap.
        QRandomGenerator *random = QRandomGenerator::global();
        const int saved = int(random->bounded(FileCount));
        qsizetype lines = 0;
        while (lines < 1 + saved && child.waitForReadyRead(20000))
            lines += child.readAllStandardOutput().count('\n');
        QThread::usleep(saved == 0 ? random->bounded(2000000) : random->bounded(100000));
        QCOMPARE(child.state(), QProcess::Running);
        child.kill();
        QVERIFY(child.waitForFinished());
        ++kills;

        int newCount = 0;
        for (int i = 0; i < FileCount; ++i) {
            const QByteArray now = contents(live % u'/' % fileName(i));
            QVERIFY2(now == oldVersions.at(i) || now == newVersions.at(i),
                     qPrintable(QStringLiteral("kill %1: %2 is neither version (%3 bytes)")
                                    .arg(kills)
                                    .arg(fileName(i))
                                    .arg(now.size())));
            newCount += now == newVersions.at(i) ? 1 : 0;
        }
        killsAfterASave += newCount > 0 ? 1 : 0;
        killsMidBatch += newCount > 0 && newCount < FileCount ? 1 : 0;
    }
    qInfo("one full run %lld ms; %d kills, %d after a file was saved, %d in the middle of the "
          "first pass",
          onceMs, kills, killsAfterASave, killsMidBatch);
    QVERIFY(kills >= 10);
    QVERIFY(killsAfterASave > 0);

    for (int i = 0; i < FileCount; ++i)
        QVERIFY(writeFile(live % u'/' % fileName(i), oldVersions.at(i)));
    once.start(childProgram(), {QStringLiteral("once"), live, settings});
    QVERIFY(once.waitForFinished(60000));
    QVERIFY2(once.exitCode() == 0, once.readAllStandardError().constData());
    QStringList names;
    for (int i = 0; i < FileCount; ++i) {
        names << fileName(i);
        QCOMPARE(contents(live % u'/' % fileName(i)), newVersions.at(i));
    }
    QCOMPARE(everything(live), names);
}

QTEST_GUILESS_MAIN(TestSaveKill)
#include "tst_savekill.moc"
