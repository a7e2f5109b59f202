#pragma once

#include <QLineEdit>
#include <QObject>
#include <functional>
#include <optional>

#include "platform/boxes.h"

namespace trimlog {

/// Checks a field when it is left: a refused text shows its box, and the focus comes back with the whole text selected.
/// Changing to another program's window is not leaving. Owned by the field.
class LeaveCheck : public QObject {
  Q_OBJECT
 public:
  using Check = std::function<std::optional<Box>(const QString &text)>;
  LeaveCheck(QLineEdit *field, Boxes &boxes, Check check);

  /// True when the text passes, or when nobody has been in the field since it last did. Else shows the box, once, and
  /// takes the focus back: for commands that an access key can give while the field is still being left.
  bool Insist();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QLineEdit *field_;
  Boxes &boxes_;
  Check check_;
  bool entered_ = false;  ///< somebody came in and has not left with a text that passes
  bool insisting_ = false;
};

}  // namespace trimlog
