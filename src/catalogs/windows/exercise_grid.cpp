#include "catalogs/windows/exercise_grid.h"

#include "catalogs/exercise_lists.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/grid_follow.h"

namespace trimlog {

namespace {

FailureExit ExerciseListFailure() {
  return {QStringLiteral("grdActivitiesList"), QStringLiteral("Form_Activate"),
          QStringLiteral("Error Loading Setup Info"),
          QStringLiteral("An error occurred while loading your setup information.")};
}

}  // namespace

BoundGrid *MakeExerciseGrid(Session &session, QWidget *parent) {
  const QString name = QStringLiteral("grdActivitiesList");
  auto *grid = new BoundGrid(name, QStringLiteral("Exercises"), session.locale, parent);
  grid->recordSource = QStringLiteral("datActivitiesList");
  grid->canDelete = false;
  grid->SetColumns(ExerciseColumns());
  grid->KeepWidths(session.store, settingsRoot + QStringLiteral("\\Grids\\") + name);
  grid->SetSpareColumn(QStringLiteral("ActivityDesc"));
  grid->Hooks().guard = [&session](GridAction, const std::function<void()> &work) {
    return Guarded(session, ExerciseListFailure(), work);
  };
  FollowTable(*grid, session, Table::ActivitiesList);
  return grid;
}

}  // namespace trimlog
