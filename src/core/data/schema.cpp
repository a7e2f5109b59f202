#include "core/data/schema.h"

#include <algorithm>

#include "platform/store/database_internals.h"

namespace trimlog {

namespace {

QString Bracketed(const QStringList &names) {
  return QLatin1Char('[') + names.join(QStringLiteral("], [")) + QLatin1Char(']');
}

/// A key of one 32-bit number is the row's own key, which SQLite never lets be Null; all others have to say so.
bool IsRowKey(const SchemaTable &table, const SchemaColumn &column) {
  return table.key.size() == 1 && column.type == ColumnType::Long && table.key.first() == column.name;
}

QString TableStatement(const SchemaTable &table) {
  QStringList parts;
  for (const SchemaColumn &column : table.columns) {
    QString declaration = ColumnDeclaration(column.name, column.type, column.length);
    if (table.key.contains(column.name) && !IsRowKey(table, column)) declaration += QStringLiteral(" NOT NULL");
    parts.append(declaration);
  }
  if (!table.key.isEmpty()) parts.append(QStringLiteral("PRIMARY KEY (%1)").arg(Bracketed(table.key)));
  for (const SchemaRelation &relation : table.relations) {
    if (!relation.parentNeeded) continue;
    parts.append(QStringLiteral("FOREIGN KEY ([%1]) REFERENCES [%2]([%3]) ON UPDATE CASCADE ON DELETE CASCADE")
                     .arg(relation.column, relation.parentTable, relation.parentColumn));
  }
  return QStringLiteral("CREATE TABLE [%1] (\n  %2\n)").arg(table.name, parts.join(QStringLiteral(",\n  ")));
}

/// The same cascades for a relation whose rows may stand without a parent, which a foreign key would refuse.
QStringList TriggerStatements(const SchemaTable &table, const SchemaRelation &relation) {
  return {QStringLiteral("CREATE TRIGGER [%1_%2_delete] AFTER DELETE ON [%2] BEGIN "
                         "DELETE FROM [%1] WHERE [%3] = OLD.[%4]; END")
              .arg(table.name, relation.parentTable, relation.column, relation.parentColumn),
          QStringLiteral("CREATE TRIGGER [%1_%2_update] AFTER UPDATE OF [%4] ON [%2] BEGIN "
                         "UPDATE [%1] SET [%3] = NEW.[%4] WHERE [%3] = OLD.[%4]; END")
              .arg(table.name, relation.parentTable, relation.column, relation.parentColumn)};
}

}  // namespace

const SchemaTable &FindSchemaTable(const QString &name) {
  const auto &tables = SchemaTables();
  const auto found = std::find_if(tables.begin(), tables.end(), [&name](const SchemaTable &table) {
    return table.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  if (found == tables.end()) {
    throw Error(error_number::unknownTable, QStringLiteral("The data file has no table '%1'.").arg(name));
  }
  return *found;
}

void CreateSchemaTable(Database &database, const SchemaTable &table) {
  database.Execute(TableStatement(table));
  for (const SchemaIndex &index : table.indexes) {
    database.Execute(QStringLiteral("CREATE INDEX [%1_%2] ON [%1] (%3)").arg(table.name, index.name, index.columns));
  }
  for (const SchemaRelation &relation : table.relations) {
    if (relation.parentNeeded) continue;
    for (const QString &statement : TriggerStatements(table, relation)) {
      database.Internals().Plain(statement.toUtf8().constData());
    }
  }
}

void CreateSchema(Database &database) {
  Transaction transaction(database);
  for (const SchemaTable &table : SchemaTables()) CreateSchemaTable(database, table);
  for (const SchemaView &view : SchemaViews()) {
    database.Execute(QStringLiteral("CREATE VIEW [%1] AS %2").arg(view.name, view.statement));
  }
  transaction.Commit();
}

}  // namespace trimlog
