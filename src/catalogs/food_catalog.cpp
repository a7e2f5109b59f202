#include "catalogs/food_catalog.h"

#include "catalogs/food_list_kind.h"
#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/grid/grid_source.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString mealsList = QStringLiteral("meals_list");
const GridSource mealsTable = {.table = mealsList, .key = QStringLiteral("MealID")};

/// What is stored is what is shown: rounded by the display pattern. A nutrient that was left empty is 0.
double StoredValue(const FoodRecord &food, const Nutrients &nutrients, int nutrientID) {
  return Val(Format(food.nutrients.OrZero(nutrientID), GetNutrientFormat(Definition(nutrients, nutrientID).fieldName)));
}

/// A nutrient as the full dialog shows it; "" for one without a value.
QString ShownValue(const FoodRecord &food, const Nutrients &nutrients, int nutrientID) {
  const std::optional<double> value = food.nutrients.At(nutrientID);
  return value ? Format(*value, GetNutrientFormat(Definition(nutrients, nutrientID).fieldName)) : QString();
}

/// What an edited food changes of the stored one.
QVariantMap Differences(const FoodRecord &stored, const FoodRecord &edited, const Nutrients &nutrients) {
  QVariantMap changed;
  if (edited.MealDesc != stored.MealDesc) changed[QStringLiteral("MealDesc")] = WithoutDoubleQuotes(edited.MealDesc);
  if (edited.MealGroupID != stored.MealGroupID) changed[QStringLiteral("MealGroupID")] = edited.MealGroupID;
  for (int id = 1; id <= nutrientCount; ++id) {
    if (ShownValue(edited, nutrients, id) == ShownValue(stored, nutrients, id)) continue;
    changed[Definition(nutrients, id).fieldName] = StoredValue(edited, nutrients, id);
  }
  return changed;
}

/// No description that this program stores holds a double quote; one that does came from elsewhere, and its copy would
/// be a food that every other place writes differently.
void RefuseDoubleQuotes(Session &session, int mealID) {
  const QString description =
      GetDataValue(session.Data(), QStringLiteral("MealDesc"), mealsList, QStringLiteral("MealID=%1").arg(mealID));
  if (description.contains(QLatin1Char('"'))) {
    throw Error(error_number::invalidSql, QStringLiteral("The description holds a double quote: ") + description);
  }
}

}  // namespace

FoodRecord ReadFood(Session &session, int mealID) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT meals_list.* FROM meals_list WHERE (meals_list.MealID=?);"), {mealID});
  FoodRecord food;
  food.MealID = row.Integer(QStringLiteral("MealID"));
  food.MealDesc = row.Text(QStringLiteral("MealDesc"));
  food.Amount = row.Text(QStringLiteral("Amount"));
  food.MealGroupID = row.Integer(QStringLiteral("MealGroupID"));
  food.RecordTypeID = row.Integer(QStringLiteral("RecordTypeID"));
  const Value glycemic = row.Field(QStringLiteral("GIValue"));
  if (!glycemic.isNull()) food.GIValue = glycemic.toDouble();
  food.nutrients = FoodValues::Read(row, session.nutrients);
  return food;
}

int AddFood(Session &session, const FoodRecord &food) {
  Change change(session);
  const int mealID = GetNextID(session.Data(), mealsList).toInt();
  QString columns =
      QStringLiteral("INSERT INTO meals_list ( MealID, MealDesc, Amount, MealGroupID, GIValue, RecordTypeID");
  QString values = QStringLiteral(" ) SELECT ? AS E1, ? AS E2, ? AS E3, ? AS E4, ? AS E5, 2 AS E6");
  Params params = {mealID, WithoutDoubleQuotes(food.MealDesc), WithoutDoubleQuotes(food.Amount), food.MealGroupID,
                   food.GIValue ? Value(*food.GIValue) : Value()};
  for (int id = 1; id <= nutrientCount; ++id) {
    columns += QStringLiteral(", ") + Definition(session.nutrients, id).fieldName;
    values += QStringLiteral(", ?");
    params.append(StoredValue(food, session.nutrients, id));
  }
  session.Data().Execute(columns + values + QStringLiteral(";"), params);
  change.Announce({.table = Table::MealsList, .keys = {mealID}});
  change.Commit();
  return mealID;
}

void SaveFood(Session &session, const FoodRecord &food) {
  Change change(session);
  QVariantMap changed = Differences(ReadFood(session, food.MealID), food, session.nutrients);
  if (changed.isEmpty()) return;
  changed[QStringLiteral("IsModified")] = true;
  const GridStatement update = UpdateStatement(mealsTable, food.MealID, changed);
  session.Data().Execute(update.sql, update.params);
  change.Announce({.table = Table::MealsList, .keys = {food.MealID}});
  change.Commit();
}

int CopyFood(Session &session, int mealID) {
  Change change(session);
  RefuseDoubleQuotes(session, mealID);
  const int newID = GetNextID(session.Data(), mealsList).toInt();
  QStringList fields;
  for (const NutrientDef &definition : session.nutrients.NutrientDefs) fields.append(definition.fieldName);
  const QString nutrientColumns = fields.join(QStringLiteral(", "));
  session.Data().Execute(QStringLiteral("INSERT INTO meals_list ( MealID, MealDesc, MealGroupID, ") + nutrientColumns +
                             QStringLiteral(", RecordTypeID ) SELECT ? AS MealID1, MealDesc, MealGroupID, ") +
                             nutrientColumns +
                             QStringLiteral(", 2 AS RecordTypeID1 FROM meals_list WHERE (meals_list.MealID=?); "),
                         {newID, mealID});
  change.Announce({.table = Table::MealsList, .keys = {newID}});
  change.Commit();
  return newID;
}

std::vector<qint64> PasteFoods(Session &session, const QList<QVariantMap> &rows) {
  Change change(session);
  std::vector<qint64> keys;
  for (QVariantMap row : rows) {
    row[QStringLiteral("MealID")] = GetNextID(session.Data(), mealsList).toInt();
    row[QStringLiteral("RecordTypeID")] = food_kind::myFoods;
    // An update of the shipped foods finds them by this number: a food of one's own must not be found.
    row.remove(QStringLiteral("USDANum"));
    const GridStatement insert = InsertStatement(mealsTable, row);
    session.Data().Execute(insert.sql, insert.params);
    keys.push_back(row[QStringLiteral("MealID")].toLongLong());
  }
  change.Announce({.table = Table::MealsList, .keys = keys});
  change.Commit();
  return keys;
}

QString CopyFoodQuestion(const QString &mealDesc) {
  return QStringLiteral("Copy the following food: \n\n") + mealDesc +
         QStringLiteral("\n\n to your personal \"My Foods\" list?");
}

QString DeleteFoodsQuestion(int count) {
  return count == 1 ? QStringLiteral(
                          "When you delete this food from the list, any journal entries containing this food "
                          "will also be deleted.  Are you sure you want to continue?")
                    : QStringLiteral(
                          "When you delete these foods from the list, any journal entries containing these "
                          "foods will also be deleted.  Are you sure you want to continue?");
}

}  // namespace trimlog
