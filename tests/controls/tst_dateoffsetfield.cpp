#include "controls/dateoffsetfield.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// One key of a typing sequence: a key code with its text, and the pause before it.
struct Stroke
{
    int key;
    QString text;
    qint64 pauseMs = 0;
};

using Strokes = QList<Stroke>;

Stroke digit(char c, qint64 pauseMs = 100)
{
    return {Qt::Key_0 + (c - '0'), QString(QLatin1Char(c)), pauseMs};
}
Stroke key(int k, const QString &text = {})
{
    return {k, text, 0};
}

} // namespace

Q_DECLARE_METATYPE(Strokes)

class TstDateOffsetField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingSequences_data();
    void typingSequences();
    void dateFieldIgnoresTimeCells();
};

void TstDateOffsetField::typingSequences_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("cell");
    QTest::addColumn<Strokes>("strokes");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("changes");

    const int dt = DateEditorTypeDateTime;
    QTest::newRow("a pause starts a new number")
        << dt << "+" << 3 << Strokes{digit('1'), digit('2', 1500)} << "+2d" << 2;
    QTest::newRow("three quick digits keep the last two")
        << dt << "+" << 4 << Strokes{digit('1'), digit('2'), digit('3')} << "+23h" << 3;
    QTest::newRow("backspace is ignored but ends the number")
        << dt << "+5d" << 3 << Strokes{digit('1'), key(Qt::Key_Backspace), digit('7')} << "+7d"
        << 2;
    QTest::newRow("minus typed on the sign cell")
        << dt << "+1d2h" << 0 << Strokes{key(Qt::Key_Minus, QStringLiteral("-"))} << "-1d2h" << 1;
    QTest::newRow("sign flipped by arrows")
        << dt << "+1d" << 0 << Strokes{key(Qt::Key_Down), key(Qt::Key_Up), key(Qt::Key_Down)}
        << "-1d" << 3;
    QTest::newRow("up stops at 99")
        << dt << "+98s" << 6 << Strokes{key(Qt::Key_Up), key(Qt::Key_Up), key(Qt::Key_Up)} << "+99s"
        << 1;
    QTest::newRow("down stops at 0")
        << dt << "+1m" << 5 << Strokes{key(Qt::Key_Down), key(Qt::Key_Down)} << "+" << 1;
    QTest::newRow("arrow step ends the number")
        << dt << "+" << 1 << Strokes{digit('4'), key(Qt::Key_Up), digit('2')} << "+2y" << 3;
    QTest::newRow("right walks to the next unit")
        << dt << "+" << 1
        << Strokes{digit('1'), key(Qt::Key_Right), digit('2'), key(Qt::Key_Right), digit('3')}
        << "+1y2M3d" << 3;
    QTest::newRow("left never passes the sign")
        << dt << "+" << 1
        << Strokes{key(Qt::Key_Left), key(Qt::Key_Left), key(Qt::Key_Minus, QStringLiteral("-"))}
        << "-" << 1;
    QTest::newRow("right stops at days in a date field")
        << int(DateEditorTypeDate) << "+" << 2
        << Strokes{key(Qt::Key_Right), key(Qt::Key_Right), digit('9')} << "+9d" << 1;
    QTest::newRow("no cell selected takes no digit")
        << dt << "+1d" << -1 << Strokes{digit('5')} << "+1d" << 0;
}

void TstDateOffsetField::typingSequences()
{
    QFETCH(int, type);
    QFETCH(QString, start);
    QFETCH(int, cell);
    QFETCH(Strokes, strokes);
    QFETCH(QString, expected);
    QFETCH(int, changes);

    qint64 now = 10'000;
    DateOffsetField field{DateEditorType(type)};
    field.setClock([&now] { return now; });
    field.setStringValue(start);
    field.setSelectedCell(cell);
    QSignalSpy spy(&field, &DateOffsetField::dateOffsetChanged);

    for (const Stroke &s : strokes) {
        now += s.pauseMs;
        if (s.text.isEmpty())
            QTest::keyClick(&field, Qt::Key(s.key));
        else
            QTest::keyClick(&field, s.text.at(0).toLatin1());
    }
    QCOMPARE(field.stringValue(), expected);
    QCOMPARE(spy.count(), changes);
}

void TstDateOffsetField::dateFieldIgnoresTimeCells()
{
    // A date field must not carry hours from a stored shift into what the user edits.
    DateOffsetField field(DateEditorTypeDate);
    field.setStringValue(QStringLiteral("+1d5h"));
    field.setSelectedCell(3);
    QTest::keyClick(&field, Qt::Key_Up);
    QCOMPARE(field.dateComponentsValue().day, 2);
    QCOMPARE(field.stringValue(), QStringLiteral("+2d5h"));
    QCOMPARE(field.lastCell(), 3);
}

QTEST_MAIN(TstDateOffsetField)
#include "tst_dateoffsetfield.moc"
