#pragma once

#include <QStringList>
#include <array>
#include <optional>

#include "core/data/nutrients.h"
#include "platform/store/recordset.h"

namespace trimlog {

/// The nutrients of one row of meals_list or meals as stored, per serving for a food. A column that is Null has no
/// value.
class FoodValues {
 public:
  /// Reads the 35 columns of the current row. Throws noCurrentRecord or unknownColumn.
  static FoodValues Read(const Recordset &row, const Nutrients &nutrients);

  /// By NutrientID, 1 to 35; throws outOfBounds beyond.
  std::optional<double> At(int nutrientID) const;
  double OrZero(int nutrientID) const { return At(nutrientID).value_or(0); }
  void Set(int nutrientID, std::optional<double> value);

 private:
  std::array<std::optional<double>, nutrientCount> values_;
};

}  // namespace trimlog
