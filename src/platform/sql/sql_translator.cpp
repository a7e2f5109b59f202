#include "platform/sql/sql_translator.h"

#include "platform/sql/sql_definition.h"
#include "platform/sql/sql_select.h"

namespace trimlog {

namespace {

class Translator {
 public:
  Translator(const TokenizedSql &statement, TranslationContext &context)
      : writer_(statement, context), select_(writer_, result_), all_{0, writer_.Size()} {
    writer_.writeSelect = [this](TokenRange range) { select_.Write(range); };
  }

  TranslatedSql Run() {
    if (all_.IsEmpty()) RefuseSql(QStringLiteral("The statement is empty."));
    if (writer_.Is(0, "SELECT")) {
      select_.Write(all_, true);
      if (!result_.intoTable.isEmpty()) result_.kind = TranslatedSql::Kind::SelectInto;
    } else if (writer_.Is(0, "INSERT")) {
      Insert();
    } else if (writer_.Is(0, "UPDATE")) {
      Update();
    } else if (writer_.Is(0, "DELETE")) {
      Delete();
    } else if (writer_.Is(0, "CREATE") || writer_.Is(0, "DROP") || writer_.Is(0, "ALTER")) {
      result_.kind = TranslatedSql::Kind::Definition;
      WriteDefinition(writer_);
    } else {
      RefuseSql(QStringLiteral("A statement that begins with '%1' is not known to the store.").arg(writer_.At(0).text));
    }
    result_.sql = std::move(writer_.out);
    return std::move(result_);
  }

 private:
  void Put(const QString &text) {
    if (!writer_.out.isEmpty()) writer_.out += QLatin1Char(' ');
    writer_.out += text;
  }

  const StoredTable &TableNamed(QStringView name, const QString &schema = {}) {
    const StoredTable *table = writer_.Context().FindTable(schema, name.toString());
    if (table == nullptr) {
      throw Error(error_number::unknownTable, QStringLiteral("The store cannot find the table '%1'.").arg(name));
    }
    return *table;
  }

  static const StoredColumn &ColumnNamed(const StoredTable &table, QStringView name) {
    const StoredColumn *column = table.Find(name);
    if (column == nullptr) {
      throw Error(error_number::unknownColumn,
                  QStringLiteral("The table '%1' has no column '%2'.").arg(table.name, name));
    }
    return *column;
  }

  void Insert();
  void Update();
  void Delete();
  QString Assignments(TokenRange range, const SqlFrom &from, QString &target);
  QString Condition(TokenRange where, const SqlFrom &from);

  TranslatedSql result_;
  SqlWriter writer_;
  SelectWriter select_;
  TokenRange all_;
};

void Translator::Insert() {
  result_.kind = TranslatedSql::Kind::Change;
  if (!writer_.Is(1, "INTO") || !writer_.IsName(2))
    RefuseSql(QStringLiteral("INSERT must be followed by INTO and a table."));
  size_t i = 3;
  QString schema;
  TokenRange names;
  while (writer_.Is(i, "IN") || writer_.Is(i, "(")) {
    if (writer_.Is(i, "(")) {
      names = {i + 1, writer_.Closing(i)};
      i = writer_.Closing(i) + 1;
      continue;
    }
    if (i + 1 >= all_.end || writer_.At(i + 1).kind != TokenKind::Text)
      RefuseSql(QStringLiteral("IN must name a side file."));
    schema = writer_.Context().OpenSideFile(writer_.Literal(i + 1).toString(), true);
    result_.usesSideFile = true;
    i += 2;
  }
  const StoredTable &table = TableNamed(writer_.At(2).text, schema);
  std::vector<const StoredColumn *> targets;
  if (names.IsEmpty()) {
    for (const StoredColumn &column : table.columns) targets.push_back(&column);
  } else {
    for (const TokenRange part : writer_.Parts(names)) {
      if (part.IsEmpty()) RefuseSql(QStringLiteral("The INSERT lists an empty name."));
      targets.push_back(&ColumnNamed(table, writer_.At(part.end - 1).text));
    }
  }
  QStringList columns, converted;
  for (size_t n = 0; n < targets.size(); ++n) {
    columns.append(BracketedName(targets[n]->name));
    converted.append(ConvertedValue(QStringLiteral("v.c%1").arg(n), *targets[n]));
  }
  const QString place = schema.isEmpty() ? QString() : BracketedName(schema) + QLatin1Char('.');
  Put(QStringLiteral("INSERT INTO %1%2 (%3)")
          .arg(place, BracketedName(table.name), columns.join(QLatin1StringView(", "))));
  TokenRange source{i, all_.end};
  if (writer_.Is(i, "SELECT") && select_.CanConvertEach(source, targets.size()))
    return select_.WriteConverted(source, targets);

  QStringList numbered;
  for (size_t n = 0; n < targets.size(); ++n) numbered.append(QStringLiteral("c%1").arg(n));
  Put(QStringLiteral("WITH v(%1) AS (").arg(numbered.join(QLatin1Char(','))));
  if (writer_.Is(i, "VALUES")) {
    writer_.Write(source);
  } else {
    select_.Write(source);
  }
  Put(QStringLiteral(") SELECT %1 FROM v").arg(converted.join(QLatin1StringView(", "))));
}

QString Translator::Assignments(TokenRange range, const SqlFrom &from, QString &target) {
  QStringList assignments;
  for (const TokenRange part : writer_.Parts(range)) {
    const size_t equals = writer_.Find(part, "=");
    if (equals == part.end || equals == part.begin || equals + 1 == part.end)
      RefuseSql(QStringLiteral("SET must say field = value."));
    QString source = from.sources[0].name;
    if (equals - part.begin == 3) {
      const SqlSource *named = from.Find(writer_.At(part.begin).text);
      if (named == nullptr) {
        throw Error(error_number::unknownTable,
                    QStringLiteral("The UPDATE does not name the table '%1'.").arg(writer_.At(part.begin).text));
      }
      source = named->name;
    }
    if (!target.isEmpty() && target != source)
      RefuseSql(QStringLiteral("An UPDATE can set the fields of one table only."));
    target = source;
    const StoredColumn &column = ColumnNamed(TableNamed(from.Find(target)->table), writer_.At(equals - 1).text);
    assignments.append(BracketedName(column.name) + QLatin1StringView(" = ") +
                       ConvertedValue(writer_.Written({equals + 1, part.end}), column));
  }
  return assignments.join(QLatin1StringView(", "));
}

QString Translator::Condition(TokenRange where, const SqlFrom &from) {
  QStringList conditions;
  for (const TokenRange condition : from.conditions)
    conditions.append(QLatin1Char('(') + writer_.Written(condition) + QLatin1Char(')'));
  if (!where.IsEmpty())
    conditions.append(QLatin1Char('(') + writer_.Written({where.begin + 1, where.end}) + QLatin1Char(')'));
  return conditions.isEmpty() ? QString() : QLatin1StringView("WHERE ") + conditions.join(QLatin1StringView(" AND "));
}

void Translator::Update() {
  result_.kind = TranslatedSql::Kind::Change;
  const size_t set = writer_.Find(all_, "SET");
  if (set == all_.end) RefuseSql(QStringLiteral("The UPDATE has no SET."));
  const SqlFrom from = ReadFrom(writer_, {1, set});
  const size_t whereAt = writer_.Find({set, all_.end}, "WHERE");
  QString target;
  const QString assignments = Assignments({set + 1, whereAt}, from, target);
  if (from.hasOuterJoin)
    RefuseSql(QStringLiteral("An UPDATE through LEFT JOIN or RIGHT JOIN is not known to the store."));
  const auto named = [](const SqlSource &source) {
    if (source.table.isEmpty()) RefuseSql(QStringLiteral("An UPDATE takes tables, not a SELECT."));
    return BracketedName(source.table) +
           (source.name == source.table ? QString() : QLatin1StringView(" AS ") + BracketedName(source.name));
  };
  QStringList others;
  for (const SqlSource &source : from.sources) {
    if (source.name != target) others.append(named(source));
  }
  TableNamed(from.Find(target)->table);
  Put(QStringLiteral("UPDATE %1 SET %2").arg(named(*from.Find(target)), assignments));
  if (!others.isEmpty()) Put(QLatin1StringView("FROM ") + others.join(QLatin1StringView(", ")));
  Put(Condition({whereAt, all_.end}, from));
}

void Translator::Delete() {
  result_.kind = TranslatedSql::Kind::Change;
  const size_t fromAt = writer_.Find(all_, "FROM");
  if (fromAt == all_.end) RefuseSql(QStringLiteral("The DELETE has no FROM."));
  const size_t whereAt = writer_.Find({fromAt, all_.end}, "WHERE");
  const SqlFrom from = ReadFrom(writer_, {fromAt + 1, whereAt});
  const SqlSource *target = &from.sources[0];
  // "t.*, t.Field" names the table; the fields do not matter, since rows are deleted whole.
  if (fromAt > 1 && !writer_.Is(1, "*")) {
    const size_t first = writer_.Is(1, "DISTINCTROW") ? 2 : 1;
    target = from.Find(writer_.At(first).text);
    if (target == nullptr || !writer_.Is(first + 1, ".")) {
      RefuseSql(QStringLiteral("The DELETE names '%1', which is no table of its FROM.").arg(writer_.At(first).text));
    }
  }
  TableNamed(target->table);
  const QString name = BracketedName(target->name);
  const QString alias = target->name == target->table ? QString() : QLatin1StringView(" AS ") + name;
  Put(QLatin1StringView("DELETE FROM ") + BracketedName(target->table) + alias);
  if (from.sources.size() == 1) return Put(Condition({whereAt, all_.end}, {}));
  Put(QStringLiteral("WHERE rowid IN (SELECT %1.rowid FROM").arg(name));
  writer_.Write({fromAt + 1, all_.end});
  Put(QStringLiteral(")"));
}

}  // namespace

TranslatedSql Translate(const TokenizedSql &statement, TranslationContext &context) {
  return Translator(statement, context).Run();
}

QString TranslateCondition(const TokenizedSql &condition, TranslationContext &context, int firstSlot) {
  SqlWriter writer(condition, context, firstSlot);
  TranslatedSql ignored;
  SelectWriter select(writer, ignored);
  writer.writeSelect = [&select](TokenRange range) { select.Write(range); };
  return writer.Written({0, writer.Size()});
}

}  // namespace trimlog
