#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <utility>

#include "platform/store/database.h"

namespace trimlog {

struct GridOrder {
  QString field;
  bool descending = false;
  bool operator==(const GridOrder &) const = default;
};

/// What a grid shows, as a value. Every statement of the grid is made from it, with what a person typed as bound
/// parameters.
///
///   GridSource{.table = "meals_list", .key = "MealID",
///              .where = "((meals_list.RecordTypeID) = ?)", .params = {2}, .order = {{"MealDesc"}}}
///   GridSource{.table = "meals", .key = "RecordID", .scope = {{"PersonID", 1}}, .order = {{"ThisDate"}}}
struct GridSource {
  QString table = {};  ///< where rows are saved, inserted and deleted
  QString key = {};    ///< the whole-number column that tells the rows apart (within `scope`)
  /// Columns with one value for the whole grid: they filter it, complete the key and are written into new rows.
  QList<std::pair<QString, Value>> scope = {};
  QString from = {};  ///< the FROM clause when other tables are joined in; default: the table alone
  /// Tables whose fields stand beside the rows, as LEFT JOIN clauses; which rows there are does not depend on them.
  QString beside = {};
  QString where = {};  ///< a condition without WHERE; a `?` takes the next of `params`
  Params params = {};
  QString count = {};  ///< counts the rows as RowCount, where that is quicker than counting what `where` lets through
  /// How a field is ordered where an index keeps an expression of it: field and expression.
  QMap<QString, QString> orderAs = {};
  QList<GridOrder> order = {};  ///< the key always follows as the last term, so that the order is total
};

/// A statement with its parameters.
struct GridStatement {
  QString sql;
  Params params;
};

/// The keys of all rows in order; only the first `top` of them when `top` is above 0.
GridStatement KeysStatement(const GridSource &source, int top = 0);
GridStatement CountStatement(const GridSource &source);
/// The first key, in order, of a row that also meets a criterion.
GridStatement FindStatement(const GridSource &source, const QString &criterion, const Params &params);
/// Key and fields of the rows with these keys, in any order; all columns of the table when `fields` is empty.
GridStatement RowsStatement(const GridSource &source, const QStringList &fields, const std::vector<qint64> &keys);
/// Those of the keys whose rows the source shows.
GridStatement BelongingStatement(const GridSource &source, const std::vector<qint64> &keys);
GridStatement UpdateStatement(const GridSource &source, qint64 key, const QVariantMap &values);
/// Scope columns and values; `values` holds the key as well.
GridStatement InsertStatement(const GridSource &source, const QVariantMap &values);
GridStatement DeleteStatement(const GridSource &source, const std::vector<qint64> &keys);

/// "table.field" for a field of the source's own table; a field with a point in it stays as it is.
QString QualifiedField(const GridSource &source, const QString &field);

}  // namespace trimlog
