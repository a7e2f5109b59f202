#include "core/windows/setup/setup_journal_page.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/settings/options.h"
#include "core/windows/controls/choice_combo.h"
#include "platform/windows/controls/named_controls.h"

namespace trimlog {

SetupJournalPage::SetupJournalPage(QWidget *parent) : SetupPage(parent) {
  auto *layout = new QVBoxLayout(this);
  chkConfirmDeletes =
      AddCheck(layout, QStringLiteral("chkConfirmDeletes"), QStringLiteral("&Ask before deleting journal entries"));
  chkSmartDates = AddCheck(layout, QStringLiteral("chkSmartDates"), QStringLiteral("Use the \"&Smart Date\" feature"));
  chkBodyFat = AddCheck(layout, QStringLiteral("chkBodyFat"), QStringLiteral("Calculate the &body fat percentage"),
                        QStringLiteral("Works out your body fat from the measurements that you enter."));
  chkNetCaloriesBMR =
      AddCheck(layout, QStringLiteral("chkNetCaloriesBMR"), QStringLiteral("&Factor the BMR into net calories"),
               QStringLiteral("Takes off what your body burns at rest (basal metabolic rate)."));
  auto *row = new QHBoxLayout;
  auto *label = new QLabel(QStringLiteral("Tab that the Journal opens &with:"), this);
  cboDefaultDiaryTab =
      new ChoiceCombo(QStringLiteral("cboDefaultDiaryTab"), QStringLiteral("Tab that the Journal opens with"), this);
  cboDefaultDiaryTab->SetChoices(DiaryTabs());
  label->setBuddy(cboDefaultDiaryTab);
  row->addWidget(label);
  row->addWidget(cboDefaultDiaryTab);
  row->addStretch();
  layout->addLayout(row);
  layout->addWidget(
      MakeConfirmGroup(QStringLiteral("When I change the servings of a food"), QStringLiteral("optConfirmMealUpdates"),
                       {QStringLiteral("&Never recalculate its nutrients"),
                        QStringLiteral("Always re&calculate its nutrients"), QStringLiteral("As&k me each time")},
                       optConfirmMealUpdates));
  layout->addWidget(MakeConfirmGroup(
      QStringLiteral("When I change the minutes of an exercise"), QStringLiteral("optConfirmExerciseUpdates"),
      {QStringLiteral("Ne&ver recalculate its calories"), QStringLiteral("A&lways recalculate its calories"),
       QStringLiteral("Ask &me each time")},
      optConfirmExerciseUpdates));
  layout->addStretch();
}

QWidget *SetupJournalPage::MakeConfirmGroup(const QString &title, const QString &prefix, const QStringList &captions,
                                            QButtonGroup *&options) {
  auto *group = new QGroupBox(title, this);
  auto *layout = new QVBoxLayout(group);
  options = new QButtonGroup(this);
  for (int choice = 0; choice < captions.size(); ++choice) {
    options->addButton(AddOption(layout, prefix + QString::number(choice), captions.at(choice)), choice);
  }
  return group;
}

void SetupJournalPage::Load(const Settings &settings) {
  chkConfirmDeletes->setChecked(settings.ConfirmDeletes);
  chkSmartDates->setChecked(settings.SmartDates);
  chkBodyFat->setChecked(settings.BodyFat);
  chkNetCaloriesBMR->setChecked(settings.NetCaloriesBMR);
  cboDefaultDiaryTab->SetValue(settings.DefaultDiaryTab);
  optConfirmMealUpdates->button(settings.ConfirmMealsUpdates)->setChecked(true);
  optConfirmExerciseUpdates->button(settings.ConfirmExerciseUpdates)->setChecked(true);
}

void SetupJournalPage::Store(Settings &edited) {
  edited.ConfirmDeletes = chkConfirmDeletes->isChecked();
  edited.SmartDates = chkSmartDates->isChecked();
  edited.BodyFat = chkBodyFat->isChecked();
  edited.NetCaloriesBMR = chkNetCaloriesBMR->isChecked();
  edited.DefaultDiaryTab = cboDefaultDiaryTab->ChosenValue();
  edited.ConfirmMealsUpdates = optConfirmMealUpdates->checkedId();
  edited.ConfirmExerciseUpdates = optConfirmExerciseUpdates->checkedId();
}

}  // namespace trimlog
