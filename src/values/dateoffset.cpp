#include "values/dateoffset.h"

#include "values/datevalue.h"
#include "values/datewallclock.h"
#include "values/zoneshift.h"

#include <limits>

namespace {

bool isOffsetSpace(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\v' || c == u'\f' || c == u'\r';
}

class OffsetScanner
{
public:
    explicit OffsetScanner(const QString &text)
        : m_text(text)
    {
    }

    bool atEnd() const { return m_pos >= m_text.size(); }
    QChar peek() const { return atEnd() ? QChar() : m_text.at(m_pos); }
    void advance() { ++m_pos; }
    void skipSpace()
    {
        while (!atEnd() && isOffsetSpace(peek()))
            ++m_pos;
    }

    std::optional<qint64> number()
    {
        qsizetype pos = m_pos;
        const bool negative = pos < m_text.size() && m_text.at(pos) == u'-';
        if (negative)
            ++pos;
        const qsizetype digitsStart = pos;
        qint64 value = 0;
        for (; pos < m_text.size() && m_text.at(pos).isDigit() && m_text.at(pos).unicode() < 128;
             ++pos) {
            const int digit = m_text.at(pos).unicode() - u'0';
            if (value <= (std::numeric_limits<qint64>::max() - digit) / 10)
                value = value * 10 + digit;
        }
        if (pos == digitsStart)
            return std::nullopt;
        m_pos = pos;
        return negative ? -value : value;
    }

    QStringView word()
    {
        const qsizetype start = m_pos;
        while (!atEnd() && peek().isLetter())
            ++m_pos;
        return QStringView(m_text).mid(start, m_pos - start);
    }

private:
    const QString &m_text;
    qsizetype m_pos = 0;
};

QString formatUnits(const DateComponents &offset, bool plus, bool spaced)
{
    QString text = plus ? QStringLiteral("+") : QStringLiteral("-");
    const struct
    {
        qint64 value;
        char letter;
    } units[] = {{offset.year, 'y'}, {offset.month, 'M'},  {offset.day, 'd'},
                 {offset.hour, 'h'}, {offset.minute, 'm'}, {offset.second, 's'}};
    for (const auto &unit : units) {
        if (unit.value == 0)
            continue;
        text += QString::number(qAbs(unit.value)) + QLatin1Char(unit.letter);
        if (spaced && unit.letter != 's')
            text += u' ';
    }
    return text;
}

DateComponents magnitudes(const DateComponents &offset, bool negate)
{
    DateComponents units = withUnitSign(offset, negate ? -1 : 1);
    units.era.reset();
    return units;
}

} // namespace

bool isDateOffsetText(const QString &text)
{
    return (text.contains(u'+') || text.contains(u'-')) && dateZoneSuffix(text).isEmpty();
}

DateComponents parseDateOffset(const QString &text)
{
    DateComponents offset;
    OffsetScanner scanner(text);
    scanner.skipSpace();
    if (scanner.atEnd())
        return offset;
    offset.era = 1;
    if (scanner.peek() == u'+' || scanner.peek() == u'-') {
        offset.era = scanner.peek() == u'+' ? 1 : 0;
        scanner.advance();
    }
    for (;;) {
        scanner.skipSpace();
        if (scanner.atEnd())
            break;
        const std::optional<qint64> number = scanner.number();
        if (!number)
            break;
        scanner.skipSpace();
        const QStringView word = scanner.word();
        // A number with no unit after it ("+1") is dropped.
        if (word.isEmpty())
            break;
        switch (word.front().unicode()) {
        case u'y':
            offset.year = *number;
            break;
        case u'M':
            offset.month = *number;
            break;
        case u'd':
            offset.day = *number;
            break;
        case u'h':
            offset.hour = *number;
            break;
        case u'm':
            offset.minute = *number;
            break;
        case u's':
            offset.second = *number;
            break;
        default:
            break;
        }
    }
    return offset;
}

DateComponents parseDateOffsetDateOnly(const QString &text)
{
    DateComponents offset = parseDateOffset(text);
    offset.hour = 0;
    offset.minute = 0;
    offset.second = 0;
    return offset;
}

QString formatDateOffsetCompact(const DateComponents &offset, bool plus)
{
    return formatUnits(offset, plus, false);
}

QString formatDateOffsetDisplay(const DateComponents &offset, bool plus)
{
    return formatUnits(offset, plus, true).trimmed();
}

QString formatDateOffsetForWriting(const QString &offsetText, DateEditorType type)
{
    const char sign = offsetText.contains(u'+') ? '+' : '-';
    if (type == DateEditorTypeDate) {
        const DateComponents o = parseDateOffsetDateOnly(offsetText);
        return QString::asprintf("%c%lld:%lld:%lld", sign, o.year, o.month, o.day);
    }
    const DateComponents o = parseDateOffset(offsetText);
    return QString::asprintf("%c%lld:%lld:%lld %02lld:%02lld:%02lld", sign, o.year, o.month, o.day,
                             o.hour, o.minute, o.second);
}

QDateTime applyDateOffset(const QString &offsetText, const QString &originalText)
{
    if (!isDateOffsetText(offsetText)) {
        const auto value = parseDateTimeValue(offsetText);
        return value ? wallClockDate(*value) : QDateTime();
    }
    const auto original = parseDateTimeValue(originalText);
    if (!original)
        return {};
    // A text holding both signs counts as plus.
    const bool negate = !offsetText.contains(u'+');
    return shiftWallClock(wallClockDate(*original),
                          magnitudes(parseDateOffset(offsetText), negate));
}

DateOffsetCells dateOffsetCells(const DateComponents &offset)
{
    const qint64 units[] = {offset.year, offset.month,  offset.day,
                            offset.hour, offset.minute, offset.second};
    DateOffsetCells cells;
    cells[0] = QStringLiteral("+");
    for (size_t i = 0; i < 6; ++i)
        cells[i + 1] = QString::number(qAbs(units[i]));
    return cells;
}

QString steppedOffsetCell(const QString &cell, int step)
{
    const int value = cell.toInt() + step;
    return value >= 0 && value <= 99 ? QString::number(value) : cell;
}

QString typedOffsetCell(const QString &cell, QChar digit, bool continuing)
{
    if (!continuing)
        return QString(digit);
    return cell.size() <= 1 ? cell + digit : cell.mid(1, 1) + digit;
}

DateComponents dateOffsetFromCells(const DateOffsetCells &cells, DateEditorType type,
                                   DateComponents kept)
{
    const bool plus = cells[0] != u"-";
    kept.era = plus ? 1 : 0;
    kept.year = cells[1].toLongLong();
    kept.month = cells[2].toLongLong();
    kept.day = cells[3].toLongLong();
    if (type == DateEditorTypeDateTime) {
        kept.hour = cells[4].toLongLong();
        kept.minute = cells[5].toLongLong();
        kept.second = cells[6].toLongLong();
    }
    return kept;
}

DateComponents withUnitSign(DateComponents offset, int sign)
{
    for (qint64 DateComponents::*unit :
         {&DateComponents::year, &DateComponents::month, &DateComponents::day,
          &DateComponents::hour, &DateComponents::minute, &DateComponents::second})
        offset.*unit = sign * qAbs(offset.*unit);
    return offset;
}
