#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include "core/profiles/person.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace trimlog {

class ChoiceCombo;
class DateField;
class NumberField;
class TextField;

/// What a profile form asks beside name, height, birth date and gender, and in which words.
struct ProfileFormKind {
  bool ofOwnProfile = false;  ///< "Your name:"; the height in one row with its units behind the numbers
  bool units = false;         ///< the unit system
  bool goal = false;
  bool signIn = false;  ///< Profile ID and password
};

/// The fields of one person: of the wizard, and of every dialog that adds or changes a profile. It shows and gives a
/// person, says what cannot be read, and stores nothing.
class ProfileForm : public QWidget {
  Q_OBJECT
 public:
  ProfileForm(Session &session, const ProfileFormKind &kind, QWidget *parent);

  void Show(const Person &person);
  /// What is typed, over what Show gave. What cannot be read counts as not told; see Complaint.
  Person Typed() const;
  /// The first field whose text is no number or no date.
  std::optional<PersonComplaint> Unreadable() const;

  void ShowUnits(int uomID);
  int UomID() const { return uomID_; }

  QLineEdit *Field(PersonField field) const;
  /// Gives a field the focus with its whole text selected.
  void GoTo(PersonField field);
  /// Shows why a field cannot be kept, and goes there.
  void Refuse(const PersonComplaint &complaint);

 Q_SIGNALS:
  void UomChosen(int uomID);

 private:
  void AddName(QGridLayout *grid);
  void AddUnits(QGridLayout *grid);
  void AddGoal(QGridLayout *grid);
  void AddHeight(QGridLayout *grid);
  void AddBirthDate(QGridLayout *grid);
  void AddGender(QGridLayout *grid);
  void AddSignIn(QGridLayout *grid);

  Session &session_;
  const ProfileFormKind kind_;
  Person shown_;
  int uomID_;
  TextField *txtPersonName = nullptr;
  ChoiceCombo *cboUomID = nullptr;
  NumberField *txtGoal = nullptr;
  QLabel *lblGoal = nullptr;
  NumberField *txtHeight1 = nullptr;
  NumberField *txtHeight2 = nullptr;
  QLabel *lblHeight1 = nullptr;
  QLabel *lblHeight2 = nullptr;
  DateField *txtBirthDate = nullptr;
  QRadioButton *optGenderMale = nullptr;
  QRadioButton *optGenderFemale = nullptr;
  TextField *txtUserID = nullptr;
  TextField *txtPassword = nullptr;
};

}  // namespace trimlog
