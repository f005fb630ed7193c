#include "controls/dateoffsetfield.h"

#include "values/dateoffset.h"

#include <QElapsedTimer>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Padding = 3;

// Months and minutes are both "m": the cells' order tells them apart.
const std::array<QString, DateOffsetField::CellCount> UnitLabels = {
    QString(),           QStringLiteral("y"), QStringLiteral("m"), QStringLiteral("d"),
    QStringLiteral("h"), QStringLiteral("m"), QStringLiteral("s")};

qint64 monotonicMs()
{
    static QElapsedTimer timer = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();
    return timer.elapsed();
}

} // namespace

DateOffsetField::DateOffsetField(DateEditorType type, QWidget *parent)
    : QWidget(parent)
    , m_type(type)
    , m_clock(&monotonicMs)
{
    setFocusPolicy(Qt::StrongFocus);
    m_cells[SignCell] = QStringLiteral("+");
    showComponents();
}

void DateOffsetField::setDateComponentsValue(const std::optional<DateComponents> &components)
{
    m_components = components.value_or(DateComponents{});
    showComponents();
}

QString DateOffsetField::stringValue() const
{
    return formatDateOffsetCompact(m_components, m_plusMinus);
}

void DateOffsetField::setStringValue(const QString &text)
{
    setDateComponentsValue(parseDateOffset(text));
    setPlusMinus(m_components.era.value_or(0) >= 1);
}

void DateOffsetField::setPlusMinus(bool plus)
{
    m_plusMinus = plus;
    m_cells[SignCell] = plus ? QStringLiteral("+") : QStringLiteral("-");
    update();
}

void DateOffsetField::setSelectedCell(int cell)
{
    m_selectedCell = qBound(-1, cell, lastCell());
    update();
}

int DateOffsetField::lastCell() const
{
    return m_type == DateEditorTypeDate ? 3 : CellCount - 1;
}

void DateOffsetField::showComponents()
{
    // The sign cell is left to setPlusMinus.
    const DateOffsetCells cells = dateOffsetCells(m_components);
    std::copy(cells.cbegin() + 1, cells.cend(), m_cells.begin() + 1);
    update();
}

void DateOffsetField::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab) {
        const QString text = event->text();
        if (text.size() != 1 || !text.at(0).isDigit())
            m_lastDigitTime.reset();
    }

    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        if (m_selectedCell < 0)
            break;
        const bool up = key == Qt::Key_Up;
        if (m_selectedCell == SignCell)
            m_cells[SignCell] = up ? QStringLiteral("+") : QStringLiteral("-");
        else
            stepSelectedCell(up ? 1 : -1);
        synchronizeFromCells();
        return;
    }
    case Qt::Key_Left:
        setSelectedCell(qMax(0, m_selectedCell - 1));
        return;
    case Qt::Key_Right:
        setSelectedCell(qMin(lastCell(), m_selectedCell + 1));
        return;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        QWidget::keyPressEvent(event);
        return;
    default:
        break;
    }

    if (m_selectedCell < 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const QString text = event->text();
    if (m_selectedCell == SignCell) {
        if (text == QLatin1String("-") || text == QLatin1String("+")) {
            m_cells[SignCell] = text;
            synchronizeFromCells();
        } else {
            QWidget::keyPressEvent(event);
        }
        return;
    }
    if (text.size() == 1 && text.at(0).isDigit()) {
        typeDigit(text.at(0));
        synchronizeFromCells();
    }
    // Anything else on a unit cell, backspace included, is swallowed so the cell keeps its
    // number: a half-erased unit would have no value to save.
}

void DateOffsetField::stepSelectedCell(int step)
{
    QString &cell = m_cells[size_t(m_selectedCell)];
    cell = steppedOffsetCell(cell, step);
}

void DateOffsetField::typeDigit(QChar digit)
{
    QString &cell = m_cells[size_t(m_selectedCell)];
    const qint64 now = m_clock();
    cell =
        typedOffsetCell(cell, digit, m_lastDigitTime && now - *m_lastDigitTime < TypingIntervalMs);
    m_lastDigitTime = now;
    update();
}

void DateOffsetField::synchronizeFromCells()
{
    const bool oldPlus = m_plusMinus;
    const DateComponents old = m_components;

    m_components = dateOffsetFromCells(m_cells, m_type, m_components);
    m_plusMinus = m_components.era == 1;
    update();
    if (oldPlus != m_plusMinus || !old.hasSameUnits(m_components))
        Q_EMIT dateOffsetChanged();
}

int DateOffsetField::cellWidth() const
{
    return fontMetrics().horizontalAdvance(QStringLiteral("01")) + 2 * Padding;
}

int DateOffsetField::unitWidth() const
{
    return fontMetrics().horizontalAdvance(QStringLiteral("m")) + Padding;
}

QRect DateOffsetField::cellRect(int cell) const
{
    const int signWidth = fontMetrics().horizontalAdvance(QStringLiteral("+")) + 2 * Padding;
    const int h = height() > 0 ? height() : sizeHint().height();
    if (cell == SignCell)
        return {0, 0, signWidth, h};
    const int x = signWidth + Padding + (cell - 1) * (cellWidth() + unitWidth() + Padding);
    return {x, 0, cellWidth(), h};
}

QSize DateOffsetField::sizeHint() const
{
    const QRect last = cellRect(lastCell());
    return {last.right() + unitWidth() + Padding, fontMetrics().height() + 2 * Padding};
}

void DateOffsetField::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPalette pal = palette();
    for (int i = 0; i <= lastCell(); ++i) {
        const QRect rect = cellRect(i);
        if (i == m_selectedCell && hasFocus())
            painter.fillRect(rect, pal.color(QPalette::Highlight));
        painter.setPen(pal.color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                 i == m_selectedCell && hasFocus() ? QPalette::HighlightedText
                                                                   : QPalette::WindowText));
        painter.drawText(rect, Qt::AlignCenter, m_cells[size_t(i)]);
        if (i != SignCell) {
            painter.setPen(pal.color(QPalette::Disabled, QPalette::WindowText));
            painter.drawText(QRect(rect.right() + 1, 0, unitWidth(), rect.height()),
                             Qt::AlignLeft | Qt::AlignVCenter, UnitLabels[size_t(i)]);
        }
    }
}

void DateOffsetField::mousePressEvent(QMouseEvent *event)
{
    for (int i = 0; i <= lastCell(); ++i) {
        if (cellRect(i).adjusted(0, 0, unitWidth(), 0).contains(event->position().toPoint())) {
            setSelectedCell(i);
            break;
        }
    }
    setFocus(Qt::MouseFocusReason);
    event->accept();
}

void DateOffsetField::focusInEvent(QFocusEvent *event)
{
    // Keyboard users arrive with nothing selected and could not type otherwise.
    if (m_selectedCell < 0 && event->reason() != Qt::MouseFocusReason)
        m_selectedCell = 1;
    QWidget::focusInEvent(event);
    update();
}

void DateOffsetField::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
