#include "maker/table_writer.h"

#include <QDate>
#include <algorithm>

namespace trimlog {

namespace {

ColumnType TypeOf(const SchemaTable &table, const QString &column) {
  const auto found = std::find_if(table.columns.begin(), table.columns.end(),
                                  [&column](const SchemaColumn &declared) { return declared.name == column; });
  if (found == table.columns.end()) {
    throw Error(error_number::unknownColumn, QStringLiteral("%1 has no column %2.").arg(table.name, column));
  }
  return found->type;
}

Value TypedValue(const QString &text, ColumnType type) {
  if (text.isEmpty()) return {};
  switch (type) {
    case ColumnType::Text:
    case ColumnType::Memo:
      return text;
    case ColumnType::Date: {
      const QDate date = QDate::fromString(text, Qt::ISODate);
      if (date.isValid()) return date;
      break;
    }
    default: {
      bool ok = false;
      const double number = text.toDouble(&ok);
      if (ok) return number;
      break;
    }
  }
  throw Error(error_number::typeMismatch, QStringLiteral("'%1' does not fit its column.").arg(text));
}

}  // namespace

TableWriter::TableWriter(Database &database, const QString &table, const QStringList &columns) : database_(database) {
  const SchemaTable &declared = FindSchemaTable(table);
  QStringList marks;
  for (const QString &column : columns) {
    types_.append(TypeOf(declared, column));
    marks.append(QStringLiteral("?"));
  }
  statement_ = QStringLiteral("INSERT INTO %1 ( [%2] ) VALUES ( %3 );")
                   .arg(table, columns.join(QStringLiteral("], [")), marks.join(QStringLiteral(", ")));
}

void TableWriter::Add(const Params &values) { database_.Execute(statement_, values); }

void TableWriter::AddTexts(const QStringList &texts) {
  Params values;
  for (qsizetype i = 0; i < texts.size(); ++i) values.append(TypedValue(texts[i], types_[i]));
  Add(values);
}

void CopyTable(Database &database, const QString &table, const TsvTable &facts) {
  TableWriter writer(database, table, facts.Columns());
  for (qsizetype row = 0; row < facts.RowCount(); ++row) {
    QStringList texts;
    for (const QString &column : facts.Columns()) texts.append(facts.Text(row, column));
    writer.AddTexts(texts);
  }
}

}  // namespace trimlog
