#pragma once

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

#include "core/windows/profiles/add_rec_page.h"

namespace trimlog {

/// The one dialog that adds a record to a list; the kind of record is its page. OK stores and closes, Cancel leaves
/// everything as it is.
class frmAddRec : public QDialog {
  Q_OBJECT
 public:
  explicit frmAddRec(QWidget *owner);
  /// The dialog becomes the page's owner. Call once.
  void SetPage(AddRecPage *page);

 private:
  void OnOk();

  QLabel *lblHeader;
  QVBoxLayout *layout_;
  AddRecPage *page_ = nullptr;
};

}  // namespace trimlog
