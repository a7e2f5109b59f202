#include "core/windows/profiles/add_profile_page.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "core/profiles/colour_scheme.h"
#include "core/profiles/goal.h"
#include "core/session/failure_guard.h"
#include "core/windows/profiles/profile_form.h"

namespace trimlog {

AddProfilePage::AddProfilePage(Session &session, QWidget *parent)
    : AddRecPage(parent),
      session_(session),
      form_(new ProfileForm(session, {.goal = true, .signIn = session.edition.BizEd}, this)) {
  setObjectName(QStringLiteral("pnlAddRec(5)"));
  auto *layout = new QVBoxLayout(this);
  layout->addWidget(form_);
  layout->addStretch();
  setFocusProxy(form_);
}

QString AddProfilePage::Header() const { return QStringLiteral("Enter the new profile's information and click <OK>."); }

bool AddProfilePage::Store() {
  Person person = form_->Typed();
  person.BackColor = DefaultBackColor(session_);
  // What cannot be read must not count as left empty.
  auto complaint = form_->Unreadable();
  if (!complaint) complaint = CheckNewPerson(session_, person);
  if (complaint) {
    form_->Refuse(*complaint);
    return false;
  }
  if (!ConfirmGoal(session_, form_->Field(PersonField::Goal)->text())) {
    form_->GoTo(PersonField::Goal);
    return false;
  }
  const FailureExit failure{QStringLiteral("basMain"), QStringLiteral("AddRec"), QStringLiteral("Error Adding Profile"),
                            QStringLiteral("An error occurred while adding this profile.  "), true};
  return Guarded(session_, failure, [&] { AddPerson(session_, person); });
}

}  // namespace trimlog
