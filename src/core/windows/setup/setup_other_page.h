#pragma once

#include "core/windows/setup/setup_page.h"

class QCheckBox;

namespace trimlog {

/// The splash screen, and windows put back into their first place.
class SetupOtherPage : public SetupPage {
  Q_OBJECT
 public:
  SetupOtherPage(Session &session, const Navigator &navigator, QWidget *parent);
  void Load(const Settings &settings) override;
  void Store(Settings &edited) override;

 private:
  QCheckBox *chkShowSplash = nullptr;
};

}  // namespace trimlog
