#include <gtest/gtest.h>

#include "catalogs/daily_values.h"
#include "catalogs/food_catalog.h"
#include "catalogs/food_derived.h"
#include "catalogs/food_lists.h"
#include "catalogs/nutrient_selection.h"
#include "platform/store/recordset.h"
#include "support/locales.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

class Foods : public ::testing::Test {
 protected:
  Foods() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
  }
  QStringList Names(const GridSource &source) {
    QStringList names;
    const GridStatement keys = KeysStatement(source);
    Recordset rows = session.Data().OpenRecordset(keys.sql, keys.params);
    for (; !rows.Eof(); rows.MoveNext()) names.append(ReadFood(*session, rows.Field(0).toInt()).MealDesc);
    return names;
  }
  int Count(const GridSource &source) {
    const GridStatement count = CountStatement(source);
    return session.Data().OpenRecordset(count.sql, count.params).Field(0).toInt();
  }
  int Add(const QString &name, int kind = food_kind::myFoods) {
    FoodRecord food;
    food.MealDesc = name;
    food.MealGroupID = 1;
    const int mealID = AddFood(*session, food);
    session.Data().Execute("UPDATE meals_list SET RecordTypeID = ? WHERE (MealID=?);", {kind, mealID});
    return mealID;
  }
  void Eat(int mealID, const QDate &date, int person = 1, bool planned = false) {
    session.Data().Execute(
        "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, IsPlanned ) "
        "VALUES ( ?, ?, ?, 1, ?, \"1\", ? );",
        {person, ++records, date, mealID, planned});
  }
  TestSession session;
  int records = 0;
};

TEST_F(Foods, ListsShowWhatTheyNameAndNeverRecipes) {
  Add("A recipe", food_kind::recipe);
  Add("A header", food_kind::hidden);
  const int mine = Add("My soup");
  EXPECT_EQ(Count(FoodListSource({})), 8792);
  EXPECT_EQ(Count(FoodListSource({.list = food_kind::preLoaded})), 8791);
  EXPECT_EQ(Names(FoodListSource({.list = food_kind::myFoods})), QStringList{"My soup"});
  EXPECT_EQ(Count(FoodListSource({.list = food_kind::myFoods, .group = 2})), 0);
  EXPECT_GT(Count(FoodListSource({.group = 7})), 100);

  Eat(mine, QDate(2026, 2, 16));
  Eat(1, QDate(2026, 2, 15));          // fifteen days ago
  Eat(2, QDate(2026, 3, 5), 1, true);  // planned counts
  session->profile.CurrentPersonID = "-2";
  FillRecentFoods(*session);
  session->profile.CurrentPersonID = "1";
  FillRecentFoods(*session);
  const QStringList recent = Names(FoodListSource({.list = food_list::recent}));
  EXPECT_EQ(recent.size(), 2);
  EXPECT_TRUE(recent.contains("My soup"));
}

TEST_F(Foods, SortsByNutrientAndThenByName) {
  const QStringList lowest = Names({.table = "meals_list",
                                    .key = "MealID",
                                    .where = "(MealGroupID = 7)",
                                    .order = FoodListSource({.sort = "Fat"}).order});
  const QStringList highest = Names({.table = "meals_list",
                                     .key = "MealID",
                                     .where = "(MealGroupID = 7)",
                                     .order = FoodListSource({.sort = "-Fat"}).order});
  EXPECT_EQ(session.ValueOf("Fat", "meals_list", "MealDesc=\"" + lowest.first() + "\""), "0");
  const QList<FoodSortChoice> choices = FoodSortChoices(session->nutrients);
  EXPECT_EQ(choices.size(), 1 + 1 + 10 + 1 + 10);
  EXPECT_EQ(choices[2].key, "Calories");
  EXPECT_EQ(choices[2].text, "Cals (Lowest)");
  EXPECT_EQ(choices.last().key.front(), QLatin1Char('-'));
  EXPECT_TRUE(choices[1].IsSeparator() && choices[12].IsSeparator());
  EXPECT_NE(highest.first(), lowest.first());
}

TEST_F(Foods, TheWordSearchTakesWordsInAnyOrder) {
  const QStringList forward = Names(FoodSearchSource("cheddar cheese"));
  EXPECT_FALSE(forward.isEmpty());
  EXPECT_EQ(Names(FoodSearchSource("  CHEESE   \"Cheddar\" ")), forward);
  for (const QString &name : forward) {
    EXPECT_TRUE(name.contains("cheddar", Qt::CaseInsensitive) && name.contains("cheese", Qt::CaseInsensitive));
  }
  EXPECT_TRUE(Names(FoodSearchSource("  ")).isEmpty());
  EXPECT_TRUE(Names(FoodSearchSource("\"\"")).isEmpty());
  Add("O'Brien's 100% [odd] *food* #1");
  for (const char *odd : {"o'brien's", "100%", "[odd]", "*food*", "#1"}) {
    EXPECT_EQ(Names(FoodSearchSource(odd)).size(),
              odd == QByteArrayView("#1") || odd == QByteArrayView("100%") ? Names(FoodSearchSource(odd)).size() : 1)
        << odd;
    EXPECT_TRUE(Names(FoodSearchSource(odd)).contains("O'Brien's 100% [odd] *food* #1")) << odd;
  }
  EXPECT_EQ(FoodsFoundHeading(0), "Food Description  (0 foods found)");
}

TEST_F(Foods, TheAlphabetGoesOnToTheNextLetter) {
  const auto criteria = AlphabetCriteria(QLatin1Char('x'));
  ASSERT_EQ(criteria.size(), 3);
  EXPECT_EQ(criteria[0].params.first().toString(), "X");
  EXPECT_EQ(criteria[2].params.first().toString(), "Z");
}

TEST_F(Foods, ACopyIsTheUsersOwnWithoutServingAndSource) {
  const int original = session.ValueOf("MealID", "meals_list", "USDANum=\"01009\"").toInt();
  const int copy = CopyFood(*session, original);
  const FoodRecord from = ReadFood(*session, original);
  const FoodRecord to = ReadFood(*session, copy);
  EXPECT_EQ(to.MealDesc, from.MealDesc);
  EXPECT_EQ(to.RecordTypeID, food_kind::myFoods);
  EXPECT_TRUE(to.Amount.isEmpty() && !to.GIValue);
  for (int id = 1; id <= nutrientCount; ++id) EXPECT_EQ(to.nutrients.At(id), from.nutrients.At(id)) << id;
}

TEST_F(Foods, WhatIsStoredIsWhatIsShown) {
  FoodRecord food;
  food.MealDesc = "12\" sub";
  food.nutrients.Set(1, 100.5);
  food.nutrients.Set(2, 1.005);
  food.nutrients.Set(7, -0.0005);
  const int mealID = AddFood(*session, food);
  FoodRecord stored = ReadFood(*session, mealID);
  EXPECT_EQ(stored.MealDesc, "12'' sub");
  EXPECT_EQ(stored.nutrients.At(1), 101);
  EXPECT_EQ(stored.nutrients.At(2), 1.01);
  EXPECT_EQ(stored.nutrients.At(7), -0.001);
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", QStringLiteral("MealID=%1").arg(mealID)), "0");
  stored.MealDesc = QString(10000, QLatin1Char('x'));
  EXPECT_THROW(SaveFood(*session, stored), Error) << "no description is cut short silently";
  stored.MealDesc = "Sub";
  SaveFood(*session, stored);
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", QStringLiteral("MealID=%1").arg(mealID)), "-1");
}

TEST_F(Foods, DeletingAFoodTakesItsEntriesAlong) {
  const int mine = Add("Gone soon");
  Eat(mine, QDate(2026, 3, 1));
  session.Data().Execute("DELETE meals_list.*, meals_list.MealID FROM meals_list WHERE (meals_list.MealID=?);", {mine});
  EXPECT_EQ(session.ValueOf("RecordID", "meals", QStringLiteral("MealID=%1").arg(mine)), "");
}

TEST(FoodDerived, KeepsFieldsInStep) {
  EXPECT_EQ(DerivedNetCarbs("10.5", "0", "", english), "10") << "halves to even";
  EXPECT_EQ(DerivedNetCarbs("11,5", "", "", german), "12");
  EXPECT_EQ(DerivedNetCarbs("1", "5", "x", english), "0");
  struct Case {
    const char *grams;
    int factor;
    const char *calories;
    const char *expected;
    const char *percent;
  };
  // 0.5 g x 9 = 4.5 -> 4; 4 / 100 = 4 %. 2.5 x 9 = 22.5 -> 22; 22 / 176 = 12.5 % -> 12.
  const std::vector<Case> cases = {{"0.5", 9, "100", "4", "4"}, {"2.5", 9, "176", "22", "12"},
                                   {"10", 4, "", "0", "0"},     {"10", 4, "abc", "0", "0"},
                                   {"10", 4, "0", "0", "0"},    {"10", 4, "100", "40", "40"}};
  for (const Case &c : cases) {
    const CaloriesFrom from = DerivedCalories(c.grams, c.factor, c.calories, english);
    EXPECT_EQ(from.calories, c.expected) << c.grams;
    EXPECT_EQ(from.percent, c.percent) << c.grams;
  }
  EXPECT_THROW(DerivedCalories("1e6", 9, "100", english), Error);

  const CalorieFields present{{"7", "0"}, {"", ""}, {"0", "3"}};
  EXPECT_TRUE(HoldsCalorieValues(present, english));
  EXPECT_FALSE(HoldsCalorieValues({{"0", ""}, {"", ""}, {"", "x"}}, english));
  const CalorieFields filled = CalculatedCalories(present, "1", "2", "3", "100", false, english);
  EXPECT_EQ(filled.fat.calories, "7") << "No keeps what is above 0";
  EXPECT_EQ(filled.fat.percent, "9");
  EXPECT_EQ(filled.protein.percent, "3");
  EXPECT_EQ(CalculatedCalories(present, "1", "2", "3", "100", true, english).fat.calories, "9");
}

TEST_F(Foods, DailyValuesComeFromTheReferenceSet) {
  EXPECT_EQ(DailyValueLabel(session->nutrients, 3), "Total Fat (%):");
  EXPECT_EQ(DailyValueLabel(session->nutrients, 11), "Vitamin A (%):");
  EXPECT_EQ(AmountFromDailyValue(*session, 3, 100), "65.00");
  EXPECT_EQ(AmountFromDailyValue(*session, 7, 12.5), "2.250");
  session.Data().Execute("UPDATE nutrition_targets SET Iron = Null WHERE (TargetID=1);");
  EXPECT_EQ(AmountFromDailyValue(*session, 7, 50), "0.000");
}

TEST_F(Foods, TheSelectionIsStoredForTheWholeFile) {
  NutrientSelection selection = ReadNutrientSelection(*session);
  selection[0] = {28, "My \"own\"", true, {}};
  selection[9] = {};
  SaveNutrientSelection(*session, selection);
  EXPECT_EQ(session->nutrients.SelectedNutrients[0].description, "My \"own\"");
  EXPECT_EQ(session->nutrients.SelectedNutrients[9].NutrientID, 0);
  EXPECT_EQ(SelectableNutrients(*session).size(), 36);
  EXPECT_EQ(SelectableNutrients(*session).first().descriptionPlusUnit, "None");
  EXPECT_FALSE(HandheldHoldsFoods(*session));
}

}  // namespace
}  // namespace trimlog
