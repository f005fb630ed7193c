#include "values/dateoffset.h"
#include "values/datewallclock.h"
#include "values/datevalue.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

namespace {

DateComponents units(qint64 y, qint64 M, qint64 d, qint64 h = 0, qint64 m = 0, qint64 s = 0,
                     std::optional<qint64> era = std::nullopt)
{
    return DateComponents{era, y, M, d, h, m, s};
}

QDateTime at(const QString &text)
{
    return dateFromComponents(*parseDateTimeValue(text));
}

} // namespace

// Runs under several time zones; rows for one zone's daylight-saving dates skip elsewhere.
class TestDateOffset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<DateComponents>("expected");
        const std::optional<qint64> plus = 1, minus = 0;
        QTest::newRow("null") << QString() << units(0, 0, 0);
        QTest::newRow("blanks") << u" \t- 1 y 2\tM "_qs << units(1, 2, 0, 0, 0, 0, minus);
        QTest::newRow("M/m, all six") << u"+1y2M3d4h5m6s"_qs << units(1, 2, 3, 4, 5, 6, plus);
        QTest::newRow("unknown unit") << u"+1x2d"_qs << units(0, 0, 2, 0, 0, 0, plus);
        QTest::newRow("inner minus") << u"+1d-2h"_qs << units(0, 0, 1, -2, 0, 0, plus);
        QTest::newRow("inner plus stops") << u"-1d+2h"_qs << units(0, 0, 1, 0, 0, 0, minus);
    }
    void parse()
    {
        QFETCH(QString, text);
        QFETCH(DateComponents, expected);
        QCOMPARE(parseDateOffset(text), expected);
        expected.hour = expected.minute = expected.second = 0;
        QCOMPARE(parseDateOffsetDateOnly(text), expected);
    }

    // Stored compact, shown with blanks, handed to ExifTool as a signed shift.
    void format_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("forms"); // compact|display|date-time argument|date argument
        QTest::newRow("+1d2h") << u"+1d2h"_qs << u"+1d2h|+1d 2h|+0:0:1 02:00:00|+0:0:1"_qs;
        QTest::newRow("no plus writes minus")
            << u"1y2M"_qs << u"+1y2M|+1y 2M|-1:2:0 00:00:00|-1:2:0"_qs;
        QTest::newRow("any plus writes plus")
            << u"-1d+2h"_qs << u"-1d|-1d|+0:0:1 00:00:00|+0:0:1"_qs;
        QTest::newRow("inner minus signed as typed")
            << u"+1d-3m"_qs << u"+1d3m|+1d 3m|+0:0:1 00:-3:00|+0:0:1"_qs;
    }
    void format()
    {
        QFETCH(QString, text);
        const DateComponents offset = parseDateOffset(text);
        const QStringList forms{formatDateOffsetCompact(offset, offset.era == 1),
                                formatDateOffsetDisplay(offset, offset.era == 1),
                                formatDateOffsetForWriting(text, DateEditorTypeDateTime),
                                formatDateOffsetForWriting(text, DateEditorTypeDate)};
        QTEST(forms.join(u'|'), "forms");
    }

    void apply_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("offset");
        QTest::addColumn<QString>("original");
        QTest::addColumn<QString>("result"); // null: no date
        auto row = [](const char *zone, const char *offset, const char *original,
                      const char *result) {
            QTest::addRow("%s %s %s", zone, offset, original)
                << QString::fromUtf8(zone) << QString::fromUtf8(offset)
                << QString::fromUtf8(original) << QString::fromUtf8(result);
        };
        row("", "+1y", "2012:02:29 00:00:00", "2013:02:28 00:00:00");
        row("", "-1M", "2013:03:31 10:00:00", "2013:02:28 10:00:00");
        row("", "+30d", "2013:01:31 10:00:00", "2013:03:02 10:00:00");
        row("", "+1y1M", "2012:02:29 12:00:00", "2013:03:28 12:00:00");
        row("", "+1d2h", "2013:12:31 23:00:00", "2014:01:02 01:00:00");
        row("", "1d", "2013:05:02 00:00:00", nullptr); // no sign: no shift
        row("", "2013:05:01 10:00:00", "2000:01:01 00:00:00", "2013:05:01 10:00:00");
        row("", "+1d", "2013:05:01", nullptr);
        // As ExifTool writes them: the readings name no zone, so a daylight-saving change of the
        // computer's zone neither skips nor repeats an hour of them.
        const char *berlin = "Europe/Berlin", *saoPaulo = "America/Sao_Paulo";
        row(berlin, "+1d", "2013:03:30 02:30:00", "2013:03:31 02:30:00");
        row(berlin, "+1h", "2013:03:31 01:30:00", "2013:03:31 02:30:00");
        row(berlin, "+24h", "2013:10:26 12:00:00", "2013:10:27 12:00:00");
        row(berlin, "-1h", "2013:10:27 03:30:00", "2013:10:27 02:30:00");
        row(saoPaulo, "+1d", "2018:11:03 00:30:00", "2018:11:04 00:30:00");
        row(saoPaulo, "+24h", "2019:02:16 12:00:00", "2019:02:17 12:00:00");
        row("UTC", "+24h", "2013:03:30 12:00:00", "2013:03:31 12:00:00");
    }
    void apply()
    {
        QFETCH(QString, zone);
        const QTimeZone local = QTimeZone::systemTimeZone();
        const bool utc = local.offsetFromUtc(at(u"2013:01:15 12:00:00"_qs)) == 0 &&
                         local.offsetFromUtc(at(u"2013:07:15 12:00:00"_qs)) == 0;
        if (!zone.isEmpty() && zone != (utc ? u"UTC"_qs : QString::fromUtf8(local.id())))
            QSKIP("Row for another time zone");
        QFETCH(QString, offset);
        QFETCH(QString, original);
        const QDateTime shifted = applyDateOffset(offset, original);
        QTEST(shifted.isValid() ? formatDateTimeValue(shifted) : QString(), "result");
    }

    void offsetBetween_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<DateComponents>("offset");
        QTest::addColumn<QString>("description");
        QTest::newRow("later") << u"2013:05:01 10:00:00"_qs << u"2013:05:02 12:00:00"_qs
                               << units(0, 0, 1, 2, 0, 0, 1) << u"+1d 2h"_qs;
        QTest::newRow("month end") << u"2013:03:01 00:00:00"_qs << u"2013:01:31 00:00:00"_qs
                                   << units(0, 1, 1, 0, 0, 0, 0) << u"-1M 1d"_qs;
        QTest::newRow("every unit") << u"2011:03:04 05:06:07"_qs << u"2010:01:01 00:00:00"_qs
                                    << units(1, 2, 3, 5, 6, 7, 0) << u"-1y 2M 3d 5h 6m 7s"_qs;
        // Wall-clock readings: a night clocks spring forward is 24 hours like any other.
        QTest::newRow("over a daylight-saving change")
            << u"2013:03:30 12:00:00"_qs << u"2013:03:31 12:00:00"_qs << units(0, 0, 1, 0, 0, 0, 1)
            << u"+1d"_qs;
        QTest::newRow("equal") << u"2013:03:30 12:00:00"_qs << u"2013:03:30 12:00:00"_qs
                               << units(0, 0, 0) << QString();
    }
    void offsetBetween()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        const QDateTime start = wallClockDate(*parseDateTimeValue(from));
        const QDateTime end = wallClockDate(*parseDateTimeValue(to));
        QTEST(wallClockOffset(start, end), "offset");
        QTEST(describeWallClockOffset(start, end), "description");
        // The offset is the shift a user would type to go there.
        if (const DateComponents offset = wallClockOffset(start, end); offset.era) {
            QCOMPARE(applyDateOffset(formatDateOffsetCompact(offset, *offset.era == 1), from), end);
        }
    }

    void cellEdits_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("cell");
        QTest::addColumn<QString>("edits");
        QTest::addColumn<QString>("cellText");
        QTest::addColumn<QString>("offset"); // compact, with the sign cell's sign
        const int dt = DateEditorTypeDateTime;
        const int d = DateEditorTypeDate;
        const auto row = [](const char *name, const char *start, int type, int cell,
                            const char *edits, const char *cellText, const char *offset) {
            QTest::newRow(name) << QString::fromLatin1(start) << type << cell
                                << QString::fromLatin1(edits) << QString::fromLatin1(cellText)
                                << QString::fromLatin1(offset);
        };
        row("counter keeps the last two", "+", dt, 3, "123", "23", "+23d");
        row("pause starts afresh", "+5d", dt, 3, "1|7", "7", "+7d");
        row("leading zero shown, read as its number", "+", dt, 4, "05", "05", "+5h");
        row("zero zero then digit", "+", dt, 4, "007", "07", "+7h");
        row("step from a typed zero", "+", dt, 6, "05^", "6", "+6s");
        row("up stops at 99", "+99m", dt, 5, "^", "99", "+99m");
        row("down stops at 0", "+", dt, 1, "v", "0", "+");
        row("stored beyond 99 cannot step", "+150d", dt, 3, "^v", "150", "+150d");
        row("stored beyond 99 can be retyped", "+150d", dt, 3, "4", "4", "+4d");
        row("inner minus shows its magnitude", "+1d-2h", dt, 4, "", "2", "+1d2h");
        row("minus sign kept", "-3M", dt, 2, "^", "4", "-4M");
        row("date field keeps stored hours", "+1d5h", d, 3, "2", "2", "+2d5h");
    }
    void cellEdits()
    {
        QFETCH(QString, start);
        QFETCH(int, type);
        QFETCH(int, cell);
        QFETCH(QString, edits);
        const DateComponents stored = parseDateOffset(start);
        DateOffsetCells cells = dateOffsetCells(stored);
        cells[0] = stored.era == 0 ? u"-"_qs : u"+"_qs;
        bool continuing = false;
        for (const QChar c : edits) {
            if (c == u'|') {
                continuing = false;
            } else if (c == u'^' || c == u'v') {
                cells[size_t(cell)] = steppedOffsetCell(cells[size_t(cell)], c == u'^' ? 1 : -1);
                continuing = false;
            } else {
                cells[size_t(cell)] = typedOffsetCell(cells[size_t(cell)], c, continuing);
                continuing = true;
            }
        }
        QTEST(cells[size_t(cell)], "cellText");
        const DateComponents edited = dateOffsetFromCells(cells, DateEditorType(type), stored);
        QCOMPARE(edited.era, std::optional<qint64>(cells[0] == u"-" ? 0 : 1));
        QTEST(formatDateOffsetCompact(edited, edited.era == 1), "offset");
    }

    void shiftThenNegatedShiftRestores()
    {
        QRandomGenerator random(20130501);
        auto r = [&random](int bound) { return random.bounded(bound); };
        auto steady = [](const QDateTime &t) {
            return t.addDays(-3).offsetFromUtc() == t.offsetFromUtc() &&
                   t.offsetFromUtc() == t.addDays(3).offsetFromUtc();
        };
        int checked = 0;
        for (int i = 0; i < 3000; ++i) {
            const bool months = i % 2 == 1; // from early in a month, so most can come back
            QDate day = QDate(1950, 1, 1).addDays(r(100 * 365));
            if (months)
                day.setDate(day.year(), day.month(), 1 + r(14));
            const QTime time(r(months ? 12 : 24), r(60), r(60));
            const DateComponents shift = months ? units(r(21), r(25), r(14), r(11), r(60), r(60), 1)
                                                : units(0, 0, r(400), r(49), r(121), r(121), 1);
            const QString original = formatDateTimeValue(QDateTime(day, time));
            const QString forwardText = formatDateOffsetCompact(shift, true);
            QCOMPARE(parseDateOffset(forwardText), shift);
            QCOMPARE(parseDateOffset(formatDateOffsetDisplay(shift, true)), shift);
            QVERIFY(isDateOffsetText(forwardText));
            const QDateTime forward = applyDateOffset(forwardText, original);
            QVERIFY2(forward >= wallClockDate(*parseDateTimeValue(original)),
                     qPrintable(original + forwardText));
            const QString back = formatDateTimeValue(applyDateOffset(
                formatDateOffsetCompact(shift, false), formatDateTimeValue(forward)));
            const qint64 seconds = (shift.hour * 60 + shift.minute) * 60 + shift.second;
            if ((months && (day.day() + shift.day > 28 ||
                            time.msecsSinceStartOfDay() / 1000 + seconds >= 86400)) ||
                !steady(at(original)) || !steady(forward))
                continue;
            QVERIFY2(back == original, qPrintable(original + u' ' + forwardText + u' ' + back));
            ++checked;
        }
        QVERIFY2(checked > 2700, qPrintable(QString::number(checked)));
    }
};

QTEST_GUILESS_MAIN(TestDateOffset)
#include "tst_dateoffset.moc"
