#include "catalogs/windows/food_search_page.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "catalogs/food_search.h"
#include "platform/windows/controls/spoken_label.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

/// The wait cursor, for as long as it lives.
class WaitCursor {
 public:
  WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor &) = delete;
  WaitCursor &operator=(const WaitCursor &) = delete;
};

}  // namespace

FoodSearchPage::FoodSearchPage(Session &session, const FoodListKind &kind, QWidget *parent)
    : QWidget(parent), session_(session), kind_(kind) {
  auto *layout = new QVBoxLayout(this);
  auto *row = new QHBoxLayout;
  layout->addLayout(row);
  auto *label = new QLabel(QStringLiteral("&Words to find:"), this);
  // Where a text is also found in the list, that field has the name.
  const QString name = kind.forPicking ? QStringLiteral("txtFindFirst") : QStringLiteral("txtFind");
  txtFind = new TextField(name, QStringLiteral("Words to find"), 0, this);
  txtFind->setClearButtonEnabled(true);
  label->setBuddy(txtFind);
  cmdFindFirst = new QPushButton(QStringLiteral("&Search Now"), this);
  cmdFindFirst->setObjectName(QStringLiteral("cmdFindFirst"));
  cmdFindFirst->setAutoDefault(false);
  row->addWidget(label);
  row->addWidget(txtFind, 1);
  row->addWidget(cmdFindFirst);
  lblFoodsFound = new SpokenLabel(QStringLiteral("lblFoodsFound"), this);
  layout->addWidget(lblFoodsFound);
  grdMealsSearch = MakeFoodGrid(Names(), session_, this);
  gridRow_ = new QHBoxLayout;
  gridRow_->addWidget(grdMealsSearch, 1);
  layout->addLayout(gridRow_, 1);
  setFocusProxy(txtFind);

  grdMealsSearch->Open(session_.Data(), FoodSearchSource(kind_, {}));
  UpdateHeading();
  connect(txtFind, &TextField::returnPressed, this, &FoodSearchPage::Search);
  connect(cmdFindFirst, &QPushButton::clicked, this, &FoodSearchPage::Search);
}

FoodGridNames FoodSearchPage::Names() const {
  return {QStringLiteral("grdMealsSearch"), QStringLiteral("Foods found"), QStringLiteral("ddnMealGroupsSearch"),
          QStringLiteral("cmdFindFirst_Click"), kind_.forPicking};
}

QString FoodSearchPage::PrintedTitle() const { return PrintedSearchTitle(searched_); }

void FoodSearchPage::Search() {
  const WaitCursor wait;
  if (!grdMealsSearch->SetSource(FoodSearchSource(kind_, txtFind->text()), true)) return;
  searched_ = FoodSearchText(txtFind->text());
  grdMealsSearch->ClearMarks();
  UpdateHeading();
  Q_EMIT Searched();
}

void FoodSearchPage::UpdateHeading() {
  grdMealsSearch->SetPlaceholderText(NothingFoundHint(searched_));
  lblFoodsFound->Tell(FoodsFoundHeading(grdMealsSearch->Model().RecordCount()));
}

void FoodSearchPage::NutrientsChanged() {
  ShowSelectedNutrients(*grdMealsSearch, Names(), session_);
  // A column that is not shown any more orders nothing: the foods stand by their names again.
  grdMealsSearch->SetSource(FoodSearchSource(kind_, searched_), true);
}

}  // namespace trimlog
