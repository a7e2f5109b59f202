#include "companions/windows/wizard_controls.h"

#include <QComboBox>
#include <QGridLayout>

#include "core/windows/setup/setup_controls.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

QVBoxLayout *MakeWizardColumn(QWidget *page) {
  auto *layout = new QVBoxLayout(page);
  layout->setContentsMargins(0, 6, 0, 6);
  return layout;
}

QGridLayout *MakeWizardForm(QWidget *page, const QString &sentence) {
  QVBoxLayout *layout = MakeWizardColumn(page);
  AddNote(layout, {}, sentence);
  layout->addSpacing(8);
  auto *grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(10);
  layout->addLayout(grid);
  layout->addStretch();
  return grid;
}

void AddWizardRow(QGridLayout *grid, const QString &caption, QWidget *buddy, const QList<QWidget *> &controls) {
  const int row = grid->rowCount();
  auto *label = new QLabel(caption);
  label->setBuddy(buddy);
  grid->addWidget(label, row, 0);
  auto *line = new QHBoxLayout;
  line->setSpacing(8);
  bool fillsLine = false;
  for (QWidget *control : controls) {
    line->addWidget(control);
    fillsLine = fillsLine || (control->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding &&
                              control->maximumWidth() == QWIDGETSIZE_MAX);
  }
  if (!fillsLine) line->addStretch();
  grid->addLayout(line, row, 1);
}

NumberField *AddWizardNumber(const QString &name, const QLocale &locale, QWidget *page) {
  auto *field = new NumberField(name, {}, locale, page);
  FitWizardField(field, numberCharacters);
  return field;
}

QLabel *AddWizardUnit(const QString &name, QWidget *page) {
  auto *label = new QLabel(page);
  label->setObjectName(name);
  return label;
}

void FitWizardField(QLineEdit *field, int characters) {
  const int width = field->fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + 16;
  field->setFixedWidth(width);
}

}  // namespace trimlog
