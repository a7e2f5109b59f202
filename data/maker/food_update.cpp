#include "maker/food_update.h"

#include "core/data/schema.h"
#include "maker/table_writer.h"

namespace trimlog {

namespace {

/// Earlier data files get the three columns of a later release after they have taken over the targets, so the targets
/// that they take over must not have them yet.
SchemaTable EarlierTargets() {
  SchemaTable table = FindSchemaTable(QStringLiteral("nutrition_targets"));
  erase_if(table.columns, [](const SchemaColumn &column) {
    return column.name == QLatin1String("NetCarbs") || column.name == QLatin1String("SugarAlcohols") ||
           column.name == QLatin1String("TransFat");
  });
  return table;
}

void WriteEarlierTargets(Database &database, const TsvTable &facts) {
  const SchemaTable table = EarlierTargets();
  CreateSchemaTable(database, table);
  QStringList columns;
  for (const SchemaColumn &column : table.columns) columns.append(column.name);
  TableWriter writer(database, table.name, columns);
  for (qsizetype row = 0; row < facts.RowCount(); ++row) {
    QStringList texts;
    for (const QString &column : columns) texts.append(facts.Text(row, column));
    writer.AddTexts(texts);
  }
}

void WriteRenamings(Database &database, const TsvTable &facts) {
  const SchemaTable table = {
      QStringLiteral("meals_list_updates"),
      {{QStringLiteral("USDANum"), ColumnType::Text, 20}, {QStringLiteral("MealDesc"), ColumnType::Text, 255}},
      {},
      {},
      {}};
  CreateSchemaTable(database, table);
  for (qsizetype row = 0; row < facts.RowCount(); ++row) {
    database.Execute(QStringLiteral("INSERT INTO meals_list_updates ( USDANum, MealDesc ) VALUES ( ?, ? );"),
                     {facts.Text(row, QStringLiteral("USDANum")), facts.Text(row, QStringLiteral("MealDesc"))});
  }
}

}  // namespace

void WriteFoodUpdate(Database &database, const QString &directory, const FoodFacts &foods) {
  CreateSchemaTable(database, FindSchemaTable(QStringLiteral("meals_list")));
  WriteFoods(database, foods, QStringLiteral("FF"));
  WriteRenamings(database, TsvTable(directory + QStringLiteral("/food_renamings.tsv")));
  WriteEarlierTargets(database, TsvTable(directory + QStringLiteral("/nutrition_targets.tsv")));
}

}  // namespace trimlog
