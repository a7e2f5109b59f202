#include "companions/windows/wizard_page.h"

#include <QFocusEvent>

namespace trimlog {

namespace {

void MendField(QLineEdit *field, const WizardPage::Mend &mend) {
  const QString mended = mend(field->text());
  if (mended != field->text()) field->setText(mended);
}

}  // namespace

void WizardPage::MendOnLeaving(QLineEdit *field, const Mend &mend) {
  mended_.append({field, mend});
  field->installEventFilter(this);
}

void WizardPage::MendFields() {
  for (const auto &[field, mend] : mended_) MendField(field, mend);
}

void WizardPage::GoTo(QLineEdit *field) {
  field->setFocus();
  field->selectAll();
}

bool WizardPage::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::FocusOut) {
    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    const bool left = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
    for (const auto &[field, mend] : mended_) {
      if (left && field == watched) MendField(field, mend);
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace trimlog
