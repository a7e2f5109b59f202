#pragma once

#include <QDialog>

#include "core/session/navigator.h"
#include "core/session/session.h"

class QLabel;
class QPushButton;
class QTabWidget;
class QVBoxLayout;

namespace trimlog {

class BoundGrid;
class FoodListPage;
class FoodSearchPage;

/// The catalog of foods: lists and searches them, keeps the person's own, and copies, edits, prints and deletes.
class frmSetupFoods : public QDialog {
  Q_OBJECT
 public:
  frmSetupFoods(Session &session, const Navigator &navigator, QWidget *owner);

  /// Closing saves the row being edited; a refused row keeps the window open.
  void done(int result) override;

 private:
  void AddPages();
  QPushButton *AddButton(QVBoxLayout *layout, const QString &name, const QString &caption, const QString &tip,
                         Qt::Key key = Qt::Key_unknown);
  void AddButtons(QVBoxLayout *layout);
  void ConnectButtons();
  BoundGrid *CurrentGrid() const;
  bool OnSearchTab() const;
  void UpdateRowState();
  void ShowCounts();
  void OnTabChanged();
  void OnNew();
  void OnCopy();
  void OnDelete();
  void OnAllNutrients();
  void OnPrint();
  void OnChanged(const DataChange &change);

  Session &session_;
  const Navigator &navigator_;
  QTabWidget *SSTab1;
  FoodListPage *listPage_ = nullptr;
  FoodSearchPage *searchPage_ = nullptr;
  QPushButton *cmdNewMeal = nullptr;
  QPushButton *cmdDeleteMeal = nullptr;
  QPushButton *cmdCopyMeal = nullptr;
  QPushButton *cmdAllNutrients = nullptr;
  QPushButton *cmdPrintMeals = nullptr;
  QPushButton *cmdRecipes = nullptr;
  QPushButton *pnlFoodInfo = nullptr;
  QPushButton *cmdTipsFoods = nullptr;
  QPushButton *cmdHelp = nullptr;
  QPushButton *cmdOK = nullptr;
};

}  // namespace trimlog
