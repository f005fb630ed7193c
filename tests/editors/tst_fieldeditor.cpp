#include "editorfixtures.h"

#include "catalogue/exiffieldscontroller.h"
#include "controls/tokenfield.h"
#include "editors/dateeditor.h"
#include "editors/enumeditor.h"
#include "editors/multienumeditor.h"
#include "editors/readonlyeditor.h"
#include "editors/stringseditor.h"
#include "editors/texteditor.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

using namespace EditorFixtures;

namespace {

const QString Key = u"XMP-dc:Title"_qs;

std::unique_ptr<FieldEditor> editorFor(const ExifFieldPtr &field)
{
    if (!field->writable())
        return std::make_unique<ReadonlyEditor>(field);
    switch (field->dataRepresentation()) {
    case FieldDataRepresentation::Date:
    case FieldDataRepresentation::DateTime:
        return std::make_unique<DateEditor>(field);
    case FieldDataRepresentation::Enum:
        return std::make_unique<EnumEditor>(field);
    case FieldDataRepresentation::MultiEnum:
        return std::make_unique<MultiEnumEditor>(field);
    case FieldDataRepresentation::Strings:
        return std::make_unique<StringsEditor>(field);
    default:
        return std::make_unique<TextEditor>(field);
    }
}

void typeAndCommit(QLineEdit *edit, const QString &text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

} // namespace

class TstFieldEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void absentTagCountsAsEmptyValue()
    {
        TextEditor editor(makeField(Key, FieldDataRepresentation::None));
        const auto files = makeFiles(Key, {u"A"_qs, u"A"_qs, QString()});
        QCOMPARE(editor.gatherExifFilesValues(files), (QSet<QString>{u"A"_qs, u""_qs}));
        files.first()->setExifValue(Key, u"B"_qs);
        QCOMPARE(editor.gatherExifFilesOriginalValues(files), (QSet<QString>{u"A"_qs, u""_qs}));
    }

    void editOverMixedFilesWritesAllAndPostsOnce()
    {
        Row<TextEditor> row(makeField(Key, FieldDataRepresentation::None));
        const auto files = makeFiles(Key, {u"A"_qs, u"B"_qs, QString()});
        row.editor.setExifFiles(files);
        QCOMPARE(row.editor.editor()->text(), QString());
        QCOMPARE(row.editor.editor()->placeholderText(), u"Multiple values"_qs);
        QVERIFY(!row.editor.label()->font().bold());

        // Focus passing through an untouched row writes nothing.
        row.editor.editor()->setFocus();
        QTest::keyClick(row.editor.editor(), Qt::Key_Return);
        QCOMPARE(currentValues(files, Key), (QStringList{u"A"_qs, u"B"_qs, u"<absent>"_qs}));

        auto spy = updateSpy();
        typeAndCommit(row.editor.editor(), u"Harbour at dusk"_qs);

        QCOMPARE(currentValues(files, Key), QStringList(3, u"Harbour at dusk"_qs));
        for (const auto &file : files)
            QCOMPARE(file->exifValue(u"IFD0:Make"_qs), u"Canon"_qs);
        QCOMPARE(spy.size(), 1);
        const ExifFilesUpdate update = updateAt(spy, 0);
        QCOMPARE(update.xmlName, Key);
        QCOMPARE(update.changedFiles, files);
        QCOMPARE(update.newValue, std::optional<QString>(u"Harbour at dusk"_qs));
        QCOMPARE(update.exifFiles, files);
        QCOMPARE(update.source, &row.editor);
        QVERIFY(row.editor.label()->font().bold());
    }

    void copyReportsDifferenceFromOriginals_data()
    {
        QTest::addColumn<QStringList>("originals");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("changed");
        QTest::newRow("all equal originals") << QStringList(3, u"A"_qs) << u"A"_qs << false;
        QTest::newRow("one differs") << QStringList{u"A"_qs, u"A"_qs, u"B"_qs} << u"A"_qs << true;
        QTest::newRow("one gains the tag") << QStringList{u"A"_qs, QString()} << u"A"_qs << true;
        QTest::newRow("removal of absent tags")
            << QStringList{QString(), QString()} << u"  "_qs << false;
    }

    void copyReportsDifferenceFromOriginals()
    {
        QFETCH(QStringList, originals);
        QFETCH(QString, typed);
        QFETCH(bool, changed);

        Row<TextEditor> row(makeField(Key, FieldDataRepresentation::None));
        const auto files = makeFiles(Key, originals);
        row.editor.setExifFiles(files);
        row.editor.editor()->selectAll();
        QTest::keyClicks(row.editor.editor(), typed);
        QCOMPARE(row.editor.copyToExifFiles(files), changed);
        QCOMPARE(row.editor.isModified(), changed);
    }

    void nothingPostedWithoutFiles()
    {
        Row<TextEditor> row(makeField(Key, FieldDataRepresentation::None));
        auto spy = updateSpy();
        row.editor.sendChangeNotification(u"x"_qs);
        row.editor.setExifFiles(makeFiles(Key, {u"A"_qs}));
        row.editor.clearEditor();
        row.editor.sendChangeNotification(u"x"_qs);
        QCOMPARE(spy.size(), 0);
        QVERIFY(row.editor.editor()->isReadOnly());
    }

    void rowGeometry_data()
    {
        QTest::addColumn<int>("representation");
        QTest::addColumn<bool>("removeButton");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<int>("contentWidth");
        const int text = static_cast<int>(FieldDataRepresentation::None);
        const int strings = static_cast<int>(FieldDataRepresentation::Strings);
        // Parent 600 wide, labels 120: content at 130, 600 - 5 - 125 - 10 = 460 wide.
        QTest::newRow("text") << text << false << 25 << 460;
        QTest::newRow("text in a preset") << text << true << 25 << 440;
        QTest::newRow("tokens") << strings << false << 80 << 460;
    }

    void rowGeometry()
    {
        QFETCH(int, representation);
        QFETCH(bool, removeButton);
        QFETCH(int, rowHeight);
        QFETCH(int, contentWidth);

        auto field = makeField(Key, static_cast<FieldDataRepresentation>(representation));
        QWidget parent;
        parent.resize(600, 300);
        auto editor = editorFor(field);
        editor->setMaxLabelWidth(120);
        editor->setShowRemoveButton(removeButton);
        QCOMPARE(editor->createEditor(&parent, 40), 40 + rowHeight);
        QCOMPARE(editor->label()->geometry(), QRect(5, 42, 120, 20));
        QCOMPARE(editor->label()->text(), u"Title:"_qs);
        QWidget *content = parent.childAt(140, 45);
        QVERIFY(content);
        while (content->parentWidget() != &parent)
            content = content->parentWidget();
        QCOMPARE(content->geometry().left(), 130);
        QCOMPARE(content->width(), contentWidth);
        QCOMPARE(static_cast<bool>(editor->removeButton()), removeButton);

        // The control follows the row's width; the check box stays at the right edge.
        parent.show();
        parent.resize(800, 300);
        QCOMPARE(content->width(), contentWidth + 200);
        if (removeButton) {
            QCOMPARE(editor->removeButton()->geometry(), QRect(775, 40, 20, 20));
            QCOMPARE(editor->removeButton()->focusPolicy(), Qt::NoFocus);
        }
        QCOMPARE(editor->hideEditor(100), 100);
        QVERIFY(editor->label()->isHidden());
        QVERIFY(editor->showEditor(100) >= 125);
        QCOMPARE(editor->label()->y(), 102);
    }

    void nikonMakerNotesNeedANefFile_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("suffixes");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("jpeg only") << u"Nikon:Lens"_qs << QStringList{u".jpg"_qs} << false;
        QTest::newRow("one upper-case NEF")
            << u"Nikon:Lens"_qs << QStringList{u".jpg"_qs, u".NEF"_qs} << true;
        QTest::newRow("other makers always") << u"Canon:Lens"_qs << QStringList{u".jpg"_qs} << true;
    }

    void nikonMakerNotesNeedANefFile()
    {
        QFETCH(QString, key);
        QFETCH(QStringList, suffixes);
        QFETCH(bool, enabled);

        Row<TextEditor> text(makeField(key, FieldDataRepresentation::None));
        Row<StringsEditor> strings(makeField(key, FieldDataRepresentation::Strings));
        QList<ExifFileInfoPtr> files;
        for (const QString &suffix : suffixes)
            files += makeFiles(key, {u"x"_qs}, suffix);
        text.editor.setExifFiles(files);
        strings.editor.setExifFiles(files);
        QCOMPARE(text.editor.editor()->isEnabled(), enabled);
        QCOMPARE(strings.editor.editor()->isEnabled(), enabled);
    }

    void wholeCatalogueTiming()
    {
        ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
        catalogue->initializeConfigurations();
        const auto &fields = catalogue->configurations();
        QVERIFY(!fields.isEmpty());

        QWidget parent;
        parent.resize(700, 400);
        QElapsedTimer timer;
        timer.start();
        std::vector<std::unique_ptr<FieldEditor>> editors;
        int top = 0;
        for (const ExifFieldPtr &field : fields) {
            editors.push_back(editorFor(field));
            editors.back()->setMaxLabelWidth(180);
            editors.back()->setBoldFontOnChange(true);
            top = editors.back()->createEditor(&parent, top);
        }
        const qint64 created = timer.restart();

        QList<ExifFileInfoPtr> files;
        for (int i = 0; i < 1000; ++i) {
            auto file = std::make_shared<ExifFileInfo>(u"/photos/IMG_%1.jpg"_qs.arg(i));
            file->setReadData({{u"IFD0:Make"_qs, u"Canon"_qs},
                               {u"IFD0:Model"_qs, u"EOS %1"_qs.arg(i % 3)},
                               {u"ExifIFD:ISO"_qs, u"100"_qs},
                               {u"IPTC:Keywords"_qs, u"a,b"_qs}});
            files.append(file);
        }
        timer.restart();
        {
            const ExifFilesSnapshot snapshot(files);
            for (const auto &editor : editors)
                editor->setExifFiles(files);
        }
        const qint64 filled = timer.elapsed();
        qDebug("%lld editors created in %lld ms; setExifFiles over %lld files in %lld ms",
               static_cast<long long>(editors.size()), static_cast<long long>(created),
               static_cast<long long>(files.size()), static_cast<long long>(filled));
    }
};

QTEST_MAIN(TstFieldEditor)
#include "tst_fieldeditor.moc"
