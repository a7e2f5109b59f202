#include "core/windows/profiles/frmAddRec.h"

#include "platform/windows/controls/ok_cancel.h"

namespace trimlog {

frmAddRec::frmAddRec(QWidget *owner) : QDialog(owner), lblHeader(new QLabel(this)), layout_(new QVBoxLayout(this)) {
  setObjectName(QStringLiteral("frmAddRec"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(true);
  lblHeader->setObjectName(QStringLiteral("lblHeader"));
  lblHeader->setWordWrap(true);
  layout_->addWidget(lblHeader);
}

void frmAddRec::SetPage(AddRecPage *page) {
  page_ = page;
  layout_->insertWidget(1, page, 1);
  setWindowTitle(page->Title());
  lblHeader->setText(page->Header());
  AddOkCancel(*this, layout_, [this] { OnOk(); });
  page->setFocus();
}

void frmAddRec::OnOk() {
  if (page_->Store()) accept();
}

}  // namespace trimlog
