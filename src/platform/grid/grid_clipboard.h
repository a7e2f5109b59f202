#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

namespace trimlog {

/// Rows copied within the program: every column of the table, by name, and the record source that they came from. It
/// does not touch the system's clipboard and lasts until the program ends.
struct GridClipboard {
  QString kind;  ///< the record source's name, e.g. "datMealsList"
  QList<QVariantMap> rows;
};

}  // namespace trimlog
