#pragma once

#include <QList>
#include <QString>
#include <Qt>
#include <functional>
#include <optional>
#include <vector>

#include "platform/store/database.h"

namespace trimlog {

/// What a grid column holds, and so how it is shown, typed, checked and stored.
enum class GridType {
  Text,
  Number,       ///< a double; shown by `pattern`, typed in the person's locale; empty is Null
  NumberText,   ///< a number in a text column: typed and shown in the locale, stored plain ("93.5"); empty stays ""
  WholeNumber,  ///< halves go to the even neighbour
  Date,         ///< the locale's short date; empty is Null
  Check,        ///< a boolean, as a check box
  Choice,       ///< one of `choices`, chosen from a drop-down list
};

/// A row of a drop-down column: what is stored, and what a person reads.
struct GridChoice {
  Value value;
  QString label;
};

/// One column of a bound grid. Every member has a default, so that a table of columns can be written with designated
/// initialisers: {.name = "PersonName", .caption = "Name", .field = "PersonName", .width = 24, .editable = true}.
struct GridColumn {
  QString name = {};     ///< the control name; given under Qt::UserRole of the header
  QString caption = {};  ///< "\n" parts it into two lines
  QString field = {};    ///< the data field, "Other.Field" for a joined table; empty: the column shows nothing
  GridType type = GridType::Text;
  int width = 12;  ///< in average characters; what the person sets with the mouse goes above it
  bool editable = false;
  bool visible = true;
  QString pattern = {};  ///< display pattern of numbers, e.g. "0.00"; empty: the shortest form
  int maxLength = 0;     ///< of a text; 0 for any
  QList<GridChoice> choices = {};
  QString dropDown = {};  ///< control name of a Choice column's list, e.g. "ddnGenders"
  /// A sentence that says why the value is refused; empty when it is accepted. Sees the value as it would be stored.
  std::function<QString(const Value &)> validate = {};
  std::optional<Qt::Alignment> alignment = {};  ///< default: numbers to the right, everything else to the left
};

using GridColumns = std::vector<GridColumn>;

}  // namespace trimlog
