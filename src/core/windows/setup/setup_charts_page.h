#pragma once

#include <array>

#include "core/windows/setup/setup_page.h"

class QButtonGroup;
class QCheckBox;
class QGridLayout;

namespace trimlog {

class ChoiceCombo;
class ColourCombo;

/// How the four charts are drawn: a column for each.
class SetupChartsPage : public SetupPage {
  Q_OBJECT
 public:
  explicit SetupChartsPage(QWidget *parent);
  void Load(const Settings &settings) override;
  void Store(Settings &edited) override;

 private:
  struct ChartColumn {
    QCheckBox *chkShowGridlines = nullptr;
    QCheckBox *chkShowDataLabels = nullptr;
    QCheckBox *chkPlotPoints = nullptr;
    ChoiceCombo *cboLineWidth = nullptr;
    ColourCombo *cboLineColor = nullptr;
    ColourCombo *cboPointColor = nullptr;
  };
  void AddRowLabels(QGridLayout *grid);
  void AddColumn(QGridLayout *grid, size_t chart);
  QWidget *MakeBodyTypes();

  std::array<ChartColumn, 4> charts_;
  QButtonGroup *optBodyType = nullptr;
};

}  // namespace trimlog
