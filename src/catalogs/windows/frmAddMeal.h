#pragma once

#include <QDialog>

#include "catalogs/food_list_kind.h"
#include "catalogs/food_picking.h"
#include "core/session/navigator.h"

class QBoxLayout;
class QPushButton;
class QTabWidget;
class QVBoxLayout;

namespace trimlog {

class BoundGrid;
class FoodListPage;
class FoodSearchPage;
class PickedDay;
class RowButton;
class ServingsField;
class ServingsSelector;
class SpokenLabel;

/// Picks foods and meals from the lists or by words and adds them, one after the other, to what it was opened for.
/// Enter on a food adds it and stays; Esc closes.
class frmAddMeal : public QDialog {
  Q_OBJECT
 public:
  /// `picking` is copied; what it calls must outlive the dialog.
  frmAddMeal(Session &session, const Navigator &navigator, const FoodPicking &picking, QWidget *owner);

  void done(int result) override;

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  /// A tab: its foods, the strip beside them, and how many servings.
  struct Tab {
    QWidget *page = nullptr;
    BoundGrid *grid = nullptr;
    QWidget *strip = nullptr;
    ServingsField *servings = nullptr;
  };
  void AddHeading(QVBoxLayout *layout);
  void AddPages();
  Tab MakeTab(QWidget *page, BoundGrid *grid, QBoxLayout *gridRow, int index);
  void AddButtons(QVBoxLayout *layout);
  QPushButton *AddButton(QBoxLayout *layout, const QString &name, const QString &caption, const QString &tip);
  void Connect();
  const Tab &CurrentTab() const;
  void OnTabChanged();
  void UpdateRowState();
  void OnSearched();
  void OnNew();
  bool AddPicked();
  FoodPicked Picked() const;
  bool CheckPicked(const FoodPicked &picked);
  void OnChanged(const DataChange &change);

  Session &session_;
  const Navigator &navigator_;
  const FoodPicking picking_;
  const FoodListKind &kind_;
  int listAtFirst_ = 0;
  PickedDay *day_ = nullptr;  ///< none for an ingredient
  QTabWidget *SSTab1 = nullptr;
  FoodListPage *listPage_ = nullptr;
  FoodSearchPage *searchPage_ = nullptr;
  Tab tabs_[2];
  ServingsSelector *fraServings = nullptr;
  RowButton *cmdSelectFood = nullptr;
  SpokenLabel *lblAdded = nullptr;
  QPushButton *cmdNewMeal = nullptr;
  QPushButton *cmdOK = nullptr;
};

}  // namespace trimlog
