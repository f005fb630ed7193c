#include "editorfixtures.h"

#include "catalogue/preset.h"
#include "controls/tokenfield.h"
#include "editors/readonlyeditor.h"
#include "editors/stringseditor.h"
#include "values/taglist.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QtTest>

using namespace EditorFixtures;

namespace {

const QString Keywords = u"IPTC:Keywords"_qs;

QStringList shownTokens(const TokenField *field)
{
    QStringList texts;
    for (int i = 0; i < field->tokenCount(); ++i)
        texts.append(field->tokenWidget(i)->text());
    return texts;
}

} // namespace

class TstStringsEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsWithCommasStayWhole_data()
    {
        QTest::addColumn<QString>("typed"); // \n is a press of Return
        QTest::addColumn<QStringList>("added");

        QTest::newRow("plain keyword") << u"Kraków\n"_qs << QStringList{u"Kraków"_qs};
        QTest::newRow("escaped comma typed") << u"Doe\\, Jane,"_qs << QStringList{u"Doe, Jane"_qs};
        QTest::newRow("duplicate collapses") << u"東京,"_qs << QStringList{};
    }

    void itemsWithCommasStayWhole()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, added);

        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings));
        const QString stored = u"Łódź,東京,Smith\\, John"_qs;
        const auto files = makeFiles(Keywords, {stored, stored});
        row.editor.setExifFiles(files);
        TokenField *field = row.editor.editor();
        const QStringList before{u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs};
        QCOMPARE(shownTokens(field), before);

        field->lineEdit()->setFocus();
        for (const QChar c : typed) {
            if (c == u'\n')
                QTest::keyClick(field->lineEdit(), Qt::Key_Return);
            else // one key press per character, non-Latin letters included
                QTest::sendKeyEvent(QTest::Click, field->lineEdit(), Qt::Key_unknown, QString(c),
                                    Qt::NoModifier);
        }

        QCOMPARE(shownTokens(field), before + added);
        for (const auto &file : files)
            QCOMPARE(splitStringsItems(file->exifValue(Keywords)), before + added);
    }

    // Over files whose lists differ, typed items join each file's own list.
    void typingOverDifferingListsAdds_data()
    {
        QTest::addColumn<QString>("typed"); // \n is a press of Return, \b of Backspace
        QTest::addColumn<QStringList>("after");
        QTest::addColumn<bool>("modified");

        QTest::newRow("one added")
            << u"new\n"_qs << QStringList{u"a,b,new"_qs, u"c,new"_qs, u"new"_qs} << true;
        QTest::newRow("already in one list")
            << u"c\n"_qs << QStringList{u"a,b,c"_qs, u"c"_qs, u"c"_qs} << true;
        QTest::newRow("comma inside the item")
            << u"Doe\\, Jane,"_qs
            << QStringList{u"a,b,Doe\\, Jane"_qs, u"c,Doe\\, Jane"_qs, u"Doe\\, Jane"_qs} << true;
        QTest::newRow("added, then taken back")
            << u"new\n\b"_qs << QStringList{u"a,b"_qs, u"c"_qs, u"<absent>"_qs} << false;
    }

    void typingOverDifferingListsAdds()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, after);
        QFETCH(bool, modified);

        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings));
        const auto files = makeFiles(Keywords, {u"a,b"_qs, u"c"_qs, QString()});
        row.editor.setExifFiles(files);
        QVERIFY(row.editor.addsToEachFile());
        QLineEdit *edit = row.editor.editor()->lineEdit();
        edit->setFocus();
        for (const QChar c : typed) {
            if (c == u'\n')
                QTest::keyClick(edit, Qt::Key_Return);
            else if (c == u'\b')
                QTest::keyClick(edit, Qt::Key_Backspace);
            else
                QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c),
                                    Qt::NoModifier);
        }
        QCOMPARE(currentValues(files, Keywords), after);
        QCOMPARE(row.editor.isModified(), modified);
    }

    // Each IPTC keyword has its own 64 bytes: the one being typed counts them, and the note
    // goes with it into the list.
    void keywordBeingTypedCountsItsBytes()
    {
        ExifFieldPtr field = makeField(Keywords, FieldDataRepresentation::Strings);
        field->setMaxBytes(64);
        Row<StringsEditor> row(field);
        const auto files = makeFiles(Keywords, {QString(60, u'a')});
        row.editor.setExifFiles(files);
        QLineEdit *edit = row.editor.editor()->lineEdit();
        QLabel *note = row.editor.bytesLeftLabel();
        QVERIFY(note);
        QVERIFY(!note->isVisibleTo(edit)); // the keywords already there count apart
        edit->setFocus();
        QTest::keyClicks(edit, QString(62, u'b'));
        QVERIFY(note->isVisibleTo(edit));
        QCOMPARE(note->text(), u"2 bytes left"_qs);
        QTest::keyClicks(edit, u"bbb"_qs);
        QCOMPARE(note->text(), u"1 byte too many"_qs);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(!note->isVisibleTo(edit));
        QCOMPARE(currentValues(files, Keywords),
                 QStringList{QString(60, u'a') + u',' + QString(65, u'b')});
    }

    void replaceInAllFilesGivesEveryFileTheTypedList()
    {
        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings));
        const auto files = makeFiles(Keywords, {u"a,b"_qs, u"c"_qs});
        row.editor.setExifFiles(files);
        QVERIFY(row.editor.replaceInAllFilesAction()->isEnabled());
        QLineEdit *edit = row.editor.editor()->lineEdit();
        edit->setFocus();
        QTest::keyClicks(edit, u"x,"_qs);
        QCOMPARE(currentValues(files, Keywords), (QStringList{u"a,b,x"_qs, u"c,x"_qs}));

        row.editor.replaceInAllFilesAction()->trigger();
        QVERIFY(!row.editor.addsToEachFile());
        QCOMPARE(currentValues(files, Keywords), QStringList(2, u"x"_qs));
        QTest::keyClicks(edit, u"y,"_qs);
        QCOMPARE(currentValues(files, Keywords), QStringList(2, u"x,y"_qs));

        // Files with one list in common have nothing to replace.
        row.editor.setExifFiles(files);
        QVERIFY(!row.editor.replaceInAllFilesAction()->isEnabled());
    }

    void backspaceRemovesLastTokenFromEveryFile()
    {
        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings), true);
        const auto files = makeFiles(Keywords, {u"a,b"_qs, u"a,b"_qs});
        row.editor.setExifFiles(files);
        auto spy = updateSpy(row.session);
        QLineEdit *edit = row.editor.editor()->lineEdit();
        edit->setFocus();

        QTest::keyClick(edit, Qt::Key_Backspace);
        QCOMPARE(currentValues(files, Keywords), QStringList(2, u"a"_qs));
        QVERIFY(row.editor.removeButton()->isChecked());
        QTest::keyClick(edit, Qt::Key_Backspace);
        QCOMPARE(currentValues(files, Keywords), QStringList(2, u"<absent>"_qs));
        QCOMPARE(spy.size(), 2);
        QCOMPARE(updateAt(spy, 0).newValue, std::optional<QString>(u"a"_qs));
        QCOMPARE(updateAt(spy, 1).newValue, std::nullopt);
    }

    void listsComparedAsSets_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QStringList>("tokens");
        QTest::addColumn<QString>("placeholder");
        QTest::newRow("other order, other list")
            << QStringList{u"a,b"_qs, u"b,a"_qs, u"c"_qs} << QStringList{} << u"Multiple values"_qs;
        QTest::newRow("all alike")
            << QStringList(3, u"a,b"_qs) << QStringList{u"a"_qs, u"b"_qs} << u""_qs;
    }

    void listsComparedAsSets()
    {
        QFETCH(QStringList, values);
        QFETCH(QStringList, tokens);
        QFETCH(QString, placeholder);

        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings));
        const auto files = makeFiles(Keywords, values);
        row.editor.setExifFiles(files);
        QCOMPARE(shownTokens(row.editor.editor()), tokens);
        QCOMPARE(row.editor.editor()->lineEdit()->placeholderText(), placeholder);
        QVERIFY(!row.editor.copyToExifFiles(files)); // untouched: each file keeps its own list
        QCOMPARE(currentValues(files, Keywords), values);

        // Reordering is no change; an escaped comma is.
        files.first()->setExifValue(Keywords, u"b,a"_qs);
        row.editor.setExifFiles({files.first()});
        QVERIFY(!row.editor.isModified());
        files.first()->setExifValue(Keywords, u"a\\,b"_qs);
        QVERIFY(row.editor.isModified());
    }

    void preset_data()
    {
        QTest::addColumn<QString>("text"); // "<off>" unticks the box
        QTest::addColumn<QString>("entry");
        QTest::newRow("list kept") << u"x\\,y,z"_qs << u"x\\,y,z"_qs;
        QTest::newRow("empty deletes") << u""_qs << u"<removed>"_qs;
        QTest::newRow("box off") << u"<off>"_qs << u""_qs;
    }

    void preset()
    {
        QFETCH(QString, text);
        QFETCH(QString, entry);

        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings), true);
        Preset preset;
        preset.removedValues().insert(Keywords);
        row.editor.setExifConfiguration(&preset);
        QVERIFY(row.editor.removeButton()->isChecked());
        row.editor.editor()->setText(text);
        row.editor.removeButton()->setChecked(text != u"<off>");
        QCOMPARE(presetEntry(row.editor, preset, Keywords), entry);
    }

    void readonlyNumberUsesLocaleAndDecimals()
    {
        auto field = makeField(u"Composite:Aperture"_qs, FieldDataRepresentation::Number,
                               std::nullopt, FieldDataType::Double);
        field->setDecimals(2);
        field->setWritable(false);
        Row<ReadonlyEditor> row(field);
        row.editor.setExifFiles(makeFiles(field->xmlName(), {u"3.14159"_qs}));
        QCOMPARE(row.editor.editor()->text(), u"3"_qs + QLocale::system().decimalPoint() + u"14");
        QVERIFY(row.editor.editor()->isReadOnly());
        row.editor.setExifFiles(makeFiles(field->xmlName(), {u"1"_qs, u"2"_qs}));
        QCOMPARE(row.editor.editor()->text(), u"Multiple values"_qs);
    }
};

QTEST_MAIN(TstStringsEditor)
#include "tst_stringseditor.moc"
