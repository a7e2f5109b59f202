#pragma once

#include <QHash>
#include <QString>
#include <optional>

#include "platform/grid/grid_columns.h"
#include "platform/grid/grid_source.h"

namespace trimlog {

/// The rows that a lookup column chooses from: the cell stores a row's key and shows its text.
struct GridLookup {
  GridSource source;    ///< its key is what the cell stores; its order is the order of the list
  QString text;         ///< the field that the cell shows, and by whose beginning typing finds a row
  GridColumns columns;  ///< of the list that hangs below the cell; the text's own first
};

/// The text of a row; "" when it is not there.
QString LookupText(Database &database, const GridLookup &lookup, const Value &key);
/// The row whose text is this one, whatever the case; nothing when there is none.
std::optional<qint64> LookupKey(Database &database, const GridLookup &lookup, const QString &text);

/// The texts of keys that were chosen in a grid and are not joined in yet: each is looked up once.
class ChosenTexts {
 public:
  QString Of(Database &database, const GridColumn &column, const Value &key);
  void Forget() { texts_.clear(); }

 private:
  QHash<QString, QString> texts_;  ///< by column and key
};

}  // namespace trimlog
