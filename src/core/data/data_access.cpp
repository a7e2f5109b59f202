#include "core/data/data_access.h"

#include <array>

#include "platform/store/single_value.h"

namespace trimlog {

namespace {

/// How a table's next key is found.
struct KeyRule {
  QLatin1StringView table;
  QLatin1StringView expression;
  QLatin1StringView filter;  ///< a `?` stands for the person
  bool knownToExt = true;    ///< files of earlier releases have the table too
};

using namespace Qt::Literals::StringLiterals;

constexpr QLatin1StringView keyAlias = "NextID"_L1;
constexpr QLatin1StringView nextRecord = "Max([RecordID])+1 AS NextID"_L1;
constexpr QLatin1StringView nextTarget = "Max([TargetID])+1 AS NextID"_L1;
constexpr int firstBuiltInTarget = 10;  ///< sets below this number are the user's own

constexpr std::array keyRules = {
    KeyRule{"people"_L1, "Max([PersonID])+1 AS NextID"_L1, {}},
    KeyRule{"notes"_L1, nextRecord, "((notes.PersonID)=?)"_L1},
    KeyRule{"meals"_L1, nextRecord, "((meals.PersonID)=?)"_L1},
    KeyRule{"measurements"_L1, nextRecord, "((measurements.PersonID)=?)"_L1},
    KeyRule{"activities"_L1, nextRecord, "((activities.PersonID)=?)"_L1},
    KeyRule{"other_daily_data"_L1, nextRecord, "((other_daily_data.PersonID)=?)"_L1, false},
    KeyRule{"meals_list"_L1, "Max([MealID])+1 AS NextID"_L1, {}},
    KeyRule{"activities_list"_L1, "Max([ActivityID])+1 AS NextID"_L1, {}},
    KeyRule{"links"_L1, "Max([LinkID])+1 AS NextID"_L1, {}},
    KeyRule{"recipes"_L1, "Max([RecipeID])+1 AS NextID"_L1, {}},
    KeyRule{"nutrition_targets"_L1, nextTarget, "((nutrition_targets.TargetID) < 10)"_L1, false},
};

const KeyRule &FindKeyRule(const QString &table) {
  for (const KeyRule &rule : keyRules) {
    if (rule.table.compare(table, Qt::CaseInsensitive) == 0) return rule;
  }
  throw Error(error_number::unknownTable, QStringLiteral("The table '%1' has no running key.").arg(table));
}

/// Where in a criterion the number stands that it ends with, as in "((notes.PersonID)=7)"; empty when it ends
/// otherwise.
QStringView LastKey(QStringView where) {
  qsizetype end = where.size();
  while (end > 0 && (where[end - 1] == u')' || where[end - 1] == u' ')) --end;
  qsizetype begin = end;
  while (begin > 0 && where[begin - 1] >= u'0' && where[begin - 1] <= u'9') --begin;
  if (begin > 0 && where[begin - 1] == u'-') --begin;
  const bool isKey = begin > 0 && where[begin - 1] == u'=' && end - begin <= 9;
  return isKey ? where.sliced(begin, end - begin) : QStringView();
}

/// An empty answer means an empty table.
QString NextByRule(Database &database, const KeyRule &rule, QLatin1StringView filter, const QString &personID) {
  Params params;
  if (filter.contains(u'?')) params.append(personID.toInt());
  const QString next = GetDataValue(database, rule.expression, rule.table, filter, keyAlias, params);
  // The keys of the samples, below 0, lead to no key of a row that a person makes.
  return next.toInt() < 1 ? QStringLiteral("1") : next;
}

}  // namespace

QString GetDataValue(Database &database, const QString &field, const QString &table, const QString &where,
                     const QString &alias, const Params &params) {
  // The key goes in as a parameter, so that the store finds the same statement ready for every key.
  const QStringView key = LastKey(where);
  bool isNumber = false;
  const int number = key.toInt(&isNumber);
  QString statement;
  statement.reserve(field.size() + table.size() + where.size() + 24);
  statement += "SELECT "_L1;
  statement += field;
  statement += " FROM "_L1;
  statement += table;
  statement += u' ';
  if (!where.isEmpty()) {
    statement += "WHERE "_L1;
    if (isNumber) {
      statement += QStringView(where.cbegin(), key.cbegin());
      statement += u'?';
      statement += QStringView(key.cend(), where.cend());
    } else {
      statement += where;
    }
  }
  statement += u';';
  // The probes of the data file's upgrade ask for tables and columns that an old file lacks: no value, not a failure.
  try {
    if (!isNumber) return SingleValueText(database, statement, params, alias);
    Params withKey = params;
    withKey.append(number);
    return SingleValueText(database, statement, withKey, alias);
  } catch (const Error &) {
    return {};
  }
}

QString GetNextID(Database &database, const QString &table, const QString &personID) {
  const KeyRule &rule = FindKeyRule(table);
  QString next = NextByRule(database, rule, rule.filter, personID);
  if (rule.expression != nextTarget) return next;
  // The user's numbers are used up, or none is taken yet: go on behind the built-in sets.
  const int number = next.toInt();
  return number == 1 || number >= firstBuiltInTarget ? NextByRule(database, rule, {}, personID) : next;
}

QString GetNextIDExt(Database &database, const QString &table, const QString &personID) {
  const KeyRule &rule = FindKeyRule(table);
  if (!rule.knownToExt) {
    throw Error(error_number::unknownTable,
                QStringLiteral("The table '%1' has no running key in other files.").arg(table));
  }
  return NextByRule(database, rule, rule.filter, personID);
}

}  // namespace trimlog
