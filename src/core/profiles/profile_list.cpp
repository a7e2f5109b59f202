#include "core/profiles/profile_list.h"

#include "core/data/data_access.h"
#include "core/profiles/goal.h"
#include "core/profiles/height.h"
#include "core/profiles/person.h"
#include "core/profiles/profiles.h"
#include "core/settings/options.h"

namespace trimlog {

namespace {

constexpr int longestName = 255;
constexpr int longestGoal = 50;

QString FirstProfile(Session &session) {
  return GetDataValue(session.Data(), QStringLiteral("Min(people.PersonID) AS FirstID"), QStringLiteral("people"),
                      QStringLiteral("(people.PersonID > 0)"), QStringLiteral("FirstID"));
}

QString RefusedName(const Value &name) {
  return name.toString().trimmed().isEmpty() ? QStringLiteral("Please enter a name for this profile.") : QString();
}

GridColumn HeightColumn(const QString &field, const QString &caption) {
  return {.name = field,
          .caption = caption,
          .field = field,
          .type = GridType::Number,
          .width = 8,
          .editable = true,
          .validate = [](const Value &height) {
            return height.toDouble() >= 0 ? QString() : QStringLiteral("Please enter a valid height.");
          }};
}

}  // namespace

QString RefusedProfileRow(const GridRowEdit &row, int UomID) {
  const QString feet = QStringLiteral("HeightFeet");
  const QString inches = QStringLiteral("HeightInches");
  if (!row.IsChanged(feet) && !row.IsChanged(inches)) return {};
  return RefusedHeight(row.Get(feet).toDouble(), row.Get(inches).toDouble(), UomID);
}

GridSource ProfilesSource() {
  return {.table = QStringLiteral("people"),
          .key = QStringLiteral("PersonID"),
          .where = QStringLiteral("(people.PersonID > 0)"),
          .order = {{QStringLiteral("PersonName")}}};
}

GridColumns ProfileColumns(const Session &session) {
  const UnitLabels labels = LabelsOf(session.settings.UomID);
  const Clock &clock = session.clock;
  return {
      {.name = QStringLiteral("PersonName"),
       .caption = QStringLiteral("Name"),
       .field = QStringLiteral("PersonName"),
       .width = 34,
       .editable = true,
       .maxLength = longestName,
       .validate = RefusedName},
      {.name = QStringLiteral("Goal"),
       .caption = labels.Goal,
       .field = QStringLiteral("Goal"),
       .type = GridType::NumberText,
       .width = 10,
       .editable = true,
       .maxLength = longestGoal,
       .validate = [](const Value &goal) { return RefusedGoal(GoalFrom(goal.toString()).value_or(0)); }},
      HeightColumn(QStringLiteral("HeightFeet"), labels.HeightFeet),
      HeightColumn(QStringLiteral("HeightInches"), labels.HeightInches),
      {.name = QStringLiteral("Gender"),
       .caption = QStringLiteral("Gender"),
       .field = QStringLiteral("GenderID"),
       .type = GridType::Choice,
       .width = 10,
       .editable = true,
       .choices = {{1, QStringLiteral("Male")}, {2, QStringLiteral("Female")}},
       .dropDown = QStringLiteral("ddnGenders")},
      {.name = QStringLiteral("BirthDate"),
       .caption = QStringLiteral("Birth Date"),
       .field = QStringLiteral("BirthDate"),
       .type = GridType::Date,
       .width = 12,
       .editable = true,
       .validate = [&clock](const Value &value) { return RefusedBirthDate(value.toDate(), clock.Today()); }},
  };
}

GridColumns ProfileColourColumns() {
  return {{.name = QStringLiteral("PersonName"),
           .caption = QStringLiteral("Name"),
           .field = QStringLiteral("PersonName"),
           .width = 40},
          {.name = QStringLiteral("BackColor"), .field = QStringLiteral("BackColor"), .visible = false}};
}

FailureExit ProfileListFailure(GridAction action) {
  const QString module = QStringLiteral("frmSetup");
  switch (action) {
    case GridAction::Delete:
      return {module, QStringLiteral("cmdDeleteProfile_Click"), QStringLiteral("Error Deleting Profile"),
              QStringLiteral("An error occurred while deleting the profile.  "), true};
    case GridAction::Load:
      return {module, QStringLiteral("Form_Load"), QStringLiteral("Error Loading Setup Info"),
              QStringLiteral("An error occurred while loading your setup information.")};
    default:
      return {module, QStringLiteral("grdPeople_AfterUpdate"), QStringLiteral("Error Saving Data"),
              QStringLiteral("An error occurred while saving the profile.  "), true};
  }
}

bool AskDeleteProfiles(Session &session, int count) {
  const QString text =
      count == 1 ? QStringLiteral(
                       "When you delete this profile from the list, all data and journal entries for this profile will "
                       "also be deleted.  Are you sure you want to continue?")
                 : QStringLiteral(
                       "When you delete these profiles from the list, all data and journal entries for these profiles "
                       "will also be deleted.  Are you sure you want to continue?");
  return session.boxes.Ask(QStringLiteral("Warning: Delete Profile?"), text, BoxButton::No);
}

QString ProfileToStandOn(Session &session) {
  const QString first = FirstProfile(session);
  if (!ProfileExists(session, session.profile.LastRealPersonID)) session.profile.LastRealPersonID = first;
  if (ProfileExists(session, session.profile.CurrentPersonID)) return session.profile.CurrentPersonID;
  return first.isEmpty() ? sampleProfile1 : first;
}

}  // namespace trimlog
