#pragma once

#include <QAbstractSlider>

namespace trimlog {

/// Two small buttons, + above and - below, as a scroll bar without a slider: the + lowers its value by one, the -
/// raises it. The keys + and -, Up and Down do the same.
class StepBar : public QAbstractSlider {
  Q_OBJECT
 public:
  /// `label` is what a screen reader says.
  StepBar(const QString &objectName, const QString &label, QWidget *parent);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;

 private:
  enum class Half { None, Upper, Lower };
  QRect RectOf(Half half) const;
  void DrawButton(QPainter &painter, Half half) const;

  Half pressed_ = Half::None;
};

}  // namespace trimlog
