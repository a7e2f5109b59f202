#include "catalogs/windows/food_grid.h"

#include "catalogs/food_catalog.h"
#include "catalogs/food_columns.h"
#include "core/session/change.h"
#include "core/windows/controls/grid_follow.h"
#include "platform/grid/grid_clipboard.h"
#include "platform/grid/grid_row_edit.h"

namespace trimlog {

namespace {

/// What the person may change, and what is asked before.
void AllowChanges(BoundGrid &grid, Session &session) {
  GridHooks &hooks = grid.Hooks();
  hooks.isReadOnly = IsPreLoadedFood;
  hooks.beforeUpdate = [&session](GridRowEdit &row) { return PrepareEditedFood(session.nutrients, row); };
  hooks.beforeDelete = [&session](const std::vector<qint64> &keys) { return ConfirmDeleteFoods(session, keys); };
  hooks.withDelete = [&session](const std::vector<qint64> &) {
    Change change(session);
    change.Announce({.table = Table::Meals});  // the entries of these foods went along
    change.Commit();
  };
  hooks.pasteRows = [&session](const GridClipboard &clipboard) { return PasteFoods(session, clipboard.rows); };
}

}  // namespace

BoundGrid *MakeFoodGrid(const FoodGridNames &names, Session &session, QWidget *parent) {
  auto *grid = new BoundGrid(names.grid, names.label, session.locale, parent);
  grid->recordSource = QStringLiteral("datMealsList");
  grid->SetColumns(FoodColumns(session, names.dropDown));
  grid->KeepWidths(session.store, settingsRoot + QStringLiteral("\\Grids\\") + names.grid);
  grid->SetSpareColumn(QStringLiteral("MealDesc"));

  GridHooks &hooks = grid->Hooks();
  hooks.guard = [&session, procedure = names.loadProcedure, forPicking = names.forPicking](
                    GridAction action, const std::function<void()> &work) {
    return Guarded(session, FoodGridFailure(action, procedure, forPicking), work);
  };
  if (names.forPicking) {
    grid->canDelete = false;
    hooks.isReadOnly = [](const auto &) { return true; };
  } else {
    AllowChanges(*grid, session);
  }
  FollowTable(*grid, session, Table::MealsList);
  return grid;
}

void ShowSelectedNutrients(BoundGrid &grid, const FoodGridNames &names, Session &session) {
  grid.SetColumns(FoodColumns(session, names.dropDown));
}

}  // namespace trimlog
