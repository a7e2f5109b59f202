#pragma once

#include <QList>
#include <QString>

namespace trimlog {

class Database;

/// When in the day something was eaten; a day is listed in this order.
struct MealType {
  int MealTypeID = 0;
  QString MealTypeDesc;
};
QList<MealType> ReadMealTypes(Database &database);

}  // namespace trimlog
