#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "core/session/session.h"

namespace trimlog {

/// What the file keeps of a person. Numbers are in the unit system in force.
struct Person {
  QString PersonName = {};
  std::optional<double> Goal = {};  ///< the weight to reach; nothing: not told
  double HeightFeet = 0;            ///< feet or metres
  double HeightInches = 0;          ///< inches or centimetres
  QDate BirthDate = {};             ///< invalid: not told
  int GenderID = 2;                 ///< 1 male, 2 female
  QString UserID = {};              ///< the Profile ID; only with the Profile Administrator
  QString Password = {};
  quint32 BackColor = 0;  ///< blue-green-red byte order
  int NutTargetID = 1;    ///< 1 is the reference set of daily values
};

/// The person of that number, or nothing.
std::optional<Person> ReadPerson(Session &session, const QString &personID);

/// The number of the next person. Never below 1, whoever is in the file: 0 is nobody, and below are the samples.
QString NextPersonID(Session &session);

/// Adds a row, and announces it after the commit. The ID and the password are kept as they stand here; double quotes in
/// the name become two single ones, as in all names. Throws what the store throws, like UpdatePerson.
void InsertPerson(Session &session, const QString &personID, const Person &person);
/// Name, goal, height, birth date and gender anew; whatever else the row holds stays.
void UpdatePerson(Session &session, const QString &personID, const Person &person);

/// The field of a form that cannot be kept, and why.
enum class PersonField { PersonName, Goal, HeightFeet, HeightInches, BirthDate, UserID, Password };
struct PersonComplaint {
  PersonField field = PersonField::PersonName;
  QString title;
  QString text;
};
/// Height (its two numbers together, in the unit system `UomID`), birth date and goal; nothing when they can be kept. A
/// goal that is no number above 0 is no complaint: ConfirmGoal asks.
std::optional<PersonComplaint> CheckBody(const Person &person, int UomID, const QDate &today);
/// The same for a person who is to be added, with the name and, where the Profile Administrator asks for them, ID and
/// password.
std::optional<PersonComplaint> CheckNewPerson(Session &session, const Person &person);
/// Why a birth date cannot be kept: a sentence, or "". An invalid date is "not told".
QString RefusedBirthDate(const QDate &date, const QDate &today);

/// Adds a further person in one transaction, announces it and returns the number. Throws what the store throws.
QString AddPerson(Session &session, const Person &person);

}  // namespace trimlog
