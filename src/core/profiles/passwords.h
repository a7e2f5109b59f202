#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

inline constexpr int passwordLength = 25;  ///< the longest password, in characters

/// A profile's password as kept in the data file (plain text); "" for none.
QString StoredPassword(Session &session, const QString &personID);

/// Passwords do not tell small letters from capitals.
bool PasswordMatches(const QString &typed, const QString &stored);

/// Compares what was typed with the profile's password; shows the box when it is wrong.
bool AcceptPassword(Session &session, const QString &personID, const QString &typed);

/// What a person typed to change a password. An empty `changed` removes it.
struct PasswordEntry {
  QString old;
  QString changed;
  QString confirmed;
};

enum class PasswordOutcome { Changed, WrongOld, NotConfirmed, SameAsOld, Failed };

/// Checks and stores a new password; every outcome has shown its box.
PasswordOutcome ChangePassword(Session &session, const QString &personID, const PasswordEntry &entry);

}  // namespace trimlog
