#include "tools/body_fat.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/locales.h"

namespace trimlog {
namespace {

constexpr int male = 1;
constexpr int female = 2;

TEST(BodyFatBarPlace, FollowsThePercentageAndStaysOnTheBar) {
  struct Case {
    double fraction;
    int gender, x, category;
  };
  // A percent is 301.5 twips. The first segment spans 900 twips up to 2415, 2.985 percent.
  const Case cases[] = {
      {0, male, 1515, 0},      {0.0801, male, 1515, 0},  // 2415 - 901.485 lies left of the bar
      {0.0802, male, 1517, 1},                           // 2415 - 898.47 = 1516.53
      {0.10, male, 2114, 1},                             // 2415 - 301.5 = 2113.5, to the even 2114
      {0.18, female, 2113, 1},                           // the same, a hair more than a percent below 0.19 in binary
      {0.11, male, 2400, 2},                             // the bound itself
      {0.19, female, 2400, 2}, {0.2, male, 5114, 2},     // 2400 + 2713.5 = 5113.5
      {0.21, male, 5400, 3},   {0.29, female, 5400, 3}, {0.25, male, 6606, 3},  // 5400 + 1206
      {0.2582, male, 6853, 3},                                                  // 5400 + 1453.23
      {0.2583, male, 6855, 3},                           // 5400 + 1456.245 is beyond the right end
      {9.9, female, 6855, 3},  {0.25, female, 4209, 2},  // 2400 + 1809
  };
  for (const Case &c : cases) {
    const BodyFatMarker marker = PlaceBodyFatMarker(c.fraction, c.gender);
    EXPECT_EQ(marker.x, c.x) << c.fraction;
    EXPECT_EQ(marker.category, c.category) << c.fraction;
    EXPECT_EQ(marker.Segment(), std::max(c.category - 1, 0)) << c.fraction;
  }
  EXPECT_EQ(BoundsOfBodyFat(male).labels[0], "8%");
  EXPECT_EQ(BoundsOfBodyFat(0).labels[2], "29%");
}

/// The assessment of a weight and a waist in pounds and inches.
BodyFatAssessment Assess(double weight, double waist, int gender, double feet, double inches) {
  ToolsProfile profile;
  profile.body = {gender, {}, feet, inches};
  profile.currentWeight = DatedWeight{QDate(2026, 2, 10), weight};
  profile.LatestWaist = waist;
  return AssessBodyFat({}, profile, 1, "Lbs", us);
}

TEST(BodyFatSummary, WordForWordInEveryCategory) {
  struct Case {
    double weight, waist;
    int gender;
    double feet, inches;
    const char *summary;
  };
  const Case cases[] = {
      // (-98.42 + 83 - 14.76) / 180 is below 0. The index at 6 feet: 81.72 / 3.34451 = 24.43
      {180, 20, male, 6, 0,
       "At this stage your Body Fat Percentage is 0.00%.  This means that you have about 180 lbs of lean body mass "
       "and 0 lbs of fat.  According to many health professionals, you may have too little Body Fat, which is not "
       "necessarily a good thing!  Another good thing to consider would be your BMI value.  Your BMI is 24, which "
       "indicates an ideal situation for your height."},
      // (-98.42 + 120.35 - 10.66) / 130 = 8.669 %, fat 11.27, lean 130 - 11. The index at 6 feet: 59.02 / 3.34451
      // = 17.65
      {130, 29, male, 6, 0,
       "At this stage your Body Fat Percentage is 8.67%.  This means that you have about 119 lbs of lean body mass "
       "and 11 lbs of fat.  Many athletes have Body Fat Percentages at this level!  Of course it may be wise to "
       "consider your BMI value in addition to this.  Your BMI is 18, which indicates that at this stage you are "
       "underweight according to some experts."},
      // (-76.76 + 124.5 - 12.3) / 150 = 23.627 %, fat 35.44, lean 150 - 35. The index at 5 feet 4: 68.1 / 2.64258
      // = 25.77
      {150, 30, female, 5, 4,
       "At this stage your Body Fat Percentage is 23.63%.  This means that you have about 115 lbs of lean body mass "
       "and 35 lbs of fat.  According to many health professionals, this is considered an acceptable level for you.  "
       "Another good thing to consider would be your BMI value.  Your BMI is 26, which indicates an moderate health "
       "risk for your height."},
      // The same at 4 feet 11: 68.1 / 2.24580 = 30.32
      {150, 30, female, 4, 11,
       "At this stage your Body Fat Percentage is 23.63%.  This means that you have about 115 lbs of lean body mass "
       "and 35 lbs of fat.  According to the above diagram this is in the acceptable range, but it should be noted "
       "that your BMI is 30, which indicates a severe health risk for your height.  So it would be wise to keep this "
       "in mind when determining if this is a healthy condition for you."},
      // (-98.42 + 186.75 - 20.5) / 250 = 27.132 %, fat 67.83, lean 250 - 68. The index at 5 feet 10: 113.5 / 3.16128
      // = 35.90
      {250, 45, male, 5, 10,
       "At this stage your Body Fat Percentage is 27.13%.  This means that you have about 182 lbs of lean body mass "
       "and 68 lbs of fat.  According to many health professionals, this is considered an unhealthy condition, so it "
       "would be wise to lower your Body Fat percentage.  Of course, you can also consider your BMI value, which "
       "takes your height into account.  Your BMI is 36, which indicates a severe health risk for your height."},
      {250, 45, male, 0, 0,
       "At this stage your Body Fat Percentage is 27.13%.  This means that you have about 182 lbs of lean body mass "
       "and 68 lbs of fat.  According to many health professionals, this is considered an unhealthy condition, so it "
       "would be wise to lower your Body Fat percentage.  Of course, you can also consider your BMI value, which "
       "takes your height into account.  Your BMI cannot be calculated from this weight and the height in your "
       "profile."}};
  for (const Case &c : cases) {
    EXPECT_EQ(Assess(c.weight, c.waist, c.gender, c.feet, c.inches).summary, c.summary);
  }
  EXPECT_EQ(Assess(150, 30, female, 5, 4).value, "Your Body Fat = 23.63%");
}

TEST(BodyFatSummary, LeanMassComesFromTheRoundedFat) {
  // 150.5 lbs and 30 inches: (-76.76 + 124.5 - 12.341) = 35.399 of fat, 35; 150.5 - 35 = 115.5, to the even 116
  EXPECT_TRUE(Assess(150.5, 30, female, 5, 4).summary.contains("about 116 lbs of lean body mass and 35 lbs"));
}

TEST(BodyFatSummary, MetricInputsAndTheOtherChoices) {
  ToolsProfile profile;
  profile.body = {male, {}, 1, 80};
  // 80 kg and 90 cm: 19.371 %, fat 15.497; the index 80 / 3.24 = 24.69
  const BodyFatAssessment metric = AssessBodyFat({true, "80", true, "90"}, profile, 2, "Kg", us);
  EXPECT_EQ(metric.value, "Your Body Fat = 19.37%");
  EXPECT_EQ(metric.marker.category, 2);
  EXPECT_TRUE(metric.summary.contains("about 65 kg of lean body mass and 15 kg of fat."));
  EXPECT_TRUE(metric.summary.endsWith("Your BMI is 25, which indicates an moderate health risk for your height."));

  struct Case {
    BodyFatQuestion question;
    const char *failure;
  };
  const Case refused[] = {{{true, "eighty", true, "90"}, "Please enter a numeric value for your goal weight."},
                          {{true, "0", true, "90"}, "The weight cannot be zero."},
                          {{true, "80", true, QString()}, "Please enter a numeric value for your waist."},
                          {{false, {}, true, "90"}, "Please record a weight in the Data Calendar first."},
                          {{true, "80", false, {}},
                           "No waist measurement is recorded in your journal.  Please enter another measurement."}};
  for (const Case &c : refused) {
    try {
      AssessBodyFat(c.question, profile, 2, "Kg", us);
      ADD_FAILURE() << "assessed: " << c.failure;
    } catch (const Error &error) {
      EXPECT_EQ(error.Description(), c.failure);
    }
  }
}

}  // namespace
}  // namespace trimlog
