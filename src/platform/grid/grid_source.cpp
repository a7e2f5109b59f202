#include "platform/grid/grid_source.h"

namespace trimlog {

namespace {

struct Condition {
  QStringList terms;
  Params params;

  void Add(const QString &term, const Params &values) {
    if (term.trimmed().isEmpty()) return;
    terms.append(QStringLiteral("(%1)").arg(term));
    params += values;
  }
  QString Where() const {
    return terms.isEmpty() ? QString() : QStringLiteral(" WHERE ") + terms.join(QStringLiteral(" AND "));
  }
};

QString OwnTables(const GridSource &source) { return source.from.isEmpty() ? source.table : source.from; }

QString FromClause(const GridSource &source) {
  return source.beside.isEmpty() ? OwnTables(source) : OwnTables(source) + QLatin1Char(' ') + source.beside;
}

void AddScope(Condition &condition, const GridSource &source) {
  for (const auto &[field, value] : source.scope) {
    condition.Add(QualifiedField(source, field) + QStringLiteral(" = ?"), {value});
  }
}

Condition Shown(const GridSource &source) {
  Condition condition;
  AddScope(condition, source);
  condition.Add(source.where, source.params);
  return condition;
}

// The number of question marks is rounded up to a power of two, with the last key repeated, so that few different
// statements need to be prepared.
void AddKeys(Condition &condition, const GridSource &source, const std::vector<qint64> &keys) {
  size_t places = 1;
  while (places < keys.size()) places *= 2;
  Params values;
  QStringList marks;
  for (size_t place = 0; place < places; ++place) {
    values.append(keys[std::min(place, keys.size() - 1)]);
    marks.append(QStringLiteral("?"));
  }
  condition.Add(QStringLiteral("%1 IN (%2)").arg(QualifiedField(source, source.key), marks.join(QStringLiteral(", "))),
                values);
}

// The first field of the scope and the key find the rows. The plus keeps the store from finding them by an index of the
// other fields, which may lead through the whole table.
Condition WithKeys(const GridSource &source, const std::vector<qint64> &keys) {
  Condition condition;
  bool first = true;
  for (const auto &[field, value] : source.scope) {
    condition.Add((first ? QString() : QStringLiteral("+")) + QualifiedField(source, field) + QStringLiteral(" = ?"),
                  {value});
    first = false;
  }
  AddKeys(condition, source, keys);
  return condition;
}

QString OrderClause(const GridSource &source) {
  QStringList terms;
  for (const GridOrder &order : source.order) {
    const QString term = source.orderAs.value(order.field, QualifiedField(source, order.field));
    terms.append(term + (order.descending ? QStringLiteral(" DESC") : QString()));
  }
  terms.append(QualifiedField(source, source.key));
  return QStringLiteral(" ORDER BY ") + terms.join(QStringLiteral(", "));
}

GridStatement SelectKeys(const GridSource &source, const Condition &condition, int top) {
  const QString limit = top > 0 ? QStringLiteral("TOP %1 ").arg(top) : QString();
  return {
      QStringLiteral("SELECT %1%2 FROM %3%4%5;")
          .arg(limit, QualifiedField(source, source.key), FromClause(source), condition.Where(), OrderClause(source)),
      condition.params};
}

}  // namespace

QString QualifiedField(const GridSource &source, const QString &field) {
  return field.contains(QLatin1Char('.')) ? field : source.table + QLatin1Char('.') + field;
}

GridStatement KeysStatement(const GridSource &source, int top) { return SelectKeys(source, Shown(source), top); }

GridStatement CountStatement(const GridSource &source) {
  if (!source.count.isEmpty()) return {source.count, {}};
  const Condition condition = Shown(source);
  return {QStringLiteral("SELECT Count(*) AS RowCount FROM %1%2;").arg(OwnTables(source), condition.Where()),
          condition.params};
}

GridStatement FindStatement(const GridSource &source, const QString &criterion, const Params &params) {
  Condition condition = Shown(source);
  condition.Add(criterion, params);
  return SelectKeys(source, condition, 1);
}

GridStatement RowsStatement(const GridSource &source, const QStringList &fields, const std::vector<qint64> &keys) {
  QStringList columns{QualifiedField(source, source.key)};
  for (const QString &field : fields) columns.append(QualifiedField(source, field));
  const bool whole = fields.isEmpty();
  if (whole) columns = {source.table + QStringLiteral(".*")};
  const Condition condition = WithKeys(source, keys);
  return {QStringLiteral("SELECT %1 FROM %2%3;")
              .arg(columns.join(QStringLiteral(", ")), whole ? source.table : FromClause(source), condition.Where()),
          condition.params};
}

GridStatement BelongingStatement(const GridSource &source, const std::vector<qint64> &keys) {
  Condition condition = WithKeys(source, keys);
  condition.Add(source.where, source.params);
  return SelectKeys(source, condition, 0);
}

GridStatement UpdateStatement(const GridSource &source, qint64 key, const QVariantMap &values) {
  QStringList assignments;
  Params params;
  for (auto value = values.begin(); value != values.end(); ++value) {
    assignments.append(value.key() + QStringLiteral(" = ?"));
    params.append(value.value());
  }
  const Condition condition = WithKeys(source, {key});
  return {QStringLiteral("UPDATE %1 SET %2%3;")
              .arg(source.table, assignments.join(QStringLiteral(", ")), condition.Where()),
          params + condition.params};
}

GridStatement InsertStatement(const GridSource &source, const QVariantMap &values) {
  QStringList columns;
  QStringList marks;
  Params params;
  const auto add = [&](const QString &column, const Value &value) {
    columns.append(column);
    marks.append(QStringLiteral("?"));
    params.append(value);
  };
  for (const auto &[field, value] : source.scope) add(field, value);
  for (auto value = values.begin(); value != values.end(); ++value) add(value.key(), value.value());
  return {QStringLiteral("INSERT INTO %1 ( %2 ) VALUES ( %3 );")
              .arg(source.table, columns.join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
          params};
}

GridStatement DeleteStatement(const GridSource &source, const std::vector<qint64> &keys) {
  const Condition condition = WithKeys(source, keys);
  return {QStringLiteral("DELETE FROM %1%2;").arg(source.table, condition.Where()), condition.params};
}

}  // namespace trimlog
