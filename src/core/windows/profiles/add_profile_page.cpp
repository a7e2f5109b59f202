#include "core/windows/profiles/add_profile_page.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "core/profiles/profile_list.h"
#include "core/session/failure_guard.h"
#include "core/settings/options.h"
#include "core/windows/controls/show_calendar.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int nameLength = 255;
constexpr int signInLength = 25;

}  // namespace

AddProfilePage::AddProfilePage(Session &session, QWidget *parent) : AddRecPage(parent), session_(session) {
  setObjectName(QStringLiteral("pnlAddRec(5)"));
  auto *form = new QFormLayout(this);
  AddFields(form);
  if (session_.edition.BizEd) AddSignInFields(form);
  setFocusProxy(txtPersonName);
}

QString AddProfilePage::Header() const { return QStringLiteral("Enter the new profile's information and click <OK>."); }

void AddProfilePage::AddFields(QFormLayout *form) {
  const QLocale &locale = session_.locale;
  const UnitLabels units = LabelsOf(session_.settings.UomID);
  txtPersonName = new TextField(QStringLiteral("txtPersonName"), QStringLiteral("Name"), nameLength, this);
  form->addRow(QStringLiteral("&Name:"), txtPersonName);
  txtGoal = new NumberField(QStringLiteral("txtGoal"), units.Goal, locale, this);
  form->addRow(QStringLiteral("&") + units.Goal + QLatin1Char(':'), txtGoal);
  txtHeight1 = new NumberField(QStringLiteral("txtHeight1"), units.HeightFeet, locale, this);
  form->addRow(QStringLiteral("&") + units.HeightFeet + QLatin1Char(':'), txtHeight1);
  txtHeight2 = new NumberField(QStringLiteral("txtHeight2"), units.HeightInches, locale, this);
  form->addRow(QString(units.HeightInches).insert(1, QLatin1Char('&')) + QLatin1Char(':'), txtHeight2);

  txtBirthDate = new DateField(QStringLiteral("txtBirthDate"), QStringLiteral("Birth date"), locale, this);
  auto *birth = new QHBoxLayout;
  birth->addWidget(txtBirthDate, 1);
  birth->addWidget(AttachCalendar(session_, *txtBirthDate, QStringLiteral("cmdBirthDate")));
  form->addRow(QStringLiteral("&Birth date:"), birth);
  qobject_cast<QLabel *>(form->labelForField(birth))
      ->setBuddy(txtBirthDate);  // a row of two controls has none by itself

  optGenderFemale = new QRadioButton(QStringLiteral("&Female"), this);
  optGenderFemale->setObjectName(QStringLiteral("optGenderFemale"));
  optGenderFemale->setChecked(true);
  optGenderMale = new QRadioButton(QStringLiteral("&Male"), this);
  optGenderMale->setObjectName(QStringLiteral("optGenderMale"));
  auto *gender = new QHBoxLayout;
  gender->addWidget(optGenderFemale);
  gender->addWidget(optGenderMale);
  gender->addStretch();
  form->addRow(QStringLiteral("Gender:"), gender);
}

void AddProfilePage::AddSignInFields(QFormLayout *form) {
  txtUserID = new TextField(QStringLiteral("txtUserID"), QStringLiteral("Profile ID"), 0, this);
  form->addRow(QStringLiteral("&Profile ID:"), txtUserID);
  txtPassword = new TextField(QStringLiteral("txtPassword"), QStringLiteral("Password"), 0, this);
  txtPassword->setEchoMode(QLineEdit::Password);
  txtPassword->setToolTip(QStringLiteral("At most %1 characters; capitals do not matter.").arg(signInLength));
  form->addRow(QStringLiteral("Pass&word:"), txtPassword);
}

NewProfile AddProfilePage::Typed() const {
  NewProfile profile;
  profile.PersonName = txtPersonName->text();
  profile.goal = txtGoal->text();
  profile.HeightFeet = txtHeight1->ValueOrZero();
  profile.HeightInches = txtHeight2->ValueOrZero();
  profile.GenderID = optGenderMale->isChecked() ? 1 : 2;
  profile.BirthDate = txtBirthDate->Date();
  if (txtUserID) profile.UserID = txtUserID->text();
  if (txtPassword) profile.Password = txtPassword->text();
  return profile;
}

bool AddProfilePage::GoalAccepted() {
  if (ConfirmGoal(session_, txtGoal->text())) return true;
  txtGoal->setFocus();
  txtGoal->selectAll();
  return false;
}

QLineEdit *AddProfilePage::FieldOf(NewProfileField field) const {
  switch (field) {
    case NewProfileField::HeightFeet:
      return txtHeight1;
    case NewProfileField::HeightInches:
      return txtHeight2;
    case NewProfileField::BirthDate:
      return txtBirthDate;
    case NewProfileField::UserID:
      return txtUserID;
    case NewProfileField::Password:
      return txtPassword;
    default:
      return txtPersonName;
  }
}

/// What cannot be read must not count as left empty.
std::optional<NewProfileComplaint> AddProfilePage::UnreadableField() const {
  for (const auto &[field, kind] :
       {std::pair(txtHeight1, NewProfileField::HeightFeet), std::pair(txtHeight2, NewProfileField::HeightInches)}) {
    if (!field->Complaint().isEmpty()) {
      return NewProfileComplaint{kind, QStringLiteral("Invalid Height"), field->Complaint()};
    }
  }
  if (!txtBirthDate->text().trimmed().isEmpty() && !txtBirthDate->Date().isValid()) {
    return NewProfileComplaint{NewProfileField::BirthDate, QStringLiteral("Invalid Birth Date"),
                               QStringLiteral("Please enter a valid birth date (or leave the field blank).")};
  }
  return std::nullopt;
}

void AddProfilePage::ShowComplaint(const NewProfileComplaint &complaint) {
  session_.boxes.Critical(complaint.title, complaint.text);
  QLineEdit *field = FieldOf(complaint.field);
  field->setFocus();
  field->selectAll();
}

bool AddProfilePage::Store() {
  if (const auto complaint = UnreadableField()) {
    ShowComplaint(*complaint);
    return false;
  }
  const NewProfile profile = Typed();
  if (const auto complaint = CheckNewProfile(session_, profile)) {
    ShowComplaint(*complaint);
    return false;
  }
  if (!GoalAccepted()) return false;
  const FailureExit failure{QStringLiteral("basMain"), QStringLiteral("AddRec"), QStringLiteral("Error Adding Profile"),
                            QStringLiteral("An error occurred while adding this profile.  "), true};
  return Guarded(session_, failure, [&] { personID_ = AddNewProfile(session_, profile); });
}

}  // namespace trimlog
