#include "platform/sql/sql_writer.h"

#include <QDate>
#include <QSet>

#include "platform/sql/sql_functions.h"
#include "platform/store/stored_value.h"

namespace trimlog {

namespace {

// Words that structure a statement. They end an expression and are written as they stand; every other word is a name.
const QSet<QString> &StructureWords() {
  static const QSet<QString> words = [] {
    const char *all =
        "ADD ALL ALTER AND AS ASC BETWEEN BY CASCADE CHECK COLLATE COLUMN CONSTRAINT CREATE CROSS DEFAULT DELETE DESC "
        "DISTINCT "
        "DROP EXISTS FOREIGN FROM GROUP HAVING IF IN INDEX INNER INSERT INTO IS JOIN KEY LEFT LIKE NOT NULL ON OR "
        "ORDER OUTER "
        "PRIMARY REFERENCES RENAME RESTRICT RIGHT SELECT SET TABLE TO UNION UNIQUE UPDATE VALUES VIEW WHERE";
    const QStringList list = QString::fromLatin1(all).split(QLatin1Char(' '));
    return QSet<QString>(list.begin(), list.end());
  }();
  return words;
}

bool IsSymbol(const SqlToken &token, char symbol) {
  return token.kind == TokenKind::Symbol && token.text.size() == 1 && token.text[0] == QLatin1Char(symbol);
}

}  // namespace

void RefuseSql(const QString &why) { throw Error(error_number::invalidSql, why); }

QString BracketedName(QStringView name) { return QLatin1Char('[') + name.toString() + QLatin1Char(']'); }

const StoredColumn *StoredTable::Find(QStringView column) const {
  for (const StoredColumn &candidate : columns) {
    if (column.compare(candidate.name, Qt::CaseInsensitive) == 0) return &candidate;
  }
  return nullptr;
}

SqlWriter::SqlWriter(const TokenizedSql &statement, TranslationContext &context, int firstSlot)
    : statement_(statement), context_(context), closing_(statement.tokens.size(), 0), firstSlot_(firstSlot) {
  std::vector<size_t> open;
  for (size_t i = 0; i < Size(); ++i) {
    if (IsSymbol(At(i), '(')) open.push_back(i);
    if (IsSymbol(At(i), ')')) {
      if (open.empty()) RefuseSql(QStringLiteral("A ')' has no '(' before it."));
      closing_[open.back()] = i;
      open.pop_back();
    }
  }
  if (!open.empty()) RefuseSql(QStringLiteral("A '(' has no ')' behind it."));
}

bool SqlWriter::IsName(size_t i) const {
  if (i >= Size()) return false;
  if (At(i).kind == TokenKind::Name) return true;
  return At(i).kind == TokenKind::Word && !StructureWords().contains(At(i).text.toString().toUpper());
}

size_t SqlWriter::Find(TokenRange range, const char *word) const { return FindAny(range, {word}); }

size_t SqlWriter::FindAny(TokenRange range, std::initializer_list<const char *> words) const {
  for (size_t i = range.begin; i < range.end; ++i) {
    for (const char *word : words) {
      if (Is(i, word)) return i;
    }
    if (Is(i, "(")) i = closing_[i];
  }
  return range.end;
}

std::vector<TokenRange> SqlWriter::Parts(TokenRange range) const {
  std::vector<TokenRange> parts;
  size_t from = range.begin;
  while (true) {
    const size_t comma = Find({from, range.end}, ",");
    parts.push_back({from, comma});
    if (comma == range.end) return parts;
    from = comma + 1;
  }
}

TokenRange SqlWriter::Bare(TokenRange range) const {
  while (!range.IsEmpty() && Is(range.begin, "(") && closing_[range.begin] == range.end - 1)
    range = {range.begin + 1, range.end - 1};
  return range;
}

void SqlWriter::Put(QStringView text) {
  if (!out.isEmpty()) out += QLatin1Char(' ');
  out += text;
}

QString SqlWriter::Written(TokenRange range) {
  QString kept = std::exchange(out, QString());
  Write(range);
  return std::exchange(out, std::move(kept));
}

bool SqlWriter::IsBoundary(size_t i) const {
  const SqlToken &token = At(i);
  if (token.kind == TokenKind::Symbol) {
    return IsSymbol(token, ',') || token.text[0] == QLatin1Char('=') || token.text[0] == QLatin1Char('<') ||
           token.text[0] == QLatin1Char('>');
  }
  if (token.kind != TokenKind::Word || token.Is(QLatin1StringView("NULL"))) return false;
  if (i > 0 && (Is(i - 1, ".") || Is(i - 1, "!"))) return false;
  // LEFT( and RIGHT( are functions, not joins, and ASC( is no order.
  if ((Is(i, "LEFT") || Is(i, "RIGHT") || Is(i, "ASC")) && Is(i + 1, "(")) return false;
  return StructureWords().contains(token.text.toString().toUpper());
}

// "IsPlanned = -1": true is any number but 0, and it stands in the file as 1.
bool SqlWriter::ComparesTruth(size_t i) const {
  if (!(Is(i, "=") || Is(i, "<>")) || i == 0 || !Is(i + 1, "-")) return false;
  if (i + 2 >= Size() || At(i + 2).kind != TokenKind::Number) return false;
  size_t name = i - 1;
  while (name > 0 && Is(name, ")")) --name;
  return IsName(name) && context_.IsBooleanColumn(At(name).text);
}

size_t SqlWriter::WriteTruth(size_t i) {
  Put(u"( -");
  WriteLiteral(i + 1);
  Put(u"<> 0 )");
  return i + 2;
}

void SqlWriter::Write(TokenRange range) {
  size_t i = range.begin;
  while (i < range.end) {
    if (IsBoundary(i)) {
      Put(At(i).text);
      i = ComparesTruth(i) ? WriteTruth(i + 1) : i + 1;
      continue;
    }
    size_t end = i;
    while (end < range.end && !IsBoundary(end)) end = Is(end, "(") ? closing_[end] + 1 : end + 1;
    WriteSegment({i, end});
    i = end;
  }
}

// `&` joins texts and binds looser than arithmetic, unlike SQLite's own operator, which also lets a Null swallow the
// rest.
void SqlWriter::WriteSegment(TokenRange segment) {
  size_t join = Find(segment, "&");
  if (join == segment.end) return WriteOperands(segment);
  Put(u"tl_concat(");
  size_t from = segment.begin;
  while (true) {
    if (from >= join) RefuseSql(QStringLiteral("The operator '&' lacks an operand."));
    WriteOperands({from, join});
    if (join == segment.end) break;
    Put(u",");
    from = join + 1;
    join = Find({from, segment.end}, "&");
  }
  Put(u")");
}

void SqlWriter::WriteOperands(TokenRange segment) {
  size_t i = segment.begin;
  while (i < segment.end) {
    const SqlToken &token = At(i);
    if (IsSymbol(token, '^') || IsSymbol(token, '\\') ||
        (i > segment.begin && i + 1 < segment.end && !Is(i - 1, ".") && Is(i, "Mod"))) {
      RefuseSql(QStringLiteral("The operator '%1' is not known to the store.").arg(token.text));
    }
    if (IsSymbol(token, '/')) {
      WriteDivision(i + 1, segment.end);
      i = OperandEnd(i + 1, segment.end);
      continue;
    }
    if ((IsSymbol(token, '+') || IsSymbol(token, '-')) &&
        ((i > segment.begin && At(i - 1).kind == TokenKind::Date) ||
         (i + 1 < segment.end && At(i + 1).kind == TokenKind::Date))) {
      RefuseSql(QStringLiteral("A date is moved by DateAdd and measured by DateDiff, not by '%1'.").arg(token.text));
    }
    i = WriteOperand(i, segment.end);
  }
}

size_t SqlWriter::OperandEnd(size_t i, size_t end) const {
  while (i < end && (IsSymbol(At(i), '-') || IsSymbol(At(i), '+'))) ++i;
  if (i >= end) RefuseSql(QStringLiteral("The operator '/' lacks an operand."));
  if (Is(i, "(")) return closing_[i] + 1;
  ++i;
  while (i < end && (Is(i, ".") || Is(i, "!"))) i += 2;
  if (i < end && Is(i, "(")) i = closing_[i] + 1;
  return std::min(i, end);
}

// Division is never a whole-number one, and by zero it is an error.
void SqlWriter::WriteDivision(size_t i, size_t end) {
  Put(u"* 1.0 / tl_nonzero(");
  WriteOperands({i, OperandEnd(i, end)});
  Put(u")");
}

size_t SqlWriter::WriteOperand(size_t i, size_t end) {
  const SqlToken &token = At(i);
  switch (token.kind) {
    case TokenKind::Symbol:
      if (IsSymbol(token, '(')) {
        const TokenRange inside{i + 1, closing_[i]};
        Put(u"(");
        if (Is(inside.begin, "SELECT")) {
          writeSelect(inside);
        } else {
          Write(inside);
        }
        Put(u")");
        return closing_[i] + 1;
      }
      if (IsSymbol(token, '!')) {
        Put(u".");
      } else {
        Put(token.text);
      }
      return i + 1;
    case TokenKind::Name:
      break;
    case TokenKind::Word:
      if (i + 1 < end && Is(i + 1, "(") && (i == 0 || !Is(i - 1, "."))) return WriteFunction(i);
      WriteWord(i);
      return i + 1;
    case TokenKind::Number:
    case TokenKind::Text:
    case TokenKind::Date:
    case TokenKind::Parameter:
      WriteLiteral(i);
      return i + 1;
  }
  if (schemaOfToken.contains(i)) {
    Put(BracketedName(schemaOfToken.value(i)));
    Put(u".");
  }
  Put(BracketedName(token.text));
  return i + 1;
}

void SqlWriter::WriteWord(size_t i) {
  const SqlToken &token = At(i);
  const bool qualified = i > 0 && (Is(i - 1, ".") || Is(i - 1, "!"));
  if (!qualified) {
    if (Is(i, "True")) return Put(u"1");
    if (Is(i, "False")) return Put(u"0");
    if (Is(i, "Null")) return Put(u"NULL");
  }
  if (schemaOfToken.contains(i)) {
    Put(BracketedName(schemaOfToken.value(i)));
    Put(u".");
  }
  Put(BracketedName(token.text));
}

void SqlWriter::WriteLiteral(size_t i) {
  const SqlToken &token = At(i);
  if (token.slot > 0) return Put(QStringLiteral("?%1").arg(firstSlot_ + token.slot));
  const QVariant value = ToBound(Literal(i));
  if (value.typeId() == QMetaType::QString) {
    QString text = value.toString();
    if (text.contains(QChar(0))) RefuseSql(QStringLiteral("A definition cannot hold the character 0."));
    Put(QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1StringView("''")) + QLatin1Char('\''));
  } else {
    Put(token.text);
  }
}

size_t SqlWriter::WriteFunction(size_t i) {
  const QStringView name = At(i).text;
  const TokenRange inside{i + 2, closing_[i + 1]};
  const size_t behind = closing_[i + 1] + 1;
  std::vector<TokenRange> arguments;
  if (!inside.IsEmpty()) arguments = Parts(inside);

  if (Is(i, "Format")) {
    const bool standard =
        arguments.size() == 2 && arguments[1].end - arguments[1].begin == 1 &&
        At(arguments[1].begin).kind == TokenKind::Text &&
        Literal(arguments[1].begin).toString().compare(QLatin1StringView("Standard"), Qt::CaseInsensitive) == 0;
    if (!standard) RefuseSql(QStringLiteral("Format in a statement knows the format \"Standard\" only."));
    arguments.pop_back();
    Put(u"tl_standard(");
    Write(arguments[0]);
    Put(u")");
    return behind;
  }
  if (Is(i, "IsNull") && arguments.size() == 1) {
    Put(u"((");
    Write(arguments[0]);
    Put(u") IS NULL)");
    return behind;
  }
  const SqlFunction *function = FindSqlFunction(name);
  if (function == nullptr) RefuseSql(QStringLiteral("Undefined function '%1' in the statement.").arg(name));
  const int count = static_cast<int>(arguments.size());
  if (count < function->minimumArguments || count > function->maximumArguments) {
    RefuseSql(QStringLiteral("Wrong number of arguments for the function '%1'.").arg(name));
  }
  Put(QString::fromLatin1(function->emitted) + QLatin1Char('('));
  Write(inside);
  Put(u")");
  return behind;
}

}  // namespace trimlog
