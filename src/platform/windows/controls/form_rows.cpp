#include "platform/windows/controls/form_rows.h"

#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include "platform/windows/controls/spacing.h"

namespace trimlog {

QGridLayout *MakeFormGrid() {
  auto *grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  grid->setHorizontalSpacing(spacing::around);
  return grid;
}

QLabel *AddFormRow(QGridLayout *grid, const QString &caption, QWidget *buddy, const QList<QWidget *> &controls) {
  const int row = grid->rowCount();
  auto *label = new QLabel(caption);
  label->setBuddy(buddy);
  grid->addWidget(label, row, 0);
  auto *line = new QHBoxLayout;
  line->setSpacing(spacing::between);
  bool fillsLine = false;
  for (QWidget *control : controls) {
    line->addWidget(control);
    fillsLine = fillsLine || (control->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding &&
                              control->maximumWidth() == QWIDGETSIZE_MAX);
  }
  if (!fillsLine) line->addStretch();
  grid->addLayout(line, row, 1);
  return label;
}

}  // namespace trimlog
