#include "controls/aperturetheme.h"

#include <QApplication>
#include <QStyleFactory>

void ApertureTheme::apply(QApplication &application)
{
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(palette());
    application.setStyleSheet(styleSheet());
}

QColor ApertureTheme::normalSolidFill()
{
    return QColor(38, 38, 38, 242);
}

const QFont &ApertureTheme::labelFont(bool bold)
{
    static const QFont normal = [] {
        QFont font = QApplication::font();
        font.setPointSize(11);
        return font;
    }();
    static const QFont boldFont = [] {
        QFont font = normal;
        font.setBold(true);
        return font;
    }();
    return bold ? boldFont : normal;
}

QColor ApertureTheme::listBackground()
{
    return QColor::fromRgbF(0.6f, 0.6f, 0.6f, 1.0f);
}

QPalette ApertureTheme::palette()
{
    const QColor window(38, 38, 38);
    const QColor base(28, 28, 28);
    const QColor text(235, 235, 235);
    const QColor disabledText(120, 120, 120);
    const QColor highlight(70, 110, 170);

    QPalette p;
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, QColor(46, 46, 46));
    p.setColor(QPalette::ToolTipBase, QColor(20, 20, 20));
    p.setColor(QPalette::ToolTipText, text);
    p.setColor(QPalette::PlaceholderText, disabledText);
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, QColor(56, 56, 56));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::BrightText, QColor(255, 90, 90));
    p.setColor(QPalette::Light, QColor(80, 80, 80));
    p.setColor(QPalette::Midlight, QColor(66, 66, 66));
    p.setColor(QPalette::Mid, QColor(48, 48, 48));
    p.setColor(QPalette::Dark, QColor(20, 20, 20));
    p.setColor(QPalette::Shadow, Qt::black);
    p.setColor(QPalette::Highlight, highlight);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor(120, 170, 240));
    p.setColor(QPalette::LinkVisited, QColor(170, 140, 230));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, disabledText);
    p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(60, 60, 60));
    return p;
}

QString ApertureTheme::styleSheet()
{
    // Rounded, slightly translucent controls in the manner of a heads-up display.
    return QStringLiteral(
        "QLineEdit, QComboBox, QPlainTextEdit, QTextEdit, QSpinBox, QDateTimeEdit {"
        " border: 1px solid rgba(255, 255, 255, 60); border-radius: 3px;"
        " background: rgba(0, 0, 0, 90); padding: 2px 4px; }"
        "QLineEdit:focus, QComboBox:focus, QPlainTextEdit:focus, QTextEdit:focus {"
        " border-color: rgb(110, 150, 210); }"
        "QPushButton { border: 1px solid rgba(255, 255, 255, 70); border-radius: 4px;"
        " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgb(78, 78, 78),"
        " stop:1 rgb(52, 52, 52)); padding: 3px 12px; }"
        "QPushButton:pressed { background: rgb(40, 40, 40); }"
        "QPushButton:disabled { color: rgb(120, 120, 120); }"
        "QGroupBox { border: 1px solid rgba(255, 255, 255, 40); border-radius: 4px;"
        " margin-top: 1.2em; padding-top: 4px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; }"
        "QCheckBox::indicator { width: 12px; height: 12px; border-radius: 3px;"
        " border: 1px solid rgba(255, 255, 255, 120); background: rgba(0, 0, 0, 90); }"
        "QCheckBox::indicator:checked { background: rgb(90, 135, 200);"
        " border-color: rgb(150, 185, 235); }"
        // The style's own check marks in lists are dark on the dark base, so they vanish.
        "QAbstractItemView::indicator { width: 12px; height: 12px; border-radius: 3px;"
        " border: 1px solid rgba(255, 255, 255, 120); background: rgba(0, 0, 0, 90); }"
        "QAbstractItemView::indicator:checked { background: rgb(90, 135, 200);"
        " border-color: rgb(150, 185, 235); }"
        "QAbstractItemView::indicator:indeterminate { background: rgba(90, 135, 200, 110);"
        " border-color: rgb(150, 185, 235); }"
        "QLabel#warning { color: rgb(255, 170, 60); font-weight: bold; }");
}
