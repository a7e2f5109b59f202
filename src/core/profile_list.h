#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include "core/session.h"

namespace trimlog {

/// A gender as kept in people.GenderID.
struct Gender {
  int GenderID = 0;
  QString name;
};
const QList<Gender> &Genders();

/// The ordinary profiles, as the grids of the options window show them.
QString ProfilesStatement();

/// The warning before one or several profiles are deleted with everything they hold. True for Yes.
bool AskDeleteProfiles(Session &session, int count);

/// Deletes profiles in one transaction; the file's relations take their rows along. A failure shows its box, returns
/// false and deletes none.
bool DeleteProfiles(Session &session, const QStringList &personIDs);

/// After a deletion: the profile that the session should stand on. The current one when it is still there, otherwise
/// the first that is left, otherwise the first sample. Also forgets a deleted LastRealPersonID.
QString ProfileToStandOn(Session &session);

/// May the options window be left with this goal? True for a number above 0; otherwise the person decides.
bool ConfirmGoal(Session &session, const QString &goal);

/// The goal as it is kept: a number typed in the person's own form in plain form, anything else as typed.
QString GoalToStore(const QString &typed, const QLocale &locale);
/// A kept goal in the person's own form.
QString GoalToShow(const QString &stored, const QLocale &locale);

/// Why a value is refused in the profiles list, a sentence for the person; "" when it is fine.
QString RefusedName(const QString &name);
QString RefusedHeight(double height);
QString RefusedBirthDate(const QDate &date, const QDate &today);

}  // namespace trimlog
