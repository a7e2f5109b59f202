#pragma once

#include <QLineEdit>

namespace trimlog {

/// A line of text with a length limit. Line breaks in what is pasted become blanks.
class TextField : public QLineEdit {
  Q_OBJECT
 public:
  /// `label` is what a screen reader says; `maxLength` 0 sets no limit.
  TextField(const QString &objectName, const QString &label, int maxLength = 0, QWidget *parent = nullptr);
};

}  // namespace trimlog
