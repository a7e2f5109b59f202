#pragma once

#include <QDate>
#include <QString>
#include <map>
#include <vector>

#include "core/nutrients.h"

namespace trimlog {

class Session;

inline constexpr int caloriesBurnedID = 101;  ///< pseudo nutrients that the calendar and the charts offer
inline constexpr int netCaloriesID = 102;

/// One entry of the lists that choose what the calendar shows below a day.
struct CalendarNutrient {
  int NutrientID = 0;
  QString description;  ///< with its unit
};

/// Calories consumed, burned and net, then the other nutrients in the order of their ids.
std::vector<CalendarNutrient> CalendarNutrientChoices(const Nutrients &nutrients);

/// The figures of the setting NutrientID for the current profile, by day, as the text shown. Days without any entry are
/// left out. Reads the rows of the range only. Throws what the store throws.
std::map<QDate, QString> ReadCalendarNutrients(const Session &session, const QDate &first, const QDate &last);

}  // namespace trimlog
