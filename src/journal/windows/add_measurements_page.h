#pragma once

#include <QDate>

#include "core/windows/profiles/add_rec_page.h"
#include "journal/day/measurements.h"

namespace trimlog {

class DateField;
class NumberField;
class Session;

/// The add dialog's page of new measurements: their day and the eight sizes.
class AddMeasurementsPage : public AddRecPage {
  Q_OBJECT
 public:
  /// `isDateFixed`: the measurements belong to the day proposed and no other.
  AddMeasurementsPage(Session &session, const QDate &proposed, bool isDateFixed, QWidget *parent);

  QString Title() const override;
  QString Header() const override;
  bool Store() override;
  /// Of the set that Store made.
  QDate StoredDate() const;
  int StoredID() const { return recordID_; }

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  bool CheckSizes();

  Session &session_;
  DateField *txtAddRecDate4;
  PerMeasurement<NumberField *> sizes_{};
  int recordID_ = 0;
};

}  // namespace trimlog
