#include "catalogs/target_sets.h"

#include <cmath>
#include <limits>

#include "core/data/data_access.h"
#include "core/data/schema.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr double mostTellable = 9999999;  // the rest can hold more than anybody means
const QString targetTable = QStringLiteral("nutrition_targets");

const QString &TargetField(const Session &session, int index) {
  return Definition(session.nutrients, index + 1).fieldName;
}

void AnnounceTargets(Change &change, Session &session, int targetID) {
  change.Afterwards(
      [&session] { FillNutrientTargets(session.nutrients, session.Data(), session.profile.NutTargetID); });
  change.Announce({.table = Table::NutritionTargets, .keys = {targetID}});
}

[[noreturn]] void ThrowGone() {
  throw Error(error_number::noCurrentRecord, QStringLiteral("This set of targets is not there any more."));
}

}  // namespace

QList<TargetSet> TargetSets(const Session &session) {
  QList<TargetSet> sets;
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT nutrition_targets.TargetID, nutrition_targets.TargetDesc FROM nutrition_targets "
                     "ORDER BY nutrition_targets.TargetID;"),
      {}, RecordsetKind::Forward);
  for (; !rows.Eof(); rows.MoveNext()) {
    sets.append({rows.Integer(QStringLiteral("TargetID")), rows.Text(QStringLiteral("TargetDesc"))});
  }
  return sets;
}

int TargetSetInForce(const Session &session) {
  const int chosen = session.profile.NutTargetID;
  const QList<TargetSet> sets = TargetSets(session);
  if (chosen == noTargetSet || sets.isEmpty()) return noTargetSet;
  for (const TargetSet &set : sets) {
    if (set.TargetID == chosen) return chosen;
  }
  return sets.first().TargetID;
}

TargetTexts LoadTargetFields(const Session &session, int targetID) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT nutrition_targets.* FROM nutrition_targets WHERE (TargetID=?);"), {targetID},
      RecordsetKind::Forward);
  if (row.Eof()) ThrowGone();
  TargetTexts texts;
  for (int i = 0; i < typedTargets; ++i) {
    const Value value = row.Field(TargetField(session, i));
    if (!value.isNull()) {
      texts[static_cast<std::size_t>(i)] = Format(value.toDouble(), QStringLiteral("General Number"), session.locale);
    }
  }
  return texts;
}

double LargestTarget(const QString &fieldName) {
  for (const SchemaColumn &column : FindSchemaTable(targetTable).columns) {
    if (column.name != fieldName) continue;
    if (column.type == ColumnType::Byte) return std::numeric_limits<quint8>::max();
    if (column.type == ColumnType::Integer) return std::numeric_limits<qint16>::max();
  }
  return mostTellable;
}

QString RefusedTargetField(const Session &session, int nutrientID, const QString &typed) {
  const std::optional<double> number = ParseNumber(typed, session.locale);
  if (!number) return {};
  const double largest = LargestTarget(Definition(session.nutrients, nutrientID).fieldName);
  if (*number >= 0 && std::round(*number) <= largest) return {};
  return QStringLiteral("Please type a number from 0 to %1.").arg(largest, 0, 'f', 0);
}

void SaveTargetFields(Session &session, int targetID, const TargetTexts &typed) {
  Change change(session);
  QStringList assignments;
  Params params;
  for (int i = 0; i < typedTargets; ++i) {
    const std::optional<double> number = ParseNumber(typed[static_cast<std::size_t>(i)], session.locale);
    if (!number) continue;
    assignments.append(TargetField(session, i) + QStringLiteral(" = ?"));
    params.append(*number);
  }
  // Without a number only the set's presence is asked for.
  if (assignments.isEmpty()) assignments.append(QStringLiteral("TargetType = TargetType"));
  params.append(targetID);
  const qint64 stored =
      session.Data().Execute(QStringLiteral("UPDATE nutrition_targets SET ") + assignments.join(QStringLiteral(", ")) +
                                 QStringLiteral(" WHERE (TargetID=?);"),
                             params);
  if (stored == 0) ThrowGone();
  AnnounceTargets(change, session, targetID);
  change.Commit();
}

int AddTargetSet(Session &session, const QString &description) {
  Change change(session);
  const int targetID = GetNextID(session.Data(), targetTable).toInt();
  session.Data().Execute(QStringLiteral("INSERT INTO nutrition_targets ( TargetID, TargetDesc, TargetType ) "
                                        "SELECT ? AS TargetID1, ? AS TargetDesc1, ? AS TargetType1;"),
                         {targetID, WithoutDoubleQuotes(description), userTargetType});
  AnnounceTargets(change, session, targetID);
  change.Commit();
  return targetID;
}

void DeleteTargetSet(Session &session, int targetID) {
  Change change(session);
  session.Data().Execute(QStringLiteral("DELETE nutrition_targets.*, nutrition_targets.TargetID FROM nutrition_targets "
                                        "WHERE (nutrition_targets.TargetID=?);"),
                         {targetID});
  ChooseTargetSet(session, noTargetSet);
  AnnounceTargets(change, session, targetID);
  change.Commit();
}

void ChooseTargetSet(Session &session, int targetID) {
  if (targetID == session.profile.NutTargetID) return;
  const QString &personID = session.profile.CurrentPersonID;
  Change change(session);
  const qint64 stored =
      session.Data().Execute(QStringLiteral("UPDATE people SET people.NutTargetID = ? WHERE (((people.PersonID)=?));"),
                             {targetID, personID.toInt()});
  if (stored > 0) {
    change.Afterwards([&session, targetID] {
      session.profile.NutTargetID = targetID;
      FillNutrientTargets(session.nutrients, session.Data(), targetID);
    });
    change.Announce({.table = Table::People, .keys = {personID.toLongLong()}, .personID = personID});
  }
  change.Commit();
}

void SaveAndChooseTargets(Session &session, int targetID, const std::optional<TargetTexts> &typed) {
  Change change(session);
  if (typed) SaveTargetFields(session, targetID, *typed);
  ChooseTargetSet(session, targetID);
  change.Commit();
}

QString SelectedTargetCaption(const Session &session) {
  const QString name = GetDataValue(session.Data(), QStringLiteral("PersonName"), QStringLiteral("people"),
                                    QStringLiteral("PersonID=?"), {}, {session.profile.CurrentPersonID.toInt()});
  return name.isEmpty() ? QStringLiteral("Selected Target:") : QStringLiteral("Selected Target for %1:").arg(name);
}

}  // namespace trimlog
