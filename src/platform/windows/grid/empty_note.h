#pragma once

#include <QString>

class QAbstractItemView;

namespace trimlog {

/// The quiet words in an empty list that say what to do; as long as it is empty a screen reader hears them as its
/// description.
class EmptyNote {
 public:
  explicit EmptyNote(QAbstractItemView &list) : list_(list) {}

  void SetText(const QString &text);
  void Follow();      ///< rows came or went
  void Draw() const;  ///< from the list's paint event; draws nothing when the list has rows

 private:
  bool IsShown() const;

  QAbstractItemView &list_;
  QString text_;
};

}  // namespace trimlog
