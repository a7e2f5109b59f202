#pragma once

#include <vector>

#include "platform/store/database.h"

namespace trimlog {

/// The first column of every row as a whole number: the keys of a list, without a value object for each. Throws as
/// OpenRecordset does.
std::vector<qint64> ReadKeys(Database &database, const QString &sql, const Params &params);

}  // namespace trimlog
