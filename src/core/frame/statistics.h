#pragma once

#include <QString>

namespace trimlog {

/// What the statistics panel shows, each as the text shown ("---" for what cannot be told).
struct Statistics {
  QString LbsLost;
  QString LbsPerWeek;
  QString LbsLeft;
  QString DaysLeft;
  QString ProjDate;
};

}  // namespace trimlog
