#include "health/weight_ends.h"

#include "core/session/session.h"
#include "platform/store/recordset.h"

namespace trimlog {

namespace {

std::optional<DatedWeight> FirstBy(const Session &session, const QString &order) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT weight_loss.ThisDate, weight_loss.ThisWeight FROM weight_loss "
                     "WHERE (weight_loss.PersonID=?) ORDER BY weight_loss.ThisDate%1; ")
          .arg(order),
      {session.profile.CurrentPersonID.toInt()}, RecordsetKind::Forward);
  if (row.Eof()) return std::nullopt;
  return DatedWeight{row.Field(0).toDate(), row.Field(1).toDouble()};
}

}  // namespace

std::optional<WeightEnds> ReadWeightEnds(const Session &session) {
  const std::optional<DatedWeight> first = FirstBy(session, {});
  if (!first) return std::nullopt;
  return WeightEnds{*first, FirstBy(session, QStringLiteral(" DESC")).value_or(*first)};
}

}  // namespace trimlog
