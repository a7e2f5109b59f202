#include "journal/windows/frmConfirmMealUpdates.h"

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/session/session.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

frmConfirmMealUpdates::frmConfirmMealUpdates(Session &session, QWidget *owner) : QDialog(owner), session_(session) {
  setObjectName(QStringLiteral("frmConfirmMealUpdates"));
  setWindowTitle(QStringLiteral("Adjust Nutrients?"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto *layout = new QVBoxLayout(this);
  AddNote(layout, QStringLiteral("lblQuestion"),
          QStringLiteral("Adjust the Nutrients for this meal to reflect the new serving size?"));
  layout->addSpacing(spacing::between);
  QHBoxLayout *answers = AddRow(layout);
  answers->addStretch();
  auto *cmdOK = AddButton<QPushButton>(answers, QStringLiteral("cmdOK"), QStringLiteral("&Yes"));
  auto *cmdNo = AddButton<QPushButton>(answers, QStringLiteral("cmdNo"), QStringLiteral("&No"));
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdNo, &QPushButton::clicked, this, &QDialog::reject);

  auto *fromNowOn = new QGroupBox(QStringLiteral("From now on"), this);
  auto *choices = new QVBoxLayout(fromNowOn);
  layout->addWidget(fromNowOn);
  const QStringList captions = {QStringLiteral("Ne&ver Adjust"), QStringLiteral("&Always Adjust"),
                                QStringLiteral("Always As&k Me What to do")};
  for (int choice = 0; choice < captions.size(); ++choice) {
    options_.append(AddOption(choices, QStringLiteral("optConfirmMealUpdates%1").arg(choice), captions.at(choice)));
  }
  GroupOptions(this, options_);
  options_.value(session.settings.ConfirmMealsUpdates, options_.last())->setChecked(true);
  setMinimumWidth(fontMetrics().averageCharWidth() * 56);
  cmdOK->setFocus();
}

void frmConfirmMealUpdates::done(int result) {
  for (int choice = 0; choice < options_.size(); ++choice) {
    if (!options_[choice]->isChecked() || choice == session_.settings.ConfirmMealsUpdates) continue;
    session_.settings.ConfirmMealsUpdates = choice;
    SaveSetting(session_.settings, session_.store, QStringLiteral("ConfirmMealsUpdates"));
  }
  QDialog::done(result);
}

bool ConfirmMealUpdates(Session &session, QWidget *owner) {
  return frmConfirmMealUpdates(session, owner).exec() == QDialog::Accepted;
}

}  // namespace trimlog
