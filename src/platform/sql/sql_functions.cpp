#include "platform/sql/sql_functions.h"

#include <sqlite3.h>

#include <QDate>
#include <QHash>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "platform/sql/sql_wildcards.h"
#include "platform/store/stored_value.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

// The arguments of a call and its answer. Null in any argument that a function reads gives Null.
class Call {
 public:
  Call(sqlite3_context *context, int count, sqlite3_value **values)
      : context_(context), count_(count), values_(values) {}

  int Count() const { return count_; }
  bool IsNull(int i) const { return sqlite3_value_type(values_[i]) == SQLITE_NULL; }
  bool AnyNull() const {
    for (int i = 0; i < count_; ++i)
      if (IsNull(i)) return true;
    return false;
  }
  QVariant Value(int i) const {
    switch (sqlite3_value_type(values_[i])) {
      case SQLITE_INTEGER:
        return qint64{sqlite3_value_int64(values_[i])};
      case SQLITE_FLOAT:
        return sqlite3_value_double(values_[i]);
      case SQLITE_NULL:
        return {};
      default:
        break;
    }
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(values_[i]));
    return QString::fromUtf8(text, sqlite3_value_bytes(values_[i]));
  }
  QString Text(int i) const { return ValueText(Value(i)); }
  /// The bytes of a text of ASCII letters alone, as nearly all are: what searches thousands of rows reads them in
  /// place.
  std::optional<std::string_view> AsciiText(int i) const {
    if (sqlite3_value_type(values_[i]) != SQLITE_TEXT) return {};
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(values_[i]));
    const std::string_view bytes(text, static_cast<std::size_t>(sqlite3_value_bytes(values_[i])));
    unsigned char all = 0;  // one pass without a way out is many letters at a time
    for (const char c : bytes) all |= static_cast<unsigned char>(c);
    return all < 0x80 ? std::optional(bytes) : std::nullopt;
  }
  void AnswerBytes(std::string_view bytes) {
    sqlite3_result_text64(context_, bytes.data(), bytes.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }
  double Number(int i) const {
    return ToStored(Value(i), {ColumnType::Double, 0}, QStringLiteral("a function")).toDouble();
  }
  qint64 Whole(int i) const {
    if (sqlite3_value_type(values_[i]) == SQLITE_INTEGER) return sqlite3_value_int64(values_[i]);
    return static_cast<qint64>(std::nearbyint(Number(i)));
  }
  QDate Date(int i) const {
    return QDate::fromString(ToStored(Value(i), {ColumnType::Date, 0}, QStringLiteral("a function")).toString(),
                             Qt::ISODate);
  }
  void AnswerWhole(qint64 number) { sqlite3_result_int64(context_, number); }
  void Answer(const QVariant &value) {
    const QVariant bound = ToBound(value);
    switch (bound.typeId()) {
      case QMetaType::UnknownType:
        return sqlite3_result_null(context_);
      case QMetaType::LongLong:
        return sqlite3_result_int64(context_, bound.toLongLong());
      case QMetaType::Double:
        return sqlite3_result_double(context_, bound.toDouble());
      default:
        break;
    }
    const QByteArray utf8 = bound.toString().toUtf8();
    sqlite3_result_text64(context_, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                          SQLITE_UTF8);
  }
  void AnswerFirst() { sqlite3_result_value(context_, values_[0]); }

 private:
  sqlite3_context *context_;
  int count_;
  sqlite3_value **values_;
};

using Function = void (*)(Call &);

struct NamedFunction {
  const char *name;
  Function function;
  bool seesNull = false;
};

char AsciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
char AsciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

/// Answers the first text letter by letter when it is ASCII; false when it is not.
bool AnswerAscii(Call &call, char (*change)(char)) {
  const auto text = call.AsciiText(0);
  if (!text) return false;
  std::array<char, 512> room;  // names and descriptions fit; the rest takes the way of all letters
  if (text->size() > room.size()) return false;
  std::transform(text->begin(), text->end(), room.begin(), change);
  call.AnswerBytes({room.data(), text->size()});
  return true;
}

void InStr(Call &call) {
  const int first = call.Count() - 2;
  const qint64 start = first > 0 ? call.Whole(0) : 1;
  if (start < 1) throw Error(error_number::typeMismatch, QStringLiteral("InStr starts at 1 or above."));
  const auto ascii = call.AsciiText(first);
  const auto sought = call.AsciiText(first + 1);
  if (ascii && sought && static_cast<std::size_t>(start) <= ascii->size()) {
    const auto found = std::search(ascii->begin() + (start - 1), ascii->end(), sought->begin(), sought->end(),
                                   [](char a, char b) { return AsciiLower(a) == AsciiLower(b); });
    const bool none = found == ascii->end() && !sought->empty();
    return call.AnswerWhole(none ? 0 : found - ascii->begin() + 1);
  }
  const QString text = call.Text(first);
  if (start > text.size()) return call.Answer(0);
  call.Answer(static_cast<int>(text.indexOf(call.Text(first + 1), start - 1, Qt::CaseInsensitive)) + 1);
}

qsizetype Length(Call &call, int i) {
  const qint64 length = call.Whole(i);
  if (length < 0) throw Error(error_number::typeMismatch, QStringLiteral("A length cannot be negative."));
  return length;
}

void Mid(Call &call) {
  const qint64 start = call.Whole(1);
  if (start < 1) throw Error(error_number::typeMismatch, QStringLiteral("Mid starts at 1 or above."));
  call.Answer(call.Text(0).mid(start - 1, call.Count() > 2 ? Length(call, 2) : -1));
}

void Standard(Call &call) {
  bool ok = true;
  const QVariant value = call.Value(0);
  if (value.typeId() == QMetaType::QString) value.toString().trimmed().toDouble(&ok);
  // What is no number passes through, and the column that it is meant for refuses it.
  call.Answer(ok ? QVariant(RoundHalfAway(call.Number(0), 2)) : value);
}

void Concat(Call &call) {
  QString all;
  bool anything = false;
  for (int i = 0; i < call.Count(); ++i) {
    if (call.IsNull(i)) continue;
    anything = true;
    all += call.Text(i);
  }
  call.Answer(anything ? QVariant(all) : QVariant());
}

void RoundEven(Call &call) {
  const double scale = std::pow(10.0, call.Count() > 1 ? static_cast<double>(call.Whole(1)) : 0.0);
  call.Answer(std::nearbyint(call.Number(0) * scale) / scale);
}

void NonZero(Call &call) {
  const double divisor = call.Number(0);
  if (divisor == 0) throw Error(error_number::divisionByZero, QStringLiteral("Division by zero."));
  call.Answer(divisor);
}

const NamedFunction functions[] = {
    {"tl_cint", [](Call &c) { c.Answer(Whole(c.Number(0))); }},
    {"tl_clng", [](Call &c) { c.Answer(WholeLong(c.Number(0))); }},
    {"tl_cstr", [](Call &c) { c.Answer(c.Text(0)); }},
    {"tl_cdbl", [](Call &c) { c.Answer(c.Number(0)); }},
    {"tl_csng",
     [](Call &c) {
       c.Answer(ToStored(c.Value(0), {ColumnType::Single, 0}, QStringLiteral("CSng")));
     }},
    {"tl_cdate", [](Call &c) { c.Answer(c.Date(0)); }},
    {"tl_val", [](Call &c) { c.Answer(Val(c.Text(0))); }},
    {"tl_isnumeric", [](Call &c) { c.Answer(!c.IsNull(0) && IsNumeric(c.Text(0))); }, true},
    {"tl_instr", InStr},
    {"tl_lcase",
     [](Call &c) {
       if (!AnswerAscii(c, AsciiLower)) c.Answer(c.Text(0).toLower());
     }},
    {"tl_ucase",
     [](Call &c) {
       if (!AnswerAscii(c, AsciiUpper)) c.Answer(c.Text(0).toUpper());
     }},
    {"tl_left", [](Call &c) { c.Answer(c.Text(0).left(Length(c, 1))); }},
    {"tl_right", [](Call &c) { c.Answer(c.Text(0).right(Length(c, 1))); }},
    {"tl_mid", Mid},
    {"tl_len", [](Call &c) { c.Answer(qint64{c.Text(0).size()}); }},
    {"tl_trim", [](Call &c) { c.Answer(c.Text(0).trimmed()); }},
    {"tl_chr", [](Call &c) { c.Answer(QString(QChar(static_cast<char16_t>(c.Whole(0))))); }},
    {"tl_asc",
     [](Call &c) {
       const QString text = c.Text(0);
       if (text.isEmpty()) throw Error(error_number::typeMismatch, QStringLiteral("Asc needs a character."));
       c.Answer(int{text[0].unicode()});
     }},
    {"tl_int", [](Call &c) { c.Answer(std::floor(c.Number(0))); }},
    {"tl_fix", [](Call &c) { c.Answer(std::trunc(c.Number(0))); }},
    {"tl_round", RoundEven},
    {"tl_year", [](Call &c) { c.Answer(c.Date(0).year()); }},
    {"tl_month", [](Call &c) { c.Answer(c.Date(0).month()); }},
    {"tl_day", [](Call &c) { c.Answer(c.Date(0).day()); }},
    {"tl_weekday", [](Call &c) { c.Answer(c.Date(0).dayOfWeek() % 7 + 1); }},
    {"tl_dateadd", [](Call &c) { c.Answer(DateAdd(c.Text(0), static_cast<int>(c.Whole(1)), c.Date(2))); }},
    {"tl_datediff", [](Call &c) { c.Answer(DateDiff(c.Text(0), c.Date(1), c.Date(2))); }},
    {"tl_datepart", [](Call &c) { c.Answer(DatePart(c.Text(0), c.Date(1))); }},
    {"tl_standard", Standard},
    {"tl_concat", Concat, true},
    {"tl_nonzero", NonZero},
    // SQLite hands LIKE its pattern first.
    {"like", [](Call &c) { c.Answer(MatchesWildcards(c.Text(1), c.Text(0))); }},
};

constexpr std::array conversions = {
    "tl_to_boolean", "tl_to_byte",     "tl_to_integer", "tl_to_long", "tl_to_single",
    "tl_to_double",  "tl_to_decimal2", "tl_to_date",    "tl_to_text", "tl_to_memo",
};

// What SQLite keeps beside a registered function.
struct Registration {
  FunctionFailure *failure;
  const NamedFunction *function;
  ColumnType type;
};

void Answer(sqlite3_context *context, const std::function<void()> &work) {
  const auto *registration = static_cast<Registration *>(sqlite3_user_data(context));
  try {
    work();
  } catch (const Error &error) {
    registration->failure->error = error;
    sqlite3_result_error(context, error.what(), -1);
  } catch (const std::exception &error) {
    sqlite3_result_error(context, error.what(), -1);
  }
}

void CallFunction(sqlite3_context *context, int count, sqlite3_value **values) {
  const auto *registration = static_cast<Registration *>(sqlite3_user_data(context));
  Call call(context, count, values);
  if (!registration->function->seesNull && call.AnyNull()) return sqlite3_result_null(context);
  Answer(context, [&] { registration->function->function(call); });
}

void CallConversion(sqlite3_context *context, int count, sqlite3_value **values) {
  const auto *registration = static_cast<Registration *>(sqlite3_user_data(context));
  Call call(context, count, values);
  const int type = sqlite3_value_type(values[0]);
  const bool text = registration->type == ColumnType::Memo;
  if (text && (type == SQLITE_TEXT || type == SQLITE_NULL)) return call.AnswerFirst();
  Answer(context, [&] {
    const int length = count > 2 ? static_cast<int>(sqlite3_value_int(values[2])) : 0;
    call.Answer(ToStored(call.Value(0), {registration->type, length}, call.Text(1)));
  });
}

// ASCII is compared as SQLite's own NOCASE does; only what goes beyond it needs the letters of Unicode.
int CompareWithoutCase(void *, int leftSize, const void *left, int rightSize, const void *right) {
  const auto *a = static_cast<const unsigned char *>(left);
  const auto *b = static_cast<const unsigned char *>(right);
  const auto fold = [](unsigned char c) -> int { return c >= 'A' && c <= 'Z' ? c + 32 : c; };
  const int shared = std::min(leftSize, rightSize);
  for (int i = 0; i < shared; ++i) {
    if ((a[i] | b[i]) & 0x80) {
      return QString::fromUtf8(static_cast<const char *>(left), leftSize)
          .compare(QString::fromUtf8(static_cast<const char *>(right), rightSize), Qt::CaseInsensitive);
    }
    const int difference = fold(a[i]) - fold(b[i]);
    if (difference != 0) return difference;
  }
  return leftSize - rightSize;
}

void Register(sqlite3 *connection, const char *name, int arguments, Registration registration,
              void (*call)(sqlite3_context *, int, sqlite3_value **)) {
  const int status =
      sqlite3_create_function_v2(connection, name, arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                                 new Registration(registration), call, nullptr, nullptr,
                                 [](void *kept) { delete static_cast<Registration *>(kept); });
  if (status != SQLITE_OK) throw Error(error_number::other, QString::fromUtf8(sqlite3_errmsg(connection)));
}

}  // namespace

const SqlFunction *FindSqlFunction(QStringView name) {
  static const QHash<QString, SqlFunction> known = {
      {QStringLiteral("cint"), {"tl_cint", 1, 1, ColumnType::Long}},
      {QStringLiteral("clng"), {"tl_clng", 1, 1, ColumnType::Long}},
      {QStringLiteral("cstr"), {"tl_cstr", 1, 1, ColumnType::Memo}},
      {QStringLiteral("cdbl"), {"tl_cdbl", 1, 1, ColumnType::Double}},
      {QStringLiteral("csng"), {"tl_csng", 1, 1, ColumnType::Double}},
      {QStringLiteral("cdate"), {"tl_cdate", 1, 1, ColumnType::Date}},
      {QStringLiteral("val"), {"tl_val", 1, 1, ColumnType::Double}},
      {QStringLiteral("isnumeric"), {"tl_isnumeric", 1, 1, ColumnType::Boolean}},
      {QStringLiteral("instr"), {"tl_instr", 2, 3, ColumnType::Long}},
      {QStringLiteral("sortkey"), {"lower", 1, 1, ColumnType::Memo}},
      {QStringLiteral("lcase"), {"tl_lcase", 1, 1, ColumnType::Memo}},
      {QStringLiteral("ucase"), {"tl_ucase", 1, 1, ColumnType::Memo}},
      {QStringLiteral("left"), {"tl_left", 2, 2, ColumnType::Memo}},
      {QStringLiteral("right"), {"tl_right", 2, 2, ColumnType::Memo}},
      {QStringLiteral("mid"), {"tl_mid", 2, 3, ColumnType::Memo}},
      {QStringLiteral("len"), {"tl_len", 1, 1, ColumnType::Long}},
      {QStringLiteral("trim"), {"tl_trim", 1, 1, ColumnType::Memo}},
      {QStringLiteral("chr"), {"tl_chr", 1, 1, ColumnType::Memo}},
      {QStringLiteral("asc"), {"tl_asc", 1, 1, ColumnType::Long}},
      {QStringLiteral("int"), {"tl_int", 1, 1, ColumnType::Double}},
      {QStringLiteral("fix"), {"tl_fix", 1, 1, ColumnType::Double}},
      {QStringLiteral("round"), {"tl_round", 1, 2, ColumnType::Double}},
      {QStringLiteral("abs"), {"abs", 1, 1, {}, true}},
      {QStringLiteral("sgn"), {"sign", 1, 1, ColumnType::Long}},
      {QStringLiteral("iif"), {"iif", 3, 3, {}}},
      {QStringLiteral("nz"), {"ifnull", 2, 2, {}, true}},
      {QStringLiteral("year"), {"tl_year", 1, 1, ColumnType::Long}},
      {QStringLiteral("month"), {"tl_month", 1, 1, ColumnType::Long}},
      {QStringLiteral("day"), {"tl_day", 1, 1, ColumnType::Long}},
      {QStringLiteral("weekday"), {"tl_weekday", 1, 1, ColumnType::Long}},
      {QStringLiteral("dateadd"), {"tl_dateadd", 3, 3, ColumnType::Date}},
      {QStringLiteral("datediff"), {"tl_datediff", 3, 3, ColumnType::Long}},
      {QStringLiteral("datepart"), {"tl_datepart", 2, 2, ColumnType::Long}},
      {QStringLiteral("count"), {"count", 1, 1, ColumnType::Long}},
      {QStringLiteral("sum"), {"sum", 1, 1, ColumnType::Double}},
      {QStringLiteral("avg"), {"avg", 1, 1, ColumnType::Double}},
      {QStringLiteral("max"), {"max", 1, 1, {}, true}},
      {QStringLiteral("min"), {"min", 1, 1, {}, true}},
  };
  const auto found = known.constFind(name.toString().toLower());
  return found == known.constEnd() ? nullptr : &*found;
}

void RegisterSqlFunctions(sqlite3 *connection, FunctionFailure &failure) {
  for (const NamedFunction &function : functions) {
    const int arguments = qstrcmp(function.name, "like") == 0 ? 2 : -1;
    Register(connection, function.name, arguments, {&failure, &function, ColumnType::Memo}, CallFunction);
  }
  for (size_t i = 0; i < conversions.size(); ++i) {
    Register(connection, conversions[i], -1, {&failure, nullptr, static_cast<ColumnType>(i)}, CallConversion);
  }
  // Under the built-in's name, so that the file's own declarations stay readable by every SQLite tool.
  if (sqlite3_create_collation(connection, "NOCASE", SQLITE_UTF8, nullptr, CompareWithoutCase) != SQLITE_OK) {
    throw Error(error_number::other, QString::fromUtf8(sqlite3_errmsg(connection)));
  }
}

const char *ConversionFunction(ColumnType type) { return conversions[static_cast<size_t>(type)]; }

}  // namespace trimlog
