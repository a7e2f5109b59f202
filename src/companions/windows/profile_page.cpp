#include "companions/windows/profile_page.h"

#include <QAbstractButton>
#include <QGridLayout>

#include "companions/windows/wizard_controls.h"
#include "companions/wizard_finish.h"
#include "core/settings/options.h"
#include "core/windows/controls/choice_combo.h"
#include "core/windows/controls/show_calendar.h"
#include "core/windows/setup/setup_controls.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int longestName = 255;

}  // namespace

ProfilePage::ProfilePage(Session &session, bool addingProfile, QWidget *parent)
    : WizardPage(parent), session_(session) {
  QGridLayout *grid =
      MakeWizardForm(this, addingProfile ? QStringLiteral("Who is the new profile for?")
                                         : QStringLiteral("Your height, age and gender let the program work out how "
                                                          "many calories you need."));
  AddName(grid, addingProfile);
  AddHeight(grid);
  AddBirthDate(grid);
  AddGender(grid);
  ShowUnits();
}

void ProfilePage::AddName(QGridLayout *grid, bool addingProfile) {
  txtPersonName = new TextField(QStringLiteral("txtPersonName"), QStringLiteral("Your name"), longestName, this);
  if (!addingProfile) txtPersonName->setText(ProposedPersonName(session_));
  AddWizardRow(grid, QStringLiteral("Your na&me:"), txtPersonName, {txtPersonName});
  MendOnLeaving(txtPersonName, RepairedPersonName);
  if (addingProfile) return;
  cboUomID = new ChoiceCombo(QStringLiteral("cboUomID"), QStringLiteral("Units of measure"), this);
  cboUomID->SetChoices(UnitChoices(session_));
  cboUomID->SetValue(session_.settings.UomID);
  AddWizardRow(grid, QStringLiteral("&Units of measure:"), cboUomID, {cboUomID});
  connect(cboUomID, &QComboBox::currentIndexChanged, this, &ProfilePage::ChangeUnits);
}

void ProfilePage::AddHeight(QGridLayout *grid) {
  txtHeight1 = AddWizardNumber(QStringLiteral("txtHeight1"), session_.locale, this);
  txtHeight2 = AddWizardNumber(QStringLiteral("txtHeight2"), session_.locale, this);
  lblHeight1 = AddWizardUnit(QStringLiteral("lblHeight1"), this);
  lblHeight2 = AddWizardUnit(QStringLiteral("lblHeight2"), this);
  AddWizardRow(grid, QStringLiteral("Your &height:"), txtHeight1, {txtHeight1, lblHeight1, txtHeight2, lblHeight2});
  MendOnLeaving(txtHeight1, [this](const QString &text) { return RepairedNumber(text, session_.locale); });
  MendOnLeaving(txtHeight2, [this](const QString &text) {
    return RepairedHeight2(text, session_.settings.UomID, session_.locale);
  });
}

void ProfilePage::AddBirthDate(QGridLayout *grid) {
  txtBirthDate =
      new DateField(QStringLiteral("txtBirthDate"), QStringLiteral("Your birth date"), session_.locale, this);
  FitWizardField(txtBirthDate, dateCharacters);
  AddWizardRow(grid, QStringLiteral("Your birth &date:"), txtBirthDate,
               {txtBirthDate, AttachCalendar(session_, *txtBirthDate, QStringLiteral("cmdBirthDate"))});
  MendOnLeaving(txtBirthDate,
                [this](const QString &text) { return RepairedBirthDate(text, session_.Today(), session_.locale); });
}

void ProfilePage::AddGender(QGridLayout *grid) {
  auto *genders = new QWidget(this);
  auto *row = new QHBoxLayout(genders);
  row->setContentsMargins(0, 0, 0, 0);
  optGenderFemale = AddOption(row, QStringLiteral("optGenderFemale"), QStringLiteral("F&emale"));
  optGenderMale = AddOption(row, QStringLiteral("optGenderMale"), QStringLiteral("M&ale"));
  row->setSpacing(16);
  optGenderFemale->setChecked(true);
  AddWizardRow(grid, QStringLiteral("Your gender:"), nullptr, {genders});
}

void ProfilePage::ShowUnits() {
  const bool feet = session_.settings.UomID == 1;
  lblHeight1->setText(feet ? QStringLiteral("Feet") : QStringLiteral("Meters"));
  lblHeight2->setText(feet ? QStringLiteral("Inches") : QStringLiteral("Centimeters"));
  txtHeight1->setAccessibleName(QStringLiteral("Your height, ") + lblHeight1->text());
  txtHeight2->setAccessibleName(QStringLiteral("Your height, ") + lblHeight2->text());
}

void ProfilePage::ChangeUnits() {
  Settings edited = session_.settings;
  edited.UomID = cboUomID->ChosenValue();
  StoreOptions(session_, edited);
  ShowUnits();
}

QWidget *ProfilePage::FirstField() const { return txtPersonName; }

void ProfilePage::Store(WizardAnswers &answers) {
  MendFields();
  answers.PersonName = txtPersonName->text().trimmed();
  answers.UomID = session_.settings.UomID;
  answers.height1 = txtHeight1->ValueOrZero();
  answers.height2 = txtHeight2->ValueOrZero();
  answers.birthDate = txtBirthDate->Date();
  answers.genderMale = optGenderMale->isChecked();
}

bool ProfilePage::Check(const WizardAnswers &answers) {
  const auto complaint = CheckProfileAnswers(answers, session_.Today());
  if (!complaint) return true;
  session_.boxes.Critical(complaint->title, complaint->text);
  QLineEdit *field = txtHeight1;
  if (complaint->field == WizardField::Height2) field = txtHeight2;
  if (complaint->field == WizardField::BirthDate) field = txtBirthDate;
  GoTo(field);
  return false;
}

}  // namespace trimlog
