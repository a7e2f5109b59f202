// The page of meals: what is recalculated when, and what is written.
#include <QLineEdit>
#include <QRadioButton>

#include "core/session/change.h"
#include "journal/windows/grid_day_rows.h"
#include "meals_page_fixture.h"

namespace trimlog {
namespace {

const QDate dayOne(2026, 3, 1);
const QDate dayTwo(2026, 3, 2);

TEST_F(MealsPageTest, ADayOfSixFoodsByHandWithItsSharesAndAnUnsavedEdit) {
  ShowNutrients({nutrient_id::calories, nutrient_id::carbs, 0, nutrient_id::calFromFatPct});
  session->profile.NutTargetID = 1;
  session->nutrients.NutrientTargets[nutrient_id::calories - 1] = 2300;
  session->Data().Execute(
      "INSERT INTO activities ( PersonID, RecordID, ThisDate, ActivityID, Calories, IsPlanned ) "
      "SELECT 1, 1, #3/1/2026#, Min(ActivityID), 150, False FROM activities_list;");
  std::vector<int> rows;
  for (int n = 1; n <= 6; ++n) rows.push_back(Eat(dayOne, n, QStringLiteral("1"), 7 - n));
  Eat(dayTwo, 7);
  Eat(dayOne, 8, QStringLiteral("1"), 1, EntryKind::Planned);
  Open();
  EXPECT_EQ(Grid().Model().RecordCount(), 6);
  EXPECT_EQ(Grid().Model().KeyOfRow(0), rows[5]) << "breakfast first";
  EXPECT_EQ(Text(rows[5], "MealID"), "Aaa food 6");
  EXPECT_EQ(Text(rows[4], "MealTypeID"), "Morn. Snack");
  EXPECT_EQ(Total(1), "2100");
  EXPECT_EQ(Total(2), "21.00");
  EXPECT_EQ(Total(3), "");
  EXPECT_EQ(Total(4), "10");
  EXPECT_EQ(Target(1), "-200");
  EXPECT_EQ(Target(2), "");
  EXPECT_EQ(Label("lblTotalsMeals"), "Daily Totals  ");
  EXPECT_EQ(Label("lblTotalsMeals2"), "1950 Net Calories       Net Cal = 2100 (Consumed) - 150 (Burned) - 0 (BMR)");

  Type(rows[2], "Nut1", QStringLiteral("1300"));
  EXPECT_TRUE(Grid().Model().IsChanging());
  EXPECT_EQ(Stored("Calories", rows[2]), "300") << "calories are saved when their row is left";
  EXPECT_EQ(Total(1), "3100");
  EXPECT_EQ(Target(1), "+800");
  EXPECT_EQ(Total(4), "10") << "shares go by what is stored";
  EXPECT_TRUE(Label("lblTotalsMeals2").starts_with("2950 Net Calories"));
  ClickRow(rows[0], "MealID");
  EXPECT_EQ(Stored("Calories", rows[2]), "1300");
  EXPECT_EQ(Grid().CurrentKey(), rows[0]);
  EXPECT_EQ(Total(4), "7") << "210 of 3100";

  Type(rows[2], "Nut1", QStringLiteral("1"));
  Press(Qt::Key_Escape);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Total(1), "3100") << "what is taken back does not count";
}

TEST_F(MealsPageTest, ServingsAreMendedAndTheNutrientsFollow) {
  session->settings.ConfirmMealsUpdates = 1;
  const int row = Eat(dayOne, 2, QStringLiteral("2"));
  Open();
  struct Case {
    const char *typed;
    const char *amount;
    const char *calories;
  };
  for (const auto &[typed, amount, calories] : {Case{"1/2", "1", "200"},
                                                {"3", "3", "600"},
                                                {"", "1", "200"},
                                                {"2.5", "2.5", "500"},
                                                {"-1", "1", "200"},
                                                {"0", "0", "0"},
                                                {"1,5", "1", "200"},
                                                {"1e9", "1000000000", "200000000000"},
                                                {"abc", "1", "200"}}) {
    Type(row, "Amount", QString::fromLatin1(typed));
    EXPECT_EQ(Stored("Amount", row), amount) << typed;
    EXPECT_EQ(Stored("Calories", row), calories) << typed;
    EXPECT_EQ(Total(1), calories) << typed;
    EXPECT_EQ(Grid().CurrentColumn(), "Nut1") << typed;
    EXPECT_FALSE(Grid().Model().IsChanging()) << typed;
  }
}

class MealsPageInGermanTest : public MealsPageTest {
 protected:
  MealsPageInGermanTest() : MealsPageTest(QLocale(QLocale::German, QLocale::Germany)) {}
};

TEST_F(MealsPageInGermanTest, ServingsAreTypedWithADecimalComma) {
  session->settings.ConfirmMealsUpdates = 1;
  const int row = Eat(dayOne, 2);
  Open();
  for (const auto &[typed, amount, shown] :
       {std::tuple{"1,5", "1.5", "1,5"}, {"2.5", "2.5", "2,5"}, {"1/2", "1", "1"}, {"-0,5", "1", "1"}}) {
    Type(row, "Amount", QString::fromLatin1(typed));
    EXPECT_EQ(Stored("Amount", row), amount) << typed;
    EXPECT_EQ(Text(row, "Amount"), shown) << typed;
  }
}

TEST_F(MealsPageTest, TheQuestionAnswersOnceAndItsOptionsForever) {
  const int row = Eat(dayOne, 2);
  Open();
  const auto answer = [&](const char *servings, const char *button, int option) {
    const auto press = [&](QWidget &window) {
      EXPECT_EQ(window.windowTitle(), "Adjust Nutrients?");
      EXPECT_EQ(Find<QLabel>(window, "lblQuestion").text(),
                "Adjust the Nutrients for this meal to reflect the new serving size?");
      EXPECT_TRUE(Find<QRadioButton>(window, "optConfirmMealUpdates2").isChecked());
      Find<QRadioButton>(window, QStringLiteral("optConfirmMealUpdates%1").arg(option)).click();
      button ? Find<QPushButton>(window, button).click() : static_cast<void>(window.close());
    };
    Type(row, "Amount", QString::fromLatin1(servings), Qt::Key_Tab, [&] { WhenModal(press); });
    return Stored("Calories", row);
  };
  EXPECT_EQ(answer("2", "cmdOK", 2), "400");
  EXPECT_EQ(answer("3", "cmdNo", 2), "400");
  EXPECT_EQ(answer("4", nullptr, 2), "400") << "closed is No";
  EXPECT_EQ(answer("5", "cmdNo", 1), "400");
  EXPECT_EQ(session->settings.ConfirmMealsUpdates, 1);
  EXPECT_EQ(session.store->GetSettingString(settingsRoot, "ConfirmMealsUpdates"), "1");
  Type(row, "Amount", QStringLiteral("6"));
  EXPECT_EQ(Stored("Calories", row), "1200");
  session->settings.ConfirmMealsUpdates = 0;
  Type(row, "Amount", QStringLiteral("7"));
  EXPECT_EQ(Stored("Calories", row), "1200");
  EXPECT_EQ(Stored("Amount", row), "7");
}

TEST_F(MealsPageTest, AClickOnAnotherRowAnswersTheQuestionAndGoesThere) {
  const int first = Eat(dayOne, 1);
  const int second = Eat(dayOne, 2);
  Open();
  GoTo(first, "Amount");
  QTest::keyClicks(&Focus(), QStringLiteral("3"));
  WhenModal([](QWidget &window) { QTest::keyClick(&window, Qt::Key_Return); });
  ClickRow(second, "Nut1");
  EXPECT_EQ(Stored("Amount", first), "3");
  EXPECT_EQ(Stored("Calories", first), "300");
  EXPECT_EQ(Grid().CurrentKey(), second);
  EXPECT_EQ(Grid().CurrentColumn(), "Nut1");
  EXPECT_EQ(Total(1), "500");
}

TEST_F(MealsPageTest, AValueThatNoCellCanHoldLeavesTheRowAsItWas) {
  ShowNutrients({nutrient_id::calories, nutrient_id::netCarbs});
  session->settings.ConfirmMealsUpdates = 1;
  const int row = Eat(dayOne, 2);
  Open();
  session.boxes.Expect("Error Adjusting Nutrients", "could not be adjusted");
  Type(row, "Amount", QStringLiteral("1e9"));
  EXPECT_EQ(Text(row, "Amount"), "1");
  EXPECT_EQ(Text(row, "Nut1"), "200");
  EXPECT_FALSE(Grid().Model().IsChanging());

  Type(row, "Nut2", QStringLiteral("40000"));
  session.boxes.Expect("Invalid Entry", "Net carbs can be at most 32,767.");
  EXPECT_EQ(page->SaveOpenEdit(), EditOutcome::Refused);
  page->DropOpenEdit();
  EXPECT_EQ(page->SaveOpenEdit(), EditOutcome::Saved);
}

TEST_F(MealsPageTest, NutrientCellsBecomeNoughtAndOtherFoodsBringTheirOwn) {
  ShowNutrients({nutrient_id::calories, nutrient_id::carbs, nutrient_id::calFromFatPct});
  const int row = Eat(dayOne, 2, QStringLiteral("3"));
  FoodID(4);
  Open();
  for (const char *typed : {"", "none"}) {
    Type(row, "Nut2", QStringLiteral("5"));
    EXPECT_EQ(Stored("Carbs", row), "5");
    Type(row, "Nut2", QString::fromLatin1(typed));
    EXPECT_EQ(Stored("Carbs", row), "0") << typed;
    EXPECT_EQ(Total(2), "0.00");
  }
  Type(row, "MealID", QStringLiteral("aaa food 4"), Qt::Key_Return);
  EXPECT_EQ(Stored("MealID", row), std::to_string(FoodID(4)));
  EXPECT_EQ(Stored("Calories", row), "1200");
  EXPECT_EQ(Stored("Carbs", row), "12");
  EXPECT_EQ(Stored("CalFromFatPct", row), "10");
  EXPECT_EQ(Stored("CalFromFat", row), "60") << "only what is shown follows";
  EXPECT_EQ(Grid().CurrentColumn(), "Amount");
  EXPECT_EQ(Total(1), "1200");

  GoTo(row, "MealID");
  Press(Qt::Key_F4);
  auto *list = Focus().findChild<BoundGrid *>();
  ASSERT_TRUE(list);
  EXPECT_EQ(list->CurrentKey(), FoodID(4));
  const QModelIndex first = list->Model().index(list->Model().RowOfKey(FoodID(2)), 0);
  list->scrollTo(first);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(first).center());
  QApplication::processEvents();
  EXPECT_EQ(Stored("Calories", row), "600");
  EXPECT_EQ(Grid().CurrentColumn(), "Amount") << "chosen by mouse, the servings come next";
}

TEST_F(MealsPageTest, AllDatesFollowTheRowAndReadOnlyWhatTheyMust) {
  session->settings.LastDiaryView = 1;
  const int old = Eat(dayOne, 1);
  const int older = Eat(dayOne, 2);
  const int latest = Eat(dayTwo, 4);
  Open(JournalKind::Diary(), QDate(2026, 2, 1));
  EXPECT_EQ(Grid().CurrentKey(), latest);
  EXPECT_EQ(Grid().CurrentColumn(), "Amount");
  EXPECT_EQ(day->Date(), dayTwo);
  EXPECT_EQ(Total(1), "400");
  EXPECT_EQ(Label("lblTotalsMeals"), "Daily Totals (3/2/2026)  ");
  GoTo(old, "Amount");
  EXPECT_EQ(day->Date(), dayOne);
  QDate proposed;
  addMeal = [&proposed](const EntryOpening &opening) { proposed = opening.date; };
  QTest::mouseClick(&Find<QPushButton>(*page, "cmdNewMeal"), Qt::LeftButton);
  EXPECT_EQ(proposed, dayOne);
  EXPECT_EQ(Total(1), "300");
  const StoreCounts before = session.Data().Counts();
  GoTo(older, "Amount");
  EXPECT_EQ(session.Data().Counts().statements, before.statements) << "the same day is not read again";
  EXPECT_EQ(Total(1), "300");

  Type(older, "ThisDate", QStringLiteral("no date"));
  EXPECT_EQ(Stored("ThisDate", older).substr(0, 10), "2026-03-01");
  Type(older, "ThisDate", QStringLiteral("12/30/1899"));
  EXPECT_EQ(Stored("ThisDate", older).substr(0, 10), "2026-03-01");
  Type(older, "ThisDate", QStringLiteral("12/31/9999"));
  EXPECT_EQ(Stored("ThisDate", older).substr(0, 10), "9999-12-31");
  EXPECT_EQ(day->Date(), QDate(9999, 12, 31));
  EXPECT_EQ(Total(1), "200");

  Grid().SortBy(QStringLiteral("Nut1"), false);
  GoTo(old, "Amount");
  EXPECT_EQ(Total(1), "100");
}

TEST_F(MealsPageTest, AddingGoesOnFromTheRowAndTheViewFollows) {
  Eat(dayOne, 1);
  const int dinner = Eat(dayOne, 2, QStringLiteral("1"), 5);
  Open();
  GoTo(dinner, "Nut1");
  int added = 0;
  std::vector<std::string> totals;
  addMeal = [&](const EntryOpening &opening) {
    EXPECT_EQ(opening.date, dayOne);
    EXPECT_EQ(opening.MealTypeID, 5);
    for (const QDate &date : {dayOne, dayTwo}) {
      added = Eat(date, 3, QStringLiteral("1"), 5);
      opening.stored(added, date);
      totals.push_back(Total(1));
      EXPECT_EQ(Grid().CurrentKey(), added);
      EXPECT_EQ(Grid().CurrentColumn(), "MealTypeID");
    }
  };
  QTest::mouseClick(&Find<QPushButton>(*page, "cmdNewMeal"), Qt::LeftButton);
  EXPECT_EQ(totals, (std::vector<std::string>{"600", "300"}));
  EXPECT_EQ(day->Date(), dayTwo);
  EXPECT_TRUE(Grid().hasFocus());

  day->GoToDate(dayTwo.addDays(1));
  addMeal = [&](const EntryOpening &opening) {
    EXPECT_EQ(opening.MealTypeID, 1) << "an empty day begins with breakfast";
    opening.stored(4711, opening.date);
  };
  Press(Qt::Key_N, Qt::AltModifier);
  WaitForPressedButtons();
  EXPECT_TRUE(
      session.LogLines().last().endsWith("basMain, AddRec, Unable to find a match for criteria: RecordID=4711"));
}

TEST_F(MealsPageTest, DeletingAsksWhereItShouldAndPastingIsAllOrNothing) {
  const int first = Eat(dayOne, 1);
  Eat(dayOne, 2);
  Open();
  session.boxes.Expect("Delete Rows?", "Delete the selected row?", BoxButton::No);
  QTest::mouseClick(&Find<QPushButton>(*page, "cmdDeleteMeal"), Qt::LeftButton);
  EXPECT_EQ(Total(1), "300");
  session->settings.ConfirmDeletes = false;
  GoTo(first, "MealID");
  QTest::mouseClick(&Find<QPushButton>(*page, "cmdDeleteMeal"), Qt::LeftButton);
  EXPECT_EQ(Total(1), "200");
  EXPECT_EQ(Stored("RecordID", first), "");

  GridClipboard copied;
  Grid().selectAll();
  ASSERT_TRUE(Grid().CopyRows(copied));
  while (copied.rows.size() < 500) copied.rows.append(copied.rows.first());
  day->GoToDate(dayTwo);
  const auto commits = session.Data().Counts().commits;
  EXPECT_TRUE(Grid().PasteRows(copied));
  EXPECT_EQ(session.Data().Counts().commits, commits + 1);
  EXPECT_EQ(Grid().Model().RecordCount(), 500);
  EXPECT_EQ(Total(1), "100000");
  copied.rows.last()["MealID"] = 987654321;  // no such food
  session.boxes.Expect("Unable to Paste Rows", "An error occurred");
  EXPECT_FALSE(Grid().PasteRows(copied));
  EXPECT_EQ(session.ValueOf("Count(*)", "meals", "PersonID=1"), "501");
}

TEST_F(MealsPageTest, WhatChangesElsewhereShowsAtOnce) {
  session->profile.NutTargetID = 1;
  session->nutrients.NutrientTargets[nutrient_id::calories - 1] = 1000;
  const int row = Eat(dayOne, 1);
  Eat(dayOne, 2);
  Open();
  Eat(dayOne, 3);
  EXPECT_EQ(Total(1), "600");
  session->Data().Execute("UPDATE meals_list SET MealDesc = 'Renamed' WHERE MealID = ?;", {FoodID(1)});
  session.Announce({.table = Table::MealsList, .keys = {FoodID(1)}});
  EXPECT_EQ(Text(row, "MealID"), "Renamed");
  session->Data().Execute("DELETE FROM meals WHERE MealID = ?;", {FoodID(1)});
  session->Data().Execute("DELETE FROM meals_list WHERE MealID = ?;", {FoodID(1)});
  session.Announce({.table = Table::Meals});
  session.Announce({.table = Table::MealsList});
  EXPECT_EQ(Grid().Model().RecordCount(), 2);
  EXPECT_EQ(Total(1), "500");

  EXPECT_EQ(Target(1), "-500");
  session->nutrients.NutrientTargets[nutrient_id::calories - 1] = 400;
  session.Announce({.table = Table::NutritionTargets});
  EXPECT_EQ(Target(1), "+100");
  session->profile.NutTargetID = 0;
  session.Announce({.table = Table::People});
  EXPECT_FALSE(Find<TotalsStrip>(*page, "grdMealTargets").isVisible());

  session->Data().Execute(
      "INSERT INTO activities ( PersonID, RecordID, ThisDate, ActivityID, Calories, IsPlanned ) "
      "SELECT 1, 1, #3/1/2026#, Min(ActivityID), 150, False FROM activities_list;");
  session.Announce({.table = Table::Activities});
  EXPECT_TRUE(Label("lblTotalsMeals2").starts_with("350 Net Calories"));
  session->settings.NetCaloriesBMR = false;
  session->changes.AnnounceSettings();
  EXPECT_EQ(Label("lblTotalsMeals2"), "350 Net Calories       Net Cal = 500 (Consumed) - 150 (Burned)");
  session->Data().Execute("UPDATE people SET BirthDate = #1/1/1980#, HeightFeet = 5, HeightInches = 5, GenderID = 2;");
  session->Data().Execute("INSERT INTO weight_loss VALUES ( 1, #3/1/2026#, 150, 0 );");
  session.Announce({.table = Table::WeightLoss});
  session->settings.NetCaloriesBMR = true;
  session->changes.AnnounceSettings();
  EXPECT_TRUE(Label("lblTotalsMeals2").ends_with(" (BMR)"));
  EXPECT_FALSE(Label("lblTotalsMeals2").ends_with(" 0 (BMR)")) << "the rate is read when it begins to count";
  session.boxes.Expect("About Net Calories", "Calories In - Calories Out");
  QTest::mouseClick(&Find<QPushButton>(*page, "pnlLearnMore"), Qt::LeftButton);

  ShowNutrients({nutrient_id::carbs});
  session.Announce({.table = Table::SelectedNutrients});
  EXPECT_EQ(Total(1), "5.00");
  EXPECT_FALSE(Find<QLabel>(*page, "lblTotalsMeals2").isVisible()) << "no calories, no net calories";
  EXPECT_TRUE(Grid().isColumnHidden(Grid().Model().ColumnByName("Nut2")));
}

TEST_F(MealsPageTest, ADayOfTwoThousandEntriesIsReadOnce) {
  Eat(dayOne, 1);
  GridClipboard copied;
  Open();
  Grid().selectAll();
  ASSERT_TRUE(Grid().CopyRows(copied));
  while (copied.rows.size() < 1999) copied.rows.append(copied.rows.first());
  PasteDayRecords(*session, Table::Meals, EntryKind::Eaten, copied.rows, {});
  EXPECT_EQ(Total(1), "200000");
  const StoreCounts before = session.Data().Counts();
  for (int row = 0; row < 50; ++row) Press(Qt::Key_Down);
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(session.Data().Counts().statements, before.statements);
}

TEST_F(MealsPageTest, TheThreeKindsOfWindows) {
  session->profile.NutTargetID = 1;
  Eat(dayOne, 1);
  Eat(dayOne, 2, QStringLiteral("1"), 1, EntryKind::Planned);
  Open(JournalKind::Planner());
  for (const char *button : {"cmdMealSetup", "cmdNutrients", "cmdTargets"}) {
    QTest::mouseClick(&Find<QPushButton>(*page, button), Qt::LeftButton);
  }
  EXPECT_EQ(opened, 3);
  EXPECT_EQ(Total(1), "200");
  EXPECT_TRUE(Find<TotalsStrip>(*page, "grdMealTargets").isVisible());
  EXPECT_FALSE(page->findChild<QLabel *>("lblTotalsMeals2"));
  delete page;
  Open(JournalKind::Quick(), dayOne, {549, 150});
  EXPECT_EQ(Total(1), "100");
  EXPECT_EQ(Label("lblTotalsMeals"), "Daily Totals:");
  EXPECT_FALSE(page->findChild<TotalsStrip *>("grdMealTargets"));
  EXPECT_FALSE(page->findChild<QLabel *>("lblTotalsMeals2"));
  const TotalsStrip &strip = Find<TotalsStrip>(*page, "grdMealTotals");
  EXPECT_EQ(strip.model()->headerData(1, Qt::Horizontal, Qt::UserRole), "Total0");
  EXPECT_EQ(strip.columnWidth(1), Grid().columnWidth(Grid().Model().ColumnByName("Amount")));
  EXPECT_LE(page->minimumSizeHint().height(), 150);
  EXPECT_LE(page->minimumSizeHint().width(), 549);
}

TEST_F(MealsPageTest, PrintsTheRowsWithWhatStandsBelowThem) {
  Open();
  session.boxes.Expect("No Data to Print", "There is currently no journal data to print.");
  QTest::mouseClick(&Find<QPushButton>(*page, "cmdPrintMeal"), Qt::LeftButton);
  session->profile.NutTargetID = 1;
  session->nutrients.NutrientTargets[nutrient_id::calories - 1] = 1000;
  Eat(dayOne, 1);
  QTest::mouseClick(&Find<QPushButton>(*page, "cmdPrintMeal"), Qt::LeftButton);
  ASSERT_EQ(session.printing.lists.size(), 1U);
  const PrintedList &list = session.printing.lists.front();
  EXPECT_EQ(list.heading, "Test Person: Meals Eaten on 3/1/2026");
  EXPECT_EQ(list.columns.front().caption, "Meal") << "one day needs no dates";
  ASSERT_EQ(list.closing.size(), 5U);
  EXPECT_EQ(list.closing[1].mid(0, 4), (QStringList{"", "Daily Totals (3/1/2026):", "", "100"}));
  EXPECT_EQ(list.closing[2].mid(0, 4), (QStringList{"", "Over (+) or Under (-) Target:", "", "-900"}));
  EXPECT_EQ(list.closing[3][1], "100 Net Calories");
  EXPECT_EQ(list.closing[4][1], "Net Cal = 100 (Consumed) - 0 (Burned) - 0 (BMR)");
  session.printing.broken = true;
  session.boxes.Expect("Printer Error", "An error occurred while printing to your default printer.");
  page->Print();
  EXPECT_TRUE(session.LogLines().last().contains("cmdPrintMeal_Click"));
}

}  // namespace
}  // namespace trimlog
