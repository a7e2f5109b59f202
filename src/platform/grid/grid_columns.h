#pragma once

#include <QList>
#include <QString>
#include <Qt>
#include <functional>
#include <memory>
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
  Lookup,       ///< the key of a row of `lookup`, shown by its text and chosen from a grid that hangs below the cell
  Memo,         ///< a text of several lines
};

struct GridLookup;

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
  QString dropDown = {};                          ///< control name of a Choice column's list, e.g. "ddnGenders"
  std::shared_ptr<const GridLookup> lookup = {};  ///< of a Lookup column
  /// Where a Lookup column's text stands when the source joins it in, "meals_list.MealDesc"; it is also what the column
  /// is sorted by.
  QString textField = {};
  bool savesAtOnce = false;  ///< the row is saved as soon as a cell of this column was changed
  /// Gives a value in place of a typed text that is empty or would be refused, instead of a sentence (see MendWith and
  /// MendWithFormer). Sees what stood in the cell.
  std::function<Value(const Value &stood)> mend = {};
  /// A sentence that says why the value is refused; empty when it is accepted. Sees the value as it would be stored.
  std::function<QString(const Value &)> validate = {};
  std::optional<Qt::Alignment> alignment = {};  ///< default: numbers to the right, everything else to the left
};

/// A blank or unreadable text becomes this value: blank servings become 1.
inline std::function<Value(const Value &)> MendWith(const Value &value) {
  return [value](const Value &) { return value; };
}
/// A blank or unreadable text returns to what stood: an invalid date.
inline std::function<Value(const Value &)> MendWithFormer() {
  return [](const Value &stood) { return stood; };
}

/// The field that a column shows and is sorted by: a lookup's text where it is joined in, otherwise its own.
inline const QString &ShownField(const GridColumn &column) {
  return column.textField.isEmpty() ? column.field : column.textField;
}

using GridColumns = std::vector<GridColumn>;

int ColumnIndex(const GridColumns &columns, const QString &name);  ///< -1 when there is none
int FirstShown(const GridColumns &columns);                        ///< the first visible one with a field; 0 for none
int LastShown(const GridColumns &columns);
QStringList FieldsOf(const GridColumns &columns);  ///< all that the columns show, each once

}  // namespace trimlog
