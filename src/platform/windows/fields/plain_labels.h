#pragma once

#include <QObject>

namespace trimlog {

/// Makes every label and every tool tip of an application show its text as it stands: a food or a person named "<b>x"
/// is a name, not markup. A label that asks for a format of its own keeps it.
class PlainLabels : public QObject {
 public:
  /// Watches the application, which outlives this.
  explicit PlainLabels(QObject *application);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
};

}  // namespace trimlog
