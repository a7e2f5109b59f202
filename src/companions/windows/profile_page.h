#pragma once

#include "companions/windows/wizard_page.h"
#include "core/session/session.h"

class QGridLayout;
class QLabel;
class QRadioButton;

namespace trimlog {

class ChoiceCombo;
class DateField;
class NumberField;
class TextField;

/// Who the profile belongs to: name, units (first run only), height, birth date, gender.
class ProfilePage : public WizardPage {
  Q_OBJECT
 public:
  ProfilePage(Session &session, bool addingProfile, QWidget *parent);

  QWidget *FirstField() const override;
  void Store(WizardAnswers &answers) override;
  bool Check(const WizardAnswers &answers) override;

 private:
  void AddName(QGridLayout *grid, bool addingProfile);
  void AddHeight(QGridLayout *grid);
  void AddBirthDate(QGridLayout *grid);
  void AddGender(QGridLayout *grid);
  void ShowUnits();
  void ChangeUnits();

  Session &session_;
  TextField *txtPersonName = nullptr;
  ChoiceCombo *cboUomID = nullptr;  ///< on the first run only
  NumberField *txtHeight1 = nullptr;
  NumberField *txtHeight2 = nullptr;
  QLabel *lblHeight1 = nullptr;
  QLabel *lblHeight2 = nullptr;
  DateField *txtBirthDate = nullptr;
  QRadioButton *optGenderMale = nullptr;
  QRadioButton *optGenderFemale = nullptr;
};

}  // namespace trimlog
