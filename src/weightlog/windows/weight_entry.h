#pragma once

#include <QObject>

#include "core/frame/edit_outcome.h"

class QFocusEvent;
class QKeyEvent;
class QLineEdit;

namespace trimlog {

class CalendarModel;
class MonthGrid;
class Session;

/// The keyboard and the focus of the 42 weight fields: entering a cell, checking and saving it before it is left,
/// moving with the arrows. The text that is typed stays in its field until it was saved or restored.
class WeightEntry : public QObject {
  Q_OBJECT
 public:
  WeightEntry(Session &session, CalendarModel &model, MonthGrid &grid);
  ~WeightEntry() override;

  /// Checks and saves what is being typed, as leaving the cell does. Unless it is saved the box was shown, and the text
  /// stays selected in its field and keeps the focus.
  EditOutcome Leave();
  bool TryLeave() { return Leave() == EditOutcome::Saved; }
  /// Puts the text back that stood in the cell when it was entered.
  void Restore();
  /// Puts the focus into a cell's field and enters it, also when it has the focus already.
  void Enter(int i);
  /// True while the focus is in one of the fields.
  bool HasFocus() const;
  /// The cell whose field holds text that is not saved yet, 0 for none.
  int PendingCell() const;
  /// While the grid is being redrawn, fields gain and lose the focus without anyone entering or leaving a cell.
  void Suspend(bool suspended) { suspended_ = suspended; }
  /// The month under the fields is another one: nobody has entered a cell of it.
  void Forget() { entered_ = 0; }

 Q_SIGNALS:
  void Entered();     ///< another cell is the active one
  void Saved();       ///< a weight was saved or removed
  void NextWanted();  ///< Enter: the focus goes on like with Tab
  void MonthWanted(int months);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  bool OnKey(int i, const QKeyEvent &event);
  bool OnArrow(int i, const QKeyEvent &event);
  void OnFocusIn(int i, const QFocusEvent &event);
  void Refuse(QLineEdit *field);

  Session &session_;
  CalendarModel &model_;
  MonthGrid &grid_;
  int entered_ = 0;
  bool suspended_ = false;
  bool refused_ = false;  ///< within the action under way: one mistake gives one box
};

}  // namespace trimlog
