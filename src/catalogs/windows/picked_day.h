#pragma once

#include <QDate>
#include <QWidget>

#include "core/session/session.h"

class QComboBox;

namespace trimlog {

struct FoodPicking;
class DateField;

/// Which day and meal a picked food is for: txtDate with cmdDate, and cboMealType.
class PickedDay : public QWidget {
  Q_OBJECT
 public:
  /// Reads the meals; throws when it cannot.
  PickedDay(Session &session, const FoodPicking &picking, QWidget *parent);

  QDate Date() const;  ///< invalid for a text that is none
  int MealTypeID() const;
  QString MealText() const;
  DateField *DateBox() const { return txtDate; }

 private:
  DateField *txtDate;
  QComboBox *cboMealType;
};

}  // namespace trimlog
