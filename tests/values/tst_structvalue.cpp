#include "values/structvalue.h"

#include <QtTest>

// ExifTool's serialized form of XMP structures: what it prints must read back into the same
// tree and print again exactly as ExifTool does, or a save would rewrite values it never
// touched.
class TestStructValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exifToolsFormRoundTrips_data()
    {
        QTest::addColumn<QString>("serialized");
        QTest::newRow("list of structures")
            << u"[{City=Vienna,CountryName=Austria},{City=Graz}]"_qs;
        QTest::newRow("nested list") << u"[{City=Vienna,LocationId=[a,b]}]"_qs;
        QTest::newRow("escaped comma and bar") << u"[{City=Paris|, France,Sublocation=a || b}]"_qs;
        // Only the bracket that would close the value needs its bar.
        QTest::newRow("brackets in a member") << u"{CiAdrCity=x [1|} ]y}"_qs;
        QTest::newRow("brackets in a list item") << u"[a|],|{b}]"_qs;
        QTest::newRow("opening bracket and blank at the start") << u"[{A=|[x,B=| y,C=|{z}]"_qs;
        QTest::newRow("language members") << u"[{AOTitle=Mona,AOTitle-fr=Joconde}]"_qs;
        QTest::newRow("single structure") << u"{CiAdrCity=Lille,CiEmailWork=a@b.c}"_qs;
        QTest::newRow("empty list item") << u"[a,,b]"_qs;
        QTest::newRow("nested structures")
            << u"[{RCtype=[{Identifier=[http://x/y],Name=Human}],RegionBoundary={RbH=0.4,RbShape=rectangle}}]"_qs;
    }
    void exifToolsFormRoundTrips()
    {
        QFETCH(QString, serialized);
        const auto value = StructValue::parse(serialized);
        QVERIFY(value);
        QCOMPARE(value->serialized(), serialized);
    }

    void escapesAreRead_data()
    {
        QTest::addColumn<QString>("serialized");
        QTest::addColumn<QString>("member");
        QTest::addColumn<QString>("text");
        QTest::newRow("comma") << u"{City=Paris|, France}"_qs << u"City"_qs << u"Paris, France"_qs;
        QTest::newRow("bar") << u"{City=a || b}"_qs << u"City"_qs << u"a | b"_qs;
        QTest::newRow("leading blank kept when escaped")
            << u"{City=| x}"_qs << u"City"_qs << u" x"_qs;
        QTest::newRow("leading blank dropped") << u"{City=  x}"_qs << u"City"_qs << u"x"_qs;
        QTest::newRow("equals sign in a value") << u"{Url=a?b=c}"_qs << u"Url"_qs << u"a?b=c"_qs;
        QTest::newRow("unicode") << u"{City=Łódź}"_qs << u"City"_qs << u"Łódź"_qs;
    }
    void escapesAreRead()
    {
        QFETCH(QString, serialized);
        QFETCH(QString, member);
        QFETCH(QString, text);
        const auto value = StructValue::parse(serialized);
        QVERIFY(value);
        const StructValue *found = value->member(member);
        QVERIFY(found);
        QCOMPARE(found->text, text);
    }

    void malformedTextIsRefused_data()
    {
        QTest::addColumn<QString>("serialized");
        QTest::newRow("unclosed list") << u"[{City=Vienna}"_qs;
        QTest::newRow("unclosed structure") << u"[{City=Vienna]"_qs;
        QTest::newRow("member without name") << u"{=x}"_qs;
        QTest::newRow("member without value sign") << u"{City}"_qs;
        QTest::newRow("text after the end") << u"[a]b"_qs;
    }
    void malformedTextIsRefused()
    {
        QFETCH(QString, serialized);
        QVERIFY(!StructValue::parse(serialized));
    }

    void membersInAnotherOrderAreTheSame()
    {
        const auto a = StructValue::parse(u"[{City=A,Sublocation=B}]"_qs);
        const auto b = StructValue::parse(u"[{Sublocation=B,City=A}]"_qs);
        const auto c = StructValue::parse(u"[{Sublocation=B},{City=A}]"_qs);
        QVERIFY(a && b && c);
        QVERIFY(*a == *b);
        QVERIFY(!(*a == *c));
        // Printed in name order whatever the order they came in.
        QCOMPARE(b->serialized(), a->serialized());
        StructValue item = a->items.first();
        item.setMemberText(u"City"_qs, QString());
        QCOMPARE(item.serialized(), u"{Sublocation=B}"_qs);
        item.setMemberText(u"CountryName"_qs, u"Austria"_qs);
        QCOMPARE(item.serialized(), u"{CountryName=Austria,Sublocation=B}"_qs);
    }
};

QTEST_GUILESS_MAIN(TestStructValue)
#include "tst_structvalue.moc"
