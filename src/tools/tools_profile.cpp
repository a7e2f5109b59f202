#include "tools/tools_profile.h"

#include "core/profiles/goal.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// A number kept as text or as a number in the file, as the person reads it.
QString StoredNumberText(const QString &stored, const QLocale &locale) {
  const std::optional<double> value = ParseNumber(stored);
  return value ? NumberText(*value, locale) : stored;
}

QString WeightCaption(const QString &caption, const std::optional<DatedWeight> &entry, const QString &UomDisplay,
                      const QLocale &locale) {
  if (!entry) return caption;
  return caption + QStringLiteral(" of ") + NumberText(entry->ThisWeight, locale) + QLatin1Char(' ') + UomDisplay;
}

void ReadPlan(ToolsProfile &profile, const Session &session) {
  const Recordset datPeople = session.Data().OpenRecordset(
      QStringLiteral("SELECT people.* from people WHERE PersonID=?;"), {session.profile.CurrentPersonID.toInt()});
  if (datPeople.Eof()) return;
  profile.Goal = GoalToShow(datPeople.Text(QStringLiteral("Goal")), session.locale);
  profile.method = datPeople.Integer(QStringLiteral("GoalMethodID")) == 1 ? GoalMethod::ByRate : GoalMethod::ByDate;
  profile.GoalMethodDate = datPeople.Field(QStringLiteral("GoalMethodDate")).toDate();
  profile.GoalMethodLbsWeek = StoredNumberText(datPeople.Text(QStringLiteral("GoalMethodLbsWeek")), session.locale);
}

std::optional<double> ReadLatestWaist(const Session &session) {
  const Recordset latest = session.Data().OpenRecordset(
      QStringLiteral("SELECT measurements.ThisDate, measurements.Waist FROM measurements "
                     "WHERE (measurements.PersonID=?) ORDER BY measurements.ThisDate DESC; "),
      {session.profile.CurrentPersonID.toInt()}, RecordsetKind::Forward);
  if (latest.Eof() || latest.Text(QStringLiteral("Waist")).isEmpty()) return std::nullopt;
  return latest.Number(QStringLiteral("Waist"));
}

}  // namespace

ToolsProfile ReadToolsProfile(const Session &session) {
  ToolsProfile profile;
  profile.body = ReadBodyProfile(session);
  ReadPlan(profile, session);
  if (const std::optional<WeightEnds> ends = ReadWeightEnds(session)) {
    profile.initialWeight = ends->first;
    profile.currentWeight = ends->last;
  }
  profile.LatestWaist = ReadLatestWaist(session);
  return profile;
}

void SaveGoalMethod(Session &session, GoalMethod method, const QDate &date, const QString &rate) {
  const ToolsProfile stored = ReadToolsProfile(session);
  if (stored.method == method && stored.GoalMethodDate == date && stored.GoalMethodLbsWeek == rate) return;
  const std::optional<double> number = ParseNumber(rate, session.locale);
  Change change(session);
  session.Data().Execute(
      QStringLiteral("UPDATE people SET GoalMethodID=?, GoalMethodDate=?, GoalMethodLbsWeek=? WHERE PersonID=?;"),
      {static_cast<int>(method), date.isValid() ? QVariant(date) : QVariant(), number ? QVariant(*number) : QVariant(),
       session.profile.CurrentPersonID.toInt()});
  change.Announce({.table = Table::People, .keys = {session.profile.CurrentPersonID.toInt()}});
  change.Commit();
}

QString GenderText(int GenderID) { return GenderID == 1 ? QStringLiteral("Male") : QStringLiteral("Female"); }

QString WholeHeightText(const BodyProfile &body, int UomID, const QLocale &locale) {
  return NumberText(HeightAsOneNumber(body.HeightFeet, body.HeightInches, UomID), locale) + QLatin1Char(' ') +
         LengthUnitText(UomID);
}

QString LengthUnitText(int UomID) { return UomID == poundsSystem ? QStringLiteral("Inches") : QStringLiteral("Cm"); }

QString CurrentWeightCaption(const ToolsProfile &profile, const QString &UomDisplay, const QLocale &locale) {
  return WeightCaption(QStringLiteral("Use My Current Weight"), profile.currentWeight, UomDisplay, locale);
}

QString InitialWeightCaption(const ToolsProfile &profile, const QString &UomDisplay, const QLocale &locale) {
  return WeightCaption(QStringLiteral("Use My Initial Weight"), profile.initialWeight, UomDisplay, locale);
}

QString CurrentWaistCaption(const ToolsProfile &profile, int UomID, const QLocale &locale) {
  QString caption = QStringLiteral("Use My Most Recent Measurement");
  if (!profile.LatestWaist) return caption;
  return caption + QStringLiteral(" of ") + NumberText(*profile.LatestWaist, locale) + QLatin1Char(' ') +
         LengthUnitText(UomID);
}

QString NumberText(double value, const QLocale &locale) {
  return Format(value, QStringLiteral("General Number"), locale);
}

}  // namespace trimlog
