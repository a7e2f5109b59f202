#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace trimlog {

/// A colour kept in blue-green-red byte order (0xBBGGRR). Values with the top bit set name a colour of the desktop:
/// 0x8000000F is its button face, 0x80000012 its button text.
QColor ColorFromBgr(quint32 bgr, const QPalette &palette = {});
/// The same colour as kept in the data file and the settings.
quint32 BgrFromColor(const QColor &color);

/// Relative luminance, 0 for black to 1 for white, and contrast ratio, 1 to 21: W3C, Web Content Accessibility
/// Guidelines 2.1 (2018).
double RelativeLuminance(const QColor &color);
double ContrastRatio(const QColor &one, const QColor &other);

/// Black or white, whichever reads better on the background.
QColor ContrastText(const QColor &background);
/// A colour that carries meaning (loss, gain), readable on the background: its own value on light backgrounds, a
/// lighter shade of the same hue on dark ones; black becomes white there.
QColor MeaningColor(const QColor &color, const QColor &background);

/// True when the desktop shows light text on dark.
bool IsDark(const QPalette &palette);

/// Colours a panel with a profile's colour and gives everything that stands on it a readable text colour. Fields keep
/// the desktop's own colours.
void PaintPanel(QWidget *panel, quint32 backColor);

}  // namespace trimlog
