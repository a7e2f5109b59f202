#include "tools/goal_plan.h"

#include "core/profiles/goal.h"
#include "core/settings/unit_system.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"
#include "tools/index_advice.h"

namespace trimlog {

namespace {

/// The date a number of weeks (halves to even) from the start; invalid outside the years 100 to 9999.
QDate ArrivalDate(const QDate &start, double weeks) {
  const double mostWeeks = 600000;  // beyond every date that can be typed or shown
  if (!(std::abs(weeks) <= mostWeeks)) return {};
  const QDate arrival = DateAdd(QStringLiteral("ww"), WholeLong(weeks), start);
  return arrival.year() >= 100 && arrival.year() <= 9999 ? arrival : QDate();
}

QString RateSentence(const GoalQuestion &question, double toLose, const QString &UomDisplay, const QLocale &locale) {
  const double rate = ValueOrZero(question.rate, locale);
  const QDate arrival = rate > 0 ? ArrivalDate(question.start->ThisDate, toLose / rate) : QDate();
  if (!arrival.isValid()) {
    return QStringLiteral("Unable to calculate with the current value of ") + UomDisplay + QStringLiteral("/Week.");
  }
  return QStringLiteral("If you can lose ") + question.rate.trimmed() + QLatin1Char(' ') + UomDisplay.toLower() +
         QStringLiteral("/week, you will reach your goal weight on ") +
         FormatDate(arrival, QStringLiteral("short date"), locale) + QLatin1Char('.');
}

QString DateSentence(const GoalQuestion &question, double toLose, const QString &UomDisplay, const QLocale &locale) {
  const QDate date = ParseDate(question.date, locale);
  if (!date.isValid()) return QStringLiteral("Unable to calculate with the current date.");
  const int weeks = DateDiff(QStringLiteral("ww"), question.start->ThisDate, date);
  const double rate = weeks == 0 ? toLose : toLose / weeks;
  return QStringLiteral("In order to reach your goal weight by ") + question.date.trimmed() +
         QStringLiteral(", you will need to lose ") + Format(rate, QStringLiteral("0.0"), locale) + QLatin1Char(' ') +
         UomDisplay.toLower() + QStringLiteral("/week.");
}

QString MethodSentence(const GoalQuestion &question, double goal, const QString &UomDisplay, const QLocale &locale) {
  if (!question.start) return QStringLiteral("Unable to calculate without a weight recorded in the Data Calendar.");
  const double toLose = question.start->ThisWeight - goal;
  return question.method == GoalMethod::ByRate ? RateSentence(question, toLose, UomDisplay, locale)
                                               : DateSentence(question, toLose, UomDisplay, locale);
}

QString GoalJudgement(int bmi, const BodyProfile &body, int UomID, const QString &UomDisplay) {
  const auto healthyWeights = [&] {
    const auto weightFor = [&](int index) {
      return QString::number(WeightForBMI(index, body.HeightFeet, body.HeightInches, UomID));
    };
    return QStringLiteral("  According to the BMI chart, a healthy weight for you would be between ") + weightFor(21) +
           QStringLiteral(" and ") + weightFor(23) + QLatin1Char(' ') + UomDisplay + QLatin1Char('.');
  };
  switch (BandOfIndex(bmi)) {
    case IndexBand::Underweight:
      return QStringLiteral(", which indicates that you will be underweight according to some experts.");
    case IndexBand::Ideal:
      return QStringLiteral(
          ", which indicates an ideal situation for your height.  This is a very healthy goal to shoot for!");
    case IndexBand::ModerateRisk:
      return QStringLiteral(", which indicates an moderate health risk for your height.") + healthyWeights();
    case IndexBand::SevereRisk:
      break;
  }
  return QStringLiteral(", which indicates a severe health risk for your height.") + healthyWeights();
}

Box Refusal(const char *title, const char *text) {
  return {QString::fromLatin1(title), QString::fromLatin1(text), BoxIcon::Critical};
}

}  // namespace

GoalPlan PlanGoal(const GoalQuestion &question, const BodyProfile &body, int UomID, const QString &UomDisplay,
                  const QLocale &locale) {
  const std::optional<double> goal = ParseNumber(question.goal, locale);
  if (!goal) return {{}, QStringLiteral("The goal weight is not a number.")};
  const std::optional<int> bmi = IndexIfTellable(*goal, body, UomID);
  const QString judgement = bmi ? GoalJudgement(*bmi, body, UomID, UomDisplay) : QString();
  const QString sentence = IndexSentence(QStringLiteral("Your goal weight's BMI"), bmi, judgement);
  return {MethodSentence(question, *goal, UomDisplay, locale) + QStringLiteral("  ") + sentence,
          bmi ? QString() : sentence};
}

QString PlanPrompt() { return QStringLiteral("Click the <Calculate Plan> button\n to see your results."); }

std::optional<Box> CheckGoal(const QString &goal, const QLocale &locale) {
  const std::optional<double> value = ParseNumber(goal, locale);
  if (!value || *value > heaviestWeight) {
    return Refusal("Invalid Goal",
                   "The goal that you entered is invalid.  Please enter a numeric value for your weight loss goal.");
  }
  if (*value > 0) return std::nullopt;
  return Refusal("Invalid Goal",
                 "The goal that you entered is invalid.  Please enter a positive value for your weight loss goal.");
}

std::optional<Box> CheckGoalMethodDate(const QString &date, const QLocale &locale) {
  if (IsDate(date, locale)) return std::nullopt;
  return Refusal(
      "Invalid Date",
      "The date that you entered is invalid.  Please enter a valid date or choose one using the date button.");
}

std::optional<Box> CheckGoalMethodRate(const QString &rate, const QLocale &locale) {
  const std::optional<double> value = ParseNumber(rate, locale);
  if (!value) {
    return Refusal("Invalid lbs/week",
                   "The lbs/week that you entered is invalid.  Please enter a numeric value for the number of "
                   "lbs/week you wish to lose.");
  }
  if (*value > 0) return std::nullopt;
  return Refusal(
      "Invalid lbs/week",
      "The lbs/week that you entered cannot be zero or negative.  Please enter a positive, nonzero value for the "
      "number of lbs/week you wish to lose.");
}

QString RepairedRate(const QString &rate, int UomID, const QLocale &locale) {
  if (ParseNumber(rate, locale).value_or(0) > 0) return rate;
  return UomID == poundsSystem ? QStringLiteral("1") : NumberText(0.9, locale);
}

}  // namespace trimlog
