#pragma once

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

namespace trimlog {

class Session;

/// The day rule that the calendar, the journal and the charts share: eaten - burned - basal, where a blank sum counts
/// as nothing. No value when both sums are blank. `basal` is the day's rate as a whole number, 0 where it is left out.
std::optional<double> NetCalories(const QString &caloriesEaten, const QString &caloriesBurned, int basal);

struct NetCaloriesDay {
  QDate date;
  int ThisIndex = 0;          ///< 1 for the first day of the range
  std::optional<double> net;  ///< kilocalories; no value on a day with neither a meal nor an exercise
};

/// The net calories of the session's profile, one entry for each day from `first` to `last` in order. Refills
/// temp_alldates for that range. Reads the days of the range only. The basal rate takes part when the setting
/// NetCaloriesBMR is on. An empty or reversed range gives no entry.
std::vector<NetCaloriesDay> ReadNetCalories(const Session &session, const QDate &first, const QDate &last);

}  // namespace trimlog
