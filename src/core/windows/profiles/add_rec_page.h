#pragma once

#include <QString>
#include <QWidget>
#include <functional>

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

/// Opens the add dialog, frmAddRec, on a page made for it. True when a record was stored; `stored` then sees the page.
bool AddRec(QWidget *owner, const std::function<AddRecPage *(QWidget *parent)> &makePage,
            const std::function<void(AddRecPage &page)> &stored = {});

}  // namespace trimlog
