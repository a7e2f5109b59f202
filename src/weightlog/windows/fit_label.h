#pragma once

#include <QLabel>

namespace trimlog {

/// A line of text that is never cut off: too long a text is drawn smaller, and when even that does not help it is
/// elided and stands whole in the tooltip. Asks its layout for nothing; whoever places it decides.
class FitLabel : public QLabel {
  Q_OBJECT
 public:
  FitLabel(const QString &name, Qt::Alignment alignment, QWidget *parent);
  void ShowText(const QString &text);
  void ShowColor(const QColor &color);
  /// Draws in this font. Cheaper than the widget's own, which a layout would hear of.
  void UseFont(const QFont &font);
  QFont DrawnFont() const { return ownFont_ ? drawn_ : font(); }

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool event(QEvent *event) override;

 private:
  QFont drawn_;
  bool ownFont_ = false;
};

}  // namespace trimlog
