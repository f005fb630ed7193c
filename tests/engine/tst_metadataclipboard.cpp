#include "engine/metadataclipboard.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/metadatareader.h"
#include "engine/exifrunnersaveoperation.h"
#include "engine/exiftoolsession.h"
#include "../support/fixtures.h"
#include "values/usersettings.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QString tagOf(const QString &path, const QString &tag)
{
    const Fixtures::ToolRun run = Fixtures::runExifTool({u"-s3"_qs, u"-n"_qs, u"-"_qs + tag, path});
    return QString::fromUtf8(run.out).trimmed();
}

} // namespace

class TestMetadataClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    // The whole road: copy from one file, paste one section into three, save each through the
    // engine and read the files back with ExifTool.
    void chosenSectionReachesThreeFilesOnDisk()
    {
        const QString source = m_dir.filePath(u"source.jpg"_qs);
        QCOMPARE(Fixtures::makeImage(source, {u"-IPTC:Caption-Abstract=Harbour at dawn"_qs,
                                              u"-IPTC:Headline=Boats"_qs,
                                              u"-IFD0:DocumentName=source-doc"_qs,
                                              u"-ExifIFD:ImageUniqueID=AAAA1111"_qs,
                                              u"-IFD0:Artist=Jane Source"_qs}),
                 QString());
        QList<ExifFileInfoPtr> targets;
        for (int i = 0; i < 3; ++i) {
            const QString path = m_dir.filePath(u"target%1.jpg"_qs.arg(i));
            QCOMPARE(Fixtures::makeImage(path, {u"-IFD0:DocumentName=own-%1"_qs.arg(i),
                                                u"-IFD0:Artist=Owner %1"_qs.arg(i)}),
                     QString());
            targets.append(std::make_shared<ExifFileInfo>(path));
        }
        auto sourceInfo = std::make_shared<ExifFileInfo>(source);
        MetadataReader reader;
        QVERIFY(reader.readRecords(QList<ExifFileInfoPtr>{sourceInfo} + targets).ok());

        MetadataClipboard clipboard;
        clipboard.copyFrom(*sourceInfo);
        QVERIFY(!clipboard.values().contains(u"IFD0:DocumentName"_qs));
        QVERIFY(!clipboard.values().contains(u"ExifIFD:ImageUniqueID"_qs));

        PersistentExifToolSession session(Fixtures::exifTool());
        MetadataSelection caption;
        caption.sections.insert(MetadataSelection::sectionKey(u"Description"_qs, u"Caption"_qs));
        for (const ExifFileInfoPtr &target : std::as_const(targets)) {
            QStringList changed = clipboard.pasteInto(*target, caption);
            changed.sort();
            QCOMPARE(changed, (QStringList{u"IPTC:Caption-Abstract"_qs, u"IPTC:Headline"_qs}));
            // Nothing is written by a paste; pasting again changes nothing more.
            QCOMPARE(tagOf(target->fileName(), u"IPTC:Headline"_qs), QString());
            QVERIFY(clipboard.pasteInto(*target, caption).isEmpty());

            auto save = ExifRunnerSaveOperation::create(target, ExifOperationOption::ReReadFile);
            QVERIFY(save);
            save->setExifToolSession(&session);
            save->run();
            QCOMPARE(save->errors()->errorsCount(), quint64(0));
        }
        for (int i = 0; i < 3; ++i) {
            const QString path = targets.at(i)->fileName();
            QCOMPARE(tagOf(path, u"IPTC:Caption-Abstract"_qs), u"Harbour at dawn"_qs);
            QCOMPARE(tagOf(path, u"IPTC:Headline"_qs), u"Boats"_qs);
            // Outside the section, and file-specific inside it: the target's own.
            QCOMPARE(tagOf(path, u"IFD0:Artist"_qs), u"Owner %1"_qs.arg(i));
            QCOMPARE(tagOf(path, u"IFD0:DocumentName"_qs), u"own-%1"_qs.arg(i));
        }
    }

    void everythingNeverCarriesFileSpecificTagsNorAnotherMakesNotes()
    {
        auto source = std::make_shared<ExifFileInfo>(u"/a.jpg"_qs);
        source->setReadData({{u"IFD0:Make"_qs, u"Canon"_qs},
                             {u"IFD0:Artist"_qs, u"Jane"_qs},
                             {u"Canon:OwnerName"_qs, u"Jane's camera"_qs},
                             {u"ExifIFD:ExifImageWidth"_qs, u"6000"_qs},
                             {u"ExifIFD:ImageUniqueID"_qs, u"AAAA"_qs},
                             {u"System:FileName"_qs, u"a.jpg"_qs}});
        MetadataClipboard clipboard;
        clipboard.copyFrom(*source);
        MetadataSelection everything;
        everything.everything = true;

        const TagDictionary nikonValues{{u"IFD0:Make"_qs, u"NIKON CORPORATION"_qs},
                                        {u"ExifIFD:ExifImageWidth"_qs, u"4000"_qs},
                                        {u"System:FileName"_qs, u"b.jpg"_qs}};
        ExifFileInfo nikon(u"/b.jpg"_qs);
        nikon.setReadData(nikonValues);
        QStringList changed = clipboard.pasteInto(nikon, everything);
        changed.sort();
        // Make is a camera fact, not a file's: it travels like the artist.
        QCOMPARE(changed, (QStringList{u"IFD0:Artist"_qs, u"IFD0:Make"_qs}));
        QCOMPARE(nikon.exifValue(u"ExifIFD:ExifImageWidth"_qs), u"4000"_qs);
        QCOMPARE(nikon.exifValue(u"System:FileName"_qs), u"b.jpg"_qs);
        QVERIFY(!nikon.hasExifValue(u"Canon:OwnerName"_qs));
        QVERIFY(!nikon.hasExifValue(u"ExifIFD:ImageUniqueID"_qs));

        ExifFileInfo canon(u"/c.jpg"_qs);
        canon.setReadData({{u"IFD0:Make"_qs, u"Canon"_qs}});
        QVERIFY(clipboard.pasteInto(canon, everything).contains(u"Canon:OwnerName"_qs));
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestMetadataClipboard)
#include "tst_metadataclipboard.moc"
