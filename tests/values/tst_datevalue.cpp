#include "values/datevalue.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

// Runs under several time zones (see tests/CMakeLists.txt); rows that depend on one zone's
// daylight-saving dates skip elsewhere.
class TestDateValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void calendarResolvesFields_data();
    void calendarResolvesFields();
    void normalizeDateForWriting_data();
    void normalizeDateForWriting();
    void compare_data();
    void compare();
    void formatThenParseIsIdentity();
};

namespace {

struct Fields
{
    qint64 y, M, d, h, m, s;
};

QString localZone()
{
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const QDateTime winter(QDate(2013, 1, 15), QTime(12, 0), Qt::UTC);
    const QDateTime summer(QDate(2013, 7, 15), QTime(12, 0), Qt::UTC);
    if (zone.offsetFromUtc(winter) == 0 && zone.offsetFromUtc(summer) == 0)
        return QStringLiteral("UTC");
    return QString::fromUtf8(QTimeZone::systemTimeZoneId());
}

} // namespace

Q_DECLARE_METATYPE(Fields)

void TestDateValue::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("parses");
    QTest::addColumn<Fields>("fields");

    const int date = DateEditorTypeDate;
    const int dateTime = DateEditorTypeDateTime;
    QTest::newRow("date-time") << u"2013:05:01 14:22:10"_qs << dateTime << true
                               << Fields{2013, 5, 1, 14, 22, 10};
    QTest::newRow("date is no date-time") << u"2013:05:01"_qs << dateTime << false << Fields{};
    QTest::newRow("date") << u"2013:05:01"_qs << date << true << Fields{2013, 5, 1, 0, 0, 0};
    QTest::newRow("date-time is no date") << u"2013:05:01 10:00:00"_qs << date << false << Fields{};
    QTest::newRow("blanks around colons")
        << u"2013 : 05 : 01"_qs << date << true << Fields{2013, 5, 1, 0, 0, 0};
    QTest::newRow("no range checks")
        << u"2013:13:40 25:61:61"_qs << dateTime << true << Fields{2013, 13, 40, 25, 61, 61};
    QTest::newRow("single digits")
        << u"2012:1:5 9:3:7"_qs << dateTime << true << Fields{2012, 1, 5, 9, 3, 7};
    QTest::newRow("zone makes seven pieces")
        << u"2013:05:01 14:22:10+02:00"_qs << dateTime << false << Fields{};
    QTest::newRow("unset date of cameras")
        << u"0000:00:00 00:00:00"_qs << dateTime << true << Fields{0, 0, 0, 0, 0, 0};
    QTest::newRow("empty") << QString() << date << false << Fields{};
}

void TestDateValue::parse()
{
    QFETCH(QString, text);
    QFETCH(int, type);
    QFETCH(bool, parses);
    QFETCH(Fields, fields);

    const auto parsed = parseDateValueOfType(text, DateEditorType(type));
    QCOMPARE(parsed.has_value(), parses);
    if (!parses)
        return;
    QCOMPARE(parsed->year, fields.y);
    QCOMPARE(parsed->month, fields.M);
    QCOMPARE(parsed->day, fields.d);
    QCOMPARE(parsed->hour, fields.h);
    QCOMPARE(parsed->minute, fields.m);
    QCOMPARE(parsed->second, fields.s);
    QVERIFY(!parsed->era.has_value());
}

void TestDateValue::calendarResolvesFields_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("dateTime");
    QTest::addColumn<QString>("date");

    const QString any;
    QTest::newRow("plain") << any << u"2012:1:5 9:3:7"_qs << u"2012:01:05 09:03:07"_qs
                           << u"2012:01:05"_qs;
    QTest::newRow("fields roll over")
        << any << u"2013:13:40 25:61:61"_qs << u"2014:02:10 02:02:01"_qs << u"2014:02:10"_qs;
    QTest::newRow("no 29 February in 2013")
        << any << u"2013:02:29 00:00:00"_qs << u"2013:03:01 00:00:00"_qs << u"2013:03:01"_qs;
    QTest::newRow("month and day zero step back")
        << any << u"2013:00:00 12:00:00"_qs << u"2012:11:30 12:00:00"_qs << u"2012:11:30"_qs;
    QTest::newRow("berlin skipped hour moves forward")
        << u"Europe/Berlin"_qs << u"2013:03:31 02:30:00"_qs << u"2013:03:31 03:30:00"_qs
        << u"2013:03:31"_qs;
    // Daylight saving in Brazil began at midnight: the day itself must not be lost.
    QTest::newRow("sao paulo skipped midnight keeps the day")
        << u"America/Sao_Paulo"_qs << u"2018:11:04 00:00:00"_qs << u"2018:11:04 01:00:00"_qs
        << u"2018:11:04"_qs;
    QTest::newRow("sao paulo repeated hour kept")
        << u"America/Sao_Paulo"_qs << u"2019:02:16 23:30:00"_qs << u"2019:02:16 23:30:00"_qs
        << u"2019:02:16"_qs;
    QTest::newRow("utc has no gap")
        << u"UTC"_qs << u"2013:03:31 02:30:00"_qs << u"2013:03:31 02:30:00"_qs << u"2013:03:31"_qs;
}

void TestDateValue::calendarResolvesFields()
{
    QFETCH(QString, zone);
    QFETCH(QString, text);
    QFETCH(QString, dateTime);
    QFETCH(QString, date);

    if (!zone.isEmpty() && zone != localZone())
        QSKIP("Row for another time zone");
    const QDateTime resolved = dateFromComponents(*parseDateTimeValue(text));
    QVERIFY(resolved.isValid());
    QCOMPARE(formatDateTimeValue(resolved), dateTime);
    QCOMPARE(formatDateValue(resolved), date);
}

void TestDateValue::normalizeDateForWriting_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");

    QTest::newRow("time dropped") << u"2013:5:1 10:00:00"_qs << u"2013:05:01"_qs;
    QTest::newRow("short year padded") << u"13:5:1"_qs << u"0013:05:01"_qs;
}

void TestDateValue::normalizeDateForWriting()
{
    QFETCH(QString, text);
    QFETCH(QString, written);
    QCOMPARE(::normalizeDateForWriting(text), written);
}

void TestDateValue::compare_data()
{
    QTest::addColumn<QString>("newValue");
    QTest::addColumn<QString>("oldValue");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("equal");

    const int date = DateEditorTypeDate;
    const int dateTime = DateEditorTypeDateTime;
    const QString absent;
    QTest::newRow("two spellings of one date-time")
        << u"2012:01:05 09:03:07"_qs << u"2012:1:5 9:3:7"_qs << dateTime << true;
    QTest::newRow("one second apart")
        << u"2012:01:05 09:03:07"_qs << u"2012:01:05 09:03:08"_qs << dateTime << false;
    QTest::newRow("one day apart") << u"2012:01:05"_qs << u"2012:01:06"_qs << date << false;
    QTest::newRow("date against date-time in a date field")
        << u"2012:01:05"_qs << u"2012:01:05 10:00:00"_qs << date << false;
    QTest::newRow("shift against date")
        << u"+1d"_qs << u"2012:01:05 09:03:07"_qs << dateTime << false;
    QTest::newRow("same shift respelt") << u"+1d 2h"_qs << u"+1d2h"_qs << dateTime << true;
    QTest::newRow("hours ignored in a date field") << u"+1d2h"_qs << u"+1d3h"_qs << date << true;
    QTest::newRow("sign not compared") << u"+1d"_qs << u"-1d"_qs << dateTime << true;
    QTest::newRow("removed date differs")
        << absent << u"2012:01:05 09:03:07"_qs << dateTime << false;
    QTest::newRow("removed garbage differs") << absent << u"garbage"_qs << dateTime << false;
    QTest::newRow("garbage reads as zero shifts") << u"garbage"_qs << u"junk"_qs << date << true;
}

void TestDateValue::compare()
{
    QFETCH(QString, newValue);
    QFETCH(QString, oldValue);
    QFETCH(int, type);
    QFETCH(bool, equal);
    QCOMPARE(dateValuesEqual(newValue, oldValue, DateEditorType(type)), equal);
    QCOMPARE(dateValuesEqual(oldValue, newValue, DateEditorType(type)), equal);
}

void TestDateValue::formatThenParseIsIdentity()
{
    QRandomGenerator random(1931);
    int checked = 0;
    for (int i = 0; i < 5000; ++i) {
        const QDate day = QDate(1900, 1, 1).addDays(random.bounded(200 * 366));
        DateComponents fields;
        fields.year = day.year();
        fields.month = day.month();
        fields.day = day.day();
        fields.hour = random.bounded(24);
        fields.minute = random.bounded(60);
        fields.second = random.bounded(60);
        const QDateTime moment = dateFromComponents(fields);
        QVERIFY(moment.isValid());
        const QString text = formatDateTimeValue(moment);
        const auto parsed = parseDateTimeValue(text);
        QVERIFY(parsed);
        QVERIFY2(formatDateTimeComponents(*parsed) == text, qPrintable(text));
        // A wall time skipped by daylight saving cannot come back unchanged.
        const QDateTime dayBefore = moment.addDays(-1);
        const QDateTime dayAfter = moment.addDays(1);
        if (dayBefore.offsetFromUtc() != dayAfter.offsetFromUtc())
            continue;
        QVERIFY2(*parsed == fields, qPrintable(text));
        QCOMPARE(formatDateValue(dateFromComponents(*parseDateValue(text.left(10)))),
                 text.left(10));
        ++checked;
    }
    QVERIFY(checked > 4900);
}

QTEST_GUILESS_MAIN(TestDateValue)
#include "tst_datevalue.moc"
