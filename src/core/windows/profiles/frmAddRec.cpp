#include "core/windows/profiles/frmAddRec.h"

#include <QDialogButtonBox>
#include <QPushButton>

namespace trimlog {

frmAddRec::frmAddRec(QWidget *owner) : QDialog(owner), lblHeader(new QLabel(this)), layout_(new QVBoxLayout(this)) {
  setObjectName(QStringLiteral("frmAddRec"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(true);
  lblHeader->setObjectName(QStringLiteral("lblHeader"));
  lblHeader->setWordWrap(true);
  layout_->addWidget(lblHeader);

  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmAddRec::OnOk);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmAddRec::reject);
  layout_->addWidget(buttons);
}

void frmAddRec::SetPage(AddRecPage *page) {
  page_ = page;
  layout_->insertWidget(1, page, 1);
  setWindowTitle(page->Title());
  lblHeader->setText(page->Header());
  page->setFocus();
}

void frmAddRec::OnOk() {
  if (page_->Store()) accept();
}

}  // namespace trimlog
