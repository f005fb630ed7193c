#include "editors/dateeditor.h"
#include "editors/dateeditorview.h"
#include "editors/dateoffseteditor.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"
#include "editorfixtures.h"
#include "catalogue/preset.h"
#include "catalogue/exiffieldscontroller.h"
#include "controls/dateoffsetfield.h"
#include "engine/editsession.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "engine/revertrecord.h"
#include "values/tagsmithexception.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Cell of the offset field, then the key pressed there.
using Keys = QList<QPair<int, int>>;

const QString DateTimeOriginal = u"ExifIFD:DateTimeOriginal"_qs;
const QString Original = u"2010:05:01 10:00:00"_qs;

ExifFieldPtr fieldFor(const QString &key)
{
    return ExifFieldsController::defaultInstance()->field(key);
}

void press(DateOffsetField *field, const Keys &keys)
{
    for (const auto &[cell, key] : keys) {
        field->setSelectedCell(cell);
        QTest::keyClick(field, Qt::Key(key));
    }
}

// In-memory files read with `Original`, then given a current value ("" removes the tag).
QList<ExifFileInfoPtr> filesHolding(const QStringList &currents)
{
    QList<ExifFileInfoPtr> files;
    for (int i = 0; i < currents.size(); ++i) {
        auto file = std::make_shared<ExifFileInfo>(u"/nowhere/%1.jpg"_qs.arg(i));
        file->setReadData({{DateTimeOriginal, Original}});
        if (currents[i].isEmpty())
            file->removeExifValue(DateTimeOriginal);
        else
            file->setExifValue(DateTimeOriginal, currents[i]);
        files << file;
    }
    return files;
}

// Real JPEGs, one per date ("" for none), dated in a single ExifTool run and read back.
QList<ExifFileInfoPtr> realFiles(const QTemporaryDir &dir, const QString &tag,
                                 const QStringList &dates)
{
    QList<ExifFileInfoPtr> files;
    QStringList args;
    for (int i = 0; i < dates.size(); ++i) {
        const QString path = dir.filePath(u"img%1.jpg"_qs.arg(i));
        if (const QString failure = Fixtures::makeImage(path); !failure.isEmpty())
            qFatal("fixture: %s", qPrintable(failure));
        if (!dates[i].isEmpty())
            args << u"-overwrite_original"_qs << u'-' + tag + u'=' + dates[i] << path
                 << u"-execute"_qs;
        files << std::make_shared<ExifFileInfo>(path);
    }
    if (!args.isEmpty() && !Fixtures::runExifTool(args).ok())
        qFatal("fixture: cannot date the files");
    MetadataReader().readRecords(files);
    return files;
}

// What ExifTool reads on disk, "-" for a missing tag.
QStringList diskValues(const QList<ExifFileInfoPtr> &files, const QString &tag)
{
    QStringList args{u"-T"_qs, u'-' + tag, u"--"_qs};
    for (const auto &file : files)
        args << file->fileName();
    return QString::fromUtf8(Fixtures::runExifTool(args).out).trimmed().split(u'\n');
}

} // namespace

class TstDatePanel : public QObject
{
    Q_OBJECT

    QTemporaryDir m_records;

private Q_SLOTS:
    void initTestCase()
    {
        // Saves keep their revert records here, not in the user's data folder.
        QVERIFY(m_records.isValid());
        RevertRecord::setDirectory(m_records.path());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        QVERIFY(fieldFor(DateTimeOriginal));
    }

    void panelEditsAreWrittenByTheNextSave_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QStringList>("originals");
        QTest::addColumn<Keys>("keys"); // typed into the offset field
        QTest::addColumn<QString>(
            "picked"); // else set in the picker or a preset, else the empty box
        QTest::addColumn<QStringList>("expected");

        // Under TZ=Europe/Berlin the last two land in and cross the skipped hour of 2013-03-31:
        // metadata holds wall-clock readings, so 02:30 that night is a value like any other.
        QTest::newRow("+1d2h over differing dates")
            << DateTimeOriginal
            << QStringList{Original, u"2011:12:31 23:30:00"_qs, u"2013:03:30 00:30:00"_qs,
                           u"2013:03:30 23:30:00"_qs}
            << Keys{{3, Qt::Key_1}, {4, Qt::Key_2}} << QString()
            << QStringList{u"2010:05:02 12:00:00"_qs, u"2012:01:02 01:30:00"_qs,
                           u"2013:03:31 02:30:00"_qs, u"2013:04:01 01:30:00"_qs};
        QTest::newRow("a shift passes over a file without the date")
            << DateTimeOriginal << QStringList{Original, QString()}
            << Keys{{3, Qt::Key_1}, {4, Qt::Key_2}} << QString()
            << QStringList{u"2010:05:02 12:00:00"_qs, u"-"_qs};
        QTest::newRow("absolute date over mixed originals")
            << DateTimeOriginal << QStringList{Original, QString(), u"1999:12:31 23:59:59"_qs}
            << Keys{} << u"2021:07:04 08:09:10"_qs << QStringList(3, u"2021:07:04 08:09:10"_qs);
        // A preset's values go into every file, then one save of all of them.
        QTest::newRow("preset holding a shift")
            << DateTimeOriginal
            << QStringList{Original, u"2011:12:31 23:30:00"_qs, u"2016:02:28 22:00:00"_qs} << Keys{}
            << u"+1d2h"_qs
            << QStringList{u"2010:05:02 12:00:00"_qs, u"2012:01:02 01:30:00"_qs,
                           u"2016:03:01 00:00:00"_qs};
        QTest::newRow("empty box removes the tag")
            << u"IPTC:DateCreated"_qs << QStringList{u"2010:05:01"_qs, u"2011:01:02"_qs} << Keys{}
            << QString() << QStringList(2, u"-"_qs);
    }

    // The panel edits the records only; the window's next save writes every file from them.
    void panelEditsAreWrittenByTheNextSave()
    {
        QFETCH(QString, tag);
        QFETCH(QStringList, originals);
        QFETCH(Keys, keys);
        QFETCH(QString, picked);
        QFETCH(QStringList, expected);

        QTemporaryDir dir;
        const QList<ExifFileInfoPtr> files = realFiles(dir, tag, originals);
        const QStringList before = diskValues(files, tag);
        EditSession session;
        QSignalSpy posts(&session, &EditSession::exifFilesUpdated);
        DateEditorView panel(fieldFor(tag),
                             tag == DateTimeOriginal ? DateEditorTypeDateTime : DateEditorTypeDate);
        panel.setEditSession(&session);
        panel.setExifFiles(files);

        if (!keys.isEmpty()) {
            panel.controlMouseUp(panel.offsetLabel());
            QCOMPARE(panel.editorFocus(), int(DateEditorView::FocusOffset));
            press(panel.offsetField(), keys); // every key replaces the previous shift
        } else if (picked.startsWith(u'+')) {
            Preset preset(u"configuration-1"_qs, u"Shift"_qs);
            preset.changedValues().insert(tag, picked);
            for (const ExifFileInfoPtr &file : files)
                file->setExifValue(tag, preset.changedValues().value(tag));
        } else if (!picked.isEmpty()) {
            const QDateTime at = QDateTime::fromString(picked, u"yyyy:MM:dd HH:mm:ss"_qs);
            panel.datePicker()->setDateTime(QDateTime(at.date(), at.time(), Qt::UTC));
        } else {
            panel.controlMouseUp(panel.emptyTitle());
            QVERIFY(!panel.datePicker()->isVisibleTo(&panel));
        }
        if (!picked.startsWith(u'+')) {
            QVERIFY(posts.count() > 0);
            QCOMPARE(posts.last().first().value<ExifFilesUpdate>().xmlName, tag);
        }
        QCOMPARE(diskValues(files, tag), before);

        WriteQueue runner;
        RunListener window(runner);
        QVERIFY(runner.saveFiles(files, ExifOperationOption::ReReadFile) > 0);
        QVERIFY(window.wait());

        QCOMPARE(diskValues(files, tag), expected);
        // Read back: a shift is never applied twice.
        for (int i = 0; i < files.size(); ++i) {
            const QString inMemory =
                files[i]->hasExifValue(tag) ? files[i]->exifValue(tag) : u"-"_qs;
            QCOMPARE(inMemory, expected[i]);
            QCOMPARE(files[i]->originalExifData().value(tag, u"-"_qs), expected[i]);
        }
        QStringList messages;
        for (const ExifFileInfoPtr &file : files)
            messages += window.messages(file->fileName());
        // Also where the result falls in the hour a daylight-saving change skips locally: the
        // save's check shifts as ExifTool does.
        QCOMPARE(messages, QStringList());
    }

    void tracesPairUpAndBadFocusThrows()
    {
        static QStringList lines;
        lines.clear();
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &line) { lines << line; });
        DateEditorView panel(fieldFor(DateTimeOriginal), DateEditorTypeDateTime);
        panel.setExifFiles(filesHolding({Original}));
        panel.saveValue();
        QVERIFY_THROWS_EXCEPTION(TagsmithException, panel.setEditorFocus(2));
        qInstallMessageHandler(previous);

        QVERIFY(lines.contains(u"(E) SAVING VALUE: 2010:05:01 10:00:00"_qs));
        QVERIFY(lines.contains(u"(X) SAVING VALUE"_qs));
        int depth = 0;
        for (const QString &line : std::as_const(lines)) {
            depth += line.startsWith(u"(E) ") ? 1 : line.startsWith(u"(X) ") ? -1 : 0;
            QVERIFY2(depth >= 0, qPrintable(line));
        }
        QCOMPARE(depth, 0);
    }

    void reopeningShowsPendingValues_data()
    {
        QTest::addColumn<QStringList>("currents"); // over files holding 2010:05:01 10:00:00
        QTest::addColumn<QString>("picker");       // "*" for no check
        QTest::addColumn<QString>("offsetLabel");
        QTest::addColumn<QString>("rowLabelPart");
        QTest::addColumn<bool>("modified");

        const QString any = u"*"_qs;
        QTest::newRow("pending shift") << QStringList(2, u"+1d2h"_qs) << u"2010:05:02 12:00:00"_qs
                                       << u"+1d 2h"_qs << u"+1d 2h"_qs << true;
        QTest::newRow("months and minutes both m")
            << QStringList(2, u"+1y2M3d4m"_qs) << any << u"+1y 2M 3d 4m"_qs << u"+1y 2m 3d 4m"_qs
            << true;
        QTest::newRow("different shifts")
            << QStringList{u"+1d"_qs, u"+2h"_qs} << any << u"Multiple values. Click to edit"_qs
            << u"Multiple values"_qs << true; // both files are edited, as the list marks them
        QTest::newRow("same date written differently")
            << QStringList{u"2010:5:1 10:0:0"_qs} << Original << any << u"10:00:00"_qs << false;
        QTest::newRow("tag removed") << QStringList{QString()} << any << u""_qs << u""_qs << true;
    }

    void reopeningShowsPendingValues()
    {
        QFETCH(QStringList, currents);
        QFETCH(QString, picker);
        QFETCH(QString, offsetLabel);
        QFETCH(QString, rowLabelPart);
        QFETCH(bool, modified);

        const QList<ExifFileInfoPtr> files = filesHolding(currents);
        EditSession session;
        QSignalSpy posts(&session, &EditSession::exifFilesUpdated);
        DateEditorView panel(fieldFor(DateTimeOriginal), DateEditorTypeDateTime);
        panel.setEditSession(&session);
        panel.setExifFiles(files);
        QWidget form;
        DateEditor row(fieldFor(DateTimeOriginal));
        row.setEditSession(&session);
        row.createEditor(&form, 0);
        row.setExifFiles(files);

        QCOMPARE(panel.emptyBox()->isChecked(), currents[0].isEmpty());
        if (offsetLabel != u"*")
            QCOMPARE(panel.offsetLabel()->text().trimmed(), offsetLabel);
        if (picker != u"*")
            QCOMPARE(panel.datePicker()->dateTime().toString(u"yyyy:MM:dd HH:mm:ss"_qs), picker);
        const QString text = row.currentDateLabel()->text();
        QVERIFY2(rowLabelPart.isEmpty() ? text.isEmpty() : text.contains(rowLabelPart),
                 qPrintable(text));
        QCOMPARE(row.isModified(), modified);
        QCOMPARE(posts.count(), 0); // showing files never writes them
        QCOMPARE(files[0]->exifValue(DateTimeOriginal), currents[0]);
    }

    void popupShiftReachesEveryFileAndTheLabel()
    {
        const QList<ExifFileInfoPtr> files =
            filesHolding({u"2010:05:02 10:00:00"_qs, u"2011:01:01 00:00:00"_qs, Original});
        EditSession session;
        QWidget form;
        form.resize(600, 400);
        DateEditor editor(fieldFor(DateTimeOriginal));
        editor.setEditSession(&session);
        editor.createEditor(&form, 0);
        editor.setExifFiles(files);
        QTest::mousePress(editor.currentDateLabel(), Qt::LeftButton);
        QVERIFY(editor.popupWindow()->isVisible());
        DateEditorView *view = editor.popupController()->view();
        view->controlMouseUp(view->offsetLabel());
        press(view->offsetField(), {{4, Qt::Key_Up}});

        QCOMPARE(editor.currentDateLabel()->text(), u"+1h"_qs);
        editor.showPopupController(false); // closing writes nothing more
        for (const ExifFileInfoPtr &file : files)
            QCOMPARE(file->exifValue(DateTimeOriginal), u"+1h"_qs);
        editor.setExifFiles(filesHolding({Original}));
        QVERIFY(!editor.popupController()); // a new selection gets a fresh popup
    }

    void presetRowStoresShiftOrRemoval_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<Keys>("keys");
        QTest::addColumn<QString>("entry");
        const Keys upDown{{4, Qt::Key_Up}, {4, Qt::Key_Down}};
        QTest::newRow("typed shift ticks the box")
            << u""_qs << Keys{{3, Qt::Key_Up}, {4, Qt::Key_Up}, {4, Qt::Key_Up}} << u"+1d2h"_qs;
        QTest::newRow("ticked zero shift removes") << u""_qs << upDown << u"<removed>"_qs;
        QTest::newRow("stored shift round-trips") << u"-1y3s"_qs << Keys{} << u"-1y3s"_qs;
        QTest::newRow("untouched writes nothing") << u""_qs << Keys{} << u""_qs;
    }

    void presetRowStoresShiftOrRemoval()
    {
        QFETCH(QString, stored);
        QFETCH(Keys, keys);

        Preset preset(u"configuration-1"_qs, u"Trip"_qs);
        if (stored == u"<removed>")
            preset.removedValues().insert(DateTimeOriginal);
        else if (!stored.isEmpty())
            preset.changedValues().insert(DateTimeOriginal, stored);
        QWidget form;
        DateOffsetEditor editor(fieldFor(DateTimeOriginal));
        editor.setShowRemoveButton(true);
        editor.createEditor(&form, 0);
        editor.setExifConfiguration(&preset);
        press(editor.editor(), keys);
        QTEST(EditorFixtures::presetEntry(editor, preset, DateTimeOriginal), "entry");
    }
};

QTEST_MAIN(TstDatePanel)
#include "tst_datepanel.moc"
