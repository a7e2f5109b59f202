#pragma once

#include "companions/windows/wizard_page.h"

class QRadioButton;

namespace trimlog {

/// The colour scheme, with a preview.
class ColorsPage : public WizardPage {
  Q_OBJECT
 public:
  ColorsPage(quint32 initial, QWidget *parent);

  QWidget *FirstField() const override;
  void Store(WizardAnswers &answers) override;

 Q_SIGNALS:
  void ColorChosen(quint32 colour);

 private:
  QWidget *MakePreview();
  quint32 Chosen() const;
  void ShowPreview();

  QList<QRadioButton *> optBackColor;  ///< in the order of WizardColors()
  QWidget *pnlPreview = nullptr;
};

}  // namespace trimlog
