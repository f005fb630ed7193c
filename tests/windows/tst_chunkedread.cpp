#include "engine/filelistmodel.h"
#include "windows/filelistview.h"
#include "engine/filereadqueue.h"
#include "windows/mainwindow.h"
#include "windows/auxiliarywindows.h"
#include "windows/fileoperations.h"
#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowcontroller.h"
#include "catalogue/exiffieldscontroller.h"
#include "catalogue/presetstore.h"
#include "engine/exifreportparser.h"
#include "engine/metadatareader.h"
#include "../support/fixtures.h"
#include "../support/readfixtures.h"
#include "values/usersettings.h"

#include <QDir>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(FileReadQueue::Batch)

namespace {

QList<ExifFileInfoPtr> records(const QStringList &paths)
{
    QList<ExifFileInfoPtr> files;
    for (const QString &path : paths)
        files.append(std::make_shared<ExifFileInfo>(path));
    return files;
}

QStringList names(const QList<ExifFileInfoPtr> &files)
{
    QStringList result;
    for (const ExifFileInfoPtr &file : files)
        result.append(QFileInfo(file->fileName()).fileName());
    return result;
}

// Waits for the queue to tell a batch; returns it, or an empty one on timeout.
FileReadQueue::Batch nextBatch(QSignalSpy &spy)
{
    if (spy.isEmpty() && !spy.wait(30000))
        return {};
    return spy.takeFirst().first().value<FileReadQueue::Batch>();
}

} // namespace

class TestChunkedRead : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QStringList m_paths;
    QString m_missing;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QVERIFY(m_dir.isValid());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        UserSettings::setStoreFile(m_dir.filePath(u"store.ini"_s));
        const ReadFixtures::SampleSet set = ReadFixtures::writeSampleSet(m_dir.path());
        QVERIFY2(set.error.isEmpty(), qPrintable(set.error));
        m_missing = set.missing;
        // Files that differ in every value a chunk boundary could mix up.
        for (int i = 0; i < 5; ++i) {
            const QString path = m_dir.filePath(u"frame %1.jpg"_s.arg(i));
            const QString failure = Fixtures::makeImage(
                path, {u"-Artist=Artist %1"_s.arg(i), u"-ExifIFD:FNumber=%1"_s.arg(2 + i),
                       u"-IPTC:Keywords=k%1"_s.arg(i), u"-IPTC:Keywords=shared, with comma"_s,
                       u"-ExifIFD:DateTimeOriginal=2024:01:0%1 10:00:00"_s.arg(i + 1)});
            QVERIFY2(failure.isEmpty(), qPrintable(failure));
            m_paths.append(path);
        }
        m_paths.insert(2, set.jpeg);
        m_paths.insert(4, set.tiff);
        m_paths.append(set.png);
    }

    void chunksGiveTheRecordsOfOneRun_data()
    {
        QTest::addColumn<int>("chunkSize");
        QTest::addColumn<bool>("withMissing");
        QTest::newRow("one file per chunk") << 1 << false;
        QTest::newRow("uneven chunks") << 3 << false;
        QTest::newRow("one chunk") << 500 << false;
        QTest::newRow("missing file inside a chunk") << 3 << true;
    }
    void chunksGiveTheRecordsOfOneRun()
    {
        QFETCH(int, chunkSize);
        QFETCH(bool, withMissing);
        QStringList paths = m_paths;
        if (withMissing)
            paths.insert(1, m_missing);

        // The reference: the bare report, parsed and formatted without any sharing of texts.
        MetadataReader runner;
        const ExifToolResult bare = runner.executeRawCommand_FileInfo(m_paths);
        QVERIFY(bare.hasSucceeded());
        const QHash<QString, TagDictionary> report = ExifReportParser::parse(bare.standardOutput);

        FileReadQueue queue;
        queue.setChunkSize(chunkSize);
        QSignalSpy batches(&queue, &FileReadQueue::batchRead);
        QSignalSpy progress(&queue, &FileReadQueue::progressChanged);
        queue.enqueue({records(paths), {}, {}});
        const FileReadQueue::Batch batch = nextBatch(batches);
        QVERIFY(batch.result.ok());
        QCOMPARE(batch.files.size(), paths.size());
        for (const ExifFileInfoPtr &file : batch.files) {
            if (file->fileName() == m_missing) {
                QVERIFY(!file->isValid());
                continue;
            }
            QVERIFY2(file->isValid(), qPrintable(file->fileName()));
            TagDictionary expected = runner.preformatValues(report.value(file->fileName()));
            QVERIFY(!expected.isEmpty());
            TagDictionary read = file->exifData();
            QCOMPARE(file->originalExifData(), read);
            // Reading a file sets its access time.
            for (TagDictionary *record : {&expected, &read})
                record->remove(u"System:FileAccessDate"_s);
            QCOMPARE(read, expected);
        }
        // Progress only grows and ends at the whole batch.
        int last = -1;
        for (const QList<QVariant> &step : std::as_const(progress)) {
            QVERIFY(step.at(0).toInt() >= last);
            QCOMPARE(step.at(1).toInt(), paths.size());
            last = step.at(0).toInt();
        }
        QCOMPARE(last, paths.size());
        QVERIFY(!queue.isBusy());
    }

    // Records of one read share the characters of equal keys and values; an edit of one
    // record leaves the others as read.
    void equalTextsAreSharedUntilEdited()
    {
        QList<ExifFileInfoPtr> files = records(m_paths.mid(0, 2));
        QVERIFY(MetadataReader().readRecords(files).ok());
        const TagDictionary first = files.at(0)->exifData();
        const TagDictionary second = files.at(1)->exifData();
        const QString key = u"IFD0:Artist"_s;
        QVERIFY(first.contains(key) && second.contains(key));
        QCOMPARE(first.find(key).key().constData(), second.find(key).key().constData());
        const QString make = u"File:MIMEType"_s;
        QCOMPARE(first.value(make).constData(), second.value(make).constData());

        files.at(0)->setExifValue(make, u"changed"_s);
        QCOMPARE(files.at(1)->exifValue(make), u"image/jpeg"_s);
        QCOMPARE(files.at(0)->originalExifData().value(make), u"image/jpeg"_s);
    }

    // A cancel once the second chunk has begun keeps the complete chunks only; the queued
    // batch and an abandoned chunk leave nothing behind, and the next add reads normally.
    void cancelKeepsCompleteChunks()
    {
        FileReadQueue queue;
        queue.setChunkSize(2);
        QSignalSpy batches(&queue, &FileReadQueue::batchRead);
        QSignalSpy busy(&queue, &FileReadQueue::busyChanged);
        connect(&queue, &FileReadQueue::progressChanged, &queue, [&queue](int read, int) {
            if (read >= 3)
                queue.cancel();
        });
        queue.enqueue({records(m_paths.mid(0, 6)), {}, {}});
        QCoreApplication::processEvents();
        queue.enqueue({records(m_paths.mid(6)), {}, {}});
        const FileReadQueue::Batch batch = nextBatch(batches);
        const qsizetype kept = batch.files.size();
        QVERIFY2(kept == 2 || kept == 4, qPrintable(QString::number(kept)));
        QCOMPARE(names(batch.files), names(records(m_paths.mid(0, kept))));
        for (const ExifFileInfoPtr &file : batch.files)
            QVERIFY(file->isValid() && !file->exifData().isEmpty());
        QVERIFY(!queue.isBusy());
        QCOMPARE(busy.last().first().toBool(), false);
        for (const QString &path : std::as_const(m_paths))
            QVERIFY(!queue.isQueued(path));

        // Nothing more is told for the cancelled read; a new add is read in full.
        disconnect(&queue, &FileReadQueue::progressChanged, &queue, nullptr);
        queue.enqueue({records(m_paths.mid(3)), {}, {}});
        const FileReadQueue::Batch again = nextBatch(batches);
        QCOMPARE(names(again.files), names(records(m_paths.mid(3))));
        for (const ExifFileInfoPtr &file : again.files)
            QVERIFY(file->isValid());
        QVERIFY(batches.isEmpty());
    }

    // Through the window: Cancel in the reading bar adds and selects what was read.
    void windowCancelAddsWhatWasRead()
    {
        PresetStore store;
        MainWindowController controller(nullptr, store);
        auto *window = qobject_cast<MainWindow *>(controller.window());
        QVERIFY(window);
        window->show();
        controller.fileList()->readQueue()->setChunkSize(3);
        bool barShown = false;
        connect(controller.fileList()->readQueue(), &FileReadQueue::progressChanged, window,
                [&](int read, int) {
                    barShown = barShown || window->readingBar()->isVisible();
                    if (read >= 4 && window->readingBar()->isVisible())
                        window->cancelReadingButton()->click();
                });
        QVERIFY(controller.fileList()->addFiles(m_paths));
        QVERIFY(controller.fileList()->waitForPendingReads());
        QVERIFY(barShown);
        QVERIFY(!window->readingBar()->isVisible());
        const qsizetype kept = controller.fileList()->files().size();
        QVERIFY2(kept == 3 || kept == 6, qPrintable(QString::number(kept)));
        QCOMPARE(names(controller.fileList()->files()), names(records(m_paths.mid(0, kept))));
        QCOMPARE(names(controller.fileList()->selectedFiles()),
                 names(records(m_paths.mid(0, kept))));
        for (const ExifFileInfoPtr &file : controller.fileList()->files())
            QVERIFY(file->isValid());
        // The files not read can be added again.
        QVERIFY(!controller.fileList()->hasFileInList(m_paths.last()));
    }
};

QTEST_MAIN(TestChunkedRead)
#include "tst_chunkedread.moc"
