#pragma once

#include "values/dateoffset.h"

#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <optional>

// A signed date offset edited unit by unit: a sign cell, then year, month, day, hour, minute and
// second cells (the last three only for date-time fields). Arrows step a cell within 0-99, digits
// typed in quick succession fill a cell like a two-digit counter.
class DateOffsetField : public QWidget
{
    Q_OBJECT

public:
    static constexpr int SignCell = 0;
    static constexpr int CellCount = int(std::tuple_size_v<DateOffsetCells>);
    // Digits typed closer together than this build one number.
    static constexpr qint64 TypingIntervalMs = 1000;

    explicit DateOffsetField(DateEditorType type, QWidget *parent = nullptr);

    DateEditorType dateEditorType() const { return m_type; }

    // An absent record stores six zero units. Cells show each unit's magnitude; the sign is
    // left to setPlusMinus.
    void setDateComponentsValue(const std::optional<DateComponents> &components);
    const DateComponents &dateComponentsValue() const { return m_components; }

    // Compact form with the sign of the sign cell, e.g. "+1d2h".
    QString stringValue() const;
    void setStringValue(const QString &text);

    bool plusMinus() const { return m_plusMinus; }
    void setPlusMinus(bool plus);

    // -1 when no cell is selected.
    int selectedCell() const { return m_selectedCell; }
    void setSelectedCell(int cell);
    int lastCell() const;
    QString cellText(int cell) const { return m_cells.at(size_t(cell)); }

    // Milliseconds of a monotonic clock; replaceable so typing speed can be simulated.
    void setClock(std::function<qint64()> clock) { m_clock = std::move(clock); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    // Any change made by the user to the sign or a unit.
    void dateOffsetChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void stepSelectedCell(int step);
    void typeDigit(QChar digit);
    void showComponents();
    void synchronizeFromCells();
    QRect cellRect(int cell) const;
    int cellWidth() const;
    int unitWidth() const;

    DateEditorType m_type;
    DateComponents m_components;
    bool m_plusMinus = true;
    DateOffsetCells m_cells;
    int m_selectedCell = -1;
    std::optional<qint64> m_lastDigitTime;
    std::function<qint64()> m_clock;
};
