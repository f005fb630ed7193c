#include "values/taglist.h"

#include <QTest>

class TestTagList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splitStrings_data();
    void splitStrings();
    void joinThenSplitKeepsItems_data();
    void joinThenSplitKeepsItems();
    void splitMultiEnum_data();
    void splitMultiEnum();
};

void TestTagList::splitStrings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("items");

    QTest::newRow("absent") << QString() << QStringList{};
    QTest::newRow("plain commas separate") << u"a,b,c"_qs << QStringList{u"a"_qs, u"b"_qs, u"c"_qs};
    QTest::newRow("duplicates collapse, first place kept")
        << u"b,a,b,a"_qs << QStringList{u"b"_qs, u"a"_qs};
    QTest::newRow("escaped comma stays in the item")
        << u"Smith\\, John,Jane"_qs << QStringList{u"Smith, John"_qs, u"Jane"_qs};
    QTest::newRow("unicode kept whole")
        << u"Łódź,東京,Smith\\, John"_qs << QStringList{u"Łódź"_qs, u"東京"_qs, u"Smith, John"_qs};
    QTest::newRow("characters outside the basic plane")
        << u"\U0001F4F7,x"_qs << QStringList{u"\U0001F4F7"_qs, u"x"_qs};
    QTest::newRow("empty item in the middle counts")
        << u"x,,y"_qs << QStringList{u"x"_qs, QString(), u"y"_qs};
    QTest::newRow("leading empty item counts") << u",x"_qs << QStringList{QString(), u"x"_qs};
    QTest::newRow("trailing empty item does not") << u"x,y,"_qs << QStringList{u"x"_qs, u"y"_qs};
    QTest::newRow("lone comma is one empty item") << u","_qs << QStringList{QString()};
    QTest::newRow("backslash before other character stays")
        << u"a\\b,c\\"_qs << QStringList{u"a\\b"_qs, u"c\\"_qs};
    QTest::newRow("blanks are part of the item") << u"a, a"_qs << QStringList{u"a"_qs, u" a"_qs};
    QTest::newRow("escaped comma at the end") << u"x\\,"_qs << QStringList{u"x,"_qs};
}

void TestTagList::splitStrings()
{
    QFETCH(QString, text);
    QFETCH(QStringList, items);
    const QStringList result = splitStringsItems(text);
    QCOMPARE(result, items);
    QCOMPARE(splitStringsValue(text), QSet<QString>(items.cbegin(), items.cend()));
}

void TestTagList::joinThenSplitKeepsItems_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::newRow("single") << QStringList{u"one"_qs};
    QTest::newRow("commas inside") << QStringList{u"Smith, John"_qs, u",lead"_qs, u"a,,b"_qs};
    QTest::newRow("unicode and backslash") << QStringList{u"Łódź"_qs, u"東京"_qs, u"C:\\dir"_qs};
    QTest::newRow("empty item first") << QStringList{QString(), u"x"_qs};
}

void TestTagList::joinThenSplitKeepsItems()
{
    QFETCH(QStringList, items);
    QCOMPARE(splitStringsItems(joinStringsValue(items)), items);
}

void TestTagList::splitMultiEnum_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("absent") << QString() << QStringList{};
    QTest::newRow("blanks only") << u"  \t "_qs << QStringList{};
    QTest::newRow("runs of whitespace and line breaks")
        << u" 1  2\n3\t\r\n4 "_qs << QStringList{u"1"_qs, u"2"_qs, u"3"_qs, u"4"_qs};
    QTest::newRow("commas do not separate") << u"1,2 2"_qs << QStringList{u"1,2"_qs, u"2"_qs};
}

void TestTagList::splitMultiEnum()
{
    QFETCH(QString, text);
    QFETCH(QStringList, values);
    QCOMPARE(splitMultiEnumValue(text), QSet<QString>(values.cbegin(), values.cend()));
}

QTEST_GUILESS_MAIN(TestTagList)
#include "tst_taglist.moc"
