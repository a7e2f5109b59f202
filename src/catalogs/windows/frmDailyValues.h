#pragma once

#include <QDialog>
#include <QMap>
#include <array>

#include "catalogs/daily_values.h"
#include "core/session/navigator.h"

class QGridLayout;

namespace trimlog {

class NumberField;

/// Turns the percents of a food label into amounts, for the food that is being added. txtAddRec0(0) to (15) are the
/// percents, in the label's order.
class frmDailyValues : public QDialog {
  Q_OBJECT
 public:
  frmDailyValues(Session &session, QWidget *owner);

  /// After OK: the amounts of the percents that were given, by NutrientID, in the locale's form.
  const QMap<int, QString> &Amounts() const { return amounts_; }

 private:
  void AddField(QGridLayout *grid, int index);
  bool CheckPercents();
  void OnOk();

  Session &session_;
  std::array<NumberField *, dailyValueNutrients.size()> txtAddRec0{};
  QMap<int, QString> amounts_;
};

}  // namespace trimlog
