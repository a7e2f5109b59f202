#include "health/body_formulas.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

constexpr int pounds = 1;
constexpr int kilograms = 2;
constexpr int male = 1;
constexpr int female = 2;

TEST(BodyMassIndex, IsWeightOverSquaredHeightRoundedToEven) {
  struct Case {
    double weight, feet, inches;
    int UomID, bmi;
  };
  const Case cases[] = {
      {150, 5, 6, pounds, 24},       // 66 in = 1.6764 m, squared 2.81032; 68.1 kg / 2.81032 = 24.23
      {125.4, 5, 0, pounds, 25},     // 1.524 m; 56.9316 / 2.322576 = 24.51; with 0.45359 kg a pound it would be 24.49
      {200, 5, 0, pounds, 39},       // 90.8 / 2.322576 = 39.09
      {90, 2, 0, kilograms, 22},     // 90 / 4 = 22.5, to the even 22
      {94, 2, 0, kilograms, 24},     // 23.5, to the even 24
      {98, 2, 0, kilograms, 24},     // 24.5, to the even 24
      {98.04, 2, 0, kilograms, 25},  // 24.51
      {70, 1, 70, kilograms, 24},    // 70 / 2.89 = 24.22
      {0, 5, 6, pounds, 0}};
  for (const Case &c : cases) {
    EXPECT_EQ(CalcBMI(c.weight, c.feet, c.inches, c.UomID), c.bmi) << c.weight << " at " << c.feet << ", " << c.inches;
  }
}

TEST(BodyMassIndex, WeightForAnIndex) {
  struct Case {
    int bmi;
    double feet, inches;
    int UomID, weight;
  };
  const Case cases[] = {
      {21, 5, 6, pounds, 130},      // 21 x 2.81032 x 2.205 = 130.13
      {23, 5, 6, pounds, 143},      // 142.525; with 2.2046 lbs a kilogram it would be 142.499
      {25, 4, 3, pounds, 93},       // 92.503; with 2.2046 it would be 92.486
      {22, 1, 50, kilograms, 50},   // 22 x 2.25 = 49.5, to the even 50
      {26, 1, 50, kilograms, 58},   // 58.5, to the even 58
      {21, 1, 70, kilograms, 61},   // 60.69
      {23, 0, 170, kilograms, 66},  // 66.47
  };
  for (const Case &c : cases) {
    EXPECT_EQ(WeightForBMI(c.bmi, c.feet, c.inches, c.UomID), c.weight)
        << c.bmi << " at " << c.feet << ", " << c.inches;
  }
}

TEST(BodyMassIndex, RefusesWhatCannotBeToldInsteadOfShowingInfinity) {
  const auto numberOf = [](double weight, double feet, double inches) {
    try {
      CalcBMI(weight, feet, inches, pounds);
    } catch (const Error &error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(numberOf(150, 0, 0), error_number::divisionByZero);
  EXPECT_EQ(numberOf(150, -5, 0), error_number::divisionByZero);
  EXPECT_EQ(numberOf(1e6, 5, 6), error_number::overflow);  // an index of 161,547
}

TEST(BodyMassIndex, TakesTheHeightOfTheProfile) {
  TestSession session;  // 5 feet 6
  EXPECT_EQ(CalcBMI(*session, 150), 24);
  EXPECT_EQ(WeightForBMI(*session, 23), 143);
  EXPECT_EQ(WeightForBMI(*session, 25, 4, 3), 93);
  session->settings.UomID = kilograms;
  session.Data().Execute("UPDATE people SET HeightFeet=1, HeightInches=70 WHERE PersonID=1;");
  EXPECT_EQ(CalcBMI(*session, 70), 24);
  EXPECT_EQ(WeightForBMI(*session, 21), 61);
}

TEST(WholeSpans, CountCompletedOnes) {
  const QDate today(2026, 3, 1);
  struct Case {
    QDate from;
    WholeSpan span;
    QDate to;
    const char *count;
  };
  const Case cases[] = {{QDate(1990, 3, 1), WholeSpan::Years, today, "36"},  // the birthday itself counts
                        {QDate(1990, 3, 2), WholeSpan::Years, today, "35"},
                        {QDate(1990, 2, 28), WholeSpan::Years, today, "36"},
                        {QDate(1990, 12, 1), WholeSpan::Years, today, "35"},
                        {QDate(1990, 3, 1), WholeSpan::Years, QDate(), "36"},  // no end: today
                        {QDate(2025, 6, 1), WholeSpan::Years, today, "0"},
                        {QDate(2030, 1, 1), WholeSpan::Years, today, "0"},  // in the future
                        {QDate(), WholeSpan::Years, today, "0"},
                        {QDate(1850, 5, 5), WholeSpan::Years, today, "175"},
                        {QDate(2025, 12, 31), WholeSpan::Months, today, "2"},  // 28 February is not the 31st day
                        {QDate(2026, 2, 1), WholeSpan::Months, today, "1"},
                        {QDate(2026, 2, 2), WholeSpan::Months, today, "0"},
                        {QDate(2024, 2, 28), WholeSpan::Days, QDate(2024, 3, 1), "2"},  // a leap year
                        {QDate(2026, 3, 2), WholeSpan::Days, today, "0"}};
  for (const Case &c : cases) {
    EXPECT_EQ(WholeDateDiff(c.from, c.span, c.to, today), c.count) << c.from.toString(Qt::ISODate).toStdString();
  }
  EXPECT_EQ(AgeInYears(QDate(1990, 3, 2), today), 35);
  EXPECT_EQ(AgeInYears(QDate(2025, 6, 1), today), 1);  // a first year is told by the calendar years
  EXPECT_EQ(AgeInYears(QDate(), today), 0);
}

TEST(BasalRate, FollowsTheFourFormulas) {
  struct Case {
    double weight;
    int age, height, gender, UomID;
    double rate;
  };
  const Case cases[] = {
      // 180 x 13.75 / 2.2046 = 1122.6526; 70 x 5.003 x 2.54 = 889.5334; 1122.6526 + 66.5 + 889.5334 - 40 x 6.775
      {180, 40, 70, male, pounds, 1807.6860},
      // 150 x 9.563 / 2.2046 = 650.6623; 66 x 1.85 x 2.54 = 310.134; 650.6623 + 655.1 + 310.134 - 36 x 4.676
      {150, 36, 66, female, pounds, 1447.5603},
      {150, 36, 66, 0, pounds, 1447.5603},         // a gender that is not told counts as female
      {80, 30, 180, male, kilograms, 1863.79},     // 1100 + 66.5 + 900.54 - 203.25
      {65, 45, 170, female, kilograms, 1380.775},  // 621.595 + 655.1 + 314.5 - 210.42
      {80, 0, 180, male, kilograms, 2067.04}};
  for (const Case &c : cases) {
    EXPECT_NEAR(CalcBMR(c.weight, c.age, c.height, c.gender, c.UomID), c.rate, 0.00006) << c.weight << ", " << c.gender;
  }
}

TEST(BasalRate, OfADayTakesTheLatestWeightUpToIt) {
  TestSession session;  // a woman of 5 feet 6, born on the 1st of January 1990
  EXPECT_EQ(CalcBMR(*session, QDate(2026, 3, 1)), 0) << "no weight at all";
  session.Weigh(QDate(2026, 2, 10), 150);
  session.Weigh(QDate(2026, 2, 20), 140);
  EXPECT_EQ(CalcBMR(*session, QDate(2026, 2, 9)), 0) << "no weight yet";
  EXPECT_NEAR(CalcBMR(*session, QDate(2026, 2, 10)), 1447.5603, 0.0001);
  EXPECT_NEAR(CalcBMR(*session, QDate(2026, 2, 19)), 1447.5603, 0.0001);
  EXPECT_NEAR(CalcBMR(*session, QDate(2026, 3, 1)), 1447.5603 - 10 * 9.563 / 2.2046, 0.0001);
  // The age is the difference of the calendar years: a year later, on whatever day, one more.
  EXPECT_NEAR(CalcBMR(*session, QDate(2027, 1, 1)), 1447.5603 - 10 * 9.563 / 2.2046 - 4.676, 0.0001);
  session.Data().Execute("UPDATE people SET BirthDate=Null WHERE PersonID=1;");
  EXPECT_EQ(CalcBMR(*session, QDate(2026, 3, 1)), 0) << "no age can be told";
}

TEST(BodyFat, IsAFractionOfTheWeightAndNeverNegative) {
  struct Case {
    double waist, weight;
    int gender, UomID;
    double fraction;
  };
  const Case cases[] = {
      {36, 180, male, pounds, 0.201222},    // (-98.42 + 149.4 - 14.76) / 180 = 36.22 / 180
      {30, 150, female, pounds, 0.236267},  // (-76.76 + 124.5 - 12.3) / 150 = 35.44 / 150
      {30, 150, 0, pounds, 0.236267},
      {90, 80, male, kilograms, 0.193715},    // 176.368 lbs and 35.43307 in: (-98.42 + 147.04724 - 14.46218) / 176.368
      {75, 60, female, kilograms, 0.264090},  // 132.276 lbs and 29.52756 in: (-76.76 + 122.53937 - 10.84663) / 132.276
      {20, 180, male, pounds, 0},             // -98.42 + 83 - 14.76 is below 0
  };
  for (const Case &c : cases) {
    EXPECT_NEAR(CalcBodyFat(c.waist, c.weight, c.gender, c.UomID), c.fraction, 0.0000006)
        << c.waist << ", " << c.weight;
  }
  EXPECT_THROW(CalcBodyFat(36, 0, male, pounds), Error);
}

TEST(BodyFat, OfADayTakesTheProfilesGenderAndWeight) {
  TestSession session;
  session.Weigh(QDate(2026, 2, 10), 150);
  EXPECT_NEAR(CalcBodyFat(*session, 30, 999, 0, QDate(2026, 2, 11)), 0.236267, 0.000001);
  EXPECT_EQ(CalcBodyFat(*session, 30, 999, 0, QDate(2026, 2, 9)), 0) << "no weight yet";
  EXPECT_NEAR(CalcBodyFat(*session, 36, 180, male, QDate()), 0.201222, 0.000001);
}

}  // namespace
}  // namespace trimlog
