#pragma once

#include <QDate>
#include <optional>

namespace trimlog {

class Session;

/// A weight and its day, in the unit in force when it was typed.
struct DatedWeight {
  QDate ThisDate;
  double ThisWeight = 0;
};

/// The first and the last dated weight of a profile; the same one where there is only one.
struct WeightEnds {
  DatedWeight first;
  DatedWeight last;
};

/// Those of the session's profile; nothing without a weight. Reads two rows however long the history. Throws what the
/// store throws.
std::optional<WeightEnds> ReadWeightEnds(const Session &session);

}  // namespace trimlog
