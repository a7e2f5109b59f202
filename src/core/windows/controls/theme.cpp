#include "core/windows/controls/theme.h"

#include <QApplication>
#include <QWidget>

namespace trimlog {

namespace {

constexpr quint32 systemColorFlag = 0x80000000;
constexpr quint32 buttonText = 0x80000012;
constexpr double readableContrast = 4.5;
constexpr double lightBackground = 0.5;
constexpr double visibleContrast = 2.5;

double LinearChannel(double value) { return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); }

}  // namespace

QColor ColorFromBgr(quint32 bgr, const QPalette &palette) {
  if (bgr & systemColorFlag) return palette.color(bgr == buttonText ? QPalette::ButtonText : QPalette::Button);
  return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

quint32 BgrFromColor(const QColor &color) {
  return static_cast<quint32>(color.red() | (color.green() << 8) | (color.blue() << 16));
}

double RelativeLuminance(const QColor &color) {
  return 0.2126 * LinearChannel(color.redF()) + 0.7152 * LinearChannel(color.greenF()) +
         0.0722 * LinearChannel(color.blueF());
}

double ContrastRatio(const QColor &one, const QColor &other) {
  const double first = RelativeLuminance(one) + 0.05;
  const double second = RelativeLuminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

QColor ContrastText(const QColor &background) {
  return ContrastRatio(Qt::black, background) >= ContrastRatio(Qt::white, background) ? QColor(Qt::black)
                                                                                      : QColor(Qt::white);
}

QColor MeaningColor(const QColor &color, const QColor &background) {
  const bool light = RelativeLuminance(background) >= lightBackground;
  if (ContrastRatio(color, background) >= (light ? visibleContrast : readableContrast)) return color;
  const QColor target = ContrastText(background);
  const auto mixed = [&](double share) {
    return QColor::fromRgbF(static_cast<float>(color.redF() + (target.redF() - color.redF()) * share),
                            static_cast<float>(color.greenF() + (target.greenF() - color.greenF()) * share),
                            static_cast<float>(color.blueF() + (target.blueF() - color.blueF()) * share));
  };
  for (int step = 1; step < 20; ++step) {
    const QColor candidate = mixed(step / 20.0);
    if (ContrastRatio(candidate, background) >= readableContrast) return candidate;
  }
  return target;
}

bool IsDark(const QPalette &palette) {
  return RelativeLuminance(palette.color(QPalette::Window)) < RelativeLuminance(palette.color(QPalette::WindowText));
}

void PaintPanel(QWidget *panel, quint32 backColor) {
  const QColor background = ColorFromBgr(backColor, QApplication::palette());
  const QColor text = ContrastText(background);
  QPalette palette;  // only these two are set: all else stays the desktop's
  palette.setColor(QPalette::Window, background);
  palette.setColor(QPalette::WindowText, text);
  panel->setPalette(palette);
  panel->setAutoFillBackground(true);
}

}  // namespace trimlog
