#include "catalogs/windows/frmAddMeal.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

#include "catalogs/windows/food_find_bar.h"
#include "catalogs/windows/food_list_page.h"
#include "catalogs/windows/food_page.h"
#include "catalogs/windows/food_search_page.h"
#include "catalogs/windows/picked_day.h"
#include "catalogs/windows/row_button.h"
#include "catalogs/windows/servings_field.h"
#include "catalogs/windows/servings_selector.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/art.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/profiles/add_rec_page.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/controls/spoken_label.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

constexpr int headingPicture = 40;

FailureExit LoadingPickerFailure() {
  return {QStringLiteral("frmAddMeal"), QStringLiteral("Form_Load"), QStringLiteral("Error Loading Setup Info"),
          QStringLiteral("An error occurred while loading your setup information.")};
}

FailureExit AddingFoodFailure() {
  return {QStringLiteral("basMain"), QStringLiteral("AddRec"), QStringLiteral("Error Adding Food"),
          QStringLiteral("An error occurred while adding this food.  "), true};
}

}  // namespace

frmAddMeal::frmAddMeal(Session &session, const Navigator &navigator, const FoodPicking &picking, QWidget *owner)
    : QDialog(owner),
      session_(session),
      navigator_(navigator),
      picking_(picking),
      kind_(PickedFoodLists(picking.recipesOffered, session.edition.BizEd)) {
  setObjectName(QStringLiteral("frmAddMeal"));
  setWindowTitle(picking_.caption);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setSizeGripEnabled(true);
  auto *layout = new QVBoxLayout(this);
  AddHeading(layout);
  fraServings = new ServingsSelector(session_.locale, this);
  cmdSelectFood = new RowButton(QStringLiteral("cmdSelectFood"), QStringLiteral("&Add"), this);
  cmdSelectFood->setToolTip(QStringLiteral("Adds this food and stays here. (Enter on the food)"));
  resize(QSize(1060, 640).boundedTo(screen()->availableSize() * 9 / 10));
  const bool loaded = Guarded(session_, LoadingPickerFailure(), [&] {
    if (picking_.forDay) {
      day_ = new PickedDay(session_, picking_, this);
      layout->addWidget(day_);
    }
    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(QStringLiteral("Foods"));
    layout->addWidget(SSTab1, 1);
    AddPages();
  });
  AddButtons(layout);
  if (loaded) Connect();
  UpdateRowState();
}

void frmAddMeal::AddHeading(QVBoxLayout *layout) {
  auto *row = new QHBoxLayout;
  layout->addLayout(row);
  auto *picture = new QLabel(this);
  picture->setObjectName(picking_.forDay ? QStringLiteral("pnlHeaderPic") : QStringLiteral("pnlRecipePic"));
  const QString name = picking_.forDay ? QStringLiteral("journal") : QStringLiteral("edit");
  picture->setPixmap(ArtIcon(name).pixmap(QSize(headingPicture, headingPicture), devicePixelRatioF()));
  auto *lblHeader = new QLabel(picking_.header, this);
  lblHeader->setObjectName(QStringLiteral("lblHeader"));
  lblHeader->setTextFormat(Qt::PlainText);
  lblHeader->setWordWrap(true);
  row->addWidget(picture);
  row->addWidget(lblHeader, 1);
}

void frmAddMeal::AddPages() {
  listPage_ = new FoodListPage(session_, kind_, SSTab1);
  searchPage_ = new FoodSearchPage(session_, kind_, SSTab1);
  SSTab1->addTab(listPage_, QStringLiteral(" Find Food by Group/List   "));
  SSTab1->addTab(searchPage_, QStringLiteral("  Find Food by Name Search    "));
  tabs_[0] = MakeTab(listPage_, listPage_->Grid(), listPage_->GridRow(), 0);
  tabs_[1] = MakeTab(searchPage_, searchPage_->Grid(), searchPage_->GridRow(), 1);
  listPage_->Show(FirstSelection(kind_, session_));
  listAtFirst_ = listPage_->Shown().list;
  cmdSelectFood->StandBeside(*tabs_[0].grid, *tabs_[0].strip);
  listPage_->Grid()->setFocus();
}

frmAddMeal::Tab frmAddMeal::MakeTab(QWidget *page, BoundGrid *grid, QBoxLayout *gridRow, int index) {
  Tab tab{page, grid, cmdSelectFood->MakeStrip(page), nullptr};
  gridRow->insertWidget(0, tab.strip);
  tab.servings = new ServingsField(index, session_.locale, *fraServings, page);
  auto *below = new QHBoxLayout;
  below->addWidget(tab.servings);
  below->addSpacing(spacing::roomy);
  if (index == 0) {
    below->addWidget(new FoodFindBar(session_, *grid, page), 1);
  } else {
    below->addStretch();
  }
  static_cast<QVBoxLayout *>(page->layout())->addLayout(below);
  return tab;
}

void frmAddMeal::AddButtons(QVBoxLayout *layout) {
  lblAdded = new SpokenLabel(QStringLiteral("lblAdded"), this);
  lblAdded->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long name shall not widen the window
  layout->addWidget(lblAdded);
  auto *row = new QHBoxLayout;
  layout->addLayout(row);
  row->addStretch();
  cmdNewMeal = AddButton(row, QStringLiteral("cmdNewMeal"), QStringLiteral("&New Food..."),
                         QStringLiteral("Makes a food of your own and selects it."));
  cmdOK = AddButton(row, QStringLiteral("cmdOK"), QStringLiteral("&OK"),
                    QStringLiteral("Adds the selected food and closes."));
  QPushButton *cmdSelectClose = AddButton(row, QStringLiteral("cmdSelectClose"), QStringLiteral("&Close"),
                                          QStringLiteral("Closes without adding. (Esc)"));
  QPushButton *cmdHelp = AddButton(row, QStringLiteral("cmdHelp"), QStringLiteral("&Help"), {});
  NeedsDoor(*cmdHelp, navigator_.ShowHelp);
  connect(cmdSelectClose, &QPushButton::clicked, this, &frmAddMeal::reject);
  connect(cmdHelp, &QPushButton::clicked, this, [this] { navigator_.ShowHelp(QStringLiteral("add_food")); });
}

QPushButton *frmAddMeal::AddButton(QBoxLayout *layout, const QString &name, const QString &caption,
                                   const QString &tip) {
  auto *button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setAutoDefault(false);  // Enter belongs to the foods
  layout->addWidget(button);
  return button;
}

void frmAddMeal::Connect() {
  for (const Tab &tab : tabs_) {
    connect(tab.grid, &BoundGrid::CurrentRowChanged, this, &frmAddMeal::UpdateRowState);
    connect(tab.grid, &BoundGrid::RowActivated, this, &frmAddMeal::AddPicked);
  }
  connect(cmdSelectFood, &QPushButton::clicked, this, [this] {
    AddPicked();
    CurrentTab().grid->setFocus();
  });
  connect(cmdOK, &QPushButton::clicked, this, [this] {
    if (AddPicked()) accept();
  });
  connect(cmdNewMeal, &QPushButton::clicked, this, &frmAddMeal::OnNew);
  connect(searchPage_, &FoodSearchPage::Searched, this, &frmAddMeal::OnSearched);
  connect(SSTab1, &QTabWidget::currentChanged, this, &frmAddMeal::OnTabChanged);
  connect(&session_.changes, &DataChanges::Changed, this, &frmAddMeal::OnChanged);
}

const frmAddMeal::Tab &frmAddMeal::CurrentTab() const {
  return tabs_[SSTab1->currentWidget() == tabs_[1].page ? 1 : 0];
}

void frmAddMeal::UpdateRowState() {
  const bool onFood = tabs_[1].grid && CurrentTab().grid->CurrentKey().has_value();
  cmdNewMeal->setEnabled(tabs_[1].grid != nullptr);
  cmdOK->setEnabled(onFood);
  cmdSelectFood->setEnabled(onFood);
}

void frmAddMeal::OnTabChanged() {
  const Tab &tab = CurrentTab();
  cmdSelectFood->StandBeside(*tab.grid, *tab.strip);
  UpdateRowState();
  if (tab.page == searchPage_) {
    searchPage_->setFocus();
  } else {
    tab.grid->setFocus();
  }
}

// What was found is there to be added: the first of the foods is only an Enter away.
void frmAddMeal::OnSearched() {
  BoundGrid *grid = searchPage_->Grid();
  if (const std::optional<qint64> first = grid->Model().KeyOfRow(0)) {
    grid->GoToKey(*first);
    grid->setFocus();
  }
  UpdateRowState();
}

FoodPicked frmAddMeal::Picked() const {
  const BoundGrid &grid = *CurrentTab().grid;
  FoodPicked picked;
  if (day_) {
    picked.date = day_->Date();
    picked.MealTypeID = day_->MealTypeID();
  }
  picked.servings = CurrentTab().servings->Field()->text();
  picked.MealID = static_cast<int>(grid.CurrentKey().value_or(0));
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    const int column = grid.Model().ColumnByName(QStringLiteral("Nut%1").arg(i + 1));
    picked.shown[i] = grid.Model().index(grid.currentIndex().row(), column).data().toString();
  }
  return picked;
}

bool frmAddMeal::CheckPicked(const FoodPicked &picked) {
  const std::optional<PickRefusal> refusal = AddRecValidate(picked, picking_.forDay, session_.locale);
  if (!refusal) return true;
  session_.boxes.Critical(refusal->title, refusal->text);
  QLineEdit *field =
      refusal->field == PickedField::Date ? static_cast<QLineEdit *>(day_->DateBox()) : CurrentTab().servings->Field();
  field->setFocus();
  field->selectAll();
  return false;
}

bool frmAddMeal::AddPicked() {
  const FoodPicked picked = Picked();
  if (!CheckPicked(picked) || picked.MealID == 0) return false;
  bool added = false;
  Guarded(session_, AddingFoodFailure(), [&] { added = picking_.add(EntryOf(session_, picked)); });
  if (added) {
    lblAdded->Tell(AddedText(CurrentTab().grid->CurrentField(QStringLiteral("MealDesc")).toString(), picked.servings,
                             day_ ? day_->MealText() : QString(), ShortDate(picked.date, session_.locale)));
  }
  return added;
}

void frmAddMeal::OnNew() {
  Guarded(session_, LoadingPickerFailure(), [&] {
    AddRec(
        this, [&](QWidget *parent) { return new FoodPage(session_, groupOfNewFoods, parent); },
        [this](AddRecPage &page) {
          SSTab1->setCurrentWidget(listPage_);
          listPage_->GoToFood(static_cast<FoodPage &>(page).MealID());
          listPage_->Grid()->setFocus();
        });
  });
}

void frmAddMeal::OnChanged(const DataChange &change) {
  if (change.table == Table::MealsList) {
    listPage_->UpdateHeading();
    searchPage_->UpdateHeading();
    UpdateRowState();
  }
  if (change.table == Table::SelectedNutrients) {
    listPage_->NutrientsChanged();
    searchPage_->NutrientsChanged();
  }
}

// Enter in the servings adds, as it does on the food itself; from a choice or the date it goes on to the foods.
void frmAddMeal::keyPressEvent(QKeyEvent *event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  QWidget *at = focusWidget();
  if (!enter || !tabs_[1].grid || !at) {
    QDialog::keyPressEvent(event);
  } else if (at == CurrentTab().servings->Field()) {
    if (AddPicked()) CurrentTab().grid->setFocus();
  } else if ((day_ && at == day_->DateBox()) || qobject_cast<QComboBox *>(at)) {
    CurrentTab().grid->setFocus();
  }
}

void frmAddMeal::done(int result) {
  if (listPage_) {
    const FoodSelection &shown = listPage_->Shown();
    if (shown.list != listAtFirst_) session_.settings.LastRecordTypeMeals = shown.list;
    session_.windows.pickedFoodSort = shown.sort;
  }
  QDialog::done(result);
}

}  // namespace trimlog
