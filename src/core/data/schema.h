#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/store/column_types.h"
#include "platform/store/database.h"

namespace trimlog {

struct SchemaColumn {
  QString name;
  ColumnType type;
  int length = 0;  ///< Text only
};

/// Rows of this table belong to a row of another one: they go when it goes and follow when its key changes.
struct SchemaRelation {
  QString column;  ///< here
  QString parentTable;
  QString parentColumn;
  bool parentNeeded = true;  ///< false: a row may stand before its parent does (see rewards)
};

struct SchemaIndex {
  QString name;
  QString columns;  ///< as CREATE INDEX takes them, e.g. "PersonID, ThisDate DESC"
};

struct SchemaTable {
  QString name;
  QList<SchemaColumn> columns;
  QStringList key;  ///< primary key; empty for work tables without one
  QList<SchemaRelation> relations;
  QList<SchemaIndex> indexes;
};

/// A saved query of the data file.
struct SchemaView {
  QString name;
  QStringList columns;
  QString statement;  ///< the SELECT
};

/// The data file, declared once: every table in the order in which it can be made (parents first), and the saved
/// queries.
const QList<SchemaTable> &SchemaTables();
const QList<SchemaView> &SchemaViews();
/// A table by name; throws unknownTable.
const SchemaTable &FindSchemaTable(const QString &name);

/// The version of the data file that this schema is.
inline constexpr double schemaVersion = 2.7;

/// Makes one table with its key, relations and indexes. The tables that it relates to must stand already.
void CreateSchemaTable(Database &database, const SchemaTable &table);
/// Makes everything in a new, empty file. Fills nothing in: the version row too comes with the data.
void CreateSchema(Database &database);

}  // namespace trimlog
