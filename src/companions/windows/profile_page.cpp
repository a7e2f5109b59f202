#include "companions/windows/profile_page.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "core/settings/options.h"
#include "core/windows/profiles/profile_form.h"

namespace trimlog {

ProfilePage::ProfilePage(Session &session, bool asksForUnits, const QString &sentence,
                         const WizardAnswers &startingAnswers, QWidget *parent)
    : WizardPage(parent),
      session_(session),
      form_(new ProfileForm(session, {.ofOwnProfile = true, .units = asksForUnits}, this)) {
  AddForm(sentence, form_);
  form_->Show(startingAnswers.person);
  form_->ShowUnits(startingAnswers.UomID);
  connect(form_, &ProfileForm::UomChosen, this, &ProfilePage::StoreUnits);
  MendOnLeaving(form_->Field(PersonField::PersonName), RepairedPersonName);
  MendOnLeaving(form_->Field(PersonField::HeightFeet),
                [this](const QString &text) { return RepairedNumber(text, session_.locale); });
  MendOnLeaving(form_->Field(PersonField::HeightInches),
                [this](const QString &text) { return RepairedHeight2(text, form_->UomID(), session_.locale); });
  MendOnLeaving(form_->Field(PersonField::BirthDate),
                [this](const QString &text) { return RepairedBirthDate(text, session_.Today(), session_.locale); });
}

void ProfilePage::StoreUnits() {
  if (session_.settings.UomID == form_->UomID()) return;
  Settings edited = session_.settings;
  edited.UomID = form_->UomID();
  StoreOptions(session_, edited);
}

QWidget *ProfilePage::FirstField() const { return form_->Field(PersonField::PersonName); }

void ProfilePage::Store(WizardAnswers &answers) {
  MendFields();
  StoreUnits();
  const Person typed = form_->Typed();
  answers.person.PersonName = typed.PersonName;
  answers.person.HeightFeet = typed.HeightFeet;
  answers.person.HeightInches = typed.HeightInches;
  answers.person.BirthDate = typed.BirthDate;
  answers.person.GenderID = typed.GenderID;
  answers.UomID = form_->UomID();
}

bool ProfilePage::Check(const WizardAnswers &answers) {
  // The goal is the next step's.
  Person person = answers.person;
  person.Goal = std::nullopt;
  const auto complaint = CheckBody(person, answers.UomID, session_.Today());
  if (complaint) form_->Refuse(*complaint);
  return !complaint;
}

}  // namespace trimlog
