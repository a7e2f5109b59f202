#include "tools/body_fat.h"

#include "platform/text/rounding.h"
#include "platform/text/text_format.h"
#include "tools/index_advice.h"

namespace trimlog {

namespace {

double WeightAsked(const BodyFatQuestion &question, const ToolsProfile &profile, const QLocale &locale) {
  if (question.atGoalWeight) {
    const std::optional<double> goal = ParseNumber(question.goalWeight, locale);
    if (!goal) {
      throw Error(error_number::typeMismatch, QStringLiteral("Please enter a numeric value for your goal weight."));
    }
    if (*goal == 0) throw Error(error_number::divisionByZero, QStringLiteral("The weight cannot be zero."));
    return *goal;
  }
  if (profile.currentWeight && profile.currentWeight->ThisWeight != 0) return profile.currentWeight->ThisWeight;
  throw Error(error_number::typeMismatch, QStringLiteral("Please record a weight in the Data Calendar first."));
}

double WaistAsked(const BodyFatQuestion &question, const ToolsProfile &profile, const QLocale &locale) {
  if (question.otherWaist) {
    if (const std::optional<double> waist = ParseNumber(question.waist, locale)) return *waist;
    throw Error(error_number::typeMismatch, QStringLiteral("Please enter a numeric value for your waist."));
  }
  if (profile.LatestWaist) return *profile.LatestWaist;
  throw Error(error_number::typeMismatch,
              QStringLiteral("No waist measurement is recorded in your journal.  Please enter another measurement."));
}

QString IndexJudgement(int bmi) {
  switch (BandOfIndex(bmi)) {
    case IndexBand::Underweight:
      return QStringLiteral(", which indicates that at this stage you are underweight according to some experts.");
    case IndexBand::Ideal:
      return QStringLiteral(", which indicates an ideal situation for your height.");
    case IndexBand::ModerateRisk:
      return QStringLiteral(", which indicates an moderate health risk for your height.");
    case IndexBand::SevereRisk:
      break;
  }
  return QStringLiteral(", which indicates a severe health risk for your height.");
}

/// What follows " of fat.": the judgement of the percentage, and how the index bears on it.
QString CategoryAdvice(int category, const std::optional<int> &bmi) {
  const QString index = IndexSentence(QStringLiteral("Your BMI"), bmi, bmi ? IndexJudgement(*bmi) : QString());
  switch (category) {
    case 0:
      return QStringLiteral(
                 "  According to many health professionals, you may have too little Body Fat, which is not "
                 "necessarily a good thing!  Another good thing to consider would be your BMI value.  ") +
             index;
    case 1:
      return QStringLiteral(
                 "  Many athletes have Body Fat Percentages at this level!  Of course it may be wise to consider "
                 "your BMI value in addition to this.  ") +
             index;
    case 2:
      if (bmi && BandOfIndex(*bmi) == IndexBand::SevereRisk) {
        return QStringLiteral(
                   "  According to the above diagram this is in the acceptable range, but it should be noted that "
                   "your BMI is ") +
               QString::number(*bmi) + IndexJudgement(*bmi) +
               QStringLiteral(
                   "  So it would be wise to keep this in mind when determining if this is a healthy condition for "
                   "you.");
      }
      return QStringLiteral(
                 "  According to many health professionals, this is considered an acceptable level for you.  "
                 "Another good thing to consider would be your BMI value.  ") +
             index;
    default:
      return QStringLiteral(
                 "  According to many health professionals, this is considered an unhealthy condition, so it would "
                 "be wise to lower your Body Fat percentage.  Of course, you can also consider your BMI value, "
                 "which takes your height into account.  ") +
             index;
  }
}

}  // namespace

const std::array<BodyFatSegment, bodyFatSegments> &BodyFatSegments() {
  static const std::array<BodyFatSegment, bodyFatSegments> segments = {{
      {QStringLiteral("Athletic"), 1515, 900},
      {QStringLiteral("Acceptable"), 2400, 3015},
      {QStringLiteral("Obese -->"), 5400, 1455},
  }};
  return segments;
}

BodyFatBounds BoundsOfBodyFat(int gender) {
  if (gender == 1) return {{QStringLiteral("8%"), QStringLiteral("11%"), QStringLiteral("21%")}, 0.11, 0.21};
  return {{QStringLiteral("16%"), QStringLiteral("19%"), QStringLiteral("29%")}, 0.19, 0.29};
}

BodyFatMarker PlaceBodyFatMarker(double fraction, int gender) {
  const auto &[athletic, acceptable, obese] = BodyFatSegments();
  const BodyFatBounds bounds = BoundsOfBodyFat(gender);
  const double scale =
      acceptable.Width * 10.0;  // twips for the whole fraction: a tenth of the middle segment a percent
  if (fraction < bounds.acceptable) {
    const int x = WholeLong(athletic.Left + athletic.Width - (bounds.acceptable - fraction) * scale);
    return x < athletic.Left ? BodyFatMarker{athletic.Left, 0} : BodyFatMarker{x, 1};
  }
  if (fraction < bounds.obese) return {WholeLong(acceptable.Left + (fraction - bounds.acceptable) * scale), 2};
  const int end = obese.Left + obese.Width;
  const double x = obese.Left + (fraction - bounds.obese) * scale;
  return {x > end ? end : WholeLong(x), 3};
}

BodyFatAssessment AssessBodyFat(const BodyFatQuestion &question, const ToolsProfile &profile, int UomID,
                                const QString &UomDisplay, const QLocale &locale) {
  const double weight = WeightAsked(question, profile, locale);
  const double waist = WaistAsked(question, profile, locale);
  BodyFatAssessment assessment;
  assessment.fraction = CalcBodyFat(waist, weight, profile.body.GenderID, UomID);
  const QString percent = Format(assessment.fraction, QStringLiteral("Percent"), locale);
  assessment.value = QStringLiteral("Your Body Fat = ") + percent;
  assessment.bounds = BoundsOfBodyFat(profile.body.GenderID);
  assessment.marker = PlaceBodyFatMarker(assessment.fraction, profile.body.GenderID);

  const int fat = WholeLong(weight * assessment.fraction);
  const int lean = WholeLong(weight - fat);
  const QString unit = UomDisplay.toLower();
  assessment.summary = QStringLiteral("At this stage your Body Fat Percentage is ") + percent +
                       QStringLiteral(".  This means that you have about ") + QString::number(lean) + QLatin1Char(' ') +
                       unit + QStringLiteral(" of lean body mass and ") + QString::number(fat) + QLatin1Char(' ') +
                       unit + QStringLiteral(" of fat.") +
                       CategoryAdvice(assessment.marker.category, IndexIfTellable(weight, profile.body, UomID));
  return assessment;
}

}  // namespace trimlog
