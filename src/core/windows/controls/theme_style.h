#pragma once

#include <QProxyStyle>

#include "platform/windows/fields/wheel_guard.h"

namespace trimlog {

/// The desktop's own style, with the habits that every window of the program has: buttons of dialogs and message boxes
/// carry their words and no pictures, every layout keeps the same distances, labels and tool tips show text as it
/// stands, and the wheel changes no box that is only scrolled past. A style meets each widget once, before it is first
/// shown; watching the application's events for the same would cost something with every one of them.
class ThemeStyle : public QProxyStyle {
  Q_OBJECT
 public:
  using QProxyStyle::polish;
  using QProxyStyle::QProxyStyle;
  void polish(QWidget *widget) override;
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *returned) const override;
  QIcon standardIcon(StandardPixmap picture, const QStyleOption *option, const QWidget *widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;

 private:
  WheelGuard wheelGuard_;
};

}  // namespace trimlog
