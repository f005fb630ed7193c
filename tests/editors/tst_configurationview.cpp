#include "editorfixtures.h"

#include "catalogue/exiffieldscontroller.h"
#include "editors/configurationviewcontroller.h"
#include "editors/dateeditor.h"
#include "editors/dateoffseteditor.h"
#include "editors/enumeditor.h"
#include "editors/groupeditor.h"
#include "editors/sectioneditor.h"
#include "editors/texteditor.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

using namespace EditorFixtures;

namespace {

// A common section, one section per maker, and a section mixing common and Canon rows.
const char *const SmallCatalogue = R"(<?xml version="1.0" encoding="UTF-8"?>
<fields>
  <group name="Image">
    <section name="Camera">
      <field name="IFD0:Make" datatype="string"/>
      <field name="XMP-dc:Title" datatype="string"/>
    </section>
    <section name="CanonNotes">
      <field name="Canon:LensModel" datatype="string" maker="Canon"/>
    </section>
    <section name="NikonNotes">
      <field name="Nikon:Lens" datatype="string" maker="Nikon"/>
    </section>
    <section name="OtherNotes">
      <field name="MakerNotes:Other" datatype="string" maker="Unknown"/>
    </section>
  </group>
  <group name="More">
    <section name="Mixed">
      <field name="XMP-dc:Rights" datatype="string"/>
      <field name="Canon:OwnerName" datatype="string" maker="Canon"/>
    </section>
  </group>
</fields>
)";

QList<ExifFileInfoPtr> filesMadeBy(const QStringList &makes, const QString &title = u"t"_qs)
{
    QList<ExifFileInfoPtr> files;
    for (const QString &make : makes) {
        auto file = std::make_shared<ExifFileInfo>(u"/photos/%1.jpg"_qs.arg(files.size()));
        TagDictionary data{{u"XMP-dc:Title"_qs, title}};
        if (!make.isEmpty())
            data.insert(u"IFD0:Make"_qs, make);
        file->setReadData(data);
        files.append(file);
    }
    return files;
}

TextEditor *textRow(const ConfigurationViewController &form, const QString &key)
{
    for (FieldEditor *editor : form.fields()) {
        if (editor->field()->xmlName() == key)
            return qobject_cast<TextEditor *>(editor);
    }
    return nullptr;
}

} // namespace

class TestConfigurationView : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    ExifFieldsController m_catalogue;
    EditSession m_session;

    std::unique_ptr<ConfigurationViewController> makeForm()
    {
        auto form = std::make_unique<ConfigurationViewController>(nullptr, &m_catalogue);
        form->setEditSession(&m_session);
        form->scrollArea()->resize(500, 400);
        form->createUserInterface();
        form->scrollArea()->show();
        return form;
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString path = m_dir.filePath(u"Fields.xml"_qs);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(SmallCatalogue);
        file.close();
        m_catalogue.initializeConfigurations(path, false);
        QCOMPARE(m_catalogue.configurations().size(), 7);
    }

    void editorFollowsTheField_data()
    {
        QTest::addColumn<int>("representation");
        QTest::addColumn<bool>("writable");
        QTest::addColumn<bool>("presets");
        QTest::addColumn<QString>("editorClass");
        QTest::addColumn<int>("dateType");

        const int none = -1, date = DateEditorTypeDate, dateTime = DateEditorTypeDateTime;
        // clang-format off
        QTest::newRow("enum") << 4 << true << false << u"EnumEditor"_qs << none;
        QTest::newRow("read-only date") << 2 << false << true << u"ReadonlyEditor"_qs << none;
        QTest::newRow("strings") << 9 << true << true << u"StringsEditor"_qs << none;
        QTest::newRow("datetime, files") << 3 << true << false << u"DateEditor"_qs << dateTime;
        QTest::newRow("date, presets") << 2 << true << true << u"DateOffsetEditor"_qs << date;
        // clang-format on
    }
    void editorFollowsTheField()
    {
        QFETCH(int, representation);
        QFETCH(bool, writable);
        QFETCH(bool, presets);
        QFETCH(QString, editorClass);
        QFETCH(int, dateType);

        ExifFieldsController empty;
        ConfigurationViewController form(nullptr, &empty);
        form.setShowRemove(presets);
        form.createUserInterface();
        auto field =
            makeField(u"XMP-x:Field"_qs, static_cast<FieldDataRepresentation>(representation),
                      QHash<QString, QString>{{u"1"_qs, u"One"_qs}});
        field->setWritable(writable);
        QList<FieldEditor *> editors;
        QVERIFY(form.createFieldEditor(field, editors, 40) > 40);
        QCOMPARE(editors.size(), 1);
        FieldEditor *editor = editors.first();
        QCOMPARE(QString::fromLatin1(editor->metaObject()->className()), editorClass);
        QCOMPARE(editor->showRemoveButton(), presets);
        if (auto *dateEditor = qobject_cast<DateEditor *>(editor))
            QCOMPARE(int(dateEditor->dateEditorType()), dateType);
        if (auto *offsetEditor = qobject_cast<DateOffsetEditor *>(editor))
            QCOMPARE(int(offsetEditor->dateEditorType()), dateType);
    }

    void makerSectionsShowOnlyWhereTheyBelong_data()
    {
        QTest::addColumn<QString>("makes");
        QTest::addColumn<QString>("shownSections");
        QTest::addColumn<QString>("shownFields");
        // clang-format off
        QTest::newRow("canon") << u"Canon,Canon"_qs << u"Camera CanonNotes Mixed"_qs
            << u"IFD0:Make XMP-dc:Title Canon:LensModel XMP-dc:Rights Canon:OwnerName"_qs;
        QTest::newRow("nikon") << u"NIKON CORPORATION"_qs << u"Camera NikonNotes Mixed"_qs
            << u"IFD0:Make XMP-dc:Title Nikon:Lens XMP-dc:Rights"_qs;
        QTest::newRow("mixed") << u"Canon,NIKON CORPORATION"_qs << u"Camera Mixed"_qs
            << u"IFD0:Make XMP-dc:Title XMP-dc:Rights"_qs;
        // Only exact texts map to a maker; anything else, or no make at all, is "Unknown".
        QTest::newRow("unlisted") << u"NIKON,"_qs << u"Camera OtherNotes Mixed"_qs
            << u"IFD0:Make XMP-dc:Title MakerNotes:Other XMP-dc:Rights"_qs;
        // clang-format on
    }
    void makerSectionsShowOnlyWhereTheyBelong()
    {
        QFETCH(QString, makes);
        auto form = makeForm();
        const int fullHeight = form->formHeight();
        // A selection of another maker first: the layout must not depend on what came before.
        form->setExifFiles(filesMadeBy({u"FUJIFILM"_qs}));
        form->setExifFiles(filesMadeBy(makes.split(u',')));

        QStringList sections;
        int lastTop = -1;
        for (GroupEditor *group : form->groupEditors()) {
            QVERIFY(group->top() > lastTop);
            lastTop = group->top();
            // The line above a heading goes where the heading goes.
            if (group->line())
                QCOMPARE(group->line()->y(), group->top());
            for (SectionEditor *section : group->sectionEditors()) {
                if (section->label()->isHidden())
                    continue;
                sections.append(section->name());
                QVERIFY(section->top() > lastTop);
                lastTop = section->top();
            }
        }
        QStringList fields;
        for (FieldEditor *editor : form->fields()) {
            if (!editor->label()->isHidden())
                fields.append(editor->field()->xmlName());
        }
        QTEST(sections.join(u' '), "shownSections");
        QTEST(fields.join(u' '), "shownFields");
        QVERIFY(form->formHeight() < fullHeight);
        QCOMPARE(form->view()->height(), form->formHeight());
    }

    // Typed text belongs to the selection it was typed for, and only once confirmed.
    void switchingSelectionNeverCarriesAValue_data()
    {
        QTest::addColumn<bool>("commitFirst");
        QTest::addColumn<QStringList>("titlesOfB");
        QTest::addColumn<QString>("shownForB");

        QTest::newRow("committed, same") << true << QStringList{u"b"_qs, u"b"_qs} << u"b"_qs;
        QTest::newRow("typed, differ") << false << QStringList{u"b"_qs, u"c"_qs} << QString();
        QTest::newRow("typed, none") << false << QStringList{QString(), QString()} << QString();
    }
    void switchingSelectionNeverCarriesAValue()
    {
        QFETCH(bool, commitFirst);
        QFETCH(QStringList, titlesOfB);
        QFETCH(QString, shownForB);

        const QString key = u"XMP-dc:Title"_qs;
        auto form = makeForm();
        const QList<ExifFileInfoPtr> a = makeFiles(key, {u"a"_qs, u"a"_qs});
        const QList<ExifFileInfoPtr> b = makeFiles(key, titlesOfB);
        QWidget other;
        auto *elsewhere = new QLineEdit(&other);
        other.show();

        form->setExifFiles(a);
        TextEditor *row = textRow(*form, key);
        QVERIFY(row);
        row->editor()->setFocus();
        QTest::keyClicks(row->editor(), u"-typed"_qs);
        if (commitFirst)
            form->commitPendingInput();
        form->setExifFiles(b);
        // The focus leaves the row only now, after the switch: that must write nothing.
        elsewhere->setFocus();
        QApplication::processEvents();

        QCOMPARE(row->editor()->text(), shownForB);
        QCOMPARE(currentValues(b, key), currentValues(makeFiles(key, titlesOfB), key));
        const QString kept = commitFirst ? u"a-typed"_qs : u"a"_qs;
        QCOMPARE(currentValues(a, key), (QStringList{kept, kept}));
        // Back to A: its own values, not the text last shown.
        form->setExifFiles(a);
        QCOMPARE(row->editor()->text(), kept);
    }

    // The wheel scrolls the form over a control; only a control the user focused takes the step.
    void wheelEditsOnlyAFocusedControl_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<bool>("focused");
        QTest::newRow("drop-down passed over") << u"drop-down"_qs << false;
        QTest::newRow("drop-down focused") << u"drop-down"_qs << true;
        // Added after the form was built, as popups and late rows are.
        QTest::newRow("spin box passed over") << u"spin box"_qs << false;
        QTest::newRow("spin box focused") << u"spin box"_qs << true;
    }
    void wheelEditsOnlyAFocusedControl()
    {
        QFETCH(QString, control);
        QFETCH(bool, focused);

        // The real catalogue: a form tall enough to scroll, with "Light Source" near its top.
        ExifFieldsController catalogue;
        catalogue.initializeConfigurations();
        ConfigurationViewController form(nullptr, &catalogue);
        form.setEditSession(&m_session);
        form.scrollArea()->resize(500, 300);
        form.createUserInterface();
        form.scrollArea()->show();
        QVERIFY(QTest::qWaitForWindowActive(form.scrollArea()));
        const QString key = u"ExifIFD:LightSource"_qs;
        const QList<ExifFileInfoPtr> files = makeFiles(key, {u"1"_qs, u"1"_qs});
        form.setExifFiles(files);

        QWidget *target = nullptr;
        std::function<int()> value;
        if (control == u"drop-down") {
            auto it = std::find_if(form.fields().cbegin(), form.fields().cend(),
                                   [&key](auto *e) { return e->field()->xmlName() == key; });
            QVERIFY(it != form.fields().cend());
            QComboBox *combo = qobject_cast<EnumEditor *>(*it)->popupButton();
            target = combo;
            value = [combo] { return combo->currentIndex(); };
        } else {
            auto *spin = new QSpinBox(form.view());
            spin->setGeometry(200, 400, 80, 22);
            spin->setValue(5);
            spin->show();
            target = spin;
            value = [spin] { return spin->value(); };
        }
        form.scrollArea()->ensureWidgetVisible(target);
        if (focused) {
            target->setFocus(Qt::MouseFocusReason);
            QTRY_VERIFY(target->hasFocus());
        }
        QScrollBar *bar = form.scrollArea()->verticalScrollBar();
        const int scrolledBefore = bar->value();
        const int valueBefore = value();
        auto updates = updateSpy(m_session);

        const QPointF inside(10, 10);
        QWheelEvent wheel(inside, target->mapToGlobal(inside), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &wheel);

        QCOMPARE(value() != valueBefore, focused);
        QCOMPARE(bar->value() > scrolledBefore, !focused);
        const bool editsFiles = focused && control == u"drop-down";
        QCOMPARE(updates.size(), editsFiles ? 1 : 0);
        QCOMPARE(currentValues(files, key) != (QStringList{u"1"_qs, u"1"_qs}), editsFiles);
    }

    void copyingReportsWhetherAnythingChanged()
    {
        auto form = makeForm();
        const QList<ExifFileInfoPtr> files = filesMadeBy({u"Canon"_qs, u"Canon"_qs});
        form->setExifFiles(files);
        QVERIFY(!form->copyToFileInfos(files));

        files.last()->setExifValue(u"XMP-dc:Rights"_qs, u"mine"_qs);
        QVERIFY(form->copyToFileInfos(files));
        QCOMPARE(files.last()->exifValue(u"XMP-dc:Rights"_qs), u"mine"_qs);
        QVERIFY(!files.first()->hasExifValue(u"XMP-dc:Rights"_qs));
    }

    void presetRowsWriteIntoThePreset()
    {
        auto form = std::make_unique<ConfigurationViewController>(nullptr, &m_catalogue);
        form->setShowRemove(true);
        form->createUserInterface();
        Preset preset(u"configuration-1"_qs, u"P"_qs);
        preset.changedValues().insert(u"XMP-dc:Rights"_qs, u"old"_qs);
        preset.removedValues().insert(u"Nikon:Lens"_qs);
        form->setExifConfiguration(&preset);

        // Presets show every maker's rows.
        for (FieldEditor *editor : form->fields())
            QVERIFY2(!editor->label()->isHidden(), qPrintable(editor->field()->xmlName()));
        TextEditor *title = textRow(*form, u"XMP-dc:Title"_qs);
        title->removeButton()->setChecked(true);
        title->editor()->setText(u"new title"_qs);
        textRow(*form, u"Nikon:Lens"_qs)->removeButton()->setChecked(false);

        Preset result(u"configuration-1"_qs, u"P"_qs);
        QVERIFY(form->copyToConfiguration(result));
        QCOMPARE(result.changedValues(),
                 (QMap<QString, QString>{{u"XMP-dc:Rights"_qs, u"old"_qs},
                                         {u"XMP-dc:Title"_qs, u"new title"_qs}}));
        QVERIFY(result.removedValues().isEmpty());

        form->setExifConfiguration(nullptr);
        QVERIFY(!title->editor()->isEnabled() && title->editor()->text().isEmpty());
    }
};

QTEST_MAIN(TestConfigurationView)
#include "tst_configurationview.moc"
