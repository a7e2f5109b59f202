// What a list of meals is without its window: layouts, what follows from a changed cell, what stands below it.
#include <gtest/gtest.h>

#include <QFile>

#include "journal/day/grid_layout.h"
#include "journal/day/meal_edit.h"
#include "journal/day/meal_texts.h"
#include "platform/grid/grid_row_edit.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QDate printedDay(2026, 3, 28);

std::string LaidOut(const QString &text) {
  GridColumns columns = {{.name = QStringLiteral("MealID"), .width = 36},
                         {.name = QStringLiteral("Nut1"), .width = 8, .visible = false}};
  QString complaint;
  if (!ApplyLayout(text, columns, complaint)) return complaint.toStdString();
  QStringList told;
  for (const GridColumn &column : columns) {
    told.append(QStringLiteral("%1%2").arg(column.visible ? "" : "-").arg(column.width));
  }
  return told.join(u' ').toStdString();
}

TEST(GridLayout, GivesWidthsOrNothing) {
  for (const auto &[text, laidOut] : {
           std::pair{"", "36 -8"},
           {"# ours\r\nMealID\t 50 # wide\r\n", "50 -8"},
           {"MealID hidden\nNut1 12", "-36 -12"},
           {"MealID 50\nNut1", "line 2 is no column and width: Nut1"},
           {"MealID 50\nFood 20", "line 2 is no column and width: Food 20"},
           {"MealID 0", "line 1 is no column and width: MealID 0"},
           {"MealID 201", "line 1 is no column and width: MealID 201"},
           {"MealID 1 2", "line 1 is no column and width: MealID 1 2"},
           {"PK\x03\x04 x", "line 1 is no column and width: PK\x03\x04 x"},
       }) {
    EXPECT_EQ(LaidOut(QString::fromUtf8(text)), laidOut);
  }
}

TEST(GridLayout, ABrokenFileIsPassedOverWithALogLine) {
  TestSession test;
  GridColumns columns = {{.name = QStringLiteral("MealID"), .width = 36}};
  const auto load = [&](const QByteArray &content) {
    QFile file(test->programDirectory + QStringLiteral("/view_all_meals.grd"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    LoadLayout(*test, QStringLiteral("view_all_meals.grd"), columns);
    return columns.front().width;
  };
  LoadLayout(*test, QStringLiteral("view_all_meals.grd"), columns);
  EXPECT_TRUE(test.LogLines().isEmpty()) << "no file is no fault";
  EXPECT_EQ(load("MealID 20"), 20);
  EXPECT_EQ(load("MealID 50\nnonsense"), 20);
  EXPECT_EQ(load(QByteArray(200000, '\n') + "MealID 50"), 20);
  ASSERT_EQ(test.LogLines().size(), 2);
  EXPECT_TRUE(test.LogLines().front().endsWith(
      "LoadLayout, view_all_meals.grd is passed over: line 2 is no column and width: nonsense"));
}

TEST(MealEdit, OnlyWhatHasDailyTotalsAndStillHasItsFoodFollows) {
  TestSession session;
  session->settings.ConfirmMealsUpdates = 1;
  session.Data().Execute(
      "INSERT INTO meals_list ( MealID, MealDesc, RecordTypeID, MealGroupID, Calories, Custom1 ) "
      "VALUES ( 900001, 'Food', 2, 1, 100, 3 );");
  session->nutrients.SelectedNutrients = {};
  session->nutrients.SelectedNutrients[0] = {nutrient_id::calories, {}, true, {}};
  session->nutrients.SelectedNutrients[1] = {nutrient_id::firstCustom, {}, false, {}};
  const auto after = [&](const QString &column, const Value &value) {
    const QVariantMap stored{{"MealID", 900001}, {"Amount", "1"}, {"Calories", 77.0}, {"Custom1", 7.0}};
    GridRowEdit row(1, false, [&stored](const QString &field) { return stored.value(field); });
    row.Set(column, value);
    FollowMealCell(*session, row, column, [] { return true; });
    return (row.Get("Calories").toString() + u' ' + row.Get("Custom1").toString()).toStdString();
  };
  EXPECT_EQ(after("Amount", "2.5"), "250 7");
  EXPECT_EQ(after("MealID", 900001), "100 3") << "its food again";
  EXPECT_EQ(after("MealID", 123456789), "77 7") << "a food that is gone";
}

TEST(MealTexts, PlannedMealsPrintUnderTheirOwnWords) {
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  const JournalKind &planner = JournalKind::Planner();
  EXPECT_EQ(MealsPrintTitle(planner, JournalView::SingleDate, printedDay, english), ": Planned Meals for 3/28/2026");
  EXPECT_EQ(MealsPrintTitle(planner, JournalView::AllDates, printedDay, english), ": Planned Meals for All Dates");
  const MealsClosing closing{.date = printedDay, .totals = {"600", "", "9.00"}, .targets = {{"-50", "", "+1.00"}}};
  const QStringList columns = {"ThisDate", "MealID", "Amount", "Nut1", "Nut3", "GIValue"};
  const std::vector<QStringList> rows = MealsClosingRows(planner, closing, columns, english);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[1].join(u'|'), "|Totals for 3/28/2026:||600|9.00|");
  EXPECT_EQ(rows[2].join(u'|'), "|Over (+) or Under (-) Target:||-50|+1.00|");
}

}  // namespace
}  // namespace trimlog
