#include "platform/sql/sql_definition.h"

#include "platform/store/column_types.h"

namespace trimlog {

namespace {

void Put(SqlWriter &writer, const QString &text) {
  if (!writer.out.isEmpty()) writer.out += QLatin1Char(' ');
  writer.out += text;
}

// Words of a column's or a table's constraints; whatever else stands there is a name or a value.
bool IsConstraintWord(const SqlWriter &writer, size_t i) {
  for (const char *word :
       {"NO", "ACTION", "NULL", "NOCASE", "BINARY", "AUTOINCREMENT", "DEFERRABLE", "INITIALLY", "DEFERRED"}) {
    if (writer.Is(i, word)) return true;
  }
  return false;
}

void WriteConstraints(SqlWriter &writer, TokenRange range) {
  for (size_t i = range.begin; i < range.end; ++i) {
    const SqlToken &token = writer.At(i);
    // "table (columns)" behind REFERENCES is no call of a function.
    if (token.kind == TokenKind::Symbol || IsConstraintWord(writer, i)) {
      Put(writer, token.text.toString());
    } else {
      writer.Write({i, i + 1});
    }
  }
}

void WriteColumn(SqlWriter &writer, TokenRange range) {
  if (!writer.IsName(range.begin) || range.end - range.begin < 2) {
    RefuseSql(QStringLiteral("A column needs a name and a type."));
  }
  QByteArray type = writer.At(range.begin + 1).text.toUtf8();
  size_t rest = range.begin + 2;
  if (rest < range.end && writer.Is(rest, "(")) {
    if (writer.Closing(rest) != rest + 2) RefuseSql(QStringLiteral("A text column takes one length."));
    type += '(' + writer.At(rest + 1).text.toUtf8() + ')';
    rest += 3;
  }
  const auto declared = ParseDeclaredType(type);
  if (!declared)
    RefuseSql(QStringLiteral("The column type '%1' is not known to the store.").arg(QString::fromUtf8(type)));
  Put(writer, ColumnDeclaration(writer.At(range.begin).text.toString(), declared->type, declared->length));
  // What the declaration has just said is not said twice.
  if (declared->type == ColumnType::Boolean && writer.Is(rest, "NOT") && writer.Is(rest + 1, "NULL")) rest += 2;
  if (declared->type == ColumnType::Boolean && writer.Is(rest, "DEFAULT")) rest += 2;
  if (writer.Is(rest, "COLLATE") && rest + 1 < range.end) rest += 2;
  if (rest < range.end) WriteConstraints(writer, {rest, range.end});
}

void WriteTable(SqlWriter &writer, size_t name) {
  const size_t open = name + 1;
  if (!writer.IsName(name) || !writer.Is(open, "("))
    RefuseSql(QStringLiteral("CREATE TABLE needs a name and columns."));
  if (writer.Closing(open) + 1 != writer.Size())
    RefuseSql(QStringLiteral("Nothing may follow the columns of a table."));
  writer.Write({0, name});
  Put(writer, BracketedName(writer.At(name).text) + QLatin1StringView(" ("));
  bool first = true;
  for (const TokenRange part : writer.Parts({open + 1, writer.Closing(open)})) {
    if (!first) writer.out += QLatin1Char(',');
    first = false;
    bool constraint = false;
    for (const char *word : {"CONSTRAINT", "PRIMARY", "FOREIGN", "UNIQUE"})
      constraint = constraint || writer.Is(part.begin, word);
    if (constraint) {
      WriteConstraints(writer, part);
    } else {
      WriteColumn(writer, part);
    }
  }
  Put(writer, QStringLiteral(")"));
}

void WriteAlteration(SqlWriter &writer) {
  const bool adds = writer.Is(3, "ADD");
  if (!writer.Is(1, "TABLE") || !writer.IsName(2) || !(adds || writer.Is(3, "DROP") || writer.Is(3, "RENAME"))) {
    RefuseSql(QStringLiteral("ALTER must say TABLE, its name, and ADD, DROP or RENAME."));
  }
  if (!adds) return WriteConstraints(writer, {0, writer.Size()});
  writer.Write({0, 3});
  Put(writer, QStringLiteral("ADD COLUMN"));
  WriteColumn(writer, {writer.Is(4, "COLUMN") ? size_t{5} : size_t{4}, writer.Size()});
}

}  // namespace

void WriteDefinition(SqlWriter &writer) {
  if (writer.Is(0, "ALTER")) return WriteAlteration(writer);
  if (writer.Is(0, "CREATE") && writer.Is(1, "TABLE")) {
    return WriteTable(writer, writer.Is(2, "IF") ? 5 : 2);
  }
  if (writer.Is(0, "CREATE") && writer.Is(1, "VIEW")) {
    const size_t as = writer.Find({0, writer.Size()}, "AS");
    if (!writer.Is(as + 1, "SELECT")) RefuseSql(QStringLiteral("CREATE VIEW needs AS and a SELECT."));
    WriteConstraints(writer, {0, as + 1});
    return writer.writeSelect({as + 1, writer.Size()});
  }
  const bool index = writer.Is(1, "INDEX") || (writer.Is(1, "UNIQUE") && writer.Is(2, "INDEX"));
  const bool drop = writer.Is(0, "DROP") && (writer.Is(1, "TABLE") || writer.Is(1, "VIEW") || writer.Is(1, "INDEX"));
  if (!drop && !(writer.Is(0, "CREATE") && index)) {
    RefuseSql(QStringLiteral("'%1 %2' is not known to the store.")
                  .arg(writer.At(0).text, writer.Size() > 1 ? writer.At(1).text : QStringView()));
  }
  WriteConstraints(writer, {0, writer.Size()});
}

}  // namespace trimlog
