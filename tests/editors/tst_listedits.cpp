#include "editorfixtures.h"

#include "catalogue/exiffieldscontroller.h"
#include "controls/tokenfield.h"
#include "editors/stringseditor.h"
#include "engine/linkedforms.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/exifutil.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QAction>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Lists = QList<QStringList>;

QStringList itemsOnDisk(const QString &path, const QString &key)
{
    const QJsonValue value =
        QJsonDocument::fromJson(Fixtures::runExifTool({u"-j"_qs, u"-G1"_qs, u"--"_qs, path}).out)[0]
            .toObject()
            .value(key);
    if (value.isArray()) {
        QStringList items;
        for (const QJsonValue &item : value.toArray())
            items.append(item.toString());
        return items;
    }
    return value.isUndefined() ? QStringList() : QStringList{value.toString()};
}

} // namespace

// A list typed over several photos, saved with ExifTool and read back from the files.
class TestListEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    void typedItemsReachEveryFile_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<Lists>("before");
        QTest::addColumn<bool>("replaces");
        QTest::addColumn<Lists>("after");

        const Lists before{{u"Łódź"_qs, u"Smith, John"_qs}, {u"beach"_qs}, {}, {u"new"_qs}};
        for (const QString &key : {u"IPTC:Keywords"_qs, u"XMP-dc:Subject"_qs}) {
            QTest::addRow("%s added", qPrintable(key))
                << key << before << false
                << Lists{{u"Łódź"_qs, u"Smith, John"_qs, u"new"_qs},
                         {u"beach"_qs, u"new"_qs},
                         {u"new"_qs},
                         {u"new"_qs}};
            QTest::addRow("%s replaced", qPrintable(key))
                << key << before << true << Lists(4, QStringList{u"new"_qs});
        }
    }

    void typedItemsReachEveryFile()
    {
        QFETCH(QString, key);
        QFETCH(Lists, before);
        QFETCH(bool, replaces);
        QFETCH(Lists, after);

        const ExifFieldPtr field = ExifFieldsController::defaultInstance()->field(key);
        // The tags the row writes: the list's copies in other standards too.
        const QStringList copies = LinkedForms(*field).keys();
        QList<ExifFileInfoPtr> files;
        for (qsizetype i = 0; i < before.size(); ++i) {
            const QString path = m_dir.filePath(u"%1-%2.jpg"_qs.arg(
                QString::fromLatin1(QTest::currentDataTag()).section(u' ', 1), QString::number(i)));
            QStringList arguments{u"-charset"_qs, u"iptc=UTF8"_qs,
                                  u"-IPTC:CodedCharacterSet=UTF8"_qs};
            // Every copy the row writes holds the list, as in a file whose copies agree.
            for (const QString &copy : copies) {
                for (const QString &item : before.at(i))
                    arguments.append(u'-' + copy + u'=' + item);
            }
            QCOMPARE(Fixtures::makeImage(path, arguments), QString());
            files.append(std::make_shared<ExifFileInfo>(path));
        }
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(files).ok());

        EditorFixtures::Row<StringsEditor> row(field);
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->placeholderText(), u"Multiple values"_qs);
        if (replaces)
            row.editor.replaceInAllFilesAction()->trigger();
        QLineEdit *edit = row.editor.editor()->lineEdit();
        edit->setFocus();
        QTest::keyClicks(edit, u"new"_qs);
        QTest::keyClick(edit, Qt::Key_Return);
        // The mark of each file agrees with what the save will write.
        for (qsizetype i = 0; i < files.size(); ++i)
            QCOMPARE(isExifFileModified(*files.at(i)), after.at(i) != before.at(i));

        RunListener listener;
        WriteQueue runner;
        listener.listen(runner);
        if (runner.saveFiles(files, ExifOperationOption::ReReadFile) > 0)
            QVERIFY(listener.wait());
        for (qsizetype i = 0; i < files.size(); ++i) {
            const QString &path = files.at(i)->fileName();
            QCOMPARE(listener.messages(path), QStringList());
            for (const QString &copy : copies)
                QCOMPARE(itemsOnDisk(path, copy), after.at(i));
            QVERIFY(!isExifFileModified(*files.at(i)));
        }
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(TestListEdits)
#include "tst_listedits.moc"
