#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "core/session/navigator.h"
#include "core/session/session.h"

namespace trimlog {

/// One tab of the options window. It shows a copy of the settings and hands its part of them back when asked; what a
/// person may regret until Cancel is never written before.
class SetupPage : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  /// Fills the controls.
  virtual void Load(const Settings &settings) = 0;
  /// May the window be left with OK? A refused check has shown its box and has set the focus.
  virtual bool Validate() { return true; }
  /// Puts the page's values into the settings about to be stored.
  virtual void Store(Settings &) {}
  /// Saves what the page edits in the data file. False when that failed; the box has been shown.
  virtual bool Save() { return true; }
  /// The unit system shown has changed, or is shown for the first time. Called after Load.
  virtual void ShowUnits(int) {}

 Q_SIGNALS:
  void UomChanged(int uomID);  ///< the person chose another unit system on this page
};

/// A tab and who makes its page; rooms above core hand in theirs.
struct SetupPageMaker {
  SetupTab tab = SetupTab::Profiles;
  QString caption;
  std::function<SetupPage *(Session &session, const Navigator &navigator, QWidget *parent)> Make;
};

}  // namespace trimlog
