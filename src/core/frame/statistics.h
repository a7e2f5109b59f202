#pragma once

#include <QString>
#include <optional>

namespace trimlog {

/// What the statistics panel shows, each as the text shown ("---" for what cannot be told).
struct Statistics {
  QString LbsLost;
  QString LbsPerWeek;
  QString LbsLeft;
  QString DaysLeft;
  QString ProjDate;
  std::optional<double> Progress;  ///< the part of the way to the goal that is done, 0 to 1; no value without a way
};

}  // namespace trimlog
