#pragma once

#include <QString>
#include <QWidget>

namespace trimlog {

/// One page of the add dialog: the fields of one kind of record. It shows its own boxes; the dialog only asks whether
/// it may close.
class AddRecPage : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  virtual QString Title() const = 0;   ///< of the window
  virtual QString Header() const = 0;  ///< a sentence above the fields
  /// Checks and stores the record. False keeps the dialog open: a box was shown and the faulty field has the focus.
  virtual bool Store() = 0;
};

}  // namespace trimlog
