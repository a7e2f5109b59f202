#include "tools/windows/tool_colours.h"

#include <QApplication>
#include <QWidget>

#include "core/profiles/colour_scheme.h"
#include "core/windows/controls/theme.h"

namespace trimlog {

namespace {

constexpr int dimmed = 155;  // percent, as QColor::darker takes it

}  // namespace

std::array<QColor, 3> ToolColours(const Session &session) {
  if (ShowsFewColours(session)) return {QColor(0xFF, 0xFF, 0), QColor(0, 0xFF, 0), QColor(0, 0xFF, 0xFF)};
  std::array<QColor, 3> colours = {QColor(0xFF, 0xEE, 0x9C), QColor(0xB4, 0xE6, 0xA8), QColor(0xA6, 0xE3, 0xF0)};
  // Pastels glare on a dark desktop; the black text of the chart still reads on these.
  if (IsDark(QApplication::palette())) {
    for (QColor &colour : colours) colour = colour.darker(dimmed);
  }
  return colours;
}

void PaintToolPanel(QWidget *panel, const QColor &background) {
  PaintPanel(panel, BgrFromColor(background));
  GreyDisabledLabels(panel);
}

void GreyDisabledLabels(QWidget *panel) {
  QPalette palette = panel->palette();
  palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x80, 0x80, 0x80));
  panel->setPalette(palette);
}

}  // namespace trimlog
