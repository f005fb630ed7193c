#pragma once

#include <QColor>
#include <QWidget>

#include <optional>

// The form's canvas: rows are placed by absolute top, and it fills itself with its background
// colour when it has one.
class ConfigurationView : public QWidget
{
    Q_OBJECT

public:
    explicit ConfigurationView(QWidget *parent = nullptr);

    const std::optional<QColor> &backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);

Q_SIGNALS:
    void widthChanged(int width);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<QColor> m_backgroundColor;
};
