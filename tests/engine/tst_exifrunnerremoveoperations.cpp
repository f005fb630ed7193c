#include "engine/metadatareader.h"
#include "engine/exifrunnerremoveexifgroupsoperation.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "engine/exifrunnerrevertoperation.h"
#include "engine/exiftoolsession.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

// The real ExifTool, recording every write and, on demand, adding warnings to its result.
class RecordingSession final : public ExifToolSession
{
public:
    ExifToolResult execute(const QStringList &arguments, int timeoutMs) override
    {
        const bool isWrite = arguments.contains(u"-o"_qs);
        if (isWrite)
            writes.append(arguments);
        ExifToolResult result = m_real.execute(arguments, timeoutMs);
        if (isWrite && addIFD0Warnings)
            result.standardError +=
                QByteArray("Warning: [minor] Can't delete IFD0 from TIFF\n").repeated(2);
        return result;
    }
    QString program() const override { return m_real.program(); }

    bool addIFD0Warnings = false;
    QList<QStringList> writes;

private:
    PersistentExifToolSession m_real{Fixtures::exifTool()};
};

// RGB Photoshop file with raw planes and one resolution resource (ExifTool will not write one
// with no resources). Qt cannot write this format.
QByteArray photoshopFile(int width, int height)
{
    QByteArray data("8BPS");
    const auto put = [&data](quint64 value, int bytes) {
        for (int i = bytes - 1; i >= 0; --i)
            data.append(char((value >> (8 * i)) & 0xff));
    };
    put(1, 2), put(0, 6), put(3, 2), put(quint32(height), 4), put(quint32(width), 4);
    put(8, 2), put(3, 2), put(0, 4), put(28, 4), data.append("8BIM");
    put(0x03ED, 2), put(0, 2), put(16, 4);
    put(72u << 16, 4), put(1, 2), put(1, 2), put(72u << 16, 4), put(1, 2), put(1, 2);
    put(0, 4), put(0, 2);
    for (int i = 0; i < 3 * width * height; ++i)
        data.append(char((i * 7) % 251));
    return data;
}

// One big-endian IFD entry: CanonImageType "abc".
const QByteArray ReadableNotes("\x00\x01\x00\x06\x00\x02\x00\x00\x00\x04"
                               "abc\x00\x00\x00\x00\x00",
                               18);
const QByteArray BrokenNotes("garbage maker note data 0123456789abcdef");

QString makeMakerNotesImage(const QString &path, const QByteArray &makerNotes)
{
    // ExifTool expands '%' codes in the name after "<=", so this one has none.
    const QString notesPath = QFileInfo(path).dir().filePath(u"notes.bin"_qs);
    QFile notes(notesPath);
    if (!notes.open(QIODevice::WriteOnly | QIODevice::Truncate) || notes.write(makerNotes) < 0)
        return u"cannot write "_qs + notesPath;
    notes.close();
    return Fixtures::makeImage(path, {u"-Make=Canon"_qs, u"-Model=Canon EOS 5D"_qs,
                                      u"-Artist=Ann"_qs, u"-MakerNotes<="_qs + notesPath});
}

// A modification date with nanoseconds, which the operations must put back.
const timespec OldTimes[2] = {{1273000000, 0}, {1273000000, 123456789}};

bool setOldTime(const QString &path)
{
    return ::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), OldTimes, 0) == 0;
}

bool hasOldTime(const QString &path)
{
    struct stat st = {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 &&
           st.st_mtim.tv_sec == OldTimes[1].tv_sec && st.st_mtim.tv_nsec == OldTimes[1].tv_nsec;
}

ExifFileInfoPtr loaded(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    MetadataReader(Fixtures::exifTool()).readRecord(file);
    return file;
}

QStringList keysStartingWith(const TagDictionary &tags, const QStringList &prefixes)
{
    QStringList found;
    for (const QString &key : tags.keys())
        for (const QString &prefix : prefixes)
            if (key.startsWith(prefix) && !found.contains(key))
                found << key;
    return found;
}

} // namespace

class TestExifRunnerRemoveOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        UserSettings::setValue(UserSettings::FileModifyDate, 1); // keep the previous date
        RevertRecord::setDirectory(m_dir.filePath(u"records"_qs));
    }

    void init()
    {
        m_session.addIFD0Warnings = false;
        m_session.writes.clear();
    }

    void stripRemovesUserTagsAndKeepsThePicture_data()
    {
        const QStringList tail{u"-n"_qs, u"-X"_qs, u"-api"_qs, u"struct=2"_qs};
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QStringList>("arguments"); // empty: ExifTool must not run
        QTest::addColumn<int>("warnings"); // of the two IFD0 warnings added to ExifTool's output
        QTest::newRow("jpeg keeps warnings") << u"jpg"_qs << QStringList{u"-all="_qs} + tail << 2;
        QTest::newRow("tiff") << u"tif"_qs << QStringList{u"-all="_qs, u"-CommonIFD0="_qs} + tail
                              << 0;
        QTest::newRow("photoshop") << u"psd"_qs << QStringList{u"-all="_qs} + tail << 0;
        QTest::newRow("png") << u"png"_qs << QStringList{u"-all="_qs} + tail << 0;
        QTest::newRow("raw file is left alone") << u"dng"_qs << QStringList{} << 0;
    }

    void stripRemovesUserTagsAndKeepsThePicture()
    {
        QFETCH(QString, suffix);
        QFETCH(QStringList, arguments);
        QFETCH(int, warnings);
        const QString path = m_dir.filePath(u"strip %f."_qs + suffix);
        const QStringList userGroups{u"IFD0:Artist"_qs, u"IFD0:Make"_qs, u"XMP-dc:"_qs,
                                     u"IPTC:"_qs,       u"GPS:"_qs,      u"ExifIFD:"_qs};
        if (suffix == u"dng"_qs) {
            // A TIFF under a raw name is what ExifTool takes for a raw file.
            QCOMPARE(Fixtures::makeImage(path.chopped(3) + u"tif"_qs, {u"-IFD0:Artist=Ann"_qs}),
                     QString());
            QVERIFY(QFile::rename(path.chopped(3) + u"tif"_qs, path));
            QVERIFY(Fixtures::runExifTool({u"-overwrite_original"_qs, u"-IFD0:Make=Canon"_qs,
                                           u"-XMP-dc:Title=Sea"_qs, path})
                        .ok());
        } else if (suffix == u"psd"_qs) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(photoshopFile(16, 8)) > 0);
            file.close();
            QVERIFY(Fixtures::runExifTool({u"-overwrite_original"_qs, u"-XMP-dc:Title=Sea"_qs,
                                           u"-IPTC:Keywords=sea"_qs, path})
                        .ok());
        } else {
            QCOMPARE(
                Fixtures::makeImage(path, {u"-XMP-dc:Title=Sea"_qs, u"-IFD0:Artist=Ann"_qs,
                                           u"-IFD0:Make=Canon"_qs, u"-IPTC:Keywords=sea"_qs,
                                           u"-GPSLatitude=33.8"_qs,
                                           u"-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"_qs}),
                QString());
        }
        QVERIFY(setOldTime(path));
        const QByteArray before = Fixtures::readBytes(path);
        const QImage pictureBefore(path);
        const ExifFileInfoPtr file = loaded(path);
        QVERIFY(!keysStartingWith(file->exifData(), userGroups).isEmpty());

        m_session.addIFD0Warnings = true;
        const auto op = run(true, file);
        QVERIFY(hasOldTime(path));
        if (arguments.isEmpty()) {
            QVERIFY(m_session.writes.isEmpty());
            QCOMPARE(Fixtures::readBytes(path), before);
            QCOMPARE(op->errors()->messages().size(), 1);
            QCOMPARE(op->errors()->messages().first().message(),
                     u"strip %f.dng was not changed: all metadata cannot be removed from a DNG "
                     "file without making it unreadable."_qs);
            return;
        }
        compareWrites({arguments}, path);
        // Beside the two added, a TIFF gets the IFD0 warning from ExifTool itself.
        QVERIFY(op->errors());
        QCOMPARE(op->errors()->messages().size(), warnings);
        QCOMPARE(op->errors()->warnsCount(), quint64(warnings));
        QCOMPARE(keysStartingWith(loaded(path)->exifData(), userGroups), QStringList());
        QCOMPARE(file->exifData(), file->originalExifData()); // nothing of the old tags pending
        if (suffix == u"psd"_qs)
            QVERIFY(Fixtures::readBytes(path).endsWith(photoshopFile(16, 8).right(3 * 16 * 8)));
        else
            QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32),
                     pictureBefore.convertToFormat(QImage::Format_RGB32));
    }

    // Revert Last Save puts the whole file back, maker notes, ICC profile and dates included,
    // and a later save lets the kept copy go.
    void stripIsRevertedByteForByte_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::newRow("jpeg with maker notes") << u"jpg"_qs;
        QTest::newRow("png") << u"png"_qs;
        QTest::newRow("tiff") << u"tif"_qs;
    }

    void stripIsRevertedByteForByte()
    {
        QFETCH(QString, suffix);
        const QString folder = m_dir.filePath(u"revert-"_qs + suffix);
        QVERIFY(QDir().mkpath(folder));
        const QString path = folder + u"/revert strip."_qs + suffix;
        if (suffix == u"jpg"_qs)
            QCOMPARE(makeMakerNotesImage(path, ReadableNotes), QString());
        else
            QCOMPARE(Fixtures::makeImage(path, {u"-XMP-dc:Title=Sea"_qs, u"-IFD0:Artist=Ann"_qs}),
                     QString());
        QVERIFY(setOldTime(path));
        const QByteArray before = Fixtures::readBytes(path);
        const ExifFileInfoPtr file = loaded(path);

        run(true, file);
        QVERIFY(Fixtures::readBytes(path) != before);
        const QString keptFolder = folder + u'/' + RevertRecord::KeptFolder;
        QCOMPARE(QDir(keptFolder).entryList(QDir::Files).size(), 1);
        const auto revert =
            ExifRunnerRevertOperation::create(file, ExifOperationOption::ReReadFile);
        QVERIFY(revert);
        revert->setExifToolSession(&m_session);
        revert->run();
        revert->postProcessInMainThread();
        QCOMPARE(revert->errors()->messages().size(), 0);
        QCOMPARE(Fixtures::readBytes(path), before);
        QVERIFY(hasOldTime(path));
        QVERIFY(!QFileInfo::exists(keptFolder));
        QVERIFY(!RevertRecord::contains(path));
        QCOMPARE(file->exifValue(u"IFD0:Artist"_qs), u"Ann"_qs);

        // Stripped again, then saved: the save's own record replaces the kept file.
        run(true, file);
        QVERIFY(QFileInfo::exists(keptFolder));
        const std::optional<RevertEntry> stripRecord = RevertRecord::load(path);
        QVERIFY(stripRecord && !stripRecord->keptFile.isEmpty());
        RevertEntry saveRecord;
        saveRecord.path = path;
        saveRecord.absent = {u"IFD0:Artist"_qs};
        QVERIFY(RevertRecord::store(saveRecord));
        QVERIFY(!QFileInfo::exists(stripRecord->keptFile));
        QVERIFY(!QFileInfo::exists(keptFolder));
    }

    void makerNotesGoWithMakeAndModel_data()
    {
        QTest::addColumn<QByteArray>("makerNotes");
        QTest::addColumn<bool>("readable");
        QTest::newRow("readable notes") << ReadableNotes << true;
        // Two passes: the second must not take the first one's date for the original's.
        QTest::newRow("notes ExifTool cannot decode") << BrokenNotes << false;
    }

    void makerNotesGoWithMakeAndModel()
    {
        QFETCH(QByteArray, makerNotes);
        QFETCH(bool, readable);
        const QString path = m_dir.filePath(u"maker %d notes.jpg"_qs);
        QCOMPARE(makeMakerNotesImage(path, makerNotes), QString());
        QVERIFY(setOldTime(path));
        const QImage pictureBefore(path);
        const ExifFileInfoPtr file = loaded(path);
        const auto warnings = [&path] {
            return Fixtures::runExifTool({u"-a"_qs, u"-Warning"_qs, path}).out;
        };
        QCOMPARE(file->hasExifValue(u"Canon:CanonImageType"_qs), readable);
        QCOMPARE(warnings().contains("MakerNotes"), !readable);

        const auto op = run(false, file);
        QList<QStringList> expected{{u"-n"_qs, u"-X"_qs, u"-make="_qs, u"-model="_qs,
                                     u"-makernotes="_qs, u"-api"_qs, u"struct=2"_qs}};
        if (!readable)
            expected.prepend(
                {u"-n"_qs, u"-X"_qs, u"-MakerNotes:all="_qs, u"-api"_qs, u"struct=2"_qs});
        compareWrites(expected, path);
        QVERIFY(op->errors());
        QCOMPARE(op->errors()->errorsCount(), quint64(0));
        const TagDictionary after = loaded(path)->exifData();
        QCOMPARE(keysStartingWith(after, {u"IFD0:Make"_qs, u"IFD0:Model"_qs, u"Canon:"_qs,
                                          u"File:MakerNote"_qs, u"ExifIFD:MakerNote"_qs}),
                 QStringList());
        QCOMPARE(after.value(u"IFD0:Artist"_qs), u"Ann"_qs);
        QVERIFY(!warnings().contains("MakerNotes"));
        QCOMPARE(file->exifData(), file->originalExifData());
        QCOMPARE(QImage(path), pictureBefore);
        QVERIFY(hasOldTime(path));
    }

private:
    std::shared_ptr<FileRewriteOperation> run(bool strip, const ExifFileInfoPtr &file)
    {
        std::shared_ptr<FileRewriteOperation> op;
        if (strip)
            op = std::make_shared<ExifRunnerRemoveMetadataOperation>(
                file, ExifOperationOption::ReReadFile);
        else
            op = std::make_shared<ExifRunnerRemoveExifGroupsOperation>(
                file, ExifOperationOption::ReReadFile);
        op->setExifToolSession(&m_session);
        op->run();
        return op;
    }

    // Each write: the expected arguments, "-o", the temporary path and the file's own path.
    void compareWrites(const QList<QStringList> &expected, const QString &path)
    {
        QCOMPARE(m_session.writes.size(), expected.size());
        for (qsizetype i = 0; i < expected.size(); ++i) {
            const QStringList &arguments = m_session.writes.at(i);
            QCOMPARE(arguments.first(arguments.size() - 2), expected.at(i) + QStringList{u"-o"_qs});
            QCOMPARE(arguments.last(), path);
        }
    }

    QTemporaryDir m_dir;
    RecordingSession m_session;
};

QTEST_GUILESS_MAIN(TestExifRunnerRemoveOperations)
#include "tst_exifrunnerremoveoperations.moc"
