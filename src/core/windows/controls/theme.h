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

/// The colour of a panel in a profile's colour: on a light desktop that colour as it is kept, on a dark one a deep tint
/// of its hue, so that a pastel does not glare. Text on it is ContrastText.
QColor PanelColor(quint32 backColor, const QPalette &palette = {});
QColor PanelColor(const QColor &color, const QPalette &palette);

/// For a button that stands on a coloured panel: its own colours are the panel's.
QPalette PanelButtonPalette(const QColor &panel);

/// Colours a panel with a profile's colour, by PanelColor, and gives everything that stands on it a readable text
/// colour. Fields keep the desktop's own colours. The panel follows when the desktop turns dark or light.
void PaintPanel(QWidget *panel, quint32 backColor);
/// The same for another desktop than the one on the screen: paper is light.
void PaintPanel(QWidget *panel, quint32 backColor, const QPalette &desktop);
/// Paints all coloured panels of a window once more, for another desktop.
void RepaintPanels(QWidget *window, const QPalette &desktop);

}  // namespace trimlog
