#pragma once

#include <QWidget>

#include "catalogs/food_list_kind.h"
#include "catalogs/windows/food_grid.h"
#include "core/session/session.h"

class QBoxLayout;
class QPushButton;

namespace trimlog {

class SpokenLabel;
class TextField;

/// The tab that finds foods by words of their description, in any order.
class FoodSearchPage : public QWidget {
  Q_OBJECT
 public:
  FoodSearchPage(Session &session, const FoodListKind &kind, QWidget *parent);

  BoundGrid *Grid() const { return grdMealsSearch; }
  QBoxLayout *GridRow() const { return gridRow_; }  ///< the row of the layout that the grid stands in
  QString PrintedTitle() const;
  void Search();
  void NutrientsChanged();
  void UpdateHeading();

 Q_SIGNALS:
  void Searched();  ///< the foods found are shown

 private:
  FoodGridNames Names() const;

  Session &session_;
  const FoodListKind kind_;
  TextField *txtFind;
  QPushButton *cmdFindFirst;
  SpokenLabel *lblFoodsFound;
  BoundGrid *grdMealsSearch;
  QBoxLayout *gridRow_;
  QString searched_;
};

}  // namespace trimlog
