#include <gtest/gtest.h>

#include "journal/day/calorie_rules.h"
#include "journal/day/measurements.h"
#include "journal/day/net_calories_text.h"
#include "journal/day/water.h"
#include "platform/error.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QLocale pointLocale(QLocale::English, QLocale::UnitedStates);
const QLocale commaLocale(QLocale::German, QLocale::Germany);
const QDate visited(2026, 2, 10);

TEST(DayRules, MinutesScaleCaloriesOnlyWhereMinutesWereStored) {
  EXPECT_EQ(MinutesFactor(30, 45), 1.5);
  EXPECT_EQ(MinutesFactor(45, 30), 30.0 / 45);
  EXPECT_EQ(MinutesFactor(30, 0), 0);
  EXPECT_EQ(MinutesFactor(0, 30), 1);
}

TEST(DayRules, NetCaloriesInWords) {
  struct Case {
    std::optional<double> eaten, burned;
    int basal;
    bool withBasalRate;
    const char *text;
  };
  const Case cases[] = {
      {1449, 300, 1500, true, "-351 Net Calories       Net Cal = 1449 (Consumed) - 300 (Burned) - 1500 (BMR)"},
      {1449, 300, 1500, false, "1149 Net Calories       Net Cal = 1449 (Consumed) - 300 (Burned)"},
      {{}, {}, 0, true, "0 Net Calories       Net Cal = 0 (Consumed) - 0 (Burned) - 0 (BMR)"},
      {100.5, 33.25, 0, false, "67.25 Net Calories       Net Cal = 100.5 (Consumed) - 33.25 (Burned)"},
  };
  for (const Case &c : cases) {
    const QString text = NetCaloriesText({visited, c.eaten, c.burned, c.basal}, c.withBasalRate, pointLocale);
    EXPECT_EQ(text.toStdString(), c.text);
    const auto [figure, formula] = SplitNetCaloriesText(text);
    EXPECT_TRUE(figure.endsWith(QStringLiteral(" Net Calories")));
    EXPECT_TRUE(formula.startsWith(QStringLiteral("Net Cal = ")));
  }
  EXPECT_EQ(NetCaloriesText({visited, 100.5, {}, 0}, false, commaLocale).left(5).toStdString(), "100,5");
}

TEST(DayRules, GlassesNeverFallBelowNone) {
  struct Case {
    const char *text;
    double typed, more, less;
  };
  for (const Case &c :
       {Case{"3", 3, 4, 2}, Case{"0", 0, 1, 0}, Case{"", 0, 1, 0}, Case{"abc", 0, 1, 0}, Case{"-5", 0, 1, 0},
        Case{"1.5", 1.5, 2.5, 0.5}, Case{"0.5", 0.5, 1.5, 0}, Case{"1e9", 9999, 9999, 9998}}) {
    const QString text = QString::fromLatin1(c.text);
    EXPECT_EQ(GlassesOf(text, pointLocale), c.typed) << c.text;
    EXPECT_EQ(StepWater(text, true, pointLocale), c.more) << c.text;
    EXPECT_EQ(StepWater(text, false, pointLocale), c.less) << c.text;
  }
  EXPECT_EQ(GlassesOf(QStringLiteral("1,5"), commaLocale), 1.5);
}

PerMeasurement<QString> Texts(const std::array<const char *, 8> &texts) {
  PerMeasurement<QString> result;
  for (std::size_t i = 0; i < texts.size(); ++i) result[i] = QString::fromLatin1(texts[i]);
  return result;
}

TEST(DayRules, MeasurementDifferencesInBothUnits) {
  PreviousMeasurements previous;
  previous.values = {40, 36.255, 41, 13, 11, 23, 15, 22.5};
  const auto typed = Texts({"39.5", "36", "42", "13", "10.755", "0", "15.25", "21.125"});
  const auto inches = MeasurementDifferences(previous, typed, 1, pointLocale);
  const auto expectedInches = Texts({"0.50", "0.26", "-1.00", "0.00", "0.25", "23.00", "-0.25", "1.38"});
  const auto metric = MeasurementDifferences(previous, typed, 2, pointLocale);
  const auto expectedMetric = Texts({"0.5", "0.3", "-1.0", "0.0", "0.2", "23.0", "-0.3", "1.38"});
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(inches[i].toStdString(), expectedInches[i].toStdString()) << i;
    EXPECT_EQ(metric[i].toStdString(), expectedMetric[i].toStdString()) << i;
  }
  const auto broken = MeasurementDifferences(previous, Texts({"39", "", "1", "1", "1", "1", "1", "1"}), 1, pointLocale);
  EXPECT_EQ(broken[0].toStdString(), "1.00");
  for (std::size_t i = 1; i < 8; ++i) EXPECT_EQ(broken[i].toStdString(), "--") << i;
}

TEST(DayRules, TotalsOfMeasurementsTellWhatIsLost) {
  const auto totals = MeasurementTotals(Texts({"40", "36.5", "41", "", "11", "23", "15", "22.555"}),
                                        Texts({"38.25", "37", "41", "1", "x", "20", "14", "20"}), pointLocale);
  const auto expected = Texts({"1.75 ", "-0.50 ", "0.00 ", "-1.00 ", "11.00 ", "3.00 ", "1.00 ", "2.56 "});
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(totals[i].toStdString(), expected[i].toStdString()) << i;
}

class DayOfProfile : public testing::Test {
 protected:
  void Weigh(int person, const QDate &date, double weight) {
    session.Data().Execute(
        QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( ?, ?, ?, 0 );"),
        {person, date, weight});
  }
  TestSession session;
};

TEST_F(DayOfProfile, ListedCaloriesFollowTheWeightOfThatVeryDay) {
  session.AddProfile(2, QStringLiteral("Ann"));
  Weigh(1, visited.addDays(-1), 300);
  Weigh(2, visited, 300);
  EXPECT_EQ(BodyWeightFactor(*session, visited), 1) << "neither the day before nor another person";
  Weigh(1, visited, 180);
  EXPECT_EQ(BodyWeightFactor(*session, visited), 1.2);
  session->settings.UomID = 2;
  EXPECT_EQ(BodyWeightFactor(*session, visited), 180.0 / 68);

  EXPECT_EQ(CaloriesForBody(200, 1.2), 240);
  EXPECT_EQ(CaloriesForBody(50, 1.01), 50) << "halves go to the even neighbour";
  EXPECT_EQ(CaloriesForBody(50, 1.03), 52);
  EXPECT_THROW(CaloriesForBody(30000, 2), Error);
}

TEST_F(DayOfProfile, VisitingADayIsEnoughToHaveItsWater) {
  session.AddProfile(2, QStringLiteral("Ann"));
  for (int i = 0; i < 3; ++i) LoadWaterRecord(*session, visited.addDays(i), visited.addDays(i));
  const WaterRecord first = LoadWaterRecord(*session, visited, visited);
  EXPECT_EQ(first.RecordID, 1);
  SaveWater(*session, {first.RecordID, 3}, visited);
  EXPECT_EQ(LoadWaterRecord(*session, visited, visited.addDays(9)).WaterConsumed, 3);
  EXPECT_EQ(LoadWaterRecord(*session, visited.addDays(1), visited).WaterConsumed, 0);
  EXPECT_EQ(
      session.ValueOf(QStringLiteral("Count(*)"), QStringLiteral("other_daily_data"), QStringLiteral("PersonID=1"))
          .toStdString(),
      "3");

  session->profile.CurrentPersonID = QStringLiteral("2");
  EXPECT_EQ(LoadWaterRecord(*session, visited, visited).WaterConsumed, 0) << "another person's glass";
  EXPECT_EQ(LoadWaterRecord(*session, visited.addDays(20), visited.addDays(30)).RecordID, 2);
  EXPECT_EQ(session
                .ValueOf(QStringLiteral("ThisDate"), QStringLiteral("other_daily_data"),
                         QStringLiteral("PersonID=2 AND RecordID=2"))
                .toStdString(),
            visited.addDays(30).toString(Qt::ISODate).toStdString())
      << "the new row stands on the day that is shown";
}

TEST_F(DayOfProfile, PreviousMeasurementsAreTheLatestBefore) {
  EXPECT_EQ(LoadPreviousMeasurements(*session, visited).heading.toStdString(), "Previous (none)");
  const auto measure = [this](int id, const QDate &date, double waist) {
    session.Data().Execute(QStringLiteral("INSERT INTO measurements ( PersonID, RecordID, ThisDate, Chest, Waist, "
                                          "BodyFat ) VALUES ( 1, ?, ?, 40, ?, 20.5 );"),
                           {id, date, waist});
  };
  measure(1, visited.addDays(-2), 36);
  measure(2, visited.addDays(-40), 38);
  measure(3, visited, 35);
  const PreviousMeasurements previous = LoadPreviousMeasurements(*session, visited);
  EXPECT_EQ(previous.heading.toStdString(), "Previous (2/8/2026)");
  EXPECT_EQ(previous.values, (PerMeasurement<double>{40, 36, 0, 0, 0, 0, 0, 20.5}));
}

TEST_F(DayOfProfile, BodyFatComesOfTheWaistAndTheLatestWeight) {
  EXPECT_EQ(BodyFatFromWaist(*session, QStringLiteral("36"), visited).value().toStdString(), "0.00") << "no weight yet";
  Weigh(1, visited.addDays(-3), 180);
  session.Data().Execute(QStringLiteral("UPDATE people SET people.GenderID = 1 WHERE people.PersonID = 1;"));
  // (-98.42 + 4.15 x 36 - 0.082 x 180) / 180 = 20.12 %
  EXPECT_EQ(BodyFatFromWaist(*session, QStringLiteral("36"), visited).value().toStdString(), "20.12");
  EXPECT_FALSE(BodyFatFromWaist(*session, QStringLiteral("3x6"), visited));
}

}  // namespace
}  // namespace trimlog
