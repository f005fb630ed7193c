#include "catalogue/exiffieldscontroller.h"
#include "catalogue/presetstore.h"
#include "windows/presetswindow.h"
#include "editors/configurationviewcontroller.h"
#include "editors/texteditor.h"
#include "values/usersettings.h"

#include "../support/teststore.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTableView>
#include <QTest>

namespace {

const QString TitleKey = QStringLiteral("XMP-dc:Title");
const QString ArtistKey = QStringLiteral("IFD0:Artist");

TextEditor *textRow(const PresetsWindow &window, const QString &key)
{
    for (FieldEditor *editor : window.configController()->fields()) {
        if (editor->field()->xmlName() == key)
            return qobject_cast<TextEditor *>(editor);
    }
    return nullptr;
}

void typeIntoPresetRow(const PresetsWindow &window, const QString &key, const QString &text)
{
    TextEditor *row = textRow(window, key);
    QVERIFY(row);
    row->removeButton()->setChecked(true);
    row->editor()->setText(text);
}

QString tableNames(const PresetsWindow &window)
{
    QStringList names;
    const QAbstractItemModel *model = window.configurationsTable()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names.append(model->index(row, 0).data().toString());
    return names.join(u'|');
}

int selectedRow(const PresetsWindow &window)
{
    const QModelIndexList rows = window.configurationsTable()->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

} // namespace

class TestPresetsWindow : public QObject
{
    Q_OBJECT

    std::unique_ptr<PresetStore> m_store;

    PresetPtr addPreset(const QString &name)
    {
        auto preset = std::make_shared<Preset>(m_store->findUnusedNewIdentifier(), name);
        m_store->saveConfiguration(preset);
        return preset;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }
    void init()
    {
        useFreshSettingsStore();
        m_store = std::make_unique<PresetStore>();
    }

    // However the user leaves a preset, what they typed is in the settings store.
    void leavingAPresetStoresIt_data()
    {
        QTest::addColumn<QString>("leaveBy");
        for (const char *how : {"select", "deselect", "deactivate", "close"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }
    void leavingAPresetStoresIt()
    {
        QFETCH(QString, leaveBy);
        const PresetPtr first = addPreset(u"First"_qs);
        first->changedValues().insert(ArtistKey, u"kept artist"_qs);
        first->removedValues().insert(u"IFD0:Copyright"_qs);
        m_store->saveConfiguration(first);
        addPreset(u"Second"_qs);

        PresetsWindow window(nullptr, *m_store);
        window.show();
        typeIntoPresetRow(window, TitleKey, u"Über, \"quoted\" & <tagged>"_qs);

        if (leaveBy == u"select")
            window.configurationsTable()->selectRow(1);
        else if (leaveBy == u"deselect")
            window.configurationsTable()->clearSelection();
        else if (leaveBy == u"deactivate") {
            QEvent deactivation(QEvent::ActivationChange);
            QApplication::sendEvent(&window, &deactivation);
        } else
            window.close();

        PresetStore reopened;
        reopened.initializeSettings();
        const PresetPtr stored = reopened.loadConfiguration(first->identifier());
        QVERIFY(stored);
        QCOMPARE(stored->changedValues(),
                 (QMap<QString, QString>{{ArtistKey, u"kept artist"_qs},
                                         {TitleKey, u"Über, \"quoted\" & <tagged>"_qs}}));
        QCOMPARE(stored->removedValues(), QSet<QString>{u"IFD0:Copyright"_qs});
        QCOMPARE(*stored, *m_store->loadConfiguration(first->identifier()));
    }

    void menuTitleCountsRemovedTags_data()
    {
        QTest::addColumn<QStringList>("removed");
        QTest::addColumn<QString>("title");
        QTest::newRow("none") << QStringList() << u"Studio"_qs;
        QTest::newRow("one") << QStringList{ArtistKey} << u"Studio (removes 1 tag)"_qs;
        QTest::newRow("two") << QStringList{u"IFD0:Make"_qs, u"IFD0:Model"_qs}
                             << u"Studio (removes 2 tags)"_qs;
    }
    void menuTitleCountsRemovedTags()
    {
        QFETCH(QStringList, removed);
        Preset preset(u"configuration-1"_qs, u"Studio"_qs);
        preset.changedValues().insert(TitleKey, u"kept"_qs);
        for (const QString &key : removed)
            preset.removedValues().insert(key);
        QTEST(PresetsWindow::menuTitle(preset), "title");
    }

    // A ticked row left empty removes the tag when the preset is applied, and says so.
    void tickedEmptyRowsSayTheyRemove()
    {
        const PresetPtr preset = addPreset(u"Strip camera"_qs);
        preset->removedValues().insert(u"IFD0:Make"_qs);
        preset->changedValues().insert(ArtistKey, u"Ann"_qs);
        m_store->saveConfiguration(preset);
        PresetsWindow window(nullptr, *m_store);
        window.show();
        const auto hintShown = [&window](const QString &key) {
            TextEditor *row = textRow(window, key);
            return row && row->removalHint() && row->removalHint()->isVisible();
        };
        QVERIFY(hintShown(u"IFD0:Make"_qs));
        QCOMPARE(textRow(window, u"IFD0:Make"_qs)->removalHint()->text(),
                 u"Remove from the files"_qs);
        QVERIFY(!hintShown(ArtistKey));
        QVERIFY(!hintShown(TitleKey));

        // Typing a value turns the removal into an assignment; emptying it back, into a removal.
        QLineEdit *make = textRow(window, u"IFD0:Make"_qs)->editor();
        make->setFocus();
        QTest::keyClicks(make, u"Canon"_qs);
        QVERIFY(!hintShown(u"IFD0:Make"_qs));
        make->selectAll();
        QTest::keyClick(make, Qt::Key_Backspace);
        QVERIFY(hintShown(u"IFD0:Make"_qs));
        // Unticked, the row leaves the tag alone.
        textRow(window, u"IFD0:Make"_qs)->removeButton()->setChecked(false);
        QVERIFY(!hintShown(u"IFD0:Make"_qs));
        textRow(window, TitleKey)->removeButton()->setChecked(true);
        QVERIFY(hintShown(TitleKey));
    }

    void presetsAreListedByNameIgnoringCaseAndCountingNumbers()
    {
        for (const QString &name : u"Preset 10|b|Preset 9|A|preset 011|Preset 2x"_qs.split(u'|'))
            addPreset(name);
        PresetsWindow window(nullptr, *m_store);
        QCOMPARE(tableNames(window), u"A|b|Preset 2x|Preset 9|Preset 10|preset 011"_qs);
        QCOMPARE(selectedRow(window), 0);

        // Renaming in place moves the row to its place and keeps it selected.
        QAbstractItemModel *model = window.configurationsTable()->model();
        const QString renamed = window.configNames().at(0);
        QVERIFY(model->setData(model->index(0, 0), u"Preset 3"_qs));
        QCOMPARE(tableNames(window), u"b|Preset 2x|Preset 3|Preset 9|Preset 10|preset 011"_qs);
        QCOMPARE(window.configNames().at(selectedRow(window)), renamed);
        QCOMPARE(m_store->loadConfiguration(renamed)->name(), u"Preset 3"_qs);
    }

    void removingLeavesNothingSelectedAndTheFormCleared()
    {
        addPreset(u"Only"_qs);
        PresetsWindow window(nullptr, *m_store);
        typeIntoPresetRow(window, TitleKey, u"title"_qs);

        window.addRemoveConfigurationPressed(1);

        QVERIFY(m_store->configurations().isEmpty() && window.configNames().isEmpty());
        QCOMPARE(selectedRow(window), -1);
        TextEditor *row = textRow(window, TitleKey);
        QVERIFY(row->editor()->text().isEmpty() && !row->editor()->isEnabled());
        QVERIFY(!row->isRemoveButtonChecked());
    }

    void addingWhileEditingSavesTheEditedPresetFirst()
    {
        const PresetPtr edited = addPreset(u"Edited"_qs);
        PresetsWindow window(nullptr, *m_store);
        window.show();
        typeIntoPresetRow(window, TitleKey, u"typed title"_qs);

        window.addRemoveConfigurationPressed(0);

        QCOMPARE(m_store->loadConfiguration(edited->identifier())->changedValues().value(TitleKey),
                 u"typed title"_qs);
        QCOMPARE(m_store->configurations().size(), 2);
        const QString added = window.currentConfigName();
        QVERIFY(added != edited->identifier());
        QCOMPARE(window.configNames().at(selectedRow(window)), added);
        // The new preset starts empty: nothing of the edited one shows in it.
        QVERIFY(textRow(window, TitleKey)->editor()->text().isEmpty());
        QVERIFY(!textRow(window, TitleKey)->isRemoveButtonChecked());
    }
};

QTEST_MAIN(TestPresetsWindow)
#include "tst_presetswindow.moc"
