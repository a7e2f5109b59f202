#include "catalogs/windows/food_list_page.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "catalogs/food_columns.h"
#include "catalogs/windows/alphabet_bar.h"
#include "catalogs/windows/food_grid.h"

namespace trimlog {

namespace {

QComboBox *AddCombo(QGridLayout *layout, int column, const QString &name, const QString &caption, QWidget *parent) {
  auto *label = new QLabel(caption, parent);
  auto *combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setAccessibleName(QString(caption).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
  label->setBuddy(combo);
  layout->addWidget(label, 0, column);
  layout->addWidget(combo, 1, column);
  return combo;
}

}  // namespace

FoodListPage::FoodListPage(Session &session, QWidget *parent) : QWidget(parent), session_(session) {
  auto *layout = new QVBoxLayout(this);
  auto *choices = new QGridLayout;
  layout->addLayout(choices);
  cboRecordTypeMeals = AddCombo(choices, 0, QStringLiteral("cboRecordTypeMeals"), QStringLiteral("Food &List:"), this);
  cboMealGroups = AddCombo(choices, 1, QStringLiteral("cboMealGroups"), QStringLiteral("Food &Group:"), this);
  cboSort = AddCombo(choices, 2, QStringLiteral("cboSort"), QStringLiteral("&Sort by:"), this);
  cmdAplha = new QPushButton(QStringLiteral("A - Z  >>"), this);
  cmdAplha->setObjectName(QStringLiteral("cmdAplha"));
  cmdAplha->setToolTip(QStringLiteral("Shows letters that jump in the list."));
  cmdAplha->setAutoDefault(false);
  choices->addWidget(cmdAplha, 1, 3);
  choices->setColumnStretch(1, 1);

  alphabet_ = new AlphabetBar(this);
  alphabet_->hide();
  layout->addWidget(alphabet_);
  lblFoods = new QLabel(this);
  lblFoods->setObjectName(QStringLiteral("lblFoods"));
  layout->addWidget(lblFoods);
  grdMealsList = MakeFoodGrid(QStringLiteral("grdMealsList"), QStringLiteral("Foods"), session_, this);
  layout->addWidget(grdMealsList, 1);

  AddChoices();
  connect(cboRecordTypeMeals, &QComboBox::currentIndexChanged, this, &FoodListPage::FillList);
  connect(cboMealGroups, &QComboBox::currentIndexChanged, this, &FoodListPage::FillList);
  connect(cboSort, &QComboBox::activated, this, &FoodListPage::OnSort);
  connect(cmdAplha, &QPushButton::clicked, this, &FoodListPage::OnAlphabet);
  connect(alphabet_, &AlphabetBar::LetterChosen, this, &FoodListPage::GoToLetter);
}

void FoodListPage::AddChoices() {
  for (const FoodChoice &list : FoodListChoices()) cboRecordTypeMeals->addItem(list.text, list.key);
  for (const FoodChoice &group : FoodGroupChoices(session_)) cboMealGroups->addItem(group.text, group.key);
  FillSorts();
}

void FoodListPage::FillSorts() {
  cboSort->clear();
  for (const FoodSortChoice &sort : FoodSortChoices(session_.nutrients)) cboSort->addItem(sort.text, sort.key);
  cboSort->setProperty("chosen", 0);
}

int FoodListPage::ChosenGroup() const { return std::max(0, cboMealGroups->currentData().toInt()); }

QString FoodListPage::PrintedTitle() const {
  return PrintedFoodListTitle(cboRecordTypeMeals->currentText(), cboMealGroups->currentText());
}

FoodSelection FoodListPage::Selection() const {
  return {cboRecordTypeMeals->currentData().toInt(), cboMealGroups->currentData().toInt(),
          cboSort->currentData().toString()};
}

void FoodListPage::FillList() {
  const bool recent = cboRecordTypeMeals->currentData().toInt() == food_list::recent;
  if (recent && cboMealGroups->currentIndex() != 0) {
    cboMealGroups->setCurrentIndex(0);  // comes back here
    return;
  }
  cboMealGroups->setEnabled(!recent);
  const bool filled = Guarded(session_, FoodGridFailure(GridAction::Load), [&] {
    if (recent) FillRecentFoods(session_);
    grdMealsList->ShowColumn(QStringLiteral("MealGroupID"), ChosenGroup() == 0);
  });
  if (!filled) return;
  if (!grdMealsList->Model().IsOpen()) {
    grdMealsList->Open(session_.Data(), FoodListSource(Selection()));
  } else {
    grdMealsList->SetSource(FoodListSource(Selection()));
  }
  UpdateHeading();
}

void FoodListPage::UpdateHeading() {
  lblFoods->setText(FoodsDisplayedHeading(grdMealsList->Model().RecordCount(), ChosenGroup() == 0));
}

void FoodListPage::NutrientsChanged() {
  ShowSelectedNutrients(*grdMealsList, session_);
  FillSorts();
  FillList();
}

void FoodListPage::OnSort(int index) {
  const QString key = cboSort->itemData(index).toString();
  if (FoodSortChoice{key, {}}.IsSeparator()) {
    cboSort->setCurrentIndex(cboSort->property("chosen").toInt());
    return;
  }
  cboSort->setProperty("chosen", index);
  FillList();
}

void FoodListPage::OnAlphabet() {
  const bool show = alphabet_->isHidden();
  alphabet_->setVisible(show);
  cmdAplha->setText(show ? QStringLiteral("A - Z  <<") : QStringLiteral("A - Z  >>"));
}

void FoodListPage::GoToLetter(QChar letter) {
  GuardedQuietly([&] {
    for (const GridStatement &criterion : AlphabetCriteria(letter)) {
      const int row = grdMealsList->Model().FindFirst(criterion.sql, criterion.params);
      if (row < 0) continue;
      grdMealsList->GoToKey(*grdMealsList->Model().KeyOfRow(row), true);
      return;
    }
  });
}

}  // namespace trimlog
