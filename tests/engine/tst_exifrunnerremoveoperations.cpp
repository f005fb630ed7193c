#include "engine/exifrunner.h"
#include "engine/exifrunnerremoveexifgroupsoperation.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "engine/exiftoolsession.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

using Messages = QList<std::pair<int, QString>>; // type, text

// The real ExifTool, with a record of every command and, on demand, a doctored write.
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
        if (isWrite && mode == Mode::AddIFD0Warnings) {
            result.standardError += "Warning: [minor] Can't delete IFD0 from TIFF\n"
                                    "Warning: [minor] Can't delete IFD0 from TIFF\n";
        }
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

// A small RGB Photoshop file: one resolution resource (ExifTool will not write a file left
// with no resources at all), no layers, raw planes. Qt cannot write one.
QByteArray photoshopFile(int width, int height)
{
    QByteArray data;
    auto put16 = [&data](quint16 v) {
        const quint16 be = qToBigEndian(v);
        data.append(reinterpret_cast<const char *>(&be), 2);
    };
    auto put32 = [&data](quint32 v) {
        const quint32 be = qToBigEndian(v);
        data.append(reinterpret_cast<const char *>(&be), 4);
    };
    data.append("8BPS");
    put16(1);
    data.append(6, '\0');
    put16(3);
    put32(quint32(height));
    put32(quint32(width));
    put16(8);
    put16(3);
    put32(0);  // colour mode data
    put32(28); // image resources: ResolutionInfo, 72 dpi
    data.append("8BIM");
    put16(0x03ED);
    put16(0); // empty name, padded
    put32(16);
    for (int axis = 0; axis < 2; ++axis) {
        put32(72u << 16);
        put16(1);
        put16(1);
    }
    put32(0); // layers and masks
    put16(0); // raw image data
    for (int channel = 0; channel < 3; ++channel) {
        for (int i = 0; i < width * height; ++i)
            data.append(char((i * 7 + channel * 50) % 256));
    }
    return data;
}

// A JPEG of a Canon camera whose maker notes hold the given block.
QString makeMakerNotesImage(const QString &path, const QByteArray &makerNotes)
{
    // ExifTool expands '%' codes in the name after "<=", so this one has none.
    const QString notesPath = QFileInfo(path).dir().filePath(QStringLiteral("notes.bin"));
    QFile notes(notesPath);
    if (!notes.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return QStringLiteral("cannot write ") + notesPath;
    notes.write(makerNotes);
    notes.close();
    const QString error = Fixtures::makeImage(
        path, {QStringLiteral("-Make=Canon"), QStringLiteral("-Model=Canon EOS 5D"),
               QStringLiteral("-Artist=Ann"), QStringLiteral("-MakerNotes<=") + notesPath});
    QFile::remove(notesPath);
    return error;
}

// One IFD entry: CanonImageType "abc", big-endian like the rest of ExifTool's EXIF.
const QByteArray ReadableNotes("\x00\x01\x00\x06\x00\x02\x00\x00\x00\x04"
                               "abc\x00\x00\x00\x00\x00",
                               18);
const QByteArray BrokenNotes("garbage maker note data 0123456789abcdef");

TagDictionary readTags(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    ExifRunner runner(Fixtures::exifTool());
    runner.loadExifInformation(file);
    return file->exifData();
}

QStringList keysWithPrefixes(const TagDictionary &tags, const QStringList &prefixes)
{
    QStringList found;
    for (auto it = tags.cbegin(); it != tags.cend(); ++it) {
        for (const QString &prefix : prefixes) {
            if (it.key().startsWith(prefix))
                found << it.key();
        }
    }
    found.sort();
    return found;
}

Messages messagesOf(const ErrorMessages &errors)
{
    Messages messages;
    for (const ErrorMessage &message : errors.messages())
        messages.append({message.type(), message.message()});
    return messages;
}

const QStringList UserTagArguments{
    QStringLiteral("-IFD0:Artist=Ann"),
    QStringLiteral("-IFD0:Make=Canon"),
    QStringLiteral("-XMP-dc:Title=Harbour"),
    QStringLiteral("-IPTC:Keywords=sea"),
    QStringLiteral("-GPSLatitude=33.8688"),
    QStringLiteral("-GPSLatitudeRef=S"),
    QStringLiteral("-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"),
};
const QStringList UserTagPrefixes{QStringLiteral("IFD0:Artist"), QStringLiteral("IFD0:Make"),
                                  QStringLiteral("XMP-dc:"),     QStringLiteral("IPTC:"),
                                  QStringLiteral("GPS:"),        QStringLiteral("ExifIFD:")};

} // namespace

class TestExifRunnerRemoveOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void removeArguments_data();
    void removeArguments();
    void makerNotesArgumentsTakeMakeAndModelAlong();
    void removableKeys_data();
    void removableKeys();
    void ifd0WarningWalk_data();
    void ifd0WarningWalk();

    void stripRemovesUserTagsAndKeepsThePicture_data();
    void stripRemovesUserTagsAndKeepsThePicture();
    void pngIsNeverHandedToExifTool();
    void ifd0WarningsHiddenExceptOnJpeg_data();
    void ifd0WarningsHiddenExceptOnJpeg();
    void makerNotesGoWithMakeAndModel_data();
    void makerNotesGoWithMakeAndModel();
    void failingExifToolKeepsTheOriginal_data();
    void failingExifToolKeepsTheOriginal();
    void previousModificationDateIsKept_data();
    void previousModificationDateIsKept();

private:
    ExifFileInfoPtr loaded(const QString &path);
    std::shared_ptr<ExifRunnerFileModifiyOperation> operation(const QString &kind,
                                                              const ExifFileInfoPtr &file);

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

ExifFileInfoPtr TestExifRunnerRemoveOperations::loaded(const QString &path)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    ExifRunner runner(Fixtures::exifTool());
    runner.loadExifInformation(file);
    return file;
}

std::shared_ptr<ExifRunnerFileModifiyOperation>
TestExifRunnerRemoveOperations::operation(const QString &kind, const ExifFileInfoPtr &file)
{
    std::shared_ptr<ExifRunnerFileModifiyOperation> op;
    if (kind == QLatin1String("metadata")) {
        op = std::make_shared<ExifRunnerRemoveMetadataOperation>(
            file, ExifRunnerFileModifiyOperation::ReReadOption);
    } else {
        auto makerNotes = std::make_shared<ExifRunnerRemoveExifGroupsOperation>(
            file, ExifRunnerFileModifiyOperation::ReReadOption);
        makerNotes->setRemoveMakerNotes(true);
        op = makerNotes;
    }
    op->setExifToolSession(&m_session);
    return op;
}

void TestExifRunnerRemoveOperations::removeArguments_data()
{
    QTest::addColumn<QString>("mimeType");
    QTest::addColumn<QStringList>("arguments");

    const QString all = QStringLiteral("-all=");
    QTest::newRow("jpeg") << QStringLiteral("image/jpeg") << QStringList{all};
    QTest::newRow("tiff") << QStringLiteral("image/tiff")
                          << QStringList{all, QStringLiteral("-CommonIFD0=")};
    QTest::newRow("photoshop") << QStringLiteral("application/vnd.adobe.photoshop")
                               << QStringList{all};
    QTest::newRow("png") << QStringLiteral("image/png") << QStringList{};
    QTest::newRow("raw") << QStringLiteral("image/x-canon-cr2") << QStringList{};
    QTest::newRow("unknown type") << QString() << QStringList{};
    QTest::newRow("case matters") << QStringLiteral("IMAGE/JPEG") << QStringList{};
}

void TestExifRunnerRemoveOperations::removeArguments()
{
    QFETCH(QString, mimeType);
    QFETCH(QStringList, arguments);
    QCOMPARE(ExifRunnerRemoveMetadataOperation::removeArguments(mimeType), arguments);
    QCOMPARE(ExifRunnerRemoveMetadataOperation::canStrip(mimeType), !arguments.isEmpty());
}

void TestExifRunnerRemoveOperations::makerNotesArgumentsTakeMakeAndModelAlong()
{
    ExifRunnerRemoveExifGroupsOperation op(std::make_shared<ExifFileInfo>(QStringLiteral("/a.jpg")),
                                           0);
    QCOMPARE(op.addRemoveArgs(),
             QStringList({QStringLiteral("-n"), QStringLiteral("-X"), QStringLiteral("-make="),
                          QStringLiteral("-model="), QStringLiteral("-makernotes=")}));
}

void TestExifRunnerRemoveOperations::removableKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("removable");

    QTest::newRow("make") << QStringLiteral("IFD0:Make") << true;
    QTest::newRow("xmp title") << QStringLiteral("XMP-dc:Title") << true;
    QTest::newRow("gps") << QStringLiteral("GPS:GPSLatitude") << true;
    QTest::newRow("file size") << QStringLiteral("File:FileSize") << false;
    QTest::newRow("system") << QStringLiteral("System:FileName") << false;
    QTest::newRow("composite") << QStringLiteral("Composite:ImageSize") << false;
    QTest::newRow("exiftool") << QStringLiteral("ExifTool:Warning") << false;
    QTest::newRow("icc profile") << QStringLiteral("ICC_Profile:ProfileDescription") << false;
    QTest::newRow("icc header") << QStringLiteral("ICC-header:ProfileVersion") << false;
    QTest::newRow("image width") << QStringLiteral("IFD0:ImageWidth") << false;
    QTest::newRow("width of another ifd") << QStringLiteral("IFD1:ImageWidth") << true;
    QTest::newRow("strip offsets") << QStringLiteral("IFD0:StripOffsets") << false;
    QTest::newRow("sub ifd compression") << QStringLiteral("SubIFD:Compression") << false;
    QTest::newRow("sensor width anywhere") << QStringLiteral("SubIFD1:SensorWidth") << false;
    QTest::newRow("thumbnail offset") << QStringLiteral("IFD1:ThumbnailOffset") << false;
    // Only the doubled colon is kept, as it always has been.
    QTest::newRow("tiff-ep id, one colon") << QStringLiteral("IFD0:TIFF-EPStandardID") << true;
    QTest::newRow("tiff-ep id, two colons") << QStringLiteral("IFD0::TIFF-EPStandardID") << false;
    QTest::newRow("group prefix is case-sensitive") << QStringLiteral("file:FileSize") << true;
    QTest::newRow("suffix needs its colon") << QStringLiteral("XMP:MyCompression") << true;
}

void TestExifRunnerRemoveOperations::removableKeys()
{
    QFETCH(QString, key);
    QFETCH(bool, removable);
    const QStringList keys{QStringLiteral("IFD0:Artist"), key};
    QSet<QString> expected{QStringLiteral("IFD0:Artist")};
    if (removable)
        expected.insert(key);
    QCOMPARE(ExifRunnerRemoveMetadataOperation::collectRemovableItems(keys), expected);
}

void TestExifRunnerRemoveOperations::ifd0WarningWalk_data()
{
    QTest::addColumn<Messages>("messages");
    QTest::addColumn<bool>("hasWarning");
    QTest::addColumn<Messages>("remaining");

    const int W = ErrorMessage::Warning;
    const int E = ErrorMessage::Error;
    const std::pair ifd0{W, QStringLiteral("[minor] Can't delete IFD0 from TIFF")};
    const std::pair other{W, QStringLiteral("[minor] Ignored empty IFD0")};
    const std::pair error{E, QStringLiteral("Not a valid TIFF")};

    QTest::newRow("none") << Messages{} << false << Messages{};
    QTest::newRow("only the warning") << Messages{ifd0} << true << Messages{};
    QTest::newRow("two in a row") << Messages{ifd0, ifd0} << true << Messages{};
    QTest::newRow("three in a row after another")
        << Messages{other, ifd0, ifd0, ifd0} << true << Messages{other};
    QTest::newRow("last in the list")
        << Messages{error, other, ifd0} << true << Messages{error, other};
    QTest::newRow("spread out") << Messages{ifd0, error, ifd0, other} << true
                                << Messages{error, other};
    QTest::newRow("other warnings only")
        << Messages{other, error} << false << Messages{other, error};
}

void TestExifRunnerRemoveOperations::ifd0WarningWalk()
{
    QFETCH(Messages, messages);
    QFETCH(bool, hasWarning);
    QFETCH(Messages, remaining);

    ErrorMessages errors(QStringLiteral("/a.tif"));
    for (const auto &[type, text] : messages)
        errors.addErrorMessage(ErrorMessage(errors.fileName(), text, type));
    QCOMPARE(ExifRunnerRemoveMetadataOperation::hasIFD0MinorWarning(errors), hasWarning);

    ExifRunnerRemoveMetadataOperation::removeIFD0MinorWarning(errors);
    QCOMPARE(messagesOf(errors), remaining);
    const auto warnings = std::count_if(remaining.cbegin(), remaining.cend(), [](const auto &m) {
        return m.first == ErrorMessage::Warning;
    });
    QCOMPARE(errors.warnsCount(), quint64(warnings));
    QCOMPARE(errors.count(), quint64(messages.size()));
}

void TestExifRunnerRemoveOperations::stripRemovesUserTagsAndKeepsThePicture_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QStringList>("expectedArguments");

    const QStringList tail{QStringLiteral("-n"), QStringLiteral("-X"), QStringLiteral("-o")};
    QTest::newRow("jpeg") << QStringLiteral("jpg") << QStringList{QStringLiteral("-all=")} + tail;
    QTest::newRow("tiff") << QStringLiteral("tif")
                          << QStringList{QStringLiteral("-all="), QStringLiteral("-CommonIFD0=")} +
                                 tail;
    QTest::newRow("photoshop") << QStringLiteral("psd")
                               << QStringList{QStringLiteral("-all=")} + tail;
}

void TestExifRunnerRemoveOperations::stripRemovesUserTagsAndKeepsThePicture()
{
    QFETCH(QString, suffix);
    QFETCH(QStringList, expectedArguments);

    const QString path = m_dir.filePath(QStringLiteral("strip ") + suffix + u'.' + suffix);
    if (suffix == QLatin1String("psd")) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(photoshopFile(16, 8));
        file.close();
        QStringList arguments{QStringLiteral("-overwrite_original")};
        arguments << UserTagArguments.filter(QStringLiteral("XMP"))
                  << QStringLiteral("-IPTC:Keywords=sea") << path;
        QVERIFY(Fixtures::runExifTool(arguments).ok());
    } else {
        const QString error = Fixtures::makeImage(path, UserTagArguments);
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }
    const QByteArray before = fileBytes(path);
    const QImage pictureBefore(path);
    const ExifFileInfoPtr file = loaded(path);
    QVERIFY(!keysWithPrefixes(file->exifData(), UserTagPrefixes).isEmpty());

    auto op = operation(QStringLiteral("metadata"), file);
    op->run();

    QCOMPARE(m_session.writes.size(), 1);
    const QStringList arguments = m_session.writes.first();
    QCOMPARE(arguments.mid(0, expectedArguments.size()), expectedArguments);
    QCOMPARE(arguments.size(), expectedArguments.size() + 2);
    QCOMPARE(arguments.last(), path);

    QVERIFY(op->errors());
    QVERIFY2(op->errors()->errorsCount() == 0,
             qPrintable(op->errors()->messages().value(0, ErrorMessage({}, {}, 0)).message()));
    const TagDictionary after = readTags(path);
    QCOMPARE(keysWithPrefixes(after, UserTagPrefixes), QStringList());
    QCOMPARE(after.value(QStringLiteral("File:MIMEType")),
             file->originalExifData().value(QStringLiteral("File:MIMEType")));

    // The record holds what is on disk now, with nothing left pending.
    QCOMPARE(keysWithPrefixes(file->exifData(), UserTagPrefixes), QStringList());
    QCOMPARE(file->exifData(), file->originalExifData());
    QVERIFY(op->oldData());

    if (suffix == QLatin1String("psd")) {
        const QByteArray planes = photoshopFile(16, 8).right(3 * 16 * 8);
        QVERIFY(fileBytes(path).endsWith(planes));
        QVERIFY(before.endsWith(planes));
    } else {
        const QImage pictureAfter(path);
        QVERIFY(!pictureAfter.isNull());
        QCOMPARE(pictureAfter.size(), pictureBefore.size());
        QCOMPARE(pictureAfter.convertToFormat(QImage::Format_RGB32),
                 pictureBefore.convertToFormat(QImage::Format_RGB32));
    }
}

void TestExifRunnerRemoveOperations::pngIsNeverHandedToExifTool()
{
    const QString path = m_dir.filePath(QStringLiteral("left.png"));
    QVERIFY(Fixtures::makeImage(path, {QStringLiteral("-XMP-dc:Title=Kept")}).isEmpty());
    const QByteArray before = fileBytes(path);
    const ExifFileInfoPtr file = loaded(path);
    QCOMPARE(file->exifValue(QStringLiteral("File:MIMEType")), QStringLiteral("image/png"));

    auto op = operation(QStringLiteral("metadata"), file);
    op->run();

    QVERIFY(m_session.writes.isEmpty());
    QVERIFY(!op->errors());
    QCOMPARE(fileBytes(path), before);
    QCOMPARE(file->exifValue(QStringLiteral("XMP-dc:Title")), QStringLiteral("Kept"));
}

void TestExifRunnerRemoveOperations::ifd0WarningsHiddenExceptOnJpeg_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<quint64>("warnings");
    QTest::newRow("tiff hides both") << QStringLiteral("tif") << quint64(0);
    QTest::newRow("jpeg keeps both") << QStringLiteral("jpg") << quint64(2);
}

void TestExifRunnerRemoveOperations::ifd0WarningsHiddenExceptOnJpeg()
{
    QFETCH(QString, suffix);
    QFETCH(quint64, warnings);
    const QString path = m_dir.filePath(QStringLiteral("warned.") + suffix);
    QVERIFY(Fixtures::makeImage(path, {QStringLiteral("-IFD0:Artist=Ann")}).isEmpty());
    const ExifFileInfoPtr file = loaded(path);

    m_session.mode = RecordingSession::Mode::AddIFD0Warnings;
    auto op = operation(QStringLiteral("metadata"), file);
    op->run();

    QVERIFY(op->errors());
    QCOMPARE(op->errors()->errorsCount(), quint64(0));
    QCOMPARE(op->errors()->warnsCount(), warnings);
    QCOMPARE(quint64(op->errors()->messages().size()), warnings);
    QVERIFY(!readTags(path).contains(QStringLiteral("IFD0:Artist")));
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

    const QString path = m_dir.filePath(QStringLiteral("maker %d notes.jpg"));
    const QString error = makeMakerNotesImage(path, makerNotes);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    const QImage pictureBefore(path);
    const ExifFileInfoPtr file = loaded(path);
    QCOMPARE(file->exifValue(QStringLiteral("IFD0:Make")), QStringLiteral("Canon"));
    const auto warningsOf = [&path] {
        return QString::fromUtf8(
            Fixtures::runExifTool({QStringLiteral("-a"), QStringLiteral("-Warning"), path}).out);
    };
    QCOMPARE(file->exifData().contains(QStringLiteral("Canon:CanonImageType")), readable);
    QCOMPARE(warningsOf().contains(QStringLiteral("MakerNotes")), !readable);

    auto op = operation(QStringLiteral("makernotes"), file);
    op->run();

    const QStringList designed{QStringLiteral("-n"),           QStringLiteral("-X"),
                               QStringLiteral("-make="),       QStringLiteral("-model="),
                               QStringLiteral("-makernotes="), QStringLiteral("-o")};
    QList<QStringList> expected{designed};
    if (!readable) {
        expected.prepend({QStringLiteral("-n"), QStringLiteral("-X"),
                          QStringLiteral("-MakerNotes:all="), QStringLiteral("-o")});
    }
    QCOMPARE(m_session.writes.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QStringList &arguments = m_session.writes.at(i);
        QCOMPARE(arguments.mid(0, expected.at(i).size()), expected.at(i));
        QCOMPARE(arguments.size(), expected.at(i).size() + 2);
        QCOMPARE(arguments.last(), path);
    }

    QVERIFY(op->errors());
    QCOMPARE(op->errors()->errorsCount(), quint64(0));
    const TagDictionary after = readTags(path);
    QCOMPARE(keysWithPrefixes(after, {QStringLiteral("IFD0:Make"), QStringLiteral("IFD0:Model"),
                                      QStringLiteral("Canon:"), QStringLiteral("File:MakerNote"),
                                      QStringLiteral("ExifIFD:MakerNote")}),
             QStringList());
    QCOMPARE(after.value(QStringLiteral("IFD0:Artist")), QStringLiteral("Ann"));
    QVERIFY(!warningsOf().contains(QStringLiteral("MakerNotes")));
    QVERIFY(!file->exifData().contains(QStringLiteral("IFD0:Make")));
    QCOMPARE(file->exifData(), file->originalExifData());
    QCOMPARE(QImage(path), pictureBefore);
}

void TestExifRunnerRemoveOperations::failingExifToolKeepsTheOriginal_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("strip") << QStringLiteral("metadata");
    QTest::newRow("maker notes") << QStringLiteral("makernotes");
}

void TestExifRunnerRemoveOperations::failingExifToolKeepsTheOriginal()
{
    QFETCH(QString, kind);
    const QString path = m_dir.filePath(QStringLiteral("kept-") + kind + QStringLiteral(".jpg"));
    QVERIFY(
        Fixtures::makeImage(path, {QStringLiteral("-Make=Canon"), QStringLiteral("-Artist=Ann")})
            .isEmpty());
    const QByteArray before = fileBytes(path);
    const ExifFileInfoPtr file = loaded(path);

    m_session.mode = RecordingSession::Mode::FailWrites;
    auto op = operation(kind, file);
    op->run();

    QCOMPARE(m_session.writes.size(), 1);
    QCOMPARE(fileBytes(path), before);
    QVERIFY(op->errors());
    QVERIFY(op->errors()->errorsCount() >= 1);
    QVERIFY(
        op->errors()->messages().first().message().startsWith(QStringLiteral("Simulated failure")));
    // Re-read all the same: the record shows what is still on disk.
    QCOMPARE(file->exifValue(QStringLiteral("IFD0:Artist")), QStringLiteral("Ann"));
    QCOMPARE(file->exifValue(QStringLiteral("IFD0:Make")), QStringLiteral("Canon"));
    const QStringList leftovers = QDir(m_dir.path())
                                      .entryList(QStringList{QStringLiteral("*exiftool_*")},
                                                 QDir::AllEntries | QDir::Hidden | QDir::System);
    QCOMPARE(leftovers, QStringList());
}

void TestExifRunnerRemoveOperations::previousModificationDateIsKept_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("makerNotes");
    QTest::newRow("strip") << QStringLiteral("metadata") << ReadableNotes;
    QTest::newRow("maker notes") << QStringLiteral("makernotes") << ReadableNotes;
    // Two passes: the second must not take the first one's date for the original's.
    QTest::newRow("undecodable maker notes") << QStringLiteral("makernotes") << BrokenNotes;
}

void TestExifRunnerRemoveOperations::previousModificationDateIsKept()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, makerNotes);
    UserSettings::setValue(UserSettings::FileModifyDate, 1);
    const QString path =
        m_dir.filePath(QStringLiteral("dated-") + QString::fromLatin1(QTest::currentDataTag()) +
                       QStringLiteral(".jpg"));
    const QString error = makeMakerNotesImage(path, makerNotes);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    const timespec times[2] = {{1273000000, 0}, {1273000000, 123456789}};
    QCOMPARE(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    const ExifFileInfoPtr file = loaded(path);

    auto op = operation(kind, file);
    op->run();

    QVERIFY(op->errors());
    QCOMPARE(op->errors()->errorsCount(), quint64(0));
    QVERIFY(!readTags(path).contains(QStringLiteral("IFD0:Make")));
    struct stat st
    {
    };
    QCOMPARE(stat(QFile::encodeName(path).constData(), &st), 0);
    QCOMPARE(qint64(st.st_mtim.tv_sec), qint64(1273000000));
    QCOMPARE(qint64(st.st_mtim.tv_nsec), qint64(123456789));
}

QTEST_GUILESS_MAIN(TestExifRunnerRemoveOperations)
#include "tst_exifrunnerremoveoperations.moc"
