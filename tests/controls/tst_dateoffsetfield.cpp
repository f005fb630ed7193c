#include "controls/dateoffsetfield.h"

#include <QSignalSpy>
#include <QTest>

class TstDateOffsetField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingSequences_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("cell");
        QTest::addColumn<QString>("keys"); // ^ v < > arrows, ~ backspace, | a 1.5 s pause
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("changes");

        const int dt = DateEditorTypeDateTime;
        QTest::newRow("pause starts a new number")
            << dt << u"+"_qs << 3 << u"1|2"_qs << u"+2d"_qs << 2;
        QTest::newRow("three quick digits keep two")
            << dt << u"+"_qs << 4 << u"123"_qs << u"+23h"_qs << 3;
        QTest::newRow("backspace ends the number")
            << dt << u"+5d"_qs << 3 << u"1~7"_qs << u"+7d"_qs << 2;
        QTest::newRow("minus on the sign cell")
            << dt << u"+1d2h"_qs << 0 << u"-"_qs << u"-1d2h"_qs << 1;
        QTest::newRow("sign flipped by arrows")
            << dt << u"+1d"_qs << 0 << u"v^v"_qs << u"-1d"_qs << 3;
        QTest::newRow("up stops at 99") << dt << u"+98s"_qs << 6 << u"^^^"_qs << u"+99s"_qs << 1;
        QTest::newRow("down stops at 0") << dt << u"+1m"_qs << 5 << u"vv"_qs << u"+"_qs << 1;
        QTest::newRow("arrow step ends the number")
            << dt << u"+"_qs << 1 << u"4^2"_qs << u"+2y"_qs << 3;
        QTest::newRow("right walks the units")
            << dt << u"+"_qs << 1 << u"1>2>3"_qs << u"+1y2M3d"_qs << 3;
        QTest::newRow("left stops at the sign") << dt << u"+"_qs << 1 << u"<<-"_qs << u"-"_qs << 1;
        QTest::newRow("date field stops at days")
            << int(DateEditorTypeDate) << u"+"_qs << 2 << u">>9"_qs << u"+9d"_qs << 1;
        QTest::newRow("no cell takes no digit")
            << dt << u"+1d"_qs << -1 << u"5"_qs << u"+1d"_qs << 0;
    }

    void typingSequences()
    {
        QFETCH(int, type);
        QFETCH(QString, start);
        QFETCH(int, cell);
        QFETCH(QString, keys);
        QFETCH(QString, expected);
        QFETCH(int, changes);

        qint64 now = 10'000;
        DateOffsetField field{DateEditorType(type)};
        field.setClock([&now] { return now; });
        field.setStringValue(start);
        field.setSelectedCell(cell);
        QSignalSpy spy(&field, &DateOffsetField::dateOffsetChanged);

        const QHash<QChar, Qt::Key> named{{u'^', Qt::Key_Up},
                                          {u'v', Qt::Key_Down},
                                          {u'<', Qt::Key_Left},
                                          {u'>', Qt::Key_Right},
                                          {u'~', Qt::Key_Backspace}};
        for (const QChar c : keys) {
            now += c == u'|' ? 1500 : 100;
            if (named.contains(c))
                QTest::keyClick(&field, named.value(c));
            else if (c != u'|')
                QTest::keyClick(&field, c.toLatin1());
        }
        QCOMPARE(field.stringValue(), expected);
        QCOMPARE(spy.count(), changes);
    }

    void dateFieldKeepsStoredHours()
    {
        DateOffsetField field(DateEditorTypeDate);
        field.setStringValue(QStringLiteral("+1d5h"));
        field.setSelectedCell(3);
        QTest::keyClick(&field, Qt::Key_Up);
        QCOMPARE(field.stringValue(), QStringLiteral("+2d5h"));
    }
};

QTEST_MAIN(TstDateOffsetField)
#include "tst_dateoffsetfield.moc"
