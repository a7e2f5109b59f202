#include "catalogs/windows/picked_day.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

#include "catalogs/food_picking.h"
#include "core/windows/controls/show_calendar.h"
#include "journal/day/meal_types.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/date_field.h"

namespace trimlog {

PickedDay::PickedDay(Session &session, const FoodPicking &picking, QWidget *parent) : QWidget(parent) {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  auto *lblDate = new QLabel(QStringLiteral("&Date:"), this);
  txtDate = new DateField(QStringLiteral("txtDate"), QStringLiteral("Date"), session.locale, this);
  txtDate->setFixedWidth(FieldWidth(txtDate, 12));
  txtDate->SetDate(picking.date);
  lblDate->setBuddy(txtDate);
  QAbstractButton *cmdDate = AttachCalendar(session, *txtDate, QStringLiteral("cmdDate"));
  auto *lblMealType = new QLabel(QStringLiteral("&Meal:"), this);
  cboMealType = new QComboBox(this);
  cboMealType->setObjectName(QStringLiteral("cboMealType"));
  for (const MealType &type : ReadMealTypes(session.Data())) cboMealType->addItem(type.MealTypeDesc, type.MealTypeID);
  cboMealType->setCurrentIndex(std::max(0, cboMealType->findData(picking.MealTypeID)));
  lblMealType->setBuddy(cboMealType);
  row->addWidget(lblDate);
  row->addWidget(txtDate);
  row->addWidget(cmdDate);
  row->addSpacing(spacing::around);
  row->addWidget(lblMealType);
  row->addWidget(cboMealType);
  row->addStretch();
  txtDate->setEnabled(!picking.fixedDate);
  cmdDate->setEnabled(!picking.fixedDate);
}

QDate PickedDay::Date() const { return txtDate->Date(); }

int PickedDay::MealTypeID() const { return cboMealType->currentData().toInt(); }

QString PickedDay::MealText() const { return cboMealType->currentText(); }

}  // namespace trimlog
