// Picking a food for a day or a recipe: lists, find, servings, checks, what is stored.
#include "catalogs/food_picking.h"

#include "catalogs/food_find.h"
#include "catalogs/food_lists.h"
#include "catalogs/food_search.h"
#include "catalogs/servings_choice.h"
#include "foods_fixture.h"
#include "support/locales.h"

namespace trimlog {
namespace {

const FoodListKind &ForADay() { return PickedFoodLists(true, false); }
const FoodListKind &ForARecipe() { return PickedFoodLists(false, false); }

class FoodPickingTest : public Foods {
 protected:
  /// The first foods of a source, in its order.
  QStringList First(const GridSource &source, int count = 100) {
    QStringList names;
    const GridStatement keys = KeysStatement(source, count);
    Recordset rows = session.Data().OpenRecordset(keys.sql, keys.params);
    for (; !rows.Eof(); rows.MoveNext()) names.append(ReadFood(*session, rows.Field(0).toInt()).MealDesc);
    return names;
  }
  int CountOf(const GridSource &source) {
    const GridStatement count = CountStatement(source);
    return session.Data().OpenRecordset(count.sql, count.params).Field(0).toInt();
  }
};

TEST_F(FoodPickingTest, EachListHoldsItsKindsTheOwnFoodsFirst) {
  Add("Qwx header", food_kind::hidden);
  Add("Qwx recipe", food_kind::recipe);
  const int own = Add("Qwx own");
  Add("Aaa own");
  const int shipped = CountOf(FoodListSource(SetupFoodLists(), {.list = food_kind::preLoaded}));
  struct Case {
    const FoodListKind &kind;
    int list;
    int rows;
    QStringList first;
  };
  const QString firstShipped = First(FoodListSource(ForADay(), {.list = food_kind::preLoaded}), 1).first();
  for (const Case &c :
       {Case{ForADay(), food_list::all, shipped + 3, {"Qwx recipe", "Aaa own", "Qwx own", firstShipped}},
        Case{ForADay(), food_list::ownWithRecipes, 3, {"Qwx recipe", "Aaa own", "Qwx own"}},
        Case{ForADay(), food_kind::myFoods, 2, {"Aaa own", "Qwx own"}},
        Case{ForADay(), food_kind::recipe, 1, {"Qwx recipe"}},
        Case{ForADay(), food_kind::preLoaded, shipped, {firstShipped}},
        Case{ForARecipe(), food_list::all, shipped + 2, {"Aaa own", "Qwx own", firstShipped}}}) {
    const GridSource source = FoodListSource(c.kind, {.list = c.list});
    EXPECT_EQ(CountOf(source), c.rows) << c.list;
    EXPECT_EQ(First(source, static_cast<int>(c.first.size())), c.first) << c.list;
  }
  session.Data().Execute("UPDATE meals_list SET Calories = 90000 WHERE (MealID=?);", {own});
  EXPECT_EQ(First(FoodListSource(ForADay(), {.sort = "-Calories"}), 1), QStringList{"Qwx own"});
  EXPECT_EQ(First(FoodSearchSource(ForADay(), "wX  q")), (QStringList{"Qwx own", "Qwx recipe"})) << "by name alone";
  EXPECT_EQ(First(FoodSearchSource(ForARecipe(), "qwx")), (QStringList{"Qwx own"}));

  QStringList texts;
  for (const FoodList &list : ForADay().lists) texts.append(QString::number(list.key) + list.text);
  EXPECT_EQ(texts.join("; "),
            "-1All Food Lists; 1Pre-Loaded Foods; -3Recent Foods; -2My Foods + Recipes; 2My Foods; 3My Recipes");
  EXPECT_EQ(PickedFoodLists(true, true).ListOf(-2).text, "Custom Foods + Recipes");
  EXPECT_EQ(ForARecipe().lists.size(), 4);
}

TEST_F(FoodPickingTest, RecentFoodsAreOfFourteenDaysAndThePersonAlone) {
  session.AddProfile(2, "Other");
  const int recipe = Add("Recipe", food_kind::recipe);
  const int eaten = Add("Eaten"), planned = Add("Ahead"), old = Add("Old"), others = Add("Others'");
  Eat(eaten, {2026, 2, 16});
  Eat(eaten, {2026, 2, 20});
  Eat(recipe, {2026, 3, 1});
  Eat(planned, {2026, 3, 5}, 1, true);
  Eat(old, {2026, 2, 15});
  Eat(others, {2026, 3, 1}, 2);
  const auto recent = [this](const FoodListKind &kind, const QString &sort) {
    return First(PrepareFoodList(*session, kind, {.list = food_list::recent, .sort = sort})).join(' ');
  };
  EXPECT_EQ(recent(ForADay(), byFoodName), "Ahead Eaten Recipe") << "by name, whoever's they are";
  EXPECT_EQ(recent(ForARecipe(), byFoodName), "Ahead Eaten");
  session.Data().Execute("UPDATE meals_list SET Fat = 5 WHERE (MealID=?);", {eaten});
  EXPECT_EQ(recent(ForADay(), "-Fat"), "Eaten Ahead Recipe");
  EXPECT_EQ(session.ValueOf("Count(*) AS N", "temp_recent_meals"), "0") << "looking writes nothing";
  session->profile.CurrentPersonID = "2";
  EXPECT_EQ(recent(ForADay(), byFoodName), "Others'");
}

TEST_F(FoodPickingTest, ALetterJumpsPastTheOwnFoodsOfAllLists) {
  Add("Zz own");
  GridModel model(us);
  const auto jump = [&](int list) {
    model.Open(session.Data(), FoodListSource(ForADay(), {.list = list}));
    const GridStatement criterion = AlphabetCriteria(ForADay(), list, 'z').first();
    return model.FieldOf(model.FindFirst(criterion.sql, criterion.params), "RecordTypeID").toInt();
  };
  model.SetColumns({{.name = "RecordTypeID", .field = "RecordTypeID"}});
  EXPECT_EQ(jump(food_list::all), food_kind::preLoaded);
  EXPECT_EQ(jump(food_list::ownWithRecipes), food_kind::myFoods);
}

TEST_F(FoodPickingTest, FindGoesOnFromTheCurrentRowAndBeginsAgainForAnotherTextOrList) {
  Add("Mum's soup");
  Add("Bean soup");
  Add("100% [raw] soup");
  GridModel model(us);
  model.SetColumns({{.name = "MealDesc", .field = "MealDesc"}});
  const auto show = [&](int list) { model.Open(session.Data(), FoodListSource(ForADay(), {.list = list})); };
  show(food_kind::myFoods);
  FoodFinder finder;
  int row = 2;  // the first press does not mind where one stands
  const auto find = [&](const QString &text) {
    const FoodFinder::Result found = finder.Find(model, text, row);
    if (!found.mealID) return found.message;
    row = model.RowOfKey(*found.mealID);
    return model.FieldOf(row, "MealDesc").toString();
  };
  const QString none = "No foods were found matching that description.";
  const QString noOther = "No other foods were found matching that description.";
  EXPECT_EQ(find("SOUP"), "100% [raw] soup");
  EXPECT_EQ(find("SOUP"), "Bean soup");
  EXPECT_EQ(find("SOUP"), "Mum's soup");
  EXPECT_EQ(find("SOUP"), noOther);
  EXPECT_EQ(find("SOUP"), noOther);
  EXPECT_EQ(find("m's"), "Mum's soup") << "another text: from the top";
  EXPECT_EQ(find("b*p"), "Bean soup");
  EXPECT_EQ(find("qqq"), none);
  EXPECT_EQ(find("qqq"), none) << "nothing was found that another could follow";
  EXPECT_EQ(find("Bean"), "Bean soup");
  show(food_list::ownWithRecipes);
  EXPECT_EQ(find("Bean"), "Bean soup") << "another list: from the top";
}

TEST(ServingSelector, PutsServingsTogether) {
  struct Case {
    const char *servings;
    int pressed;
    const char *after;
    const QLocale &locale = us;
  };
  for (const Case &c : {Case{"1", 4, "1.5"}, Case{"1.5", 4, "1"}, Case{"1.5", 9, "2.5"}, Case{"2.5", 3, "2.333"},
                        Case{"2.333", 0, "2.125"}, Case{"", 6, "0.75"}, Case{"x", 13, "6"}, Case{"0.75", 7, "0.75"},
                        Case{"3", 10, "0"}, Case{"7.5", 8, "1.5"}, Case{"2.4", 12, "5"}, Case{"1,5", 9, "2,5", german},
                        Case{"1", 5, "1,667", german}, Case{"-1", 8, "1"}, Case{"1e9", 1, "0.2"}}) {
    EXPECT_EQ(ServingsAfter(c.servings, c.pressed, c.locale), c.after) << c.servings << " " << c.pressed;
  }
  const ServingToggles down = TogglesOf("2.667", us);
  EXPECT_EQ(down.fraction, 5);
  EXPECT_EQ(down.whole, 9);
  EXPECT_FALSE(TogglesOf("2.3", us).fraction);
  EXPECT_FALSE(TogglesOf("12", us).whole);
}

TEST(FoodPickingRules, RefuseWhatIsNoDateOrNoServings) {
  const QString date = "Please choose or enter a valid date for this food or meal.";
  const QString servings = "Please enter a number of servings for this food.  The default number of servings is 1.";
  struct Case {
    QDate date;
    const char *servings;
    QString refusal;
    bool forDay = true;
    const QLocale &locale = us;
  };
  const QDate day(2026, 3, 1);
  for (const Case &c : {Case{day, "1", ""}, Case{day, "0", ""}, Case{day, "2.5", ""}, Case{{}, "1/2", date},
                        Case{{}, "1/2", servings, false}, Case{{}, "1", "", false}, Case{day, "1/2", servings},
                        Case{day, "", servings}, Case{day, " ", servings}, Case{day, "-1", servings},
                        Case{day, "1,5", servings}, Case{day, "1,5", "", true, german},
                        Case{day, "1.5", "", true, german}, Case{day, "inf", servings}, Case{{1899, 1, 1}, "1", ""}}) {
    const auto refusal = AddRecValidate({.date = c.date, .servings = c.servings}, c.forDay, c.locale);
    EXPECT_EQ(refusal ? refusal->text : QString(), c.refusal) << c.servings;
    if (refusal) {
      EXPECT_EQ(refusal->title, c.refusal == date ? "Invalid Date" : "Invalid Number of Servings");
    }
  }
}

TEST_F(FoodPickingTest, AnEntryIsASnapshotStoredUnderItsServingsAsTyped) {
  const int food = Add("Soup");
  session.Data().Execute("UPDATE meals_list SET Calories = 100, CalFromFatPct = 30, Iron = 1.5 WHERE (MealID=?);",
                         {food});
  int stored = 0;
  QDate storedOn;
  const EntryOpening opening{.kind = JournalKind::Planner(),
                             .date = {2026, 3, 2},
                             .MealTypeID = 3,
                             .stored = [&](int recordID, const QDate &date) { stored = recordID, storedOn = date; }};
  const FoodPicking picking = PickingForDay(*session, opening);
  EXPECT_EQ(picking.caption, "Add a Food or Meal to Your Planner");
  EXPECT_EQ(picking.date, QDate(2026, 3, 2));
  EXPECT_FALSE(picking.fixedDate);
  FoodPicked picked{.date = {2026, 3, 9}, .MealTypeID = 4, .servings = " 2.5", .MealID = food, .shown = {}};
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    const SelectedNutrient &position = session->nutrients.SelectedNutrients[i];
    if (position.NutrientID == nutrient_id::calories) picked.shown[i] = "100";
  }
  EXPECT_TRUE(picking.add(EntryOf(*session, picked)));
  const QString where = QStringLiteral("PersonID=1 AND RecordID=%1").arg(stored);
  const auto value = [&](const char *field) { return session.ValueOf(field, "meals", where); };
  EXPECT_EQ(storedOn, QDate(2026, 3, 9));
  EXPECT_EQ(value("ThisDate"), "2026-03-09");
  EXPECT_EQ(value("MealTypeID") + value("IsPlanned") + value("Amount"), "4-1 2.5");
  EXPECT_EQ(value("Calories"), "250");
  EXPECT_EQ(value("Iron"), "3.75");
  EXPECT_EQ(value("CalFromFatPct"), "30");

  picked.MealID = 99999;
  EXPECT_THROW(EntryOf(*session, picked), Error);
}

TEST_F(FoodPickingTest, OpensWithTheListAndOrderOfLastTimeWhereTheyAreStillThere) {
  const auto first = [this](const FoodListKind &kind, int list, const QString &sort) {
    session->settings.LastRecordTypeMeals = list;
    session->windows.pickedFoodSort = sort;
    const FoodSelection selection = FirstSelection(kind, *session);
    return QStringLiteral("%1 %2").arg(selection.list).arg(selection.sort);
  };
  EXPECT_EQ(first(ForADay(), -1, ""), "-1 0");
  EXPECT_EQ(first(ForADay(), -3, "-Fat"), "-3 -Fat");
  EXPECT_EQ(first(ForADay(), 0, "-2"), "-1 0") << "no such list, and a separator";
  EXPECT_EQ(first(ForARecipe(), 3, "Nothing"), "-1 0");
}

}  // namespace
}  // namespace trimlog
