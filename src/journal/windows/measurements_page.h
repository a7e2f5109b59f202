#pragma once

#include "journal/windows/journal_page.h"

class QPushButton;
class QStackedWidget;

namespace trimlog {

class BodyPicture;
class BodyTotals;
class GridRowEdit;
class MeasurementBoxes;

/// The tab of body measurements: the day's eight sizes beside the last ones, or a list over all days.
class MeasurementsPage : public JournalPage {
  Q_OBJECT
 public:
  MeasurementsPage(const JournalParts &parts, QWidget *parent);

  EditOutcome SaveOpenEdit() override;
  void DropOpenEdit() override;
  void TakeFocus() override;
  void Print() override;
  /// Asks for new measurements, as the button does; tells when the day shown has some.
  void AddNew();
  /// Deletes the day's set, or the chosen ones of the list, after the question where it is wanted.
  void DeleteMeasurements();

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;

 private:
  QWidget *MakeSingle();
  QWidget *MakeList();
  void MakeGrid(QWidget *parent);
  void BodyFatFollowsWaist(GridRowEdit &row);
  void ShowGender();
  void UpdateButtons();
  QDate ProposedDate() const;

  QStackedWidget *views_ = nullptr;
  MeasurementBoxes *boxes_ = nullptr;
  BodyPicture *picBody = nullptr;
  BoundGrid *grdMeasurements = nullptr;  ///< none in a window that shows single days only
  BodyTotals *totals_ = nullptr;
  QPushButton *cmdNewMeasurement = nullptr;
  QPushButton *cmdDeleteMeasurement = nullptr;
};

}  // namespace trimlog
