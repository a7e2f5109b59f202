#pragma once

#include <QVariant>

#include "platform/store/column_types.h"

namespace trimlog {

/// A value as a column of this type keeps it in the file: null, qint64, double or QString (dates as "YYYY-MM-DD",
/// booleans as 0 and 1). Whole numbers round halves to even. Throws overflow for what does not fit, typeMismatch for
/// what is no number or date, textTooLong; the sentence names the column.
QVariant ToStored(const QVariant &value, const DeclaredColumn &column, const QString &columnName);

/// What a column of this type gives for a value found in the file. A value that does not fit its column (written by
/// another tool), and one without a type, is given as it stands.
QVariant FromStored(const QVariant &stored, std::optional<ColumnType> type);

/// A value as a parameter or a literal is handed to SQLite: null, qint64, double or QString.
QVariant ToBound(const QVariant &value);

/// A value as plain text: "" for Null, numbers with a point and no grouping, dates ISO, booleans "-1" and "0".
QString ValueText(const QVariant &value);

}  // namespace trimlog
