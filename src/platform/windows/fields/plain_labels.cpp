#include "platform/windows/fields/plain_labels.h"

#include <QEvent>
#include <QLabel>

namespace trimlog {

PlainLabels::PlainLabels(QObject *application) { application->installEventFilter(this); }

// Before it is first shown; tool tips are labels as well.
bool PlainLabels::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Polish) return false;
  auto *label = qobject_cast<QLabel *>(watched);
  if (label && label->textFormat() == Qt::AutoText) label->setTextFormat(Qt::PlainText);
  return false;
}

}  // namespace trimlog
