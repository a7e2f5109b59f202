#include "core/windows/setup/setup_calendar_page.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "core/settings/options.h"
#include "core/windows/controls/choice_combo.h"
#include "platform/windows/controls/named_controls.h"

namespace trimlog {

SetupCalendarPage::SetupCalendarPage(Session &session, QWidget *parent) : SetupPage(parent) {
  auto *layout = new QVBoxLayout(this);
  layout->addWidget(MakeCalendarGroup(session));
  layout->addWidget(MakeUnitsGroup(session));
  layout->addStretch();
}

QWidget *SetupCalendarPage::MakeCalendarGroup(Session &session) {
  auto *group = new QGroupBox(QStringLiteral("Data Calendar"), this);
  auto *layout = new QVBoxLayout(group);
  chkOpenToday = AddCheck(layout, QStringLiteral("chkOpenToday"), QStringLiteral("&Open the calendar on today's date"),
                          QStringLiteral("Otherwise the calendar opens on the day after your last weight."));
  chkShowLoss = AddCheck(layout, QStringLiteral("chkShowLoss"), QStringLiteral("Show the daily &loss in each day"),
                         QStringLiteral("Shows what you lost or gained since the weight before."));
  chkColorCoding =
      AddCheck(layout, QStringLiteral("chkColorCoding"), QStringLiteral("Show losses and &gains in color"));
  chkShowCalories =
      AddCheck(layout, QStringLiteral("chkShowCalories"), QStringLiteral("Show a nutrient total in &each day"),
               QStringLiteral("Shows the day's total of the nutrient chosen below."));
  auto *label = new QLabel(QStringLiteral("&Nutrient shown on the calendar and in the nutrients chart:"), group);
  cboNutrientID = new ChoiceCombo(QStringLiteral("cboNutrientID"),
                                  QStringLiteral("Nutrient shown on the calendar and in the nutrients chart"), group);
  cboNutrientID->SetChoices(NutrientChoices(session.nutrients));
  label->setBuddy(cboNutrientID);
  layout->addWidget(label);
  layout->addWidget(cboNutrientID, 0, Qt::AlignLeft);
  return group;
}

QWidget *SetupCalendarPage::MakeUnitsGroup(Session &session) {
  auto *group = new QGroupBox(QStringLiteral("Units"), this);
  auto *layout = new QVBoxLayout(group);
  auto *label = new QLabel(QStringLiteral("Units of &measure:"), group);
  cboUomID = new ChoiceCombo(QStringLiteral("cboUomID"), QStringLiteral("Units of measure"), group);
  cboUomID->SetChoices(UnitChoices(session));
  label->setBuddy(cboUomID);
  layout->addWidget(label);
  layout->addWidget(cboUomID, 0, Qt::AlignLeft);
  AddNote(layout, QStringLiteral("lblUomNote"),
          QStringLiteral("Weights, goals, heights and measurements that you have already entered keep their numbers.  "
                         "Only the units shown beside them change."));
  connect(cboUomID, &ChoiceCombo::currentIndexChanged, this, [this] { Q_EMIT UomChanged(cboUomID->ChosenValue()); });
  return group;
}

void SetupCalendarPage::Load(const Settings &settings) {
  chkOpenToday->setChecked(settings.OpenToday);
  chkShowLoss->setChecked(settings.ShowLoss);
  chkColorCoding->setChecked(settings.ColorCoding);
  chkShowCalories->setChecked(settings.ShowCalories);
  cboNutrientID->SetValue(settings.NutrientID);
  cboUomID->SetValue(settings.UomID);
}

void SetupCalendarPage::Store(Settings &edited) {
  edited.OpenToday = chkOpenToday->isChecked();
  edited.ShowLoss = chkShowLoss->isChecked();
  edited.ColorCoding = chkColorCoding->isChecked();
  edited.ShowCalories = chkShowCalories->isChecked();
  edited.NutrientID = cboNutrientID->ChosenValue();
  edited.UomID = cboUomID->ChosenValue();
}

}  // namespace trimlog
