#include "core/windows/controls/theme.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace trimlog {

namespace {

constexpr quint32 systemColorFlag = 0x80000000;
constexpr quint32 buttonText = 0x80000012;
constexpr double readableContrast = 4.5;
constexpr double lightBackground = 0.5;
constexpr double visibleContrast = 2.5;
constexpr float deepestTint = 0.22F;   // of a panel on a dark desktop: lightness, a little above the desktop's own,
constexpr float strongestTint = 0.4F;  // and saturation

double LinearChannel(double value) { return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); }

/// Lives in a coloured panel and knows its colour.
class PanelPainter final : public QObject {
 public:
  explicit PanelPainter(QWidget *panel) : QObject(panel), panel_(panel) { panel->installEventFilter(this); }

  static PanelPainter *Of(const QWidget *panel) {
    for (QObject *child : panel->children()) {
      if (auto *painter = dynamic_cast<PanelPainter *>(child)) return painter;
    }
    return nullptr;
  }

  void Paint(quint32 backColor, const QPalette &desktop) {
    backColor_ = backColor;
    Repaint(desktop);
  }

  void Repaint(const QPalette &desktop) {
    screen_ = QApplication::palette().cacheKey();
    const QColor background = PanelColor(backColor_, desktop);
    QPalette palette;  // only these two are set: all else stays the desktop's
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, ContrastText(background));
    panel_->setPalette(palette);
    panel_->setAutoFillBackground(true);
  }

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override {
    const bool changed = watched == panel_ && event->type() == QEvent::PaletteChange;
    if (changed && screen_ != QApplication::palette().cacheKey()) Repaint(QApplication::palette());
    return false;
  }

 private:
  QWidget *panel_;
  quint32 backColor_ = 0;
  qint64 screen_ = 0;  ///< the desktop on the screen when it was painted
};

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

QColor PanelColor(const QColor &color, const QPalette &palette) {
  if (!IsDark(palette) || color.lightnessF() <= deepestTint) return color;
  return QColor::fromHslF(std::max(color.hslHueF(), 0.0F), std::min(color.hslSaturationF(), strongestTint), deepestTint)
      .toRgb();
}

QColor PanelColor(quint32 backColor, const QPalette &palette) {
  return PanelColor(ColorFromBgr(backColor, palette), palette);
}

QPalette PanelButtonPalette(const QColor &panel) {
  const QColor text = ContrastText(panel);
  QColor faint = text;
  faint.setAlphaF(0.5F);
  QPalette palette;
  palette.setColor(QPalette::Button, panel);
  palette.setColor(QPalette::Window, panel);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, faint);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, faint);
  return palette;
}

void PaintPanel(QWidget *panel, quint32 backColor) { PaintPanel(panel, backColor, QApplication::palette()); }

void PaintPanel(QWidget *panel, quint32 backColor, const QPalette &desktop) {
  PanelPainter *painter = PanelPainter::Of(panel);
  if (!painter) painter = new PanelPainter(panel);
  painter->Paint(backColor, desktop);
}

void RepaintPanels(QWidget *window, const QPalette &desktop) {
  for (QWidget *panel : window->findChildren<QWidget *>()) {
    if (PanelPainter *painter = PanelPainter::Of(panel)) painter->Repaint(desktop);
  }
}

}  // namespace trimlog
