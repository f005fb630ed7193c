#include "engine/xmpsidecar.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/metadatareader.h"
#include "engine/exifrunnersaveoperation.h"
#include "engine/exiftoolsession.h"
#include "engine/exifutil.h"
#include "../support/fixtures.h"
#include "values/usersettings.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString tagOf(const QString &path, const QString &tag)
{
    const Fixtures::ToolRun run = Fixtures::runExifTool({u"-s3"_qs, u"-n"_qs, u"-"_qs + tag, path});
    return QString::fromUtf8(run.out).trimmed();
}

// A TIFF under a raw name: ExifTool writes it as the TIFF-based raw format it claims to be.
QString makeRaw(const QString &path, const QStringList &arguments)
{
    const QString tiff = path + u".tif"_qs;
    const QString made = Fixtures::makeImage(tiff, arguments);
    if (!made.isEmpty())
        return made;
    return QFile::rename(tiff, path) ? QString() : u"cannot rename"_qs;
}

ExifFileInfoPtr readFile(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    MetadataReader().readRecord(file);
    return file;
}

// Saves as the runner does, including the update of the record on the main thread; the count
// of errors, -1 when there is nothing to save.
int save(const ExifFileInfoPtr &file)
{
    static PersistentExifToolSession session(Fixtures::exifTool());
    auto operation = ExifRunnerSaveOperation::create(file, ExifOperationOption::ReReadFile);
    if (!operation)
        return -1;
    operation->setExifToolSession(&session);
    operation->run();
    operation->postProcessInMainThread();
    return int(operation->errors()->errorsCount());
}

} // namespace

class TestXmpSidecar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    void init() { UserSettings::setValue(UserSettings::WriteXmpSidecars, false); }

    void sidecarIsFoundBesideRawFiles_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QString>("expected");
        QTest::newRow("NAME.xmp") << u"a.dng"_qs << QStringList{u"a.xmp"_qs} << u"a.xmp"_qs;
        QTest::newRow("any case") << u"b.NEF"_qs << QStringList{u"B.NEF.XMP"_qs} << u"B.NEF.XMP"_qs;
        QTest::newRow("NAME.ext.xmp first")
            << u"c.cr2"_qs << QStringList{u"c.xmp"_qs, u"c.cr2.xmp"_qs} << u"c.cr2.xmp"_qs;
        QTest::newRow("not a raw file") << u"d.jpg"_qs << QStringList{u"d.xmp"_qs} << QString();
        QTest::newRow("none") << u"e.dng"_qs << QStringList{u"other.xmp"_qs} << QString();
    }
    void sidecarIsFoundBesideRawFiles()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, present);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        for (const QString &name : present + QStringList{file})
            QVERIFY(Fixtures::writeBytes(dir.filePath(name), "x"));
        XmpSidecar::Finder finder;
        QCOMPARE(finder.sidecarFor(dir.filePath(file)),
                 expected.isEmpty() ? QString() : dir.filePath(expected));
    }

    // XMP tags go to the sidecar, the others to the raw file; an XMP-only edit leaves the raw
    // file's bytes alone, and a date shift reaches both.
    void savingRoutesXmpToTheSidecar()
    {
        const QString raw = m_dir.filePath(u"shot.dng"_qs);
        const QString sidecar = m_dir.filePath(u"shot.xmp"_qs);
        QCOMPARE(makeRaw(raw, {u"-XMP-photoshop:City=Embedded"_qs, u"-IFD0:Artist=Old"_qs,
                               u"-ExifIFD:CreateDate=2020:01:02 03:04:05"_qs}),
                 QString());
        QVERIFY(Fixtures::runExifTool({u"-XMP-photoshop:City=Sidecar"_qs,
                                       u"-XMP-xmp:CreateDate=2020:01:02 03:04:05"_qs, sidecar})
                    .ok());

        const ExifFileInfoPtr file = readFile(raw);
        QCOMPARE(file->sidecarPath(), sidecar);
        QCOMPARE(file->exifValue(u"XMP-photoshop:City"_qs), u"Sidecar"_qs);
        QCOMPARE(file->exifValue(u"IFD0:Artist"_qs), u"Old"_qs);

        file->setExifValue(u"XMP-photoshop:City"_qs, u"Lisbon"_qs);
        file->setExifValue(u"IFD0:Artist"_qs, u"New"_qs);
        file->setExifValue(u"ExifIFD:CreateDate"_qs, u"+1d"_qs);
        file->setExifValue(u"XMP-xmp:CreateDate"_qs, u"+1d"_qs);
        QCOMPARE(save(file), 0);
        QCOMPARE(tagOf(sidecar, u"XMP-photoshop:City"_qs), u"Lisbon"_qs);
        QCOMPARE(tagOf(sidecar, u"XMP-xmp:CreateDate"_qs), u"2020:01:03 03:04:05"_qs);
        QCOMPARE(tagOf(raw, u"IFD0:Artist"_qs), u"New"_qs);
        QCOMPARE(tagOf(raw, u"ExifIFD:CreateDate"_qs), u"2020:01:03 03:04:05"_qs);
        QCOMPARE(tagOf(raw, u"XMP-photoshop:City"_qs), u"Embedded"_qs);
        QCOMPARE(tagOf(sidecar, u"IFD0:Artist"_qs), QString());
        // The record shows the sidecar's values again, and nothing is left pending.
        QCOMPARE(file->exifValue(u"XMP-photoshop:City"_qs), u"Lisbon"_qs);
        QVERIFY(!isExifFileModified(*file));

        const QByteArray rawBytes = Fixtures::readBytes(raw);
        file->setExifValue(u"XMP-photoshop:City"_qs, u"Porto"_qs);
        QCOMPARE(save(file), 0);
        QCOMPARE(tagOf(sidecar, u"XMP-photoshop:City"_qs), u"Porto"_qs);
        QCOMPARE(Fixtures::readBytes(raw), rawBytes);
        QVERIFY(!isExifFileModified(*file));
    }

    void sidecarIsCreatedOnlyWhenTheUserAsks_data()
    {
        QTest::addColumn<bool>("preference");
        QTest::newRow("off: XMP stays in the raw file") << false;
        QTest::newRow("on: a new sidecar") << true;
    }
    void sidecarIsCreatedOnlyWhenTheUserAsks()
    {
        QFETCH(bool, preference);
        UserSettings::setValue(UserSettings::WriteXmpSidecars, preference);
        QTemporaryDir dir;
        const QString raw = dir.filePath(u"new.NEF"_qs);
        QCOMPARE(makeRaw(raw, {u"-IFD0:Artist=Me"_qs}), QString());
        const ExifFileInfoPtr file = readFile(raw);
        QVERIFY(file->sidecarPath().isEmpty());
        const QByteArray rawBytes = Fixtures::readBytes(raw);

        file->setExifValue(u"XMP-photoshop:Headline"_qs, u"Fresh"_qs);
        QCOMPARE(save(file), 0);
        const QString sidecar = dir.filePath(u"new.xmp"_qs);
        QCOMPARE(QFileInfo::exists(sidecar), preference);
        QCOMPARE(tagOf(preference ? sidecar : raw, u"XMP-photoshop:Headline"_qs), u"Fresh"_qs);
        QCOMPARE(Fixtures::readBytes(raw) == rawBytes, preference);
        QCOMPARE(file->sidecarPath(), preference ? sidecar : QString());
        QVERIFY(!isExifFileModified(*file));
        // No scratch folder is left behind.
        QCOMPARE(QDir(dir.path())
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                     .size(),
                 preference ? 2 : 1);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestXmpSidecar)
#include "tst_xmpsidecar.moc"
