#pragma once

#include <QWidget>

#include "catalogs/food_lists.h"
#include "catalogs/windows/food_grid.h"

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QPushButton;

namespace trimlog {

class AlphabetBar;
class SpokenLabel;

/// The tab that lists foods by list and group, sorted by name or by a nutrient, with the alphabet to jump in it.
class FoodListPage : public QWidget {
  Q_OBJECT
 public:
  FoodListPage(Session &session, const FoodListKind &kind, QWidget *parent);

  BoundGrid *Grid() const { return grdMealsList; }
  QBoxLayout *GridRow() const { return gridRow_; }  ///< the row of the layout that the grid stands in
  const FoodSelection &Shown() const { return shown_; }
  QString PrintedTitle() const;

  /// Shows the foods of a selection. When a refused row cannot be left or reading fails, everything stays as it is.
  bool Show(FoodSelection wanted);
  /// Makes a food current; one that the list does not hold brings the list that holds it.
  void GoToFood(int mealID);
  /// The nutrients shown have changed: columns and sorts follow.
  void NutrientsChanged();
  void UpdateHeading();

 private:
  FoodGridNames Names() const;
  void MakeChoices(QGridLayout *choices);
  void FillSorts();
  void ShowChoices();
  void OnChosen();
  void OnSorted();
  void ShowAlphabet(bool show);
  void GoToLetter(QChar letter);

  Session &session_;
  const FoodListKind kind_;
  FoodSelection shown_;
  QComboBox *cboRecordTypeMeals = nullptr;
  QComboBox *cboMealGroups = nullptr;
  QComboBox *cboSort = nullptr;
  QPushButton *cmdAplha = nullptr;
  AlphabetBar *alphabet_;
  SpokenLabel *lblFoods;
  BoundGrid *grdMealsList;
  QBoxLayout *gridRow_;
};

}  // namespace trimlog
