#pragma once

#include <QString>
#include <QVariant>
#include <vector>

namespace trimlog {

enum class TokenKind { Word, Name, Number, Text, Date, Parameter, Symbol };

/// A piece of a statement. Its text lies in the statement, which must outlive it.
struct SqlToken {
  TokenKind kind;
  QStringView text;  ///< a Name without its brackets; literals with their delimiters
  int slot = 0;      ///< the number under which a literal or `?` is bound, from 1; 0: written into the statement
  int literal = -1;  ///< index among the literals

  bool Is(QLatin1StringView word) const {
    return (kind == TokenKind::Word || kind == TokenKind::Symbol) && text.compare(word, Qt::CaseInsensitive) == 0;
  }
};

/// What is bound under one slot: a literal of the statement, or the caller's next parameter.
struct SqlSlot {
  bool isParameter = false;
  QVariant literal;
};

/// A statement taken apart. Its literals are bound rather than written, so that statements that differ in nothing else
/// share one prepared form, and so that no text of a literal can ever be read as a part of the statement.
struct TokenizedSql {
  QString shape;  ///< the statement with a mark for every bound literal
  std::vector<SqlToken> tokens;
  std::vector<SqlSlot> slots_;
  std::vector<QVariant> literals;  ///< all of them, bound or not: int / qint64, double, QString, QDate
  int parameterCount = 0;
};

/// Takes a statement apart; the closing ";" and blanks are dropped. Throws invalidSql for an unclosed literal or
/// bracket, a date that is none, a character that means nothing, or a second statement behind the first.
TokenizedSql Tokenize(const QString &sql);

}  // namespace trimlog
