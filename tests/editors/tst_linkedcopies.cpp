#include "editorfixtures.h"

#include "catalogue/exiffieldscontroller.h"
#include "controls/tokenfield.h"
#include "editors/stringseditor.h"
#include "editors/texteditor.h"
#include "engine/exifutil.h"
#include "engine/metadatareader.h"
#include "engine/writequeue.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

namespace {

const QString Description = QStringLiteral("XMP-dc:Description");
const QString Caption = QStringLiteral("IPTC:Caption-Abstract");
const QString ImageDescription = QStringLiteral("IFD0:ImageDescription");
const QStringList CaptionCopies{Description, Caption, ImageDescription};

using Values = QMap<QString, QString>;

// The copies on disk as ExifTool reads them; "<absent>" for a missing one.
Values copiesOnDisk(const QString &path, const QStringList &keys)
{
    const QJsonObject read =
        QJsonDocument::fromJson(Fixtures::runExifTool({u"-j"_qs, u"-G1"_qs, u"-charset"_qs,
                                                       u"iptc=UTF8"_qs, u"--"_qs, path})
                                    .out)[0]
            .toObject();
    Values values;
    for (const QString &key : keys) {
        const QJsonValue value = read.value(key);
        values.insert(key, value.isUndefined() ? u"<absent>"_qs : value.toVariant().toString());
    }
    return values;
}

Values sameIn(const QStringList &keys, const QString &value)
{
    Values values;
    for (const QString &key : keys)
        values.insert(key, value);
    return values;
}

QStringList writeArguments(const Values &values)
{
    // No IPTC record at all unless a value asks for one.
    const bool iptc = std::any_of(values.keyBegin(), values.keyEnd(),
                                  [](const QString &key) { return key.startsWith(u"IPTC:"); });
    QStringList arguments{u"-charset"_qs, u"iptc=UTF8"_qs};
    if (iptc)
        arguments.append(u"-IPTC:CodedCharacterSet=UTF8"_qs);
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        arguments.append(u'-' + it.key() + u'=' + it.value());
    return arguments;
}

} // namespace

// One row for a property kept in XMP, IPTC-IIM and EXIF: what it shows, what one edit writes to
// the files, and how copies that disagree are shown and made to agree.
class TestLinkedCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    void oneEditWritesEveryCopy_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<Values>("before");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QStringList>("copies");
        QTest::newRow("no caption") << u"jpg"_qs << Values{} << QString() << CaptionCopies;
        QTest::newRow("a TIFF") << u"tif"_qs << Values{} << QString() << CaptionCopies;
        // No IPTC record where none belongs: ExifTool cannot write one into a WebP, and one in
        // a PNG is read by no other program.
        QTest::newRow("a PNG") << u"png"_qs << Values{} << QString()
                               << QStringList{Description, ImageDescription};
        QTest::newRow("a WebP") << u"webp"_qs << Values{} << QString()
                                << QStringList{Description, ImageDescription};
        // A record another program put there is kept in step.
        QTest::newRow("a PNG with an IPTC caption")
            << u"png"_qs << Values{{Caption, u"Old"_qs}} << u"Old"_qs << CaptionCopies;
        QTest::newRow("an IPTC caption only")
            << u"jpg"_qs << Values{{Caption, u"Old IPTC caption"_qs}} << u"Old IPTC caption"_qs
            << CaptionCopies;
        QTest::newRow("an EXIF caption only")
            << u"jpg"_qs << Values{{ImageDescription, u"DCIM"_qs}} << u"DCIM"_qs << CaptionCopies;
        QTest::newRow("three copies that agree")
            << u"jpg"_qs << sameIn(CaptionCopies, u"Same"_qs) << u"Same"_qs << CaptionCopies;
    }
    void oneEditWritesEveryCopy()
    {
        QFETCH(QString, suffix);
        QFETCH(Values, before);
        QFETCH(QString, shown);
        QFETCH(QStringList, copies);
        const QString path =
            m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()) + u'.' + suffix);
        QCOMPARE(Fixtures::makeImage(path, writeArguments(before)), QString());
        const QList<ExifFileInfoPtr> files{std::make_shared<ExifFileInfo>(path)};
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(files).ok());

        EditorFixtures::Row<TextEditor> row(
            ExifFieldsController::defaultInstance()->field(Description));
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->text(), shown.isNull() ? QString(u""_qs) : shown);
        QVERIFY(row.editor.copiesMark()->isHidden());

        const QString typed = u"Harbour at dawn, Łódź — “quoted”"_qs;
        QLineEdit *edit = row.editor.editor();
        edit->setFocus();
        edit->selectAll();
        // Typed as a user's input method gives it: key clicks carry Latin-1 only.
        edit->insert(typed);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(isExifFileModified(*files.first()));
        save(files);
        Values expected = sameIn(copies, typed);
        for (const QString &key : CaptionCopies) {
            if (!copies.contains(key))
                expected.insert(key, u"<absent>"_qs);
        }
        QCOMPARE(copiesOnDisk(path, CaptionCopies), expected);
    }

    void disagreeingCopiesAreShownAndResolved_data()
    {
        QTest::addColumn<QList<Values>>("files");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QStringList>("result");
        const Values harbour{{Description, u"Harbour at dawn"_qs}, {Caption, u"Harbour"_qs}};
        QTest::newRow("XMP chosen")
            << QList<Values>{harbour} << Description << QStringList{u"Harbour at dawn"_qs};
        QTest::newRow("IPTC chosen")
            << QList<Values>{harbour} << Caption << QStringList{u"Harbour"_qs};
        // Each file takes its own EXIF copy, a file without one the value its row shows; a
        // file whose copies agree is left alone.
        QTest::newRow("three files, EXIF chosen")
            << QList<Values>{harbour,
                             {{Description, u"Pier"_qs}, {ImageDescription, u"Old pier"_qs}},
                             sameIn(CaptionCopies, u"Beach"_qs)}
            << ImageDescription << QStringList{u"Harbour at dawn"_qs, u"Old pier"_qs, u"Beach"_qs};
    }
    void disagreeingCopiesAreShownAndResolved()
    {
        QFETCH(QList<Values>, files);
        QFETCH(QString, chosen);
        QFETCH(QStringList, result);
        QList<ExifFileInfoPtr> infos;
        for (qsizetype i = 0; i < files.size(); ++i) {
            const QString path = m_dir.filePath(
                u"%1-%2.jpg"_qs.arg(QString::fromLatin1(QTest::currentDataTag())).arg(i));
            QCOMPARE(Fixtures::makeImage(path, writeArguments(files.at(i))), QString());
            infos.append(std::make_shared<ExifFileInfo>(path));
        }
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(infos).ok());

        EditorFixtures::Row<TextEditor> row(
            ExifFieldsController::defaultInstance()->field(Description));
        row.editor.setExifFiles(infos);
        QToolButton *mark = row.editor.copiesMark();
        QVERIFY(mark->isVisible());
        // The tooltip names each copy of the first file that disagrees, with its text.
        for (auto it = files.first().cbegin(); it != files.first().cend(); ++it) {
            QVERIFY2(mark->toolTip().contains(it.key()) && mark->toolTip().contains(it.value()),
                     qPrintable(mark->toolTip()));
        }

        row.editor.useCopyEverywhere(chosen);
        QVERIFY(mark->isHidden());
        QVERIFY(!row.editor.copiesMark()->isVisible());
        for (qsizetype i = 0; i < infos.size(); ++i) {
            const bool agreedBefore = files.at(i) == sameIn(CaptionCopies, result.at(i));
            QCOMPARE(isExifFileModified(*infos.at(i)), !agreedBefore);
        }
        save(infos);
        for (qsizetype i = 0; i < infos.size(); ++i) {
            QCOMPARE(copiesOnDisk(infos.at(i)->fileName(), CaptionCopies),
                     sameIn(CaptionCopies, result.at(i)));
        }
    }

    // Two creators typed: both lists get them, EXIF's one text gets them joined.
    void creatorsReachEveryCopy()
    {
        const QString path = m_dir.filePath(u"creators.jpg"_qs);
        QCOMPARE(Fixtures::makeImage(path, writeArguments({{u"IFD0:Artist"_qs, u"Old Name"_qs}})),
                 QString());
        const QList<ExifFileInfoPtr> files{std::make_shared<ExifFileInfo>(path)};
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(files).ok());
        EditorFixtures::Row<StringsEditor> row(
            ExifFieldsController::defaultInstance()->field(u"XMP-dc:Creator"_qs));
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->text(), u"Old Name"_qs);
        QLineEdit *edit = row.editor.editor()->lineEdit();
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_Backspace); // the token typed before
        QTest::keyClick(edit, Qt::Key_Backspace);
        for (const QString &name : {u"Ann Smith"_qs, u"Bob Jones"_qs}) {
            QTest::keyClicks(edit, name);
            QTest::keyClick(edit, Qt::Key_Return);
        }
        QCOMPARE(row.editor.editor()->tokens(), (QStringList{u"Ann Smith"_qs, u"Bob Jones"_qs}));
        save(files);
        const QJsonObject read =
            QJsonDocument::fromJson(
                Fixtures::runExifTool({u"-j"_qs, u"-G1"_qs, u"--"_qs, path}).out)[0]
                .toObject();
        for (const QString &list : {u"XMP-dc:Creator"_qs, u"IPTC:By-line"_qs})
            QCOMPARE(read.value(list).toVariant().toStringList(),
                     (QStringList{u"Ann Smith"_qs, u"Bob Jones"_qs}));
        QCOMPARE(read.value(u"IFD0:Artist"_qs).toString(), u"Ann Smith; Bob Jones"_qs);
    }

    // The row writes By-line too, so a creator longer than IPTC keeps is flagged while typing
    // and the save leaves the file as it was.
    void aCreatorOverTheIptcLimitIsRefused()
    {
        const QString path = m_dir.filePath(u"creator.jpg"_qs);
        QCOMPARE(Fixtures::makeImage(path, writeArguments({{u"IPTC:By-line"_qs, u"Ann"_qs}})),
                 QString());
        const QByteArray bytes = Fixtures::readBytes(path);
        const QList<ExifFileInfoPtr> files{std::make_shared<ExifFileInfo>(path)};
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(files).ok());

        EditorFixtures::Row<StringsEditor> row(
            ExifFieldsController::defaultInstance()->field(u"XMP-dc:Creator"_qs));
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->text(), u"Ann"_qs);
        QLineEdit *edit = row.editor.editor()->lineEdit();
        edit->setFocus();
        const QString name = u"Anna-Katharina Müller-Lüdenscheidt"_qs;
        edit->insert(name);
        QVERIFY(row.editor.bytesLeftLabel()->isVisible());
        QCOMPARE(row.editor.bytesLeftLabel()->text(), u"4 bytes too many"_qs);
        QTest::keyClick(edit, Qt::Key_Return);

        const auto listener = RunListener::save(files);
        QVERIFY(listener->messages(path).join(u'\n').contains(u"longer than IPTC allows"));
        QCOMPARE(Fixtures::readBytes(path), bytes);
    }

private:
    void save(const QList<ExifFileInfoPtr> &files)
    {
        const auto listener = RunListener::save(files);
        for (const ExifFileInfoPtr &file : files) {
            QCOMPARE(listener->messages(file->fileName()), QStringList());
            QVERIFY(!isExifFileModified(*file));
        }
    }

    QTemporaryDir m_dir;
};

QTEST_MAIN(TestLinkedCopies)
#include "tst_linkedcopies.moc"
