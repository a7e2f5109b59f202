#include "journal/windows/exercises_page.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "core/session/error_log.h"
#include "core/session/failure_guard.h"
#include "core/session/print.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/grid_menu.h"
#include "journal/day/activity_columns.h"
#include "journal/day/day_source.h"
#include "journal/day/exercise_totals.h"
#include "journal/day/grid_layout.h"
#include "journal/day/listed_exercise.h"
#include "journal/day/printed_heading.h"
#include "journal/windows/day_grid.h"
#include "journal/windows/exercise_totals_row.h"
#include "journal/windows/grid_day_rows.h"
#include "journal/windows/net_calories_line.h"
#include "journal/windows/page_buttons.h"
#include "platform/grid/grid_export.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/printing/grid_printer.h"

namespace trimlog {

namespace {

// Values of the setting ConfirmExerciseUpdates; 0 never adjusts.
constexpr int alwaysAdjust = 1;
constexpr int askToAdjust = 2;

const QString exerciseColumn = QStringLiteral("ActivityID");
const QString minutesColumn = QStringLiteral("Duration");

FailureExit CaloriesFailure() {
  return {QStringLiteral("basDiaryFunctions"), QStringLiteral("grdActivities_AfterColUpdate"),
          QStringLiteral("Error Adjusting Calories"),
          QStringLiteral("The calories of this exercise could not be adjusted.  "), true};
}

}  // namespace

ExercisesPage::ExercisesPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("ExercisesPage"), parent) {
  auto *buttons = new PageButtons(day_.Kind().isSmall, this);
  MakeButtons(*buttons);
  QVBoxLayout *const content = buttons->LayOutPage();
  MakeGrid(parts, *content);
  if (day_.Kind().hasNetCalories) {
    netCalories_ = new NetCaloriesLine(session_, QStringLiteral("lblTotalsActivities2"), this);
    content->addWidget(netCalories_);
  }
  FollowOthers();
}

// The rows speak to the page until they are gone.
ExercisesPage::~ExercisesPage() { delete grdActivities; }

void ExercisesPage::MakeButtons(PageButtons &buttons) {
  const bool planned = day_.Kind().entries == EntryKind::Planned;
  QPushButton *const cmdNewActivity =
      buttons.AddNew(QStringLiteral("cmdNewActivity"), planned ? tr("Plans an exercise.") : tr("Adds an exercise."));
  cmdDeleteActivity = buttons.AddDelete(QStringLiteral("cmdDeleteActivity"), tr("Deletes the marked exercises."));
  QPushButton *const cmdPrintActivity =
      buttons.AddPrint(QStringLiteral("cmdPrintActivity"), tr("Prints the exercises shown here."));
  buttons.AddStretch();
  NeedsDoor(*cmdNewActivity, doors_.AddActivity);
  connect(cmdNewActivity, &QPushButton::clicked, this, &ExercisesPage::OnNew);
  connect(cmdDeleteActivity, &QPushButton::clicked, this, [this] {
    grdActivities->DeleteSelected();
    grdActivities->setFocus();
  });
  connect(cmdPrintActivity, &QPushButton::clicked, this, &ExercisesPage::Print);
  if (day_.Kind().isSmall) return;
  QPushButton *const cmdExerciseSetup =
      buttons.Add({.name = QStringLiteral("cmdExerciseSetup"),
                   .caption = tr("E&xercises..."),
                   .tip = tr("Opens the list of exercises, where you can add your own.")});
  NeedsDoor(*cmdExerciseSetup, navigator_.OpenExercises);
  connect(cmdExerciseSetup, &QPushButton::clicked, this, [this] {
    if (grdActivities->CommitRow()) navigator_.OpenExercises(window());
  });
}

void ExercisesPage::MakeGrid(const JournalParts &parts, QVBoxLayout &content) {
  const bool planned = day_.Kind().entries == EntryKind::Planned;
  grdActivities = MakeDayGrid(parts,
                              {.grid = QStringLiteral("grdActivities"),
                               .label = planned ? tr("Planned exercises") : tr("Exercises"),
                               .recordSource = QStringLiteral("datActivities"),
                               .table = Table::Activities},
                              this);
  grdActivities->SetPlaceholderText(planned ? tr("No exercise is planned.\nClick New to plan one.")
                                            : tr("No exercise yet.\nClick New to add one."));
  (new GridMenu(session_, navigator_, this))->Attach(*grdActivities);
  content.addWidget(grdActivities, 1);
  totals_ = new ExerciseTotalsRow(*grdActivities, this);
  content.addWidget(totals_);

  GridHooks &hooks = grdActivities->Hooks();
  hooks.afterCell = [this](GridRowEdit &row, const QString &column) { OnCell(row, column); };
  hooks.beforeUpdate = [](GridRowEdit &row) {
    return ComplaintAboutActivity([&row](const QString &field) { return row.Get(field); });
  };
  const GridModel &model = grdActivities->Model();
  connect(&model, &GridModel::CellEdited, this, [this](int, const QString &column) { OnCellEdited(column); });
  connect(&model, &GridModel::RowStateChanged, this, &ExercisesPage::ShowTotals);
  connect(&model, &QAbstractItemModel::modelReset, this, &ExercisesPage::ShowTotals, Qt::QueuedConnection);
  connect(grdActivities, &BoundGrid::CurrentRowChanged, this, &ExercisesPage::ShowRowState);
  FollowCurrentRow(*grdActivities, day_);
}

void ExercisesPage::FollowOthers() {
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &ExercisesPage::ShowTotals);
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    if (change.table == Table::ActivitiesList && isVisible()) grdActivities->Refresh();  // its words stand in the rows
    static constexpr Table inTotals[] = {Table::Activities, Table::Meals, Table::WeightLoss, Table::People,
                                         Table::SelectedNutrients};
    if (std::find(std::begin(inTotals), std::end(inTotals), change.table) != std::end(inTotals)) ShowTotals();
  });
}

void ExercisesPage::ShowView(JournalView view) {
  const bool allDates = view == JournalView::AllDates;
  const bool small = day_.Kind().isSmall;
  GridColumns columns = ActivityColumns(small);
  columns.insert(columns.begin(), DateColumn());
  columns.front().visible = allDates;
  const QString layout =
      allDates ? QStringLiteral("view_all_activities.grd") : QStringLiteral("view_single_activities.grd");
  if (!small) LoadLayout(session_, layout, columns);
  grdActivities->SetColumns(std::move(columns));
  grdActivities->SetSpareColumn(exerciseColumn);
  grdActivities->SetStayingColumn(exerciseColumn);
}

void ExercisesPage::ShowRows() {
  grdActivities->Open(session_.Data(), ActivitiesSource(day_.Scope(), day_.Kind().entries));
  GoToColumn(day_.IsSingleDate() ? exerciseColumn : minutesColumn);
  ShowTotals();
}

void ExercisesPage::GoToColumn(const QString &column) {
  const QModelIndex current = grdActivities->currentIndex();
  const int at = grdActivities->Model().ColumnByName(column);
  if (current.isValid() && at >= 0) grdActivities->Selection().GoTo(current.siblingAtColumn(at));
}

ExerciseTotalsText ExercisesPage::Totals() const { return TellExercises(session_, day_, GridDayRows(*grdActivities)); }

void ExercisesPage::ShowTotals() {
  if (!isVisible() || !grdActivities->Model().IsOpen()) return;
  GuardedQuietly([this] {
    const ExerciseTotalsText totals = Totals();
    totals_->Tell(totals);
    if (netCalories_) netCalories_->Tell(totals.net);
  });
}

void ExercisesPage::ShowRowState() {
  cmdDeleteActivity->setEnabled(grdActivities->CurrentKey().has_value());
  if (!day_.IsSingleDate()) ShowTotals();
}

// Figures that no number can hold leave the row as it was.
void ExercisesPage::OnCell(GridRowEdit &row, const QString &column) {
  std::function<void()> follow;
  if (column == exerciseColumn) {
    follow = [&] { TakeOverExercise(session_, row, session_.settings.RecalcCalories && day_.Kind().scalesByWeight); };
  } else if (column == minutesColumn && WantsCaloriesAdjusted()) {
    follow = [&] { AdjustCaloriesToMinutes(row); };
  }
  if (follow && !Guarded(session_, CaloriesFailure(), follow)) row.Undo(column);
}

bool ExercisesPage::WantsCaloriesAdjusted() {
  if (session_.settings.ConfirmExerciseUpdates != askToAdjust) {
    return session_.settings.ConfirmExerciseUpdates == alwaysAdjust;
  }
  return session_.boxes.Ask(
      QStringLiteral("Adjust Calories Burned"),
      QStringLiteral("Adjust the Calories Burned for this exercise to reflect the new minutes of activity?"));
}

// A chosen exercise is followed by its minutes, wherever the list was left; keys that go on go on from there.
void ExercisesPage::OnCellEdited(const QString &column) {
  if (column != exerciseColumn) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (grdActivities->CurrentColumn() == exerciseColumn && !grdActivities->OpenEditor()) GoToColumn(minutesColumn);
      },
      Qt::QueuedConnection);
}

void ExercisesPage::OnNew() {
  if (!grdActivities->CommitRow()) return;
  const bool noRow = !day_.IsSingleDate() && !grdActivities->CurrentKey();
  std::optional<std::pair<int, QDate>> added;
  doors_.AddActivity(window(), {.kind = day_.Kind(),
                                .date = noRow ? session_.Today() : day_.Date(),
                                .stored = [&added](int recordID, const QDate &date) {
                                  added = {recordID, date};
                                }});
  if (added) OnAdded(added->first, added->second);
  grdActivities->setFocus();
}

void ExercisesPage::OnAdded(int recordID, const QDate &date) {
  day_.FollowAdded(date);
  if (grdActivities->GoToKey(recordID)) return GoToColumn(exerciseColumn);
  LogError(session_, QStringLiteral("basMain"), QStringLiteral("AddRec"),
           QStringLiteral("Unable to find a match for criteria: RecordID=%1").arg(recordID));
}

EditOutcome ExercisesPage::SaveOpenEdit() {
  if (grdActivities->CommitRow()) return EditOutcome::Saved;
  return grdActivities->Model().RefusalOfRow().isEmpty() ? EditOutcome::Failed : EditOutcome::Refused;
}

void ExercisesPage::DropOpenEdit() { grdActivities->UndoRow(); }

void ExercisesPage::TakeFocus() {
  ShowTotals();
  grdActivities->setFocus();
}

void ExercisesPage::Print() {
  if (!grdActivities->CommitRow()) return;
  if (grdActivities->Model().RecordCount() == 0) {
    return session_.boxes.Warn(QStringLiteral("No Data to Print"), day_.Kind().noDataToPrint);
  }
  trimlog::Print(session_, QStringLiteral("frmDiary"), QStringLiteral("cmdPrintActivity_Click"),
                 [this](Printing &printing) {
                   const QString title = ExercisesPrintTitle(day_, session_.locale);
                   PrintedList list = PrintedGrid(*grdActivities, PrintedHeading(session_, title));
                   QStringList columns;
                   for (const int column : TextColumns(grdActivities->Model())) {
                     columns.append(grdActivities->Model().Columns()[column].name);
                   }
                   list.closing = ExerciseClosingRows(day_.Kind(), Totals(), columns, session_.locale);
                   return printing.PrintList(list);
                 });
}

}  // namespace trimlog
