#pragma once

#include <QDate>
#include <map>

#include "health/body_formulas.h"

namespace trimlog {

class Session;

/// The latest weight on or before each day of a range, read with two statements however long the history is.
class WeightsByDate {
 public:
  WeightsByDate(const Session &session, const QDate &first, const QDate &last);
  /// 0 when no weight stands on or before the date, or none was stored there. For dates from `first` to `last`.
  double On(const QDate &date) const;

 private:
  std::map<QDate, double> weights_;
};

/// The basal metabolic rate of the session's profile on each day of a range.
class BasalRates {
 public:
  BasalRates(const Session &session, const QDate &first, const QDate &last);
  /// Not rounded; 0 when it cannot be told for that day.
  double On(const QDate &date) const;

 private:
  BodyProfile profile_;
  int UomID_;
  WeightsByDate weights_;
};

}  // namespace trimlog
