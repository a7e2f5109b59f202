#pragma once

#include <QDate>
#include <QHash>
#include <QWidget>
#include <functional>

#include "core/frame/edit_outcome.h"

namespace trimlog {

using WindowCommands = QHash<QString, std::function<void()>>;

/// One of the windows that the frame shows in its content area. The frame makes it afresh for each visit.
class ContentWindow : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  /// May it be left? A refused check has shown its box.
  virtual bool ValidateFields() { return true; }
  /// Checks and saves what is being typed, as leaving the field would. Called before the program ends, the profile
  /// changes or another window takes this one's place. Unless it is saved, whoever asked stays where it is.
  virtual EditOutcome SaveOpenEdit() { return EditOutcome::Saved; }
  /// Gives up what is being typed, as Esc would.
  virtual void DropOpenEdit() {}
  /// The window was moved into place and is the current one: set the focus.
  virtual void Activated() {}
  /// Shows a day, where the window has days. Before the window is shown: opens on that day.
  virtual void GotoDate(const QDate &) {}
  /// The day that the window hands to the one that takes its place; none where it has no day to hand over.
  virtual QDate ActiveDate() const { return {}; }
  /// What only this window can do: menu entries of the frame by name ("mnuFilePrint"), and their work.
  virtual WindowCommands Commands() { return {}; }
  /// Turns colours and buttons that do not belong on paper off (true) and on again (false).
  virtual void PrepareForPrinting(bool) {}
};

}  // namespace trimlog
