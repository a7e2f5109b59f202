#pragma once

#include <QDate>
#include <QLocale>
#include <optional>

#include "core/frame/statistics.h"
#include "health/weight_ends.h"

namespace trimlog {

/// What the statistics panel shows for the first and the last weight and a goal, in the person's locale. Nothing as the
/// goal means that none is known; then neither the distance nor the projection can be told.
Statistics MakeStatistics(const WeightEnds &weights, const std::optional<double> &goal, const QLocale &locale);

/// Recomputes session.profile.statistics, FirstWeightDate and LastWeightDate from the current profile's first and last
/// weight, and announces them. Reads three rows however long the history. A failure shows its box and is logged.
void UpdateStats(Session &session);

}  // namespace trimlog
