#include "catalogs/food_lists.h"
#include "catalogs/daily_values.h"
#include "catalogs/food_columns.h"
#include "catalogs/food_derived.h"
#include "catalogs/food_search.h"
#include "catalogs/nutrient_groups.h"
#include "catalogs/nutrient_selection.h"
#include "foods_fixture.h"
#include "support/locales.h"

namespace trimlog {
namespace {

class FoodLists : public Foods {
 protected:
  QStringList Names(const GridSource &source) {
    QStringList names;
    const GridStatement keys = KeysStatement(source);
    Recordset rows = session.Data().OpenRecordset(keys.sql, keys.params);
    for (; !rows.Eof(); rows.MoveNext()) names.append(ReadFood(*session, rows.Field(0).toInt()).MealDesc);
    return names;
  }
  QStringList Found(const QString &words) { return Names(FoodSearchSource(SetupFoodLists(), words)); }
  QStringList Listed(const FoodSelection &selection) { return Names(FoodListSource(SetupFoodLists(), selection)); }
  int Count(const FoodSelection &selection) {
    const GridStatement count = CountStatement(FoodListSource(SetupFoodLists(), selection));
    return session.Data().OpenRecordset(count.sql, count.params).Field(0).toInt();
  }
};

TEST_F(FoodLists, ShowWhatTheyNameAndNeverRecipes) {
  Add("Qwx recipe", food_kind::recipe);
  Add("Qwx header", food_kind::hidden);
  const int mine = Add("My soup");
  const int other = Add("Other soup", food_kind::myFoods, 7);
  struct Case {
    FoodSelection selection;
    int rows;
  };
  const int inGroup = session.ValueOf("Count(*) AS N", "meals_list", "MealGroupID=7").toInt();
  const std::vector<Case> cases = {{{}, 8793},
                                   {{.list = food_kind::preLoaded}, 8791},
                                   {{.list = food_kind::myFoods}, 2},
                                   {{.list = food_kind::myFoods, .group = 7}, 1},
                                   {{.group = 7}, inGroup},
                                   {{.list = food_kind::preLoaded, .group = 7}, inGroup - 1}};
  for (const Case &c : cases) {
    EXPECT_EQ(Count(c.selection), c.rows) << c.selection.list << " " << c.selection.group;
    EXPECT_EQ(Listed(c.selection).size(), c.rows) << c.selection.list << " " << c.selection.group;
  }
  EXPECT_EQ(Listed({.list = food_kind::myFoods}), (QStringList{"My soup", "Other soup"}));
  EXPECT_EQ(Found("qwx"), QStringList());

  session.AddProfile(2, "Another person");
  Eat(mine, QDate(2026, 2, 16));       // the fourteenth day
  Eat(1, QDate(2026, 2, 15));          // the fifteenth
  Eat(2, QDate(2026, 3, 5), 1, true);  // planned counts
  Eat(2, QDate(2026, 3, 1));           // and once is enough
  Eat(other, QDate(2026, 3, 1), 2);    // another person's
  session->profile.CurrentPersonID = "-2";
  FillRecentFoods(*session);
  session->profile.CurrentPersonID = "1";
  FillRecentFoods(*session);
  EXPECT_EQ(Listed({.list = food_list::recent}), (QStringList{ReadFood(*session, 2).MealDesc, "My soup"}));
}

TEST_F(FoodLists, SortByNutrientAndThenByName) {
  const auto fats = [this](const QString &sort) {
    QList<double> values;
    const GridStatement keys = KeysStatement(FoodListSource(SetupFoodLists(), {.group = 7, .sort = sort}));
    Recordset rows = session.Data().OpenRecordset(keys.sql, keys.params);
    for (; !rows.Eof(); rows.MoveNext()) {
      values.append(ReadFood(*session, rows.Field(0).toInt()).nutrients.OrZero(nutrient_id::fat));
    }
    return values;
  };
  const QList<double> lowest = fats("Fat"), highest = fats("-Fat");
  EXPECT_TRUE(std::is_sorted(lowest.begin(), lowest.end()));
  EXPECT_TRUE(std::is_sorted(highest.rbegin(), highest.rend()));
  EXPECT_LT(lowest.first(), highest.first());

  for (const char *key : {"0", "Fat", "-Fat", "-MealDesc", "Amount"}) {
    EXPECT_EQ(SortKeyOf(SetupFoodLists(), FoodListSource(SetupFoodLists(), {.sort = key})), key);
  }
  const QList<FoodSortChoice> choices = FoodSortChoices(session->nutrients);
  ASSERT_EQ(choices.size(), 1 + 1 + 10 + 1 + 10);
  EXPECT_EQ(choices[2].key, "Calories");
  EXPECT_EQ(choices[2].text, "Cals (Lowest)");
  EXPECT_EQ(choices[13].key, "-Calories");
  EXPECT_EQ(choices[13].text, "Cals (Highest)");
  for (int i = 0; i < choices.size(); ++i) EXPECT_EQ(choices[i].IsSeparator(), i == 1 || i == 12) << i;

  const GridColumns columns = FoodColumns(*session, "ddn");
  QStringList names;
  for (const GridColumn &column : columns) names.append(column.name);
  EXPECT_EQ(names.join(' '),
            "Qlt MealDesc Amount MealGroupID GIValue Nut1 Nut2 Nut3 Nut4 Nut5 Nut6 Nut7 Nut8 Nut9 Nut10 IsModified "
            "Dummy RecordTypeID MealID");
  EXPECT_EQ(SortedByText(columns, "GIValue"), "GI Value");
  EXPECT_EQ(SortedByText(columns, "-Amount"), "Serving Size (descending)");
  EXPECT_TRUE(IsSortShown(columns, "-Fat"));
  EXPECT_FALSE(IsSortShown(columns, "VitaminB12"));
}

TEST_F(FoodLists, TheGridRefusesWhatNoFoodHas) {
  session->nutrients.SelectedNutrients[9] = {nutrient_id::netCarbs, "Net Carbs", true, {}};
  const GridColumns columns = FoodColumns(*session, "ddn");
  for (const auto &[name, typed, fine] :
       std::initializer_list<std::tuple<const char *, Value, bool>>{{"MealDesc", " ", false},
                                                                    {"MealDesc", "Soup", true},
                                                                    {"Nut1", Value(), true},
                                                                    {"Nut1", -1, false},
                                                                    {"Nut1", 0, true},
                                                                    {"Nut1", 1000000, true},
                                                                    {"Nut1", 1000001, false},
                                                                    {"Nut10", Value(), true},
                                                                    {"Nut10", -1, false},
                                                                    {"Nut10", 0, true},
                                                                    {"Nut10", 32767, true},
                                                                    {"Nut10", 32768, false}}) {
    const auto column = std::ranges::find(columns, QString(name), &GridColumn::name);
    ASSERT_TRUE(column != columns.end() && column->validate) << name;
    EXPECT_EQ(column->validate(typed).isEmpty(), fine) << name << " " << typed.toString();
  }
}

TEST_F(FoodLists, ASelectionThatHoldsAFoodIsNearToThePresentOne) {
  FoodRecord food;
  food.MealGroupID = 7;
  struct Case {
    FoodSelection present;
    int list, group;
  };
  const std::vector<Case> cases = {{{}, food_list::all, allFoodGroups},
                                   {{.list = food_kind::preLoaded, .group = 3}, food_kind::myFoods, 7},
                                   {{.list = food_list::recent}, food_kind::myFoods, allFoodGroups},
                                   {{.group = 3, .sort = "Fat"}, food_list::all, 7}};
  for (const Case &c : cases) {
    const FoodSelection holding = SelectionHolding(food, c.present);
    EXPECT_EQ(holding.list, c.list);
    EXPECT_EQ(holding.group, c.group);
    EXPECT_EQ(holding.sort, c.present.sort);
  }
}

TEST_F(FoodLists, TheWordSearchTakesWordsInAnyOrder) {
  const QStringList forward = Found("cheddar cheese");
  EXPECT_FALSE(forward.isEmpty());
  EXPECT_EQ(Found("  CHEESE   \"Cheddar\" "), forward);
  for (const QString &name : forward) {
    EXPECT_TRUE(name.contains("cheddar", Qt::CaseInsensitive) && name.contains("cheese", Qt::CaseInsensitive));
  }
  EXPECT_TRUE(Found("  ").isEmpty());
  EXPECT_TRUE(Found("\"\"").isEmpty());
  const QString odd = "O'Brien's 100% [odd] *food* #1";
  Add(odd);
  for (const char *word : {"o'brien's", "[odd]", "*food*", "o'brien's 100% #1"}) {
    EXPECT_EQ(Found(word), QStringList{odd}) << word;
  }
  EXPECT_EQ(FoodsFoundHeading(0), "Food Description  (0 foods found)");
  EXPECT_NE(NothingFoundHint(""), NothingFoundHint("x"));
}

TEST_F(FoodLists, AnyNumberOfSearchWordsHasAnAnswer) {
  QStringList words, letters;
  for (int i = 0; i < 1000; ++i) words.append(QStringLiteral("word%1x").arg(i));
  EXPECT_TRUE(Found(words.join(' ')).isEmpty()) << "no name holds so many";
  EXPECT_EQ(Found(QStringList(1000, "cheddar").join(' ')), Found("cheddar")) << "repeated words count once";
  EXPECT_EQ(Found("c ch che ched chedd chedda cheddar cheese"), Found("cheddar cheese"));
  // As many words as one name can hold, one beginning at each of its characters.
  QString longest;
  for (int i = 0; i < 255; ++i) longest += QChar(0x4e00 + i);
  for (const QChar letter : longest) letters.append(letter);
  Add(longest);
  EXPECT_EQ(Found(letters.join(' ')), QStringList{longest});
  letters.append(QChar(0x5e00));
  EXPECT_TRUE(Found(letters.join(' ')).isEmpty());
}

TEST_F(FoodLists, TheAlphabetGoesOnToTheNextLetter) {
  const auto letters = [](char first) {
    QString tried;
    for (const GridStatement &criterion : AlphabetCriteria(SetupFoodLists(), food_list::all, QLatin1Char(first))) {
      tried += criterion.params.first().toString();
    }
    return tried;
  };
  EXPECT_EQ(letters('x'), "XYZ");
  EXPECT_EQ(letters('A'), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
}

TEST_F(FoodLists, HeadingsAndHints) {
  EXPECT_EQ(FoodsDisplayedHeading(2, true), "Food Description                        2 Foods Displayed");
  EXPECT_EQ(FoodsDisplayedHeading(2, false), "Food Description" + QString(85, ' ') + "2 Foods Displayed");
  EXPECT_EQ(PrintedFoodListTitle("My Foods", "Fish"), "Food List: My Foods     Food Group: Fish");
  EXPECT_EQ(PrintedSearchTitle("cheese"), "Food Search Results for: cheese");
  EXPECT_TRUE(EmptyListHint(SetupFoodLists(), {.list = food_list::recent}).contains("14 days"));
  EXPECT_TRUE(EmptyListHint(SetupFoodLists(), {.list = food_kind::myFoods}).contains("New"));
  for (const FoodSelection &elsewhere : {FoodSelection{.list = food_kind::myFoods, .group = 7}, FoodSelection{}}) {
    EXPECT_TRUE(EmptyListHint(SetupFoodLists(), elsewhere).contains("group"));
  }
}

TEST(FoodDerived, KeepsFieldsInStep) {
  EXPECT_EQ(DerivedNetCarbs("10.5", "0", "", us), "10") << "halves to even";
  EXPECT_EQ(DerivedNetCarbs("11,5", "", "", german), "12");
  EXPECT_EQ(DerivedNetCarbs("1", "5", "x", us), "0");
  struct Case {
    const char *grams;
    int factor;
    const char *calories, *expected, *percent;
  };
  // 0.5 g x 9 = 4.5 -> 4; 4 / 100 = 4 %. 2.5 x 9 = 22.5 -> 22; 22 / 176 = 12.5 % -> 12.
  const std::vector<Case> cases = {{"0.5", 9, "100", "4", "4"}, {"2.5", 9, "176", "22", "12"},
                                   {"10", 4, "", "0", "0"},     {"10", 4, "abc", "0", "0"},
                                   {"10", 4, "0", "0", "0"},    {"1.5", 9, "200", "14", "7"},
                                   {"4", 9, "95", "36", "38"},  {"10", 4, "100", "40", "40"}};
  for (const Case &c : cases) {
    const CaloriesFrom from = DerivedCalories(c.grams, c.factor, c.calories, us);
    EXPECT_EQ(from.calories, c.expected) << c.grams;
    EXPECT_EQ(from.percent, c.percent) << c.grams;
  }
  EXPECT_THROW(DerivedCalories("1e6", 9, "100", us), Error);

  const CalorieFields present{{"7", "0"}, {"", ""}, {"0", "3"}};
  EXPECT_TRUE(HoldsCalorieValues(present, us));
  EXPECT_FALSE(HoldsCalorieValues({{"0", ""}, {"", ""}, {"", "x"}}, us));
  const CalorieFields filled = CalculatedCalories(present, "1", "2", "3", "100", false, us);
  EXPECT_EQ(filled.fat.calories, "7") << "No keeps what is above 0";
  EXPECT_EQ(filled.fat.percent, "9");
  EXPECT_EQ(filled.protein.percent, "3");
  EXPECT_EQ(CalculatedCalories(present, "1", "2", "3", "100", true, us).fat.calories, "9");
}

TEST_F(Foods, DailyValuesComeFromTheReferenceSet) {
  QStringList labels;
  for (const int id : dailyValueNutrients) labels.append(DailyValueLabel(session->nutrients, id));
  EXPECT_EQ(labels.join(' '),
            "Total Fat (%): Saturated Fat (%): Cholesterol (%): Sodium (%): Potassium (%): Carbs (%): Fiber (%): "
            "Protein (%): Vitamin A (%): Vitamin C (%): Calcium (%): Iron (%): Vitamin E (%): Vitamin B6 (%): "
            "Vitamin B12 (%): Zinc (%):");
  EXPECT_EQ(AmountFromDailyValue(*session, 3, 100), "65.00");
  EXPECT_EQ(AmountFromDailyValue(*session, 7, 12.5), "2.250");
  session.Data().Execute("UPDATE nutrition_targets SET Fat = 1 WHERE (TargetID<>1);");
  EXPECT_EQ(AmountFromDailyValue(*session, 3, 50), "32.50");
  session.Data().Execute("UPDATE nutrition_targets SET Iron = Null WHERE (TargetID=1);");
  EXPECT_EQ(AmountFromDailyValue(*session, 7, 50), "0.000");
}

TEST_F(Foods, TheGroupsHoldEveryNutrientOnceUnderItsLabel) {
  QList<int> all;
  for (const NutrientGroup &group : NutrientGroups()) all += group.nutrientIDs;
  EXPECT_EQ(all.size(), nutrientCount);
  std::sort(all.begin(), all.end());
  for (int i = 0; i < all.size(); ++i) EXPECT_EQ(all[i], i + 1);
  // The labels follow the identifiers, not the places.
  for (const auto &[id, label] :
       {std::pair(1, "Calories (cal):"), std::pair(12, "Vitamin E (mg):"), std::pair(20, "Sugar (g):"),
        std::pair(27, "% Cal from Carb:"), std::pair(28, "Custom 1:"), std::pair(35, "Trans Fat (g):")}) {
    EXPECT_EQ(NutrientLabel(session->nutrients, id), label);
  }
  session->nutrients.SelectedNutrients[4] = {30, "Caffeine", true, {}};
  EXPECT_EQ(NutrientLabel(session->nutrients, 30), "Caffeine:");

  EXPECT_EQ(ColumnsOfGroups(NutrientGroups(), 1), (QList<int>{0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(ColumnsOfGroups(NutrientGroups(), 2), (QList<int>{0, 0, 0, 0, 1, 1, 1}));
  EXPECT_EQ(ColumnsOfGroups(NutrientGroups(), 4), (QList<int>{0, 0, 1, 1, 2, 3, 3}));
}

TEST_F(Foods, TheSelectionIsStoredForTheWholeFileAndLeavesThePresetsAlone) {
  const auto presets = [this] {
    return session.ValueOf("Sum(NutrientID1 * 7 + NutrientID10) AS N", "selected_nutrients", "PersonID<>1");
  };
  const QString before = presets();
  ASSERT_NE(before, "");
  QStringList announced;
  QObject::connect(&session->changes, &DataChanges::Changed, [&](const DataChange &change) {
    EXPECT_EQ(change.table, Table::SelectedNutrients);
    announced.append(session->nutrients.SelectedNutrients[0].description);
  });
  NutrientSelection selection;
  for (int i = 0; i < shownNutrients; ++i) {
    selection[static_cast<std::size_t>(i)] = {28 - i, QStringLiteral("Name \"%1\"").arg(i), i % 2 == 0, {}};
  }
  selection[9] = {};
  SaveNutrientSelection(*session, selection);
  EXPECT_EQ(presets(), before);
  EXPECT_EQ(announced, QStringList{"Name \"0\""}) << "once, when the memory is fresh";
  const NutrientSelection stored = ReadNutrientSelection(*session);
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    EXPECT_EQ(stored[i].NutrientID, selection[i].NutrientID) << i;
    EXPECT_EQ(stored[i].description, selection[i].description) << i;
    EXPECT_EQ(stored[i].NutTotal, selection[i].NutTotal) << i;
    EXPECT_EQ(session->nutrients.SelectedNutrients[i].NutrientID, selection[i].NutrientID) << i;
  }
  const QList<NutrientChoice> choices = SelectableNutrients(*session);
  ASSERT_EQ(choices.size(), 36);
  EXPECT_EQ(choices.first().NutrientID, 0);
  EXPECT_EQ(choices.first().descriptionPlusUnit, "None");
  EXPECT_EQ(choices[1].NutrientID, nutrient_id::calories);
  EXPECT_EQ(choices[1].shortDescription, "Cals");

  EXPECT_FALSE(HandheldHoldsFoods(*session));
  session.Data().Execute("INSERT INTO palm_selected_meals ( MealID ) SELECT 1 AS Expr1;");
  EXPECT_TRUE(HandheldHoldsFoods(*session));
  session.Data().Execute("DELETE selected_nutrients.* FROM selected_nutrients WHERE (PersonID=1);");
  EXPECT_THROW(ReadNutrientSelection(*session), Error);
  EXPECT_THROW(SaveNutrientSelection(*session, selection), Error);
}

}  // namespace
}  // namespace trimlog
