#include "platform/windows/controls/ok_cancel.h"

#include <QDialog>
#include <QLayout>
#include <QPushButton>

namespace trimlog {

QDialogButtonBox *AddOkCancel(QDialog &dialog, QLayout *layout, const std::function<void()> &ok,
                              QDialogButtonBox::StandardButtons buttons) {
  auto *row = new QDialogButtonBox(buttons, &dialog);
  for (const auto &[button, name] :
       {std::pair(QDialogButtonBox::Ok, "cmdOK"), std::pair(QDialogButtonBox::Cancel, "cmdCancel"),
        std::pair(QDialogButtonBox::Help, "cmdHelp")}) {
    if (QPushButton *made = row->button(button)) made->setObjectName(QString::fromLatin1(name));
  }
  if (QPushButton *cmdOK = row->button(QDialogButtonBox::Ok)) cmdOK->setDefault(true);
  QObject::connect(row, &QDialogButtonBox::accepted, &dialog, ok);
  QObject::connect(row, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  layout->addWidget(row);
  return row;
}

}  // namespace trimlog
