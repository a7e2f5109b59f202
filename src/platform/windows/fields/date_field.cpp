#include "platform/windows/fields/date_field.h"

#include <QKeyEvent>

#include "platform/text/text_format.h"

namespace trimlog {

DateField::DateField(const QString &objectName, const QString &label, const QLocale &locale, QWidget *parent)
    : QLineEdit(parent), locale_(locale) {
  setObjectName(objectName);
  setAccessibleName(label);
  home(false);  // without a first place of the cursor a screen reader is silent on the first Tab
}

QDate DateField::Date() const { return ParseDate(text(), locale_); }

void DateField::SetDate(const QDate &date) { setText(ShortDate(date, locale_)); }

void DateField::keyPressEvent(QKeyEvent *event) {
  const bool altDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
  if ((event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier) || altDown) {
    Q_EMIT CalendarWanted();
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace trimlog
