#pragma once

#include <QProxyStyle>

namespace trimlog {

/// The desktop's own style, with one habit of the program: buttons of dialogs and message boxes carry their words and
/// no pictures.
class ThemeStyle : public QProxyStyle {
  Q_OBJECT
 public:
  using QProxyStyle::QProxyStyle;
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *returned) const override;
};

}  // namespace trimlog
