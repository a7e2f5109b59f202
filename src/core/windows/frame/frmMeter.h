#pragma once

#include <QDialog>

class QProgressBar;

namespace trimlog {

/// Shows how far a long operation on many rows has come: a title, a caption and a percent bar. It cannot be closed by
/// the person; it goes with its owner's scope.
class frmMeter : public QDialog {
  Q_OBJECT
 public:
  /// `rows` is the number of steps to come; 0 shows a bar without an end.
  frmMeter(const QString &title, const QString &caption, int rows, QWidget *owner);
  void SetCaption(const QString &caption);
  /// One row more is done. Repaints only when the percentage changes, so that it may be called for every row.
  void Step();
  int Percent() const;

 protected:
  void reject() override {}  ///< Esc does not close it

 private:
  int rows_;
  int done_ = 0;
  QProgressBar *barPercent;
};

}  // namespace trimlog
