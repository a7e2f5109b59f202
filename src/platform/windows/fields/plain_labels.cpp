#include "platform/windows/fields/plain_labels.h"

#include <QLabel>

namespace trimlog {

void KeepPlain(QWidget *widget) {
  auto *label = qobject_cast<QLabel *>(widget);
  if (label && label->textFormat() == Qt::AutoText) label->setTextFormat(Qt::PlainText);
}

}  // namespace trimlog
