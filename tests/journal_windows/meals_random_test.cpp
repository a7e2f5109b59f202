// Hundreds of actions on two windows of meals, beside a journal kept by hand: rows, totals and the file always agree.
#include <map>
#include <random>

#include "journal/day_totals.h"
#include "meals_page_fixture.h"

namespace trimlog {
namespace {

/// An entry as the test remembers it.
struct Kept {
  QDate date;
  int mealType = 1;
  int calories = 0;
  bool planned = false;
};

class MealsRandomTest : public MealsPageTest {
 protected:
  using Journal = std::map<int, Kept>;  ///< by RecordID

  int Random(int below) { return static_cast<int>(generator_() % static_cast<unsigned>(below)); }
  QDate AnyDate() { return QDate(2026, 3, 1).addDays(Random(4)); }
  /// One of the rows that the page shows; 0 when it shows none.
  int AnyRow() {
    const int rows = Grid().Model().RecordCount();
    return rows == 0 ? 0 : static_cast<int>(*Grid().Model().KeyOfRow(Random(rows)));
  }
  bool IsShown(const Kept &entry) const {
    return !entry.planned && (!day->IsSingleDate() || entry.date == day->Date());
  }

  void Add(EntryKind entries) {
    const int food = 1 + Random(5);
    const Kept entry{AnyDate(), 1 + Random(9), 100 * food, entries == EntryKind::Planned};
    kept[Eat(entry.date, food, QStringLiteral("1"), entry.mealType, entries)] = entry;
  }
  void TypeCalories() {
    const int row = AnyRow();
    if (row == 0) return;
    const int calories = Random(1000);
    GoTo(row, "Nut1");
    ASSERT_TRUE(Grid().Model().setData(Cell(row, "Nut1"), QString::number(calories)));
    if (Random(2) == 0) {
      ASSERT_TRUE(Grid().CommitRow());
    }
    kept[row].calories = calories;
  }
  void Delete() {
    const int row = AnyRow();
    if (row == 0) return;
    GoTo(row, "Amount");
    ASSERT_TRUE(Grid().DeleteSelected());
    kept.erase(row);
  }
  void CopyAndPaste() {
    const int row = AnyRow();
    if (row == 0) return;
    GoTo(row, "Amount");
    GridClipboard copied;
    ASSERT_TRUE(Grid().CopyRows(copied));
    copied.rows.append(copied.rows.first());
    Kept entry = kept[row];
    day->GoToDate(AnyDate());
    entry.date = day->Date();
    ASSERT_TRUE(Grid().PasteRows(copied));
    for (int copy = 1; copy >= 0; --copy) kept[LastID() - copy] = entry;
  }
  void MoveToDate() {
    if (day->IsSingleDate()) return;
    const int row = AnyRow();
    if (row == 0) return;
    kept[row].date = AnyDate();
    GoTo(row, "ThisDate");
    Grid().Model().setData(Cell(row, "ThisDate"), kept[row].date, GridModel::ValueRole);
    QApplication::processEvents();
  }
  void Act() {
    switch (Random(9)) {
      case 0:
      case 1:
        return Add(EntryKind::Eaten);
      case 2:
        return Add(EntryKind::Planned);
      case 3:
        return TypeCalories();
      case 4:
        return Delete();
      case 5:
        return CopyAndPaste();
      case 6:
        return MoveToDate();
      case 7:
        day->GoToDate(AnyDate());
        return;
      default:
        day->ShowView(Random(2) == 0 ? JournalView::AllDates : JournalView::SingleDate);
        if (const int row = AnyRow()) GoTo(row, "Amount");
    }
  }

  int LastID() { return session.ValueOf("Max(RecordID)", "meals", "PersonID=1").toInt(); }
  int KeptCalories(const QDate &date) const {
    int sum = 0;
    for (const auto &[id, entry] : kept) sum += entry.date == date && !entry.planned ? entry.calories : 0;
    return sum;
  }
  void Compare() {
    QApplication::processEvents();
    Journal shown;
    for (const auto &[id, entry] : kept) {
      if (IsShown(entry)) shown[id] = entry;
    }
    ASSERT_EQ(Grid().Model().RecordCount(), static_cast<int>(shown.size()));
    for (const auto &[id, entry] : shown) {
      EXPECT_EQ(Text(id, "Nut1"), std::to_string(entry.calories)) << id;
      EXPECT_EQ(Grid().Model().FieldOf(Grid().Model().RowOfKey(id), "ThisDate").toDate(), entry.date) << id;
    }
    EXPECT_EQ(Total(1), std::to_string(KeptCalories(day->Date()))) << day->Date().toString().toStdString();
    if (Grid().Model().IsChanging()) return;
    for (int days = 0; days < 4; ++days) {
      const QDate date = QDate(2026, 3, 1).addDays(days);
      EXPECT_EQ(ReadCalorieSums(*session, date, EntryKind::Eaten).calories, KeptCalories(date));
    }
  }

  Journal kept;

 private:
  std::mt19937 generator_{20260301};
};

TEST_F(MealsRandomTest, RowsTotalsAndFileAgreeWithAJournalKeptByHand) {
  session->settings.ConfirmDeletes = false;
  Open();
  for (int action = 0; action < 150 && !HasFailure(); ++action) {
    Act();
    Compare();
    if (HasFailure()) ADD_FAILURE() << "after action " << action;
  }
}

}  // namespace
}  // namespace trimlog
