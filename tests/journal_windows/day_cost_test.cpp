// What a day of the journal costs among thousands of others: it reads its own rows only, and each action is one commit.
#include <QAbstractButton>

#include "journal/day/day_records.h"
#include "journal/windows/frmDiary.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

constexpr int otherDays = 2000;

class DayCost : public testing::Test {
 protected:
  DayCost() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    session->settings.ConfirmMealsUpdates = 1;
    Transaction transaction(session.Data());
    for (int day = 1; day <= otherDays; ++day) Eat(QDate(2026, 3, 1).addDays(-day), 2);
    Eat(QDate(2026, 3, 1), 5);
    transaction.Commit();
    diary = std::make_unique<frmDiary>(*session, navigator, doors);
    diary->resize(900, 600);
    diary->show();
    QApplication::setActiveWindow(diary.get());
    diary->Activated();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left, Qt::AltModifier);  // has its glasses of water now
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right, Qt::AltModifier);
    QApplication::processEvents();
  }
  void Eat(const QDate &date, int foods) {
    for (int n = 0; n < foods; ++n) {
      MealEntry entry{.date = date, .MealTypeID = 1 + n, .MealID = 1 + n, .Amount = QStringLiteral("1")};
      entry.values[nutrient_id::calories - 1] = 100;
      AddRecMeal(*session, EntryKind::Eaten, entry);
    }
  }
  /// What an action reads and commits.
  StoreCounts CostOf(const std::function<void()> &act) {
    const StoreCounts before = session.Data().Counts();
    act();
    QApplication::processEvents();
    const StoreCounts after = session.Data().Counts();
    return {after.statements - before.statements, after.rowsRead - before.rowsRead, after.commits - before.commits};
  }

  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  std::unique_ptr<frmDiary> diary;
};

TEST_F(DayCost, IsThatOfTheDayAlone) {
  auto &grid = Find<BoundGrid>(*diary, QStringLiteral("grdMeals"));
  const StoreCounts step = CostOf([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left, Qt::AltModifier); });
  EXPECT_EQ(grid.Model().RecordCount(), 2);
  EXPECT_LE(step.rowsRead, 15);
  EXPECT_EQ(step.commits, 0);

  const StoreCounts unseen =
      CostOf([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left, Qt::AltModifier); });
  EXPECT_EQ(unseen.commits, 1) << "its glasses of water";
  EXPECT_LE(unseen.rowsRead, 15);

  doors.AddMeal = [this](QWidget *, const EntryOpening &opening) {
    const int key =
        AddRecMeal(*session, EntryKind::Eaten, {.date = opening.date, .MealID = 3, .Amount = QStringLiteral("1")});
    opening.stored(key, opening.date);
  };
  auto &cmdNewMeal = Find<QAbstractButton>(*diary, QStringLiteral("cmdNewMeal"));
  cmdNewMeal.setEnabled(true);  // its door was opened just now
  const StoreCounts add = CostOf([&] { QTest::mouseClick(&cmdNewMeal, Qt::LeftButton); });
  EXPECT_EQ(grid.Model().RecordCount(), 3);
  EXPECT_EQ(add.commits, 1);
  EXPECT_LE(add.rowsRead, 30);

  grid.Selection().GoTo(grid.Model().index(0, grid.Model().ColumnByName(QStringLiteral("Amount"))));
  const StoreCounts servings = CostOf([&] {
    QTest::keyClick(&grid, Qt::Key_2);
    QTest::keyClick(grid.OpenEditor(), Qt::Key_Tab);
  });
  EXPECT_EQ(servings.commits, 1);
  EXPECT_LE(servings.rowsRead, 20);
}

}  // namespace
}  // namespace trimlog
