#pragma once

#include <QWidget>

#include "catalogs/food_list_kind.h"
#include "core/session/session.h"

class QPushButton;

namespace trimlog {

class BoundGrid;
class SpokenLabel;
class TextField;

/// The tab that finds foods by words of their description, in any order.
class FoodSearchPage : public QWidget {
  Q_OBJECT
 public:
  FoodSearchPage(Session &session, const FoodListKind &kind, QWidget *parent);

  BoundGrid *Grid() const { return grdMealsSearch; }
  QString PrintedTitle() const;
  void Search();
  void NutrientsChanged();
  void UpdateHeading();

 private:
  Session &session_;
  const FoodListKind kind_;
  TextField *txtFind;
  QPushButton *cmdFindFirst;
  SpokenLabel *lblFoodsFound;
  BoundGrid *grdMealsSearch;
  QString searched_;
};

}  // namespace trimlog
