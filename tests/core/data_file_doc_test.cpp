#include <gtest/gtest.h>
#include <QFile>
#include <QRegularExpression>

#include "platform/store/column_types.h"
#include "support/fresh_file.h"
#include "support/paths.h"

namespace trimlog {

namespace {

QStringList Ticked(const QString &text) {
  static const QRegularExpression word("`([^`]+)`( to `(\\D+)(\\d+)`)?");
  QStringList names;
  for (auto match = word.globalMatch(text); match.hasNext();) {
    const auto found = match.next();
    names.append(found.captured(1));
    for (int i = 2; i <= found.captured(4).toInt(); ++i) names.append(found.captured(3) + QString::number(i));
  }
  return names;
}

/// Columns with their declared types, by table, as docs/data-file.md tells them.
QHash<QString, QHash<QString, QString>> ToldTables() {
  QFile file(SourceDir() + "/docs/data-file.md");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QHash<QString, QHash<QString, QString>> told;
  QStringList tables;
  const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
  for (const QString &line : lines) {
    if (line.startsWith(QLatin1Char('#'))) tables = line.startsWith("### `") ? Ticked(line) : QStringList();
    const QStringList cells = line.split(QLatin1Char('|'));
    for (const QString &table : tables) {
      auto &columns = told[table];
      if (cells.size() < 4) continue;
      for (const QString &column : Ticked(cells[1])) columns.insert(column, cells[2].trimmed());
    }
  }
  return told;
}

}  // namespace

TEST(DataFileDocument, TellsEveryTableAndColumnOfTheFile) {
  FreshFile file;
  const auto told = ToldTables();
  EXPECT_EQ(told.size(), SchemaTables().size());
  for (const SchemaTable &table : SchemaTables()) {
    ASSERT_TRUE(told.contains(table.name)) << table.name.toStdString();
    auto columns = told.value(table.name);
    for (const QString &column : file.database->ColumnNames(table.name)) {
      EXPECT_TRUE(columns.contains(column)) << table.name.toStdString() << '.' << column.toStdString();
    }
    for (const SchemaColumn &column : table.columns) {
      EXPECT_EQ(columns.take(column.name), DeclaredType(column.type, column.length))
          << table.name.toStdString() << '.' << column.name.toStdString();
    }
    EXPECT_TRUE(columns.isEmpty()) << table.name.toStdString() << " has no " << columns.keys().join(u' ').toStdString();
  }
}

}  // namespace trimlog
