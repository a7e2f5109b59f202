#include "core/start/session_start.h"

#include "core/data/data_access.h"
#include "core/profiles/colour_scheme.h"
#include "core/profiles/profiles.h"
#include "core/session/change.h"
#include "core/session/failure_guard.h"
#include "core/session/system_services.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString firstPerson = QStringLiteral("1");

struct ProfileRow {
  QString PersonID;
  QString BackColor;
  QString NutTargetID;
};

QList<ProfileRow> OrdinaryProfiles(Session &session) {
  QList<ProfileRow> profiles;
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT people.* FROM people WHERE ((people.PersonID) > 0) ORDER BY people.PersonID;"));
  for (; !rows.Eof(); rows.MoveNext()) {
    profiles.append({rows.Text(QStringLiteral("PersonID")), rows.Text(QStringLiteral("BackColor")),
                     rows.Text(QStringLiteral("NutTargetID"))});
  }
  return profiles;
}

/// The saved profile's row, else the first one, else that of a person who is still to be made.
ProfileRow StartProfile(Session &session) {
  const QList<ProfileRow> profiles = OrdinaryProfiles(session);
  for (const ProfileRow &profile : profiles) {
    if (profile.PersonID == session.settings.PersonID) return profile;
  }
  return profiles.isEmpty() ? ProfileRow{firstPerson, {}, {}} : profiles.front();
}

}  // namespace

void LoadUnitLabel(Session &session) {
  session.UomDisplay = GetDataValue(session.Data(), QStringLiteral("UomDisplay"), QStringLiteral("uom"),
                                    QStringLiteral("((uom.UomID)=?)"), {}, {session.settings.UomID});
}

void LoadDecimalComma(Session &session) {
  session.DecimalComma = GetLocaleValue(session.locale, localeDecimalSign) == QLatin1String(",");
}

void NumberStrayProfile(Session &session) {
  const FailureExit exit{QStringLiteral("basMain"), QStringLiteral("NumberStrayProfile"), {}, {}};
  Guarded(session, exit, [&session] {
    const auto strays = session.Data().OpenRecordset(
        QStringLiteral("SELECT people.PersonID FROM people WHERE (people.PersonID=0);"), {}, RecordsetKind::Forward);
    if (strays.Eof()) return;
    Change change(session);
    const int personID = GetNextID(session.Data(), QStringLiteral("people")).toInt();
    session.Data().Execute(QStringLiteral("UPDATE people SET people.PersonID = ? WHERE (people.PersonID=0);"),
                           {personID});
    change.Announce({.table = Table::People, .keys = {0, personID}});
    change.Commit();
  });
}

void ChooseProfile(Session &session) {
  const ProfileRow profile = StartProfile(session);
  session.profile.CurrentPersonID = profile.PersonID;
  session.profile.LastRealPersonID = profile.PersonID;
  session.profile.BackColor =
      profile.BackColor.isEmpty() ? DefaultBackColor(session) : static_cast<quint32>(profile.BackColor.toLongLong());
  session.profile.NutTargetID = profile.NutTargetID.isEmpty() ? defaultTargetSet : profile.NutTargetID.toInt();
}

namespace {

bool HasDateTableForToday(Session &session) {
  bool has = false;
  GuardedQuietly([&] {
    const Recordset today = session.Data().OpenRecordset(
        QStringLiteral("SELECT temp_alldates.PersonID, temp_alldates.ThisIndex FROM temp_alldates "
                       "WHERE ((temp_alldates.ThisDate)=?);"),
        {session.Today()});
    has = !today.Eof();
  });
  return has;
}

}  // namespace

void RecreateDateTable(Session &session) {
  // A start that has nothing to make anew waits for no disk before its first window.
  if (HasDateTableForToday(session)) return;
  GuardedQuietly([&session] {
    Transaction transaction(session.Data());
    if (session.Data().HasTable(QStringLiteral("temp_alldates"))) {
      session.Data().Execute(QStringLiteral("DROP TABLE temp_alldates;"));
    }
    session.Data().Execute(QStringLiteral("SELECT %1 AS ThisDate, 1 As PersonID, 1 As ThisIndex INTO temp_alldates;")
                               .arg(SQLDate(session.Today())));
    transaction.Commit();
  });
}

void LoadNutrients(Session &session) {
  FillNutrientDefinitions(session.nutrients, session.Data());
  FillSelectedNutrientsArray(session.nutrients, session.Data());
  FillNutrientTargets(session.nutrients, session.Data(), session.profile.NutTargetID);
}

}  // namespace trimlog
