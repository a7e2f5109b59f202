#pragma once

#include <QColor>
#include <QWidget>
#include <array>

#include "tools/body_fat.h"

class QFrame;
class QLabel;

namespace trimlog {

class Session;

/// The bar of body fat: three segments, the percentages where they begin, and a marker with the percentage assessed.
class BodyFatBar : public QWidget {
  Q_OBJECT
 public:
  explicit BodyFatBar(const Session &session, QWidget *parent = nullptr);

  void ShowAssessment(const BodyFatAssessment &assessment);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  /// Pixels from the left edge for a place in twips.
  double PixelOf(int twips) const;
  QRectF SegmentRect(int segment) const;
  int BarTop() const;
  int BarHeight() const;
  void PlaceLabels();

  const Session &session_;
  BodyFatMarker marker_;
  std::array<QLabel *, bodyFatSegments> pnlBodyFatChart_{};
  std::array<QLabel *, bodyFatSegments> pnlBodyFatPercent_{};
  QLabel *pnlBodyFatValue = nullptr;
  QFrame *Line7 = nullptr;  ///< above the bar
  QFrame *Line8 = nullptr;  ///< across it
};

}  // namespace trimlog
