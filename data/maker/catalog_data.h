#pragma once

#include <QHash>
#include <QString>

#include "maker/tsv_table.h"
#include "platform/store/database.h"

namespace trimlog {

/// The foods of foods.tsv with their glycemic values, numbered by their line: a food keeps its number for good as long
/// as new ones are added at the end.
class FoodFacts {
 public:
  explicit FoodFacts(const QString &directory);
  const TsvTable &Rows() const { return rows_; }
  int MealID(qsizetype row) const { return static_cast<int>(row) + 1; }
  QString GIValue(qsizetype row) const { return glycemic_.value(rows_.Text(row, QStringLiteral("USDANum"))); }
  /// The line of a food by its description; throws when there is none.
  qsizetype Find(const QString &description) const;

 private:
  TsvTable rows_;
  QHash<QString, QString> glycemic_;
  QHash<QString, qsizetype> byDescription_;
};

/// The nutrient columns of foods.tsv, as meals_list and meals have them.
const QStringList &FoodNutrientColumns();

/// meals_list from the foods whose key begins with a prefix ("" for all), numbered as FoodFacts says.
void WriteFoods(Database &database, const FoodFacts &foods, const QString &keyPrefix = {});
/// Everything else that a person looks things up in: groups, exercises, nutrients, targets, selections, links, units,
/// meal types, the BMI chart, the version.
void WriteCatalogs(Database &database, const QString &directory);
/// The BMI chart: body mass index (A. Quetelet 1832, kg / m2), rounded to whole numbers, by height and weight of both
/// unit systems: 4'8" to 6'8" by the inch and 110 to 300 lb by 5; 1.41 to 2.04 m by 0.03 and 50 to 136 kg by 2.
void WriteBmiChart(Database &database);

}  // namespace trimlog
