#pragma once

#include <QWidget>

#include "catalogs/food_lists.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace trimlog {

class AlphabetBar;
class BoundGrid;

/// The tab that lists foods by list and group, sorted by name or by a nutrient, with the alphabet to jump in it.
class FoodListPage : public QWidget {
  Q_OBJECT
 public:
  FoodListPage(Session &session, QWidget *parent);

  BoundGrid *Grid() const { return grdMealsList; }
  /// The group chosen, 0 when all are shown.
  int ChosenGroup() const;
  QString PrintedTitle() const;

  void FillList();
  /// The nutrients shown have changed: columns and sorts follow.
  void NutrientsChanged();
  void UpdateHeading();

 protected:
  bool eventFilter(QObject *object, QEvent *event) override;

 private:
  void AddChoices();
  void FillSorts();
  bool IsSeparator(int sort) const;
  void OnSort(int index);
  void ShowSort();
  void OnAlphabet();
  void GoToLetter(QChar letter);
  FoodSelection Selection() const;

  Session &session_;
  QComboBox *cboRecordTypeMeals;
  QComboBox *cboMealGroups;
  QComboBox *cboSort;
  QPushButton *cmdAplha;
  AlphabetBar *alphabet_;
  QLabel *lblFoods;
  BoundGrid *grdMealsList;
  int chosenSort_ = 0;
};

}  // namespace trimlog
