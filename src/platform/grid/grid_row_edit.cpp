#include "platform/grid/grid_row_edit.h"

namespace trimlog {

namespace {

bool SameValue(const Value &one, const Value &other) {
  if (!one.isValid() || !other.isValid()) return one.isValid() == other.isValid();
  return one == other;
}

}  // namespace

Value GridRowEdit::Get(const QString &field) const {
  const auto changed = changed_.constFind(field);
  return changed == changed_.constEnd() ? stored_(field) : changed.value();
}

void GridRowEdit::Set(const QString &field, const Value &value) {
  refused_.remove(field);
  if (!isNew_ && SameValue(stored_(field), value)) {
    changed_.remove(field);
  } else {
    changed_.insert(field, value);
  }
}

void GridRowEdit::Refuse(const QString &field, const QString &typed, const QString &sentence) {
  refused_.insert(field, {typed, sentence});
}

const QString *GridRowEdit::RefusedText(const QString &field) const {
  const auto refused = refused_.constFind(field);
  return refused == refused_.constEnd() ? nullptr : &refused->typed;
}

QString GridRowEdit::Sentence(const QString &field) const {
  const auto refused = refused_.constFind(field);
  return refused == refused_.constEnd() ? QString() : refused->sentence;
}

QString GridRowEdit::SentenceShown(const QString &field) const {
  const QString own = Sentence(field);
  return own.isEmpty() && IsChanged(field) ? rowSentence : own;
}

void GridRowEdit::Undo(const QString &field) {
  refused_.remove(field);
  changed_.remove(field);
}

}  // namespace trimlog
