#include "core/windows/profiles/add_rec_page.h"

#include "core/windows/profiles/frmAddRec.h"

namespace trimlog {

bool AddRec(QWidget *owner, const std::function<AddRecPage *(QWidget *parent)> &makePage,
            const std::function<void(AddRecPage &page)> &stored) {
  frmAddRec dialog(owner);
  AddRecPage *page = makePage(&dialog);
  dialog.SetPage(page);
  if (dialog.exec() != QDialog::Accepted) return false;
  if (stored) stored(*page);
  return true;
}

}  // namespace trimlog
