#include "journal/day/meal_types.h"

#include "platform/store/recordset.h"

namespace trimlog {

QList<MealType> ReadMealTypes(Database &database) {
  QList<MealType> types;
  Recordset rows = database.OpenRecordset(QStringLiteral(
      "SELECT meal_types.MealTypeID, meal_types.MealTypeDesc FROM meal_types ORDER BY meal_types.MealTypeID;"));
  for (; !rows.Eof(); rows.MoveNext())
    types.append({rows.Integer(QStringLiteral("MealTypeID")), rows.Text(QStringLiteral("MealTypeDesc"))});
  return types;
}

}  // namespace trimlog
