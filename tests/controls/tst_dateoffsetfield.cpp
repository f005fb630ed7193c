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
        QTest::newRow("pause starts a new number") << dt << "+" << 3 << "1|2"
                                                   << "+2d" << 2;
        QTest::newRow("three quick digits keep two") << dt << "+" << 4 << "123"
                                                     << "+23h" << 3;
        QTest::newRow("backspace ends the number") << dt << "+5d" << 3 << "1~7"
                                                   << "+7d" << 2;
        QTest::newRow("minus on the sign cell") << dt << "+1d2h" << 0 << "-"
                                                << "-1d2h" << 1;
        QTest::newRow("sign flipped by arrows") << dt << "+1d" << 0 << "v^v"
                                                << "-1d" << 3;
        QTest::newRow("up stops at 99") << dt << "+98s" << 6 << "^^^"
                                        << "+99s" << 1;
        QTest::newRow("down stops at 0") << dt << "+1m" << 5 << "vv"
                                         << "+" << 1;
        QTest::newRow("arrow step ends the number") << dt << "+" << 1 << "4^2"
                                                    << "+2y" << 3;
        QTest::newRow("right walks the units") << dt << "+" << 1 << "1>2>3"
                                               << "+1y2M3d" << 3;
        QTest::newRow("left stops at the sign") << dt << "+" << 1 << "<<-"
                                                << "-" << 1;
        QTest::newRow("date field stops at days") << int(DateEditorTypeDate) << "+" << 2 << ">>9"
                                                  << "+9d" << 1;
        QTest::newRow("no cell takes no digit") << dt << "+1d" << -1 << "5"
                                                << "+1d" << 0;
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
