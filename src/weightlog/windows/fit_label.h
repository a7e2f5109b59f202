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

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool event(QEvent *event) override;

 private:
  QFont FittingFont() const;
};

}  // namespace trimlog
