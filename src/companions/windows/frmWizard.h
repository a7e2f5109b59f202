#pragma once

#include <QDialog>
#include <QList>

#include "companions/windows/wizard_page.h"
#include "companions/wizard_finish.h"
#include "companions/wizard_plan.h"
#include "core/session/navigator.h"
#include "core/session/session.h"

class QLabel;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

namespace trimlog {

class WizardBanner;

/// The configuration wizard: takes a newcomer to a working profile, adds one more profile, or completes the one in use.
/// Nothing is kept before Finish but the unit system; what was typed is not thrown away without a question.
class frmWizard : public QDialog {
  Q_OBJECT
 public:
  enum class Outcome { Left, Skipped, Importing, Finished };
  frmWizard(Session &session, const Navigator &navigator, WizardMode mode, QWidget *owner);

  /// Makes the pages and shows the first. False when that failed: the box was shown.
  bool Form_Load();
  Outcome HowLeft() const { return outcome_; }
  void reject() override;

 private:
  QWidget *MakeBanner();
  void AddButtons(QVBoxLayout *layout);
  QPushButton *AddButton(QLayout *row, const char *name, const QString &caption, void (frmWizard::*pressed)());
  void AddPages();
  WizardPage *MakePage(WizardStep step);
  WizardPage *CurrentPage() const;
  /// From now on `answered_` tells whether anything was typed or chosen.
  void WatchAnswers();
  /// True when nothing would be lost, or the person agrees to lose it.
  bool MayThrowAnswersAway();

  void WizardNext();
  void WizardBack();
  void Skip();
  void Import();
  void Finish();
  void ShowStep(int number);
  void FitToScreen();
  void FocusFirstField();
  void LeaveAs(Outcome outcome);

  Session &session_;
  const Navigator &navigator_;
  const WizardPlan plan_;
  WizardStart start_;
  WizardAnswers answers_;
  bool answered_ = false;
  int WizardStep_ = 1;
  Outcome outcome_ = Outcome::Left;

  WizardBanner *banner_ = nullptr;
  QLabel *lblTitle = nullptr;
  QStackedWidget *pages_ = nullptr;
  QPushButton *cmdSkip = nullptr;  ///< on the first run only, like the next
  QPushButton *cmdImport = nullptr;
  QPushButton *cmdBack = nullptr;
  QPushButton *cmdNext = nullptr;
};

/// Opens the wizard: for the first profile of the file, for the current one where it lacks a goal or weights, otherwise
/// for one more. Without `force` only where the current profile lacks something. True when it wrote a profile, which is
/// then the session's current one and still to be loaded.
bool StartWiz(Session &session, const Navigator &navigator, bool force, QWidget *owner);

}  // namespace trimlog
