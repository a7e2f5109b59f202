#pragma once

#include <QDialog>
#include <QList>

#include "core/windows/setup/setup_page.h"

class QTabWidget;

namespace trimlog {

/// The window "Program Options": a frame for its pages. OK moves what they hold into the session's settings and the
/// store; Cancel leaves both alone. Changes to profiles and to the sign of losses are immediate.
class frmSetup : public QDialog {
  Q_OBJECT
 public:
  /// `roomPages` are the tabs that come from the rooms above; each takes its place in the order of SetupTab.
  frmSetup(Session &session, const Navigator &navigator, const QList<SetupPageMaker> &roomPages, QWidget *owner);

  void ShowTab(SetupTab tab);

 private:
  void AddPages(const QList<SetupPageMaker> &makers, const Navigator &navigator);
  void OnOk();
  /// The first page that refuses to be left comes to the front.
  bool ValidateFields();

  Session &session_;
  QTabWidget *SSTab1 = nullptr;
  QList<SetupPage *> pages_;
  QList<SetupTab> tabs_;
};

/// The tabs that core itself makes.
QList<SetupPageMaker> CoreSetupPages();

}  // namespace trimlog
