#include "catalogs/daily_values.h"

#include "catalogs/nutrient_groups.h"
#include "core/data/data_access.h"
#include "platform/text/text_format.h"

namespace trimlog {

QString DailyValueLabel(const Nutrients &nutrients, int nutrientID) {
  return NutrientLabel(nutrients, nutrientID).section(QStringLiteral(" ("), 0, 0) + QStringLiteral(" (%):");
}

QString AmountFromDailyValue(Session &session, int nutrientID, double percent) {
  const QString &field = Definition(session.nutrients, nutrientID).fieldName;
  const QString reference = GetDataValue(session.Data(), field, QStringLiteral("nutrition_targets"),
                                         QStringLiteral("((nutrition_targets.TargetID) = 1)"));
  return Format(Val(reference) * (percent / 100), GetNutrientFormat(field), session.locale);
}

}  // namespace trimlog
