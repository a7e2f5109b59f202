#include "companions/wizard_answers.h"

#include "health/body_formulas.h"
#include "platform/text_format.h"

namespace trimlog {

QString RepairedNumber(const QString &text, const QLocale &locale) {
  const std::optional<double> number = ParseNumber(text, locale);
  return number && *number >= 1 ? text : QStringLiteral("0");
}

QString RepairedHeight2(const QString &text, int UomID, const QLocale &locale) {
  const QString repaired = RepairedNumber(text, locale);
  const bool tooManyInches = UomID == 1 && ValueOrZero(repaired, locale) > 11;
  return tooManyInches ? QStringLiteral("11") : repaired;
}

QString RepairedBirthDate(const QString &text, const QDate &today, const QLocale &locale) {
  return IsDate(text, locale) ? text : ShortDate(DateAdd(QStringLiteral("yyyy"), -30, today), locale);
}

QString RepairedStartingDate(const QString &text, const QDate &today, const QLocale &locale) {
  return IsDate(text, locale) ? text : ShortDate(today, locale);
}

QString RepairedPersonName(const QString &text) {
  return text.trimmed().isEmpty() ? QStringLiteral("New Profile") : text;
}

QString HealthyWeightText(const WizardAnswers &answers, const QString &uomDisplay) {
  const int low = WeightForBMI(21, answers.height1, answers.height2, answers.UomID);
  const int high = WeightForBMI(23, answers.height1, answers.height2, answers.UomID);
  return QStringLiteral(
             "According to the BMI chart, a healthy weight range for someone with your height should be between ") +
         QString::number(low) + QStringLiteral(" and ") + QString::number(high) + QStringLiteral(" ") + uomDisplay +
         QStringLiteral(
             ".\n\nPlease note that the BMI calculation is not gender-specific, so you should use this as a "
             "guideline only.");
}

}  // namespace trimlog
