#pragma once

#include <QLabel>

namespace trimlog {

/// What a calculation came to: text that can be reached with Tab, selected and copied, and that a screen reader reads
/// as it stands. It has no accessible name: a name would be read in place of the text.
class ResultText : public QLabel {
  Q_OBJECT
 public:
  explicit ResultText(const QString &name, QWidget *parent = nullptr);
  /// Framed, broken where it must be, and at least so many lines high.
  void MakeFrame(int lines);
  /// Quiet words that stand in the frame while there is no result: what to do for one.
  void SetHint(const QString &hint);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QString hint_;
};

}  // namespace trimlog
