#include "engine/exifrunner.h"
#include "engine/exifrunnerremoveexifgroupsoperation.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "engine/exiftoolsession.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

using Messages = QList<std::pair<int, QString>>; // type, text

// The real ExifTool, with a record of every write and, on demand, a doctored one.
class RecordingSession final : public ExifToolSession
{
public:
    enum class Mode { Real, FailWrites, AddIFD0Warnings };

    ExifToolResult execute(const QStringList &arguments, int timeoutMs) override
    {
        const bool isWrite = arguments.contains(QStringLiteral("-o"));
        if (isWrite)
            writes.append(arguments);
        if (isWrite && mode == Mode::FailWrites) {
            ExifToolResult result;
            result.outcome = ExifToolResult::Outcome::Finished;
            result.exitCode = 1;
            result.standardError = "Error: Simulated failure - " + arguments.last().toUtf8() + '\n';
            return result;
        }
        ExifToolResult result = m_real.execute(arguments, timeoutMs);
        if (isWrite && mode == Mode::AddIFD0Warnings)
            result.standardError +=
                QByteArray("Warning: [minor] Can't delete IFD0 from TIFF\n").repeated(2);
        return result;
    }
    QString program() const override { return m_real.program(); }

    Mode mode = Mode::Real;
    QList<QStringList> writes;

private:
    PersistentExifToolSession m_real{Fixtures::exifTool()};
};

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// An RGB Photoshop file with raw planes and one resolution resource (ExifTool will not write
// one left with no resources at all). Qt cannot write this format.
QByteArray photoshopFile(int width, int height)
{
    QByteArray data("8BPS");
    const auto put = [&data](quint64 value, int bytes) {
        for (int i = bytes - 1; i >= 0; --i)
            data.append(char((value >> (8 * i)) & 0xff));
    };
    put(1, 2), put(0, 6), put(3, 2), put(quint32(height), 4), put(quint32(width), 4);
    put(8, 2), put(3, 2), put(0, 4), put(28, 4);
    data.append("8BIM");
    put(0x03ED, 2), put(0, 2), put(16, 4);
    put(72u << 16, 4), put(1, 2), put(1, 2), put(72u << 16, 4), put(1, 2), put(1, 2);
    put(0, 4), put(0, 2);
    for (int i = 0; i < 3 * width * height; ++i)
        data.append(char((i * 7) % 251));
    return data;
}

// One IFD entry: CanonImageType "abc", big-endian like the rest of ExifTool's EXIF.
const QByteArray ReadableNotes("\x00\x01\x00\x06\x00\x02\x00\x00\x00\x04"
                               "abc\x00\x00\x00\x00\x00",
                               18);
const QByteArray BrokenNotes("garbage maker note data 0123456789abcdef");

// A Canon JPEG whose maker notes hold the given block.
QString makeMakerNotesImage(const QString &path, const QByteArray &makerNotes)
{
    // ExifTool expands '%' codes in the name after "<=", so this one has none.
    const QString notesPath = QFileInfo(path).dir().filePath(QStringLiteral("notes.bin"));
    QFile notes(notesPath);
    if (!notes.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return QStringLiteral("cannot write ") + notesPath;
    notes.write(makerNotes);
    notes.close();
    return Fixtures::makeImage(
        path, {QStringLiteral("-Make=Canon"), QStringLiteral("-Model=Canon EOS 5D"),
               QStringLiteral("-Artist=Ann"), QStringLiteral("-MakerNotes<=") + notesPath});
}

ExifFileInfoPtr loaded(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    ExifRunner(Fixtures::exifTool()).loadExifInformation(file);
    return file;
}

QStringList keysStartingWith(const TagDictionary &tags, const QStringList &prefixes)
{
    QStringList found;
    for (auto it = tags.cbegin(); it != tags.cend(); ++it) {
        for (const QString &prefix : prefixes) {
            if (it.key().startsWith(prefix))
                found << it.key();
        }
    }
    return found;
}

} // namespace

class TestExifRunnerRemoveOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void removableKeys();
    void ifd0WarningWalk_data();
    void ifd0WarningWalk();

    void stripRemovesUserTagsAndKeepsThePicture_data();
    void stripRemovesUserTagsAndKeepsThePicture();
    void ifd0WarningsHiddenExceptOnJpeg_data();
    void ifd0WarningsHiddenExceptOnJpeg();
    void makerNotesGoWithMakeAndModel_data();
    void makerNotesGoWithMakeAndModel();
    void failingExifToolKeepsTheOriginal_data();
    void failingExifToolKeepsTheOriginal();
    void previousModificationDateIsKept_data();
    void previousModificationDateIsKept();

private:
    std::shared_ptr<ExifRunnerFileModifiyOperation> run(const QString &kind,
                                                        const ExifFileInfoPtr &file);
    void compareWrites(const QList<QStringList> &expected, const QString &path);

    QTemporaryDir m_dir;
    RecordingSession m_session;
};

void TestExifRunnerRemoveOperations::initTestCase()
{
    QVERIFY(m_dir.isValid());
    UserSettings::setStoreFile(m_dir.filePath(QStringLiteral("settings.ini")));
}

void TestExifRunnerRemoveOperations::init()
{
    m_session.mode = RecordingSession::Mode::Real;
    m_session.writes.clear();
    UserSettings::remove(UserSettings::FileModifyDate);
}

std::shared_ptr<ExifRunnerFileModifiyOperation>
TestExifRunnerRemoveOperations::run(const QString &kind, const ExifFileInfoPtr &file)
{
    std::shared_ptr<ExifRunnerFileModifiyOperation> op;
    if (kind == QLatin1String("strip"))
        op = std::make_shared<ExifRunnerRemoveMetadataOperation>(file, 1);
    else
        op = std::make_shared<ExifRunnerRemoveExifGroupsOperation>(file, 1);
    op->setExifToolSession(&m_session);
    op->run();
    return op;
}

// Each write: the expected arguments, then the temporary path and the file's own path.
void TestExifRunnerRemoveOperations::compareWrites(const QList<QStringList> &expected,
                                                   const QString &path)
{
    QCOMPARE(m_session.writes.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QStringList &arguments = m_session.writes.at(i);
        QCOMPARE(arguments.first(arguments.size() - 2), expected.at(i) + QStringList{u"-o"_qs});
        QCOMPARE(arguments.last(), path);
    }
}

void TestExifRunnerRemoveOperations::removableKeys()
{
    const QStringList keys{u"IFD0:Make"_qs, u"File:FileSize"_qs, u"IFD0:StripOffsets"_qs,
                           u"IFD0:ImageWidth"_qs, u"ICC_Profile:ProfileDescription"_qs,
                           u"ICC-header:ProfileVersion"_qs, u"Composite:ImageSize"_qs,
                           u"SubIFD1:SensorWidth"_qs, u"IFD1:ImageWidth"_qs,
                           u"XMP:MyCompression"_qs, u"file:FileSize"_qs,
                           // Only the doubled colon has ever been kept.
                           u"IFD0:TIFF-EPStandardID"_qs, u"IFD0::TIFF-EPStandardID"_qs};
    const QSet<QString> removable{u"IFD0:Make"_qs, u"IFD1:ImageWidth"_qs, u"XMP:MyCompression"_qs,
                                  u"file:FileSize"_qs, u"IFD0:TIFF-EPStandardID"_qs};
    QCOMPARE(ExifRunnerRemoveMetadataOperation::collectRemovableItems(keys), removable);
}

void TestExifRunnerRemoveOperations::ifd0WarningWalk_data()
{
    QTest::addColumn<Messages>("messages");
    QTest::addColumn<Messages>("remaining");

    const std::pair ifd0{int(ErrorMessage::Warning), u"[minor] Can't delete IFD0 from TIFF"_qs};
    const std::pair other{int(ErrorMessage::Warning), u"[minor] Ignored empty IFD0"_qs};
    const std::pair error{int(ErrorMessage::Error), u"Not a valid TIFF"_qs};

    QTest::newRow("none") << Messages{other, error} << Messages{other, error};
    QTest::newRow("two in a row") << Messages{ifd0, ifd0} << Messages{};
    QTest::newRow("three in a row after another")
        << Messages{other, ifd0, ifd0, ifd0} << Messages{other};
    QTest::newRow("last in the list") << Messages{error, other, ifd0} << Messages{error, other};
    QTest::newRow("spread out") << Messages{ifd0, error, ifd0, other} << Messages{error, other};
}

void TestExifRunnerRemoveOperations::ifd0WarningWalk()
{
    QFETCH(Messages, messages);
    QFETCH(Messages, remaining);

    ErrorMessages errors(u"/a.tif"_qs);
    for (const auto &[type, text] : messages)
        errors.addErrorMessage(ErrorMessage(errors.fileName(), text, type));
    QCOMPARE(ExifRunnerRemoveMetadataOperation::hasIFD0MinorWarning(errors),
             remaining.size() != messages.size());

    ExifRunnerRemoveMetadataOperation::removeIFD0MinorWarning(errors);
    Messages left;
    for (const ErrorMessage &message : errors.messages())
        left.append({message.type(), message.message()});
    QCOMPARE(left, remaining);
    QCOMPARE(errors.warnsCount(),
             quint64(std::count_if(remaining.cbegin(), remaining.cend(), [](const auto &m) {
                 return m.first == ErrorMessage::Warning;
             })));
}

void TestExifRunnerRemoveOperations::stripRemovesUserTagsAndKeepsThePicture_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QStringList>("arguments"); // empty: ExifTool must not run

    const QStringList tail{u"-n"_qs, u"-X"_qs};
    QTest::newRow("jpeg") << u"jpg"_qs << QStringList{u"-all="_qs} + tail;
    QTest::newRow("tiff") << u"tif"_qs << QStringList{u"-all="_qs, u"-CommonIFD0="_qs} + tail;
    QTest::newRow("photoshop") << u"psd"_qs << QStringList{u"-all="_qs} + tail;
    QTest::newRow("png is left alone") << u"png"_qs << QStringList{};
}

void TestExifRunnerRemoveOperations::stripRemovesUserTagsAndKeepsThePicture()
{
    QFETCH(QString, suffix);
    QFETCH(QStringList, arguments);

    const QString path = m_dir.filePath(u"strip %f "_qs + suffix + u'.' + suffix);
    const QStringList userTags{
        u"-IFD0:Artist=Ann"_qs,  u"-IFD0:Make=Canon"_qs,
        u"-XMP-dc:Title=Sea"_qs, u"-IPTC:Keywords=sea"_qs,
        u"-GPSLatitude=33.8"_qs, u"-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"_qs};
    const QStringList userGroups{u"IFD0:Artist"_qs, u"IFD0:Make"_qs, u"XMP-dc:"_qs,
                                 u"IPTC:"_qs,       u"GPS:"_qs,      u"ExifIFD:"_qs};
    if (suffix == QLatin1String("psd")) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(photoshopFile(16, 8));
        file.close();
        QVERIFY(Fixtures::runExifTool({u"-overwrite_original"_qs, u"-XMP-dc:Title=Sea"_qs,
                                       u"-IPTC:Keywords=sea"_qs, path})
                    .ok());
    } else {
        QVERIFY(Fixtures::makeImage(path, suffix == QLatin1String("png")
                                              ? QStringList{u"-XMP-dc:Title=Sea"_qs}
                                              : userTags)
                    .isEmpty());
    }
    const QByteArray before = fileBytes(path);
    const QImage pictureBefore(path);
    const ExifFileInfoPtr file = loaded(path);
    QVERIFY(!keysStartingWith(file->exifData(), userGroups).isEmpty());

    const auto op = run(u"strip"_qs, file);

    if (arguments.isEmpty()) {
        QVERIFY(m_session.writes.isEmpty());
        QVERIFY(!op->errors());
        QCOMPARE(fileBytes(path), before);
        return;
    }
    compareWrites({arguments}, path);
    QVERIFY(op->errors());
    // A TIFF really gets the IFD0 warning from ExifTool; it must be gone.
    QCOMPARE(op->errors()->messages().size(), 0);
    const TagDictionary after = loaded(path)->exifData();
    QCOMPARE(keysStartingWith(after, userGroups), QStringList());
    // The record holds what is on disk now, with nothing of the old tags pending.
    QCOMPARE(file->exifData(), file->originalExifData());
    QCOMPARE(keysStartingWith(file->exifData(), userGroups), QStringList());

    if (suffix == QLatin1String("psd")) {
        QVERIFY(fileBytes(path).endsWith(photoshopFile(16, 8).right(3 * 16 * 8)));
    } else {
        QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32),
                 pictureBefore.convertToFormat(QImage::Format_RGB32));
    }
}

void TestExifRunnerRemoveOperations::ifd0WarningsHiddenExceptOnJpeg_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<quint64>("warnings");
    QTest::newRow("tiff hides both") << u"tif"_qs << quint64(0);
    QTest::newRow("jpeg keeps both") << u"jpg"_qs << quint64(2);
}

void TestExifRunnerRemoveOperations::ifd0WarningsHiddenExceptOnJpeg()
{
    QFETCH(QString, suffix);
    QFETCH(quint64, warnings);
    const QString path = m_dir.filePath(u"warned."_qs + suffix);
    QVERIFY(Fixtures::makeImage(path, {u"-IFD0:Artist=Ann"_qs}).isEmpty());

    m_session.mode = RecordingSession::Mode::AddIFD0Warnings;
    const auto op = run(u"strip"_qs, loaded(path));

    QVERIFY(op->errors());
    QCOMPARE(op->errors()->warnsCount(), warnings);
    QCOMPARE(quint64(op->errors()->messages().size()), warnings);
    QVERIFY(!loaded(path)->hasExifValue(u"IFD0:Artist"_qs));
}

void TestExifRunnerRemoveOperations::makerNotesGoWithMakeAndModel_data()
{
    QTest::addColumn<QByteArray>("makerNotes");
    QTest::addColumn<bool>("readable");
    QTest::newRow("readable notes") << ReadableNotes << true;
    QTest::newRow("notes ExifTool cannot decode") << BrokenNotes << false;
}

void TestExifRunnerRemoveOperations::makerNotesGoWithMakeAndModel()
{
    QFETCH(QByteArray, makerNotes);
    QFETCH(bool, readable);
    const QString path = m_dir.filePath(u"maker %d notes.jpg"_qs);
    QVERIFY(makeMakerNotesImage(path, makerNotes).isEmpty());
    const QImage pictureBefore(path);
    const ExifFileInfoPtr file = loaded(path);
    const auto warnings = [&path] {
        return Fixtures::runExifTool({u"-a"_qs, u"-Warning"_qs, path}).out;
    };
    QCOMPARE(file->hasExifValue(u"Canon:CanonImageType"_qs), readable);
    QCOMPARE(warnings().contains("MakerNotes"), !readable);

    const auto op = run(u"makernotes"_qs, file);

    QList<QStringList> expected{
        {u"-n"_qs, u"-X"_qs, u"-make="_qs, u"-model="_qs, u"-makernotes="_qs}};
    if (!readable)
        expected.prepend({u"-n"_qs, u"-X"_qs, u"-MakerNotes:all="_qs});
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
    QVERIFY(!file->hasExifValue(u"IFD0:Make"_qs));
    QCOMPARE(QImage(path), pictureBefore);
}

void TestExifRunnerRemoveOperations::failingExifToolKeepsTheOriginal_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("strip") << u"strip"_qs;
    QTest::newRow("maker notes") << u"makernotes"_qs;
}

void TestExifRunnerRemoveOperations::failingExifToolKeepsTheOriginal()
{
    QFETCH(QString, kind);
    const QString path = m_dir.filePath(u"kept-"_qs + kind + u".jpg"_qs);
    QVERIFY(makeMakerNotesImage(path, ReadableNotes).isEmpty());
    const QByteArray before = fileBytes(path);
    const ExifFileInfoPtr file = loaded(path);

    m_session.mode = RecordingSession::Mode::FailWrites;
    const auto op = run(kind, file);

    QCOMPARE(m_session.writes.size(), 1);
    QCOMPARE(fileBytes(path), before);
    QVERIFY(op->errors());
    QCOMPARE(op->errors()->errorsCount(), quint64(1));
    QVERIFY(op->errors()->messages().first().message().startsWith(u"Simulated failure"_qs));
    // Re-read all the same: the record shows what is still on disk.
    QCOMPARE(file->exifValue(u"IFD0:Make"_qs), u"Canon"_qs);
    QCOMPARE(QDir(m_dir.path()).entryList({u"*exiftool_*"_qs}, QDir::AllEntries | QDir::Hidden),
             QStringList());
}

void TestExifRunnerRemoveOperations::previousModificationDateIsKept_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("makerNotes");
    QTest::newRow("strip") << u"strip"_qs << ReadableNotes;
    QTest::newRow("maker notes") << u"makernotes"_qs << ReadableNotes;
    // Two passes: the second must not take the first one's date for the original's.
    QTest::newRow("undecodable maker notes") << u"makernotes"_qs << BrokenNotes;
}

void TestExifRunnerRemoveOperations::previousModificationDateIsKept()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, makerNotes);
    UserSettings::setValue(UserSettings::FileModifyDate, 1);
    const QString path =
        m_dir.filePath(u"dated "_qs + QString::fromLatin1(QTest::currentDataTag()) + u".jpg"_qs);
    QVERIFY(makeMakerNotesImage(path, makerNotes).isEmpty());
    const QByteArray encoded = QFile::encodeName(path);
    const timespec times[2] = {{1273000000, 0}, {1273000000, 123456789}};
    QCOMPARE(utimensat(AT_FDCWD, encoded.constData(), times, 0), 0);

    const auto op = run(kind, loaded(path));

    QVERIFY(op->errors());
    QCOMPARE(op->errors()->errorsCount(), quint64(0));
    QVERIFY(!loaded(path)->hasExifValue(u"IFD0:Make"_qs));
    struct stat st
    {
    };
    QCOMPARE(stat(encoded.constData(), &st), 0);
    QCOMPARE(qint64(st.st_mtim.tv_sec), qint64(1273000000));
    QCOMPARE(qint64(st.st_mtim.tv_nsec), qint64(123456789));
}

QTEST_GUILESS_MAIN(TestExifRunnerRemoveOperations)
#include "tst_exifrunnerremoveoperations.moc"
