#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "core/session/failure_guard.h"
#include "core/session/room_hooks.h"
#include "core/session/session.h"

namespace trimlog {

inline const QString sampleProfile1 = QStringLiteral("-2");  ///< a month with a full journal
inline const QString sampleProfile2 = QStringLiteral("-1");  ///< seven months of weights alone

/// One ordinary profile of the data file.
struct ProfileEntry {
  QString PersonID;
  QString PersonName;
};

/// The ordinary profiles (PersonID above 0) by name. Throws what the store throws.
QList<ProfileEntry> FillProfilesArray(Session &session);

enum class ProfileCommand {
  Load,        ///< an ordinary profile
  LoadSample,  ///< a sample: loaded, then welcomed by ShowSampleWelcome
  Separator,
  CreateProfile,
  EditProfiles,
  SelectProfile,  ///< only with the Profile Administrator
  Administrator,  ///< only with the Profile Administrator
};

/// One entry of the Profiles menu, mnuProfileNames(index). The caption is ready for a menu: a name's own ampersands are
/// doubled, so that they show.
struct ProfileMenuEntry {
  ProfileCommand command = ProfileCommand::Separator;
  QString caption;   ///< "-" for a separator
  QString PersonID;  ///< of Load and LoadSample
  bool checked = false;
};

/// The entries of the Profiles menu, top to bottom.
QList<ProfileMenuEntry> ProfilesMenuEntries(const Session &session, const QList<ProfileEntry> &profiles);

/// The information box that follows the loading of a sample from the menu; nothing for other profiles.
void ShowSampleWelcome(Session &session, const QString &personID);

/// Makes a profile the session's own: person, colour scheme, target set, rewards, nutrients, statistics; clears the
/// weight dates and the remembered date. Asks for no password and touches no window: LoadData does that around it.
/// Start calls it too, when the sign-in window chose another profile than the one start had read, or was cancelled.
void ApplyProfile(Session &session, const RoomHooks &hooks, const QString &personID);

/// The exit of LoadData as a whole, for Guarded.
FailureExit LoadDataFailure();

bool ProfileExists(Session &session, const QString &personID);
/// True when no ordinary profile exists yet: then a new one is made by the configuration wizard.
bool HasNoProfiles(Session &session);

/// Asks, then deletes the weights and notes of profile 1, whichever profile is loaded. True when they were deleted; the
/// caller then loads profile 1.
bool ResetWeightLossData(Session &session);

/// The administrator's row in an installation with the Profile Administrator; does nothing without it, or when the row
/// is there. An ordinary profile that holds PersonID 1 moves to the next free key with all its data.
void CreateAdminProfile(Session &session);

}  // namespace trimlog
