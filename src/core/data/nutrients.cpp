#include "core/data/nutrients.h"

#include <QHash>

#include "platform/store/recordset.h"

namespace trimlog {

namespace {

/// By field name in lower case. What is not here has two decimals.
const QHash<QString, QString> &Patterns() {
  static const QHash<QString, QString> patterns = [] {
    QHash<QString, QString> table;
    for (const char *name : {"calories", "calfromfat", "calfromfatpct", "calfromprotein", "calfromproteinpct",
                             "calfromcarb", "calfromcarbpct", "netcarbs"}) {
      table.insert(QString::fromLatin1(name), QStringLiteral("0"));
    }
    for (const char *name : {"fiber", "iron", "zinc", "vitamine", "vitaminb6", "vitaminb12", "satfat", "monofat",
                             "polyfat", "sugar", "alcohol", "sugaralcohols", "transfat"}) {
      table.insert(QString::fromLatin1(name), QStringLiteral("0.000"));
    }
    return table;
  }();
  return patterns;
}

}  // namespace

bool IsPercentOfCalories(int nutrientID) {
  return nutrientID == nutrient_id::calFromFatPct || nutrientID == nutrient_id::calFromProteinPct ||
         nutrientID == nutrient_id::calFromCarbPct;
}

bool IsCustomNutrient(int nutrientID) {
  return nutrientID >= nutrient_id::firstCustom && nutrientID <= nutrient_id::lastCustom;
}

const NutrientDef &Definition(const Nutrients &nutrients, int nutrientID) {
  if (nutrientID < 1 || nutrientID > nutrientCount) {
    throw Error(error_number::outOfBounds, QStringLiteral("There is no nutrient %1.").arg(nutrientID));
  }
  return nutrients.NutrientDefs[static_cast<std::size_t>(nutrientID - 1)];
}

QString CustomNutrientName(const Nutrients &nutrients, int nutrientID) {
  if (!IsCustomNutrient(nutrientID)) return {};
  for (const SelectedNutrient &position : nutrients.SelectedNutrients) {
    if (position.NutrientID == nutrientID) return position.description;
  }
  return {};
}

void FillNutrientDefinitions(Nutrients &nutrients, Database &database) {
  std::array<NutrientDef, nutrientCount> definitions;
  Recordset rows = database.OpenRecordset(QStringLiteral("SELECT nutrients.* FROM nutrients;"));
  for (; !rows.Eof(); rows.MoveNext()) {
    const int id = rows.Integer(QStringLiteral("NutrientID"));
    if (id == 0) continue;
    if (id < 0 || id > nutrientCount) {
      throw Error(error_number::outOfBounds,
                  QStringLiteral("The nutrient %1 is outside the range of 1 to %2.").arg(id).arg(nutrientCount));
    }
    definitions[id - 1] = {rows.Text(QStringLiteral("NutDescription")), rows.Text(QStringLiteral("NutFieldName")),
                           rows.Text(QStringLiteral("NutDescPlusUoM")), rows.Text(QStringLiteral("NutUoMShort")),
                           rows.Text(QStringLiteral("NutUoMLong")),     0};
  }
  nutrients.NutrientDefs = definitions;
}

void FillSelectedNutrientsArray(Nutrients &nutrients, Database &database) {
  const Recordset selection = database.OpenRecordset(
      QStringLiteral("SELECT selected_nutrients.* FROM selected_nutrients WHERE selected_nutrients.PersonID=1;"));
  Recordset vocabulary = database.OpenRecordset(QStringLiteral("SELECT nutrients.* FROM nutrients;"));
  std::array<SelectedNutrient, shownNutrients> selected;
  for (int position = 1; position <= shownNutrients; ++position) {
    SelectedNutrient &entry = selected[position - 1];
    entry.NutrientID = selection.Integer(QStringLiteral("NutrientID%1").arg(position));
    entry.description = selection.Text(QStringLiteral("NutDescription%1").arg(position));
    entry.NutTotal = selection.Field(QStringLiteral("NutTotal%1").arg(position)).toBool();
    // 0 has a row of its own in the vocabulary, "None", which no position shows.
    if (entry.NutrientID == 0) continue;
    vocabulary.FindFirst(QStringLiteral("NutrientID=?"), {entry.NutrientID});
    if (!vocabulary.NoMatch()) entry.descriptionPlusUnit = vocabulary.Text(QStringLiteral("NutDescPlusUoM"));
  }
  nutrients.SelectedNutrients = selected;
}

void FillNutrientTargets(Nutrients &nutrients, Database &database, int targetID) {
  nutrients.NutrientTargets.fill(-1);
  if (targetID == 0) return;
  Recordset rows = database.OpenRecordset(QStringLiteral("SELECT nutrition_targets.* FROM nutrition_targets;"));
  if (rows.Eof()) return;
  rows.FindFirst(QStringLiteral("TargetID=?"), {targetID});
  if (rows.NoMatch()) rows.MoveFirst();
  for (int i = 0; i < nutrientCount; ++i) {
    const QString column = nutrients.NutrientDefs[i].fieldName;
    if (!rows.Text(column).isEmpty()) nutrients.NutrientTargets[i] = rows.Number(column);
  }
}

QString GetNutrientFormat(const QString &fieldName) {
  return Patterns().value(fieldName.toLower(), QStringLiteral("0.00"));
}

}  // namespace trimlog
