#pragma once

#include "platform/store/database.h"

namespace trimlog {

/// The first row's value of a SELECT as plain text ("" for no row and for Null), by the field's name or, when that is
/// empty, the first field's. What Recordset::Text gives, without the cost of a recordset; throws what that throws.
QString SingleValueText(Database &database, const QString &sql, const Params &params, const QString &field);

}  // namespace trimlog
