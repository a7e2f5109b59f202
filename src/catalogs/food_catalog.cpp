#include "catalogs/food_catalog.h"

#include "catalogs/food_lists.h"
#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString mealsList = QStringLiteral("meals_list");

/// What is stored is what is shown: rounded by the display pattern. A nutrient that was left empty is 0.
double StoredValue(const FoodRecord &food, const Nutrients &nutrients, int nutrientID) {
  return Val(Format(food.nutrients.OrZero(nutrientID), GetNutrientFormat(Definition(nutrients, nutrientID).fieldName)));
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
  QString sql = QStringLiteral(
      "UPDATE meals_list SET meals_list.MealDesc = ?, meals_list.MealGroupID = ?, meals_list.IsModified = True");
  Params params = {WithoutDoubleQuotes(food.MealDesc), food.MealGroupID};
  for (int id = 1; id <= nutrientCount; ++id) {
    sql += QStringLiteral(", meals_list.") + Definition(session.nutrients, id).fieldName + QStringLiteral(" = ?");
    params.append(StoredValue(food, session.nutrients, id));
  }
  params.append(food.MealID);
  session.Data().Execute(sql + QStringLiteral(" WHERE (meals_list.MealID=?);"), params);
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
    const GridStatement insert = InsertStatement({.table = mealsList, .key = QStringLiteral("MealID")}, row);
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

const std::array<int, nutrientCount> &NutrientDialogOrder() {
  static const std::array<int, nutrientCount> order = {1,  22, 3,  16, 18, 17, 19, 8,  9,  2,  5,  20,
                                                       4,  11, 15, 6,  7,  12, 13, 14, 10, 21, 26, 24,
                                                       23, 27, 25, 28, 29, 30, 31, 32, 33, 34, 35};
  return order;
}

QString NutrientLabel(const Nutrients &nutrients, int nutrientID) {
  static const std::array<const char *, nutrientCount> labels = {"Calories (cal):",
                                                                 "Carbs (g):",
                                                                 "Total Fat (g):",
                                                                 "Protein (g):",
                                                                 "Fiber (g):",
                                                                 "Calcium (mg):",
                                                                 "Iron (mg):",
                                                                 "Sodium (mg):",
                                                                 "Potassium (mg):",
                                                                 "Zinc (mg):",
                                                                 "Vitamin A (IU):",
                                                                 "Vitamin E (mg):",
                                                                 "Vitamin B6 (mg):",
                                                                 "Vitamin B12 (mg):",
                                                                 "Vitamin C (mg):",
                                                                 "Saturated Fat (g):",
                                                                 "Mono Fat (g):",
                                                                 "Poly Fat (g):",
                                                                 "Cholesterol (mg):",
                                                                 "Sugar (g):",
                                                                 "Alcohol (g):",
                                                                 "Cal from Fat (cal):",
                                                                 "% Cal from Fat:",
                                                                 "Cal from Pro (cal):",
                                                                 "% Cal from Pro:",
                                                                 "Cal from Carb (cal):",
                                                                 "% Cal from Carb:",
                                                                 "",
                                                                 "",
                                                                 "",
                                                                 "",
                                                                 "",
                                                                 "Net Carbs* (g):",
                                                                 "Sugar Alc (g):",
                                                                 "Trans Fat (g):"};
  if (IsCustomNutrient(nutrientID)) {
    const QString given = CustomNutrientName(nutrients, nutrientID);
    return (given.isEmpty() ? Definition(nutrients, nutrientID).description : given) + QLatin1Char(':');
  }
  return QString::fromLatin1(labels.at(static_cast<std::size_t>(nutrientID - 1)));
}

}  // namespace trimlog
