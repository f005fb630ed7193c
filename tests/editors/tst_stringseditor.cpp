#include "editorfixtures.h"

#include "catalogue/exifconfiguration.h"
#include "controls/tokenfield.h"
#include "editors/readonlyeditor.h"
#include "editors/stringseditor.h"
#include "values/taglist.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
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

// Types any text, non-Latin letters included, one key press per character.
void typeText(QWidget *widget, const QString &text)
{
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

} // namespace

class TstStringsEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsWithCommasStayWhole_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("expected");

        const QStringList before{u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs};
        QTest::newRow("plain keyword") << u"Kraków\n"_qs << before + QStringList{u"Kraków"_qs};
        QTest::newRow("escaped comma typed")
            << u"Doe\\, Jane,"_qs << before + QStringList{u"Doe, Jane"_qs};
        QTest::newRow("two at once") << u"a,b\n"_qs << before + QStringList{u"a"_qs, u"b"_qs};
        QTest::newRow("duplicate collapses") << u"東京,"_qs << before;
    }

    void itemsWithCommasStayWhole()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, expected);

        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings));
        const QString stored = u"Łódź,東京,Smith\\, John"_qs;
        const auto files = makeFiles(Keywords, {stored, stored});
        row.editor.setExifFiles(files);
        TokenField *field = row.editor.editor();
        QCOMPARE(shownTokens(field), (QStringList{u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs}));

        field->lineEdit()->setFocus();
        for (const QString &line : typed.split(u'\n')) {
            typeText(field->lineEdit(), line);
            if (typed.contains(u'\n'))
                QTest::keyClick(field->lineEdit(), Qt::Key_Return);
        }

        QCOMPARE(shownTokens(field), expected);
        for (const auto &file : files)
            QCOMPARE(splitStringsItems(file->exifValue(Keywords)), expected);
        // A value differing from "x,y" by its escape is a different list.
        QVERIFY(splitStringsValue(u"x\\,y"_qs) != splitStringsValue(u"x,y"_qs));
    }

    void backspaceRemovesLastTokenFromEveryFile()
    {
        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings), true);
        const auto files = makeFiles(Keywords, {u"a,b"_qs, u"a,b"_qs});
        row.editor.setExifFiles(files);
        auto spy = updateSpy();

        row.editor.editor()->lineEdit()->setFocus();
        QTest::keyClick(row.editor.editor()->lineEdit(), Qt::Key_Backspace);

        QCOMPARE(currentValues(files, Keywords), QStringList(2, u"a"_qs));
        QVERIFY(row.editor.removeButton()->isChecked());
        QCOMPARE(spy.size(), 1);
        QCOMPARE(updateAt(spy, 0).newValue, std::optional<QString>(u"a"_qs));

        QTest::keyClick(row.editor.editor()->lineEdit(), Qt::Key_Backspace);
        QCOMPARE(currentValues(files, Keywords), QStringList(2, u"<absent>"_qs));
        QCOMPARE(updateAt(spy, 1).newValue, std::nullopt);
    }

    void distinctTextsShowMultipleValues_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QStringList>("tokens");
        QTest::addColumn<QString>("placeholder");
        QTest::newRow("same items, other order")
            << QStringList{u"a,b"_qs, u"b,a"_qs, u"c"_qs} << QStringList{} << u"Multiple values"_qs;
        QTest::newRow("all alike")
            << QStringList(3, u"a,b"_qs) << QStringList{u"a"_qs, u"b"_qs} << QString();
    }

    void distinctTextsShowMultipleValues()
    {
        QFETCH(QStringList, values);
        QFETCH(QStringList, tokens);
        QFETCH(QString, placeholder);

        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings));
        const auto files = makeFiles(Keywords, values);
        row.editor.setExifFiles(files);
        QCOMPARE(shownTokens(row.editor.editor()), tokens);
        QCOMPARE(row.editor.editor()->lineEdit()->placeholderText(), placeholder);
        // Untouched, the row writes nothing: each file keeps its own list.
        QVERIFY(!row.editor.copyToExifFiles(files));
        QCOMPARE(currentValues(files, Keywords), values);
    }

    void reorderedListIsNotModified()
    {
        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings));
        const auto files = makeFiles(Keywords, {u"a,b"_qs});
        files.first()->setExifValue(Keywords, u"b,a"_qs);
        row.editor.setExifFiles(files);
        QVERIFY(!row.editor.isModified());
        files.first()->setExifValue(Keywords, u"b\\,a"_qs);
        QVERIFY(row.editor.isModified());
    }

    void preset_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("boxOn");
        QTest::addColumn<QString>("changed");
        QTest::addColumn<bool>("removed");
        QTest::newRow("list kept") << u"x\\,y,z"_qs << true << u"x\\,y,z"_qs << false;
        QTest::newRow("empty deletes") << QString() << true << QString() << true;
        QTest::newRow("box off") << u"x"_qs << false << QString() << false;
    }

    void preset()
    {
        QFETCH(QString, text);
        QFETCH(bool, boxOn);
        QFETCH(QString, changed);
        QFETCH(bool, removed);

        Row<StringsEditor> row(makeField(Keywords, FieldDataRepresentation::Strings), true);
        ExifConfiguration configuration;
        configuration.removedValues().insert(Keywords);
        row.editor.setExifConfiguration(&configuration);
        QVERIFY(row.editor.removeButton()->isChecked());
        QCOMPARE(row.editor.editor()->tokenCount(), 0);

        row.editor.editor()->setText(text);
        row.editor.removeButton()->setChecked(boxOn);
        QVERIFY(row.editor.copyToConfiguration(configuration));
        QCOMPARE(configuration.changedValues().value(Keywords), changed);
        QCOMPARE(configuration.removedValues().contains(Keywords), removed);
    }

    void readonlyNumberUsesLocaleAndDecimals()
    {
        auto field = makeField(u"Composite:Aperture"_qs, FieldDataRepresentation::Number,
                               std::nullopt, FieldDataType::Double);
        field->setDecimals(2);
        field->setWritable(false);
        Row<ReadonlyEditor> row(field);
        row.editor.setExifFiles(makeFiles(field->xmlName(), {u"3.14159"_qs}));
        const QString expected = u"3"_qs + QLocale::system().decimalPoint() + u"14"_qs;
        QCOMPARE(row.editor.editor()->text(), expected);
        QVERIFY(row.editor.editor()->isReadOnly());

        row.editor.setExifFiles(makeFiles(field->xmlName(), {u"1"_qs, u"2"_qs}));
        QCOMPARE(row.editor.editor()->text(), u"Multiple values"_qs);
        QVERIFY(!row.editor.isModified());
    }
};

QTEST_MAIN(TstStringsEditor)
#include "tst_stringseditor.moc"
