#pragma once

#include <QWidget>

#include "core/frame/edit_outcome.h"
#include "core/session/navigator.h"
#include "core/session/session.h"
#include "journal/day/journal_day.h"
#include "journal/day/journal_doors.h"

namespace trimlog {

class BoundGrid;

/// What the pages of a journal window stand on; everything outlives them.
struct JournalParts {
  Session &session;
  const Navigator &navigator;
  const JournalDoors &doors;
  JournalDay &day;
};

/// One tab over the days of a profile: made once, used by the journal, the planner and the quick journal. What differs
/// among them it asks the day's kind. A page reads its rows when they are to be seen: a hidden one waits until it is
/// shown.
class JournalPage : public QWidget {
  Q_OBJECT
 public:
  JournalPage(const JournalParts &parts, const QString &objectName, QWidget *parent);

  /// Saves what is being typed, as leaving the field would.
  virtual EditOutcome SaveOpenEdit() { return EditOutcome::Saved; }
  /// Gives up what is being typed, as Esc would.
  virtual void DropOpenEdit() {}
  /// The tab came to the front, or the day changed: the focus goes where a person begins.
  virtual void TakeFocus() = 0;
  /// Prints what the page shows.
  virtual void Print() = 0;

 protected:
  /// Puts the controls of the view in place; called before ShowRows at the first time and when the view is another.
  virtual void ShowView(JournalView view) = 0;
  /// Reads the rows of the scope and all that stands beside them.
  virtual void ShowRows() = 0;
  /// Reads now when the page can be seen, otherwise as soon as it can.
  void Reload();

  void showEvent(QShowEvent *event) override;

  Session &session_;
  const Navigator &navigator_;
  const JournalDoors &doors_;
  JournalDay &day_;

 private:
  bool waits_ = true;
  std::optional<JournalView> view_;
};

}  // namespace trimlog
