#pragma once

#include <QString>

#include "platform/store/database.h"

namespace trimlog {

/// One value as text: "SELECT <field> FROM <table> WHERE <where>;". "" for no row, Null, or any failure of the
/// statement. `alias` names the field to read when `field` is an expression. A `?` in `where` takes the next parameter.
QString GetDataValue(Database &database, const QString &field, const QString &table, const QString &where = {},
                     const QString &alias = {}, const Params &params = {});

/// The next key of a table as text ("1" for an empty one), by the key rule of that table; `personID` for the tables
/// whose RecordID runs within one person.
QString GetNextID(Database &database, const QString &table, const QString &personID = {});
/// The same for another file; knows neither other_daily_data nor nutrition_targets (throws unknownTable).
QString GetNextIDExt(Database &database, const QString &table, const QString &personID = {});

}  // namespace trimlog
