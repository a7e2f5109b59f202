#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/column_types.h"
#include "platform/store/database.h"
#include "platform/store/recordset.h"

namespace trimlog {

/// An empty data file of its own for each test, with a few tables like the program's.
class StoreTest : public testing::Test {
 protected:
  StoreTest();

  /// All rows as text: fields joined by "|", rows by " / ".
  QString Rows(const QString &sql, const Params &params = {});
  /// The first field of the first row as SQLite's own kind and value, e.g. "real 1234.5"; reads past the store's types.
  QString Raw(const QString &expression, const QString &from);
  /// The number of the Error that the statement throws, and its text in `description`; 0 when it runs.
  int ErrorOf(const QString &sql, const Params &params = {});

  QTemporaryDir directory;
  QString path = directory.filePath("test.dat");
  std::unique_ptr<Database> data;
  QString description;
};

QString RowsOf(Database &database, const QString &sql, const Params &params = {});

}  // namespace trimlog
