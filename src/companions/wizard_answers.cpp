#include "companions/wizard_answers.h"

#include "core/profiles/goal.h"
#include "core/profiles/height.h"
#include "core/settings/unit_system.h"
#include "health/body_formulas.h"
#include "platform/text/text_format.h"
#include "weightlog/weight_log.h"

namespace trimlog {

namespace {

TypedWeight::Check CheckWeight(double weight) { return ReadTypedWeight(PlainText(weight), QLocale::c()).check; }

}  // namespace

QString RepairedNumber(const QString &text, const QLocale &locale) {
  const std::optional<double> number = ParseNumber(text, locale);
  return number && *number >= 1 ? text : QStringLiteral("0");
}

QString RepairedHeight2(const QString &text, int UomID, const QLocale &locale) {
  const QString repaired = RepairedNumber(text, locale);
  const bool tooManyInches = UomID == poundsSystem && ValueOrZero(repaired, locale) > 11;
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

std::optional<WeightComplaint> CheckWeightAnswers(const WizardAnswers &answers) {
  const TypedWeight::Check weight = CheckWeight(answers.startingWeight);
  if (weight != TypedWeight::Check::Fine) {
    return WeightComplaint{
        WeightStepField::StartingWeight, QStringLiteral("Invalid Weight"),
        QStringLiteral("The weight that you entered is invalid.  Please enter a %1 value for your weight.")
            .arg(weight == TypedWeight::Check::NotPositive ? QStringLiteral("positive") : QStringLiteral("numeric"))};
  }
  const QString refused = RefusedGoal(answers.person.Goal.value_or(0));
  if (refused.isEmpty()) return std::nullopt;
  return WeightComplaint{WeightStepField::Goal, QStringLiteral("Invalid Goal"), refused};
}

int ProposedUomID(int UomID, const QLocale &locale) {
  constexpr int ofNewStores = 1;
  constexpr int metric = 2;
  const bool metricCountry = locale.measurementSystem() == QLocale::MetricSystem;
  return UomID == ofNewStores && metricCountry ? metric : UomID;
}

const QList<WizardColor> &WizardColors() {
  static const QList<WizardColor> colors = {{3, QStringLiteral("Breathtaking Blue (default)"), 16769216},
                                            {1, QStringLiteral("Youthful Yellow"), 14745599},
                                            {2, QStringLiteral("Gorgeous Green"), 14745568},
                                            {4, QStringLiteral("Incredible Indigo"), 16769248},
                                            {5, QStringLiteral("Confident Crimson"), 13680895}};
  return colors;
}

QString HealthyWeightText(const WizardAnswers &answers, const QString &uomDisplay) {
  const double feet = answers.person.HeightFeet;
  const double inches = answers.person.HeightInches;
  if (!IsHeightOfPerson(feet, inches, answers.UomID)) {
    return QStringLiteral("Please go back and enter your height first.  Your healthy weight range depends on it.");
  }
  const int low = WeightForBMI(21, feet, inches, answers.UomID);
  const int high = WeightForBMI(23, feet, inches, answers.UomID);
  return QStringLiteral(
             "According to the BMI chart, a healthy weight range for someone with your height should be between ") +
         QString::number(low) + QStringLiteral(" and ") + QString::number(high) + QStringLiteral(" ") + uomDisplay +
         QStringLiteral(
             ".\n\nPlease note that the BMI calculation is not gender-specific, so you should use this as a "
             "guideline only.");
}

}  // namespace trimlog
