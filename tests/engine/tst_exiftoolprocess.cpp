#include "engine/exiftoolcommand.h"
#include "engine/exiftoolprocess.h"
#include "engine/exiftoolversion.h"

#include "../support/fixtures.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using Outcome = ExifToolResult::Outcome;

namespace {

const QString fake = QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/fakeexiftool");

// Gone once its id is free or it is a zombie waiting for its new parent to reap it.
bool isGone(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return true;
    const QByteArray line = stat.readAll();
    const qsizetype state = line.lastIndexOf(')') + 2;
    return state >= line.size() || line.at(state) == 'Z' || line.at(state) == 'X';
}

} // namespace

class TestExifToolProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oldReleasesGetTheSonyWarning_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<bool>("isWarned");
        QTest::newRow("last unsafe") << u"12.74"_qs << true;
        QTest::newRow("first safe") << u"12.75"_qs << false;
    }
    void oldReleasesGetTheSonyWarning()
    {
        QFETCH(QString, version);
        QFETCH(bool, isWarned);
        ExifToolVersion info;
        info.version = version;
        QCOMPARE(info.isOlderThanSafeRelease(), isWarned);
        QCOMPARE(info.warning().contains(u"Sony ARW"_qs) && info.warning().contains(version),
                 isWarned);
        QCOMPARE(exifToolVersion(Fixtures::exifTool()).version, u"13.59"_qs);
    }

    void missingProgramGivesMessageNamingIt()
    {
        const QString missing = m_dir.filePath(u"no such dir/exiftool"_qs);
        qputenv("TAGSMITH_EXIFTOOL", missing.toLocal8Bit());
        const ExifToolResult oneShot = ExifToolCommand().run({u"-ver"_qs});
        const ExifToolResult persistent = ExifToolProcess().execute({u"-ver"_qs});
        const QString version = exifToolVersion().errorMessage;
        qputenv("TAGSMITH_EXIFTOOL", QByteArray());
        QCOMPARE(oneShot.outcome, Outcome::FailedToStart);
        QCOMPARE(persistent.outcome, Outcome::FailedToStart);
        for (const QString &message : {oneShot.errorMessage, persistent.errorMessage, version})
            QVERIFY2(message.contains(u"could not be started"_qs) &&
                         message.contains(u'"' + missing + u'"'),
                     qPrintable(message));
    }

    void eachCommandKeepsItsOwnStatusAndStreams()
    {
        ExifToolProcess process(fake);
        const struct
        {
            QStringList arguments;
            int exitCode;
            QByteArray out, err;
        } commands[] = {{{u"out=1"_qs, u"err=warn"_qs}, 0, "1\n", "warn\n"},
                        {{u"out=2"_qs, u"err=Error: 2"_qs, u"exit=1"_qs}, 1, "2\n", "Error: 2\n"},
                        {{u"out=3"_qs}, 0, "3\n", ""}};
        for (const auto &command : commands) {
            const ExifToolResult result = process.execute(command.arguments);
            QCOMPARE(result.outcome, Outcome::Finished);
            QCOMPARE(result.exitCode, command.exitCode);
            QCOMPARE(result.standardOutput, command.out);
            QCOMPARE(result.standardError, command.err);
        }
    }

    void failedChildIsReportedAndReplaced_data()
    {
        QTest::addColumn<bool>("persistent");
        QTest::addColumn<QString>("failure");
        QTest::addColumn<Outcome>("outcome");
        QTest::newRow("persistent hang") << true << u"hang"_qs << Outcome::TimedOut;
        QTest::newRow("persistent crash") << true << u"crash"_qs << Outcome::Crashed;
        QTest::newRow("one-shot hang") << false << u"hang"_qs << Outcome::TimedOut;
        QTest::newRow("one-shot crash") << false << u"crash"_qs << Outcome::Crashed;
    }
    void failedChildIsReportedAndReplaced()
    {
        QFETCH(bool, persistent);
        QFETCH(QString, failure);
        const QStringList arguments{u"out=o"_qs, u"err=e"_qs, failure};
        if (!persistent) {
            QCOMPARE(ExifToolCommand(fake).run({u"exit=3"_qs}).exitCode, 3);
            const ExifToolResult result = ExifToolCommand(fake).run(arguments, {}, 1000);
            QTEST(result.outcome, "outcome");
            QVERIFY(result.errorMessage.contains(fake));
            QCOMPARE(result.standardOutput + result.standardError, QByteArray("o\ne\n"));
            return;
        }
        ExifToolProcess process(fake);
        QVERIFY(process.execute({u"out=warm"_qs}).hasSucceeded());
        const qint64 firstPid = process.processId();
        if (failure == u"crash")
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"stopped during a command"_qs));
        QElapsedTimer clock;
        clock.start();
        const ExifToolResult failed = process.execute(arguments, 300);
        QVERIFY(clock.elapsed() < 5000);
        QTEST(failed.outcome, "outcome");
        QVERIFY(failed.errorMessage.contains(fake));
        QCOMPARE(failed.standardOutput, QByteArray("o\n"));
        QVERIFY(!process.isRunning());
        QTRY_VERIFY(isGone(firstPid));

        const ExifToolResult next = process.execute({u"out=after"_qs, u"exit=2"_qs}, 5000);
        QCOMPARE(next.outcome, Outcome::Finished);
        QCOMPARE(next.exitCode, 2);
        QCOMPARE(next.standardOutput, QByteArray("after\n"));
        QVERIFY(process.processId() != firstPid);
    }

    void valuesArriveIntact_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("line breaks") << u"first line\nsecond line\n"_qs;
        QTest::newRow("blanks, backslashes") << u"  C:\\new\\table\\  "_qs;
        QTest::newRow("leading dash") << u"-execute"_qs;
        QTest::newRow("dollar, blank edge") << u" $5\nand @ "_qs;
        QTest::newRow("quotes and hash") << u"#\"quoted\" 'single'"_qs;
        QTest::newRow("beyond a pipe buffer") << u"0123456789abcdef\n"_qs.repeated(10000);
    }
    void valuesArriveIntact()
    {
        QFETCH(QString, value);
        const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()) + u".xmp");
        const ExifToolResult written =
            m_exifTool.execute({u"-o"_qs, path, u"-XMP-dc:Description="_qs + value}, 60000);
        QVERIFY2(written.hasSucceeded(), written.standardError.constData());
        const ExifToolResult read =
            m_exifTool.execute({u"-b"_qs, u"-XMP-dc:Description"_qs, path}, 60000);
        QCOMPARE(QString::fromUtf8(read.standardOutput), value);
    }

    void dashedNameAndFailingCommandAgainstExifTool()
    {
        const QString name = u"-dash $ @ name.xmp"_qs;
        QVERIFY(
            Fixtures::runExifTool({u"-o"_qs, m_dir.filePath(name), u"-XMP-dc:Title=t"_qs}).ok());
        // The persistent process keeps the working directory it was started in.
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_dir.path()));
        ExifToolProcess process(Fixtures::exifTool());
        const ExifToolResult read =
            process.execute({u"-s3"_qs, u"-XMP-dc:Title"_qs, u"--"_qs, name}, 60000);
        const ExifToolResult failing = process.execute({u"-s3"_qs, u"missing.jpg"_qs}, 60000);
        const ExifToolResult after = process.execute({u"-ver"_qs}, 60000);
        QDir::setCurrent(previous);

        QVERIFY2(read.hasSucceeded(), read.standardError.constData());
        QCOMPARE(read.standardOutput, QByteArray("t\n"));
        QCOMPARE(failing.exitCode, 1);
        QVERIFY(failing.standardError.startsWith("Error: File not found - "));
        QVERIFY(after.hasSucceeded());
        QCOMPARE(after.standardOutput + after.standardError, QByteArray("13.59\n"));
        // Arguments read from an empty input must not leave the one-shot run waiting.
        QCOMPARE(ExifToolCommand(Fixtures::exifTool())
                     .run({u"-ver"_qs, u"-@"_qs, u"-"_qs}, {}, 30000)
                     .standardOutput,
                 QByteArray("13.59\n"));
    }

    void childDiesWithItsParent_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("program");
        QTest::newRow("persistent ExifTool") << u"persistent"_qs << Fixtures::exifTool();
        // This child ignores its closed input, so only the parent-death signal can end it.
        QTest::newRow("one-shot hang") << u"oneshot"_qs << fake;
    }
    void childDiesWithItsParent()
    {
        QFETCH(QString, mode);
        QFETCH(QString, program);
        QProcess probe;
        probe.start(QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/pdeathsigprobe"), {mode, program});
        QVERIFY(probe.waitForFinished(60000));
        QCOMPARE(probe.exitStatus(), QProcess::CrashExit);
        bool isNumber = false;
        const qint64 child = probe.readAllStandardOutput().trimmed().toLongLong(&isNumber);
        QVERIFY(isNumber && child > 0);
        QTRY_VERIFY2_WITH_TIMEOUT(isGone(child), "the child outlived its parent by 2 s", 2000);
    }

private:
    QTemporaryDir m_dir;
    ExifToolProcess m_exifTool{Fixtures::exifTool()}; // shared, so it also serves many commands
};

QTEST_GUILESS_MAIN(TestExifToolProcess)
#include "tst_exiftoolprocess.moc"
