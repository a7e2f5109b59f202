#include "core/windows/profiles/profile_form.h"

#include <QAbstractButton>
#include <QGridLayout>

#include "core/profiles/goal.h"
#include "core/profiles/passwords.h"
#include "core/settings/options.h"
#include "core/settings/unit_system.h"
#include "core/windows/controls/choice_combo.h"
#include "core/windows/controls/show_calendar.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/form_rows.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int longestName = 255;
constexpr int digitsOfField = 8;
constexpr int digitsOfDate = 12;

NumberField *MakeNumber(const QString &name, const QLocale &locale, QWidget *form) {
  auto *field = new NumberField(name, {}, locale, form);
  field->setFixedWidth(FieldWidth(field, digitsOfField));
  return field;
}

/// 0 is "not told", and so is an empty field.
QString HeightText(double height, const QLocale &locale) {
  return height == 0 ? QString() : Format(height, QStringLiteral("General Number"), locale);
}

}  // namespace

ProfileForm::ProfileForm(Session &session, const ProfileFormKind &kind, QWidget *parent)
    : QWidget(parent), session_(session), kind_(kind), uomID_(session.settings.UomID) {
  QGridLayout *grid = MakeFormGrid();
  grid->setContentsMargins(0, 0, 0, 0);
  setLayout(grid);
  AddName(grid);
  if (kind_.units) AddUnits(grid);
  if (kind_.goal) AddGoal(grid);
  AddHeight(grid);
  AddBirthDate(grid);
  AddGender(grid);
  if (kind_.signIn) AddSignIn(grid);
  ShowUnits(uomID_);
  setFocusProxy(txtPersonName);
}

void ProfileForm::AddName(QGridLayout *grid) {
  const bool own = kind_.ofOwnProfile;
  txtPersonName = new TextField(QStringLiteral("txtPersonName"),
                                own ? QStringLiteral("Your name") : QStringLiteral("Name"), longestName, this);
  AddFormRow(grid, own ? QStringLiteral("Your na&me:") : QStringLiteral("&Name:"), txtPersonName, {txtPersonName});
}

void ProfileForm::AddUnits(QGridLayout *grid) {
  cboUomID = new ChoiceCombo(QStringLiteral("cboUomID"), QStringLiteral("Units of measure"), this);
  cboUomID->SetChoices(UnitChoices(session_));
  cboUomID->SetValue(uomID_);
  AddFormRow(grid, QStringLiteral("&Units of measure:"), cboUomID, {cboUomID});
  connect(cboUomID, &QComboBox::currentIndexChanged, this, [this] {
    ShowUnits(cboUomID->ChosenValue());
    Q_EMIT UomChosen(uomID_);
  });
}

void ProfileForm::AddGoal(QGridLayout *grid) {
  txtGoal = MakeNumber(QStringLiteral("txtGoal"), session_.locale, this);
  lblGoal = AddFormRow(grid, {}, txtGoal, {txtGoal});
}

void ProfileForm::AddHeight(QGridLayout *grid) {
  txtHeight1 = MakeNumber(QStringLiteral("txtHeight1"), session_.locale, this);
  txtHeight2 = MakeNumber(QStringLiteral("txtHeight2"), session_.locale, this);
  if (kind_.ofOwnProfile) {
    lblHeight1 = MakeLabel(QStringLiteral("lblHeight1"), {});
    lblHeight2 = MakeLabel(QStringLiteral("lblHeight2"), {});
    AddFormRow(grid, QStringLiteral("Your &height:"), txtHeight1, {txtHeight1, lblHeight1, txtHeight2, lblHeight2});
    return;
  }
  lblHeight1 = AddFormRow(grid, {}, txtHeight1, {txtHeight1});
  lblHeight2 = AddFormRow(grid, {}, txtHeight2, {txtHeight2});
}

void ProfileForm::AddBirthDate(QGridLayout *grid) {
  const bool own = kind_.ofOwnProfile;
  txtBirthDate =
      new DateField(QStringLiteral("txtBirthDate"),
                    own ? QStringLiteral("Your birth date") : QStringLiteral("Birth date"), session_.locale, this);
  txtBirthDate->setFixedWidth(FieldWidth(txtBirthDate, digitsOfDate));
  AddFormRow(grid, own ? QStringLiteral("Your birth &date:") : QStringLiteral("&Birth date:"), txtBirthDate,
             {txtBirthDate, AttachCalendar(session_, *txtBirthDate, QStringLiteral("cmdBirthDate"))});
}

void ProfileForm::AddGender(QGridLayout *grid) {
  auto *genders = new QWidget(this);
  auto *row = new QHBoxLayout(genders);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(spacing::apart);
  optGenderFemale = AddOption(row, QStringLiteral("optGenderFemale"), QStringLiteral("F&emale"));
  optGenderMale = AddOption(row, QStringLiteral("optGenderMale"), QStringLiteral("M&ale"));
  optGenderFemale->setChecked(true);
  const QString caption = kind_.ofOwnProfile ? QStringLiteral("Your gender:") : QStringLiteral("Gender:");
  AddFormRow(grid, caption, nullptr, {genders});
}

void ProfileForm::AddSignIn(QGridLayout *grid) {
  txtUserID = new TextField(QStringLiteral("txtUserID"), QStringLiteral("Profile ID"), 0, this);
  AddFormRow(grid, QStringLiteral("&Profile ID:"), txtUserID, {txtUserID});
  txtPassword = new TextField(QStringLiteral("txtPassword"), QStringLiteral("Password"), 0, this);
  txtPassword->setEchoMode(QLineEdit::Password);
  txtPassword->setToolTip(QStringLiteral("At most %1 characters; capitals do not matter.").arg(passwordLength));
  AddFormRow(grid, QStringLiteral("Pass&word:"), txtPassword, {txtPassword});
}

void ProfileForm::ShowUnits(int uomID) {
  uomID_ = uomID;
  if (cboUomID) cboUomID->SetValue(uomID);
  const UnitLabels labels = LabelsOf(uomID);
  if (lblGoal) {
    lblGoal->setText(QLatin1Char('&') + labels.Goal + QLatin1Char(':'));
    txtGoal->setAccessibleName(labels.Goal);
  }
  if (!kind_.ofOwnProfile) {
    lblHeight1->setText(QLatin1Char('&') + labels.HeightFeet + QLatin1Char(':'));
    lblHeight2->setText(QString(labels.HeightInches).insert(1, QLatin1Char('&')) + QLatin1Char(':'));
    txtHeight1->setAccessibleName(labels.HeightFeet);
    txtHeight2->setAccessibleName(labels.HeightInches);
    return;
  }
  const bool feet = uomID == poundsSystem;
  lblHeight1->setText(feet ? QStringLiteral("Feet") : QStringLiteral("Meters"));
  lblHeight2->setText(feet ? QStringLiteral("Inches") : QStringLiteral("Centimeters"));
  txtHeight1->setAccessibleName(QStringLiteral("Your height, ") + lblHeight1->text());
  txtHeight2->setAccessibleName(QStringLiteral("Your height, ") + lblHeight2->text());
}

void ProfileForm::Show(const Person &person) {
  shown_ = person;
  txtPersonName->setText(person.PersonName);
  if (txtGoal) txtGoal->setText(GoalToShow(GoalToStore(person.Goal), session_.locale));
  txtHeight1->setText(HeightText(person.HeightFeet, session_.locale));
  txtHeight2->setText(HeightText(person.HeightInches, session_.locale));
  txtBirthDate->SetDate(person.BirthDate);
  (person.GenderID == 1 ? optGenderMale : optGenderFemale)->setChecked(true);
  if (txtUserID) txtUserID->setText(person.UserID);
  if (txtPassword) txtPassword->setText(person.Password);
}

Person ProfileForm::Typed() const {
  Person person = shown_;
  person.PersonName = txtPersonName->text();
  if (txtGoal) person.Goal = txtGoal->Number();
  person.HeightFeet = txtHeight1->ValueOrZero();
  person.HeightInches = txtHeight2->ValueOrZero();
  person.BirthDate = txtBirthDate->Date();
  person.GenderID = optGenderMale->isChecked() ? 1 : 2;
  if (txtUserID) person.UserID = txtUserID->text();
  if (txtPassword) person.Password = txtPassword->text();
  return person;
}

std::optional<PersonComplaint> ProfileForm::Unreadable() const {
  for (const auto &[field, kind] :
       {std::pair(txtHeight1, PersonField::HeightFeet), std::pair(txtHeight2, PersonField::HeightInches)}) {
    if (!field->Complaint().isEmpty()) {
      return PersonComplaint{kind, QStringLiteral("Invalid Height"), field->Complaint()};
    }
  }
  if (!txtBirthDate->text().trimmed().isEmpty() && !txtBirthDate->Date().isValid()) {
    return PersonComplaint{PersonField::BirthDate, QStringLiteral("Invalid Birth Date"),
                           QStringLiteral("Please enter a valid birth date (or leave the field blank).")};
  }
  return std::nullopt;
}

QLineEdit *ProfileForm::Field(PersonField field) const {
  switch (field) {
    case PersonField::Goal:
      return txtGoal;
    case PersonField::HeightFeet:
      return txtHeight1;
    case PersonField::HeightInches:
      return txtHeight2;
    case PersonField::BirthDate:
      return txtBirthDate;
    case PersonField::UserID:
      return txtUserID;
    case PersonField::Password:
      return txtPassword;
    case PersonField::PersonName:
      break;
  }
  return txtPersonName;
}

void ProfileForm::GoTo(PersonField field) {
  QLineEdit *control = Field(field);
  control->setFocus();
  control->selectAll();
}

void ProfileForm::Refuse(const PersonComplaint &complaint) {
  session_.boxes.Critical(complaint.title, complaint.text);
  GoTo(complaint.field);
}

}  // namespace trimlog
