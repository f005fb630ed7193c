#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

class QApplication;

// The dark, HUD-like look of the whole program: the Fusion style under a dark palette and one
// style sheet. Windows and cells ask the application delegate for the key and paint with the
// colours here.
class ApertureTheme
{
public:
    static inline const QString Key = QStringLiteral("ApertureTheme");

    static void apply(QApplication &application);
    static QPalette palette();
    static QString styleSheet();
    // The windows' normal solid fill.
    static QColor normalSolidFill();
    // The grey behind file and preset lists.
    static QColor listBackground();
    // The font of the form's labels and values; the application must exist first.
    static const QFont &labelFont(bool bold = false);
};
