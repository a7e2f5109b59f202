#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/store/recordset.h"
#include "support/paths.h"

namespace trimlog {

/// A copy of a shipped file, opened, so that no test can change the pristine one.
class ShippedFile {
 public:
  explicit ShippedFile(const char *name = "tlg.dat") {
    const QString copy = directory_.filePath("copy.dat");
    EXPECT_TRUE(QFile::copy(ShippedDir() + QLatin1Char('/') + name, copy));
    database = Database::Open(copy);
  }
  Recordset Rows(const QString &sql, const Params &params = {}) { return database->OpenRecordset(sql, params); }
  int Count(const QString &tableAndWhere) { return Rows("SELECT Count(*) AS N FROM " + tableAndWhere).Integer("N"); }
  std::string Text(const QString &column, const QString &tableAndWhere) {
    return Rows(QStringLiteral("SELECT %1 FROM %2").arg(column, tableAndWhere)).Text(column).toStdString();
  }

 private:
  QTemporaryDir directory_;

 public:
  std::unique_ptr<Database> database;
};

}  // namespace trimlog
