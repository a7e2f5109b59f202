#include "journal/windows/add_measurements_page.h"

#include <QGridLayout>
#include <QLabel>

#include "core/session/failure_guard.h"
#include "health/body_formulas.h"
#include "journal/day/day_measurements.h"
#include "journal/day/day_records.h"
#include "journal/windows/add_rec_day.h"
#include "platform/windows/controls/field_left.h"
#include "platform/windows/controls/form_rows.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

AddMeasurementsPage::AddMeasurementsPage(Session &session, const QDate &proposed, bool isDateFixed, QWidget *parent)
    : AddRecPage(parent), session_(session) {
  setObjectName(QStringLiteral("pnlAddRec(4)"));
  QGridLayout *form = MakeFormGrid();
  setLayout(form);
  txtAddRecDate4 = AddDayField(session, form, 4, proposed, isDateFixed, this);
  const QString uom = session.settings.UomID == poundsSystem ? QStringLiteral("in.") : QStringLiteral("cm.");
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    const QString name = QString::fromLatin1(measurementFields[field].name);
    auto *size = new NumberField(QStringLiteral("txtAddRec") + QLatin1String(measurementFields[field].column), name,
                                 session.locale, this);
    size->setFixedWidth(FieldWidth(size, 8));
    size->SetNumber(0);  // what was not measured
    sizes_[field] = size;
    QLabel *unit = MakeLabel({}, field == bodyFatField ? QStringLiteral("%") : uom);
    AddFormRow(form, name + QLatin1Char(':'), size, {size, unit});
  }
  sizes_[waistField]->installEventFilter(this);
  setFocusProxy(sizes_.front());
}

QString AddMeasurementsPage::Title() const { return QStringLiteral("Add New Measurements"); }

QString AddMeasurementsPage::Header() const {
  return QStringLiteral("Enter the new measurements' information and click <OK>.");
}

QDate AddMeasurementsPage::StoredDate() const { return txtAddRecDate4->Date(); }

bool AddMeasurementsPage::eventFilter(QObject *watched, QEvent *event) {
  NumberField *const waist = sizes_[waistField];
  if (watched == waist && IsFieldLeft(*event) && waist->isModified() && session_.settings.BodyFat) {
    GuardedQuietly([&] {
      const auto estimate = BodyFatFromWaist(session_, waist->text(), txtAddRecDate4->Date());
      if (estimate) sizes_[bodyFatField]->setText(*estimate);
    });
    waist->setModified(false);
  }
  return AddRecPage::eventFilter(watched, event);
}

bool AddMeasurementsPage::CheckSizes() {
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    if (IsMeasurement(sizes_[field]->text(), session_.locale, false)) continue;
    const MeasurementRefusal refusal = RefusalOf(field);
    session_.boxes.Critical(refusal.title, refusal.text);
    sizes_[field]->setFocus();
    sizes_[field]->selectAll();
    return false;
  }
  return true;
}

bool AddMeasurementsPage::Store() {
  const DayCheck check{
      .invalidDate = QStringLiteral("Please choose or enter a valid date for this set of measurements."),
      .existsTitle = QStringLiteral("Measurements Already Exist"),
      .existsText = QStringLiteral(
          "Unable to add the new measurements because a set of measurements already exists for this date."),
      .exists = [this](const QDate &date) { return MeasurementsOn(session_, date).has_value(); },
  };
  return GuardedAddRec(session_, 4, [&] {
    if (!CheckDay(session_, *txtAddRecDate4, check) || !CheckSizes()) return false;
    PerMeasurement<std::optional<double>> values;
    for (std::size_t field = 0; field < values.size(); ++field) values[field] = sizes_[field]->Number();
    recordID_ = AddMeasurements(session_, txtAddRecDate4->Date(), values);
    return true;
  });
}

}  // namespace trimlog
