#include "engine/metadataclipboard.h"

#include "catalogue/exiffieldscontroller.h"
#include "values/usersettings.h"

#include <QTemporaryDir>
#include <QtTest>

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

    // Saving a paste to disk is checked through the main window; here, what a paste takes.
    void chosenSectionLeavesFileSpecificTagsBehind()
    {
        ExifFileInfo source(u"/source.jpg"_qs);
        source.setReadData({{u"IPTC:Caption-Abstract"_qs, u"Harbour at dawn"_qs},
                            {u"IPTC:Headline"_qs, u"Boats"_qs},
                            {u"IFD0:DocumentName"_qs, u"source-doc"_qs},
                            {u"ExifIFD:ImageUniqueID"_qs, u"AAAA1111"_qs},
                            {u"IFD0:Artist"_qs, u"Jane Source"_qs}});
        MetadataClipboard clipboard;
        clipboard.copyFrom(source);
        QVERIFY(!clipboard.values().contains(u"IFD0:DocumentName"_qs));
        QVERIFY(!clipboard.values().contains(u"ExifIFD:ImageUniqueID"_qs));

        ExifFileInfo target(u"/target.jpg"_qs);
        target.setReadData(
            {{u"IFD0:DocumentName"_qs, u"own"_qs}, {u"IFD0:Artist"_qs, u"Owner"_qs}});
        MetadataSelection caption;
        caption.sections.insert(MetadataSelection::sectionKey(u"Description"_qs, u"Caption"_qs));
        QStringList changed = clipboard.pasteInto(target, caption);
        changed.sort();
        QCOMPARE(changed, (QStringList{u"IPTC:Caption-Abstract"_qs, u"IPTC:Headline"_qs}));
        QCOMPARE(target.exifValue(u"IPTC:Caption-Abstract"_qs), u"Harbour at dawn"_qs);
        // Outside the section, and file-specific inside it: the target's own.
        QCOMPARE(target.exifValue(u"IFD0:Artist"_qs), u"Owner"_qs);
        QCOMPARE(target.exifValue(u"IFD0:DocumentName"_qs), u"own"_qs);
        QVERIFY(clipboard.pasteInto(target, caption).isEmpty());
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
