#pragma once

#include <QStringList>
#include <QWidget>

namespace trimlog {

/// The left edge of the wizard: a picture, and the way through the steps with the current one marked. Its colours are
/// its palette's.
class WizardBanner : public QWidget {
  Q_OBJECT
 public:
  WizardBanner(const QStringList &steps, QWidget *parent);
  void ShowStep(int number);  ///< from 1
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void PaintStep(QPainter &painter, int number, int top) const;
  int StepHeight() const;

  const QStringList steps_;
  int current_ = 1;
};

}  // namespace trimlog
