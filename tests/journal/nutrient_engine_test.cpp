#include <gtest/gtest.h>

#include "journal/day_totals.h"
#include "journal/nutrient_columns.h"
#include "journal/servings_rule.h"
#include "support/locales.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

/// The vocabulary with positions chosen by a test: {NutrientID, totalled}.
struct Position {
  int id = 0;
  bool total = true;
};
Nutrients Vocabulary(const std::vector<Position> &positions) {
  static const std::array<const char *, nutrientCount> fields = {
      "Calories",    "Carbs",          "Fat",           "Protein",        "Fiber",
      "Calcium",     "Iron",           "Sodium",        "Potassium",      "Zinc",
      "VitaminA",    "VitaminE",       "VitaminB6",     "VitaminB12",     "VitaminC",
      "SatFat",      "MonoFat",        "PolyFat",       "Cholesterol",    "Sugar",
      "Alcohol",     "CalFromFat",     "CalFromFatPct", "CalFromProtein", "CalFromProteinPct",
      "CalFromCarb", "CalFromCarbPct", "Custom1",       "Custom2",        "Custom3",
      "Custom4",     "Custom5",        "NetCarbs",      "SugarAlcohols",  "TransFat"};
  Nutrients nutrients;
  for (std::size_t i = 0; i < nutrientCount; ++i) {
    nutrients.NutrientDefs[i].fieldName = QString::fromLatin1(fields[i]);
    nutrients.NutrientDefs[i].shortUnit = QStringLiteral("g");
  }
  for (std::size_t i = 0; i < positions.size(); ++i) {
    nutrients.SelectedNutrients[i].NutrientID = positions[i].id;
    nutrients.SelectedNutrients[i].NutTotal = positions[i].total;
    nutrients.SelectedNutrients[i].description = QStringLiteral("N%1").arg(positions[i].id);
  }
  return nutrients;
}

FoodValues Food(const std::vector<std::pair<int, double>> &values) {
  FoodValues food;
  for (const auto &[id, value] : values) food.Set(id, value);
  return food;
}

double Stored(const EntryValues &values, int id) { return values.at(static_cast<std::size_t>(id - 1)); }

/// A day of rows as a grid would hold them.
class Rows final : public DayRows {
 public:
  int RowCount() const override { return static_cast<int>(cells.size()); }
  int CurrentRow() const override { return current; }
  QDate DateOf(int row) const override { return dates.at(static_cast<std::size_t>(row)); }
  QString CellText(int row, const QString &column) const override {
    return cells.at(static_cast<std::size_t>(row)).value(columns.indexOf(column));
  }
  QStringList columns{QStringLiteral("Nut1"), QStringLiteral("Nut2"), QStringLiteral("Nut3"), QStringLiteral("Nut4"),
                      QStringLiteral("Nut5")};
  std::vector<QDate> dates;
  std::vector<QStringList> cells;
  int current = -1;
};

const QDate today(2026, 3, 1);

TEST(NetCarbs, AreComputedAgainUnlessTheyWereTyped) {
  struct Case {
    const char *what;
    FoodValues food;
    double servings;
    double expected;
  };
  const std::vector<Case> cases = {
      // 10.4 and 10 agree as whole numbers: computed, so 10.4 x 2.5 = 26.
      {"differ only before rounding", Food({{2, 10.4}, {33, 10}}), 2.5, 26},
      // whole(8 - 2 - 1) = 5 is not 7: typed, 7 x 0.5 = 3.5, shown half away from zero.
      {"typed", Food({{2, 8}, {5, 2}, {34, 1}, {33, 7}}), 0.5, 4},
      // Computed: (8 - 2 - 1) x 0.5 = 2.5, halves to even.
      {"computed half", Food({{2, 8}, {5, 2}, {34, 1}, {33, 5}}), 0.5, 2},
      {"computed half above", Food({{2, 7}, {33, 7}}), 0.5, 4},
      {"Null counts as computed", Food({{2, 9}, {5, 1}}), 1, 8},
      // whole(10.5) = 10 (even), so 10 is the computed kind and 11 is not.
      {"even neighbour", Food({{2, 10.5}, {33, 10}}), 2, 21},
      {"other neighbour", Food({{2, 10.5}, {33, 11}}), 2, 22},
  };
  for (const Case &c : cases) EXPECT_EQ(ScaledNetCarbs(c.food, c.servings), c.expected) << c.what;
  EXPECT_THROW(ScaledNetCarbs(Food({{2, 40000}}), 1), Error);
}

TEST(NewEntry, ScalesRoundsAndLetsTheShownCellsDecide) {
  const Nutrients nutrients = Vocabulary({{1}, {23}, {28, true}, {29, false}, {33}, {4, false}, {6}});
  const FoodValues food = Food({{1, 101},
                                {2, 10.4},
                                {4, 3.335},
                                {6, 0.125},
                                {7, 0.0015},
                                {23, 31},
                                {27, 44},
                                {28, 2},
                                {29, 3},
                                {30, 5},
                                {33, 10}});
  const ShownCells shown = {"101", "31", "2.00", "3.00", "10", "3.34", "0.13", "", "", ""};
  const EntryValues values = NewEntryValues(nutrients, food, shown, 2.5, english);
  EXPECT_EQ(Stored(values, 1), 253) << "101 x 2.5 = 252.5, half away from zero";
  EXPECT_EQ(Stored(values, 2), 26) << "not shown: 10.4 x 2.5";
  EXPECT_EQ(Stored(values, 7), 0.004) << "0.0015 x 2.5 = 0.00375";
  EXPECT_EQ(Stored(values, 23), 31) << "a share never scales";
  EXPECT_EQ(Stored(values, 27), 44) << "nor when it is not shown";
  EXPECT_EQ(Stored(values, 28), 5) << "a custom nutrient shown with totals follows the servings";
  EXPECT_EQ(Stored(values, 29), 3) << "shown without totals it does not";
  EXPECT_EQ(Stored(values, 30), 5) << "not shown it does not";
  EXPECT_EQ(Stored(values, 33), 26) << "net carbs by their own rule";
  EXPECT_EQ(Stored(values, 4), 3.34) << "shown without totals: the cell as seen, unscaled";
  EXPECT_EQ(Stored(values, 6), 0.33) << "the shown 0.13 x 2.5 = 0.325, not the food's 0.125 x 2.5";
}

TEST(NewEntry, AShownTextThatIsNoNumberStoresZero) {
  const Nutrients nutrients = Vocabulary({{1}, {2}});
  const EntryValues values = NewEntryValues(nutrients, Food({{1, 50}, {2, 7}}), {"n/a", "7,25"}, 2, german);
  EXPECT_EQ(Stored(values, 1), 0);
  EXPECT_EQ(Stored(values, 2), 14.5) << "cells are read in the locale";
}

TEST(NewEntry, ZeroServingsLeaveSharesAndUnshownCustomValues) {
  const EntryValues values = NewEntryValues(Vocabulary({{1}}), Food({{1, 50}, {23, 30}, {28, 4}}), {"50"}, 0, english);
  EXPECT_EQ(Stored(values, 1), 0);
  EXPECT_EQ(Stored(values, 23), 30);
  EXPECT_EQ(Stored(values, 28), 4);
}

TEST(AdjustNutrients, FollowsServingsAndFoodAsThePositionsSay) {
  const Nutrients nutrients = Vocabulary({{1}, {2, false}, {25}, {33}, {0}, {7}});
  const FoodValues food = Food({{1, 101}, {2, 10.4}, {25, 12}, {33, 10}, {7, 1.5}});
  const ShownCells before = {"1", "2", "3", "4", "", "6", "", "", "", ""};

  const ShownCells servings = AdjustNutrientValues(nutrients, food, before, 2.5, false, english);
  EXPECT_EQ(servings, (ShownCells{"253", "2", "12", "26", "", "3.750", "", "", "", ""}));

  const ShownCells changed = AdjustNutrientValues(nutrients, food, before, 2.5, true, german);
  EXPECT_EQ(changed[1], "10,40") << "a position without totals takes the new food's value, unscaled";
  EXPECT_EQ(changed[5], "3,750");
}

TEST(NutrientColumns, CarryFieldCaptionAndPattern) {
  const auto columns = SetMealFields(Vocabulary({{7}, {28}, {35}, {0}}));
  EXPECT_EQ(columns[0].caption, "N7\n(g)");
  EXPECT_EQ(columns[0].dataField, "Iron");
  EXPECT_EQ(columns[0].pattern, "0.000");
  EXPECT_EQ(columns[1].caption, "N28");
  EXPECT_EQ(columns[2].caption, "N35\n(Est. g)");
  EXPECT_TRUE(columns[3].dataField.isEmpty() && columns[3].caption.isEmpty());
}

TEST(NewEntry, WhatNoNumberCanHoldIsTold) {
  const Nutrients nutrients = Vocabulary({{1}});
  const FoodValues food = Food({{1, 500}, {2, 60}});
  EXPECT_THROW(NewEntryValues(nutrients, food, {"500"}, 1e308, english), Error);
  EXPECT_THROW(AdjustNutrientValues(nutrients, food, {"500"}, 1e308, false, english), Error);
}

TEST(DayTotals, SumTheRowsOfTheCurrentDayAndNoOthers) {
  const Nutrients nutrients = Vocabulary({{1}, {7}, {28, false}, {0}, {2}});
  Rows rows;
  rows.dates = {today.addDays(1), today, today, today, today.addDays(-1), today};
  rows.cells = {{"1000", "9", "9", "", "9"},    {"100", "1.25", "1", "", "0.1"}, {"200", "", "2", "", "0.2"},
                {"300", "0.005", "3", "", "x"}, {"5000", "9", "9", "", "9"},     {"7000", "9", "9", "", "9"}};
  rows.current = 2;
  const auto sums = SumMeals(rows, today, english);
  const ShownCells totals = TotalsRow(nutrients, sums, {}, english);
  EXPECT_EQ(totals, (ShownCells{"600", "1.255", "", "", "0.30", "", "", "", "", ""}))
      << "the walk stops at the first row of another day";

  rows.current = 0;
  EXPECT_EQ(SumMeals(rows, today.addDays(1), english)[0], 1000) << "the first row is a day as well";
  rows.current = -1;
  EXPECT_EQ(TotalsRow(nutrients, SumMeals(rows, today, english), {}, english)[0], "0");
  rows.dates = std::vector<QDate>(6, today);
  EXPECT_EQ(TotalsRow(nutrients, SumMeals(rows, today, english), {}, english)[0], "13600")
      << "on the row for new entries the day's rows still count";
}

TEST(DayTotals, SharesComeFromTheStoredSums) {
  const Nutrients nutrients = Vocabulary({{23}, {25}, {27, false}, {27}});
  const std::array<double, shownNutrients> plain = {60, 40, 20, 20};
  const CalorieSums sums{true, 800, 300, 100, 404};
  // 300 / 800 = 37.5 and 100 / 800 = 12.5: halves to even.
  EXPECT_EQ(TotalsRow(nutrients, plain, sums, english), (ShownCells{"38", "12", "", "50"}));
  EXPECT_EQ(TotalsRow(nutrients, plain, {}, english), (ShownCells{"60", "40", "", "20"})) << "nothing stored";
  EXPECT_EQ(TotalsRow(nutrients, plain, {true, 0, 1, 1, 1}, english)[0], "60") << "no calories stored";
}

TEST(DayTotals, TargetsSayOverOrUnder) {
  Nutrients nutrients = Vocabulary({{1}, {2}, {7}, {4}, {0}, {28, false}});
  nutrients.NutrientTargets[0] = 2000;
  nutrients.NutrientTargets[1] = 50;
  nutrients.NutrientTargets[6] = 18;
  nutrients.NutrientTargets[27] = 5;
  const ShownCells totals = {"2100", "50.00", "3.250", "80.00", "", "", "", "", "", ""};
  const ShownCells previous = {"a", "b", "c", "d", "e", "stays", "", "", "", ""};
  EXPECT_EQ(TargetsRow(nutrients, totals, previous, english),
            (ShownCells{"+100", "-0.00", "-14.750", "", "", "stays", "", "", "", ""}));
}

TEST(DayTotals, AWholeDayOfSixFoodsFromTheFile) {
  TestSession session;
  FillNutrientDefinitions(session->nutrients, session.Data());
  session->nutrients.SelectedNutrients = Vocabulary({{1}, {23}, {25}}).SelectedNutrients;
  Rows rows;
  // Calories 100, 150 ... 350; the sixth is edited to 400 and not saved.
  for (int i = 0; i < 6; ++i) {
    const int calories = 100 + 50 * i;
    session.Data().Execute(
        QStringLiteral(
            "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, "
            "CalFromFat, CalFromProtein, CalFromCarb, IsPlanned ) SELECT 1 AS E1, ? AS E2, #3/1/2026# AS E3, "
            "1 AS E4, 1 AS E5, \"1\" AS E6, ? AS E7, ? AS E8, 27 AS E9, 0 AS E10, ? AS E11;"),
        {i + 1, calories, calories / 2, false});
    rows.dates.push_back(today);
    rows.cells.push_back({QString::number(calories), QStringLiteral("50"), QStringLiteral("10")});
  }
  session.Data().Execute(QStringLiteral(
      "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, CalFromFat, "
      "CalFromProtein, CalFromCarb, IsPlanned ) SELECT 1 AS E1, 7 AS E2, #3/1/2026# AS E3, 1 AS E4, 1 AS E5, "
      "\"1\" AS E6, 900 AS E7, 900 AS E8, 0 AS E9, 0 AS E10, True AS E11;"));
  session.Data().Execute(QStringLiteral(
      "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, CalFromFat, "
      "CalFromProtein, CalFromCarb, IsPlanned ) SELECT -1 AS E1, 9007 AS E2, #3/1/2026# AS E3, 1 AS E4, 1 AS E5, "
      "\"1\" AS E6, 900 AS E7, 900 AS E8, 0 AS E9, 0 AS E10, False AS E11;"));
  session->nutrients.NutrientTargets[0] = 1500;
  const MealsOfDay eaten{rows, today, EntryKind::Eaten, {"", "", "12"}};
  rows.current = 5;
  rows.cells[5][0] = QStringLiteral("400");
  const DayTotals day = UpdateGridTotals(*session, eaten);
  EXPECT_EQ(day.totals[0], "1400") << "1350 stored, 50 more not yet saved";
  EXPECT_EQ(day.totals[1], "50") << "from the stored 675 of 1350; neither the plan nor someone else's food counts";
  EXPECT_EQ(day.totals[2], "12") << "6 x 27 of 1350 calories";
  EXPECT_EQ(day.targets[0], "-100");
  EXPECT_EQ(UpdateGridTotals(*session, {rows, today, EntryKind::Planned, {}}).totals[1], "100");

  rows.current = -1;
  rows.dates.clear();
  rows.cells.clear();
  EXPECT_EQ(UpdateGridTotals(*session, {rows, today.addDays(1), EntryKind::Eaten, {}}).targets[0], "-1500")
      << "an empty day is held against the whole target";
}

TEST(DayTotals, OfExercisesAreTheirCaloriesAndMinutes) {
  Rows rows;
  rows.columns = QStringList{QStringLiteral("Duration"), QStringLiteral("Calories")};
  rows.dates = {today, today, today, today.addDays(-1)};
  rows.cells = {{"30", "150,5"}, {"45", "200"}, {"", "x"}, {"60", "900"}};
  rows.current = 1;
  const ExerciseTotals totals = SumExercises(rows, today, german);
  EXPECT_EQ(totals.calories, 350.5);
  EXPECT_EQ(totals.minutes, 75);
}

}  // namespace
}  // namespace trimlog
