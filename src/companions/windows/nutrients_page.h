#pragma once

#include <optional>

#include "companions/windows/wizard_page.h"
#include "core/session/session.h"

class QLabel;

namespace trimlog {

class BoundGrid;
class SpokenLabel;

/// The nutrients to watch and their targets, proposed by the diet.
class NutrientsPage : public WizardPage {
  Q_OBJECT
 public:
  NutrientsPage(Session &session, QWidget *parent);

  void Enter(const WizardAnswers &answers) override;
  QWidget *FirstField() const override;
  bool Check(const WizardAnswers &answers) override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void MakeGrid();
  void UpdateNutrientCount();

  Session &session_;
  QLabel *lblNote = nullptr;
  BoundGrid *grdNutrients = nullptr;
  SpokenLabel *lblNutrientCount = nullptr;
  std::optional<WizardAnswers> filledFor_;
};

}  // namespace trimlog
