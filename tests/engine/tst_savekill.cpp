#include "engine/scratchjournal.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

const int FileCount = 50;
const int Kills = 100;

// Where the child keeps its scratch journal: beside its settings.
QString journalPath(const QString &settings)
{
    return QFileInfo(settings).absolutePath() + u"/scratch-folders"_qs;
}

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
        QElapsedTimer saving;
        saving.start();
        QCOMPARE(saveChild(u"once"_qs, expected, settings, once), QString());
        const qint64 wholeRunMs = std::max<qint64>(saving.elapsed(), 100);
        for (int i = 0; i < FileCount; ++i) {
            newVersions << Fixtures::readBytes(expected % u'/' % names[i]);
            QVERIFY(newVersions[i] != oldVersions[i]);
        }

        int killsAfterASave = 0;
        for (int kills = 0; kills < Kills; ++kills) {
            for (int i = 0; i < FileCount; ++i)
                QVERIFY(Fixtures::writeBytes(live % u'/' % names[i], oldVersions[i]));
            QProcess child;
            QCOMPARE(saveChild(u"loop"_qs, live, settings, child), QString());
            // At any moment of the save after the read (or of its first 1.5 s, which take most
            // of the fifty files), so that kills land inside ExifTool's start, a write, a flush or
            // a swap.
            QVERIFY(child.waitForReadyRead(20000));
            const qint64 window = std::min<qint64>(wholeRunMs, 1500);
            QThread::msleep(QRandomGenerator::global()->bounded(window));
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
        qInfo("%d kills, %d after a file was saved", Kills, killsAfterASave);
        QVERIFY(killsAfterASave > 0);

        // The next start clears whatever the killed runs left, without a save in that folder.
        // An ExifTool the last kill orphaned may still finish its file, and it makes a missing
        // output folder anew, so the start-up clean-up is given a few seconds of such starts.
        ScratchJournal::setPath(journalPath(settings));
        names.sort();
        const auto listing = [&live] {
            return QDir(live).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                            QDir::NoDotAndDotDot,
                                        QDir::Name);
        };
        int removed = 0;
        QTRY_VERIFY2_WITH_TIMEOUT((removed += ScratchJournal::cleanUp(), listing() == names),
                                  qPrintable(listing().join(u", ")), 20000);
        qInfo("%d leftovers removed", removed);
    }
};

QTEST_GUILESS_MAIN(TestSaveKill)
#include "tst_savekill.moc"
