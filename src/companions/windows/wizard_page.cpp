#include "companions/windows/wizard_page.h"

#include <QGridLayout>

#include "platform/windows/controls/field_left.h"
#include "platform/windows/controls/form_rows.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

void MendField(QLineEdit *field, const WizardPage::Mend &mend) {
  const QString mended = mend(field->text());
  if (mended == field->text()) return;
  const bool typed = field->isModified();
  field->setText(mended);
  field->setModified(typed);
}

}  // namespace

QVBoxLayout *WizardPage::MakeColumn() {
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, spacing::between, 0, spacing::between);
  return layout;
}

void WizardPage::AddForm(const QString &sentence, QWidget *form) {
  QVBoxLayout *layout = MakeColumn();
  AddNote(layout, {}, sentence);
  layout->addSpacing(spacing::between);
  layout->addWidget(form);
  layout->addStretch();
}

QGridLayout *WizardPage::MakeForm(const QString &sentence) {
  auto *form = new QWidget(this);
  QGridLayout *grid = MakeFormGrid();
  grid->setContentsMargins(0, 0, 0, 0);
  form->setLayout(grid);
  AddForm(sentence, form);
  return grid;
}

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
  if (IsFieldLeft(*event)) {
    for (const auto &[field, mend] : mended_) {
      if (field == watched) MendField(field, mend);
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace trimlog
