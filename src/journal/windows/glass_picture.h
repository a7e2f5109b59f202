#pragma once

#include <QWidget>

namespace trimlog {

/// A drinking glass that fills: eight glasses a day make it full.
class GlassPicture : public QWidget {
  Q_OBJECT
 public:
  explicit GlassPicture(QWidget *parent);
  void ShowGlasses(double glasses);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  double glasses_ = 0;
};

}  // namespace trimlog
