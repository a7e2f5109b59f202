#include <QSet>

#include "platform/store/recordset_internals.h"

namespace trimlog {

void Recordset::FindFirst(const QString &criterion, const Params &params) {
  if (impl_->forward) throw Error(error_number::other, QStringLiteral("A forward recordset knows MoveNext only."));
  impl_->RequireOpen();
  impl_->noMatch = true;
  if (impl_->keyed) {
    impl_->FindKeyed(criterion, params);
  } else {
    impl_->FindInMemory(criterion, params);
  }
  if (!impl_->noMatch) {
    impl_->onDeleted = false;
    CancelUpdate();
  }
}

namespace {

KnownStatement Slots(TokenizedSql &tokens) {
  KnownStatement slotsOnly;
  slotsOnly.slots_ = std::move(tokens.slots_);
  slotsOnly.parameterCount = tokens.parameterCount;
  return slotsOnly;
}

}  // namespace

void Recordset::Impl::FindKeyed(const QString &criterion, const Params &given) {
  TokenizedSql tokens = Tokenize(criterion);
  const QString sql =
      QStringLiteral("SELECT rowid FROM %1 WHERE %2")
          .arg(BracketedName(known->form->translated.single.table), TranslateCondition(tokens, database, 0));
  PreparedStatement find(database.handle, sql);
  database.Bind(find, Slots(tokens), given);
  ++database.counts.statements;
  QSet<qint64> matching;
  while (find.Step(database.failure)) matching.insert(find.Stored(0).toLongLong());
  if (matching.isEmpty()) return;
  const auto found = std::find_if(keys.begin(), keys.end(), [&matching](qint64 key) { return matching.contains(key); });
  if (found == keys.end()) return;
  position = static_cast<int>(found - keys.begin());
  noMatch = false;
}

// The rows are not in the file as they stand here, so the criterion is asked row by row, with the row's values bound.
void Recordset::Impl::FindInMemory(const QString &criterion, const Params &given) {
  TokenizedSql tokens = Tokenize(criterion);
  std::vector<int> used;
  QStringList fields;
  for (size_t i = 0; i < columns.size(); ++i) {
    const bool named = std::any_of(tokens.tokens.begin(), tokens.tokens.end(), [&](const SqlToken &token) {
      return (token.kind == TokenKind::Word || token.kind == TokenKind::Name) &&
             token.text.compare(columns[i].name, Qt::CaseInsensitive) == 0;
    });
    if (!named) continue;
    used.push_back(static_cast<int>(i));
    fields.append(QStringLiteral("?%1 COLLATE NOCASE AS %2").arg(used.size()).arg(BracketedName(columns[i].name)));
  }
  if (fields.isEmpty()) fields.append(QStringLiteral("1 AS [1]"));
  const int first = static_cast<int>(used.size());
  const QString condition = TranslateCondition(tokens, database, first);
  PreparedStatement ask(
      database.handle,
      QStringLiteral("SELECT 1 FROM (SELECT %1) WHERE %2").arg(fields.join(QLatin1StringView(", ")), condition));
  const KnownStatement literals = Slots(tokens);
  Database::Impl::CheckParameters(literals, given);
  int slot = first, parameter = 0;
  for (const SqlSlot &source : literals.slots_)
    ask.Bind(++slot, source.isParameter ? given[parameter++] : source.literal);
  ++database.counts.statements;
  for (int row = 0; row < rows.Rows() && noMatch; ++row) {
    for (int i = 0; i < first; ++i) ask.Bind(i + 1, rows.Stored(row, used[static_cast<size_t>(i)]));
    if (ask.Step(database.failure)) {
      position = row;
      noMatch = false;
    }
    ask.Reset();
  }
}

}  // namespace trimlog
