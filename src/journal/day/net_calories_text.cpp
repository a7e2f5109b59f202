#include "journal/day/net_calories_text.h"

#include <QStringList>

#include "journal/day/calorie_rules.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr QLatin1StringView gap("       ");

}  // namespace

QString NetCaloriesText(const NetCaloriesDay &day, bool withBasalRate, const QLocale &locale) {
  const auto number = [&locale](double value) { return Format(value, caloriesPattern, locale); };
  const double consumed = day.eaten.value_or(0);
  const double burned = day.burned.value_or(0);
  const int basal = withBasalRate ? day.basal : 0;
  QString text = number(consumed - burned - basal) + QStringLiteral(" Net Calories") + gap +
                 QStringLiteral("Net Cal = ") + number(consumed) + QStringLiteral(" (Consumed) - ") + number(burned) +
                 QStringLiteral(" (Burned)");
  if (withBasalRate) text += QStringLiteral(" - ") + number(basal) + QStringLiteral(" (BMR)");
  return text;
}

std::pair<QString, QString> SplitNetCaloriesText(const QString &text) {
  const qsizetype at = text.indexOf(gap);
  if (at < 0) return {text, {}};
  return {text.left(at), text.mid(at + gap.size())};
}

QString AboutNetCaloriesTitle() { return QStringLiteral("About Net Calories"); }

QString AboutNetCalories() {
  const QStringList paragraphs = {
      QStringLiteral("Net Calories are the difference between the calories that you consume minus the calories that "
                     "you burn."),
      QStringLiteral("In other words:  Net Calories = Calories In - Calories Out"),
      QStringLiteral("Calories In = Calories that you consume throughout the day from food."),
      QStringLiteral("Calories Out = Calories that you burn through exercise as well as the calories that you burn at "
                     "rest (your BMR or Basal Metabolic Rate)."),
      QStringLiteral("A positive number for Net Calories means that you ate more calories than you burned.  A negative "
                     "number means that you burned more calories than you ate."),
      QStringLiteral("If you do not want your BMR to be part of Net Calories, you can leave it out on the Journal page "
                     "of Program Options."),
      QStringLiteral("Your daily target for Calories is compared with the calories that you consume, not with your Net "
                     "Calories."),
  };
  return paragraphs.join(QStringLiteral("\n\n"));
}

}  // namespace trimlog
