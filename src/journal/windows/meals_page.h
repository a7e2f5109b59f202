#pragma once

#include "journal/windows/journal_page.h"
#include "platform/printing/printing.h"

class QPushButton;

namespace trimlog {

class GridRowEdit;
class MealTotals;
class PageButtons;

/// The tab of what was eaten or planned: the day's foods, their totals against the targets, the net calories in words.
class MealsPage : public JournalPage {
  Q_OBJECT
 public:
  MealsPage(const JournalParts &parts, QWidget *parent);
  ~MealsPage() override;

  BoundGrid *Grid() const { return grdMeals; }
  /// For what a window adds to the page, e.g. a list of other actions.
  PageButtons &Buttons() { return *buttons_; }

  EditOutcome SaveOpenEdit() override;
  void DropOpenEdit() override;
  void TakeFocus() override;
  void Print() override;
  /// The day's totals anew, e.g. after planned entries were taken over.
  void UpdateTotals();

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;
  void showEvent(QShowEvent *event) override;

 private:
  void AddButtons();
  void ConnectGrid();
  void SetColumns();
  void FollowCell(GridRowEdit &row, const QString &column);
  void AfterCell(const QString &column);
  void OnRow();
  void OnNew();
  void OnAdded(int recordID, const QDate &date);
  void OnChanged(const DataChange &change);
  PrintedList PrintedMeals();

  PageButtons *buttons_;
  BoundGrid *grdMeals;
  MealTotals *totals_;
  QPushButton *cmdNewMeal = nullptr;
  QPushButton *cmdDeleteMeal = nullptr;
  QPushButton *cmdPrintMeal = nullptr;
};

}  // namespace trimlog
