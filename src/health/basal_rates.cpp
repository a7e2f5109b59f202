#include "health/basal_rates.h"

#include "core/session/session.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

WeightsByDate::WeightsByDate(const Session &session, const QDate &first, const QDate &last) {
  const int person = session.profile.CurrentPersonID.toInt();
  const Recordset before =
      session.Data().OpenRecordset(QStringLiteral("SELECT Max(weight_loss.ThisDate) AS MaxDate FROM weight_loss "
                                                  "WHERE ((weight_loss.PersonID=?) AND (weight_loss.ThisDate<=?));"),
                                   {person, first});
  const QDate latest = before.Eof() ? QDate() : before.Field(QStringLiteral("MaxDate")).toDate();
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT weight_loss.ThisDate, weight_loss.ThisWeight FROM weight_loss "
                     "WHERE ((weight_loss.PersonID=?) AND (weight_loss.ThisDate Between ? And ?));"),
      {person, latest.isValid() ? latest : first, last});
  for (; !rows.Eof(); rows.MoveNext()) {
    weights_[rows.Field(QStringLiteral("ThisDate")).toDate()] = rows.Number(QStringLiteral("ThisWeight"));
  }
}

double WeightsByDate::On(const QDate &date) const {
  const auto after = weights_.upper_bound(date);
  return after == weights_.begin() ? 0 : std::prev(after)->second;
}

BasalRates::BasalRates(const Session &session, const QDate &first, const QDate &last)
    : profile_(ReadBodyProfile(session)), UomID_(session.settings.UomID), weights_(session, first, last) {}

double BasalRates::On(const QDate &date) const {
  const double weight = weights_.On(date);
  if (weight == 0 || !profile_.BirthDate.isValid()) return 0;
  const int age = DateDiff(QStringLiteral("yyyy"), profile_.BirthDate, date);
  return CalcBMR(weight, age, profile_.WholeHeight(UomID_), profile_.GenderID, UomID_);
}

}  // namespace trimlog
