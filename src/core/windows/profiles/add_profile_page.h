#pragma once

#include "core/session/session.h"
#include "core/windows/profiles/add_rec_page.h"

namespace trimlog {

class ProfileForm;

/// The page that adds a further profile.
class AddProfilePage : public AddRecPage {
  Q_OBJECT
 public:
  AddProfilePage(Session &session, QWidget *parent);
  QString Title() const override { return QStringLiteral("Add a New User or Profile"); }
  QString Header() const override;
  bool Store() override;

 private:
  Session &session_;
  ProfileForm *form_;
};

}  // namespace trimlog
