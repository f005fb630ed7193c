#include "editorfixtures.h"

#include "catalogue/preset.h"
#include "editors/enumeditor.h"
#include "editors/multienumeditor.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QtTest>

using namespace EditorFixtures;

namespace {

const QString Key = u"ExifIFD:Test"_qs;

ExifFieldPtr enumField()
{
    return makeField(Key, FieldDataRepresentation::Enum,
                     QHash<QString, QString>{{u"AUTO"_qs, u"Automatic"_qs},
                                             {u"1"_qs, u"manual"_qs},
                                             {u"2"_qs, u"Bracket"_qs}});
}

ExifFieldPtr flagsField()
{
    return makeField(Key, FieldDataRepresentation::MultiEnum,
                     QHash<QString, QString>{
                         {u"A"_qs, u"Alpha"_qs}, {u"B"_qs, u"Beta"_qs}, {u"C"_qs, u"Gamma"_qs}});
}

// Picks a menu item with the mouse, from the opened menu.
void pick(QComboBox *box, const QString &title)
{
    box->showPopup();
    QAbstractItemView *view = box->view();
    QTRY_VERIFY(view->isVisible());
    const QModelIndex item = view->model()->index(box->findText(title), 0);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(item).center());
    QTRY_VERIFY(!view->isVisible());
}

QCheckBox *boxOf(MultiEnumEditor &editor, const QString &value)
{
    return editor.editors().value(editor.values().indexOf(value));
}

} // namespace

class TstEnumEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesShownAsMenuState_data()
    {
        QTest::addColumn<QStringList>("fileValues");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("tag");
        QTest::newRow("case-insensitive match")
            << QStringList(2, u"Auto"_qs) << u"Automatic"_qs << 0;
        QTest::newRow("absent counts as a value")
            << QStringList{u"1"_qs, QString()} << u"Multiple values"_qs
            << EnumEditor::MultipleValuesTag;
        QTest::newRow("unknown kept visible") << QStringList{u"7b"_qs} << u"Unexpected value: 7B"_qs
                                              << EnumEditor::UnexpectedValueTag;
    }
    void filesShownAsMenuState()
    {
        QFETCH(QStringList, fileValues);
        Row<EnumEditor> row(enumField());
        row.editor.setExifFiles(makeFiles(Key, fileValues));
        QTEST(row.editor.popupButton()->currentText(), "shown");
        QTEST(row.editor.popupButton()->currentData().toInt(), "tag");
        QVERIFY(!row.editor.copyToExifFiles(row.editor.exifFiles())); // showing writes nothing
    }

    void pickingWritesTheCatalogueCode_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("stored");
        QTest::newRow("catalogue spelling") << u"Automatic"_qs << u"AUTO"_qs;
        QTest::newRow("empty item removes") << u""_qs << u"<absent>"_qs;
    }
    void pickingWritesTheCatalogueCode()
    {
        QFETCH(QString, title);
        QFETCH(QString, stored);
        Row<EnumEditor> row(enumField());
        const auto files = makeFiles(Key, {u"2"_qs, u"Auto"_qs, QString()});
        row.editor.setExifFiles(files);
        auto spy = updateSpy(row.session);
        pick(row.editor.popupButton(), title);
        QCOMPARE(currentValues(files, Key), QStringList(3, stored));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(updateAt(spy, 0).newValue,
                 stored == u"<absent>" ? std::nullopt : std::optional<QString>(stored));
        QVERIFY(!row.editor.menuHasItemWithTag(EnumEditor::MultipleValuesTag));
    }

    void tickingOneFlagChangesOnlyThatFlag_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<QStringList>("after");
        const QStringList mixed{u"A  B"_qs, u"B\nZ"_qs};
        QTest::newRow("add C") << mixed << u"C"_qs << QStringList{u"A B C"_qs, u"B C Z"_qs};
        QTest::newRow("mixed A turns on")
            << mixed << u"A"_qs << QStringList{u"A B"_qs, u"A B Z"_qs};
        QTest::newRow("B off, unknown kept") << mixed << u"B"_qs << QStringList{u"A"_qs, u"Z"_qs};
        QTest::newRow("last off removes")
            << QStringList(2, u"C"_qs) << u"C"_qs << QStringList(2, u"<absent>"_qs);
    }
    void tickingOneFlagChangesOnlyThatFlag()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, clicked);
        Row<MultiEnumEditor> row(flagsField());
        const auto files = makeFiles(Key, before);
        row.editor.setExifFiles(files);
        if (QTest::currentDataTag() == QByteArrayView("add C")) {
            QCOMPARE(boxOf(row.editor, u"A"_qs)->checkState(), Qt::PartiallyChecked);
            QCOMPARE(boxOf(row.editor, u"B"_qs)->checkState(), Qt::Checked);
            QCOMPARE(boxOf(row.editor, u"C"_qs)->checkState(), Qt::Unchecked);
        }
        auto spy = updateSpy(row.session);
        QCheckBox *box = boxOf(row.editor, clicked);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        QTEST(currentValues(files, Key), "after");
        QCOMPARE(spy.size(), 1);
        QVERIFY(row.editor.isModified());
    }

    // Both rows in a preset: a value, a removal when emptied, nothing when the box is off.
    void preset_data()
    {
        QTest::addColumn<bool>("flags");
        QTest::addColumn<QStringList>("picked"); // "<off>" unticks the box
        QTest::addColumn<QString>("entry");
        QTest::newRow("enum value") << false << QStringList{u"Bracket"_qs} << u"2"_qs;
        QTest::newRow("enum empty deletes") << false << QStringList{u""_qs} << u"<removed>"_qs;
        QTest::newRow("enum box off") << false << QStringList{u"<off>"_qs} << u""_qs;
        QTest::newRow("flags two on") << true << QStringList{u"A"_qs, u"C"_qs} << u"A C"_qs;
        QTest::newRow("flags none deletes") << true << QStringList{} << u"<removed>"_qs;
    }
    void preset()
    {
        QFETCH(bool, flags);
        QFETCH(QStringList, picked);
        Preset preset;
        const bool on = !picked.contains(u"<off>"_qs);
        if (flags) {
            Row<MultiEnumEditor> row(flagsField(), true);
            preset.changedValues().insert(Key, u"B\tC"_qs);
            row.editor.setExifConfiguration(&preset);
            QVERIFY(boxOf(row.editor, u"C"_qs)->isChecked() &&
                    !boxOf(row.editor, u"A"_qs)->isChecked());
            for (const QString &value : row.editor.values())
                boxOf(row.editor, value)->setChecked(picked.contains(value));
            row.editor.removeButton()->setChecked(on);
            QTEST(presetEntry(row.editor, preset, Key), "entry");
        } else {
            Row<EnumEditor> row(enumField(), true);
            preset.changedValues().insert(Key, u"auto"_qs);
            row.editor.setExifConfiguration(&preset);
            QCOMPARE(row.editor.popupButton()->currentText(), u"Automatic"_qs);
            QComboBox *box = row.editor.popupButton();
            box->setCurrentIndex(box->findText(picked.value(0)));
            row.editor.removeButton()->setChecked(on);
            QTEST(presetEntry(row.editor, preset, Key), "entry");
        }
    }
};

QTEST_MAIN(TstEnumEditors)
#include "tst_enumeditors.moc"
