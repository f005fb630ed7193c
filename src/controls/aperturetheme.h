#pragma once

#include <QColor>
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
};
