#include "platform/windows/fields/number_field.h"

#include <QKeyEvent>

#include "platform/text/decimal_key.h"
#include "platform/text/text_format.h"

namespace trimlog {

bool TypeDecimalKey(QLineEdit &field, const QKeyEvent &event, const QLocale &locale) {
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (!keypad || event.text().size() != 1 || field.isReadOnly()) return false;
  if (event.key() != Qt::Key_Period && event.key() != Qt::Key_Comma && event.key() != Qt::Key_Delete) return false;
  DecimalKey rule(locale.decimalPoint() == QStringLiteral(","));
  rule.KeyDown(DecimalKey::keypadDecimal);
  const QChar typed = event.text().front();
  const QChar entered(rule.KeyPress(typed.unicode()));
  if (entered == typed) return false;
  field.insert(entered);
  return true;
}

NumberField::NumberField(const QString &objectName, const QString &label, const QLocale &locale, QWidget *parent)
    : QLineEdit(parent), locale_(locale) {
  setObjectName(objectName);
  setAccessibleName(label);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setInputMethodHints(Qt::ImhFormattedNumbersOnly);
  home(false);  // without a first place of the cursor a screen reader is silent on the first Tab
}

std::optional<double> NumberField::Number() const { return ParseNumber(text(), locale_); }

double NumberField::ValueOrZero() const { return trimlog::ValueOrZero(text(), locale_); }

void NumberField::SetNumber(double value, const QString &pattern) { setText(Format(value, pattern, locale_)); }

void NumberField::SetRange(double lowest, double highest) {
  lowest_ = lowest;
  highest_ = highest;
}

QString NumberField::Complaint() const {
  if (text().trimmed().isEmpty()) return {};
  const std::optional<double> number = Number();
  if (!number) return tr("Please type a number.");
  const QString general = QStringLiteral("General Number");
  if (lowest_ && (*number < *lowest_ || *number > *highest_)) {
    return tr("Please type a number from %1 to %2.")
        .arg(Format(*lowest_, general, locale_), Format(*highest_, general, locale_));
  }
  return {};
}

void NumberField::keyPressEvent(QKeyEvent *event) {
  if (TypeDecimalKey(*this, *event, locale_)) {
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace trimlog
