#pragma once

#include <QHash>

#include "platform/error.h"
#include "platform/sql/sql_translator.h"

namespace trimlog {

/// A run of tokens, [begin, end).
struct TokenRange {
  size_t begin = 0;
  size_t end = 0;
  bool IsEmpty() const { return begin >= end; }
};

[[noreturn]] void RefuseSql(const QString &why);

/// The tokens of one statement, and the writing of expressions: names, literals, operators and functions, which are the
/// same in every statement. What a statement itself looks like stands in the translator.
class SqlWriter {
 public:
  SqlWriter(const TokenizedSql &statement, TranslationContext &context, int firstSlot = 0);

  /// Writes a run of tokens that may hold clauses, expressions and whole SELECTs in parentheses.
  void Write(TokenRange range);
  QString Written(TokenRange range);

  const SqlToken &At(size_t i) const { return statement_.tokens[i]; }
  size_t Size() const { return statement_.tokens.size(); }
  int SlotCount() const { return static_cast<int>(statement_.slots_.size()); }
  bool Is(size_t i, const char *word) const { return i < Size() && At(i).Is(QLatin1StringView(word)); }
  bool IsName(size_t i) const;
  size_t Closing(size_t open) const { return closing_[open]; }
  /// The first place of a word at the range's own level, or the range's end.
  size_t Find(TokenRange range, const char *word) const;
  size_t FindAny(TokenRange range, std::initializer_list<const char *> words) const;
  /// The range's parts between commas at its own level.
  std::vector<TokenRange> Parts(TokenRange range) const;
  /// The range without parentheses that enclose the whole of it.
  TokenRange Bare(TokenRange range) const;
  const QVariant &Literal(size_t i) const { return statement_.literals[static_cast<size_t>(At(i).literal)]; }

  TranslationContext &Context() { return context_; }
  QString out;
  /// Table names that stand in a side file, by token.
  QHash<size_t, QString> schemaOfToken;
  /// Writes a SELECT met inside parentheses.
  std::function<void(TokenRange)> writeSelect;

 private:
  bool ComparesTruth(size_t i) const;
  size_t WriteTruth(size_t i);
  void WriteSegment(TokenRange segment);
  void WriteOperands(TokenRange segment);
  size_t WriteOperand(size_t i, size_t end);
  size_t WriteFunction(size_t i);
  void WriteDivision(size_t i, size_t end);
  void WriteWord(size_t i);
  void WriteLiteral(size_t i);
  size_t OperandEnd(size_t i, size_t end) const;
  bool IsBoundary(size_t i) const;
  void Put(QStringView text);

  const TokenizedSql &statement_;
  TranslationContext &context_;
  std::vector<size_t> closing_;
  int firstSlot_;
};

}  // namespace trimlog
