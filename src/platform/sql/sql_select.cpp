#include "platform/sql/sql_select.h"

#include "platform/sql/sql_functions.h"

namespace trimlog {

namespace {

constexpr auto kClauses = {"FROM", "WHERE", "GROUP", "HAVING", "ORDER", "INTO"};

// An aggregate turns many rows into one, so its rows are no longer rows of a table.
bool HoldsAggregate(const SqlWriter &writer, TokenRange range) {
  for (size_t i = range.begin; i + 1 < range.end; ++i) {
    for (const char *name : {"Count", "Sum", "Avg", "Max", "Min"}) {
      if (writer.Is(i, name) && writer.Is(i + 1, "(")) return true;
    }
  }
  return false;
}

}  // namespace

SelectClauses ReadSelect(const SqlWriter &writer, TokenRange range) {
  SelectClauses clauses;
  size_t i = range.begin + 1;
  while (i < range.end) {
    if (writer.Is(i, "DISTINCT")) {
      clauses.distinct = true;
    } else if (writer.Is(i, "DISTINCTROW")) {
      clauses.distinctRow = true;
    } else if (writer.Is(i, "TOP") && i + 1 < range.end && writer.At(i + 1).kind == TokenKind::Number) {
      clauses.top = writer.At(++i).text.toString();
      if (writer.Is(i + 1, "PERCENT")) RefuseSql(QStringLiteral("TOP ... PERCENT is not known to the store."));
    } else if (!writer.Is(i, "ALL")) {
      break;
    }
    ++i;
  }
  size_t end = writer.FindAny({i, range.end}, kClauses);
  clauses.list = {i, end};
  if (clauses.list.IsEmpty()) RefuseSql(QStringLiteral("The SELECT lists no fields."));
  if (writer.Is(end, "INTO") && end < range.end) {
    if (!writer.IsName(end + 1)) RefuseSql(QStringLiteral("INTO names no table."));
    clauses.into = writer.At(end + 1).text.toString();
    end += 2;
  }
  if (end < range.end && writer.Is(end, "FROM")) {
    const size_t from = end + 1;
    end = writer.FindAny({from, range.end}, {"WHERE", "GROUP", "HAVING", "ORDER"});
    clauses.from = {from, end};
    const size_t in = writer.Find(clauses.from, "IN");
    if (in < end) {
      if (in + 2 != end || writer.At(in + 1).kind != TokenKind::Text)
        RefuseSql(QStringLiteral("IN must name one side file, after the tables."));
      clauses.sideFile = writer.Literal(in + 1).toString();
      clauses.from.end = in;
    }
  }
  const size_t group = writer.FindAny({end, range.end}, {"GROUP", "HAVING", "ORDER"});
  const size_t order = writer.Find({group, range.end}, "ORDER");
  clauses.where = {end, group};
  clauses.group = {group, order};
  clauses.order = {order, range.end};
  if (!clauses.where.IsEmpty() && !writer.Is(end, "WHERE")) {
    RefuseSql(QStringLiteral("Syntax error in the SELECT at '%1'.").arg(writer.At(end).text));
  }
  return clauses;
}

QString ConvertedValue(const QString &value, const StoredColumn &column) {
  if (!column.declared) return value;
  QString name = column.name;
  const QString length = column.declared->length > 0 ? QStringLiteral(", %1").arg(column.declared->length) : QString();
  return QStringLiteral("%1(%2, '%3'%4)")
      .arg(QString::fromLatin1(ConversionFunction(column.declared->type)), value,
           name.replace(QLatin1Char('\''), QLatin1StringView("''")), length);
}

void SelectWriter::Write(TokenRange range, bool outermost) {
  const size_t unionAt = writer_.Find(range, "UNION");
  if (!writer_.Is(range.begin, "SELECT")) RefuseSql(QStringLiteral("A SELECT is missing."));
  const TokenRange first{range.begin, unionAt};
  const SelectClauses clauses = ReadSelect(writer_, first);
  if (!clauses.into.isEmpty() && (!outermost || unionAt < range.end))
    RefuseSql(QStringLiteral("INTO stands in a plain SELECT only."));
  const SqlFrom from = ReadSources(clauses);
  const QString list = writer_.Written(clauses.list);
  if (outermost) {
    result_.intoTable = clauses.into;
    NoteTypes(clauses, from);
  }
  WriteClauses(clauses, list, outermost && unionAt == range.end);
  if (unionAt == range.end) return;
  size_t next = unionAt + 1;
  writer_.out += QLatin1StringView(" UNION");
  if (writer_.Is(next, "ALL")) {
    writer_.out += QLatin1StringView(" ALL");
    ++next;
  }
  writer_.out += QLatin1Char(' ');
  Write({next, range.end});
}

SqlFrom SelectWriter::ReadSources(const SelectClauses &clauses) {
  if (clauses.from.IsEmpty()) return {};
  SqlFrom from = ReadFrom(writer_, clauses.from);
  if (!clauses.sideFile.isEmpty()) {
    const QString schema = writer_.Context().OpenSideFile(clauses.sideFile, false);
    result_.usesSideFile = true;
    for (const SqlSource &source : from.sources) {
      if (!source.table.isEmpty()) writer_.schemaOfToken.insert(source.token, schema);
    }
  }
  return from;
}

void SelectWriter::WriteClauses(const SelectClauses &clauses, const QString &list, bool outermost) {
  QString tail;
  if (!clauses.from.IsEmpty()) tail += QLatin1StringView(" FROM ") + writer_.Written(clauses.from);
  if (!clauses.where.IsEmpty()) tail += QLatin1Char(' ') + writer_.Written(clauses.where);
  if (clauses.distinctRow && clauses.group.IsEmpty() && !clauses.from.IsEmpty()) {
    // One row for each combination of rows of those tables that show a field.
    const SqlFrom from = ReadFrom(writer_, clauses.from);
    QStringList keys;
    for (const SqlSource &source : from.sources) {
      for (size_t i = clauses.list.begin; i + 1 < clauses.list.end; ++i) {
        if (!writer_.Is(i + 1, ".") || writer_.At(i).text.compare(source.name, Qt::CaseInsensitive) != 0) continue;
        keys.append(BracketedName(source.name) + QLatin1StringView(".rowid"));
        break;
      }
    }
    if (from.sources.size() > 1 && !keys.isEmpty())
      tail += QLatin1StringView(" GROUP BY ") + keys.join(QLatin1StringView(", "));
  }
  if (!clauses.group.IsEmpty()) tail += QLatin1Char(' ') + writer_.Written(clauses.group);
  if (!clauses.order.IsEmpty()) tail += QLatin1Char(' ') + writer_.Written(clauses.order);
  if (!clauses.top.isEmpty()) tail += QLatin1StringView(" LIMIT ") + clauses.top;
  if (!writer_.out.isEmpty()) writer_.out += QLatin1Char(' ');
  writer_.out += QLatin1StringView(clauses.distinct ? "SELECT DISTINCT " : "SELECT ") + list + tail;
  if (!outermost || clauses.distinct || clauses.distinctRow || !clauses.group.IsEmpty() || !clauses.sideFile.isEmpty())
    return;
  const SqlFrom from = clauses.from.IsEmpty() ? SqlFrom() : ReadFrom(writer_, clauses.from);
  if (from.sources.size() != 1 || from.sources[0].table.isEmpty() || HoldsAggregate(writer_, clauses.list)) return;
  const StoredTable *table = writer_.Context().FindTable(QString(), from.sources[0].table);
  if (table == nullptr || table->isView) return;
  const QString name = BracketedName(from.sources[0].name);
  result_.single.table = table->name;
  result_.single.keys = QLatin1StringView("SELECT ") + name + QLatin1StringView(".rowid") + tail;
  result_.single.row = QLatin1StringView("SELECT ") + list + QLatin1StringView(" FROM ") +
                       writer_.Written(clauses.from) + QLatin1StringView(" WHERE ") + name +
                       QStringLiteral(".rowid = ?%1").arg(writer_.SlotCount() + 1);
}

void SelectWriter::NoteTypes(const SelectClauses &clauses, const SqlFrom &from) {
  for (const TokenRange part : writer_.Parts(clauses.list)) {
    if (part.end - part.begin < 3 || !writer_.Is(part.end - 2, "AS")) continue;
    const auto type = TypeOf({part.begin, part.end - 2}, from);
    if (type) result_.expressionTypes.insert(writer_.At(part.end - 1).text.toString().toLower(), *type);
  }
}

std::optional<ColumnType> SelectWriter::TypeOf(TokenRange expression, const SqlFrom &from) {
  expression = writer_.Bare(expression);
  if (expression.IsEmpty()) return std::nullopt;
  const SqlToken &first = writer_.At(expression.begin);
  if (expression.end - expression.begin == 1) {
    if (first.kind == TokenKind::Date) return ColumnType::Date;
    if (first.kind == TokenKind::Text) return ColumnType::Memo;
    if (first.kind == TokenKind::Number) {
      return writer_.Literal(expression.begin).typeId() == QMetaType::LongLong ? ColumnType::Long : ColumnType::Double;
    }
    if (first.Is(QLatin1StringView("True")) || first.Is(QLatin1StringView("False"))) return ColumnType::Boolean;
  }
  if (first.kind == TokenKind::Word && writer_.Is(expression.begin + 1, "(") &&
      writer_.Closing(expression.begin + 1) == expression.end - 1) {
    if (first.Is(QLatin1StringView("Format"))) return ColumnType::Decimal2;
    const SqlFunction *function = FindSqlFunction(first.text);
    if (function == nullptr) return std::nullopt;
    if (!function->likeArgument) return function->result;
    return TypeOf(writer_.Parts({expression.begin + 2, expression.end - 1})[0], from);
  }
  if (writer_.Find(expression, "&") < expression.end) return ColumnType::Memo;
  return TypeOfColumn(expression, from);
}

std::optional<ColumnType> SelectWriter::TypeOfColumn(TokenRange column, const SqlFrom &from) {
  const size_t count = column.end - column.begin;
  const bool qualified = count == 3 && writer_.Is(column.begin + 1, ".");
  if (!qualified && count != 1) return std::nullopt;
  const QStringView name = writer_.At(column.end - 1).text;
  for (const SqlSource &source : from.sources) {
    if (qualified && writer_.At(column.begin).text.compare(source.name, Qt::CaseInsensitive) != 0) continue;
    const StoredTable *table = writer_.Context().FindTable(writer_.schemaOfToken.value(source.token), source.table);
    const StoredColumn *found = table == nullptr ? nullptr : table->Find(name);
    if (found != nullptr && found->declared) return found->declared->type;
  }
  return std::nullopt;
}

bool SelectWriter::CanConvertEach(TokenRange range, size_t count) const {
  if (writer_.Find(range, "UNION") < range.end) return false;
  const SelectClauses clauses = ReadSelect(writer_, range);
  if (clauses.distinct || clauses.distinctRow || !clauses.sideFile.isEmpty()) return false;
  const std::vector<TokenRange> parts = writer_.Parts(clauses.list);
  if (parts.size() != count) return false;
  return std::none_of(parts.begin(), parts.end(),
                      [this](TokenRange part) { return part.IsEmpty() || writer_.Is(part.end - 1, "*"); });
}

void SelectWriter::WriteConverted(TokenRange range, const std::vector<const StoredColumn *> &targets) {
  const SelectClauses clauses = ReadSelect(writer_, range);
  const std::vector<TokenRange> parts = writer_.Parts(clauses.list);
  QStringList list;
  for (size_t i = 0; i < parts.size(); ++i) {
    TokenRange value = parts[i];
    QString alias;
    const size_t as = writer_.Find(value, "AS");
    if (as < value.end) {
      alias = QLatin1Char(' ') + writer_.Written({as, value.end});
      value.end = as;
    }
    list.append(ConvertedValue(writer_.Written(value), *targets[i]) + alias);
  }
  WriteClauses(clauses, list.join(QLatin1StringView(", ")), false);
}

}  // namespace trimlog
