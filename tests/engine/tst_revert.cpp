#include "catalogue/exiffieldscontroller.h"
#include "engine/exifbackgroundrunner.h"
#include "engine/exifrunner.h"
#include "engine/exifrunnerrevertoperation.h"
#include "engine/exifutil.h"
#include "engine/revertrecord.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

using Edits = QList<QPair<QString, QString>>; // a null value removes the tag

// Everything ExifTool reports of the file but the file system's own tags.
QByteArray dump(const QString &path)
{
    const Fixtures::ToolRun run =
        Fixtures::runExifTool({u"-a"_qs, u"-G1"_qs, u"-s"_qs, u"-charset"_qs, u"UTF-8"_qs, u"-x"_qs,
                               u"System:all"_qs, u"-x"_qs, u"ExifTool:all"_qs, path});
    return run.out;
}

// The lines only one of two dumps has, for a failure message.
QString difference(const QByteArray &before, const QByteArray &after)
{
    const QStringList a = QString::fromUtf8(before).split(u'\n');
    const QStringList b = QString::fromUtf8(after).split(u'\n');
    QStringList lines;
    for (const QString &line : a)
        if (!b.contains(line))
            lines << u"- "_qs + line;
    for (const QString &line : b)
        if (!a.contains(line))
            lines << u"+ "_qs + line;
    return lines.isEmpty() ? u"same lines, another order"_qs : lines.join(u'\n');
}

} // namespace

class TestRevert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"settings.ini"_qs));
        RevertRecord::setDirectory(m_dir.filePath(u"records"_qs));
        ExifFieldsController::defaultInstance()->initializeConfigurations();
        m_runner = std::make_unique<ExifBackgroundRunner>();
        m_runner->setMaximumConcurrentOperations(1);
    }

    void cleanupTestCase() { m_runner.reset(); }

    void saveThenRevertRestoresEveryTag_data()
    {
        QTest::addColumn<QStringList>("initial");
        QTest::addColumn<Edits>("edits");

        const QStringList rich{u"-IFD0:Software=Old app"_qs,
                               u"-IFD0:Orientation#=1"_qs,
                               u"-ExifIFD:DateTimeOriginal=2010:05:01 10:00:00"_qs,
                               u"-IPTC:Keywords=old"_qs,
                               u"-IPTC:Keywords=with, comma"_qs,
                               u"-XMP-dc:Subject=one"_qs,
                               u"-XMP-dc:Subject=two"_qs,
                               u"-XMP-dc:Title=Hello"_qs,
                               u"-XMP-dc:Title-de=Hallo"_qs,
                               u"-XMP-x:XMPToolkit=Other Tool 1.0"_qs,
                               u"-GPS:GPSLatitude=10.5"_qs,
                               u"-GPS:GPSLatitudeRef=N"_qs,
                               u"-XMP-dc:Description=1.50"_qs};
        QTest::newRow("text, enum, date, gps")
            << rich
            << Edits{{u"IFD0:Software"_qs, u"New app"_qs},
                     {u"XMP-dc:Description"_qs, u"Now words"_qs},
                     {u"IFD0:Orientation"_qs, u"6"_qs},
                     {u"ExifIFD:DateTimeOriginal"_qs, u"2021:12:31 23:59:58"_qs},
                     {u"GPS:GPSLatitude"_qs, u"33.8688"_qs},
                     {u"GPS:GPSLatitudeRef"_qs, u"S"_qs},
                     {u"GPS:GPSLongitude"_qs, u"151.2093"_qs},
                     {u"GPS:GPSLongitudeRef"_qs, u"E"_qs}};
        QTest::newRow("lists, language alternative, date shift")
            << rich
            << Edits{{u"IPTC:Keywords"_qs, u"a, b\\, c, d"_qs},
                     {u"XMP-dc:Subject"_qs, u"three"_qs},
                     {u"XMP-dc:Title"_qs, u"Bonjour"_qs},
                     {u"ExifIFD:DateTimeOriginal"_qs, u"+1d2h"_qs}};
        QTest::newRow("removals") << rich
                                  << Edits{{u"IFD0:Software"_qs, QString()},
                                           {u"IPTC:Keywords"_qs, QString()},
                                           {u"GPS:GPSLatitude"_qs, QString()}};
        // Writing creates whole blocks (EXIF, GPS, IPTC, XMP) with tags of ExifTool's own.
        QTest::newRow("into a bare file") << QStringList{}
                                          << Edits{{u"IFD0:Software"_qs, u"App"_qs},
                                                   {u"GPS:GPSLatitude"_qs, u"1.25"_qs},
                                                   {u"GPS:GPSLatitudeRef"_qs, u"N"_qs},
                                                   {u"IPTC:Keywords"_qs, u"k"_qs},
                                                   {u"XMP-dc:Subject"_qs, u"s"_qs}};
    }

    void saveThenRevertRestoresEveryTag()
    {
        QFETCH(QStringList, initial);
        QFETCH(Edits, edits);
        const QString path = m_dir.filePath(
            QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'-') + u".jpg"_qs);
        QFile::remove(path);
        const QString made = Fixtures::makeImage(path, initial);
        QVERIFY2(made.isEmpty(), qPrintable(made));
        const QByteArray before = dump(path);

        ExifFileInfoPtr file = load(path);
        for (const auto &[key, value] : edits) {
            if (value.isNull())
                file->removeExifValue(key);
            else
                file->setExifValue(key, value);
        }
        QVERIFY(run([&](ExifBackgroundRunner &r) { return r.saveFiles({file}, 1); }));
        QVERIFY(RevertRecord::contains(path));

        const auto revert = ExifRunnerRevertOperation::create(file, 1);
        QVERIFY(revert);
        QVERIFY(run([&](ExifBackgroundRunner &r) { return r.queueOperations({revert}); }));
        const QByteArray after = dump(path);
        QVERIFY2(after == before, qPrintable(difference(before, after)));
        QVERIFY(!RevertRecord::contains(path));
        // Nothing is left pending: the window shows the file as it is.
        QVERIFY(!isExifFileModified(*file));
    }

    void fileChangedSinceTheSaveIsLeftAlone()
    {
        const QString path = m_dir.filePath(u"changed.jpg"_qs);
        QVERIFY(Fixtures::makeImage(path, {u"-IFD0:Software=Old"_qs}).isEmpty());
        ExifFileInfoPtr file = load(path);
        file->setExifValue(u"IFD0:Software"_qs, u"Saved"_qs);
        QVERIFY(run([&](ExifBackgroundRunner &r) { return r.saveFiles({file}, 1); }));

        // Another program writes the file afterwards.
        QVERIFY(
            Fixtures::runExifTool({u"-overwrite_original"_qs, u"-IFD0:Software=Elsewhere"_qs, path})
                .ok());
        const QByteArray bytes = Fixtures::readBytes(path);
        const auto revert = ExifRunnerRevertOperation::create(file, 1);
        QVERIFY(revert);
        const auto listener =
            run([&](ExifBackgroundRunner &r) { return r.queueOperations({revert}); });
        QVERIFY(listener);
        QCOMPARE(Fixtures::readBytes(path), bytes);
        const QStringList messages = listener->messages(path);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.first().startsWith(u"3 The file was changed after the last save"_qs),
                 qPrintable(messages.first()));
    }

private:
    ExifFileInfoPtr load(const QString &path)
    {
        auto file = std::make_shared<ExifFileInfo>(path);
        ExifRunner().loadExifInformation(file);
        return file;
    }

    std::unique_ptr<RunListener> run(const std::function<qsizetype(ExifBackgroundRunner &)> &queue)
    {
        auto listener = std::make_unique<RunListener>();
        m_runner->setListener(listener.get());
        queue(*m_runner);
        const bool finished = listener->wait();
        m_runner->setListener(nullptr);
        if (!finished)
            return nullptr;
        for (auto it = listener->results.cbegin(); it != listener->results.cend(); ++it) {
            const QStringList texts = RunListener::texts(it.value());
            if (!texts.isEmpty())
                qInfo() << it.key() << texts;
        }
        return listener;
    }

    QTemporaryDir m_dir;
    // One for the whole test: ExifTool starts once.
    std::unique_ptr<ExifBackgroundRunner> m_runner;
};

QTEST_GUILESS_MAIN(TestRevert)
#include "tst_revert.moc"
