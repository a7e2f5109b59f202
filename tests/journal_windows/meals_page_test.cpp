// The page of meals: what is recalculated when, and what is written.
#include "meals_page_fixture.h"

namespace trimlog {
namespace {

const QDate dayOne(2026, 3, 1);

TEST_F(MealsPageTest, ADayStandsInTheOrderOfItsMealsWithItsTotals) {
  const int lunch = Eat(dayOne, 3, QStringLiteral("2"), 3);
  const int breakfast = Eat(dayOne, 1);
  Eat(dayOne.addDays(1), 7);
  Eat(dayOne, 5, QStringLiteral("1"), 1, EntryKind::Planned);
  Open();
  ASSERT_EQ(Grid().Model().RecordCount(), 2);
  EXPECT_EQ(Grid().Model().KeyOfRow(0), breakfast);
  EXPECT_EQ(Grid().Model().KeyOfRow(1), lunch);
  EXPECT_EQ(Text(breakfast, "MealID"), "Aaa food 1");
  EXPECT_EQ(Text(lunch, "MealTypeID"), "Lunch");
  EXPECT_EQ(Total(1), "700");
  EXPECT_EQ(Label("lblTotalsMeals"), "Daily Totals  ");
  EXPECT_EQ(Label("lblTotalsMeals2"), "700 Net Calories       Net Cal = 700 (Consumed) - 0 (Burned) - 0 (BMR)");
}

}  // namespace
}  // namespace trimlog
