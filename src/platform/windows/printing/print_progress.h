#pragma once

#include <QProgressDialog>

namespace trimlog {

/// Thrown when the person wants no more of a printing; caught where printing begins.
struct PrintingCancelled {};

enum class PrintStage { Measuring, LayingOut, Drawing };

/// Told how far a printing has come. May throw PrintingCancelled.
class PrintProgress {
 public:
  virtual ~PrintProgress() = default;
  virtual void Reached(PrintStage stage, int done, int total) = 0;
};

/// Shows it: a wait cursor at once, and for what takes long a window with a bar and a Cancel button.
class frmPrintGrids final : public QProgressDialog, public PrintProgress {
  Q_OBJECT
 public:
  frmPrintGrids(const QString &title, QWidget *owner);
  ~frmPrintGrids() override;
  void Reached(PrintStage stage, int done, int total) override;

 protected:
  void showEvent(QShowEvent *event) override;
};

}  // namespace trimlog
