#include "catalogs/food_lists.h"

#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString separatorText = QStringLiteral("----------------------------------");
constexpr int recentDays = 14;
constexpr int letters = 26;

/// The recent foods are few: by name they stand without regard to whose they are.
QList<GridOrder> OrderOf(const FoodListKind &kind, int list, const QString &sort) {
  if (sort == byFoodName && list != food_list::recent) return kind.byName;
  if (sort == byFoodName) return {{QStringLiteral("MealDesc")}};
  const bool highest = sort.startsWith(QLatin1Char('-'));
  const GridOrder first{highest ? sort.mid(1) : sort, highest};
  const GridOrder name{QStringLiteral("MealDesc")};
  return first.field == name.field ? QList<GridOrder>{first} : QList<GridOrder>{first, name};
}

QString RowsOf(const QList<int> &kinds) {
  QStringList numbers;
  for (const int kind : kinds) numbers.append(QString::number(kind));
  return QStringLiteral("((meals_list.RecordTypeID) IN (%1))").arg(numbers.join(QStringLiteral(", ")));
}

/// One comparison a kind: a list would be looked up for every food that a search passes.
QString OtherRowsThan(const QList<int> &kinds) {
  QStringList conditions;
  for (const int kind : kinds) conditions.append(QStringLiteral("((meals_list.RecordTypeID) <> %1)").arg(kind));
  return conditions.join(QStringLiteral(" AND "));
}

QDate FirstRecentDay(const Session &session) { return session.Today().addDays(1 - recentDays); }

void AppendSorts(QList<FoodSortChoice> &choices, const Nutrients &nutrients, bool highest) {
  for (const SelectedNutrient &position : nutrients.SelectedNutrients) {
    if (position.NutrientID == 0) continue;
    const QString &field = Definition(nutrients, position.NutrientID).fieldName;
    choices.append({highest ? QLatin1Char('-') + field : field,
                    position.description + (highest ? QStringLiteral(" (Highest)") : QStringLiteral(" (Lowest)"))});
  }
}

}  // namespace

QList<FoodGroup> FoodGroups(Session &session) {
  QList<FoodGroup> groups;
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT meal_groups.* FROM meal_groups ORDER BY meal_groups.MealGroupID;"));
  for (; !rows.Eof(); rows.MoveNext()) {
    groups.append({rows.Integer(QStringLiteral("MealGroupID")), rows.Text(QStringLiteral("MealGroupDescription"))});
  }
  return groups;
}

QList<FoodGroup> FoodGroupChoices(Session &session) {
  return QList<FoodGroup>{{allFoodGroups, QStringLiteral("All Food Groups")}} + FoodGroups(session);
}

QList<FoodSortChoice> FoodSortChoices(const Nutrients &nutrients) {
  QList<FoodSortChoice> choices = {{byFoodName, QStringLiteral("Food Description")},
                                   {QStringLiteral("-1"), separatorText}};
  AppendSorts(choices, nutrients, false);
  choices.append({QStringLiteral("-2"), separatorText});
  AppendSorts(choices, nutrients, true);
  return choices;
}

FoodSelection FirstSelection(const FoodListKind &kind, const Session &session) {
  FoodSelection selection;
  selection.list = kind.ListOf(session.settings.LastRecordTypeMeals).key;
  for (const FoodSortChoice &sort : FoodSortChoices(session.nutrients)) {
    if (sort.key == session.windows.pickedFoodSort && !sort.IsSeparator()) selection.sort = sort.key;
  }
  return selection;
}

GridSource ListedFoods(const FoodListKind &kind) {
  GridSource source{.table = QStringLiteral("meals_list"), .key = QStringLiteral("MealID")};
  source.where = OtherRowsThan(kind.never);
  source.order = kind.byName;
  source.orderAs = {{QStringLiteral("MealDesc"), QStringLiteral("SortKey(meals_list.MealDesc)")}};
  return source;
}

GridSource FoodListSource(const FoodListKind &kind, const FoodSelection &selection) {
  GridSource source = ListedFoods(kind);
  source.order = OrderOf(kind, selection.list, selection.sort);
  if (selection.list == food_list::recent) {
    if (kind.forPicking) return source;
    source.from =
        QStringLiteral("meals_list INNER JOIN temp_recent_meals ON meals_list.MealID = temp_recent_meals.MealID");
    return source;
  }
  const QList<int> &kinds = kind.ListOf(selection.list).kinds;
  if (!kinds.isEmpty()) source.where = RowsOf(kinds);
  if (selection.group != allFoodGroups) {
    source.where += QStringLiteral(" And ((meals_list.MealGroupID) = ?)");
    source.params.append(selection.group);
  } else if (kinds.isEmpty()) {
    // All rows but the few that are never listed: the store knows the first number without counting.
    source.count =
        QStringLiteral("SELECT (SELECT Count(*) FROM meals_list) - (SELECT Count(*) FROM meals_list WHERE ") +
        RowsOf(kind.never) + QStringLiteral(") AS RowCount;");
  }
  return source;
}

QString SortKeyOf(const FoodListKind &kind, const GridSource &source) {
  if (source.order.isEmpty() || source.order == kind.byName) return byFoodName;
  const GridOrder &first = source.order.first();
  if (first == GridOrder{QStringLiteral("MealDesc")}) return byFoodName;
  return first.descending ? QLatin1Char('-') + first.field : first.field;
}

FoodSelection SelectionHolding(const FoodRecord &food, const FoodSelection &present) {
  FoodSelection holding = present;
  const bool own = food.RecordTypeID != food_kind::preLoaded;
  const bool held = present.list == food_list::all || (present.list == food_list::ownWithRecipes && own);
  if (!held) holding.list = food.RecordTypeID;
  if (present.group != allFoodGroups) holding.group = food.MealGroupID;
  return holding;
}

GridSource PrepareFoodList(Session &session, const FoodListKind &kind, const FoodSelection &selection) {
  GridSource source = FoodListSource(kind, selection);
  if (selection.list != food_list::recent) return source;
  if (!kind.forPicking) {
    FillRecentFoods(session);
    return source;
  }
  source.where += QStringLiteral(
      " AND (meals_list.MealID IN (SELECT meals.MealID FROM meals "
      "WHERE ((meals.PersonID) = ?) AND ((meals.ThisDate) >= ?)))");
  source.params << session.profile.CurrentPersonID.toInt() << FirstRecentDay(session);
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
                   SQLDate(FirstRecentDay(session)) + QStringLiteral(") AND ((meals.PersonID)=") +
                   session.profile.CurrentPersonID + QStringLiteral("));"));
  transaction.Commit();
}

QString FoodsDisplayedHeading(int count, bool groupShown) {
  const QString beforeCount =
      groupShown ? QStringLiteral("Food Description                        ")
                 : QStringLiteral(
                       "Food Description                                                                       "
                       "              ");
  return beforeCount + QStringLiteral("%1 Foods Displayed").arg(count);
}

QList<GridStatement> AlphabetCriteria(const FoodListKind &kind, int list, QChar letter) {
  const bool ownStandFirst = kind.forPicking && list == food_list::all;
  const QString criterion = QStringLiteral("UCase(Left(MealDesc, 1))= ?");
  QList<GridStatement> criteria;
  for (int step = 0; step < letters; ++step) {
    const QChar tried(letter.toUpper().unicode() + step);
    if (tried > QLatin1Char('Z')) break;
    criteria.append(
        {ownStandFirst ? criterion + QStringLiteral(" AND RecordTypeID = 1") : criterion, {QString(tried)}});
  }
  return criteria;
}

QString PrintedFoodListTitle(const QString &listName, const QString &groupName) {
  return QStringLiteral("Food List: ") + listName + QStringLiteral("     ") + QStringLiteral("Food Group: ") +
         groupName;
}

QString EmptyListHint(const FoodListKind &kind, const FoodSelection &selection) {
  if (selection.list == food_list::recent) {
    const QString hint = QStringLiteral("You have eaten and planned nothing in the last %1 days.").arg(recentDays);
    return kind.forPicking ? hint + QStringLiteral("\nChoose another list above.") : hint;
  }
  const bool wholeList = selection.group == allFoodGroups;
  if (selection.list == food_kind::recipe && wholeList) {
    return QStringLiteral("You have no recipes yet.\nChoose another list above.");
  }
  if ((selection.list == food_kind::myFoods || selection.list == food_list::ownWithRecipes) && wholeList) {
    return kind.forPicking ? QStringLiteral("Here stand the foods of your own.\nClick New Food to make one.")
                           : QStringLiteral(
                                 "Here stand the foods of your own.\nClick New to make one, or choose a "
                                 "pre-loaded food and click Copy Food.");
  }
  return QStringLiteral("No food of this list is in this group.\nChoose another list or group above.");
}

}  // namespace trimlog
