#pragma once

#include "companions/windows/wizard_page.h"

namespace trimlog {

/// Says what the wizard will ask for.
class IntroductionPage : public WizardPage {
  Q_OBJECT
 public:
  explicit IntroductionPage(bool asksForColors, QWidget *parent);
};

}  // namespace trimlog
