#pragma once

#include <QLineEdit>
#include <QObject>
#include <functional>
#include <optional>

#include "platform/boxes.h"

namespace trimlog {

/// Checks a field when it is left: a refused text shows its box, and the focus comes back with the whole text selected.
/// A field that nobody has typed into may be left as it is: what the program put there traps nobody. Owned by the
/// field.
class LeaveCheck : public QObject {
  Q_OBJECT
 public:
  using Check = std::function<std::optional<Box>(const QString &text)>;
  LeaveCheck(QLineEdit *field, Boxes &boxes, Check check);

  /// True when the text passes or nobody typed it. Else shows the box, once, and takes the focus back: for commands
  /// that an access key can give while the field is still being left.
  bool Insist();
  /// The same also for a text that nobody typed: for a command that is about to use it.
  bool InsistOnAny();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QLineEdit *field_;
  Boxes &boxes_;
  Check check_;
  bool insisting_ = false;
};

}  // namespace trimlog
