#pragma once

#include <QObject>

namespace trimlog {

/// Keeps the mouse wheel from changing boxes that the person only scrolls past: over a drop-down list or a spin box
/// without the focus it scrolls what the box stands in. One guard on the application serves every window.
class WheelGuard : public QObject {
  Q_OBJECT
 public:
  explicit WheelGuard(QObject *watched);
  bool eventFilter(QObject *watched, QEvent *event) override;
};

}  // namespace trimlog
