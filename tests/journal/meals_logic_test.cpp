// What a list of meals is without its window: layouts, what follows from a changed cell, what stands below it.
#include <gtest/gtest.h>

#include <QFile>

#include "journal/day/grid_layout.h"
#include "journal/day/meal_columns.h"
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

/// An entry of a listed food with 100 calories, 10 g of carbs and a stored custom nutrient.
class MealEditTest : public ::testing::Test {
 protected:
  MealEditTest() {
    session.Data().Execute(
        QStringLiteral("INSERT INTO meals_list ( MealID, MealDesc, RecordTypeID, MealGroupID, Calories, Carbs, "
                       "Custom1, CalFromFatPct, NetCarbs ) VALUES ( 900001, 'Food', 2, 1, 100, 10, 3, 40, 20000 );"));
    Show({nutrient_id::calories, nutrient_id::carbs, nutrient_id::firstCustom, nutrient_id::calFromFatPct});
    session->nutrients.SelectedNutrients[2].NutTotal = false;
  }
  void Show(const QList<int> &ids) {
    for (int place = 0; place < shownNutrients; ++place) {
      session->nutrients.SelectedNutrients[static_cast<std::size_t>(place)] = {ids.value(place), {}, true, {}};
    }
  }
  /// The calories, carbs, custom nutrient and share after a change of a cell to a value.
  std::string After(const QString &column, const Value &value) {
    GridRowEdit row(1, false, [this](const QString &field) { return stored.value(field); });
    row.Set(column, value);
    FollowMealCell(*session, row, column, [this] { return ++asked, answer; });
    QStringList told;
    for (const char *field : {"Calories", "Carbs", "Custom1", "CalFromFatPct", "NetCarbs"}) {
      told.append(row.Get(QLatin1String(field)).toString());
    }
    return told.join(u' ').toStdString();
  }
  TestSession session;
  QVariantMap stored{{"MealID", 900001}, {"Amount", "1"},        {"Calories", 77.0}, {"Carbs", 7.0},
                     {"Custom1", 7.0},   {"CalFromFatPct", 7.0}, {"NetCarbs", 7}};
  int asked = 0;
  bool answer = true;
};

TEST_F(MealEditTest, ShownNutrientsFollowServingsAndFood) {
  session->settings.ConfirmMealsUpdates = 2;
  EXPECT_EQ(After("Amount", "2.5"), "250 25 7 40 7") << "not what has no daily totals, nor what is not shown";
  answer = false;
  EXPECT_EQ(After("Amount", "2.5"), "77 7 7 7 7");
  EXPECT_EQ(asked, 2);
  session->settings.ConfirmMealsUpdates = 0;
  EXPECT_EQ(After("Amount", "2.5"), "77 7 7 7 7");
  EXPECT_EQ(After("MealID", 900001), "100 10 3 40 7") << "another food brings its own, whatever the setting";
  EXPECT_EQ(After("MealID", 123456789), "77 7 7 7 7") << "a food that is gone changes nothing";
  session->settings.ConfirmMealsUpdates = 1;
  EXPECT_EQ(After("Nut1", 5.0), "77 7 7 7 7");
  EXPECT_EQ(asked, 2);
}

TEST_F(MealEditTest, WhatNoColumnCanHoldChangesNothing) {
  session->settings.ConfirmMealsUpdates = 1;
  Show({nutrient_id::calories, nutrient_id::netCarbs});
  stored["Amount"] = "1";
  GridRowEdit row(1, false, [this](const QString &field) { return stored.value(field); });
  row.Set("Amount", "2");
  row.Set("NetCarbs", 40000);
  EXPECT_EQ(CheckMealRow(row), "Net carbs can be at most 32,767.");
  row.Set("NetCarbs", 32767);
  EXPECT_EQ(CheckMealRow(row), "");
  session.Data().Execute(QStringLiteral("UPDATE meals_list SET Carbs = 20000 WHERE MealID = 900001;"));
  row.Undo("NetCarbs");
  EXPECT_THROW(FollowMealCell(*session, row, "Amount", [] { return true; }), Error);
  EXPECT_EQ(row.Changes().size(), 1);
}

TEST(MealTexts, StandBelowTheListOnScreenAndPaper) {
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  const auto caption = [&](const JournalKind &kind, JournalView view) {
    return DailyTotalsCaption(kind, view, printedDay, english).toStdString();
  };
  EXPECT_EQ(caption(JournalKind::Diary(), JournalView::SingleDate), "Daily Totals  ");
  EXPECT_EQ(caption(JournalKind::Planner(), JournalView::AllDates), "Daily Totals (3/28/2026)  ");
  EXPECT_EQ(caption(JournalKind::Quick(), JournalView::SingleDate), "Daily Totals:");

  const auto title = [&](const JournalKind &kind, JournalView view) {
    return MealsPrintTitle(kind, view, printedDay, english).toStdString();
  };
  EXPECT_EQ(title(JournalKind::Diary(), JournalView::SingleDate), ": Meals Eaten on 3/28/2026");
  EXPECT_EQ(title(JournalKind::Diary(), JournalView::AllDates), ": Meals Eaten for All Dates");
  EXPECT_EQ(title(JournalKind::Planner(), JournalView::SingleDate), ": Planned Meals for 3/28/2026");
  EXPECT_EQ(title(JournalKind::Planner(), JournalView::AllDates), ": Planned Meals for All Dates");

  MealsClosing closing{.date = printedDay, .totals = {"600", "", "9.00"}};
  const QStringList columns = {"ThisDate", "MealID", "Amount", "Nut1", "Nut3", "GIValue"};
  const auto lines = [&](const JournalKind &kind) {
    QStringList told;
    for (const QStringList &row : MealsClosingRows(kind, closing, columns, english)) told.append(row.join(u'|'));
    return told.join(u'\n').toStdString();
  };
  EXPECT_EQ(lines(JournalKind::Diary()), "|||||\n|Daily Totals (3/28/2026):||600|9.00|");
  EXPECT_EQ(lines(JournalKind::Planner()), "|||||\n|Totals for 3/28/2026:||600|9.00|");
  closing.targets = {"-50", "", "+1.00"};
  closing.netCalories = "-5 Net Calories       Net Cal = 600 (Consumed) - 605 (Burned)";
  EXPECT_EQ(lines(JournalKind::Diary()),
            "|||||\n|Daily Totals (3/28/2026):||600|9.00|\n|Over (+) or Under (-) Target:||-50|+1.00|\n"
            "|-5 Net Calories||||\n|Net Cal = 600 (Consumed) - 605 (Burned)||||");
}

}  // namespace
}  // namespace trimlog
