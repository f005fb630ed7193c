#include "editorfixtures.h"

#include "catalogue/exifconfiguration.h"
#include "editors/enumeditor.h"
#include "editors/multienumeditor.h"
#include "values/tagsmithexception.h"

#include <QCheckBox>
#include <QAbstractItemView>
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
    const int target = box->findText(title);
    QVERIFY(target >= 0);
    box->showPopup();
    QAbstractItemView *view = box->view();
    QTRY_VERIFY(view->isVisible());
    const QPoint point = view->visualRect(view->model()->index(target, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
    QTRY_VERIFY(!view->isVisible());
}

// A click on the box's indicator, where the user clicks.
void click(QCheckBox *box)
{
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
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
    void menuIsSortedByTitleWithEmptyFirst()
    {
        Row<EnumEditor> row(enumField());
        QComboBox *box = row.editor.popupButton();
        QStringList titles;
        for (int i = 0; i < box->count(); ++i)
            titles.append(box->itemText(i));
        QCOMPARE(titles, (QStringList{QString(), u"Automatic"_qs, u"Bracket"_qs, u"manual"_qs}));
        QCOMPARE(row.editor.values(), (QStringList{u"AUTO"_qs, u"2"_qs, u"1"_qs}));
    }

    void filesShownAsMenuState_data()
    {
        QTest::addColumn<QStringList>("fileValues");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("tag");

        QTest::newRow("case-insensitive match")
            << QStringList{u"Auto"_qs, u"Auto"_qs} << u"Automatic"_qs << 0;
        QTest::newRow("mixed") << QStringList{u"1"_qs, u"2"_qs} << u"Multiple values"_qs
                               << EnumEditor::MultipleValuesTag;
        QTest::newRow("absent counts as a value")
            << QStringList{u"1"_qs, QString()} << u"Multiple values"_qs
            << EnumEditor::MultipleValuesTag;
        QTest::newRow("unknown kept visible") << QStringList{u"7b"_qs} << u"Unexpected value: 7B"_qs
                                              << EnumEditor::UnexpectedValueTag;
        QTest::newRow("none") << QStringList{QString()} << QString() << EnumEditor::EmptyTag;
    }

    void filesShownAsMenuState()
    {
        QFETCH(QStringList, fileValues);
        QFETCH(QString, shown);
        QFETCH(int, tag);

        Row<EnumEditor> row(enumField());
        row.editor.setExifFiles(makeFiles(Key, fileValues));
        QCOMPARE(row.editor.popupButton()->currentText(), shown);
        QCOMPARE(row.editor.popupButton()->currentData().toInt(), tag);
        // Showing writes nothing.
        QVERIFY(!row.editor.copyToExifFiles(row.editor.exifFiles()));
    }

    void pickingWritesTheCatalogueCode_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("stored");
        QTest::newRow("code") << u"manual"_qs << u"1"_qs;
        QTest::newRow("catalogue spelling") << u"Automatic"_qs << u"AUTO"_qs;
        QTest::newRow("empty item removes") << QString() << u"<absent>"_qs;
    }

    void pickingWritesTheCatalogueCode()
    {
        QFETCH(QString, title);
        QFETCH(QString, stored);

        Row<EnumEditor> row(enumField());
        const auto files = makeFiles(Key, {u"2"_qs, u"Auto"_qs, QString()});
        row.editor.setExifFiles(files);
        auto spy = updateSpy();

        pick(row.editor.popupButton(), title);

        QCOMPARE(currentValues(files, Key), QStringList(3, stored));
        QCOMPARE(spy.size(), 1);
        const ExifFilesUpdate update = updateAt(spy, 0);
        QCOMPARE(update.xmlName, Key);
        QCOMPARE(update.newValue,
                 stored == u"<absent>" ? std::nullopt : std::optional<QString>(stored));
        QCOMPARE(update.source, &row.editor);
        QVERIFY(!row.editor.menuHasItemWithTag(EnumEditor::MultipleValuesTag));
    }

    void unexpectedItemIsNoValue()
    {
        Row<EnumEditor> row(enumField());
        row.editor.setExifFiles(makeFiles(Key, {u"odd"_qs}));
        QVERIFY_THROWS_EXCEPTION(TagsmithException, row.editor.currentValue());
    }

    void enumPreset_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("boxOn");
        QTest::addColumn<QString>("changed");
        QTest::addColumn<bool>("removed");
        QTest::newRow("value") << u"Bracket"_qs << true << u"2"_qs << false;
        QTest::newRow("empty deletes") << QString() << true << QString() << true;
        QTest::newRow("box off") << u"Bracket"_qs << false << QString() << false;
    }

    void enumPreset()
    {
        QFETCH(QString, title);
        QFETCH(bool, boxOn);
        QFETCH(QString, changed);
        QFETCH(bool, removed);

        Row<EnumEditor> row(enumField(), true);
        ExifConfiguration preset;
        preset.changedValues().insert(Key, u"auto"_qs);
        row.editor.setExifConfiguration(&preset);
        QCOMPARE(row.editor.popupButton()->currentText(), u"Automatic"_qs);
        QVERIFY(row.editor.removeButton()->isChecked());

        row.editor.popupButton()->setCurrentIndex(row.editor.popupButton()->findText(title));
        row.editor.removeButton()->setChecked(boxOn);
        QVERIFY(row.editor.copyToConfiguration(preset));
        QCOMPARE(preset.changedValues().value(Key), changed);
        QCOMPARE(preset.removedValues().contains(Key), removed);
    }

    void flagsShowMixedState()
    {
        Row<MultiEnumEditor> row(flagsField());
        row.editor.setExifFiles(makeFiles(Key, {u"A  B"_qs, u"B\nZ"_qs}));
        QCOMPARE(boxOf(row.editor, u"A"_qs)->checkState(), Qt::PartiallyChecked);
        QCOMPARE(boxOf(row.editor, u"B"_qs)->checkState(), Qt::Checked);
        QCOMPARE(boxOf(row.editor, u"C"_qs)->checkState(), Qt::Unchecked);
        QVERIFY(!row.editor.isModified());
    }

    void tickingOneFlagChangesOnlyThatFlag_data()
    {
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("add C") << u"C"_qs << QStringList{u"A B C"_qs, u"B C Z"_qs};
        QTest::newRow("mixed A becomes on") << u"A"_qs << QStringList{u"A B"_qs, u"A B Z"_qs};
        QTest::newRow("B off; unknown word kept") << u"B"_qs << QStringList{u"A"_qs, u"Z"_qs};
    }

    void tickingOneFlagChangesOnlyThatFlag()
    {
        QFETCH(QString, clicked);
        QFETCH(QStringList, expected);

        Row<MultiEnumEditor> row(flagsField());
        const auto files = makeFiles(Key, {u"A B"_qs, u"B Z"_qs});
        row.editor.setExifFiles(files);
        auto spy = updateSpy();

        click(boxOf(row.editor, clicked));

        QCOMPARE(currentValues(files, Key), expected);
        QCOMPARE(spy.size(), 1);
        QVERIFY(row.editor.isModified());
    }

    void lastFlagOffRemovesTag()
    {
        Row<MultiEnumEditor> row(flagsField());
        const auto files = makeFiles(Key, {u"C"_qs, u"C"_qs});
        row.editor.setExifFiles(files);
        click(boxOf(row.editor, u"C"_qs));
        QCOMPARE(currentValues(files, Key), QStringList(2, u"<absent>"_qs));
    }

    void flagsPreset_data()
    {
        QTest::addColumn<QStringList>("on");
        QTest::addColumn<bool>("boxOn");
        QTest::addColumn<QString>("changed");
        QTest::addColumn<bool>("removed");
        QTest::newRow("two on") << QStringList{u"A"_qs, u"C"_qs} << true << u"A C"_qs << false;
        QTest::newRow("none on deletes") << QStringList{} << true << QString() << true;
        QTest::newRow("box off") << QStringList{u"A"_qs} << false << QString() << false;
    }

    void flagsPreset()
    {
        QFETCH(QStringList, on);
        QFETCH(bool, boxOn);
        QFETCH(QString, changed);
        QFETCH(bool, removed);

        Row<MultiEnumEditor> row(flagsField(), true);
        ExifConfiguration preset;
        preset.changedValues().insert(Key, u"B\tC"_qs);
        row.editor.setExifConfiguration(&preset);
        QVERIFY(!boxOf(row.editor, u"A"_qs)->isChecked());
        QVERIFY(boxOf(row.editor, u"B"_qs)->isChecked());
        QVERIFY(boxOf(row.editor, u"C"_qs)->isChecked());

        for (const QString &value : row.editor.values())
            boxOf(row.editor, value)->setChecked(on.contains(value));
        row.editor.removeButton()->setChecked(boxOn);
        QVERIFY(row.editor.copyToConfiguration(preset));
        QCOMPARE(preset.changedValues().value(Key), changed);
        QCOMPARE(preset.removedValues().contains(Key), removed);
    }
};

QTEST_MAIN(TstEnumEditors)
#include "tst_enumeditors.moc"
