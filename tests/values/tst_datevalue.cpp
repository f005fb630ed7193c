#include "values/datevalue.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

// Runs under several time zones; rows for one zone's daylight-saving dates skip elsewhere.
class TestDateValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("fields"); // null: refused
        auto row = [](const char *name, const char *text, int type, const char *fields) {
            QTest::newRow(name) << QString::fromUtf8(text) << type << QString::fromUtf8(fields);
        };
        const int date = DateEditorTypeDate, dateTime = DateEditorTypeDateTime;
        row("date-time", "2013:05:01 14:22:10", dateTime, "2013:05:01 14:22:10");
        row("date as date-time", "2013:05:01", dateTime, nullptr);
        row("date", "2013 : 05 : 01", date, "2013:05:01 00:00:00");
        row("no range checks", "2013:13:40 25:61:61", dateTime, "2013:13:40 25:61:61");
        row("single digits", "2012:1:5 9:3:7", dateTime, "2012:01:05 09:03:07");
        row("zone is not a field", "2013:05:01 14:22:10+02:00", dateTime, "2013:05:01 14:22:10");
        row("empty", "", date, nullptr);
    }
    void parse()
    {
        QFETCH(QString, text);
        QFETCH(int, type);
        const auto parsed = parseDateValueOfType(text, DateEditorType(type));
        QTEST(parsed ? formatDateTimeComponents(*parsed) : QString(), "fields");
        QVERIFY(!parsed || !parsed->era);
    }

    void calendarResolvesFields_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("dateTime");
        auto row = [](const char *zone, const char *text, const char *dateTime) {
            QTest::addRow("%s %s", zone, text) << QString::fromUtf8(zone) << QString::fromUtf8(text)
                                               << QString::fromUtf8(dateTime);
        };
        row("", "13:1:5 9:3:7", "0013:01:05 09:03:07");
        row("", "2013:13:40 25:61:61", "2014:02:10 02:02:01");
        row("", "2013:00:00 12:00:00", "2012:11:30 12:00:00");
        row("Europe/Berlin", "2013:03:31 02:30:00", "2013:03:31 03:30:00");
        // Brazil's daylight saving began at midnight: the day itself must not be lost.
        row("America/Sao_Paulo", "2018:11:04 00:00:00", "2018:11:04 01:00:00");
        row("America/Sao_Paulo", "2019:02:16 23:30:00", "2019:02:16 23:30:00");
        row("UTC", "2013:03:31 02:30:00", "2013:03:31 02:30:00");
    }
    void calendarResolvesFields()
    {
        QFETCH(QString, zone);
        const QTimeZone local = QTimeZone::systemTimeZone();
        const bool utc =
            local.offsetFromUtc(QDateTime(QDate(2013, 1, 15), QTime(), Qt::UTC)) == 0 &&
            local.offsetFromUtc(QDateTime(QDate(2013, 7, 15), QTime(), Qt::UTC)) == 0;
        if (!zone.isEmpty() && zone != (utc ? u"UTC"_qs : QString::fromUtf8(local.id())))
            QSKIP("Row for another time zone");
        QFETCH(QString, text);
        QFETCH(QString, dateTime);
        const QDateTime resolved = dateFromComponents(*parseDateTimeValue(text));
        QCOMPARE(formatDateTimeValue(resolved), dateTime);
        QCOMPARE(formatDateValue(resolved), dateTime.left(10));
        // The write form keeps the typed fields, padded, even out of range.
        QCOMPARE(normalizeDateForWriting(text),
                 formatDateTimeComponents(*parseDateTimeValue(text)).left(10));
    }

    void compare_data()
    {
        QTest::addColumn<QString>("newValue");
        QTest::addColumn<QString>("oldValue");
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("equal");
        auto row = [](const char *a, const char *b, int type, bool equal) {
            QTest::addRow("%s | %s", a ? a : "removed", b)
                << QString::fromUtf8(a) << QString::fromUtf8(b) << type << equal;
        };
        const int date = DateEditorTypeDate, dateTime = DateEditorTypeDateTime;
        row("2012:01:05 09:03:07", "2012:1:5 9:3:7", dateTime, true);
        row("2012:01:05", "2012:01:05 10:00:00", date, false);
        row("+1d", "2012:01:05 09:03:07", dateTime, false);
        row("+1d2h", "+1d3h", date, true); // a date field ignores the hours
        row("+1d", "-1d", dateTime, true); // the sign is not compared
        row(nullptr, "2012:01:05 09:03:07", dateTime, false);
        row("garbage", "junk", date, true); // both read as zero shifts
    }
    void compare()
    {
        QFETCH(QString, newValue);
        QFETCH(QString, oldValue);
        QFETCH(int, type);
        QTEST(dateValuesEqual(newValue, oldValue, DateEditorType(type)), "equal");
        QTEST(dateValuesEqual(oldValue, newValue, DateEditorType(type)), "equal");
    }

    void formatThenParseIsIdentity()
    {
        QRandomGenerator random(1931);
        int checked = 0;
        for (int i = 0; i < 5000; ++i) {
            const QDate day = QDate(1900, 1, 1).addDays(random.bounded(200 * 366));
            const DateComponents fields{std::nullopt,      day.year(),         day.month(),
                                        day.day(),         random.bounded(24), random.bounded(60),
                                        random.bounded(60)};
            const QDateTime moment = dateFromComponents(fields);
            const QString text = formatDateTimeValue(moment);
            const auto parsed = parseDateTimeValue(text);
            QVERIFY2(parsed && formatDateTimeComponents(*parsed) == text, qPrintable(text));
            // A wall time skipped by daylight saving cannot come back unchanged.
            if (moment.addDays(-1).offsetFromUtc() != moment.addDays(1).offsetFromUtc())
                continue;
            QVERIFY2(*parsed == fields, qPrintable(text));
            QCOMPARE(formatDateValue(dateFromComponents(*parseDateValue(text.left(10)))),
                     text.left(10));
            ++checked;
        }
        QVERIFY(checked > 4900);
    }
};

QTEST_GUILESS_MAIN(TestDateValue)
#include "tst_datevalue.moc"
