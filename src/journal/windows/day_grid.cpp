#include "journal/windows/day_grid.h"

#include "core/session/failure_guard.h"
#include "core/windows/controls/grid_dates.h"
#include "core/windows/controls/grid_follow.h"
#include "core/windows/controls/refused_row.h"
#include "journal/day/day_records.h"
#include "journal/windows/row_colours.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

/// What stands for "no date" in files of earlier releases; nobody has a day there.
const QDate zeroDate(1899, 12, 30);

const QString dayModule = QStringLiteral("basDiaryFunctions");

FailureExit DayGridFailure(GridAction action, const QString &grid) {
  if (action == GridAction::Load) return LoadDayFailure(grid);
  if (action == GridAction::Save) return SaveDayFailure(grid);
  if (action == GridAction::Delete) return DeleteDayFailure(grid);
  return {QStringLiteral("basMain"), QStringLiteral("PasteGridRow"), QStringLiteral("Unable to Paste Rows"),
          QStringLiteral("An error occurred while pasting into your journal.  "), true};
}

bool ConfirmDeleteRows(Session &session, std::size_t rows) {
  if (!session.settings.ConfirmDeletes) return true;
  const QString what =
      rows == 1 ? QStringLiteral("the selected row") : QStringLiteral("the %1 selected rows").arg(rows);
  return session.boxes.Ask(QStringLiteral("Delete Rows?"), QStringLiteral("Delete %1?").arg(what));
}

/// A row whose date was changed goes to its day: totals are taken from the rows of a day that stand together.
void MoveWithDate(BoundGrid &grid) {
  GridHooks &hooks = grid.Hooks();
  hooks.withUpdate = [&grid, own = hooks.withUpdate](const GridRowEdit &row, qint64 key) {
    own(row, key);
    if (!row.IsChanged(QStringLiteral("ThisDate"))) return;
    QMetaObject::invokeMethod(
        &grid, [&grid] { grid.Refresh(); }, Qt::QueuedConnection);
  };
}

}  // namespace

BoundGrid *MakeDayGrid(const JournalParts &parts, const DayGridNames &names, QWidget *parent) {
  Session &session = parts.session;
  auto *grid = new BoundGrid(names.grid, names.label, session.locale, parent);
  grid->recordSource = names.recordSource;
  const QString place = parts.day.Kind().isSmall ? QStringLiteral("\\Grids\\Small\\") : QStringLiteral("\\Grids\\");
  grid->KeepWidths(session.store, settingsRoot + place + names.grid);
  grid->SetDatePicker(CalendarForGrid(session));
  PaintOddRows(grid, session.profile.BackColor);
  GridHooks &hooks = grid->Hooks();
  hooks.guard = [&session, name = names.grid](GridAction action, const std::function<void()> &work) {
    return Guarded(session, DayGridFailure(action, name), work);
  };
  hooks.beforeDelete = [&session](const std::vector<qint64> &keys) { return ConfirmDeleteRows(session, keys.size()); };
  hooks.pasteRows = [&session, &day = parts.day, table = names.table](const GridClipboard &clipboard) {
    const QDate date = day.IsSingleDate() ? day.Date() : QDate();
    return PasteDayRecords(session, table, day.Kind().entries, clipboard.rows, date);
  };
  FollowTable(*grid, session, names.table);
  MoveWithDate(*grid);
  return grid;
}

void FollowCurrentRow(BoundGrid &grid, JournalDay &day) {
  QObject::connect(&grid, &BoundGrid::CurrentRowChanged, &day, [&grid, &day] {
    // A hidden list follows what others change, and means nothing by it.
    if (grid.isVisible()) day.FollowRow(grid.CurrentField(QStringLiteral("ThisDate")).toDate());
  });
}

EditOutcome SaveDayGrid(Session &session, BoundGrid &grid) {
  if (grid.CommitRow()) return EditOutcome::Saved;
  const bool refused = !grid.Model().RefusalOfRow().isEmpty();
  ShowRefusedRow(session, QStringLiteral("Invalid Entry"), grid);
  return refused ? EditOutcome::Refused : EditOutcome::Failed;
}

void DropDayGrid(BoundGrid &grid) {
  grid.CloseOpenEditor(false);
  grid.UndoRow();
}

bool GoToAddedRow(Session &session, BoundGrid &grid, int recordID, const QString &column) {
  if (!grid.GoToKey(recordID)) {
    LogError(session, QStringLiteral("basMain"), QStringLiteral("AddRec"),
             QStringLiteral("Unable to find a match for criteria: RecordID=%1").arg(recordID));
    return false;
  }
  grid.setCurrentIndex(grid.currentIndex().siblingAtColumn(grid.Model().ColumnByName(column)));
  return true;
}

FailureExit LoadDayFailure(const QString &control) {
  return {dayModule, control + QStringLiteral("_Load"), QStringLiteral("Error Loading Journal"),
          QStringLiteral("An error occurred while loading your journal.")};
}

FailureExit SaveDayFailure(const QString &control) {
  return {dayModule, control + QStringLiteral("_AfterUpdate"), QStringLiteral("Error Saving Journal"),
          QStringLiteral("An error occurred while saving your journal.  "), true};
}

FailureExit DeleteDayFailure(const QString &control) {
  return {dayModule, control + QStringLiteral("_Delete"), QStringLiteral("Error Deleting From Journal"),
          QStringLiteral("An error occurred while deleting from your journal.  "), true};
}

GridColumn DateColumn() {
  return {.name = QStringLiteral("ThisDate"),
          .caption = QStringLiteral("Date"),
          .field = QStringLiteral("ThisDate"),
          .type = GridType::Date,
          .width = 13,
          .editable = true,
          .mend = MendWithFormer(),
          .validate = [](const Value &value) {
            return value.toDate().isValid() && value.toDate() != zeroDate ? QString()
                                                                          : QStringLiteral("Please type a date.");
          }};
}

}  // namespace trimlog
