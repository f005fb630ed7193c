#include "engine/filelistmodel.h"
#include "windows/mainwindow.h"
#include "windows/auxiliarywindows.h"
#include "windows/fileoperations.h"
#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowcontroller.h"
#include "windows/mainwindowmenus.h"
#include "catalogue/exiffieldscontroller.h"
#include "values/usersettings.h"
#include "windows/fileinfocell.h"
#include "windows/pastemetadatadialog.h"

#include "../support/fixtures.h"

#include <QAction>
#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

namespace {

QString tagOf(const QString &path, const QString &tag)
{
    const Fixtures::ToolRun run = Fixtures::runExifTool({u"-s3"_qs, u"-"_qs + tag, path});
    return QString::fromUtf8(run.out).trimmed();
}

} // namespace

class TestMainWindowCopy : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<PresetStore> m_store;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QVERIFY(m_dir.isValid());
        UserSettings::setStoreFile(m_dir.filePath(u"store.ini"_qs));
        m_store = std::make_unique<PresetStore>();
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }
    void cleanupTestCase() { m_store.reset(); }

    // From the menu commands to the bytes on disk: a raw file's share of the paste goes to its
    // sidecar, a JPEG's into the file, and the dialog remembers the choice.
    void pastedSectionsAreSavedIntoFilesAndSidecars()
    {
        const QString source = m_dir.filePath(u"source.jpg"_qs);
        const QString jpeg = m_dir.filePath(u"plain.jpg"_qs);
        const QString raw = m_dir.filePath(u"raw.dng"_qs);
        const QString sidecar = m_dir.filePath(u"raw.xmp"_qs);
        QCOMPARE(Fixtures::makeImage(source,
                                     {u"-IPTC:Headline=Boats"_qs, u"-XMP-photoshop:City=Lisbon"_qs,
                                      u"-IFD0:Artist=Jane"_qs}),
                 QString());
        QCOMPARE(Fixtures::makeImage(jpeg), QString());
        QCOMPARE(Fixtures::makeImage(raw + u".tif"_qs), QString());
        QVERIFY(QFile::rename(raw + u".tif"_qs, raw));
        QVERIFY(Fixtures::runExifTool({u"-XMP-photoshop:City=Porto"_qs, sidecar}).ok());

        MainWindowController window(nullptr, *m_store);
        window.window()->show();
        QVERIFY(window.fileList()->addFiles({source, jpeg, raw}) &&
                window.fileList()->waitForPendingReads());
        const QList<int> others{window.fileList()->model()->rowOf(jpeg),
                                window.fileList()->model()->rowOf(raw)};
        QCOMPARE(
            window.fileList()->model()->index(others[1]).data(FileInfoCell::SidecarRole).toString(),
            u"raw.xmp"_qs);

        QAction *copy = window.menus()->action(MainWindowMenus::Command::CopyMetadata);
        QAction *paste = window.menus()->action(MainWindowMenus::Command::PasteMetadata);
        window.fileList()->selectRows({window.fileList()->model()->rowOf(source)});
        QVERIFY(copy->isEnabled() && !paste->isEnabled());
        copy->trigger();
        window.fileList()->selectRows(others);
        QVERIFY(paste->isEnabled() && !copy->isEnabled());
        paste->trigger();

        auto *dialog = window.window()->findChild<PasteMetadataDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        MetadataSelection chosen;
        chosen.sections = {MetadataSelection::sectionKey(u"Description"_qs, u"Caption"_qs),
                           MetadataSelection::sectionKey(u"Location"_qs, u"Place"_qs)};
        dialog->setSelection(chosen);
        dialog->accept();
        QCOMPARE(PasteMetadataDialog::lastSelection().sections, chosen.sections);
        for (int row : std::as_const(others))
            QVERIFY(
                window.fileList()->model()->index(row).data(FileInfoCell::ModifiedRole).toBool());
        // Nothing reaches the disk before a save.
        QCOMPARE(tagOf(jpeg, u"IPTC:Headline"_qs), QString());

        window.operations()->processFiles();
        QTRY_VERIFY_WITH_TIMEOUT(!window.operations()->isSaving(), 15000);
        QCOMPARE(tagOf(jpeg, u"IPTC:Headline"_qs), u"Boats"_qs);
        QCOMPARE(tagOf(jpeg, u"XMP-photoshop:City"_qs), u"Lisbon"_qs);
        QCOMPARE(tagOf(jpeg, u"IFD0:Artist"_qs), QString());
        QCOMPARE(tagOf(raw, u"IPTC:Headline"_qs), u"Boats"_qs);
        QCOMPARE(tagOf(sidecar, u"XMP-photoshop:City"_qs), u"Lisbon"_qs);
        for (int row = 0; row < 3; ++row)
            QVERIFY(
                !window.fileList()->model()->index(row).data(FileInfoCell::ModifiedRole).toBool());
    }
};

QTEST_MAIN(TestMainWindowCopy)
#include "tst_mainwindowcopy.moc"
