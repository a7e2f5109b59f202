#pragma once

#include <QObject>

class QWidget;

namespace trimlog {

/// Keeps the mouse wheel from changing boxes that the person only scrolls past: over a drop-down list or a spin box
/// without the focus it scrolls what the box stands in. One guard serves every window.
class WheelGuard : public QObject {
  Q_OBJECT
 public:
  /// Looks after a widget if it is such a box.
  void Guard(QWidget *widget);
  bool eventFilter(QObject *watched, QEvent *event) override;
};

}  // namespace trimlog
