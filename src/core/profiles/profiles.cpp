#include "core/profiles/profiles.h"

#include "core/data/data_access.h"
#include "core/profiles/colour_scheme.h"
#include "core/profiles/sample_profiles.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"

namespace trimlog {

namespace {

QString PeopleValue(Session &session, const QString &field, const QString &personID) {
  return GetDataValue(session.Data(), field, QStringLiteral("people"), QStringLiteral("((people.PersonID)=?)"), {},
                      {personID.toInt()});
}

// A sample shows the default scheme; an ordinary profile without a scheme of its own keeps the one in force.
quint32 SchemeOf(Session &session, const QString &personID) {
  if (personID.toInt() > 0) {
    const QString stored = PeopleValue(session, QStringLiteral("BackColor"), personID);
    return stored.isEmpty() ? session.profile.BackColor : static_cast<quint32>(stored.toLongLong());
  }
  if (session.edition.BizEdLoginMode) return session.profile.BackColor;
  const bool shippedSample = personID == sampleProfile1 || personID == sampleProfile2;
  return ShowsFewColours(session) || shippedSample ? DefaultBackColor(session) : session.profile.BackColor;
}

int TargetSetOf(Session &session, const QString &personID) {
  const QString stored = PeopleValue(session, QStringLiteral("NutTargetID"), personID);
  return stored.isEmpty() ? defaultTargetSet : stored.toInt();
}

QString MenuText(QString name) { return name.replace(QLatin1Char('&'), QStringLiteral("&&")); }

}  // namespace

QList<ProfileEntry> FillProfilesArray(Session &session) {
  QList<ProfileEntry> profiles;
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT people.* FROM people WHERE (people.PersonID > 0) ORDER BY people.PersonName;"));
  for (; !rows.Eof(); rows.MoveNext()) {
    profiles.append({rows.Text(QStringLiteral("PersonID")), rows.Text(QStringLiteral("PersonName"))});
  }
  return profiles;
}

QList<ProfileMenuEntry> ProfilesMenuEntries(const Session &session, const QList<ProfileEntry> &profiles) {
  if (session.edition.BizEd && !session.edition.BizEdLoginMode) {
    return {{ProfileCommand::SelectProfile, QStringLiteral("Select &Profile..."), {}, false},
            {ProfileCommand::Administrator, QStringLiteral("Profile &Administrator..."), {}, false}};
  }
  const QString current = session.profile.CurrentPersonID;
  const ProfileMenuEntry separator{ProfileCommand::Separator, QStringLiteral("-"), {}, false};
  QList<ProfileMenuEntry> entries;
  for (const ProfileEntry &profile : profiles) {
    entries.append({ProfileCommand::Load, MenuText(profile.PersonName), profile.PersonID, profile.PersonID == current});
  }
  entries.append(separator);
  entries.append(
      {ProfileCommand::LoadSample, QStringLiteral("Sample Profile 1"), sampleProfile1, current == sampleProfile1});
  entries.append(
      {ProfileCommand::LoadSample, QStringLiteral("Sample Profile 2"), sampleProfile2, current == sampleProfile2});
  entries.append(separator);
  entries.append({ProfileCommand::CreateProfile, QStringLiteral("&Create a New Profile..."), {}, false});
  entries.append({ProfileCommand::EditProfiles, QStringLiteral("&Edit Profiles..."), {}, false});
  return entries;
}

void ShowSampleWelcome(Session &session, const QString &personID) {
  if (personID == sampleProfile1) {
    session.boxes.Inform(
        QStringLiteral("Welcome to Sample Profile 1"),
        QStringLiteral("This sample profile demonstrates a one month period of weight loss, while also "
                       "logging meals, exercises, measurements, and notes in the Journal."));
  } else if (personID == sampleProfile2) {
    session.boxes.Inform(
        QStringLiteral("Welcome to Sample Profile 2"),
        QStringLiteral(
            "This sample profile demonstrates weight loss over a 7 month period of time.  This is an example "
            "of using Trimlog Pro at its simplest level, with no journal entries.  The weight loss charts "
            "are interesting to see here, since they contain several months of data."));
  }
}

void ApplyProfile(Session &session, const RoomHooks &hooks, const QString &personID) {
  session.profile.CurrentPersonID = personID;
  if (!IsSampleProfile(personID)) session.profile.LastRealPersonID = personID;
  session.profile.FirstWeightDate = {};
  session.profile.LastWeightDate = {};
  session.windows.RememberedDate = {};
  session.profile.BackColor = SchemeOf(session, personID);
  session.profile.NutTargetID = TargetSetOf(session, personID);
  FillNutrientTargets(session.nutrients, session.Data(), session.profile.NutTargetID);
  if (hooks.LoadRewardSettings) hooks.LoadRewardSettings();
  FillSelectedNutrientsArray(session.nutrients, session.Data());
  if (hooks.UpdateStats) hooks.UpdateStats();
  session.changes.AnnounceProfileLoaded();
}

FailureExit LoadDataFailure() {
  return {QStringLiteral("basMain"), QStringLiteral("LoadData"), QStringLiteral("Error Loading Data"),
          QStringLiteral("An error occurred while loading the data for this profile.")};
}

bool ProfileExists(Session &session, const QString &personID) {
  return !PeopleValue(session, QStringLiteral("PersonID"), personID).isEmpty();
}

bool HasNoProfiles(Session &session) { return FillProfilesArray(session).isEmpty(); }

bool ResetWeightLossData(Session &session) {
  const QString title = QStringLiteral("Reset Weight Loss Data");
  if (!session.boxes.Ask(
          title,
          QStringLiteral("This action will delete all weight loss data that you have previously recorded. "
                         " Once this data is deleted you cannot get it back.  Are you sure you want to "
                         "continue?"),
          BoxButton::No)) {
    session.boxes.Plain({}, QStringLiteral("Action canceled.  No data was deleted."));
    return false;
  }
  const FailureExit failure{QStringLiteral("frmMDI"), QStringLiteral("mnuEditOtherReset_Click"), title,
                            QStringLiteral("An error occurred while deleting the weight loss data.  ")};
  const bool deleted = Guarded(session, failure, [&session] {
    Change change(session);
    session.Data().Execute(QStringLiteral(
        "DELETE weight_loss.*, weight_loss.ThisDate FROM weight_loss WHERE ((weight_loss.PersonID=1)); "));
    session.Data().Execute(QStringLiteral("DELETE notes.*, notes.ThisDate FROM notes WHERE ((notes.PersonID=1)); "));
    change.Announce({.table = Table::WeightLoss, .personID = QStringLiteral("1")});
    change.Announce({.table = Table::Notes, .personID = QStringLiteral("1")});
    change.Commit();
  });
  if (!deleted) return false;
  session.boxes.Plain({}, QStringLiteral("All weight loss data has been deleted successfully."));
  return true;
}

}  // namespace trimlog
