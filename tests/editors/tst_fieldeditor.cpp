#include "editorfixtures.h"

#include "controls/tokenfield.h"
#include "editors/stringseditor.h"
#include "editors/texteditor.h"

#include <QLabel>
#include <QtTest>

using namespace EditorFixtures;

static const QString Key = u"XMP-dc:Title"_qs;

class TstFieldEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editOverMixedFilesWritesAllAndPostsOnce()
    {
        Row<TextEditor> row(makeField(Key, FieldDataRepresentation::None));
        const auto files = makeFiles(Key, {u"A"_qs, u"B"_qs, QString()});
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->text(), QString());
        QCOMPARE(row.editor.editor()->placeholderText(), u"Multiple values"_qs);
        QVERIFY(!row.editor.label()->font().bold());

        // Focus passing through an untouched row writes nothing.
        row.editor.editor()->setFocus();
        QTest::keyClick(row.editor.editor(), Qt::Key_Return);
        QCOMPARE(currentValues(files, Key), (QStringList{u"A"_qs, u"B"_qs, u"<absent>"_qs}));

        auto spy = updateSpy(row.session);
        typeAndCommit(row.editor.editor(), u"Harbour at dusk"_qs);

        QCOMPARE(currentValues(files, Key), QStringList(3, u"Harbour at dusk"_qs));
        QCOMPARE(currentValues(files, u"IFD0:Make"_qs), QStringList(3, u"Canon"_qs));
        QCOMPARE(spy.size(), 1);
        const ExifFilesUpdate update = updateAt(spy, 0);
        QCOMPARE(update.xmlName, Key);
        QCOMPARE(update.changedFiles, files);
        QCOMPARE(update.newValue, std::optional<QString>(u"Harbour at dusk"_qs));
        QCOMPARE(update.exifFiles, files);
        QCOMPARE(update.source, &row.editor);
        QVERIFY(row.editor.label()->font().bold());
    }

    void copyReportsDifferenceFromOriginals_data()
    {
        QTest::addColumn<QStringList>("originals");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("changed");
        QTest::newRow("all equal originals") << QStringList(3, u"A"_qs) << u"A"_qs << false;
        QTest::newRow("one gains the tag") << QStringList{u"A"_qs, QString()} << u"A"_qs << true;
        QTest::newRow("removing absent tags") << QStringList(2, QString()) << u"  "_qs << false;
    }

    void copyReportsDifferenceFromOriginals()
    {
        QFETCH(QStringList, originals);
        QFETCH(QString, typed);
        QFETCH(bool, changed);

        Row<TextEditor> row(makeField(Key, FieldDataRepresentation::None));
        const auto files = makeFiles(Key, originals);
        row.editor.setExifFiles(files);
        row.editor.editor()->selectAll();
        QTest::keyClicks(row.editor.editor(), typed);
        QCOMPARE(row.editor.copyToExifFiles(files), changed);
        QCOMPARE(row.editor.isModified(), changed);
    }

    // The form reads large selections through a snapshot's columns; a row must come out the
    // same as from looking each file up. Edits per file: "=" untouched, "-" tag removed,
    // "~" another tag edited, "*" set again to its own value, else the new value.
    void snapshotColumnsMatchPerFileLookups_data()
    {
        QTest::addColumn<QStringList>("originals");
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<int>("distinct");
        QTest::addColumn<bool>("modified");
        const QString none;
        QTest::newRow("untouched") << QStringList{u"A"_qs, u"A"_qs, none}
                                   << QStringList{u"="_qs, u"="_qs, u"="_qs} << 2 << false;
        QTest::newRow("other tag and same value")
            << QStringList{u"A"_qs, u"A"_qs} << QStringList{u"~"_qs, u"*"_qs} << 1 << false;
        QTest::newRow("one changed")
            << QStringList{u"A"_qs, u"A"_qs} << QStringList{u"="_qs, u"B"_qs} << 2 << true;
        QTest::newRow("one removed")
            << QStringList{u"A"_qs, u"A"_qs} << QStringList{u"~"_qs, u"-"_qs} << 2 << true;
        QTest::newRow("one gains it")
            << QStringList{none, u"A"_qs} << QStringList{u"A"_qs, u"="_qs} << 1 << true;
    }

    void snapshotColumnsMatchPerFileLookups()
    {
        QFETCH(QStringList, originals);
        QFETCH(QStringList, edits);
        QFETCH(int, distinct);
        QFETCH(bool, modified);

        const auto files = makeFiles(Key, originals);
        for (qsizetype i = 0; i < files.size(); ++i) {
            const QString &edit = edits.at(i);
            if (edit == u"-")
                files.at(i)->removeExifValue(Key);
            else if (edit == u"~")
                files.at(i)->setExifValue(u"IFD0:Make"_qs, u"Nikon"_qs);
            else if (edit == u"*")
                files.at(i)->setExifValue(
                    Key, QString(originals.at(i).constData(), originals.at(i).size()));
            else if (edit != u"=")
                files.at(i)->setExifValue(Key, edit);
        }
        Row<TextEditor> row(makeField(Key, FieldDataRepresentation::None));
        row.editor.setExifFiles(files);
        const QSet<QString> values = row.editor.gatherExifFilesValues(files);
        QCOMPARE(values.size(), distinct);
        QCOMPARE(row.editor.isModified(), modified);

        // A form's worth of keys, so the snapshot's own tables grow while it is built.
        QStringList keys{Key, u"XMP-dc:Rights"_qs};
        for (int i = 0; i < 500; ++i)
            keys.append(u"XMP-x:Field%1"_qs.arg(i));
        const ExifFilesSnapshot snapshot(files, keys);
        QVERIFY(snapshot.column(Key));
        QCOMPARE(row.editor.gatherExifFilesValues(files), values);
        QCOMPARE(row.editor.isModified(), modified);
        QCOMPARE(snapshot.column(u"XMP-dc:Rights"_qs)->values, QSet<QString>{QString()});
    }

    void nothingPostedWithoutFiles()
    {
        Row<TextEditor> row(makeField(Key, FieldDataRepresentation::None));
        auto spy = updateSpy(row.session);
        row.editor.sendChangeNotification(u"x"_qs);
        row.editor.setExifFiles(makeFiles(Key, {u"A"_qs}));
        row.editor.clearEditor();
        row.editor.sendChangeNotification(u"x"_qs);
        QCOMPARE(spy.size(), 0);
        QVERIFY(row.editor.editor()->isReadOnly());
    }

    void nikonMakerNotesNeedANefFile_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("suffixes");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("jpeg only") << u"Nikon:Lens"_qs << QStringList{u".jpg"_qs} << false;
        QTest::newRow("one NEF") << u"Nikon:Lens"_qs << QStringList{u".jpg"_qs, u".NEF"_qs} << true;
        QTest::newRow("other makers") << u"Canon:Lens"_qs << QStringList{u".jpg"_qs} << true;
    }

    void nikonMakerNotesNeedANefFile()
    {
        QFETCH(QString, key);
        QFETCH(QStringList, suffixes);
        QFETCH(bool, enabled);

        Row<TextEditor> text(makeField(key, FieldDataRepresentation::None));
        Row<StringsEditor> strings(makeField(key, FieldDataRepresentation::Strings));
        QList<ExifFileInfoPtr> files;
        for (const QString &suffix : suffixes)
            files += makeFiles(key, {u"x"_qs}, suffix);
        text.editor.setExifFiles(files);
        strings.editor.setExifFiles(files);
        QCOMPARE(text.editor.editor()->isEnabled(), enabled);
        QCOMPARE(strings.editor.editor()->isEnabled(), enabled);
    }
};

QTEST_MAIN(TstFieldEditor)
#include "tst_fieldeditor.moc"
