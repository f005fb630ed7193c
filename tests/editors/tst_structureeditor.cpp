#include "editorfixtures.h"

#include "catalogue/exiffieldscontroller.h"
#include "editors/structitemdialog.h"
#include "editors/structureeditor.h"
#include "engine/exifutil.h"
#include "engine/metadatareader.h"
#include "engine/writequeue.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Key = QStringLiteral("XMP-iptcExt:LocationShown");

QString locationsOnDisk(const QString &path)
{
    return QString::fromUtf8(Fixtures::runExifTool(
                                 {u"-struct"_qs, u"-n"_qs, u"-s3"_qs, u'-' + Key, u"--"_qs, path})
                                 .out)
        .trimmed();
}

QStringList shownItems(const QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts.append(list->item(i)->text());
    return texts;
}

} // namespace

// The row of a list of structures over real files: one member of one item edited, items added,
// removed and moved, and a selection whose files hold different items.
class TestStructureEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    // files: each file's locations on disk before; after: the same once the action is saved.
    void onlyTheItemsTouchedChange_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("action");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QStringList>("after");
        const QString vienna = u"{City=Vienna,CountryName=Austria,LocationId=[a,b]}"_qs;
        const QString paris = u"{City=Paris|, France,Sublocation=Left bank}"_qs;
        const QString rome = u"{City=Rome,WorldRegion=Europe}"_qs;
        QTest::newRow("a member of the second item")
            << QStringList{u'[' + vienna + u',' + paris + u']'} << u"edit 1 City Lyon"_qs
            << QStringList{u"Vienna, Austria, a; b"_qs, u"Paris, France, Left bank"_qs}
            << QStringList{u'[' + vienna + u",{City=Lyon,Sublocation=Left bank}]"};
        QTest::newRow("a member emptied")
            << QStringList{u'[' + vienna + u',' + paris + u']'} << u"edit 1 Sublocation"_qs
            << QStringList{u"Vienna, Austria, a; b"_qs, u"Paris, France, Left bank"_qs}
            << QStringList{u'[' + vienna + u",{City=Paris|, France}]"};
        // Each file keeps its own first item; the second, the same in both, changes in both.
        QTest::newRow("two files whose first items differ")
            << QStringList{u'[' + vienna + u',' + paris + u']', u'[' + rome + u',' + paris + u']'}
            << u"edit 1 CountryCode FRA"_qs
            << QStringList{u"Multiple values"_qs, u"Paris, France, Left bank"_qs}
            << QStringList{
                   u'[' + vienna + u",{City=Paris|, France,CountryCode=FRA,Sublocation=Left bank}]",
                   u'[' + rome + u",{City=Paris|, France,CountryCode=FRA,Sublocation=Left bank}]"};
        QTest::newRow("an item added to files without one")
            << QStringList{QString(), u'[' + rome + u']'} << u"add City Oslo"_qs
            << QStringList{u"Multiple values"_qs}
            << QStringList{u"[{City=Oslo}]"_qs, u'[' + rome + u",{City=Oslo}]"};
        // Its only member emptied, an item goes, even beside an equal one.
        QTest::newRow("an item emptied")
            << QStringList{u"[{City=Oslo},{City=Oslo}]"_qs} << u"edit 0 City"_qs
            << QStringList{u"Oslo"_qs, u"Oslo"_qs} << QStringList{u"[{City=Oslo}]"_qs};
        QTest::newRow("the first item removed")
            << QStringList{u'[' + vienna + u',' + paris + u']'} << u"remove 0"_qs
            << QStringList{u"Vienna, Austria, a; b"_qs, u"Paris, France, Left bank"_qs}
            << QStringList{u'[' + paris + u']'};
        QTest::newRow("the last item removed")
            << QStringList{u'[' + rome + u']'} << u"remove 0"_qs << QStringList{u"Rome, Europe"_qs}
            << QStringList{QString()};
        QTest::newRow("the second item moved up")
            << QStringList{u'[' + vienna + u',' + paris + u']'} << u"move 1 0"_qs
            << QStringList{u"Vienna, Austria, a; b"_qs, u"Paris, France, Left bank"_qs}
            << QStringList{u'[' + paris + u',' + vienna + u']'};
    }
    void onlyTheItemsTouchedChange()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, action);
        QFETCH(QStringList, shown);
        QFETCH(QStringList, after);
        QList<ExifFileInfoPtr> infos;
        for (qsizetype i = 0; i < files.size(); ++i) {
            const QString path = m_dir.filePath(
                u"%1-%2.jpg"_qs.arg(QString::fromLatin1(QTest::currentDataTag())).arg(i));
            QStringList arguments;
            if (!files.at(i).isEmpty())
                arguments.append(u'-' + Key + u'=' + files.at(i));
            QCOMPARE(Fixtures::makeImage(path, arguments), QString());
            QCOMPARE(locationsOnDisk(path), files.at(i));
            infos.append(std::make_shared<ExifFileInfo>(path));
        }
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(infos).ok());

        EditorFixtures::Row<StructureEditor> row(
            ExifFieldsController::defaultInstance()->field(Key));
        row.editor.setExifFiles(infos);
        QCOMPARE(shownItems(row.editor.itemsList()), shown);

        const QStringList words = action.split(u' ');
        if (words.first() == u"edit" || words.first() == u"add") {
            const bool adds = words.first() == u"add";
            StructItemDialog *dialog = row.editor.openItem(adds ? -1 : words.at(1).toInt());
            QVERIFY(dialog);
            QLineEdit *member = dialog->memberField(words.at(adds ? 1 : 2));
            QVERIFY(member);
            member->setFocus();
            member->selectAll();
            QTest::keyClick(member, Qt::Key_Backspace);
            if (words.size() > (adds ? 2 : 3))
                QTest::keyClicks(member, words.at(adds ? 2 : 3));
            dialog->accept();
            QCOMPARE(dialog->errorText(), QString());
        } else if (words.first() == u"remove") {
            row.editor.removeItem(words.at(1).toInt());
        } else {
            row.editor.moveItem(words.at(1).toInt(), words.at(2).toInt());
        }
        QVERIFY(row.editor.isModified());

        const auto listener = RunListener::save(infos);
        for (qsizetype i = 0; i < infos.size(); ++i) {
            const QString &path = infos.at(i)->fileName();
            QCOMPARE(listener->messages(path), QStringList());
            QCOMPARE(locationsOnDisk(path), after.at(i));
            QVERIFY(!isExifFileModified(*infos.at(i)));
        }
    }

    void badStructureTextIsRefused()
    {
        const QString path = m_dir.filePath(u"bad.jpg"_qs);
        QCOMPARE(Fixtures::makeImage(path), QString());
        const QList<ExifFileInfoPtr> infos{std::make_shared<ExifFileInfo>(path)};
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(infos).ok());
        EditorFixtures::Row<StructureEditor> row(
            ExifFieldsController::defaultInstance()->field(u"XMP-iptcExt:ImageRegion"_qs));
        row.editor.setExifFiles(infos);
        StructItemDialog *dialog = row.editor.openItem(-1);
        QLineEdit *boundary = dialog->memberField(u"RegionBoundary"_qs);
        QVERIFY(boundary);
        boundary->setFocus();
        QTest::keyClicks(boundary, u"{RbShape=rectangle"_qs);
        dialog->accept();
        QVERIFY(dialog->errorText().contains(u"not in ExifTool's structure form"));
        QVERIFY(dialog->isVisible());
        QVERIFY(!isExifFileModified(*infos.first()));
        dialog->reject();
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(TestStructureEditor)
#include "tst_structureeditor.moc"
