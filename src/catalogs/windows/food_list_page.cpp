#include "catalogs/windows/food_list_page.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include "catalogs/food_columns.h"
#include "catalogs/windows/alphabet_bar.h"
#include "platform/windows/controls/spoken_label.h"

namespace trimlog {

namespace {

QComboBox *AddCombo(QGridLayout *layout, int column, const QString &name, const QString &caption, QWidget *parent) {
  auto *label = new QLabel(caption, parent);
  auto *combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(6);  // they share what room there is
  label->setBuddy(combo);
  layout->addWidget(label, 0, column);
  layout->addWidget(combo, 1, column);
  return combo;
}

void Choose(QComboBox &combo, const QVariant &key) {
  const QSignalBlocker quiet(combo);
  combo.setCurrentIndex(combo.findData(key));
}

}  // namespace

FoodListPage::FoodListPage(Session &session, const FoodListKind &kind, QWidget *parent)
    : QWidget(parent), session_(session), kind_(kind) {
  auto *layout = new QVBoxLayout(this);
  auto *choices = new QGridLayout;
  layout->addLayout(choices);
  MakeChoices(choices);
  alphabet_ = new AlphabetBar(this);
  layout->addWidget(alphabet_);
  ShowAlphabet(false);
  lblFoods = new SpokenLabel(QStringLiteral("lblFoods"), this);
  lblFoods->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // its blanks shall not widen the window
  lblFoods->setWordWrap(true);
  layout->addWidget(lblFoods);
  grdMealsList = MakeFoodGrid(Names(), session_, this);
  grdMealsList->GiveRoom(QStringLiteral("MealGroupID"), QStringLiteral("MealDesc"));
  gridRow_ = new QHBoxLayout;
  gridRow_->addWidget(grdMealsList, 1);
  layout->addLayout(gridRow_, 1);

  for (QComboBox *box : {cboRecordTypeMeals, cboMealGroups, cboSort}) {
    connect(box, &QComboBox::currentIndexChanged, this, &FoodListPage::OnChosen);
  }
  connect(grdMealsList, &BoundGrid::Sorted, this, &FoodListPage::OnSorted);
  connect(cmdAplha, &QPushButton::clicked, this, [this] { ShowAlphabet(alphabet_->isHidden()); });
  connect(alphabet_, &AlphabetBar::LetterChosen, this, &FoodListPage::GoToLetter);
}

FoodGridNames FoodListPage::Names() const {
  return {QStringLiteral("grdMealsList"), QStringLiteral("Foods"), QStringLiteral("ddnMealGroups"),
          QStringLiteral("Form_Activate"), kind_.forPicking};
}

void FoodListPage::MakeChoices(QGridLayout *choices) {
  cboRecordTypeMeals = AddCombo(choices, 0, QStringLiteral("cboRecordTypeMeals"), QStringLiteral("Food &List:"), this);
  cboMealGroups = AddCombo(choices, 1, QStringLiteral("cboMealGroups"), QStringLiteral("Food &Group:"), this);
  cboSort = AddCombo(choices, 2, QStringLiteral("cboSort"), QStringLiteral("&Sort by:"), this);
  cmdAplha = new QPushButton(this);
  cmdAplha->setObjectName(QStringLiteral("cmdAplha"));
  cmdAplha->setAutoDefault(false);
  cmdAplha->setToolTip(QStringLiteral("Shows letters that jump in the list. (Alt+Z)"));
  choices->addWidget(cmdAplha, 1, 3);
  choices->setColumnStretch(0, 2);
  choices->setColumnStretch(1, 3);
  choices->setColumnStretch(2, 2);
  for (const FoodList &list : kind_.lists) cboRecordTypeMeals->addItem(list.text, list.key);
  for (const FoodGroup &group : FoodGroupChoices(session_)) cboMealGroups->addItem(group.text, group.key);
  FillSorts();
}

void FoodListPage::FillSorts() {
  const QSignalBlocker quiet(cboSort);
  cboSort->clear();
  const auto *items = qobject_cast<QStandardItemModel *>(cboSort->model());
  for (const FoodSortChoice &sort : FoodSortChoices(session_.nutrients)) {
    cboSort->addItem(sort.text, sort.key);
    items->item(cboSort->count() - 1)->setEnabled(!sort.IsSeparator());
  }
}

// The boxes say what the list shows, also where what a person chose could not be shown, or was sorted by its caption.
void FoodListPage::ShowChoices() {
  Choose(*cboRecordTypeMeals, shown_.list);
  Choose(*cboMealGroups, shown_.group);
  cboMealGroups->setEnabled(shown_.list != food_list::recent);
  cboSort->setPlaceholderText(SortedByText(grdMealsList->Model().Columns(), shown_.sort));
  Choose(*cboSort, shown_.sort);
}

QString FoodListPage::PrintedTitle() const {
  return PrintedFoodListTitle(cboRecordTypeMeals->currentText(), cboMealGroups->currentText());
}

void FoodListPage::OnChosen() {
  FoodSelection wanted = shown_;
  wanted.list = cboRecordTypeMeals->currentData().toInt();
  wanted.group = cboMealGroups->currentData().toInt();
  if (cboSort->currentIndex() >= 0) wanted.sort = cboSort->currentData().toString();
  const bool separator = FoodSortChoice{wanted.sort, {}}.IsSeparator();
  if (separator) {
    ShowChoices();
  } else {
    Show(wanted);
  }
}

bool FoodListPage::Show(FoodSelection wanted) {
  if (wanted.list == food_list::recent) wanted.group = allFoodGroups;
  const FailureExit failure = FoodGridFailure(GridAction::Load, Names().loadProcedure, kind_.forPicking);
  GridSource source;
  const bool shown = grdMealsList->CommitRow() &&
                     Guarded(session_, failure, [&] { source = PrepareFoodList(session_, kind_, wanted); }) &&
                     grdMealsList->Open(session_.Data(), source);
  if (shown) {
    shown_ = wanted;
    grdMealsList->SetPlaceholderText(EmptyListHint(kind_, shown_));
    grdMealsList->ShowColumn(QStringLiteral("MealGroupID"), shown_.group == allFoodGroups);
  }
  ShowChoices();
  UpdateHeading();
  return shown;
}

void FoodListPage::GoToFood(int mealID) {
  if (grdMealsList->GoToKey(mealID)) return;
  const FailureExit failure = FoodGridFailure(GridAction::Load, Names().loadProcedure, kind_.forPicking);
  Guarded(session_, failure, [&] {
    if (Show(SelectionHolding(ReadFood(session_, mealID), shown_))) grdMealsList->GoToKey(mealID);
  });
}

void FoodListPage::UpdateHeading() {
  lblFoods->Tell(FoodsDisplayedHeading(grdMealsList->Model().RecordCount(), shown_.group == allFoodGroups));
}

void FoodListPage::NutrientsChanged() {
  ShowSelectedNutrients(*grdMealsList, Names(), session_);
  FillSorts();
  FoodSelection wanted = shown_;
  // A column that is not shown any more orders nothing: the foods stand by their names again.
  if (!IsSortShown(grdMealsList->Model().Columns(), wanted.sort)) wanted.sort = byFoodName;
  Show(wanted);
}

// A click on a caption sorts too: the box names that order.
void FoodListPage::OnSorted() {
  shown_.sort = SortKeyOf(kind_, grdMealsList->Model().Source());
  ShowChoices();
}

void FoodListPage::ShowAlphabet(bool show) {
  alphabet_->setVisible(show);
  cmdAplha->setText(show ? QStringLiteral("A - Z  <<") : QStringLiteral("A - Z  >>"));
  cmdAplha->setShortcut(Qt::ALT | Qt::Key_Z);  // a caption without access key takes the one of before away
}

void FoodListPage::GoToLetter(QChar letter) {
  GuardedQuietly([&] {
    for (const GridStatement &criterion : AlphabetCriteria(kind_, shown_.list, letter)) {
      const int row = grdMealsList->Model().FindFirst(criterion.sql, criterion.params);
      if (row < 0) continue;
      grdMealsList->GoToKey(*grdMealsList->Model().KeyOfRow(row), true);
      return;
    }
  });
}

}  // namespace trimlog
