#include "journal/windows/meals_page.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "core/session/failure_guard.h"
#include "core/session/print.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/grid_menu.h"
#include "journal/day/grid_layout.h"
#include "journal/day/meal_columns.h"
#include "journal/day/meal_edit.h"
#include "journal/day/printed_heading.h"
#include "journal/windows/day_grid.h"
#include "journal/windows/frmConfirmMealUpdates.h"
#include "journal/windows/meal_totals.h"
#include "journal/windows/page_buttons.h"
#include "platform/grid/grid_export.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/printing/grid_printer.h"

namespace trimlog {

namespace {

constexpr auto foodColumn = "MealID";
constexpr auto servingsColumn = "Amount";

DayGridNames MealsGridNames() {
  return {QStringLiteral("grdMeals"), QStringLiteral("Meals and snacks"), QStringLiteral("datMeals"), Table::Meals};
}

QString LayoutFile(JournalView view) {
  return view == JournalView::AllDates ? QStringLiteral("view_all_meals.grd") : QStringLiteral("view_single_meals.grd");
}

FailureExit ServingsFailure() {
  return {QStringLiteral("basDiaryFunctions"), QStringLiteral("AdjustNutrientValues"),
          QStringLiteral("Error Adjusting Nutrients"),
          QStringLiteral("The nutrients of this food could not be adjusted.  "), true};
}

void GoToColumn(BoundGrid &grid, const QString &column) {
  const QModelIndex row = grid.currentIndex();
  if (row.isValid()) grid.Selection().GoTo(row.siblingAtColumn(grid.Model().ColumnByName(column)));
}

}  // namespace

MealsPage::MealsPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("MealsPage"), parent),
      buttons_(new PageButtons(parts.day.Kind().isSmall, this)),
      grdMeals(MakeDayGrid(parts, MealsGridNames(), this)),
      totals_(nullptr) {
  const QString spare = QLatin1String(foodColumn);
  grdMeals->SetSpareColumn(spare);
  grdMeals->SetStayingColumn(spare);
  const bool planned = parts.day.Kind().entries == EntryKind::Planned;
  grdMeals->SetPlaceholderText(planned ? QStringLiteral("No food is planned.\nClick New to plan one.")
                                       : QStringLiteral("No food yet.\nClick New to add one."));
  totals_ = new MealTotals(parts, *grdMeals, this);
  QVBoxLayout *const content = buttons_->LayOutPage();
  content->addWidget(grdMeals, 1);
  content->addWidget(totals_);
  AddButtons();
  ConnectGrid();
  (new GridMenu(session_, navigator_, this))->Attach(*grdMeals);
  connect(&session_.changes, &DataChanges::Changed, this, &MealsPage::OnChanged);
  connect(&session_.changes, &DataChanges::SettingsChanged, this, [this] {
    totals_->ForgetDay();  // the basal rate may count now
    UpdateTotals();
  });
}

// The rows speak to the page until they are gone.
MealsPage::~MealsPage() { delete grdMeals; }

void MealsPage::AddButtons() {
  cmdNewMeal = buttons_->AddNew(QStringLiteral("cmdNewMeal"), QStringLiteral("Adds foods and meals."));
  cmdDeleteMeal = buttons_->AddDelete(QStringLiteral("cmdDeleteMeal"), QStringLiteral("Deletes the marked rows."));
  cmdPrintMeal = buttons_->AddPrint(QStringLiteral("cmdPrintMeal"), QStringLiteral("Prints this list and its totals."));
  NeedsDoor(*cmdNewMeal, doors_.AddMeal);
  connect(cmdNewMeal, &QPushButton::clicked, this, &MealsPage::OnNew);
  connect(cmdDeleteMeal, &QPushButton::clicked, this, [this] {
    grdMeals->DeleteSelected();
    grdMeals->setFocus();
  });
  connect(cmdPrintMeal, &QPushButton::clicked, this, &MealsPage::Print);
  if (day_.Kind().isSmall) return buttons_->AddStretch();
  const auto addDoor = [this](const PageButton &button, const std::function<void(QWidget *)> &door) {
    QPushButton *const made = buttons_->Add(button);
    NeedsDoor(*made, door);
    // These windows may give the list other columns: what is being typed is saved first.
    connect(made, &QPushButton::clicked, this, [this, &door] {
      if (grdMeals->CommitRow()) door(window());
    });
  };
  buttons_->AddStretch();
  addDoor({QStringLiteral("cmdMealSetup"), QStringLiteral("F&oods..."), QStringLiteral("Opens the list of foods.")},
          navigator_.OpenFoodSetup);
  addDoor({QStringLiteral("cmdNutrients"), QStringLiteral("N&utrients..."),
           QStringLiteral("Chooses the nutrients that are shown.")},
          navigator_.OpenNutrientSelection);
  addDoor({QStringLiteral("cmdTargets"), QStringLiteral("Tar&gets..."), QStringLiteral("Sets the daily targets.")},
          navigator_.OpenTargets);
}

void MealsPage::ConnectGrid() {
  GridHooks &hooks = grdMeals->Hooks();
  hooks.beforeUpdate = [](GridRowEdit &row) { return CheckMealRow(row); };
  hooks.afterCell = [this](GridRowEdit &row, const QString &column) { FollowCell(row, column); };
  connect(&grdMeals->Model(), &GridModel::CellEdited, this, [this](int, const QString &column) { AfterCell(column); });
  connect(&grdMeals->Model(), &GridModel::RowStateChanged, this, &MealsPage::UpdateTotals);
  connect(&grdMeals->Model(), &QAbstractItemModel::modelReset, this, &MealsPage::UpdateTotals, Qt::QueuedConnection);
  FollowCurrentRow(*grdMeals, day_);
  connect(grdMeals, &BoundGrid::CurrentRowChanged, this, &MealsPage::OnRow);
}

EditOutcome MealsPage::SaveOpenEdit() { return SaveDayGrid(session_, *grdMeals); }

void MealsPage::DropOpenEdit() { DropDayGrid(*grdMeals); }

void MealsPage::TakeFocus() {
  UpdateTotals();
  grdMeals->setFocus();
}

void MealsPage::SetColumns() {
  GridColumns columns = {DateColumn()};
  columns.front().savesAtOnce = true;
  columns.front().visible = !day_.IsSingleDate();
  for (GridColumn &column : MealColumns(session_, day_.Kind().isSmall)) columns.push_back(std::move(column));
  if (!day_.Kind().isSmall) LoadLayout(session_, LayoutFile(day_.View()), columns);
  grdMeals->SetColumns(std::move(columns));
  totals_->Arrange();
}

void MealsPage::ShowView(JournalView) { SetColumns(); }

void MealsPage::ShowRows() {
  grdMeals->Open(session_.Data(), MealsSource(day_.Scope(), day_.Kind().entries));
  if (!day_.IsSingleDate()) GoToColumn(*grdMeals, QLatin1String(servingsColumn));
  OnRow();
  UpdateTotals();
}

void MealsPage::showEvent(QShowEvent *event) {
  JournalPage::showEvent(event);
  UpdateTotals();
}

void MealsPage::UpdateTotals() {
  if (!isVisible() || !grdMeals->Model().IsOpen()) return;
  totals_->Update();
}

// A value that no number can hold leaves the row as it was.
void MealsPage::FollowCell(GridRowEdit &row, const QString &column) {
  const auto ask = [this] { return ConfirmMealUpdates(session_, window()); };
  if (!Guarded(session_, ServingsFailure(), [&] { FollowMealCell(session_, row, column, ask); })) row.Undo(column);
}

void MealsPage::AfterCell(const QString &column) {
  if (column == QLatin1String(foodColumn)) {
    // The editor is still open; a key that left it has gone on by itself then.
    const auto toServings = [this] {
      const bool stays = !grdMeals->OpenEditor() && grdMeals->CurrentColumn() == QLatin1String(foodColumn);
      if (stays) GoToColumn(*grdMeals, QLatin1String(servingsColumn));
    };
    QMetaObject::invokeMethod(this, toServings, Qt::QueuedConnection);
  }
  if (column == QStringLiteral("ThisDate")) {
    day_.FollowRow(grdMeals->CurrentField(column).toDate());
    UpdateTotals();
  }
}

// All rows of a single date are of one day: another one of them changes no total.
void MealsPage::OnRow() {
  cmdDeleteMeal->setEnabled(grdMeals->CurrentKey().has_value());
  if (!day_.IsSingleDate()) UpdateTotals();
}

void MealsPage::OnNew() {
  if (!grdMeals->CommitRow()) return;
  EntryOpening opening{.kind = day_.Kind(), .date = day_.Date()};
  if (grdMeals->CurrentKey()) opening.MealTypeID = grdMeals->CurrentField(QStringLiteral("MealTypeID")).toInt();
  opening.stored = [this](int recordID, const QDate &date) { OnAdded(recordID, date); };
  doors_.AddMeal(window(), opening);
  UpdateTotals();
  grdMeals->setFocus();
}

void MealsPage::OnAdded(int recordID, const QDate &date) {
  day_.FollowAdded(date);
  GoToAddedRow(session_, *grdMeals, recordID, QStringLiteral("MealTypeID"));
}

void MealsPage::OnChanged(const DataChange &change) {
  if (!grdMeals->Model().IsOpen()) return;
  switch (change.table) {
    case Table::MealsList:
      grdMeals->Refresh();  // the foods' names stand in it
      break;
    case Table::SelectedNutrients:
      SetColumns();
      grdMeals->Refresh();
      break;
    case Table::Activities:
    case Table::WeightLoss:
    case Table::People:
      totals_->ForgetDay();
      break;
    case Table::Meals:
    case Table::NutritionTargets:
      break;
    default:
      return;
  }
  UpdateTotals();
}

void MealsPage::Print() {
  if (!grdMeals->CommitRow()) return;
  if (grdMeals->Model().RecordCount() == 0) {
    session_.boxes.Warn(QStringLiteral("No Data to Print"), day_.Kind().noDataToPrint);
    return;
  }
  // The base's name hides the function's.
  trimlog::Print(session_, QStringLiteral("frmDiary"), QStringLiteral("cmdPrintMeal_Click"),
                 [this](Printing &printing) { return printing.PrintList(PrintedMeals()); });
}

PrintedList MealsPage::PrintedMeals() {
  const QString title = MealsPrintTitle(day_.Kind(), day_.View(), day_.Date(), session_.locale);
  PrintedList list = PrintedGrid(*grdMeals, PrintedHeading(session_, title));
  QStringList names;
  for (const int column : TextColumns(grdMeals->Model())) names.append(grdMeals->Model().Columns()[column].name);
  list.closing = MealsClosingRows(day_.Kind(), totals_->Closing(), names, session_.locale);
  return list;
}

}  // namespace trimlog
