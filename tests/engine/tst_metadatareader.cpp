#include "engine/errormessages.h"
#include "engine/metadatareader.h"
#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"

#include "../support/fixtures.h"
#include "../support/readfixtures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <atomic>

#include <sys/stat.h>

namespace {

QString localised(QString number)
{
    return number.replace(u'.', QLocale::system().decimalPoint());
}

bool writeFile(const QString &path, const QByteArray &content, bool executable = false)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           (!executable || file.setPermissions(file.permissions() | QFile::ExeOwner));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A stand-in ExifTool that logs each run's arguments, one a line, then runs `then`.
QByteArray loggingScript(const QString &log, const QByteArray &then)
{
    return "#!/bin/sh\nprintf '%s\\n' \"$@\" '--end--' >> '" + log.toUtf8() + "'\n" + then;
}

} // namespace

class TestMetadataReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        QVERIFY(ExifFieldsController::defaultInstance()->field(u"ExifIFD:FNumber"_qs));
        m_set = ReadFixtures::writeSampleSet(m_dir.path());
        QVERIFY2(m_set.error.isEmpty(), qPrintable(m_set.error));
        const QString wrapper = m_dir.filePath(u"exiftool-logged"_qs);
        QVERIFY(writeFile(wrapper,
                          loggingScript(m_dir.filePath(u"runs.log"_qs),
                                        "exec '" + Fixtures::exifTool().toUtf8() + "' \"$@\"\n"),
                          true));
        for (const QString &path : {m_set.jpeg, m_set.missing, m_set.tiff, m_set.png, m_set.text})
            m_files.append(std::make_shared<ExifFileInfo>(path));
        m_result = MetadataReader(wrapper).readRecords(m_files);
    }

    void oneRunReadsTheWholeBatch()
    {
        QVERIFY2(m_result.ok(), qPrintable(m_result.errorMessage));
        QCOMPARE(QString::fromUtf8(readFile(m_dir.filePath(u"runs.log"_qs))).split(u'\n'),
                 QStringList({u"-v0"_qs, u"-g1"_qs, u"-X"_qs, u"-n"_qs, u"-charset"_qs, u"UTF-8"_qs,
                              u"-api"_qs, u"struct=2"_qs, m_set.jpeg, m_set.tiff, m_set.png,
                              m_set.text, u"--end--"_qs, QString()}));
        QVERIFY(!record(m_set.missing)->isValid());
        QVERIFY(record(m_set.missing)->exifData().isEmpty());
        for (const QString &path : {m_set.jpeg, m_set.tiff, m_set.png, m_set.text}) {
            const ExifFileInfoPtr file = record(path);
            QVERIFY2(file->isValid(), qPrintable(path));
            QCOMPARE(file->originalExifData(), file->exifData());
            QVERIFY(!file->exifData().values().contains(QString()));
        }
    }

    void tagValues_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value"); // null: the key must be absent
        auto row = [](const QString &path, const char *key, const QString &value) {
            QTest::addRow("%s %s", qPrintable(QFileInfo(path).suffix()), key)
                << path << QString::fromUtf8(key) << value;
        };
        const QString jpeg = m_set.jpeg;
        row(jpeg, "System:FileName", u"Holiday café.jpg"_qs);
        row(jpeg, "IPTC:Keywords", u"beach,sea\\, sand,sun"_qs);
        row(jpeg, "ExifIFD:DateTimeOriginal", u"2021:06:15 18:30:00"_qs);
        row(jpeg, "IFD0:Orientation", u"6"_qs); // enumerations stay raw codes
        row(jpeg, "ExifIFD:FNumber", localised(u"2.8"_qs));
        row(jpeg, "GPS:GPSAltitude", localised(u"35.3"_qs));      // rounded to its decimals
        row(jpeg, "Composite:GPSPosition", u"48.8583 2.2945"_qs); // not in the catalogue
        row(jpeg, "IFD0:Artist", QString());
        row(m_set.png, "XMP-dc:Title", u"  "_qs);
        row(m_set.text, "File:FileType", u"TXT"_qs);
    }
    void tagValues()
    {
        QFETCH(QString, path);
        QFETCH(QString, key);
        QFETCH(QString, value);
        const TagDictionary data = record(path)->exifData();
        QCOMPARE(data.contains(key), !value.isNull());
        QCOMPARE(data.value(key), value);
        QCOMPARE(data.value(u"System:FileName"_qs), QFileInfo(path).fileName());
    }

    void pathSpeltDifferentlyFindsNoRecord()
    {
        const auto file = std::make_shared<ExifFileInfo>(m_dir.path() + u"//-dash.png"_qs);
        QVERIFY(MetadataReader().readRecord(file).ok());
        QVERIFY(file->isValid());
        QVERIFY(file->exifData().isEmpty() && file->originalExifData().isEmpty());
    }

    void updateOriginalLeavesCurrentValuesAlone()
    {
        const QString path = m_dir.filePath(u"update.jpg"_qs);
        const QString caption = u"IFD0:ImageDescription"_qs;
        QCOMPARE(Fixtures::makeImage(path, {u"-IFD0:ImageDescription=Before"_qs}), QString());
        const auto file = std::make_shared<ExifFileInfo>(path);
        MetadataReader runner;
        QVERIFY(runner.readRecord(file).ok());
        file->setExifValue(u"IFD0:Artist"_qs, u"Pending edit"_qs);
        QVERIFY(Fixtures::runExifTool(
                    {u"-overwrite_original"_qs, u"-"_qs + caption + u"=After"_qs, path})
                    .ok());

        QVERIFY(runner.rereadOriginal(file).ok());
        QCOMPARE(file->originalExifData().value(caption), u"After"_qs);
        QCOMPARE(file->exifValue(caption), u"Before"_qs);
        QCOMPARE(file->exifValue(u"IFD0:Artist"_qs), u"Pending edit"_qs);
        QVERIFY(runner.readRecord(file).ok()); // a reload replaces both
        QCOMPARE(file->exifValue(caption), u"After"_qs);
        QVERIFY(!file->hasExifValue(u"IFD0:Artist"_qs));

        // Once the file is gone a reload marks it invalid.
        QVERIFY(QFile::remove(path));
        runner.readRecord(file);
        QVERIFY(!file->isValid());
    }

    void unstartableExifToolIsReportedAndLeavesRecordsAlone()
    {
        MetadataReader runner(u"/nonexistent/exiftool"_qs);
        const auto file = std::make_shared<ExifFileInfo>(m_set.jpeg);
        QElapsedTimer timer;
        timer.start();
        const ExifReadResult result = runner.readRecords({file});
        QVERIFY(timer.elapsed() < 10000);
        QVERIFY2(!result.ok() && result.errorMessage.contains(u"/nonexistent/exiftool"_qs),
                 qPrintable(result.errorMessage));
        QVERIFY(!file->isValid() && file->exifData().isEmpty());
        QVERIFY(!runner.rereadOriginal(file).ok());
        QVERIFY(!runner.executeRawCommand_FileInfo({m_set.jpeg}).hasStarted());
    }

    void batchBeyondTheArgumentLimitIsSplit()
    {
        // 7000 paths of about 300 bytes pass Linux's 2 MiB limit for one argument list.
        QTemporaryDir dir;
        const QString log = dir.filePath(u"runs.log"_qs);
        QVERIFY(writeFile(dir.filePath(u"fake"_qs), loggingScript(log, {}), true));
        QList<ExifFileInfoPtr> files;
        QStringList paths;
        for (int i = 0; i < 7000; ++i) {
            paths.append(dir.filePath(QString(250, u'x') + QString::number(i)));
            QVERIFY(writeFile(paths.last(), {}));
            files.append(std::make_shared<ExifFileInfo>(paths.last()));
        }
        const ExifReadResult result = MetadataReader(dir.filePath(u"fake"_qs)).readRecords(files);
        QVERIFY2(result.ok(), qPrintable(result.errorMessage));
        QVERIFY(files.last()->isValid());

        QStringList logged = QString::fromUtf8(readFile(log)).split(u'\n', Qt::SkipEmptyParts);
        const qsizetype runs = logged.removeAll(u"--end--"_qs);
        QVERIFY(runs >= 2 && runs <= 4);
        QCOMPARE(logged.count(u"-X"_qs), runs); // each run has the read options
        for (const QString &option : {u"-v0"_qs, u"-g1"_qs, u"-X"_qs, u"-n"_qs, u"-charset"_qs,
                                      u"UTF-8"_qs, u"-api"_qs, u"struct=2"_qs})
            logged.removeAll(option);
        QCOMPARE(logged, paths);
    }

    // A file ExifTool gets stuck on (here a FIFO, as a stalled network share would do) fails
    // alone once the time is up; the files before and after it are read.
    void stuckFileFailsAloneWithinTheLimit()
    {
        const QString folder = m_dir.filePath(u"stuck"_qs);
        QVERIFY(QDir().mkpath(folder));
        QList<ExifFileInfoPtr> files;
        for (const char *name : {"a.jpg", "b.jpg", "stuck.jpg", "d.jpg", "e.jpg"}) {
            const QString path = folder + u'/' + QString::fromLatin1(name);
            if (QByteArrayView(name) == "stuck.jpg")
                QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0644), 0);
            else
                QCOMPARE(Fixtures::makeImage(path, {u"-Artist=Ann"_qs}), QString());
            files.append(std::make_shared<ExifFileInfo>(path));
        }
        const int limit = MetadataReader::readTimeout();
        MetadataReader::setReadTimeout(2000);
        QElapsedTimer clock;
        clock.start();
        const ExifReadResult result = MetadataReader().readRecords(files);
        const qint64 elapsed = clock.elapsed();
        MetadataReader::setReadTimeout(limit);

        QVERIFY2(result.ok(), qPrintable(result.errorMessage));
        QCOMPARE(result.timedOut, QStringList{folder + u"/stuck.jpg"_qs});
        for (const ExifFileInfoPtr &file : std::as_const(files)) {
            const bool stuck = file->fileName().endsWith(u"stuck.jpg"_qs);
            QCOMPARE(file->isValid(), !stuck);
            QCOMPARE(file->exifValue(u"IFD0:Artist"_qs), stuck ? QString() : u"Ann"_qs);
        }
        QVERIFY2(elapsed < 2000 + 15'000, qPrintable(QString::number(elapsed)));
    }

    void formatNumber_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("formatted");
        const int integer = int(FieldDataType::UInt16), real = int(FieldDataType::UDouble);
        auto row = [](const char *raw, int type, int decimals, const QString &formatted) {
            QTest::newRow(raw) << type << decimals << QString::fromUtf8(raw) << formatted;
        };
        row("1/200", integer, -1, u"1"_qs);
        row("n/a", integer, -1, u"0"_qs);
        row("  12.54 mm", real, 1, localised(u"12.5"_qs));
        row("2.5e-1", real, 1, localised(u"0.3"_qs));
    }
    void formatNumber()
    {
        QFETCH(int, type);
        QFETCH(int, decimals);
        QFETCH(QString, raw);
        ExifField field;
        field.setXmlName(u"Test:Number"_qs);
        field.setDataType(FieldDataType(type));
        field.setDataRepresentation(FieldDataRepresentation::Number);
        field.setDecimals(decimals);
        MetadataReader runner;
        QTEST(runner.formatValue(raw, field), "formatted");
        field.setDataRepresentation(FieldDataRepresentation::Fraction);
        QCOMPARE(runner.formatValue(raw, field), raw);

        // Only lens codes the table knows keep their focal-length part.
        const QString lens = u"Leica:LensType"_qs;
        QCOMPARE(runner.preformatValues({{lens, u"16 1"_qs}}).value(lens), u"16 1"_qs);
        QCOMPARE(runner.preformatValues({{lens, u"33 2"_qs}}).value(lens), u"33"_qs);
    }

    void backupCopiesTheBytes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QString>("backup"); // null: the file is missing
        auto row = [](const char *name, QStringList present, const char *backup) {
            QTest::newRow(name) << QString::fromUtf8(name) << present << QString::fromUtf8(backup);
        };
        row("a.jpg", {u"a.bak.jpg"_qs, u"a.bak1.jpg"_qs}, "a.bak2.jpg");
        row("a.tar.gz", {}, "a.tar.bak.gz");
        row(".hidden", {u".hidden.bak."_qs}, ".hidden.bak1."); // no extension keeps the dot
        row("gone.jpg", {}, nullptr);
    }
    void backupCopiesTheBytes()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, present);
        QFETCH(QString, backup);
        QTemporaryDir dir;
        const QString path = dir.filePath(name);
        const QByteArray bytes("\xff\xd8\0bytes\n", 9);
        for (const QString &taken : present)
            QVERIFY(writeFile(dir.filePath(taken), "taken"));
        if (!backup.isNull())
            QVERIFY(writeFile(path, bytes));
        ErrorMessages errors(path);
        QCOMPARE(MetadataReader::backupExifFile(ExifFileInfo(path), errors), !backup.isNull());
        QCOMPARE(errors.errorsCount(), backup.isNull() ? 1u : 0u);
        if (backup.isNull()) {
            QCOMPARE(errors.messages().first().fileName(), path);
            return;
        }
        QCOMPARE(readFile(dir.filePath(backup)), bytes);
        QCOMPARE(readFile(path), bytes);
    }

    // Only the ungrouped name of unknown maker-note text is looked up.
    void hasError()
    {
        const auto flagged = [](const QString &key) {
            ExifFileInfo file(u"/x.jpg"_qs);
            file.setExifData({{key, u"1"_qs}});
            return file.hasError();
        };
        QVERIFY(flagged(u"ExifIFD:MakerNoteUnknownBinary"_qs));
        QVERIFY(flagged(u"MakerNoteUnknownText"_qs));
        QVERIFY(!flagged(u"ExifIFD:MakerNoteUnknownText"_qs));
    }

    void recordIsNeverSeenHalfReplaced()
    {
        // Both keys always change together; a reader must never see them differ.
        ExifFileInfo file(u"/x.jpg"_qs);
        std::atomic<bool> stop = false;
        std::atomic<int> torn = 0;
        QScopedPointer<QThread> reader(QThread::create([&] {
            while (!stop) {
                const TagDictionary data = file.exifData();
                torn += data.value(u"A"_qs) != data.value(u"B"_qs);
                file.hasError();
            }
        }));
        reader->start();
        for (int i = 0; i < 20000; ++i)
            file.setReadData({{u"A"_qs, QString::number(i)}, {u"B"_qs, QString::number(i)}});
        stop = true;
        reader->wait();
        QCOMPARE(torn.load(), 0);
    }

private:
    ExifFileInfoPtr record(const QString &path) const
    {
        for (const ExifFileInfoPtr &file : m_files)
            if (file->fileName() == path)
                return file;
        return nullptr;
    }

    QTemporaryDir m_dir;
    ReadFixtures::SampleSet m_set;
    QList<ExifFileInfoPtr> m_files;
    ExifReadResult m_result;
};

QTEST_GUILESS_MAIN(TestMetadataReader)
#include "tst_metadatareader.moc"
