#pragma once

#include <QWidget>

#include "core/frame/edit_outcome.h"
#include "journal/day/day_measurements.h"

class QCheckBox;
class QGridLayout;
class QLabel;

namespace trimlog {

class FigureField;
class LeaveCheck;
class NumberField;

/// The eight sizes of a day in boxes that are bound to the file: each saves itself when it is left, and a refused one
/// keeps the focus. Beside them the previous sizes and what changed since. The body fat follows the waist while
/// chkBodyFat is on. What others change is read afresh, except in a box that is being typed in.
class MeasurementBoxes : public QWidget {
  Q_OBJECT
 public:
  /// `small`: the boxes alone, close together.
  MeasurementBoxes(Session &session, bool small, QWidget *parent);

  /// Shows a day's sizes. What is still unsaved of the day shown before is saved first.
  void ShowDay(const QDate &date);
  bool HasMeasurements() const { return shown_.RecordID.has_value(); }
  std::optional<int> RecordID() const { return shown_.RecordID; }
  PerMeasurement<QString> Typed() const;
  EditOutcome Save();
  void Restore();  ///< back to what the file holds
  /// Puts the focus into the first box, its text selected.
  void TakeFocus();

 Q_SIGNALS:
  void MeasurementsComeOrGo();           ///< the day has a set now, or has none any more
  void FieldEntered(std::size_t field);  ///< the focus is in this box now

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void LayOutRows();
  void LayOutSmall();
  NumberField *MakeBox(std::size_t field);
  QLabel *MakeCaption(std::size_t field);
  void AddPrevious(QGridLayout *rows, std::size_t field);
  QCheckBox *MakeBodyFatChoice();
  void ShowUnits();
  void FollowBodyFatSetting();

  std::optional<std::size_t> FieldOf(const QObject *watched) const;
  bool OnKey(std::size_t field, int key);
  void OnEntered(std::size_t field);
  void OnLeft(std::size_t field, bool byThePerson);
  void SaveLeft();
  void BodyFatFollowsWaist();
  EditOutcome Store(const std::map<std::size_t, std::optional<double>> &typed);
  void Read(bool keepTyped);
  void ShowDifferences();

  Session &session_;
  const bool small_;
  QDate date_;
  DayMeasurements shown_;
  PreviousMeasurements previous_;
  PerMeasurement<NumberField *> boxes_{};
  PerMeasurement<LeaveCheck *> checks_{};
  PerMeasurement<FigureField *> previousBoxes_{};
  PerMeasurement<FigureField *> differences_{};
  PerMeasurement<QLabel *> captions_{};
  QList<QLabel *> units_;
  QLabel *lblHeading2 = nullptr;
  QCheckBox *chkBodyFat = nullptr;
  QString waistEntered_;  ///< what stood in the waist when it was entered
  bool saving_ = false;
};

}  // namespace trimlog
