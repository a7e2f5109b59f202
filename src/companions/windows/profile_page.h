#pragma once

#include "companions/windows/wizard_page.h"
#include "core/session/session.h"

namespace trimlog {

class ProfileForm;

/// Who the profile belongs to: name, units (first run only), height, birth date, gender.
class ProfilePage : public WizardPage {
  Q_OBJECT
 public:
  /// `startingAnswers` fill the fields.
  ProfilePage(Session &session, bool asksForUnits, const QString &sentence, const WizardAnswers &startingAnswers,
              QWidget *parent);

  QWidget *FirstField() const override;
  void Store(WizardAnswers &answers) override;
  bool Check(const WizardAnswers &answers) override;

 private:
  /// The unit system is the one answer that is kept before the wizard's end.
  void StoreUnits();

  Session &session_;
  ProfileForm *form_;
};

}  // namespace trimlog
