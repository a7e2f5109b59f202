#pragma once

#include "core/windows/setup/setup_page.h"

class QPushButton;
class QRadioButton;

namespace trimlog {

class BoundGrid;
class ColourCombo;

/// The colour scheme of each profile, and the sign of losses. Both are stored at once.
class SetupColoursPage : public SetupPage {
  Q_OBJECT
 public:
  SetupColoursPage(Session &session, QWidget *parent);
  void Load(const Settings &settings) override;

 private:
  QWidget *MakeSchemeGroup();
  QWidget *MakeSignGroup();
  void ShowColour();
  void StoreColour(quint32 colour);

  Session &session_;
  BoundGrid *grdPeopleColors = nullptr;
  ColourCombo *cboBackColor = nullptr;
  QPushButton *cmdResetBackColor = nullptr;
  QRadioButton *optShowPositive = nullptr;
  QRadioButton *optShowNegative = nullptr;
};

}  // namespace trimlog
