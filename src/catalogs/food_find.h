#pragma once

#include <QString>
#include <optional>

#include "platform/grid/grid_model.h"

namespace trimlog {

/// Finds a text within the descriptions of a list of foods: first from the top, then on from the current row. Another
/// text or another list begins at the top again.
class FoodFinder {
 public:
  struct Result {
    std::optional<qint64> mealID;  ///< the food to go to
    QString message;               ///< what to say when there is none
  };
  /// `*`, `?`, `#` and `[...]` in the text stand for other characters. `currentRow` is -1 where none is current.
  Result Find(GridModel &foods, const QString &text, int currentRow);

 private:
  QString found_;
  GridSource searched_;
};

}  // namespace trimlog
