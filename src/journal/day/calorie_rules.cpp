#include "journal/day/calorie_rules.h"

#include <cmath>

#include "core/session/session.h"
#include "health/body_formulas.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"

namespace trimlog {

namespace {

constexpr double referencePounds = 150;
constexpr double referenceKilograms = 68;

}  // namespace

double MinutesFactor(double storedMinutes, double newMinutes) {
  return storedMinutes == 0 ? 1 : newMinutes / storedMinutes;
}

double CaloriesTimes(double calories, double factor) {
  const double product = calories * factor;
  if (!std::isfinite(product)) throw Error(error_number::overflow, QStringLiteral("Overflow"));
  return product;
}

double ReferenceBodyWeight(int UomID) { return UomID == poundsSystem ? referencePounds : referenceKilograms; }

double BodyWeightFactor(const Session &session, const QDate &date) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT ThisWeight FROM weight_loss WHERE weight_loss.PersonID=? And weight_loss.ThisDate=?;"),
      {session.profile.CurrentPersonID.toInt(), date});
  if (row.Eof() || row.Text(QStringLiteral("ThisWeight")).isEmpty()) return 1;
  return row.Number(QStringLiteral("ThisWeight")) / ReferenceBodyWeight(session.settings.UomID);
}

int CaloriesForBody(double listedCalories, double bodyWeightFactor) { return Whole(listedCalories * bodyWeightFactor); }

}  // namespace trimlog
