#pragma once

#include "core/profiles/new_profile.h"
#include "core/windows/profiles/add_rec_page.h"

class QFormLayout;
class QLineEdit;
class QRadioButton;

namespace trimlog {

class DateField;
class NumberField;
class TextField;

/// The page that adds a further profile.
class AddProfilePage : public AddRecPage {
  Q_OBJECT
 public:
  AddProfilePage(Session &session, QWidget *parent);
  QString Title() const override { return QStringLiteral("Add a New User or Profile"); }
  QString Header() const override;
  bool Store() override;
  /// The key of the profile that Store added.
  const QString &PersonID() const { return personID_; }

 private:
  void AddFields(QFormLayout *form);
  void AddSignInFields(QFormLayout *form);
  NewProfile Typed() const;
  bool GoalAccepted();
  QLineEdit *FieldOf(NewProfileField field) const;
  std::optional<NewProfileComplaint> UnreadableField() const;
  void ShowComplaint(const NewProfileComplaint &complaint);

  Session &session_;
  QString personID_;
  TextField *txtPersonName = nullptr;
  NumberField *txtGoal = nullptr;
  NumberField *txtHeight1 = nullptr;
  NumberField *txtHeight2 = nullptr;
  DateField *txtBirthDate = nullptr;
  QRadioButton *optGenderMale = nullptr;
  QRadioButton *optGenderFemale = nullptr;
  TextField *txtUserID = nullptr;  ///< only with the Profile Administrator, like the next
  TextField *txtPassword = nullptr;
};

}  // namespace trimlog
