#include "catalogue/exiffieldscontroller.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/fileadmission.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Caption = u"Harbour at dusk \u2014 \u00c5lesund"_qs;

// How a picture of each admitted type is made: a command, @in standing for a PNG and @out for
// the file. "qt" is Qt's own writer; "tiff" and "jpeg" are Qt's pictures under the extension,
// which is how ExifTool tells TIFF-based raw formats and MPO apart.
const QHash<QString, QString> &recipes()
{
    static const QHash<QString, QString> recipes = [] {
        QHash<QString, QString> all;
        for (const char *extension :
             {"arw", "cr2", "dng", "erf", "gpr", "iiq", "mef", "mos", "nef", "nrw", "orf", "pef",
              "raw", "rw2", "rwl", "sr2", "srw", "tif", "tiff"})
            all.insert(QString::fromLatin1(extension), u"tiff"_qs);
        all.insert(u"jpg"_qs, u"qt"_qs);
        all.insert(u"jpeg"_qs, u"qt"_qs);
        all.insert(u"png"_qs, u"qt"_qs);
        all.insert(u"mpo"_qs, u"jpeg"_qs);
        for (const char *extension : {"gif", "psd", "psb"})
            all.insert(QString::fromLatin1(extension), u"convert @in @out"_qs);
        for (const char *extension : {"heic", "heif", "hif"})
            all.insert(QString::fromLatin1(extension), u"heif-enc -e x265 -q 60 -o @out @in"_qs);
        all.insert(u"avif"_qs, u"heif-enc -e aom -q 60 -o @out @in"_qs);
        all.insert(u"webp"_qs, u"cwebp -quiet @in -o @out"_qs);
        all.insert(u"jxl"_qs, u"cjxl @in @out"_qs);
        return all;
    }();
    return recipes;
}

// ExifTool writes these ("-listwf") but tells a stand-in apart from the real thing, and no
// picture of theirs can be made here.
const QStringList NotMadeHere{u"cr3"_qs, u"crw"_qs, u"mrw"_qs, u"raf"_qs, u"x3f"_qs};

// The kind of file (a plain WebP becomes an extended one with its first metadata, of the same
// MIME type) and the caption.
QStringList typeAndCaption(const QString &path)
{
    const Fixtures::ToolRun run =
        Fixtures::runExifTool({u"-j"_qs, u"-MIMEType"_qs, u"-XMP-dc:Description"_qs, path});
    const QJsonObject tags = QJsonDocument::fromJson(run.out)[0].toObject();
    return {tags.value(u"MIMEType"_qs).toString(), tags.value(u"Description"_qs).toString()};
}

} // namespace

// A file the add-files step lets in must also be saved: otherwise the user edits it and learns
// only at saving that the work cannot be kept.
class TestAdmittedTypes : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_png;
    std::unique_ptr<WriteQueue> m_runner;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        m_png = m_dir.filePath(u"source.png"_qs);
        QCOMPARE(Fixtures::makeImage(m_png), QString());
        m_runner = std::make_unique<WriteQueue>();
    }

    void everyAdmittedTypeIsTestedHere()
    {
        for (const QString &extension : FileAdmission::supportedExtensions())
            QVERIFY2(recipes().contains(extension) != NotMadeHere.contains(extension),
                     qPrintable(extension));
    }

    void everyAdmittedTypeIsSaved_data()
    {
        QTest::addColumn<QString>("extension");
        for (const QString &extension : FileAdmission::supportedExtensions()) {
            if (recipes().contains(extension))
                QTest::newRow(qPrintable(extension)) << extension;
        }
    }

    void everyAdmittedTypeIsSaved()
    {
        QFETCH(QString, extension);
        const QString path = m_dir.filePath(u"photo."_qs + extension);
        QString recipe = recipes().value(extension);
        if (recipe == u"qt"_qs) {
            QCOMPARE(Fixtures::makeImage(path), QString());
        } else if (recipe == u"tiff"_qs || recipe == u"jpeg"_qs) {
            const QString made = path + (recipe == u"tiff"_qs ? u".tif"_qs : u".jpg"_qs);
            QCOMPARE(Fixtures::makeImage(made), QString());
            QVERIFY(QFile::rename(made, path));
        } else {
            QStringList command = recipe.split(u' ');
            if (QStandardPaths::findExecutable(command.first()).isEmpty())
                QSKIP(qPrintable(command.first() + u" is not installed"_qs));
            command.replaceInStrings(u"@in"_qs, m_png).replaceInStrings(u"@out"_qs, path);
            QProcess process;
            process.start(command.first(), command.mid(1));
            QVERIFY(process.waitForFinished(60000) && process.exitCode() == 0);
        }
        const QString type = typeAndCaption(path).constFirst();

        auto file = std::make_shared<ExifFileInfo>(path);
        QVERIFY(MetadataReader().readRecord(file).ok());
        QVERIFY(FileAdmission::supportsFile(path));
        QVERIFY(!FileAdmission::rejectionAfterReading(file->originalExifData()));
        file->setExifValue(u"XMP-dc:Description"_qs, Caption);
        RunListener listener;
        listener.listen(*m_runner);
        QCOMPARE(m_runner->saveFiles({file}, ExifOperationOption::ReReadFile), 1);
        QVERIFY(listener.wait());
        m_runner->disconnect(&listener);

        // A bare JPEG XL codestream is put into a container, and says so.
        const QStringList messages = listener.messages(path).filter(u"3 "_qs);
        QVERIFY2(messages.isEmpty(), qPrintable(messages.join(u'\n')));
        QCOMPARE(typeAndCaption(path), QStringList({type, Caption}));
    }
};

QTEST_GUILESS_MAIN(TestAdmittedTypes)
#include "tst_admittedtypes.moc"
