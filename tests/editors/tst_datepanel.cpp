#include "editors/dateeditorview.h"

#include "catalogue/exiffieldscontroller.h"
#include "controls/dateoffsetfield.h"
#include "editors/exiffilesupdate.h"
#include "engine/exifbackgroundrunner.h"
#include "engine/exifrunner.h"
#include "../support/fixtures.h"
#include "values/tagsmithexception.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Cell of the offset field, then the key typed into it.
using Typing = QList<QPair<int, char>>;

const QString DateTimeOriginal = QStringLiteral("ExifIFD:DateTimeOriginal");

// A listener standing for the main window: it must keep hearing of every file.
class RecordingListener : public ExifBackgroundRunnerListener
{
public:
    void fileToBeProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &s) override
    {
        before << s.fileName();
    }
    void fileProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &s) override
    {
        after << s.fileName();
    }
    void finishProcessing(const QHash<QString, ErrorMessagesPtr> &) override { ++finished; }

    QStringList before;
    QStringList after;
    int finished = 0;
};

QString diskValue(const QString &path, const QString &tag = QStringLiteral("DateTimeOriginal"))
{
    const Fixtures::ToolRun run =
        Fixtures::runExifTool({QStringLiteral("-s3"), u'-' + tag, QStringLiteral("--"), path});
    return QString::fromUtf8(run.out).trimmed();
}

} // namespace

class TstDatePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shiftTypedIntoOffsetFieldIsWrittenPerFile_data();
    void shiftTypedIntoOffsetFieldIsWrittenPerFile();
    void absoluteDateOverMixedOriginals();
    void emptyBoxRemovesTagFromEveryFile();
    void pendingValuesReopen_data();
    void pendingValuesReopen();
    void editsWithoutRunnerStayInMemory();
    void invalidFocusThrowsAndTracesPairUp();

private:
    // Makes one JPEG per date ("" for none) and reads it as the main window would.
    QList<ExifFileInfoPtr> makeFiles(const QStringList &dates, const QString &tag);
    // Waits until `batches` batches of the panel have reached the listener.
    void waitForBatches(QSignalSpy &finished, int batches);

    std::unique_ptr<QTemporaryDir> m_dir;
    int m_fileCount = 0;
};

void TstDatePanel::initTestCase()
{
    ExifFieldsController::defaultInstance()->initializeConfigurations();
    QVERIFY(ExifFieldsController::defaultInstance()->field(DateTimeOriginal));
}

QList<ExifFileInfoPtr> TstDatePanel::makeFiles(const QStringList &dates, const QString &tag)
{
    m_dir = std::make_unique<QTemporaryDir>();
    QList<ExifFileInfoPtr> files;
    for (const QString &date : dates) {
        const QString path = m_dir->filePath(QStringLiteral("img%1.jpg").arg(++m_fileCount));
        QStringList args;
        if (!date.isEmpty())
            args << u'-' + tag + u'=' + date;
        const QString failure = Fixtures::makeImage(path, args);
        if (!failure.isEmpty())
            qFatal("fixture: %s", qPrintable(failure));
        files << std::make_shared<ExifFileInfo>(path);
    }
    ExifRunner().loadExifInformations(files);
    return files;
}

void TstDatePanel::waitForBatches(QSignalSpy &finished, int batches)
{
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), batches, 60000);
}

void TstDatePanel::shiftTypedIntoOffsetFieldIsWrittenPerFile_data()
{
    QTest::addColumn<QStringList>("originals");
    QTest::addColumn<Typing>("typing");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("+1d2h over three different dates")
        << QStringList{QStringLiteral("2010:05:01 10:00:00"), QStringLiteral("2011:12:31 23:30:00"),
                       QStringLiteral("2012:02:28 22:00:00")}
        << Typing{{3, '1'}, {4, '2'}}
        << QStringList{QStringLiteral("2010:05:02 12:00:00"), QStringLiteral("2012:01:02 01:30:00"),
                       QStringLiteral("2012:03:01 00:00:00")};
    // Under TZ=Europe/Berlin these cross the spring-forward night of 2013-03-31: metadata holds
    // wall-clock readings, so 02:30 that night is a value like any other.
    QTest::newRow("+1d onto the skipped hour")
        << QStringList{QStringLiteral("2013:03:30 02:30:00")} << Typing{{3, '1'}}
        << QStringList{QStringLiteral("2013:03:31 02:30:00")};
    QTest::newRow("+2h across the change")
        << QStringList{QStringLiteral("2013:03:31 01:30:00")} << Typing{{4, '2'}}
        << QStringList{QStringLiteral("2013:03:31 03:30:00")};
    QTest::newRow("-1M clamps to the shorter month")
        << QStringList{QStringLiteral("2013:03:31 12:00:00")} << Typing{{0, '-'}, {2, '1'}}
        << QStringList{QStringLiteral("2013:02:28 12:00:00")};
}

void TstDatePanel::shiftTypedIntoOffsetFieldIsWrittenPerFile()
{
    QFETCH(QStringList, originals);
    QFETCH(Typing, typing);
    QFETCH(QStringList, expected);

    const QList<ExifFileInfoPtr> files = makeFiles(originals, QStringLiteral("DateTimeOriginal"));
    ExifBackgroundRunner runner;
    RecordingListener window;
    runner.setListener(&window);
    DateEditorView panel(ExifFieldsController::defaultInstance()->field(DateTimeOriginal),
                         DateEditorTypeDateTime);
    panel.setBackgroundRunner(&runner);
    QSignalSpy finished(&panel, &DateEditorView::savingFinished);

    panel.setExifFiles(files);
    QCOMPARE(panel.editorFocus(), int(DateEditorView::FocusDate));
    panel.controlMouseUp(panel.offsetLabel());
    QCOMPARE(panel.editorFocus(), int(DateEditorView::FocusOffset));

    // Every keystroke saves; each save must replace the previous shift, not add to it.
    int batches = 0;
    for (const auto &[cell, key] : typing) {
        panel.offsetField()->setSelectedCell(cell);
        QTest::keyClick(panel.offsetField(), key);
        ++batches;
    }
    waitForBatches(finished, batches);

    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(diskValue(files[i]->fileName()), expected[i]);
        QCOMPARE(files[i]->exifValue(DateTimeOriginal), expected[i]);
        QCOMPARE(files[i]->originalExifData().value(DateTimeOriginal), expected[i]);
    }
    QVERIFY(window.after.size() >= files.size());
    QCOMPARE(window.after.size(), window.before.size());
    QCOMPARE(window.finished, batches);
    QCOMPARE(runner.listener(), &window);
}

void TstDatePanel::absoluteDateOverMixedOriginals()
{
    const QList<ExifFileInfoPtr> files = makeFiles(
        {QStringLiteral("2010:05:01 10:00:00"), QString(), QStringLiteral("1999:12:31 23:59:59")},
        QStringLiteral("DateTimeOriginal"));
    ExifBackgroundRunner runner;
    DateEditorView panel(ExifFieldsController::defaultInstance()->field(DateTimeOriginal),
                         DateEditorTypeDateTime);
    panel.setBackgroundRunner(&runner);
    QSignalSpy finished(&panel, &DateEditorView::savingFinished);
    panel.setExifFiles(files);

    // The picker opens on the first file's own date.
    QCOMPARE(panel.datePicker()->dateTime(), QDateTime(QDate(2010, 5, 1), QTime(10, 0), Qt::UTC));
    QVERIFY(!panel.emptyBox()->isChecked());

    panel.datePicker()->setDateTime(QDateTime(QDate(2021, 7, 4), QTime(8, 9, 10), Qt::UTC));
    waitForBatches(finished, 1);
    for (const ExifFileInfoPtr &file : files)
        QCOMPARE(diskValue(file->fileName()), QStringLiteral("2021:07:04 08:09:10"));
}

void TstDatePanel::emptyBoxRemovesTagFromEveryFile()
{
    const QList<ExifFileInfoPtr> files =
        makeFiles({QStringLiteral("2010:05:01"), QStringLiteral("2011:01:02")},
                  QStringLiteral("IPTC:DateCreated"));
    const QString key = QStringLiteral("IPTC:DateCreated");
    QCOMPARE(files[0]->exifValue(key), QStringLiteral("2010:05:01"));
    ExifBackgroundRunner runner;
    DateEditorView panel(ExifFieldsController::defaultInstance()->field(key), DateEditorTypeDate);
    panel.setBackgroundRunner(&runner);
    QSignalSpy finished(&panel, &DateEditorView::savingFinished);
    panel.setExifFiles(files);

    panel.controlMouseUp(panel.emptyTitle());
    QVERIFY(panel.emptyBox()->isChecked());
    QVERIFY(!panel.datePicker()->isVisibleTo(&panel));
    QVERIFY(!panel.offsetField()->isVisibleTo(&panel));
    waitForBatches(finished, 1);
    for (const ExifFileInfoPtr &file : files) {
        QCOMPARE(diskValue(file->fileName(), key), QString());
        QVERIFY(!file->hasExifValue(key));
    }
}

void TstDatePanel::pendingValuesReopen_data()
{
    QTest::addColumn<QStringList>("currents");
    QTest::addColumn<QString>("expectedPicker");
    QTest::addColumn<QString>("expectedOffsetLabel");
    QTest::addColumn<bool>("empty");

    // All files hold 2010:05:01 10:00:00 on disk; the rows are unsaved edits over it.
    QTest::newRow("pending shift")
        << QStringList{QStringLiteral("+1d2h"), QStringLiteral("+1d2h")} << "2010:05:02 12:00:00"
        << "+1d 2h" << false;
    QTest::newRow("date moved earlier reopens at that date")
        << QStringList{QStringLiteral("2010:04:30 09:00:00")} << "2010:04:30 09:00:00"
        << "-1d 1h" << false;
    QTest::newRow("same shift typed and as a date")
        << QStringList{QStringLiteral("+1M"), QStringLiteral("2010:06:01 10:00:00")}
        << "2010:06:01 10:00:00"
        << "+1M" << false;
    QTest::newRow("different shifts") << QStringList{QStringLiteral("+1d"), QStringLiteral("+2h")}
                                      << QString() << "Multiple values. Click to edit" << false;
    QTest::newRow("tag removed") << QStringList{QString()} << QString() << QString() << true;
}

void TstDatePanel::pendingValuesReopen()
{
    QFETCH(QStringList, currents);
    QFETCH(QString, expectedPicker);
    QFETCH(QString, expectedOffsetLabel);
    QFETCH(bool, empty);

    QList<ExifFileInfoPtr> files;
    for (int i = 0; i < currents.size(); ++i) {
        auto file = std::make_shared<ExifFileInfo>(QStringLiteral("/nowhere/%1.jpg").arg(i));
        file->setReadData({{DateTimeOriginal, QStringLiteral("2010:05:01 10:00:00")}});
        if (currents[i].isEmpty())
            file->removeExifValue(DateTimeOriginal);
        else
            file->setExifValue(DateTimeOriginal, currents[i]);
        files << file;
    }
    DateEditorView panel(ExifFieldsController::defaultInstance()->field(DateTimeOriginal),
                         DateEditorTypeDateTime);
    int posts = 0;
    const auto connection =
        connect(&ExifFilesUpdateCenter::instance(), &ExifFilesUpdateCenter::exifFilesUpdated, this,
                [&posts](const ExifFilesUpdate &) { ++posts; });
    panel.setExifFiles(files);
    disconnect(connection);

    QCOMPARE(panel.emptyBox()->isChecked(), empty);
    QCOMPARE(panel.offsetLabel()->text().trimmed(), expectedOffsetLabel);
    if (!expectedPicker.isEmpty())
        QCOMPARE(panel.datePicker()->dateTime().toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")),
                 expectedPicker);
    // Showing files never writes them.
    QCOMPARE(posts, 0);
    QCOMPARE(files[0]->exifValue(DateTimeOriginal), currents[0]);
}

void TstDatePanel::editsWithoutRunnerStayInMemory()
{
    QList<ExifFileInfoPtr> files;
    for (const QString &date :
         {QStringLiteral("2010:05:01 10:00:00"), QStringLiteral("2012:01:01 00:00:00")}) {
        auto file = std::make_shared<ExifFileInfo>(u"/nowhere/" + date);
        file->setReadData({{DateTimeOriginal, date}});
        files << file;
    }
    DateEditorView panel(ExifFieldsController::defaultInstance()->field(DateTimeOriginal),
                         DateEditorTypeDateTime);
    QList<ExifFilesUpdate> posts;
    connect(&ExifFilesUpdateCenter::instance(), &ExifFilesUpdateCenter::exifFilesUpdated, &panel,
            [&posts](const ExifFilesUpdate &u) { posts << u; });
    panel.setExifFiles(files);
    panel.controlMouseUp(panel.offsetTitle());
    panel.offsetField()->setSelectedCell(4);
    QTest::keyClick(panel.offsetField(), Qt::Key_Up);

    // The shift itself is kept, to be resolved against each file's own date when saved.
    for (const ExifFileInfoPtr &file : files)
        QCOMPARE(file->exifValue(DateTimeOriginal), QStringLiteral("+1h"));
    QCOMPARE(posts.size(), 1);
    QCOMPARE(posts[0].xmlName, DateTimeOriginal);
    QCOMPARE(posts[0].newValue, std::optional<QString>(QStringLiteral("+1h")));
    QCOMPARE(posts[0].changedFiles, files);
    QCOMPARE(posts[0].exifFiles, files);
    QCOMPARE(posts[0].source, nullptr);
}

void TstDatePanel::invalidFocusThrowsAndTracesPairUp()
{
    static QStringList lines;
    lines.clear();
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &message) { lines << message; });
    DateEditorView panel(ExifFieldsController::defaultInstance()->field(DateTimeOriginal),
                         DateEditorTypeDateTime);
    auto file = std::make_shared<ExifFileInfo>(QStringLiteral("/nowhere/a.jpg"));
    file->setReadData({{DateTimeOriginal, QStringLiteral("2010:05:01 10:00:00")}});
    panel.setExifFiles({file});
    panel.saveValue();
    QVERIFY_THROWS_EXCEPTION(TagsmithException, panel.setEditorFocus(2));
    qInstallMessageHandler(previous);

    QVERIFY(lines.contains(QStringLiteral("(E) SAVING VALUE: 2010:05:01 10:00:00")));
    QVERIFY(lines.contains(QStringLiteral("(X) SAVING VALUE")));
    int depth = 0;
    for (const QString &line : std::as_const(lines)) {
        depth += line.startsWith(QLatin1String("(E) ")) ? 1 : 0;
        depth -= line.startsWith(QLatin1String("(X) ")) ? 1 : 0;
        QVERIFY2(depth >= 0, qPrintable(line));
    }
    QCOMPARE(depth, 0);
}

QTEST_MAIN(TstDatePanel)
#include "tst_datepanel.moc"
