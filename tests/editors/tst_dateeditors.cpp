#include "editors/dateeditor.h"
#include "editors/dateeditorview.h"
#include "editors/dateoffseteditor.h"

#include "../support/fixtures.h"
#include "catalogue/exifconfiguration.h"
#include "catalogue/exiffieldscontroller.h"
#include "controls/dateoffsetfield.h"
#include "engine/exifbackgroundrunner.h"
#include "engine/exifrunner.h"

#include <QCheckBox>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString DateTimeOriginal = QStringLiteral("ExifIFD:DateTimeOriginal");
const QString Original = QStringLiteral("2010:05:01 10:00:00");

// Cell of the offset field, then the key pressed there.
using Keys = QList<QPair<int, int>>;

ExifFieldPtr dateTimeField()
{
    return ExifFieldsController::defaultInstance()->field(DateTimeOriginal);
}

// In-memory files: each read with `Original`, then given its current value ("" removes the tag).
QList<ExifFileInfoPtr> filesHolding(const QStringList &currents)
{
    QList<ExifFileInfoPtr> files;
    for (int i = 0; i < currents.size(); ++i) {
        auto file = std::make_shared<ExifFileInfo>(QStringLiteral("/nowhere/%1.jpg").arg(i));
        file->setReadData({{DateTimeOriginal, Original}});
        if (currents[i].isEmpty())
            file->removeExifValue(DateTimeOriginal);
        else
            file->setExifValue(DateTimeOriginal, currents[i]);
        files << file;
    }
    return files;
}

void press(DateOffsetField *field, const Keys &keys)
{
    for (const auto &[cell, key] : keys) {
        field->setSelectedCell(cell);
        QTest::keyClick(field, Qt::Key(key));
    }
}

class BatchListener : public ExifBackgroundRunnerListener
{
public:
    void fileToBeProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &) override {}
    void fileProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &s) override
    {
        if (s.errors())
            errors += s.errors()->errorsCount();
    }
    void finishProcessing(const QHash<QString, ErrorMessagesPtr> &) override { ++finished; }
    int finished = 0;
    int errors = 0;
};

} // namespace

class TstDateEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void labelShowsStoredValue_data();
    void labelShowsStoredValue();
    void isModified_data();
    void isModified();
    void shiftSavedInPopupReachesEveryFileAndTheLabel();
    void presetRowStoresShiftOrRemoval_data();
    void presetRowStoresShiftOrRemoval();
    void presetShiftAppliedToRealFiles();

private:
    QWidget m_form;
};

void TstDateEditors::initTestCase()
{
    ExifFieldsController::defaultInstance()->initializeConfigurations();
    QVERIFY(dateTimeField());
    m_form.resize(600, 400);
}

void TstDateEditors::labelShowsStoredValue_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("currents");
    QTest::addColumn<QStringList>("expectedParts");

    const int dt = DateEditorTypeDateTime;
    QTest::newRow("pending shift, months and minutes both m")
        << dt << QStringList{QStringLiteral("+1y2M3d4m"), QStringLiteral("+1y2M3d4m")}
        << QStringList{QStringLiteral("+1y 2m 3d 4m")};
    QTest::newRow("date and a shift") << dt << QStringList{Original, QStringLiteral("+1h")}
                                      << QStringList{QStringLiteral("Multiple values")};
    QTest::newRow("date-only row with a date-time text")
        << int(DateEditorTypeDate) << QStringList{Original} << QStringList{QString()};
    QTest::newRow("absolute date with its time")
        << dt << QStringList{Original}
        << QStringList{QStringLiteral("2010"), QStringLiteral("10:00:00")};
}

void TstDateEditors::labelShowsStoredValue()
{
    QFETCH(int, type);
    QFETCH(QStringList, currents);
    QFETCH(QStringList, expectedParts);

    DateEditor editor(dateTimeField());
    editor.setDateEditorType(DateEditorType(type));
    editor.createEditor(&m_form, 0);
    editor.setExifFiles(filesHolding(currents));
    const QString text = editor.currentDateLabel()->text();
    if (expectedParts == QStringList{QString()})
        QCOMPARE(text, QString());
    for (const QString &part : expectedParts)
        QVERIFY2(text.contains(part), qPrintable(text));
}

void TstDateEditors::isModified_data()
{
    QTest::addColumn<QStringList>("currents");
    QTest::addColumn<bool>("modified");

    QTest::newRow("same date written differently")
        << QStringList{QStringLiteral("2010:5:1 10:0:0")} << false;
    QTest::newRow("pending shift") << QStringList{QStringLiteral("+1h")} << true;
    QTest::newRow("removed") << QStringList{QString()} << true;
    QTest::newRow("several values are not judged")
        << QStringList{QStringLiteral("+1h"), Original} << false;
}

void TstDateEditors::isModified()
{
    QFETCH(QStringList, currents);
    QFETCH(bool, modified);

    DateEditor editor(dateTimeField());
    QVERIFY(!editor.isModified());
    editor.setExifFiles(filesHolding(currents));
    QCOMPARE(editor.isModified(), modified);
}

void TstDateEditors::shiftSavedInPopupReachesEveryFileAndTheLabel()
{
    const QList<ExifFileInfoPtr> files = filesHolding(
        {QStringLiteral("2010:05:02 10:00:00"), QStringLiteral("2011:01:01 00:00:00"), Original});
    DateEditor editor(dateTimeField());
    editor.createEditor(&m_form, 0);
    editor.setExifFiles(files);
    QCOMPARE(editor.currentDateLabel()->text(), QStringLiteral("Multiple values"));
    QVERIFY(!editor.popupController());

    QTest::mousePress(editor.currentDateLabel(), Qt::LeftButton);
    QVERIFY(editor.popupController());
    QVERIFY(editor.popupWindow()->isVisible());
    DateEditorView *view = editor.popupController()->view();
    QCOMPARE(view->offsetLabel()->text(), QStringLiteral("Multiple values. Click to edit"));

    view->controlMouseUp(view->offsetLabel());
    press(view->offsetField(), {{4, Qt::Key_Up}});
    for (const ExifFileInfoPtr &file : files)
        QCOMPARE(file->exifValue(DateTimeOriginal), QStringLiteral("+1h"));
    QCOMPARE(editor.currentDateLabel()->text(), QStringLiteral("+1h"));
    QVERIFY(editor.isModified());

    // Closing the popup writes nothing more; a new selection gets a fresh popup.
    editor.showPopupController(false);
    QCOMPARE(files[2]->exifValue(DateTimeOriginal), QStringLiteral("+1h"));
    editor.setExifFiles(filesHolding({Original}));
    QVERIFY(!editor.popupController());
    QVERIFY(!editor.isModified());
}

void TstDateEditors::presetRowStoresShiftOrRemoval_data()
{
    QTest::addColumn<QString>("storedShift");
    QTest::addColumn<bool>("storedRemoval");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<bool>("untick");
    QTest::addColumn<QString>("expectedShift");
    QTest::addColumn<bool>("expectedRemoval");

    QTest::newRow("typed shift, box turns itself on")
        << QString() << false << Keys{{3, Qt::Key_Up}, {4, Qt::Key_Up}, {4, Qt::Key_Up}} << false
        << "+1d2h" << false;
    QTest::newRow("ticked zero shift removes the tag")
        << QString() << false << Keys{{4, Qt::Key_Up}, {4, Qt::Key_Down}} << false << QString()
        << true;
    QTest::newRow("stored shift round-trips")
        << "-1y3s" << false << Keys{} << false << "-1y3s" << false;
    QTest::newRow("stored removal stays a removal")
        << QString() << true << Keys{} << false << QString() << true;
    QTest::newRow("unticked row drops both")
        << "+2d" << false << Keys{} << true << QString() << false;
    QTest::newRow("untouched row writes nothing")
        << QString() << false << Keys{} << false << QString() << false;
}

void TstDateEditors::presetRowStoresShiftOrRemoval()
{
    QFETCH(QString, storedShift);
    QFETCH(bool, storedRemoval);
    QFETCH(Keys, keys);
    QFETCH(bool, untick);
    QFETCH(QString, expectedShift);
    QFETCH(bool, expectedRemoval);

    ExifConfiguration preset(QStringLiteral("configuration-1"), QStringLiteral("Trip"));
    if (!storedShift.isEmpty())
        preset.changedValues().insert(DateTimeOriginal, storedShift);
    if (storedRemoval)
        preset.removedValues().insert(DateTimeOriginal);

    QWidget form;
    form.resize(600, 100);
    DateOffsetEditor editor(dateTimeField());
    editor.setShowRemoveButton(true);
    editor.createEditor(&form, 0);
    editor.setExifConfiguration(&preset);
    press(editor.editor(), keys);
    if (untick)
        editor.removeButton()->setChecked(false);

    QVERIFY(editor.copyToConfiguration(preset));
    QCOMPARE(preset.changedValues().value(DateTimeOriginal), expectedShift);
    QCOMPARE(preset.removedValues().contains(DateTimeOriginal), expectedRemoval);
}

void TstDateEditors::presetShiftAppliedToRealFiles()
{
    QTemporaryDir dir;
    const QStringList dates{QStringLiteral("2010:05:01 10:00:00"),
                            QStringLiteral("2011:12:31 23:30:00"),
                            QStringLiteral("2016:02:28 22:00:00")};
    QList<ExifFileInfoPtr> files;
    for (int i = 0; i < dates.size(); ++i) {
        const QString path = dir.filePath(QStringLiteral("p%1.jpg").arg(i));
        QCOMPARE(Fixtures::makeImage(path, {u"-DateTimeOriginal=" + dates[i]}), QString());
        files << std::make_shared<ExifFileInfo>(path);
    }
    ExifRunner().loadExifInformations(files);

    QWidget form;
    form.resize(600, 100);
    DateOffsetEditor editor(dateTimeField());
    editor.setShowRemoveButton(true);
    editor.createEditor(&form, 0);
    ExifConfiguration preset(QStringLiteral("configuration-1"), QStringLiteral("Shift"));
    editor.setExifConfiguration(&preset);
    press(editor.editor(), {{3, Qt::Key_Up}, {4, Qt::Key_Up}, {4, Qt::Key_Up}});
    editor.copyToConfiguration(preset);

    // What applying a preset does: its values into every file, then a save of all of them.
    for (const ExifFileInfoPtr &file : files) {
        for (auto it = preset.changedValues().cbegin(); it != preset.changedValues().cend(); ++it)
            file->setExifValue(it.key(), it.value());
    }
    ExifBackgroundRunner runner;
    BatchListener listener;
    runner.setListener(&listener);
    QCOMPARE(runner.saveFiles(files, 1), files.size());
    QTRY_COMPARE_WITH_TIMEOUT(listener.finished, 1, 60000);
    QCOMPARE(listener.errors, 0);

    const QStringList expected{QStringLiteral("2010:05:02 12:00:00"),
                               QStringLiteral("2012:01:02 01:30:00"),
                               QStringLiteral("2016:03:01 00:00:00")};
    for (int i = 0; i < files.size(); ++i) {
        const Fixtures::ToolRun run = Fixtures::runExifTool(
            {QStringLiteral("-s3"), QStringLiteral("-DateTimeOriginal"), files[i]->fileName()});
        QCOMPARE(QString::fromUtf8(run.out).trimmed(), expected[i]);
        // The shift is used up once written: it must not be applied a second time.
        QCOMPARE(files[i]->exifValue(DateTimeOriginal), expected[i]);
    }
}

QTEST_MAIN(TstDateEditors)
#include "tst_dateeditors.moc"
