#include "platform/grid/grid_lookup.h"

#include "platform/store/recordset.h"

namespace trimlog {

QString LookupText(Database &database, const GridLookup &lookup, const Value &key) {
  if (!key.isValid() || key.isNull()) return {};
  const GridStatement statement = RowsStatement(lookup.source, {lookup.text}, {key.toLongLong()});
  Recordset row = database.OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
  return row.Eof() ? QString() : row.Field(1).toString();
}

std::optional<qint64> LookupKey(Database &database, const GridLookup &lookup, const QString &text) {
  if (text.trimmed().isEmpty()) return std::nullopt;
  const QString criterion = QStringLiteral("LCase(%1) = ?").arg(QualifiedField(lookup.source, lookup.text));
  const GridStatement statement = FindStatement(lookup.source, criterion, {text.trimmed().toLower()});
  Recordset row = database.OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
  if (row.Eof()) return std::nullopt;
  return row.Field(0).toLongLong();
}

QString ChosenTexts::Of(Database &database, const GridColumn &column, const Value &key) {
  QString &text = texts_[column.name + QLatin1Char('/') + key.toString()];
  if (text.isEmpty()) text = LookupText(database, *column.lookup, key);
  return text;
}

}  // namespace trimlog
