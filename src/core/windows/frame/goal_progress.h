#pragma once

#include <QProgressBar>
#include <optional>

namespace trimlog {

/// A quiet line that shows how far the way to the goal is gone; nothing while there is no such way.
class GoalProgress : public QProgressBar {
  Q_OBJECT
 public:
  explicit GoalProgress(QWidget *parent);
  /// `part` is 0 to 1.
  void ShowProgress(const std::optional<double> &part);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent *event) override;
};

}  // namespace trimlog
