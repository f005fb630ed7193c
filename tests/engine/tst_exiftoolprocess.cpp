#include "engine/exiftoolcommand.h"
#include "engine/exiftoolprocess.h"
#include "engine/exiftoolversion.h"

#include "../support/fixtures.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

QString fakeExifTool()
{
    return QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/fakeexiftool");
}

// A process is gone once its id is free or it is a zombie waiting for its new parent to reap it.
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
    void bundledExifToolIsThePinnedRelease();
    void oldReleasesGetTheSonyWarning_data();
    void oldReleasesGetTheSonyWarning();
    void missingProgramGivesMessageNamingIt_data();
    void missingProgramGivesMessageNamingIt();
    void eachCommandKeepsItsOwnStatusAndStreams();
    void hungCommandTimesOutAndNextCommandWorks();
    void crashMidCommandIsReportedAndNextCommandWorks();
    void valuesArriveIntact_data();
    void valuesArriveIntact();
    void fileNamesAfterEndOfOptionsArriveIntact();
    void failingCommandBetweenGoodOnesAgainstExifTool();
    void persistentAndOneShotReadAlike();
    void oneShotRunReadsAnEmptyInput();
    void oneShotOutcomes_data();
    void oneShotOutcomes();
    void childDiesWithItsParent_data();
    void childDiesWithItsParent();

private:
    QTemporaryDir m_dir;
    ExifToolProcess m_exifTool{Fixtures::exifTool()}; // shared, so it also serves many commands
};

void TestExifToolProcess::bundledExifToolIsThePinnedRelease()
{
    const ExifToolVersion version = exifToolVersion(Fixtures::exifTool());
    QCOMPARE(version.version, u"13.59"_qs);
    QVERIFY(version.errorMessage.isEmpty());
    QVERIFY(!version.isOlderThanSafeRelease());
    QVERIFY(version.warning().isEmpty());
}

void TestExifToolProcess::oldReleasesGetTheSonyWarning_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("isWarned");

    QTest::newRow("Debian bookworm") << u"12.57"_qs << true;
    QTest::newRow("last unsafe") << u"12.74"_qs << true;
    QTest::newRow("first safe") << u"12.75"_qs << false;
    QTest::newRow("old major, high minor") << u"11.99"_qs << true;
    QTest::newRow("not a version") << u"abc"_qs << false;
}

void TestExifToolProcess::oldReleasesGetTheSonyWarning()
{
    QFETCH(QString, version);
    QFETCH(bool, isWarned);

    ExifToolVersion info;
    info.version = version;
    QCOMPARE(info.isOlderThanSafeRelease(), isWarned);
    QCOMPARE(info.warning().contains(u"Sony ARW"_qs), isWarned);
    QCOMPARE(info.warning().contains(version), isWarned);
}

void TestExifToolProcess::missingProgramGivesMessageNamingIt_data()
{
    QTest::addColumn<QString>("runner");
    QTest::newRow("one-shot") << u"one-shot"_qs;
    QTest::newRow("persistent") << u"persistent"_qs;
    QTest::newRow("version") << u"version"_qs;
}

void TestExifToolProcess::missingProgramGivesMessageNamingIt()
{
    QFETCH(QString, runner);
    const QString missing = m_dir.filePath(u"no such dir/exiftool"_qs);
    qputenv("TAGSMITH_EXIFTOOL", missing.toLocal8Bit());
    QString message;
    if (runner == u"version") {
        const ExifToolVersion version = exifToolVersion();
        QVERIFY(!version.isKnown());
        message = version.errorMessage;
    } else {
        const ExifToolResult result = runner == u"one-shot"
                                          ? ExifToolCommand().run({u"-ver"_qs})
                                          : ExifToolProcess().execute({u"-ver"_qs});
        QCOMPARE(result.outcome, ExifToolResult::Outcome::FailedToStart);
        message = result.errorMessage;
    }
    qputenv("TAGSMITH_EXIFTOOL", QByteArray());
    QVERIFY2(message.contains(u"could not be started"_qs), qPrintable(message));
    QVERIFY2(message.contains(u'"' + missing + u'"'), qPrintable(message));
}

void TestExifToolProcess::eachCommandKeepsItsOwnStatusAndStreams()
{
    ExifToolProcess process(fakeExifTool());
    const ExifToolResult first = process.execute({u"out=one"_qs, u"err=warn one"_qs});
    const ExifToolResult failing =
        process.execute({u"out=two"_qs, u"err=Error: two"_qs, u"exit=1"_qs});
    const ExifToolResult last = process.execute({u"out=three"_qs});

    QCOMPARE(first.outcome, ExifToolResult::Outcome::Finished);
    QCOMPARE(first.exitCode, 0);
    QCOMPARE(first.standardOutput, QByteArray("one\n"));
    QCOMPARE(first.standardError, QByteArray("warn one\n"));
    QCOMPARE(failing.exitCode, 1);
    QCOMPARE(failing.standardOutput, QByteArray("two\n"));
    QCOMPARE(failing.standardError, QByteArray("Error: two\n"));
    QCOMPARE(last.exitCode, 0);
    QCOMPARE(last.standardOutput, QByteArray("three\n"));
    QCOMPARE(last.standardError, QByteArray());
}

void TestExifToolProcess::hungCommandTimesOutAndNextCommandWorks()
{
    ExifToolProcess process(fakeExifTool());
    QVERIFY(process.execute({u"out=warm"_qs}).hasSucceeded());
    const qint64 hungPid = process.processId();

    QElapsedTimer clock;
    clock.start();
    const ExifToolResult hung = process.execute({u"out=before"_qs, u"hang"_qs}, 300);
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(hung.outcome, ExifToolResult::Outcome::TimedOut);
    QVERIFY(hung.errorMessage.contains(fakeExifTool()));
    QCOMPARE(hung.standardOutput, QByteArray("before\n"));
    QVERIFY(!process.isRunning());
    QTRY_VERIFY(isGone(hungPid));

    const ExifToolResult next = process.execute({u"out=after"_qs}, 5000);
    QVERIFY(next.hasSucceeded());
    QCOMPARE(next.standardOutput, QByteArray("after\n"));
}

void TestExifToolProcess::crashMidCommandIsReportedAndNextCommandWorks()
{
    ExifToolProcess process(fakeExifTool());
    QVERIFY(process.execute({u"out=warm"_qs}).hasSucceeded());
    const qint64 firstPid = process.processId();

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"stopped during a command"_qs));
    const ExifToolResult crashed = process.execute({u"out=partial"_qs, u"crash"_qs}, 10000);
    QCOMPARE(crashed.outcome, ExifToolResult::Outcome::Crashed);
    QVERIFY(crashed.errorMessage.contains(fakeExifTool()));
    QCOMPARE(crashed.standardOutput, QByteArray("partial\n"));

    const ExifToolResult next = process.execute({u"out=again"_qs, u"exit=2"_qs}, 10000);
    QCOMPARE(next.outcome, ExifToolResult::Outcome::Finished);
    QCOMPARE(next.exitCode, 2);
    QCOMPARE(next.standardOutput, QByteArray("again\n"));
    QVERIFY(process.processId() != firstPid);
}

void TestExifToolProcess::valuesArriveIntact_data()
{
    QTest::addColumn<QString>("value");

    QTest::newRow("line breaks") << u"first line\nsecond line\n"_qs;
    QTest::newRow("blank edges") << u"  padded  "_qs;
    QTest::newRow("backslashes") << u"C:\\new\\table\\"_qs;
    QTest::newRow("leading dash") << u"-execute"_qs;
    QTest::newRow("unicode") << u"Zoë, 東京, Ελλάδα"_qs;
    QTest::newRow("dollar and at") << u"$5 for me@example.org, ${status}"_qs;
    QTest::newRow("dollar with blank edge") << u" $5\nand @ "_qs;
    // Larger than a pipe's buffer both ways.
    QTest::newRow("long") << QString(u"0123456789abcdef\n"_qs).repeated(10000);
    QTest::newRow("quotes and hash") << u"#\"quoted\" 'single'"_qs;
}

void TestExifToolProcess::valuesArriveIntact()
{
    QFETCH(QString, value);
    const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()) + u".xmp");

    const ExifToolResult written =
        m_exifTool.execute({u"-o"_qs, path, u"-XMP-dc:Description="_qs + value}, 60000);
    QVERIFY2(written.hasSucceeded(), written.standardError.constData());
    const ExifToolResult read =
        m_exifTool.execute({u"-b"_qs, u"-XMP-dc:Description"_qs, path}, 60000);
    QVERIFY(read.hasSucceeded());
    QCOMPARE(QString::fromUtf8(read.standardOutput), value);
}

void TestExifToolProcess::fileNamesAfterEndOfOptionsArriveIntact()
{
    const QString name = u"-dash $ @ name.xmp"_qs;
    QVERIFY(Fixtures::runExifTool({u"-o"_qs, m_dir.filePath(name), u"-XMP-dc:Title=t"_qs}).ok());

    // The persistent process keeps the working directory it was started in.
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_dir.path()));
    ExifToolProcess process(Fixtures::exifTool());
    const ExifToolResult read =
        process.execute({u"-s3"_qs, u"-XMP-dc:Title"_qs, u"--"_qs, name}, 60000);
    const ExifToolResult next = process.execute({u"-ver"_qs}, 60000);
    QDir::setCurrent(previous);

    QVERIFY2(read.hasSucceeded(), read.standardError.constData());
    QCOMPARE(read.standardOutput, QByteArray("t\n"));
    QVERIFY(next.hasSucceeded());
}

void TestExifToolProcess::failingCommandBetweenGoodOnesAgainstExifTool()
{
    ExifToolProcess process(Fixtures::exifTool());
    const ExifToolResult before = process.execute({u"-ver"_qs}, 60000);
    const ExifToolResult failing =
        process.execute({u"-s3"_qs, m_dir.filePath(u"missing.jpg"_qs)}, 60000);
    const ExifToolResult after = process.execute({u"-ver"_qs}, 60000);

    QVERIFY(before.hasSucceeded());
    QCOMPARE(before.standardOutput, QByteArray("13.59\n"));
    QCOMPARE(failing.outcome, ExifToolResult::Outcome::Finished);
    QCOMPARE(failing.exitCode, 1);
    QVERIFY(failing.standardError.startsWith("Error: File not found - "));
    QVERIFY(after.hasSucceeded());
    QCOMPARE(after.standardOutput, QByteArray("13.59\n"));
    QCOMPARE(after.standardError, QByteArray());
}

void TestExifToolProcess::persistentAndOneShotReadAlike()
{
    const QString image = m_dir.filePath(u"alike.jpg"_qs);
    QCOMPARE(Fixtures::makeImage(image, {u"-IFD0:Artist=Ann\nLee"_qs,
                                         u"-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"_qs,
                                         u"-XMP-dc:Subject=a, b"_qs}),
             QString());
    const QStringList arguments{u"-X"_qs,   u"-g1"_qs,       u"-n"_qs,       u"-charset"_qs,
                                u"UTF8"_qs, u"-EXIF:all"_qs, u"-XMP:all"_qs, u"-File:ImageWidth"_qs,
                                image};

    ExifToolProcess process(Fixtures::exifTool());
    const ExifToolResult persistent = process.execute(arguments, 60000);
    const ExifToolResult oneShot = ExifToolCommand(Fixtures::exifTool()).run(arguments, {}, 60000);
    QVERIFY(persistent.hasSucceeded());
    QVERIFY(oneShot.hasSucceeded());
    QVERIFY(persistent.standardOutput.contains("Ann&#xa;Lee") ||
            persistent.standardOutput.contains("Ann\nLee"));
    QCOMPARE(persistent.standardOutput, oneShot.standardOutput);
    QCOMPARE(persistent.standardError, oneShot.standardError);
}

void TestExifToolProcess::oneShotRunReadsAnEmptyInput()
{
    const ExifToolResult result =
        ExifToolCommand(Fixtures::exifTool()).run({u"-ver"_qs, u"-@"_qs, u"-"_qs}, {}, 30000);
    QCOMPARE(result.outcome, ExifToolResult::Outcome::Finished);
    QCOMPARE(result.standardOutput, QByteArray("13.59\n"));
}

void TestExifToolProcess::oneShotOutcomes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<ExifToolResult::Outcome>("outcome");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("standardOutput");
    QTest::addColumn<QByteArray>("standardError");

    QTest::newRow("failed") << QStringList{u"out=o"_qs, u"err=Error: e"_qs, u"exit=1"_qs}
                            << ExifToolResult::Outcome::Finished << 1 << QByteArray("o\n")
                            << QByteArray("Error: e\n");
    QTest::newRow("hung") << QStringList{u"out=o"_qs, u"hang"_qs}
                          << ExifToolResult::Outcome::TimedOut << -1 << QByteArray("o\n")
                          << QByteArray();
    QTest::newRow("crashed") << QStringList{u"err=e"_qs, u"crash"_qs}
                             << ExifToolResult::Outcome::Crashed << -1 << QByteArray()
                             << QByteArray("e\n");
}

void TestExifToolProcess::oneShotOutcomes()
{
    QFETCH(QStringList, arguments);
    QFETCH(ExifToolResult::Outcome, outcome);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, standardOutput);
    QFETCH(QByteArray, standardError);

    const ExifToolResult result = ExifToolCommand(fakeExifTool()).run(arguments, {}, 1000);
    QCOMPARE(result.outcome, outcome);
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(result.standardOutput, standardOutput);
    QCOMPARE(result.standardError, standardError);
    QCOMPARE(result.errorMessage.contains(fakeExifTool()),
             outcome != ExifToolResult::Outcome::Finished);
}

void TestExifToolProcess::childDiesWithItsParent_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("program");

    QTest::newRow("persistent ExifTool") << u"persistent"_qs << Fixtures::exifTool();
    // This child ignores its closed input, so only the parent-death signal can end it.
    QTest::newRow("one-shot child that hangs") << u"oneshot"_qs << fakeExifTool();
}

void TestExifToolProcess::childDiesWithItsParent()
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

    QDeadlineTimer twoSeconds(2000);
    while (!isGone(child) && !twoSeconds.hasExpired())
        QThread::msleep(20);
    QVERIFY2(isGone(child), "the ExifTool child outlived its parent by two seconds");
}

QTEST_GUILESS_MAIN(TestExifToolProcess)
#include "tst_exiftoolprocess.moc"
