#pragma once

#include <QTemporaryDir>

#include "core/data/schema.h"
#include "platform/store/recordset.h"

namespace trimlog {

/// A data file of its own with the whole schema and no rows.
class FreshFile {
 public:
  FreshFile() : database(Database::Create(Path())) { CreateSchema(*database); }
  QString Path() const { return directory.filePath("tlg.dat"); }
  int Count(const QString &table, const QString &where = "1=1") {
    return database->OpenRecordset(QStringLiteral("SELECT Count(*) AS N FROM %1 WHERE %2;").arg(table, where))
        .Integer("N");
  }

  QTemporaryDir directory;
  std::unique_ptr<Database> database;
};

}  // namespace trimlog
