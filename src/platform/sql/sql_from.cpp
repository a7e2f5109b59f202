#include "platform/sql/sql_from.h"

namespace trimlog {

namespace {

class FromReader {
 public:
  FromReader(const SqlWriter &writer, SqlFrom &from) : writer_(writer), from_(from) {}

  void Read(TokenRange range) {
    size_t i = ReadTerm(range.begin, range.end);
    while (i < range.end) {
      if (writer_.Is(i, ",")) {
        i = ReadTerm(i + 1, range.end);
        continue;
      }
      while (i < range.end && !writer_.Is(i, "JOIN")) {
        if (writer_.Is(i, "LEFT") || writer_.Is(i, "RIGHT")) from_.hasOuterJoin = true;
        if (!writer_.Is(i, "INNER") && !writer_.Is(i, "LEFT") && !writer_.Is(i, "RIGHT") && !writer_.Is(i, "OUTER"))
          Refuse(i);
        ++i;
      }
      if (i >= range.end) Refuse(range.end - 1);
      i = ReadTerm(i + 1, range.end);
      if (writer_.Is(i, "ON") && i < range.end) {
        const size_t end = writer_.FindAny({i + 1, range.end}, {"INNER", "LEFT", "RIGHT", "JOIN", ","});
        from_.conditions.push_back({i + 1, end});
        i = end;
      }
    }
  }

 private:
  [[noreturn]] void Refuse(size_t i) const {
    RefuseSql(QStringLiteral("Syntax error in the FROM clause at '%1'.")
                  .arg(i < writer_.Size() ? writer_.At(i).text : QStringView()));
  }

  size_t ReadTerm(size_t i, size_t end) {
    if (i >= end) RefuseSql(QStringLiteral("The FROM clause names no table."));
    SqlSource source;
    source.token = i;
    if (writer_.Is(i, "(")) {
      const TokenRange inside{i + 1, writer_.Closing(i)};
      i = writer_.Closing(i) + 1;
      if (!writer_.Is(inside.begin, "SELECT")) {
        Read(inside);
        return i;
      }
    } else {
      if (!writer_.IsName(i)) Refuse(i);
      source.table = source.name = writer_.At(i).text.toString();
      ++i;
    }
    if (i < end && writer_.Is(i, "AS")) ++i;
    if (i < end && writer_.IsName(i)) source.name = writer_.At(i++).text.toString();
    from_.sources.push_back(source);
    return i;
  }

  const SqlWriter &writer_;
  SqlFrom &from_;
};

}  // namespace

const SqlSource *SqlFrom::Find(QStringView name) const {
  for (const SqlSource &source : sources) {
    if (name.compare(source.name, Qt::CaseInsensitive) == 0) return &source;
  }
  return nullptr;
}

SqlFrom ReadFrom(const SqlWriter &writer, TokenRange range) {
  SqlFrom from;
  FromReader(writer, from).Read(range);
  return from;
}

}  // namespace trimlog
