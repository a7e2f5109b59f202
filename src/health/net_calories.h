#pragma once

#include <QDate>
#include <optional>
#include <vector>

namespace trimlog {

class Session;

/// The day rule that the calendar, the journal and the charts share: eaten - burned - basal, where a sum that is not
/// there counts as nothing. No value when neither is. `basal` is the day's rate as a whole number, 0 where it is left
/// out.
std::optional<double> NetCalories(std::optional<double> eaten, std::optional<double> burned, int basal);

/// One day's calories, in kilocalories.
struct NetCaloriesDay {
  QDate date;
  std::optional<double> eaten;   ///< no value on a day without a meal
  std::optional<double> burned;  ///< no value on a day without an exercise
  int basal = 0;                 ///< 0 where the setting leaves it out or it cannot be told

  std::optional<double> Net() const { return NetCalories(eaten, burned, basal); }
};

/// The calories of the session's profile, one entry for each day from `first` to `last` in order; planned entries do
/// not count. Reads the entries of those days only and writes nothing. The basal rate takes part when the setting
/// NetCaloriesBMR is on. An empty or reversed range gives no entry. Throws what the store throws.
std::vector<NetCaloriesDay> ReadNetCalories(const Session &session, const QDate &first, const QDate &last);

}  // namespace trimlog
