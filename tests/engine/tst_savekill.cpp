#include "../support/fixtures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

const int FileCount = 5;

QString saveChild(const QString &mode, const QString &folder, const QString &settings,
                  QProcess &child)
{
    child.start(QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/savekillchild"),
                {mode, folder, settings});
    if (mode == u"loop"_qs)
        return child.waitForStarted() ? QString() : child.errorString();
    if (!child.waitForFinished(60000) || child.exitCode() != 0)
        return QString::fromLocal8Bit(child.readAllStandardError());
    return {};
}

} // namespace

class TestSaveKill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileStaysWholeWhenSavingIsKilled()
    {
        QTemporaryDir root;
        const QString expected = root.filePath(u"expected"_qs), live = root.filePath(u"live"_qs);
        const QString settings = root.filePath(u"settings.ini"_qs);
        QVERIFY(QDir().mkpath(expected) && QDir().mkpath(live));
        QStringList names;
        QList<QByteArray> oldVersions, newVersions;
        for (int i = 0; i < FileCount; ++i) {
            names << QStringLiteral("photo %1.jpg").arg(i);
            QCOMPARE(
                Fixtures::makeImage(expected % u'/' % names[i],
                                    {u"-XMP:Title=old"_qs, u"-XMP:Description="_qs + names[i]}),
                QString());
            oldVersions << Fixtures::readBytes(expected % u'/' % names[i]);
        }
        QProcess once;
        QCOMPARE(saveChild(u"once"_qs, expected, settings, once), QString());
        for (int i = 0; i < FileCount; ++i) {
            newVersions << Fixtures::readBytes(expected % u'/' % names[i]);
            QVERIFY(newVersions[i] != oldVersions[i]);
        }

        QElapsedTimer elapsed;
        elapsed.start();
        int kills = 0, killsAfterASave = 0;
        for (; kills < 40 && elapsed.elapsed() < 22000; ++kills) {
            for (int i = 0; i < FileCount; ++i)
                QVERIFY(Fixtures::writeBytes(live % u'/' % names[i], oldVersions[i]));
            QProcess child;
            QCOMPARE(saveChild(u"loop"_qs, live, settings, child), QString());
            // After "ready" and a random number of "saved" lines, so that many kills land inside
            // ExifTool's start, a write or a swap.
            const int saved = int(QRandomGenerator::global()->bounded(FileCount));
            qsizetype lines = 0;
            while (lines < 1 + saved && child.waitForReadyRead(20000))
                lines += child.readAllStandardOutput().count('\n');
            QThread::usleep(QRandomGenerator::global()->bounded(saved == 0 ? 1500000 : 100000));
            QCOMPARE(child.state(), QProcess::Running);
            child.kill();
            QVERIFY(child.waitForFinished());

            bool anyNew = false;
            for (int i = 0; i < FileCount; ++i) {
                const QByteArray now = Fixtures::readBytes(live % u'/' % names[i]);
                QVERIFY2(
                    now == oldVersions[i] || now == newVersions[i],
                    qPrintable(
                        QStringLiteral("kill %1: %2 is neither version").arg(kills).arg(names[i])));
                anyNew = anyNew || now == newVersions[i];
            }
            killsAfterASave += anyNew;
        }
        qInfo("%d kills, %d after a file was saved", kills, killsAfterASave);
        QVERIFY(kills >= 5 && killsAfterASave > 0);

        // The next save clears whatever the killed runs left.
        for (int i = 0; i < FileCount; ++i)
            QVERIFY(Fixtures::writeBytes(live % u'/' % names[i], oldVersions[i]));
        QCOMPARE(saveChild(u"once"_qs, live, settings, once), QString());
        for (int i = 0; i < FileCount; ++i)
            QCOMPARE(Fixtures::readBytes(live % u'/' % names[i]), newVersions[i]);
        QCOMPARE(QDir(live).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                          QDir::NoDotAndDotDot,
                                      QDir::Name),
                 names);
    }
};

QTEST_GUILESS_MAIN(TestSaveKill)
#include "tst_savekill.moc"
