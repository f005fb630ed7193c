#include "catalogue/exiffieldscontroller.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Caption = u"Fjord at dawn \u2014 \u00c5lesund \u6771\u4eac"_qs;
const QString Date = u"2021:02:03 04:05:06"_qs;

// Runs a command-line encoder or decoder; an empty text when it worked.
QString runTool(const QStringList &command)
{
    QProcess process;
    process.start(command.first(), command.mid(1));
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return command.join(u' ') + u": "_qs +
               QString::fromLocal8Bit(process.readAllStandardError());
    return {};
}

QJsonObject readWithExifTool(const QString &path)
{
    const Fixtures::ToolRun run = Fixtures::runExifTool(
        {u"-j"_qs, u"-G1"_qs, u"-charset"_qs, u"UTF-8"_qs, u"-XMP-dc:Description"_qs,
         u"-ExifIFD:DateTimeOriginal"_qs, u"--"_qs, path});
    return QJsonDocument::fromJson(run.out)[0].toObject();
}

} // namespace

// The formats of today's phones and web exports, edited and saved end to end, and checked
// afterwards with ExifTool and with the format's own decoder.
class TestModernFormats : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_source;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        m_source = m_dir.filePath(u"source.png"_qs);
        const QString error = Fixtures::makeImage(m_source);
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }

    void editedCaptionAndDateAreSaved_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("encode"); // @in, @out stand for the paths
        QTest::addColumn<QStringList>("decode");
        QTest::addColumn<QStringList>("prepare"); // ExifTool arguments run after encoding

        const auto split = [](const char *command) {
            return QString::fromLatin1(command).split(u' ');
        };
        const QStringList heif = split("heif-convert @out @png");
        const QStringList webp = split("dwebp -quiet @out -o @png");
        const QStringList jxl = split("djxl @out @png");
        // clang-format off
        QTest::newRow("HEIC") << u"photo.heic"_qs << split("heif-enc -e x265 -q 60 -o @out @in") << heif << QStringList();
        QTest::newRow("AVIF") << u"photo.avif"_qs << split("heif-enc -e aom -q 60 -o @out @in") << heif << QStringList();
        QTest::newRow("WebP") << u"photo.webp"_qs << split("cwebp -quiet @in -o @out") << webp << QStringList();
        QTest::newRow("WebP, extended") << u"photo2.webp"_qs << split("cwebp -quiet @in -o @out") << webp
                                        << QStringList{u"-XMP-dc:Title=Old"_qs};
        QTest::newRow("JXL container") << u"photo.jxl"_qs << split("cjxl --container=1 @in @out") << jxl << QStringList();
        // What cjxl writes unless asked otherwise, and so what most JPEG XL files are.
        QTest::newRow("JXL codestream") << u"bare.jxl"_qs << split("cjxl @in @out") << jxl << QStringList();
        // clang-format on
    }

    void editedCaptionAndDateAreSaved()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, encode);
        QFETCH(QStringList, decode);
        QFETCH(QStringList, prepare);
        for (const QString &tool : {encode.first(), decode.first()}) {
            if (QStandardPaths::findExecutable(tool).isEmpty())
                QSKIP(
                    qPrintable(tool + u" is not installed; scripts/install-deps.sh brings it"_qs));
        }
        const QString path = m_dir.filePath(name);
        const QString decoded = path + u".png"_qs;
        QFile::remove(path);
        encode.replaceInStrings(u"@in"_qs, m_source).replaceInStrings(u"@out"_qs, path);
        QString error = runTool(encode);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        if (!prepare.isEmpty())
            QVERIFY(Fixtures::runExifTool(prepare << u"-overwrite_original"_qs << u"--"_qs << path)
                        .ok());

        auto file = std::make_shared<ExifFileInfo>(path);
        QVERIFY(MetadataReader().readRecord(file).ok());
        QVERIFY(file->isValid());
        file->setExifValue(u"XMP-dc:Description"_qs, Caption);
        file->setExifValue(u"ExifIFD:DateTimeOriginal"_qs, Date);

        RunListener listener;
        WriteQueue runner;
        listener.listen(runner);
        QCOMPARE(runner.saveFiles({file}, ExifOperationOption::ReReadFile), 1);
        QVERIFY(listener.wait());
        const QStringList messages = listener.messages(path);
        // Wrapping a bare codestream is worth telling the user, not a failure.
        if (name == u"bare.jxl"_qs)
            QVERIFY2(messages.size() == 1 && messages.first().startsWith(u"2 Wrapped JXL"_qs),
                     qPrintable(messages.join(u'\n')));
        else
            QCOMPARE(messages, QStringList());

        const QJsonObject tags = readWithExifTool(path);
        QCOMPARE(tags.value(u"XMP-dc:Description"_qs).toString(), Caption);
        QCOMPARE(tags.value(u"ExifIFD:DateTimeOriginal"_qs).toString(), Date);

        decode.replaceInStrings(u"@out"_qs, path).replaceInStrings(u"@png"_qs, decoded);
        error = runTool(decode);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(QImage(decoded).size(), QImage(m_source).size());
    }
};

QTEST_GUILESS_MAIN(TestModernFormats)
#include "tst_modernformats.moc"
