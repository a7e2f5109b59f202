#pragma once

#include <QHash>
#include <QString>
#include <QVariantMap>
#include <functional>

#include "platform/store/database.h"

namespace trimlog {

/// The one row of a grid that a person is changing: what was typed and not yet saved, over what the file holds. A hook
/// reads and changes it by field name.
class GridRowEdit {
 public:
  using Stored = std::function<Value(const QString &field)>;
  GridRowEdit(qint64 key, bool isNew, Stored stored) : key_(key), isNew_(isNew), stored_(std::move(stored)) {}

  qint64 Key() const { return key_; }
  bool IsNew() const { return isNew_; }
  /// The value as it would be saved: the changed one, otherwise the file's.
  Value Get(const QString &field) const;
  Value StoredValue(const QString &field) const { return stored_(field); }
  /// Changes a field, shown in the grid or not. A value equal to the file's is no change.
  void Set(const QString &field, const Value &value);
  bool IsChanged(const QString &field) const { return changed_.contains(field); }
  bool HasChanges() const { return !changed_.isEmpty(); }
  const QVariantMap &Changes() const { return changed_; }

  /// A typed text that could not be accepted stays with the sentence that says why.
  void Refuse(const QString &field, const QString &typed, const QString &sentence);
  bool HasRefusals() const { return !refused_.isEmpty(); }
  const QString *RefusedText(const QString &field) const;
  /// Why a field's text is refused.
  QString Sentence(const QString &field) const;
  /// Why a cell cannot be saved as it stands: its own sentence, or the row's where the cell has a part in it.
  QString SentenceShown(const QString &field) const;
  bool IsRefused() const { return HasRefusals() || !rowSentence.isEmpty(); }

  /// Takes one field back to what the file holds.
  void Undo(const QString &field);
  bool IsEmpty() const { return changed_.isEmpty() && refused_.isEmpty(); }

  QString rowSentence;  ///< why the whole row could not be saved; empty when it was not tried or went well

 private:
  struct Refusal {
    QString typed;
    QString sentence;
  };
  qint64 key_;
  bool isNew_;
  Stored stored_;
  QVariantMap changed_;
  QHash<QString, Refusal> refused_;
};

}  // namespace trimlog
