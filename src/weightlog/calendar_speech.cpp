#include "weightlog/calendar_speech.h"

#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// The sign that a person chose to see says little when it is heard alone.
QString SpokenLoss(const QString &shown, const Settings &settings, const QLocale &locale) {
  const double loss = ValueOrZero(shown, locale) * settings.LossFactor;
  if (loss == 0) return QStringLiteral("No loss");
  const QString amount = QString(shown).remove(QLatin1Char('-')).remove(locale.negativeSign());
  return (loss > 0 ? QStringLiteral("Lost ") : QStringLiteral("Gained ")) + amount;
}

}  // namespace

QString SpokenDay(const CalendarCell &cell, const QLocale &locale) {
  return QStringLiteral("Weight for %1, %2").arg(locale.dayName(cell.date.dayOfWeek()), cell.dateValue);
}

QString SpokenDetails(const CalendarCell &cell, const QString &figure, const Settings &settings,
                      const QLocale &locale) {
  QStringList details;
  if (cell.lossVisible && !cell.loss.isEmpty()) details.append(SpokenLoss(cell.loss, settings, locale));
  if (cell.caloriesVisible && !cell.calories.isEmpty()) {
    details.append(figure + QStringLiteral(": ") + (cell.caloriesTip.isEmpty() ? cell.calories : cell.caloriesTip));
  }
  return details.join(QStringLiteral(". "));
}

QString SpokenWeek(const CalendarMonth &month, int row) {
  return QStringLiteral("Loss in the week from %1 to %2")
      .arg(month.Cell((row - 1) * 7 + 1).dateValue, month.Cell(row * 7).dateValue);
}

QString SpokenMonth(const CalendarMonth &month) { return QStringLiteral("Loss in ") + month.title; }

}  // namespace trimlog
