#pragma once

#include <QAbstractItemModelTester>

#include "platform/store/column_types.h"
#include "platform/store/recordset.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/windows/controls.h"

namespace trimlog {

/// A grid on a table of foods in a file of its own: food n is named "Food n" with n in five digits, Calories 1000 - n %
/// 7, Fat n / 8. Rows divisible by ten are ready-made ones, read-only by a hook.
class GridTest : public ::testing::Test {
 protected:
  explicit GridTest(int rows = 40, const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates))
      : grid("grdFoods", "Foods", locale) {
    file->Execute(
        QStringLiteral("CREATE TABLE foods ([FoodID] INTEGER PRIMARY KEY, %1, %2, %3, %4, %5, %6);")
            .arg(ColumnDeclaration("FoodDesc", ColumnType::Text, 60), ColumnDeclaration("Calories", ColumnType::Long),
                 ColumnDeclaration("Fat", ColumnType::Double), ColumnDeclaration("GroupID", ColumnType::Long),
                 ColumnDeclaration("Bought", ColumnType::Date), ColumnDeclaration("IsModified", ColumnType::Boolean)));
    Transaction transaction(*file);
    for (int n = 1; n <= rows; ++n) {
      file->Execute(
          "INSERT INTO foods ( FoodID, FoodDesc, Calories, Fat, GroupID, IsModified ) "
          "VALUES ( ?, ?, ?, ?, ?, False );",
          {n, QStringLiteral("Food %1").arg(n, 5, 10, QLatin1Char('0')), 1000 - n % 7, n / 8.0, 1 + n % 2});
    }
    transaction.Commit();
    grid.recordSource = "datFoods";
    grid.SetColumns(Columns());
    grid.resize(700, 400);
    grid.Open(*file, Source());
    grid.show();
    QApplication::setActiveWindow(&grid);
    grid.setFocus();
    QApplication::processEvents();
  }

  static GridColumns Columns() {
    const auto noMore = [](const Value &value) {
      return value.toDouble() > 5000 ? "No food has so many calories." : QString();
    };
    return {
        {.name = "Qlt", .width = 2},
        {.name = "FoodDesc",
         .caption = "Food Description",
         .field = "FoodDesc",
         .width = 30,
         .editable = true,
         .maxLength = 60},
        {.name = "Nut1",
         .caption = "Calories\n(kcal)",
         .field = "Calories",
         .type = GridType::WholeNumber,
         .editable = true,
         .validate = noMore},
        {.name = "Nut2",
         .caption = "Fat\n(g)",
         .field = "Fat",
         .type = GridType::Number,
         .editable = true,
         .pattern = "0.00"},
        {.name = "GroupID",
         .caption = "Group",
         .field = "GroupID",
         .type = GridType::Choice,
         .editable = true,
         .choices = {{1, "Fruits"}, {2, "Meats"}}},
        {.name = "Bought", .caption = "Bought", .field = "Bought", .type = GridType::Date, .editable = true},
        {.name = "IsModified", .caption = "Modified", .field = "IsModified", .type = GridType::Check, .editable = true},
        {.name = "Dummy", .width = 2}};
  }

  static GridSource Source() { return {.table = "foods", .key = "FoodID", .order = {{"FoodDesc"}}}; }

  QString Stored(const QString &field, qint64 key) {
    return file->OpenRecordset("SELECT * FROM foods WHERE FoodID = ?;", {key}).Text(field);
  }
  int Count() { return file->OpenRecordset("SELECT Count(*) AS N FROM foods;").Integer("N"); }
  QModelIndex Cell(qint64 key, const char *column) {
    return grid.Model().index(grid.Model().RowOfKey(key), grid.Model().ColumnByName(column));
  }
  QString Text(qint64 key, const char *column) { return Cell(key, column).data().toString(); }
  void GoTo(qint64 key, const char *column) {
    grid.selectionModel()->setCurrentIndex(Cell(key, column),
                                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  /// Keys to whatever has the focus: the grid or the editor in it.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Focus(), key, modifiers);
    QApplication::processEvents();
  }
  void Type(const QString &text) {
    for (const QChar character : text) QTest::keyClick(Focus(), character.toLatin1());
    QApplication::processEvents();
  }
  /// The mouse as the window system brings it: to the window, at the place where the cell is now.
  QPoint PlaceOf(const QModelIndex &cell) {
    return grid.viewport()->mapTo(grid.window(), grid.visualRect(cell).center());
  }
  void Click(const QPoint &place, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(grid.window()->windowHandle(), button, modifiers, place);
    QApplication::processEvents();
  }
  QWidget *Focus() { return QApplication::focusWidget() ? QApplication::focusWidget() : &grid; }

  QTemporaryDir directory;
  std::unique_ptr<Database> file = Database::Create(directory.filePath("test.dat"));
  BoundGrid grid;
  QAbstractItemModelTester tester{&grid.Model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}  // namespace trimlog
