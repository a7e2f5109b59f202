#include "tools/caloric_needs.h"

#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

double WeightAsked(const CaloricQuestion &question, const ToolsProfile &profile, const QLocale &locale) {
  if (question.atGoalWeight) {
    if (const std::optional<double> goal = ParseNumber(question.goalWeight, locale)) return *goal;
    throw Error(error_number::typeMismatch, QStringLiteral("Please enter a numeric value for your goal weight."));
  }
  if (profile.currentWeight) return profile.currentWeight->ThisWeight;
  throw Error(error_number::typeMismatch, QStringLiteral("Please record a weight in the Data Calendar first."));
}

int AgeAsked(const CaloricQuestion &question, const ToolsProfile &profile, const QDate &today, const QLocale &locale) {
  if (question.atOtherAge) {
    if (const std::optional<double> age = ParseNumber(question.otherAge, locale)) return Whole(*age);
    throw Error(error_number::typeMismatch, QStringLiteral("Please enter a numeric value for the age."));
  }
  if (profile.body.BirthDate.isValid()) return DateDiff(QStringLiteral("yyyy"), profile.body.BirthDate, today);
  throw Error(error_number::typeMismatch, QStringLiteral("Please enter your birth date in your Profile setup first."));
}

int HeightAsked(const ToolsProfile &profile, int UomID) {
  const int height = profile.body.WholeHeight(UomID);
  if (height > 0) return height;
  throw Error(error_number::typeMismatch, QStringLiteral("Please enter your height in your Profile setup first."));
}

}  // namespace

const std::array<ActivityLevel, activityLevels> &ActivityLevels() {
  static const std::array<ActivityLevel, activityLevels> levels = {{
      {QStringLiteral("Light"), QStringLiteral("Golf, Office Work, Walking (leisurely)"), 1.35,
       QStringLiteral("With a light activity level")},
      {QStringLiteral("Moderate"), QStringLiteral("Biking, Swimming, Tennis, Mowing"), 1.58,
       QStringLiteral("With a moderate level of activity")},
      {QStringLiteral("Heavy"), QStringLiteral("Racquetball, Running, Basketball (full court)"), 1.9,
       QStringLiteral("If you can maintain a heavy activity level")},
  }};
  return levels;
}

CaloricNeeds EstimateCaloricNeeds(const CaloricQuestion &question, const ToolsProfile &profile, int UomID,
                                  const QDate &today, const QLocale &locale) {
  const double weight = WeightAsked(question, profile, locale);
  const int age = AgeAsked(question, profile, today, locale);
  const double bmr = CalcBMR(weight, age, HeightAsked(profile, UomID), profile.body.GenderID, UomID);
  CaloricNeeds needs;
  needs.bmr = QString::number(WholeLong(bmr)) + QStringLiteral(" calories.");
  for (int i = 0; i < activityLevels; ++i) {
    needs.perDay[i] = QString::number(WholeLong(bmr * ActivityLevels()[i].multiplier)) + QStringLiteral(" calories");
  }
  return needs;
}

QString SummarizeCaloricNeeds(const CaloricNeeds &needs, int activity, bool atGoalWeight) {
  if (needs.bmr.isEmpty()) return {};
  const QString &opening = ActivityLevels()[activity].opening;
  const QString &amount = needs.perDay[activity];
  const QString bmr = needs.bmr.chopped(1);  // without its full stop
  if (!atGoalWeight) {
    return opening + QStringLiteral(" you will need to consume ") + amount +
           QStringLiteral(
               " per day to maintain your current weight.  If you're trying to lose weight by cutting calories, a "
               "healthy idea would be to consume less than ") +
           amount + QStringLiteral(" without going much less than your BMR of ") + bmr +
           QStringLiteral(
               ", or your metabolism may slow down as a result.  In addition, most experts agree that 500-1000 "
               "calories per day is the most you can safely cut from your diet.");
  }
  return opening + QStringLiteral(" you'll need to consume ") + amount +
         QStringLiteral(
             " each day to maintain your goal weight.  If you're trying to lose weight by cutting your calories, "
             "this doesn't necessarily mean that ") +
         amount +
         QStringLiteral(
             " should be your goal right now.  Most experts agree that 500-1000 calories per day is the most you "
             "can safely cut from your diet.  In any case, try not to go much less than your BMR of ") +
         bmr + QStringLiteral(" or this may slow your metabolism and make it harder to burn fat.");
}

}  // namespace trimlog
