#pragma once

#include <QLineEdit>

namespace trimlog {

/// A figure that is only read: text on its panel to the eye, but a stop for the keyboard and for a screen reader, which
/// hears its accessible name and then the figure, and something to copy from. Too long a figure is drawn smaller.
class FigureField : public QLineEdit {
  Q_OBJECT
 public:
  FigureField(const QString &name, Qt::Alignment alignment, QWidget *parent);
  void ShowText(const QString &text);
  void ShowColor(const QColor &color);
  /// The font for a figure that has room.
  void UseFont(const QFont &font);

 protected:
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;

 private:
  void Fit();

  QFont roomy_;
};

}  // namespace trimlog
