#include "values/dateoffset.h"
#include "values/datevalue.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

// Runs under several time zones (see tests/CMakeLists.txt); rows that depend on one zone's
// daylight-saving dates skip elsewhere.
class TestDateOffset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void format_data();
    void format();
    void writeForm_data();
    void writeForm();
    void apply_data();
    void apply();
    void offsetBetween_data();
    void offsetBetween();
    void shiftThenNegatedShiftRestores();
    void compactFormParsesBack();
};

namespace {

DateComponents units(qint64 y, qint64 M, qint64 d, qint64 h = 0, qint64 m = 0, qint64 s = 0,
                     std::optional<qint64> era = std::nullopt)
{
    DateComponents c;
    c.era = era;
    c.year = y;
    c.month = M;
    c.day = d;
    c.hour = h;
    c.minute = m;
    c.second = s;
    return c;
}

QString localZone()
{
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const QDateTime winter(QDate(2013, 1, 15), QTime(12, 0), Qt::UTC);
    const QDateTime summer(QDate(2013, 7, 15), QTime(12, 0), Qt::UTC);
    if (zone.offsetFromUtc(winter) == 0 && zone.offsetFromUtc(summer) == 0)
        return QStringLiteral("UTC");
    return QString::fromUtf8(QTimeZone::systemTimeZoneId());
}

QDateTime at(const QString &text)
{
    return dateFromComponents(*parseDateTimeValue(text));
}

} // namespace

void TestDateOffset::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<DateComponents>("expected");

    const auto plus = std::optional<qint64>(1);
    const auto minus = std::optional<qint64>(0);
    QTest::newRow("null") << QString() << units(0, 0, 0);
    QTest::newRow("minus day") << u"-1d"_qs << units(0, 0, 1, 0, 0, 0, minus);
    QTest::newRow("no sign is plus") << u"1y2M"_qs << units(1, 2, 0, 0, 0, 0, plus);
    QTest::newRow("spaced units") << u"+1y 2M"_qs << units(1, 2, 0, 0, 0, 0, plus);
    QTest::newRow("blanks everywhere") << u" \t+ 1 y 2\tM "_qs << units(1, 2, 0, 0, 0, 0, plus);
    QTest::newRow("M months m minutes") << u"+3M4m"_qs << units(0, 3, 0, 0, 4, 0, plus);
    QTest::newRow("all six") << u"-1y2M3d4h5m6s"_qs << units(1, 2, 3, 4, 5, 6, minus);
    QTest::newRow("unknown unit skipped") << u"+1x2d"_qs << units(0, 0, 2, 0, 0, 0, plus);
    QTest::newRow("unit without number stops") << u"+d"_qs << units(0, 0, 0, 0, 0, 0, plus);
    QTest::newRow("number without unit dropped") << u"+1d2"_qs << units(0, 0, 1, 0, 0, 0, plus);
    QTest::newRow("later unit replaces") << u"+1d3d"_qs << units(0, 0, 3, 0, 0, 0, plus);
    QTest::newRow("inner minus negates its number")
        << u"+1d-2h"_qs << units(0, 0, 1, -2, 0, 0, plus);
    QTest::newRow("inner plus stops") << u"-1d+2h"_qs << units(0, 0, 1, 0, 0, 0, minus);
}

void TestDateOffset::parse()
{
    QFETCH(QString, text);
    QFETCH(DateComponents, expected);
    QCOMPARE(parseDateOffset(text), expected);
    DateComponents dateOnly = expected;
    dateOnly.hour = dateOnly.minute = dateOnly.second = 0;
    QCOMPARE(parseDateOffsetDateOnly(text), dateOnly);
}

void TestDateOffset::format_data()
{
    QTest::addColumn<DateComponents>("offset");
    QTest::addColumn<bool>("plus");
    QTest::addColumn<QString>("compact");
    QTest::addColumn<QString>("display");

    QTest::newRow("year and day") << units(1, 0, 2) << true << u"+1y2d"_qs << u"+1y 2d"_qs;
    QTest::newRow("zero plus") << units(0, 0, 0) << true << u"+"_qs << u"+"_qs;
    QTest::newRow("zero minus") << units(0, 0, 0) << false << u"-"_qs << u"-"_qs;
    QTest::newRow("months and minutes")
        << units(0, 2, 0, 0, 5) << true << u"+2M5m"_qs << u"+2M 5m"_qs;
    QTest::newRow("negative unit prints magnitude")
        << units(0, 0, -3) << true << u"+3d"_qs << u"+3d"_qs;
    QTest::newRow("all six") << units(1, 2, 3, 4, 5, 6) << false << u"-1y2M3d4h5m6s"_qs
                             << u"-1y 2M 3d 4h 5m 6s"_qs;
}

void TestDateOffset::format()
{
    QFETCH(DateComponents, offset);
    QFETCH(bool, plus);
    QFETCH(QString, compact);
    QFETCH(QString, display);
    QCOMPARE(formatDateOffsetCompact(offset, plus), compact);
    QCOMPARE(formatDateOffsetDisplay(offset, plus), display);
}

void TestDateOffset::writeForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("written");

    const int date = DateEditorTypeDate;
    const int dateTime = DateEditorTypeDateTime;
    QTest::newRow("day and hours") << u"+1d2h"_qs << dateTime << u"+0:0:1 02:00:00"_qs;
    QTest::newRow("no sign writes minus") << u"1d"_qs << dateTime << u"-0:0:1 00:00:00"_qs;
    QTest::newRow("both signs write plus") << u"-1d+2h"_qs << dateTime << u"+0:0:1 00:00:00"_qs;
    QTest::newRow("date drops time") << u"+1d2h"_qs << date << u"+0:0:1"_qs;
}

void TestDateOffset::writeForm()
{
    QFETCH(QString, text);
    QFETCH(int, type);
    QFETCH(QString, written);
    QCOMPARE(formatDateOffsetForWriting(text, DateEditorType(type)), written);
}

void TestDateOffset::apply_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("offset");
    QTest::addColumn<QString>("original");
    QTest::addColumn<QString>("result");

    auto row = [](const char *name, const char *zone, const char *offset, const char *original,
                  const char *result) {
        QTest::newRow(name) << QString::fromUtf8(zone) << QString::fromUtf8(offset)
                            << QString::fromUtf8(original) << QString::fromUtf8(result);
    };
    row("leap day plus a year", "", "+1y", "2012:02:29 00:00:00", "2013:02:28 00:00:00");
    row("month end clamped back", "", "-1M", "2013:03:31 10:00:00", "2013:02:28 10:00:00");
    row("month end clamped forward", "", "+1M", "2013:01:31 10:00:00", "2013:02:28 10:00:00");
    row("30 days is not a month", "", "+30d", "2013:01:31 10:00:00", "2013:03:02 10:00:00");
    row("years before months", "", "+1y1M", "2012:02:29 12:00:00", "2013:03:28 12:00:00");
    row("month back over new year", "", "-1M", "2013:01:15 12:00:00", "2012:12:15 12:00:00");
    row("hours carry over new year", "", "+1d2h", "2013:12:31 23:00:00", "2014:01:02 01:00:00");
    row("seconds carry over new year", "", "+59s", "2013:12:31 23:59:59", "2014:01:01 00:00:58");
    row("minus day goes back", "", "-1d", "2013:05:02 00:00:00", "2013:05:01 00:00:00");
    row("unsigned shift is no shift", "", "1d", "2013:05:02 00:00:00", nullptr);
    row("both signs go forward", "", "-1d+2h", "2013:05:02 00:00:00", "2013:05:03 00:00:00");
    row("inner minus is only a magnitude", "", "+-1d", "2013:05:02 00:00:00",
        "2013:05:03 00:00:00");
    row("absolute value stands", "", "2013:05:01 10:00:00", "2000:01:01 00:00:00",
        "2013:05:01 10:00:00");
    row("unreadable original", "", "+1d", "2013:05:01", nullptr);
    row("berlin day lands in skipped hour", "Europe/Berlin", "+1d", "2013:03:30 02:30:00",
        "2013:03:31 03:30:00");
    row("berlin day keeps clock time into summer", "Europe/Berlin", "+1d", "2013:03:30 12:00:00",
        "2013:03:31 12:00:00");
    row("berlin 24 hours into summer", "Europe/Berlin", "+24h", "2013:03:30 12:00:00",
        "2013:03:31 13:00:00");
    row("berlin hour over the gap", "Europe/Berlin", "+1h", "2013:03:31 01:30:00",
        "2013:03:31 03:30:00");
    row("berlin 24 hours into winter", "Europe/Berlin", "+24h", "2013:10:26 12:00:00",
        "2013:10:27 11:00:00");
    row("berlin two hours in the repeated hour", "Europe/Berlin", "+2h", "2013:10:27 01:30:00",
        "2013:10:27 02:30:00");
    row("sao paulo day lands in skipped midnight", "America/Sao_Paulo", "+1d",
        "2018:11:03 00:30:00", "2018:11:04 01:30:00");
    row("sao paulo month lands in skipped midnight", "America/Sao_Paulo", "+1M",
        "2018:10:04 00:00:00", "2018:11:04 01:00:00");
    row("sao paulo 24 hours into summer", "America/Sao_Paulo", "+24h", "2018:11:03 12:00:00",
        "2018:11:04 13:00:00");
    row("sao paulo 24 hours out of summer", "America/Sao_Paulo", "+24h", "2019:02:16 12:00:00",
        "2019:02:17 11:00:00");
    row("utc 24 hours are a day", "UTC", "+24h", "2013:03:30 12:00:00", "2013:03:31 12:00:00");
}

void TestDateOffset::apply()
{
    QFETCH(QString, zone);
    QFETCH(QString, offset);
    QFETCH(QString, original);
    QFETCH(QString, result);

    if (!zone.isEmpty() && zone != localZone())
        QSKIP("Row for another time zone");
    const QDateTime shifted = applyDateOffset(offset, original);
    QCOMPARE(shifted.isValid(), !result.isEmpty());
    if (shifted.isValid())
        QCOMPARE(formatDateTimeValue(shifted), result);
}

void TestDateOffset::offsetBetween_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("original");
    QTest::addColumn<DateComponents>("offset");
    QTest::addColumn<QString>("description");

    QTest::newRow("current later") << u"2013:05:02 12:00:00"_qs << u"2013:05:01 10:00:00"_qs
                                   << units(0, 0, -1, -2, 0, 0, -1) << u"-1d 2h "_qs;
    QTest::newRow("current earlier") << u"2013:05:01 10:00:00"_qs << u"2013:05:02 12:00:00"_qs
                                     << units(0, 0, 1, 2, 0, 0, 1) << u"+1d 2h "_qs;
    QTest::newRow("equal") << u"2013:05:01 10:00:00"_qs << u"2013:05:01 10:00:00"_qs
                           << units(0, 0, 0) << QString(u""_qs);
    QTest::newRow("month from a month end")
        << u"2013:01:31 00:00:00"_qs << u"2013:03:01 00:00:00"_qs << units(0, 1, 1, 0, 0, 0, 1)
        << u"+1M 1d "_qs;
    QTest::newRow("every unit") << u"2010:01:01 00:00:00"_qs << u"2011:03:04 05:06:07"_qs
                                << units(1, 2, 3, 5, 6, 7, 1) << u"+1y 2M 3d 5h 6m 7s"_qs;
}

void TestDateOffset::offsetBetween()
{
    QFETCH(QString, current);
    QFETCH(QString, original);
    QFETCH(DateComponents, offset);
    QFETCH(QString, description);

    QCOMPARE(offsetBetweenDates(at(current), at(original)), offset);
    QCOMPARE(describeOffsetBetweenDates(at(current), at(original)), description);
}

// For random dates and shifts, a shift followed by its negation gives the original back, except
// where the calendar cannot: a clamped month end, time carried over a day before a month step,
// a day step that crosses a month end after a month step, or a daylight-saving change nearby.
void TestDateOffset::shiftThenNegatedShiftRestores()
{
    QRandomGenerator random(20130501);
    const int rounds = 3000;
    int checked = 0;
    for (int i = 0; i < rounds; ++i) {
        // Half the rounds shift by days and time only; the other half take calendar steps from
        // early in a month so that most of them can come back.
        const bool withMonths = i % 2 == 1;
        QDate day = QDate(1950, 1, 1).addDays(random.bounded(100 * 365));
        QTime time(random.bounded(24), random.bounded(60), random.bounded(60));
        DateComponents shift = units(0, 0, random.bounded(400), random.bounded(49),
                                     random.bounded(121), random.bounded(121));
        if (withMonths) {
            day = QDate(day.year(), day.month(), 1 + random.bounded(14));
            time = QTime(random.bounded(12), random.bounded(60), random.bounded(60));
            shift = units(random.bounded(21), random.bounded(25), random.bounded(14),
                          random.bounded(11), random.bounded(60), random.bounded(60));
        }
        const QString original = formatDateTimeValue(QDateTime(day, time, Qt::LocalTime));
        const QString forwardText = formatDateOffsetCompact(shift, true);
        const QString backText = formatDateOffsetCompact(shift, false);

        const QDateTime start = at(original);
        const QDateTime forward = applyDateOffset(forwardText, original);
        QVERIFY(forward.isValid());
        QVERIFY2(forward >= start, qPrintable(original + u' ' + forwardText));
        const QDateTime back = applyDateOffset(backText, formatDateTimeValue(forward));

        const qint64 timeUnits = (shift.hour * 60 + shift.minute) * 60 + shift.second;
        const bool monthStep = shift.year != 0 || shift.month != 0;
        const bool clamps = monthStep && day.day() + shift.day > 28;
        const bool carries = monthStep && time.msecsSinceStartOfDay() / 1000 + timeUnits >= 86400;
        auto steady = [](const QDateTime &t) {
            return t.addDays(-3).offsetFromUtc() == t.addDays(3).offsetFromUtc() &&
                   t.offsetFromUtc() == t.addDays(3).offsetFromUtc();
        };
        if (clamps || carries || !steady(start) || !steady(forward))
            continue;
        QVERIFY2(formatDateTimeValue(back) == original,
                 qPrintable(original + u' ' + forwardText + u" -> "_qs +
                            formatDateTimeValue(forward) + u" -> "_qs + formatDateTimeValue(back)));
        ++checked;
    }
    QVERIFY2(checked > rounds * 9 / 10, qPrintable(QString::number(checked)));
}

void TestDateOffset::compactFormParsesBack()
{
    QRandomGenerator random(77);
    for (int i = 0; i < 3000; ++i) {
        auto unit = [&random] { return random.bounded(3) == 0 ? 0 : qint64(random.bounded(1000)); };
        const DateComponents offset = units(unit(), unit(), unit(), unit(), unit(), unit());
        const bool plus = random.bounded(2) == 0;
        for (const QString &text :
             {formatDateOffsetCompact(offset, plus), formatDateOffsetDisplay(offset, plus)}) {
            DateComponents expected = offset;
            expected.era = plus ? 1 : 0;
            QCOMPARE(parseDateOffset(text), expected);
            QCOMPARE(isDateOffsetText(text), true);
        }
    }
}

QTEST_GUILESS_MAIN(TestDateOffset)
#include "tst_dateoffset.moc"
