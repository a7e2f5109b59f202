#include "catalogs/food_lists.h"

#include <QRegularExpression>

#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString byName = QStringLiteral("0");
const QString separatorText = QStringLiteral("----------------------------------");
constexpr int recentDays = 14;
constexpr int letters = 26;

QList<GridOrder> OrderOf(const QString &sort) {
  const GridOrder name{QStringLiteral("MealDesc")};
  if (sort == byName) return {name};
  const bool highest = sort.startsWith(QLatin1Char('-'));
  return {{highest ? sort.mid(1) : sort, highest}, name};
}

const QString listed = QStringLiteral("((meals_list.RecordTypeID) <> 0) And ((meals_list.RecordTypeID) <> 3)");

void AppendSorts(QList<FoodSortChoice> &choices, const Nutrients &nutrients, bool highest) {
  for (const SelectedNutrient &position : nutrients.SelectedNutrients) {
    if (position.NutrientID == 0) continue;
    const QString &field = Definition(nutrients, position.NutrientID).fieldName;
    choices.append({highest ? QLatin1Char('-') + field : field,
                    position.description + (highest ? QStringLiteral(" (Highest)") : QStringLiteral(" (Lowest)"))});
  }
}

}  // namespace

const QList<FoodChoice> &FoodListChoices() {
  static const QList<FoodChoice> choices = {
      {food_list::all, QStringLiteral("All Food Lists")},
      {food_kind::preLoaded, QStringLiteral("Pre-Loaded Foods")},
      {food_list::recent, QStringLiteral("Recent Foods")},
      {food_kind::myFoods, QStringLiteral("My Foods")},
  };
  return choices;
}

QList<FoodChoice> FoodGroupChoices(Session &session) {
  QList<FoodChoice> choices = {{allFoodGroups, QStringLiteral("All Food Groups")}};
  Recordset groups = session.Data().OpenRecordset(
      QStringLiteral("SELECT meal_groups.* FROM meal_groups ORDER BY meal_groups.MealGroupID;"));
  for (; !groups.Eof(); groups.MoveNext()) {
    choices.append(
        {groups.Integer(QStringLiteral("MealGroupID")), groups.Text(QStringLiteral("MealGroupDescription"))});
  }
  return choices;
}

QList<FoodSortChoice> FoodSortChoices(const Nutrients &nutrients) {
  QList<FoodSortChoice> choices = {{byName, QStringLiteral("Food Description")}, {QStringLiteral("-1"), separatorText}};
  AppendSorts(choices, nutrients, false);
  choices.append({QStringLiteral("-2"), separatorText});
  AppendSorts(choices, nutrients, true);
  return choices;
}

GridSource FoodListSource(const FoodSelection &selection) {
  GridSource source{.table = QStringLiteral("meals_list"), .key = QStringLiteral("MealID")};
  source.order = OrderOf(selection.sort);
  source.orderAs = {{QStringLiteral("MealDesc"), QStringLiteral("SortKey(meals_list.MealDesc)")}};
  if (selection.list == food_list::recent) {
    source.from =
        QStringLiteral("meals_list INNER JOIN temp_recent_meals ON meals_list.MealID = temp_recent_meals.MealID");
    source.where = listed;
    return source;
  }
  source.where = listed;
  if (selection.list == food_list::all && selection.group == allFoodGroups) {
    // All rows but the few that are never listed: the store knows the first number without counting.
    source.count = QStringLiteral(
        "SELECT (SELECT Count(*) FROM meals_list) - (SELECT Count(*) FROM meals_list "
        "WHERE ((meals_list.RecordTypeID) IN (0, 3))) AS RowCount;");
  }
  if (selection.list != food_list::all) {
    source.where = QStringLiteral("((meals_list.RecordTypeID) = ?)");
    source.params.append(selection.list);
  }
  if (selection.group != allFoodGroups) {
    source.where += QStringLiteral(" And ((meals_list.MealGroupID) = ?)");
    source.params.append(selection.group);
  }
  return source;
}

void FillRecentFoods(Session &session) {
  Database &database = session.Data();
  Transaction transaction(database);
  if (database.HasTable(QStringLiteral("temp_recent_meals"))) {
    database.Execute(QStringLiteral("DROP TABLE temp_recent_meals;"));
  }
  database.Execute(QStringLiteral("SELECT DISTINCT meals.MealID INTO temp_recent_meals From meals "
                                  "WHERE (((meals.ThisDate)>=") +
                   SQLDate(session.Today().addDays(1 - recentDays)) + QStringLiteral(") AND ((meals.PersonID)=") +
                   session.profile.CurrentPersonID + QStringLiteral("));"));
  transaction.Commit();
}

QString FoodSearchText(const QString &typed) { return QString(typed).remove(QLatin1Char('"')).trimmed(); }

GridSource FoodSearchSource(const QString &text) {
  GridSource source{.table = QStringLiteral("meals_list"), .key = QStringLiteral("MealID")};
  source.order = OrderOf(byName);
  const QStringList words =
      FoodSearchText(text).toLower().split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
  if (words.isEmpty()) {
    source.where = QStringLiteral("meals_list.MealID = -99");
    return source;
  }
  source.where = listed;
  for (const QString &word : words) {
    source.where += QStringLiteral(" AND ((InStr(1,LCase([MealDesc]),?))<>0)");
    source.params.append(word);
  }
  return source;
}

QString FoodsFoundHeading(int count) { return QStringLiteral("Food Description  (%1 foods found)").arg(count); }

QString FoodsDisplayedHeading(int count, bool groupShown) {
  const QString beforeCount =
      groupShown ? QStringLiteral("Food Description                        ")
                 : QStringLiteral(
                       "Food Description                                                                       "
                       "              ");
  return beforeCount + QStringLiteral("%1 Foods Displayed").arg(count);
}

QList<GridStatement> AlphabetCriteria(QChar letter) {
  QList<GridStatement> criteria;
  for (int step = 0; step < letters; ++step) {
    const QChar tried(letter.toUpper().unicode() + step);
    if (tried > QLatin1Char('Z')) break;
    criteria.append({QStringLiteral("UCase(Left(MealDesc, 1))= ?"), {QString(tried)}});
  }
  return criteria;
}

QString PrintedFoodListTitle(const QString &listName, const QString &groupName) {
  return QStringLiteral("Food List: ") + listName + QStringLiteral("     ") + QStringLiteral("Food Group: ") +
         groupName;
}

QString PrintedSearchTitle(const QString &searchText) {
  return QStringLiteral("Food Search Results for: ") + searchText;
}

}  // namespace trimlog
