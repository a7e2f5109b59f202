#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <array>

#include "catalogs/nutrient_selection.h"
#include "core/session/navigator.h"

class QGridLayout;

namespace trimlog {

class TextField;

/// Chooses the ten nutrients that every food grid, total and target shows. The arrays count from 1, as the positions
/// do.
class frmSelectedNutrients : public QDialog {
  Q_OBJECT
 public:
  /// Reads what may be chosen and what is; throws when it cannot, since a window without it could only store nothing.
  frmSelectedNutrients(Session &session, const Navigator &navigator, QWidget *owner);

 private:
  struct PositionRow {
    QComboBox *cboNutrient = nullptr;
    TextField *txtNutrient = nullptr;
    QCheckBox *chkNutTotal = nullptr;
  };
  void AddHeadings(QGridLayout *grid);
  void AddRow(QGridLayout *grid, int position);
  void ShowSelection(const NutrientSelection &selection);
  void OnChosen(int position);
  NutrientSelection Chosen() const;
  void OnOk();
  PositionRow &Row(int position) { return rows_[static_cast<std::size_t>(position - 1)]; }

  Session &session_;
  const QList<NutrientChoice> choices_;
  std::array<PositionRow, shownNutrients> rows_{};
};

/// Shows the window until it is closed; a box says when it could not be read.
void OpenNutrientSelection(Session &session, const Navigator &navigator, QWidget *owner);

}  // namespace trimlog
