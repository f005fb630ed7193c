#include "../editors/editorfixtures.h"

#include "catalogue/exiffieldscontroller.h"
#include "controls/tokenfield.h"
#include "editors/stringseditor.h"
#include "windows/reviewchangesmodel.h"
#include "windows/reviewchangeswindow.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

namespace {

const QString Software = u"IFD0:Software"_qs;
const QString Title = u"XMP-dc:Title"_qs;
const QString Taken = u"ExifIFD:DateTimeOriginal"_qs;
const QString Keywords = u"IPTC:Keywords"_qs;

ExifFileInfoPtr makeFile(const QString &path, const TagDictionary &original)
{
    auto file = std::make_shared<ExifFileInfo>(path);
    file->setReadData(original);
    return file;
}

// "file | key | on disk | after saving" per row, in the model's order, and "| over N" for a
// value longer than IPTC's N bytes.
QStringList rowsOf(const QAbstractItemModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells{model.index(row, 0).data().toString(),
                          model.index(row, 0).data(ReviewChangesModel::KeyRole).toString(),
                          model.index(row, 2).data().toString(),
                          model.index(row, 3).data().toString()};
        if (const int limit = model.index(row, 3).data(ReviewChangesModel::OverLimitRole).toInt())
            cells << u"over "_qs + QString::number(limit);
        rows << cells.join(u" | "_qs);
    }
    return rows;
}

} // namespace

class TestReviewChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ExifFieldsController::defaultInstance()->initializeConfigurations(); }

    void rowsShowWhatTheSaveWillWrite_data()
    {
        QTest::addColumn<TagDictionary>("original");
        QTest::addColumn<TagDictionary>("current");
        QTest::addColumn<QStringList>("rows");

        const TagDictionary disk{
            {Software, u"Old"_qs}, {Taken, u"2010:05:01 10:00:00"_qs}, {Keywords, u"a, b"_qs}};
        TagDictionary changed = disk;
        changed.insert(Software, u"New"_qs);
        QTest::newRow("changed") << disk << changed
                                 << QStringList{u"a.jpg | IFD0:Software | Old | New"_qs};
        TagDictionary added = disk;
        added.insert(Title, u"Hello"_qs);
        QTest::newRow("added") << disk << added
                               << QStringList{u"a.jpg | XMP-dc:Title |  | Hello"_qs};
        TagDictionary removed = disk;
        removed.remove(Keywords);
        QTest::newRow("removed") << disk << removed
                                 << QStringList{u"a.jpg | IPTC:Keywords | a, b | (removed)"_qs};
        TagDictionary blanked = disk;
        blanked.insert(Software, QString());
        QTest::newRow("blanked") << disk << blanked
                                 << QStringList{u"a.jpg | IFD0:Software | Old | (removed)"_qs};
        TagDictionary shifted = disk;
        shifted.insert(Taken, u"+1d2h"_qs);
        QTest::newRow("date shift")
            << disk << shifted
            << QStringList{u"a.jpg | ExifIFD:DateTimeOriginal | 2010:05:01 10:00:00 | "
                           u"2010:05:02 12:00:00"_qs};
        QTest::newRow("unmodified") << disk << disk << QStringList{};
        // IIM counts bytes: sixteen "é" fill By-line's 32, a 65-byte keyword is one too many.
        TagDictionary atLimit = disk;
        atLimit.insert(u"IPTC:By-line"_qs, QString(16, u'é'));
        QTest::newRow("IIM text at its limit")
            << disk << atLimit << QStringList{u"a.jpg | IPTC:By-line |  | "_qs + QString(16, u'é')};
        TagDictionary overLimit = disk;
        overLimit.insert(Keywords, u"a, "_qs + QString(65, u'k'));
        QTest::newRow("IIM item over its limit")
            << disk << overLimit
            << QStringList{u"a.jpg | IPTC:Keywords | a, b | a, "_qs + QString(65, u'k') +
                           u" | over 64"_qs};
    }

    void rowsShowWhatTheSaveWillWrite()
    {
        QFETCH(TagDictionary, original);
        QFETCH(TagDictionary, current);
        QFETCH(QStringList, rows);
        ExifFileInfoPtr file = makeFile(u"/photos/a.jpg"_qs, original);
        file->setExifData(current);
        ReviewChangesModel model;
        QAbstractItemModelTester tester(&model);
        model.setFiles({file});
        QCOMPARE(rowsOf(model), rows);
        QCOMPARE(model.fileCount(), rows.isEmpty() ? 0 : 1);
    }

    // A keyword typed over files with different lists: each file's row shows its own result.
    void addedKeywordShowsEachFilesList()
    {
        const QList<ExifFileInfoPtr> files{makeFile(u"/photos/a.jpg"_qs, {{Keywords, u"a,b"_qs}}),
                                           makeFile(u"/photos/b.jpg"_qs, {{Keywords, u"c"_qs}}),
                                           makeFile(u"/photos/c.jpg"_qs, {{Keywords, u"new"_qs}})};
        EditorFixtures::Row<StringsEditor> row(
            ExifFieldsController::defaultInstance()->field(Keywords));
        row.editor.setExifFiles(files);
        EditorFixtures::typeAndCommit(row.editor.editor()->lineEdit(), u"new"_qs);

        ReviewChangesModel model;
        QAbstractItemModelTester tester(&model);
        model.setFiles(files);
        QCOMPARE(rowsOf(model), (QStringList{u"a.jpg | IPTC:Keywords | a,b | a,b,new"_qs,
                                             u"b.jpg | IPTC:Keywords | c | c,new"_qs}));
    }

    void filtersAndSave()
    {
        QList<ExifFileInfoPtr> files;
        for (const QString &name : {u"beach.jpg"_qs, u"city.jpg"_qs}) {
            ExifFileInfoPtr file = makeFile(u"/photos/"_qs + name, {{Software, u"Old"_qs}});
            file->setExifValue(Software, u"New"_qs);
            file->setExifValue(Title, u"Title"_qs);
            files << file;
        }
        ReviewChangesWindow window;
        window.setFiles(files);
        QCOMPARE(window.summaryText(), u"4 changes in 2 files"_qs);

        window.fileFilterField()->setText(u"BEA"_qs);
        window.tagFilterField()->setText(u"title"_qs);
        QCOMPARE(rowsOf(*window.table()->model()),
                 QStringList{u"beach.jpg | XMP-dc:Title |  | Title"_qs});
        QCOMPARE(window.summaryText(), u"4 changes in 2 files, 1 shown"_qs);

        QSignalSpy save(&window, &ReviewChangesWindow::saveRequested);
        window.show();
        window.saveButton()->click();
        QCOMPARE(save.count(), 1);
        QVERIFY(!window.isVisible());
    }
};

QTEST_MAIN(TestReviewChanges)
#include "tst_reviewchanges.moc"
