#include "maker/catalog_data.h"

#include "core/data/schema.h"
#include "maker/table_writer.h"

namespace trimlog {

namespace {

constexpr int preLoaded = 1;  ///< RecordTypeID of what the program brings along

QStringList CustomColumns() {
  QStringList columns;
  for (int i = 1; i <= 5; ++i) columns.append(QStringLiteral("Custom%1").arg(i));
  return columns;
}

void WriteExercises(Database &database, const TsvTable &facts) {
  const QStringList copied = {QStringLiteral("ActivityDesc"), QStringLiteral("Duration"), QStringLiteral("Amount"),
                              QStringLiteral("Pace"),         QStringLiteral("Sets"),     QStringLiteral("Reps"),
                              QStringLiteral("Calories")};
  TableWriter writer(database, QStringLiteral("activities_list"),
                     QStringList{QStringLiteral("ActivityID"), QStringLiteral("RecordTypeID")} + copied);
  for (qsizetype row = 0; row < facts.RowCount(); ++row) {
    QStringList texts = {QString::number(row + 1), QString::number(preLoaded)};
    for (const QString &column : copied) texts.append(facts.Text(row, column));
    writer.AddTexts(texts);
  }
}

/// One row of ten shown nutrients for each diet of the wizard, keyed by the diet's number, and the first of them once
/// more as the selection in force.
void WriteSelectedNutrients(Database &database, const TsvTable &presets, const TsvTable &nutrients) {
  constexpr int selectionInForce = 1;
  QHash<int, QString> shortNames;
  for (qsizetype row = 0; row < nutrients.RowCount(); ++row) {
    shortNames.insert(nutrients.Integer(row, QStringLiteral("NutrientID")),
                      nutrients.Text(row, QStringLiteral("NutShortDescription")));
  }
  QStringList columns = {QStringLiteral("PersonID")};
  for (int i = 1; i <= 10; ++i) {
    for (const char *name : {"NutrientID", "NutDescription", "NutTotal"}) {
      columns.append(QString::fromLatin1(name) + QString::number(i));
    }
  }
  TableWriter writer(database, QStringLiteral("selected_nutrients"), columns);
  const auto add = [&](int key, qsizetype row) {
    Params values = {key};
    for (int i = 1; i <= 10; ++i) {
      const int nutrient = presets.Integer(row, QStringLiteral("NutrientID%1").arg(i));
      values << nutrient << shortNames.value(nutrient) << true;
    }
    writer.Add(values);
  };
  add(selectionInForce, 0);
  for (qsizetype row = 0; row < presets.RowCount(); ++row) add(presets.Integer(row, QStringLiteral("Diet")), row);
}

void WriteLinks(Database &database, const TsvTable &facts) {
  TableWriter writer(database, QStringLiteral("links"), QStringList{QStringLiteral("LinkID")} + facts.Columns());
  for (qsizetype row = 0; row < facts.RowCount(); ++row) {
    QStringList texts = {QString::number(row + 1)};
    for (const QString &column : facts.Columns()) texts.append(facts.Text(row, column));
    writer.AddTexts(texts);
  }
}

void WriteUnitsAndMealTypes(Database &database) {
  TableWriter units(database, QStringLiteral("uom"),
                    {QStringLiteral("UomID"), QStringLiteral("UomDescription"), QStringLiteral("UomDisplay")});
  units.Add({1, QStringLiteral("US/Imperial (Pounds and Inches)"), QStringLiteral("Lbs")});
  units.Add({2, QStringLiteral("Metric (Kilograms and Meters)"), QStringLiteral("Kg")});

  TableWriter mealTypes(database, QStringLiteral("meal_types"),
                        {QStringLiteral("MealTypeID"), QStringLiteral("MealTypeDesc")});
  int id = 0;
  for (const char *name :
       {"Breakfast", "Morn. Snack", "Lunch", "Aft. Snack", "Dinner", "Dessert", "Late Snack", "Drink", "Supplement"}) {
    mealTypes.Add({++id, QString::fromLatin1(name)});
  }
}

}  // namespace

FoodFacts::FoodFacts(const QString &directory) : rows_(directory + QStringLiteral("/foods.tsv")) {
  QSet<QString> keys;
  byDescription_.reserve(rows_.RowCount());
  for (qsizetype row = 0; row < rows_.RowCount(); ++row) {
    byDescription_.insert(rows_.Text(row, QStringLiteral("MealDesc")), row);
    keys.insert(rows_.Text(row, QStringLiteral("USDANum")));
  }
  const TsvTable glycemic(directory + QStringLiteral("/gi_values.tsv"));
  for (qsizetype row = 0; row < glycemic.RowCount(); ++row) {
    const QString key = glycemic.Text(row, QStringLiteral("USDANum"));
    if (!keys.contains(key)) throw Error(error_number::other, QStringLiteral("gi_values.tsv: no food ") + key);
    glycemic_.insert(key, glycemic.Text(row, QStringLiteral("GIValue")));
  }
}

qsizetype FoodFacts::Find(const QString &description) const {
  const auto found = byDescription_.constFind(description);
  if (found == byDescription_.constEnd()) {
    throw Error(error_number::other, QStringLiteral("No food is called '%1'.").arg(description));
  }
  return *found;
}

const QStringList &FoodNutrientColumns() {
  static const QStringList columns =
      QStringLiteral(
          "Calories Carbs Fat Protein Fiber Calcium Iron Sodium Potassium Zinc VitaminA VitaminE VitaminB6 VitaminB12 "
          "VitaminC SatFat MonoFat PolyFat Cholesterol Sugar Alcohol CalFromFat CalFromFatPct CalFromProtein "
          "CalFromProteinPct CalFromCarb CalFromCarbPct NetCarbs SugarAlcohols TransFat")
          .split(QLatin1Char(' '));
  return columns;
}

void WriteFoods(Database &database, const FoodFacts &foods, const QString &keyPrefix) {
  const QStringList copied = QStringList{QStringLiteral("MealDesc"), QStringLiteral("MealGroupID"),
                                         QStringLiteral("Amount"), QStringLiteral("USDANum")} +
                             FoodNutrientColumns();
  TableWriter writer(database, QStringLiteral("meals_list"),
                     QStringList{QStringLiteral("MealID"), QStringLiteral("RecordTypeID"), QStringLiteral("GIValue")} +
                         copied + CustomColumns());
  const TsvTable &facts = foods.Rows();
  for (qsizetype row = 0; row < facts.RowCount(); ++row) {
    if (!facts.Text(row, QStringLiteral("USDANum")).startsWith(keyPrefix)) continue;
    QStringList texts = {QString::number(foods.MealID(row)), QString::number(preLoaded), foods.GIValue(row)};
    for (const QString &column : copied) texts.append(facts.Text(row, column));
    for (int i = 0; i < 5; ++i) texts.append(QStringLiteral("0"));
    writer.AddTexts(texts);
  }
}

void WriteBmiChart(Database &database) {
  constexpr double kilogramsPerPound = 0.45359237;
  constexpr double metresPerInch = 0.0254;
  TableWriter writer(
      database, QStringLiteral("bmi"),
      {QStringLiteral("UomID"), QStringLiteral("Height"), QStringLiteral("Weight"), QStringLiteral("bmi")});
  const auto add = [&writer](int uom, double height, int weight, double metres, double kilograms) {
    writer.Add({uom, height, weight, qRound(kilograms / (metres * metres))});
  };
  for (int inches = 56; inches <= 80; ++inches) {
    for (int pounds = 110; pounds <= 300; pounds += 5) {
      add(1, inches, pounds, inches * metresPerInch, pounds * kilogramsPerPound);
    }
  }
  for (int centimetres = 141; centimetres <= 204; centimetres += 3) {
    for (int kilograms = 50; kilograms <= 136; kilograms += 2) {
      add(2, centimetres / 100.0, kilograms, centimetres / 100.0, kilograms);
    }
  }
}

void WriteCatalogs(Database &database, const QString &directory) {
  const auto facts = [&directory](const char *name) {
    return TsvTable(directory + QLatin1Char('/') + QString::fromLatin1(name));
  };
  CopyTable(database, QStringLiteral("meal_groups"), facts("meal_groups.tsv"));
  CopyTable(database, QStringLiteral("nutrients"), facts("nutrients.tsv"));
  CopyTable(database, QStringLiteral("nutrition_targets"), facts("nutrition_targets.tsv"));
  WriteExercises(database, facts("exercises.tsv"));
  WriteSelectedNutrients(database, facts("diet_presets.tsv"), facts("nutrients.tsv"));
  WriteLinks(database, facts("links.tsv"));
  WriteUnitsAndMealTypes(database);
  WriteBmiChart(database);
  TableWriter(database, QStringLiteral("version_info"), {QStringLiteral("Version")}).Add({schemaVersion});
}

}  // namespace trimlog
