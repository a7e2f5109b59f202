#include "catalogs/windows/frmSetupFoods.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

#include "catalogs/food_catalog.h"
#include "catalogs/food_lists.h"
#include "catalogs/windows/food_list_page.h"
#include "catalogs/windows/food_page.h"
#include "catalogs/windows/food_search_page.h"
#include "core/session/failure_guard.h"
#include "core/session/print.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/grid_menu.h"
#include "core/windows/profiles/add_rec_page.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/printing/grid_printer.h"

namespace trimlog {

namespace {

FailureExit LoadFailure() {
  return {QStringLiteral("frmSetupFoods"), QStringLiteral("Form_Load"), QStringLiteral("Error Loading Setup Info"),
          QStringLiteral("An error occurred while loading your setup information.")};
}

}  // namespace

frmSetupFoods::frmSetupFoods(Session &session, const Navigator &navigator, QWidget *owner)
    : QDialog(owner), session_(session), navigator_(navigator) {
  setObjectName(QStringLiteral("frmSetupFoods"));
  setWindowTitle(QStringLiteral("Food Setup"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setSizeGripEnabled(true);

  auto *layout = new QHBoxLayout(this);
  SSTab1 = new QTabWidget(this);
  SSTab1->setObjectName(QStringLiteral("SSTab1"));
  SSTab1->setAccessibleName(QStringLiteral("Foods"));
  layout->addWidget(SSTab1, 1);
  // As many nutrients side by side as the screen has room for.
  resize(QSize(1120, 640).boundedTo(screen()->availableSize() * 9 / 10));
  const bool loaded = Guarded(session_, LoadFailure(), [this] { AddPages(); });
  // Tab comes to the controls as they are made: from the foods to the buttons.
  auto *buttons = new QVBoxLayout;
  layout->addLayout(buttons);
  AddButtons(buttons);
  if (!loaded) {
    for (QPushButton *button : {cmdNewMeal, cmdDeleteMeal, cmdCopyMeal, cmdAllNutrients, cmdPrintMeals}) {
      button->setEnabled(false);
    }
    return;
  }
  ConnectButtons();
  connect(SSTab1, &QTabWidget::currentChanged, this, &frmSetupFoods::OnTabChanged);
  connect(&session_.changes, &DataChanges::Changed, this, &frmSetupFoods::OnChanged);
  listPage_->Grid()->setFocus();
  UpdateRowState();
}

void frmSetupFoods::AddPages() {
  listPage_ = new FoodListPage(session_, SetupFoodLists(), SSTab1);
  searchPage_ = new FoodSearchPage(session_, SetupFoodLists(), SSTab1);
  SSTab1->addTab(listPage_, QStringLiteral("Foods by Group/List   "));
  SSTab1->addTab(searchPage_, QStringLiteral("  Find Food by Name Search    "));
  auto *gridMenu = new GridMenu(session_, navigator_, this);
  gridMenu->Attach(*listPage_->Grid());
  gridMenu->Attach(*searchPage_->Grid());
  listPage_->Show({});
}

QPushButton *frmSetupFoods::AddButton(QVBoxLayout *layout, const QString &name, const QString &caption,
                                      const QString &tip, Qt::Key key) {
  auto *button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setToolTip(tip);
  if (key != Qt::Key_unknown) {
    // The captions carry no access key of their own.
    button->setShortcut(Qt::ALT | key);
    button->setToolTip(tip + QStringLiteral(" (%1)").arg(button->shortcut().toString(QKeySequence::NativeText)));
  }
  button->setAutoDefault(false);  // Enter belongs to the grid and to the search
  layout->addWidget(button);
  return button;
}

void frmSetupFoods::AddButtons(QVBoxLayout *layout) {
  cmdNewMeal = AddButton(layout, QStringLiteral("cmdNewMeal"), QStringLiteral("New"),
                         QStringLiteral("Adds a food of your own."), Qt::Key_N);
  cmdDeleteMeal = AddButton(layout, QStringLiteral("cmdDeleteMeal"), QStringLiteral("Delete"),
                            QStringLiteral("Deletes the marked foods and their journal entries."), Qt::Key_D);
  cmdCopyMeal = AddButton(layout, QStringLiteral("cmdCopyMeal"), QStringLiteral("Copy Food"),
                          QStringLiteral("Copies a pre-loaded food to My Foods, where you can change it."), Qt::Key_C);
  cmdAllNutrients = AddButton(layout, QStringLiteral("cmdAllNutrients"), QStringLiteral("All Nutrients..."),
                              QStringLiteral("Shows all 35 nutrients of the food."), Qt::Key_A);
  cmdPrintMeals = AddButton(layout, QStringLiteral("cmdPrintMeals"), QStringLiteral("Print Foods"),
                            QStringLiteral("Prints the foods listed here."), Qt::Key_P);
  cmdRecipes = AddButton(layout, QStringLiteral("cmdRecipes"), QStringLiteral("Recipes..."),
                         QStringLiteral("Opens your recipes."), Qt::Key_R);
  layout->addStretch();
  pnlFoodInfo = AddButton(layout, QStringLiteral("pnlFoodInfo"), QStringLiteral("Food Info..."),
                          QStringLiteral("Tells where the foods and their nutrients come from."), Qt::Key_F);
  cmdTipsFoods = AddButton(layout, QStringLiteral("cmdTipsFoods"), QStringLiteral("&Tips..."), {});
  cmdHelp = AddButton(layout, QStringLiteral("cmdHelp"), QStringLiteral("&Help"), {});
  cmdOK = AddButton(layout, QStringLiteral("cmdOK"), QStringLiteral("&OK"), {});
  NeedsDoor(*cmdRecipes, navigator_.OpenRecipes);
  for (QPushButton *help : {pnlFoodInfo, cmdTipsFoods, cmdHelp}) {
    NeedsDoor(*help, navigator_.ShowHelp);
  }
  connect(cmdOK, &QPushButton::clicked, this, &frmSetupFoods::accept);
  connect(pnlFoodInfo, &QPushButton::clicked, this, [this] { navigator_.ShowHelp(QStringLiteral("68")); });
  connect(cmdTipsFoods, &QPushButton::clicked, this, [this] { navigator_.ShowHelp(QStringLiteral("tips_foods")); });
  connect(cmdHelp, &QPushButton::clicked, this, [this] { navigator_.ShowHelp(QStringLiteral("foods")); });
}

void frmSetupFoods::ConnectButtons() {
  for (BoundGrid *grid : {listPage_->Grid(), searchPage_->Grid()}) {
    connect(grid, &BoundGrid::CurrentRowChanged, this, &frmSetupFoods::UpdateRowState);
    connect(grid, &BoundGrid::RowActivated, this, &frmSetupFoods::OnAllNutrients);
  }
  connect(cmdNewMeal, &QPushButton::clicked, this, &frmSetupFoods::OnNew);
  connect(cmdDeleteMeal, &QPushButton::clicked, this, &frmSetupFoods::OnDelete);
  connect(cmdCopyMeal, &QPushButton::clicked, this, &frmSetupFoods::OnCopy);
  connect(cmdAllNutrients, &QPushButton::clicked, this, &frmSetupFoods::OnAllNutrients);
  connect(cmdPrintMeals, &QPushButton::clicked, this, &frmSetupFoods::OnPrint);
  connect(cmdRecipes, &QPushButton::clicked, this, [this] { navigator_.OpenRecipes(this); });
}

bool frmSetupFoods::OnSearchTab() const { return SSTab1->currentWidget() == searchPage_; }

BoundGrid *frmSetupFoods::CurrentGrid() const { return OnSearchTab() ? searchPage_->Grid() : listPage_->Grid(); }

void frmSetupFoods::UpdateRowState() {
  const BoundGrid *grid = CurrentGrid();
  const bool onFood = grid->CurrentKey().has_value();
  const bool own = onFood && grid->CurrentField(QStringLiteral("RecordTypeID")).toInt() != food_kind::preLoaded;
  cmdNewMeal->setEnabled(!OnSearchTab());
  cmdDeleteMeal->setEnabled(own);
  cmdCopyMeal->setEnabled(onFood && !own);
  cmdAllNutrients->setEnabled(onFood);
  cmdPrintMeals->setEnabled(grid->Model().RecordCount() > 0);
}

void frmSetupFoods::OnTabChanged() {
  UpdateRowState();
  if (OnSearchTab()) {
    searchPage_->setFocus();
  } else {
    listPage_->Grid()->setFocus();
  }
}

void frmSetupFoods::ShowCounts() {
  listPage_->UpdateHeading();
  searchPage_->UpdateHeading();
  UpdateRowState();
}

void frmSetupFoods::OnNew() {
  if (!CurrentGrid()->CommitRow()) return;
  const int chosen = listPage_->Shown().group;
  const int group = chosen == allFoodGroups ? groupOfNewFoods : chosen;
  Guarded(session_, LoadFailure(), [&] {
    AddRec(
        this, [&](QWidget *parent) { return new FoodPage(session_, group, parent); },
        [this](AddRecPage &page) { listPage_->GoToFood(static_cast<FoodPage &>(page).MealID()); });
  });
}

void frmSetupFoods::OnCopy() {
  const std::optional<qint64> key = CurrentGrid()->CurrentKey();
  if (!key) return;
  const QString name = CurrentGrid()->CurrentField(QStringLiteral("MealDesc")).toString();
  if (!session_.boxes.Ask(QStringLiteral("Copy Selected Food?"), CopyFoodQuestion(name))) return;
  const FailureExit failure{QStringLiteral("frmSetupFoods"), QStringLiteral("cmdCopyMeal_Click"),
                            QStringLiteral("Error Copying Food"),
                            QStringLiteral("An error occurred while trying to copy this food.")};
  Guarded(session_, failure, [&] { CopyFood(session_, static_cast<int>(*key)); });
}

void frmSetupFoods::OnDelete() { CurrentGrid()->DeleteSelected(); }

void frmSetupFoods::OnAllNutrients() {
  BoundGrid *grid = CurrentGrid();
  if (!grid->CommitRow() || !grid->CurrentKey()) return;
  const int mealID = static_cast<int>(*grid->CurrentKey());
  Guarded(session_, LoadFailure(), [&] {
    const FoodRecord food = ReadFood(session_, mealID);
    AddRec(this, [&](QWidget *parent) { return new FoodPage(session_, food, parent); });
  });
}

void frmSetupFoods::OnPrint() {
  if (!CurrentGrid()->CommitRow()) return;
  const QString heading = OnSearchTab() ? searchPage_->PrintedTitle() : listPage_->PrintedTitle();
  Print(session_, QStringLiteral("frmSetupFoods"), QStringLiteral("cmdPrintMeals_Click"),
        [&](Printing &printing) { return printing.PrintList(PrintedGrid(*CurrentGrid(), heading)); });
}

void frmSetupFoods::OnChanged(const DataChange &change) {
  if (change.table == Table::MealsList) ShowCounts();
  if (change.table == Table::SelectedNutrients) {
    listPage_->NutrientsChanged();
    searchPage_->NutrientsChanged();
  }
}

void frmSetupFoods::done(int result) {
  for (QWidget *page : {static_cast<QWidget *>(listPage_), static_cast<QWidget *>(searchPage_)}) {
    BoundGrid *grid = page ? page->findChild<BoundGrid *>() : nullptr;
    if (!grid || grid->CommitRow()) continue;
    SSTab1->setCurrentWidget(page);
    grid->setFocus();  // there stands what was refused; Esc takes it back
    return;
  }
  QDialog::done(result);
}

}  // namespace trimlog
