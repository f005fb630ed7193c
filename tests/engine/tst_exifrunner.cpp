#include "engine/errormessages.h"
#include "engine/exifrunner.h"
#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"

#include "../support/fixtures.h"
#include "../support/readfixtures.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <atomic>

namespace {

QString localised(QString number)
{
    return number.replace(QLatin1Char('.'), QLocale::system().decimalPoint());
}

} // namespace

class TestExifRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void oneRunWithTheReadCommandForTheWholeBatch();
    void missingFileIsNotValidAndOthersAre();
    void tagValues_data();
    void tagValues();
    void pathSpeltDifferentlyFindsNoRecord();
    void updateOriginalLeavesCurrentValuesAlone();
    void unstartableExifToolIsReportedAndLeavesRecordsAlone();
    void batchBeyondTheArgumentLimitIsSplit();

    void formatNumber_data();
    void formatNumber();
    void leicaLensType_data();
    void leicaLensType();
    void backupName_data();
    void backupName();
    void backupCopiesTheBytes();
    void hasError_data();
    void hasError();
    void recordIsNeverSeenHalfReplaced();

private:
    ExifFileInfoPtr record(const QString &path) const;

    QTemporaryDir m_dir;
    ReadFixtures::SampleSet m_set;
    QList<ExifFileInfoPtr> m_files;
    QString m_argumentLog;
    ExifReadResult m_result;
};

void TestExifRunner::initTestCase()
{
    QVERIFY(m_dir.isValid());
    ExifFieldsController::defaultInstance()->initializeConfigurations();
    QVERIFY(ExifFieldsController::defaultInstance()->field(QStringLiteral("ExifIFD:FNumber")));
    m_set = ReadFixtures::writeSampleSet(m_dir.path());
    QVERIFY2(m_set.error.isEmpty(), qPrintable(m_set.error));

    // A stand-in that records each run's arguments, one per line, then runs the real ExifTool.
    m_argumentLog = m_dir.filePath(QStringLiteral("runs.log"));
    const QString wrapper = m_dir.filePath(QStringLiteral("exiftool-logged"));
    QFile script(wrapper);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nprintf '%s\\n' \"$@\" '--end--' >> '" + m_argumentLog.toUtf8() +
                 "'\nexec '" + Fixtures::exifTool().toUtf8() + "' \"$@\"\n");
    script.close();
    QVERIFY(script.setPermissions(script.permissions() | QFile::ExeOwner));

    for (const QString &path : {m_set.jpeg, m_set.missing, m_set.tiff, m_set.png, m_set.text})
        m_files.append(std::make_shared<ExifFileInfo>(path));
    ExifRunner runner(wrapper);
    m_result = runner.loadExifInformations(m_files);
}

ExifFileInfoPtr TestExifRunner::record(const QString &path) const
{
    for (const ExifFileInfoPtr &file : m_files)
        if (file->fileName() == path)
            return file;
    return nullptr;
}

void TestExifRunner::oneRunWithTheReadCommandForTheWholeBatch()
{
    QVERIFY2(m_result.ok(), qPrintable(m_result.errorMessage));
    QFile log(m_argumentLog);
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(log.readAll()).split(QLatin1Char('\n'));
    const QStringList expected{QStringLiteral("-g1"),
                               QStringLiteral("-X"),
                               QStringLiteral("-n"),
                               QStringLiteral("-charset"),
                               QStringLiteral("UTF-8"),
                               m_set.jpeg,
                               m_set.tiff,
                               m_set.png,
                               m_set.text,
                               QStringLiteral("--end--"),
                               QString()};
    QCOMPARE(lines, expected);
}

void TestExifRunner::missingFileIsNotValidAndOthersAre()
{
    QVERIFY(!record(m_set.missing)->isValid());
    QVERIFY(record(m_set.missing)->exifData().isEmpty());
    for (const QString &path : {m_set.jpeg, m_set.tiff, m_set.png, m_set.text}) {
        const ExifFileInfoPtr file = record(path);
        QVERIFY2(file->isValid(), qPrintable(path));
        QCOMPARE(file->originalExifData(), file->exifData());
        for (const QString &value : file->exifData())
            QVERIFY(!value.isEmpty());
    }
}

void TestExifRunner::tagValues_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value"); // null: the key must be absent

    const QString jpeg = m_set.jpeg;
    QTest::newRow("file name with unicode") << jpeg << "System:FileName"
                                            << "Holiday caf\u00e9.jpg";
    QTest::newRow("directory") << jpeg << "System:Directory" << m_dir.path();
    QTest::newRow("caption") << jpeg << "IFD0:ImageDescription"
                             << "Sunset over the bay";
    QTest::newRow("iptc list with comma") << jpeg << "IPTC:Keywords"
                                          << "beach,sea\\, sand,sun";
    QTest::newRow("xmp list with comma") << jpeg << "XMP-dc:Subject"
                                         << "beach,sea\\, sand";
    QTest::newRow("iptc utf-8") << jpeg << "IPTC:City"
                                << "Z\u00fcrich";
    QTest::newRow("date") << jpeg << "ExifIFD:DateTimeOriginal"
                          << "2021:06:15 18:30:00";
    QTest::newRow("enum stays a raw code") << jpeg << "IFD0:Orientation"
                                           << "6";
    QTest::newRow("integer number") << jpeg << "ExifIFD:ISO"
                                    << "400";
    QTest::newRow("number with decimals")
        << jpeg << "ExifIFD:FNumber" << localised(QStringLiteral("2.8"));
    QTest::newRow("number rounded to its decimals")
        << jpeg << "GPS:GPSAltitude" << localised(QStringLiteral("35.3"));
    QTest::newRow("latitude is not a number field") << jpeg << "GPS:GPSLatitude"
                                                    << "48.8583";
    QTest::newRow("hemisphere") << jpeg << "GPS:GPSLongitudeRef"
                                << "E";
    QTest::newRow("tag not in the catalogue") << jpeg << "Composite:GPSPosition"
                                              << "48.8583 2.2945";
    QTest::newRow("tag the file lacks") << jpeg << "IFD0:Artist" << QString();

    QTest::newRow("apostrophe name") << m_set.tiff << "System:FileName"
                                     << "O'Brien scan.tif";
    QTest::newRow("tiff make") << m_set.tiff << "IFD0:Make"
                               << "Canon";
    QTest::newRow("single-item list") << m_set.tiff << "XMP-dc:Subject"
                                      << "scan";
    QTest::newRow("tiff date") << m_set.tiff << "ExifIFD:CreateDate"
                               << "1999:12:31 23:59:59";

    QTest::newRow("leading dash name") << m_set.png << "System:FileName"
                                       << "-dash.png";
    QTest::newRow("png xmp") << m_set.png << "XMP-dc:Subject"
                             << "only";
    QTest::newRow("only spaces kept") << m_set.png << "XMP-dc:Title"
                                      << "  ";

    QTest::newRow("not an image") << m_set.text << "File:FileType"
                                  << "TXT";
}

void TestExifRunner::tagValues()
{
    QFETCH(QString, path);
    QFETCH(QString, key);
    QFETCH(QString, value);
    const TagDictionary data = record(path)->exifData();
    if (value.isNull())
        QVERIFY2(!data.contains(key), qPrintable(data.value(key)));
    else
        QCOMPARE(data.value(key), value);
}

void TestExifRunner::pathSpeltDifferentlyFindsNoRecord()
{
    const QString doubled = m_dir.path() + QStringLiteral("//-dash.png");
    const ExifFileInfoPtr file = std::make_shared<ExifFileInfo>(doubled);
    ExifRunner runner;
    QVERIFY(runner.loadExifInformation(file).ok());
    QVERIFY(file->isValid());
    QVERIFY(file->exifData().isEmpty());
    QVERIFY(file->originalExifData().isEmpty());
}

void TestExifRunner::updateOriginalLeavesCurrentValuesAlone()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("photo.jpg"));
    QCOMPARE(Fixtures::makeImage(path, {QStringLiteral("-IFD0:ImageDescription=Before")}),
             QString());
    const ExifFileInfoPtr file = std::make_shared<ExifFileInfo>(path);
    ExifRunner runner;
    QVERIFY(runner.loadExifInformation(file).ok());
    file->setExifValue(QStringLiteral("IFD0:Artist"), QStringLiteral("Pending edit"));
    QVERIFY(Fixtures::runExifTool({QStringLiteral("-overwrite_original"),
                                   QStringLiteral("-IFD0:ImageDescription=After"), path})
                .ok());

    QVERIFY(runner.updateOriginalExifInformation(file).ok());
    QCOMPARE(file->originalExifData().value(QStringLiteral("IFD0:ImageDescription")),
             QStringLiteral("After"));
    QCOMPARE(file->exifData().value(QStringLiteral("IFD0:ImageDescription")),
             QStringLiteral("Before"));
    QCOMPARE(file->exifValue(QStringLiteral("IFD0:Artist")), QStringLiteral("Pending edit"));

    // A reload replaces both.
    QVERIFY(runner.loadExifInformation(file).ok());
    QCOMPARE(file->exifValue(QStringLiteral("IFD0:ImageDescription")), QStringLiteral("After"));
    QVERIFY(!file->hasExifValue(QStringLiteral("IFD0:Artist")));

    // Once the file is gone nothing changes at all.
    const TagDictionary original = file->originalExifData();
    QVERIFY(QFile::remove(path));
    QVERIFY(runner.updateOriginalExifInformation(file).ok());
    QCOMPARE(file->originalExifData(), original);
    QVERIFY(file->isValid());
    runner.loadExifInformation(file);
    QVERIFY(!file->isValid());
}

void TestExifRunner::unstartableExifToolIsReportedAndLeavesRecordsAlone()
{
    const QByteArray saved = qgetenv("TAGSMITH_EXIFTOOL");
    qputenv("TAGSMITH_EXIFTOOL", "/nonexistent/exiftool");
    ExifRunner runner;
    qputenv("TAGSMITH_EXIFTOOL", saved);

    const ExifFileInfoPtr file = std::make_shared<ExifFileInfo>(m_set.jpeg);
    QElapsedTimer timer;
    timer.start();
    const ExifReadResult result = runner.loadExifInformations({file});
    QVERIFY(timer.elapsed() < 10000);
    QVERIFY(!result.ok());
    QVERIFY2(result.errorMessage.contains(QStringLiteral("/nonexistent/exiftool")),
             qPrintable(result.errorMessage));
    QVERIFY(!file->isValid());
    QVERIFY(file->exifData().isEmpty());

    QVERIFY(!runner.updateOriginalExifInformation(file).ok());
    QVERIFY(!runner.executeRawCommand_FileInfo({m_set.jpeg}).hasStarted());
}

void TestExifRunner::batchBeyondTheArgumentLimitIsSplit()
{
    // 7000 paths of about 300 bytes pass Linux's 2 MiB limit for one argument list.
    QTemporaryDir dir;
    const QString log = dir.filePath(QStringLiteral("runs.log"));
    const QString fake = dir.filePath(QStringLiteral("fake-exiftool"));
    QFile script(fake);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nshift 5\nprintf '%s\\n' \"$@\" '--end--' >> '" + log.toUtf8() + "'\n");
    script.close();
    QVERIFY(script.setPermissions(script.permissions() | QFile::ExeOwner));

    const QString stem = QString(250, QLatin1Char('x'));
    QList<ExifFileInfoPtr> files;
    QStringList paths;
    for (int i = 0; i < 7000; ++i) {
        paths.append(dir.filePath(stem + QString::number(i)));
        QFile file(paths.last());
        QVERIFY(file.open(QIODevice::WriteOnly));
        files.append(std::make_shared<ExifFileInfo>(paths.last()));
    }
    ExifRunner runner(fake);
    const ExifReadResult result = runner.loadExifInformations(files);
    QVERIFY2(result.ok(), qPrintable(result.errorMessage));
    QVERIFY(files.last()->isValid());

    QFile logged(log);
    QVERIFY(logged.open(QIODevice::ReadOnly));
    QStringList lines = QString::fromUtf8(logged.readAll()).split(QLatin1Char('\n'));
    const qsizetype runs = lines.removeAll(QStringLiteral("--end--"));
    QVERIFY(runs >= 2 && runs <= 4);
    lines.removeAll(QString());
    QCOMPARE(lines, paths);
}

void TestExifRunner::formatNumber_data()
{
    QTest::addColumn<int>("dataType");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("formatted");

    const int uint16 = int(FieldDataType::UInt16);
    const int udouble = int(FieldDataType::UDouble);
    QTest::newRow("fraction reads its numerator") << uint16 << -1 << "1/200"
                                                  << "1";
    QTest::newRow("empty stays empty") << uint16 << -1 << ""
                                       << "";
    QTest::newRow("no number is zero") << uint16 << -1 << "n/a"
                                       << "0";
    QTest::newRow("trailing unit ignored")
        << udouble << 1 << "12.54 mm" << localised(QStringLiteral("12.5"));
    QTest::newRow("leading blanks skipped")
        << udouble << 2 << "  0.5" << localised(QStringLiteral("0.5"));
    QTest::newRow("full stop whatever the locale")
        << udouble << 3 << "3.125" << localised(QStringLiteral("3.125"));
    QTest::newRow("exponent") << udouble << 1 << "2.5e-1" << localised(QStringLiteral("0.3"));
    QTest::newRow("integer field drops the fraction") << uint16 << -1 << "7.0"
                                                      << "7";
}

void TestExifRunner::formatNumber()
{
    QFETCH(int, dataType);
    QFETCH(int, decimals);
    QFETCH(QString, raw);
    QFETCH(QString, formatted);
    ExifField field;
    field.setXmlName(QStringLiteral("Test:Number"));
    field.setDataType(FieldDataType(dataType));
    field.setDataRepresentation(FieldDataRepresentation::Number);
    field.setDecimals(decimals);
    ExifRunner runner;
    QCOMPARE(runner.formatValue(raw, field), formatted);

    field.setDataRepresentation(FieldDataRepresentation::Fraction);
    QCOMPARE(runner.formatValue(raw, field), raw);
}

void TestExifRunner::leicaLensType_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("known code with focal length stays") << "16 1"
                                                        << "16 1";
    QTest::newRow("unknown pair loses its second part") << "33 2"
                                                        << "33";
    QTest::newRow("single code stays") << "6"
                                       << "6";
}

void TestExifRunner::leicaLensType()
{
    QFETCH(QString, value);
    QFETCH(QString, expected);
    ExifRunner runner;
    const TagDictionary formatted =
        runner.preformatValues({{QStringLiteral("Leica:LensType"), value}});
    QCOMPARE(formatted.value(QStringLiteral("Leica:LensType")), expected);
}

void TestExifRunner::backupName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first") << "IMG_1.jpg" << QStringList{} << "IMG_1.bak.jpg";
    QTest::newRow("numbered after taken ones")
        << "a.jpg" << QStringList{QStringLiteral("a.bak.jpg"), QStringLiteral("a.bak1.jpg")}
        << "a.bak2.jpg";
    QTest::newRow("no extension keeps the dot") << "raw" << QStringList{} << "raw.bak.";
    QTest::newRow("last extension only") << "a.tar.gz" << QStringList{} << "a.tar.bak.gz";
    QTest::newRow("hidden file") << ".hidden" << QStringList{QStringLiteral(".hidden.bak.")}
                                 << ".hidden.bak1.";
}

void TestExifRunner::backupName()
{
    QFETCH(QString, name);
    QFETCH(QStringList, present);
    QFETCH(QString, expected);
    QTemporaryDir dir;
    for (const QString &taken : present) {
        QFile file(dir.filePath(taken));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(ExifFileInfo(dir.filePath(name)).backupFileName(), dir.filePath(expected));
}

void TestExifRunner::backupCopiesTheBytes()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.jpg"));
    QCOMPARE(Fixtures::makeImage(path), QString());
    QFile(dir.filePath(QStringLiteral("a.bak.jpg"))).open(QIODevice::WriteOnly);
    ErrorMessages errors(path);
    QVERIFY(ExifRunner::backupExifFile(ExifFileInfo(path), errors));
    QCOMPARE(errors.count(), 0u);
    QFile original(path);
    QFile copy(dir.filePath(QStringLiteral("a.bak1.jpg")));
    QVERIFY(original.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), original.readAll());

    const QString gone = dir.filePath(QStringLiteral("gone.jpg"));
    ErrorMessages failed(gone);
    QVERIFY(!ExifRunner::backupExifFile(ExifFileInfo(gone), failed));
    QCOMPARE(failed.errorsCount(), 1u);
    QCOMPARE(failed.messages().first().fileName(), gone);
}

void TestExifRunner::hasError_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("hasError");
    QTest::newRow("unknown binary maker notes") << "ExifIFD:MakerNoteUnknownBinary" << true;
    QTest::newRow("ungrouped unknown text") << "MakerNoteUnknownText" << true;
    QTest::newRow("grouped unknown text is not looked up")
        << "ExifIFD:MakerNoteUnknownText" << false;
    QTest::newRow("ordinary tag") << "IFD0:Make" << false;
}

void TestExifRunner::hasError()
{
    QFETCH(QString, key);
    QFETCH(bool, hasError);
    ExifFileInfo file(QStringLiteral("/x.jpg"));
    file.setExifData({{key, QStringLiteral("1")}});
    QCOMPARE(file.hasError(), hasError);
}

void TestExifRunner::recordIsNeverSeenHalfReplaced()
{
    // Both keys always change together; a reader must never see them differ.
    ExifFileInfo file(QStringLiteral("/x.jpg"));
    std::atomic<bool> stop = false;
    std::atomic<int> torn = 0;
    QThread *reader = QThread::create([&] {
        while (!stop) {
            const TagDictionary data = file.exifData();
            if (data.value(QStringLiteral("A")) != data.value(QStringLiteral("B")))
                ++torn;
            file.hasError();
        }
    });
    reader->start();
    for (int i = 0; i < 20000; ++i) {
        const QString value = QString::number(i);
        file.setReadData({{QStringLiteral("A"), value}, {QStringLiteral("B"), value}});
    }
    stop = true;
    reader->wait();
    delete reader;
    QCOMPARE(torn.load(), 0);
}

QTEST_GUILESS_MAIN(TestExifRunner)
#include "tst_exifrunner.moc"
