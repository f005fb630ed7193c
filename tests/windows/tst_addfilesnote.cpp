#include "windows/addfilesnote.h"

#include <QToolButton>
#include <QtTest>

using Reason = FileRejection::Reason;

class TestAddFilesNote : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summaryCountsRejections_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("summary");
        QTest::addColumn<bool>("isVisible");
        QTest::newRow("none") << 0 << QString() << false;
        QTest::newRow("one") << 1 << u"1 file was not added."_qs << true;
        QTest::newRow("many") << 1200 << u"1200 files were not added."_qs << true;
    }

    void summaryCountsRejections()
    {
        QFETCH(int, count);
        QWidget list;
        list.resize(400, 300);
        list.show();
        AddFilesNote note(&list);
        QList<FileRejection> rejected;
        for (int i = 0; i < count; ++i)
            rejected.append({QStringLiteral("/p/%1.txt").arg(i), Reason::Unsupported});
        note.showRejections(rejected);
        QTEST(note.summaryText(), "summary");
        QTEST(note.isVisible(), "isVisible");
    }

    void detailsListEveryPathWithItsReason()
    {
        QWidget list;
        list.resize(400, 300);
        list.show();
        AddFilesNote note(&list);
        note.showRejections({{u"/a/notes.txt"_qs, Reason::Unsupported},
                             {u"/a/secret.jpg"_qs, Reason::Unreadable},
                             {u"/a/x.jpg"_qs, Reason::AlreadyInList},
                             {u"/a/.cache"_qs, Reason::Hidden},
                             {u"/gone.jpg"_qs, Reason::Missing},
                             {u"/a/./x.jpg"_qs, Reason::SameFile, u"/a/x.jpg"_qs},
                             {u"/b/x.jpg"_qs, Reason::SameFileInList, u"/a/x.jpg"_qs},
                             {u"/a/caf\ufffd.jpg"_qs, Reason::InvalidName}});
        QVERIFY(!note.isShowingDetails());
        note.detailsButton()->click();
        QVERIFY(note.isShowingDetails());
        QCOMPARE(note.detailLines(),
                 QStringList({u"/a/notes.txt \u2014 unsupported type"_qs,
                              u"/a/secret.jpg \u2014 unreadable"_qs,
                              u"/a/x.jpg \u2014 already in the list"_qs,
                              u"/a/.cache \u2014 hidden"_qs, u"/gone.jpg \u2014 not found"_qs,
                              u"/a/./x.jpg \u2014 the same file as /a/x.jpg"_qs,
                              u"/b/x.jpg \u2014 the same file as /a/x.jpg, already in the list"_qs,
                              u"/a/caf\ufffd.jpg \u2014 its name is not valid UTF-8, so it "
                              u"cannot be opened"_qs}));

        // Stays inside the list when it is resized.
        list.resize(300, 500);
        QVERIFY(list.rect().contains(note.geometry()));

        // The next add replaces the note and folds the details away; nothing rejected hides it.
        note.showRejections({{u"/b.txt"_qs, Reason::Unsupported}});
        QCOMPARE(note.detailLines(), QStringList{u"/b.txt \u2014 unsupported type"_qs});
        QVERIFY(!note.isShowingDetails());
        note.closeButton()->click();
        QVERIFY(!note.isVisible());
        note.showRejections({{u"/c.txt"_qs, Reason::Unsupported}});
        QVERIFY(note.isVisible());
        note.showRejections({});
        QVERIFY(!note.isVisible());
    }
};

QTEST_MAIN(TestAddFilesNote)
#include "tst_addfilesnote.moc"
