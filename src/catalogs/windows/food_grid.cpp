#include "catalogs/windows/food_grid.h"

#include "catalogs/food_catalog.h"
#include "catalogs/food_columns.h"
#include "platform/grid/grid_clipboard.h"
#include "platform/grid/grid_row_edit.h"

namespace trimlog {

BoundGrid *MakeFoodGrid(const FoodGridNames &names, Session &session, QWidget *parent) {
  auto *grid = new BoundGrid(names.grid, names.label, session.locale, parent);
  grid->recordSource = QStringLiteral("datMealsList");
  grid->SetColumns(FoodColumns(session, names.dropDown));
  grid->KeepWidths(session.store, settingsRoot + QStringLiteral("\\Grids\\") + names.grid);

  const auto announce = [&session] { session.changes.Announce({QStringLiteral("meals_list"), {}, {}}); };
  GridHooks &hooks = grid->Hooks();
  hooks.guard = [&session, procedure = names.loadProcedure](GridAction action, const std::function<void()> &work) {
    return Guarded(session, FoodGridFailure(action, procedure), work);
  };
  hooks.isReadOnly = IsPreLoadedFood;
  hooks.beforeUpdate = [&session](GridRowEdit &row) { return PrepareEditedFood(session.nutrients, row); };
  hooks.afterUpdate = [announce](qint64) { announce(); };
  hooks.beforeDelete = [&session](const std::vector<qint64> &keys) { return ConfirmDeleteFoods(session, keys); };
  hooks.afterDelete = [announce, &session](const std::vector<qint64> &) {
    announce();
    session.changes.Announce({QStringLiteral("meals"), {}, {}});  // the entries of these foods went along
  };
  hooks.pasteRows = [&session](const GridClipboard &clipboard) { return PasteFoods(session, clipboard.rows); };
  return grid;
}

void ShowSelectedNutrients(BoundGrid &grid, const FoodGridNames &names, Session &session) {
  grid.SetColumns(FoodColumns(session, names.dropDown));
}

}  // namespace trimlog
