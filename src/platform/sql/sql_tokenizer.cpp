#include "platform/sql/sql_tokenizer.h"

#include <QDate>

#include "platform/error.h"

namespace trimlog {

namespace {

// The marks that stand for bound literals in a shape; no statement can hold them outside of a literal.
constexpr QChar wholeMark(1), realMark(2), textMark(3), dateMark(4);

[[noreturn]] void Refuse(const QString &why) { throw Error(error_number::invalidSql, why); }

bool IsWordStart(QChar c) { return c.isLetter() || c == QLatin1Char('_'); }
bool IsWordPart(QChar c) {
  return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('$') || c.isSurrogate();
}

class Tokenizer {
 public:
  explicit Tokenizer(const QString &sql) : sql_(sql), end_(sql.size()) {
    result_.tokens.reserve(static_cast<size_t>(end_ / 4 + 4));
    result_.shape.reserve(end_);
  }

  TokenizedSql Run() {
    while (true) {
      SkipBlanks();
      if (at_ >= end_) break;
      if (sql_[at_] == QLatin1Char(';')) {
        ++at_;
        SkipBlanks();
        if (at_ < end_)
          Refuse(QStringLiteral("Characters found after the end of the SQL statement: '%1'.").arg(sql_.mid(at_, 40)));
        break;
      }
      Next();
    }
    return std::move(result_);
  }

 private:
  void SkipBlanks() {
    while (at_ < end_ && sql_[at_].isSpace()) ++at_;
  }

  void Next() {
    const QChar c = sql_[at_];
    if (IsWordStart(c)) {
      Word();
    } else if (c.isDigit() || (c == QLatin1Char('.') && at_ + 1 < end_ && sql_[at_ + 1].isDigit() && !FollowsName())) {
      Number();
    } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
      Text(c);
    } else if (c == QLatin1Char('#')) {
      Date();
    } else if (c == QLatin1Char('[')) {
      Bracketed();
    } else if (c == QLatin1Char('?')) {
      AddToken(TokenKind::Parameter, QStringView(sql_).mid(at_, 1));
      ++at_;
      ++result_.parameterCount;
      result_.slots_.push_back({true, {}});
      result_.tokens.back().slot = static_cast<int>(result_.slots_.size());
      result_.shape += c;
    } else {
      Symbol();
    }
  }

  bool FollowsName() const {
    if (result_.tokens.empty() || at_ == 0 || sql_[at_ - 1].isSpace()) return false;
    const TokenKind kind = result_.tokens.back().kind;
    return kind == TokenKind::Word || kind == TokenKind::Name;
  }

  void AddToken(TokenKind kind, QStringView text) { result_.tokens.push_back({kind, text}); }

  void Word() {
    const qsizetype start = at_;
    while (at_ < end_ && IsWordPart(sql_[at_])) ++at_;
    const QStringView word = QStringView(sql_).mid(start, at_ - start);
    AddToken(TokenKind::Word, word);
    Note(word);
    FollowClauses(word);
  }

  // Positions in ORDER BY and GROUP BY, and the structure that a definition lays down, are no values: they stay
  // written.
  void FollowClauses(QStringView word) {
    const auto is = [word](const char *other) {
      return word.compare(QLatin1StringView(other), Qt::CaseInsensitive) == 0;
    };
    if (result_.tokens.size() == 1) definition_ = is("CREATE") || is("ALTER") || is("DROP");
    if (is("BY")) positions_ = true;
    if (is("HAVING") || is("UNION") || is("SELECT") || is("WHERE")) positions_ = false;
  }

  bool PreviousIs(const char *word) const {
    return !result_.tokens.empty() && result_.tokens.back().Is(QLatin1StringView(word));
  }

  void AddLiteral(TokenKind kind, qsizetype start, const QVariant &value, QChar mark, bool bound) {
    const QStringView text = QStringView(sql_).mid(start, at_ - start);
    AddToken(kind, text);
    SqlToken &token = result_.tokens.back();
    token.literal = static_cast<int>(result_.literals.size());
    if (bound && !definition_) {
      result_.slots_.push_back({false, value});
      token.slot = static_cast<int>(result_.slots_.size());
      Space();
      result_.shape += mark;
    } else {
      Note(text);
    }
    result_.literals.push_back(value);
  }

  void Number() {
    const qsizetype start = at_;
    bool whole = true;
    while (at_ < end_ && sql_[at_].isDigit()) ++at_;
    if (at_ < end_ && sql_[at_] == QLatin1Char('.')) {
      whole = false;
      ++at_;
      while (at_ < end_ && sql_[at_].isDigit()) ++at_;
    }
    if (at_ < end_ && (sql_[at_] == QLatin1Char('e') || sql_[at_] == QLatin1Char('E'))) {
      qsizetype next = at_ + 1;
      if (next < end_ && (sql_[next] == QLatin1Char('+') || sql_[next] == QLatin1Char('-'))) ++next;
      if (next < end_ && sql_[next].isDigit()) {
        whole = false;
        at_ = next;
        while (at_ < end_ && sql_[at_].isDigit()) ++at_;
      }
    }
    const QStringView text = QStringView(sql_).mid(start, at_ - start);
    if (at_ < end_ && IsWordPart(sql_[at_]))
      Refuse(QStringLiteral("'%1' is not a number.").arg(sql_.mid(start, at_ - start + 1)));
    bool ok = false;
    QVariant value;
    if (whole) value = text.toLongLong(&ok);
    if (!ok) {
      whole = false;
      value = text.toDouble(&ok);
    }
    if (!ok) Refuse(QStringLiteral("'%1' is not a number.").arg(text));
    AddLiteral(TokenKind::Number, start, value, whole ? wholeMark : realMark, !positions_ && !PreviousIs("TOP"));
  }

  void Text(QChar quote) {
    const qsizetype start = at_++;
    QString value;
    while (true) {
      const qsizetype close = sql_.indexOf(quote, at_);
      if (close < 0) Refuse(QStringLiteral("A text has no closing %1: %2").arg(quote, sql_.mid(start, 40)));
      value += QStringView(sql_).mid(at_, close - at_);
      at_ = close + 1;
      if (at_ >= end_ || sql_[at_] != quote) break;
      value += quote;
      ++at_;
    }
    // The name of a format and the path of a side file steer the translation, so they belong to the shape.
    const bool steers = value.compare(QLatin1StringView("Standard"), Qt::CaseInsensitive) == 0 || PreviousIs("IN");
    AddLiteral(TokenKind::Text, start, value, textMark, !steers && !positions_);
  }

  void Date() {
    const qsizetype start = at_;
    const qsizetype close = sql_.indexOf(QLatin1Char('#'), at_ + 1);
    const QString inside = close < 0 ? QString() : sql_.mid(at_ + 1, close - at_ - 1).trimmed();
    const QDate date = ReadDate(inside);
    if (!date.isValid())
      Refuse(QStringLiteral("'%1' is not a date; dates are written #month/day/year#.").arg(sql_.mid(start, 24)));
    at_ = close + 1;
    AddLiteral(TokenKind::Date, start, date, dateMark, !positions_);
  }

  static QDate ReadDate(const QString &text) {
    const bool iso = text.contains(QLatin1Char('-'));
    const QStringList parts = text.split(iso ? QLatin1Char('-') : QLatin1Char('/'));
    if (parts.size() != 3) return {};
    int number[3];
    for (int i = 0; i < 3; ++i) {
      bool ok = false;
      number[i] = parts[i].trimmed().toInt(&ok);
      if (!ok || number[i] < 0) return {};
    }
    int &year = iso ? number[0] : number[2];
    if (parts[iso ? 0 : 2].trimmed().size() <= 2) year += year < 30 ? 2000 : 1900;
    if (year < 100 || year > 9999) return {};
    return iso ? QDate(year, number[1], number[2]) : QDate(year, number[0], number[1]);
  }

  void Bracketed() {
    const qsizetype close = sql_.indexOf(QLatin1Char(']'), at_);
    if (close < 0 || close == at_ + 1)
      Refuse(QStringLiteral("A name has no closing bracket: %1").arg(sql_.mid(at_, 40)));
    const QStringView name = QStringView(sql_).mid(at_ + 1, close - at_ - 1);
    if (name.contains(QChar(0))) Refuse(QStringLiteral("A name cannot hold the character 0."));
    at_ = close + 1;
    AddToken(TokenKind::Name, name);
    Space();
    result_.shape += QLatin1Char('[');
    result_.shape += name;
    result_.shape += QLatin1Char(']');
  }

  void Symbol() {
    static const QString known = QStringLiteral("()*,.=<>+-/&!^\\");
    const QChar c = sql_[at_];
    if (!known.contains(c)) Refuse(QStringLiteral("The character '%1' has no meaning in a statement.").arg(c));
    qsizetype length = 1;
    if (at_ + 1 < end_) {
      const QChar next = sql_[at_ + 1];
      if ((c == QLatin1Char('<') && (next == QLatin1Char('>') || next == QLatin1Char('='))) ||
          (c == QLatin1Char('>') && next == QLatin1Char('='))) {
        length = 2;
      }
    }
    const QStringView text = QStringView(sql_).mid(at_, length);
    at_ += length;
    AddToken(TokenKind::Symbol, text);
    result_.shape += text;
  }

  void Space() {
    if (!result_.shape.isEmpty()) result_.shape += QLatin1Char(' ');
  }
  void Note(QStringView text) {
    Space();
    result_.shape += text;
  }

  const QString &sql_;
  qsizetype at_ = 0;
  const qsizetype end_;
  bool definition_ = false;
  bool positions_ = false;
  TokenizedSql result_;
};

}  // namespace

TokenizedSql Tokenize(const QString &sql) { return Tokenizer(sql).Run(); }

}  // namespace trimlog
