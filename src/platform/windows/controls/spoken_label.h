#pragma once

#include <QLabel>

namespace trimlog {

/// A line that tells how something turned out ("12 foods found"). A screen reader says it when it changes, wherever the
/// focus is.
class SpokenLabel : public QLabel {
  Q_OBJECT
 public:
  explicit SpokenLabel(const QString &name, QWidget *parent = nullptr);
  /// Shows a text and has it said; the same text again is not repeated.
  void Tell(const QString &text);
};

}  // namespace trimlog
