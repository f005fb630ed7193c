#include "catalogue/exiffieldscontroller.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/exifrunnerrevertoperation.h"
#include "engine/exifutil.h"
#include "engine/revertrecord.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

// Everything ExifTool reports of the file but the file system's own tags.
QStringList dump(const QString &path)
{
    const Fixtures::ToolRun run =
        Fixtures::runExifTool({u"-a"_qs, u"-G1"_qs, u"-s"_qs, u"-charset"_qs, u"UTF-8"_qs, u"-x"_qs,
                               u"System:all"_qs, u"-x"_qs, u"ExifTool:all"_qs, path});
    return QString::fromUtf8(run.out).split(u'\n');
}

} // namespace

class TestRevert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        RevertRecord::setDirectory(m_dir.filePath(u"records"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        m_runner = std::make_unique<WriteQueue>();
        m_runner->setMaximumConcurrentOperations(1);
    }

    void cleanupTestCase() { m_runner.reset(); }

    // Edits are "KEY=VALUE" joined by "|"; a KEY alone removes the tag.
    void saveThenRevertRestoresEveryTag_data()
    {
        QTest::addColumn<QStringList>("initial");
        QTest::addColumn<QString>("edits");

        const QStringList rich =
            u"-IFD0:Software=Old app|-IFD0:Orientation#=1|-ExifIFD:DateTimeOriginal=2010:05:01 "
            u"10:00:00|-IPTC:Keywords=old|-IPTC:Keywords=with, comma|-XMP-dc:Subject=one|"
            u"-XMP-dc:Subject=two|-XMP-dc:Title=Hello|-XMP-dc:Title-de=Hallo|"
            u"-XMP-x:XMPToolkit=Other Tool 1.0|-GPS:GPSLatitude=10.5|-GPS:GPSLatitudeRef=N|"
            u"-XMP-dc:Description=1.50"_qs.split(u'|');
        QTest::newRow("text, enum, date, gps")
            << rich
            << u"IFD0:Software=New app|XMP-dc:Description=Now words|IFD0:Orientation=6|"
               u"ExifIFD:DateTimeOriginal=2021:12:31 23:59:58|GPS:GPSLatitude=33.8688|"
               u"GPS:GPSLatitudeRef=S|GPS:GPSLongitude=151.2093|GPS:GPSLongitudeRef=E"_qs;
        QTest::newRow("lists, language alternative, date shift")
            << rich
            << u"IPTC:Keywords=a, b\\, c, d|XMP-dc:Subject=three|XMP-dc:Title=Bonjour|"
               u"ExifIFD:DateTimeOriginal=+1d2h"_qs;
        QTest::newRow("removals") << rich
                                  << u"IFD0:Software|IPTC:Keywords|GPS:GPSLatitude|XMP-dc:Title"_qs;
        // The save adds a default language beside one the file had alone.
        QTest::newRow("default language added")
            << QStringList{u"-XMP-dc:Title-de=Hallo"_qs, u"-XMP-dc:Rights-fr=Droits"_qs}
            << u"XMP-dc:Title=Hello|XMP-dc:Rights=Rights"_qs;
        // Writing creates whole blocks (EXIF, GPS, IPTC, XMP) with tags of ExifTool's own.
        QTest::newRow("into a bare file")
            << QStringList{}
            << u"IFD0:Software=App|GPS:GPSLatitude=1.25|GPS:GPSLatitudeRef=N|IPTC:Keywords=k|"
               u"XMP-dc:Subject=s"_qs;
    }

    void saveThenRevertRestoresEveryTag()
    {
        QFETCH(QStringList, initial);
        QFETCH(QString, edits);
        const QString path = m_dir.filePath(
            QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'-') + u".jpg"_qs);
        QFile::remove(path);
        const QString made = Fixtures::makeImage(path, initial);
        QVERIFY2(made.isEmpty(), qPrintable(made));
        const QStringList before = dump(path);

        ExifFileInfoPtr file = load(path);
        for (const QString &edit : edits.split(u'|')) {
            const qsizetype equals = edit.indexOf(u'=');
            if (equals < 0)
                file->removeExifValue(edit);
            else
                file->setExifValue(edit.left(equals), edit.mid(equals + 1));
        }
        QVERIFY(run(
            [&](WriteQueue &r) { return r.saveFiles({file}, ExifOperationOption::ReReadFile); }));
        QVERIFY(RevertRecord::contains(path));

        const auto revert =
            ExifRunnerRevertOperation::create(file, ExifOperationOption::ReReadFile);
        QVERIFY(revert);
        QVERIFY(run([&](WriteQueue &r) { return r.queueOperations({revert}); }));
        QCOMPARE(dump(path), before);
        QVERIFY(!RevertRecord::contains(path));
        // Nothing is left pending: the window shows the file as it is.
        QVERIFY(!isExifFileModified(*file));
    }

    void fileChangedSinceTheSaveIsLeftAlone()
    {
        const QString path = m_dir.filePath(u"changed.jpg"_qs);
        QVERIFY(Fixtures::makeImage(path, {u"-IFD0:Software=Old"_qs}).isEmpty());
        ExifFileInfoPtr file = load(path);
        file->setExifValue(u"IFD0:Software"_qs, u"Saved"_qs);
        QVERIFY(run(
            [&](WriteQueue &r) { return r.saveFiles({file}, ExifOperationOption::ReReadFile); }));

        // Another program writes the file afterwards.
        QVERIFY(
            Fixtures::runExifTool({u"-overwrite_original"_qs, u"-IFD0:Software=Elsewhere"_qs, path})
                .ok());
        const QByteArray bytes = Fixtures::readBytes(path);
        const auto revert =
            ExifRunnerRevertOperation::create(file, ExifOperationOption::ReReadFile);
        QVERIFY(revert);
        const auto listener = run([&](WriteQueue &r) { return r.queueOperations({revert}); });
        QVERIFY(listener);
        QCOMPARE(Fixtures::readBytes(path), bytes);
        const QStringList messages = listener->messages(path);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.first().startsWith(u"3 The file was changed after the last save"_qs),
                 qPrintable(messages.first()));
    }

private:
    ExifFileInfoPtr load(const QString &path)
    {
        auto file = std::make_shared<ExifFileInfo>(path);
        MetadataReader().readRecord(file);
        return file;
    }

    std::unique_ptr<RunListener> run(const std::function<qsizetype(WriteQueue &)> &queue)
    {
        auto listener = std::make_unique<RunListener>();
        listener->listen(*m_runner);
        queue(*m_runner);
        const bool finished = listener->wait();
        m_runner->disconnect(listener.get());
        return finished ? std::move(listener) : nullptr;
    }

    QTemporaryDir m_dir;
    // One for the whole test: ExifTool starts once.
    std::unique_ptr<WriteQueue> m_runner;
};

QTEST_GUILESS_MAIN(TestRevert)
#include "tst_revert.moc"
