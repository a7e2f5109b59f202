#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "core/session/session.h"

namespace trimlog {

/// A further profile as the add dialog asks for it. Numbers are in the unit system in force.
struct NewProfile {
  QString PersonName = {};
  QString goal = {};        ///< as typed, in the locale's form
  double HeightFeet = 0;    ///< feet or metres
  double HeightInches = 0;  ///< inches or centimetres
  int GenderID = 2;         ///< 1 male, 2 female
  QDate BirthDate = {};     ///< invalid: not told
  QString UserID = {};      ///< the Profile ID; only with the Profile Administrator
  QString Password = {};    ///< likewise
};

/// What keeps a new profile from being added, in the order of the fields.
enum class NewProfileField { None, PersonName, HeightFeet, HeightInches, BirthDate, UserID, Password };
struct NewProfileComplaint {
  NewProfileField field = NewProfileField::None;
  QString title;
  QString text;
};
/// Nothing when the profile may be added. A goal that is no number above 0 is no
/// complaint here: ConfirmGoal asks.
std::optional<NewProfileComplaint> CheckNewProfile(Session &session, const NewProfile &profile);

/// Stores the profile under the next key, in one transaction, and announces it. Returns its PersonID. Throws what the
/// store throws.
QString AddNewProfile(Session &session, const NewProfile &profile);

}  // namespace trimlog
