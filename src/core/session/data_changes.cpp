#include "core/session/data_changes.h"

#include <algorithm>

namespace trimlog {

bool DataChange::Concerns(const QString &person) const {
  if (!personID.isEmpty()) return personID == person;
  if (table != Table::People || keys.empty()) return true;
  return std::find(keys.begin(), keys.end(), person.toLongLong()) != keys.end();
}

}  // namespace trimlog
