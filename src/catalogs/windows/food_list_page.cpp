#include "catalogs/windows/food_list_page.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "catalogs/food_columns.h"
#include "catalogs/windows/alphabet_bar.h"
#include "catalogs/windows/food_grid.h"

namespace trimlog {

namespace {

FoodGridNames ListGridNames() {
  return {QStringLiteral("grdMealsList"), QStringLiteral("Foods"), QStringLiteral("ddnMealGroups"),
          QStringLiteral("Form_Activate")};
}

QComboBox *AddCombo(QGridLayout *layout, int column, const QString &name, const QString &caption, QWidget *parent) {
  auto *label = new QLabel(caption, parent);
  auto *combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setAccessibleName(QString(caption).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(14);
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
  lblFoods->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // its blanks shall not widen the window
  layout->addWidget(lblFoods);
  grdMealsList = MakeFoodGrid(ListGridNames(), session_, this);
  grdMealsList->GiveRoom(QStringLiteral("MealGroupID"), QStringLiteral("MealDesc"));
  layout->addWidget(grdMealsList, 1);

  AddChoices();
  connect(cboRecordTypeMeals, &QComboBox::currentIndexChanged, this, &FoodListPage::FillList);
  connect(cboMealGroups, &QComboBox::currentIndexChanged, this, &FoodListPage::FillList);
  cboSort->installEventFilter(this);
  connect(cboSort, &QComboBox::activated, this, &FoodListPage::OnSort);
  connect(grdMealsList->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &FoodListPage::ShowSort);
  connect(cmdAplha, &QPushButton::clicked, this, &FoodListPage::OnAlphabet);
  connect(alphabet_, &AlphabetBar::LetterChosen, this, &FoodListPage::GoToLetter);
}

void FoodListPage::AddChoices() {
  for (const FoodChoice &list : FoodListChoices()) cboRecordTypeMeals->addItem(list.text, list.key);
  for (const FoodChoice &group : FoodGroupChoices(session_)) cboMealGroups->addItem(group.text, group.key);
  FillSorts();
}

void FoodListPage::FillSorts() {
  const QString chosen = cboSort->currentData().toString();
  cboSort->clear();
  for (const FoodSortChoice &sort : FoodSortChoices(session_.nutrients)) cboSort->addItem(sort.text, sort.key);
  // A sort by a nutrient that is not shown any more gives way to the sort by name.
  chosenSort_ = std::max(0, cboSort->findData(chosen));
  cboSort->setCurrentIndex(chosenSort_);
}

bool FoodListPage::IsSeparator(int sort) const {
  return FoodSortChoice{cboSort->itemData(sort).toString(), {}}.IsSeparator();
}

// The arrow keys step over the separators; choosing one with the mouse is ignored.
bool FoodListPage::eventFilter(QObject *object, QEvent *event) {
  if (object == cboSort && event->type() == QEvent::KeyPress && !cboSort->view()->isVisible()) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    const int step = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
    if (step != 0 && IsSeparator(cboSort->currentIndex() + step)) {
      cboSort->setCurrentIndex(cboSort->currentIndex() + step);
    }
  }
  return QWidget::eventFilter(object, event);
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
  const bool filled = Guarded(session_, FoodGridFailure(GridAction::Load, ListGridNames().loadProcedure), [&] {
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
  ShowSelectedNutrients(*grdMealsList, ListGridNames(), session_);
  FillSorts();
  FillList();
}

void FoodListPage::OnSort(int index) {
  if (IsSeparator(index)) {
    cboSort->setCurrentIndex(chosenSort_);
    return;
  }
  chosenSort_ = index;
  FillList();
}

// A click on a caption sorts too: the box names that order, where it has a name for it.
void FoodListPage::ShowSort() {
  const GridOrder &order = grdMealsList->Model().Source().order.first();
  QString key = order.field == QStringLiteral("MealDesc") ? QStringLiteral("0") : order.field;
  if (order.descending) key.prepend(QLatin1Char('-'));
  const int index = cboSort->findData(key);
  if (index < 0) return;
  chosenSort_ = index;
  cboSort->setCurrentIndex(index);
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
