#pragma once

#include "journal/windows/journal_page.h"

class QPushButton;
class QVBoxLayout;

namespace trimlog {

class ExerciseTotalsRow;
class GridRowEdit;
class NetCaloriesLine;
class PageButtons;
struct ExerciseTotalsText;

/// The tab of exercises done or planned: the rows, the day's minutes and calories, the net calories in words.
class ExercisesPage : public JournalPage {
  Q_OBJECT
 public:
  ExercisesPage(const JournalParts &parts, QWidget *parent);
  ~ExercisesPage() override;

  EditOutcome SaveOpenEdit() override;
  void DropOpenEdit() override;
  void TakeFocus() override;
  void Print() override;

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;

 private:
  void MakeButtons(PageButtons &buttons);
  void MakeGrid(const JournalParts &parts, QVBoxLayout &content);
  void FollowOthers();
  void OnCell(GridRowEdit &row, const QString &column);
  bool WantsCaloriesAdjusted();
  void OnCellEdited(const QString &column);
  void OnNew();
  void OnAdded(int recordID, const QDate &date);
  void ShowTotals();
  ExerciseTotalsText Totals() const;
  void ShowRowState();
  void GoToColumn(const QString &column);

  BoundGrid *grdActivities = nullptr;
  ExerciseTotalsRow *totals_ = nullptr;
  NetCaloriesLine *netCalories_ = nullptr;
  QPushButton *cmdDeleteActivity = nullptr;
};

}  // namespace trimlog
