#include "catalogs/windows/frmNutTargets.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "catalogs/windows/nutrient_fields.h"
#include "catalogs/windows/target_page.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/profiles/add_rec_page.h"
#include "platform/text/text_format.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

FailureExit LoadingTargetsFailure() {
  return {QStringLiteral("frmNutTargets"), QStringLiteral("Form_Load"), QStringLiteral("Error Loading Setup Info"),
          QStringLiteral("An error occurred while loading your setup information.")};
}

FailureExit SavingTargetsFailure() {
  return {QStringLiteral("frmNutTargets"), QStringLiteral("SaveTargetFields"), QStringLiteral("Error Saving Targets"),
          QStringLiteral("An error occurred while saving these targets.  "), true};
}

// The log has always told this deletion under the names of the exercises' one.
FailureExit DeletingTargetsFailure() {
  return {QStringLiteral("frmSetupExercises"), QStringLiteral("cmdDeleteActivity_Click"),
          QStringLiteral("Error Deleting Targets"),
          QStringLiteral("An error occurred while deleting.  No set of targets was deleted.  "), true};
}

}  // namespace

frmNutTargets::frmNutTargets(Session &session, const Navigator &navigator, QWidget *owner)
    : QDialog(owner), session_(session), navigator_(navigator) {
  setObjectName(QStringLiteral("frmNutTargets"));
  setWindowTitle(QStringLiteral("Daily Nutritional Targets"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(true);
  auto *layout = new QVBoxLayout(this);
  auto *note = new QLabel(QStringLiteral("In the list below, you can edit the existing target values and create your "
                                         "own custom targets.  Click <New> to create a new set of target values."),
                          this);
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  layout->addWidget(note);
  AddChoice(layout);
  AddFields(layout);
  AddButtons(layout);
  FillSets();
  Select(TargetSetInForce(session_));
  connect(cboNutTargetID, &QComboBox::currentIndexChanged, this, &frmNutTargets::OnChosen);
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    if (change.table == Table::SelectedNutrients) fields_->NutrientsChanged();
  });
  cboNutTargetID->setFocus();
  // The least size of a layout forgets the lines into which the note wraps.
  const int width = layout->totalSizeHint().width();
  resize(width, layout->totalHeightForWidth(width));
}

void frmNutTargets::AddChoice(QVBoxLayout *layout) {
  auto *row = new QHBoxLayout;
  layout->addLayout(row);
  pnlNutTargetID = new QLabel(SelectedTargetCaption(session_).replace(QLatin1Char('&'), QStringLiteral("&&")), this);
  pnlNutTargetID->setObjectName(QStringLiteral("pnlNutTargetID"));
  pnlNutTargetID->setTextFormat(Qt::PlainText);
  cboNutTargetID = new QComboBox(this);
  cboNutTargetID->setObjectName(QStringLiteral("cboNutTargetID"));
  pnlNutTargetID->setBuddy(cboNutTargetID);
  row->addWidget(pnlNutTargetID);
  row->addWidget(cboNutTargetID, 1);
  QPushButton *cmdNewTarget = AddButton(row, QStringLiteral("cmdNewTarget"), QStringLiteral("&New"),
                                        QStringLiteral("Makes a set of targets of your own."));
  cmdDeleteTarget = AddButton(row, QStringLiteral("cmdDeleteTarget"), QStringLiteral("&Delete"),
                              QStringLiteral("Deletes the set that is shown."));
  connect(cmdNewTarget, &QPushButton::clicked, this, &frmNutTargets::OnNew);
  connect(cmdDeleteTarget, &QPushButton::clicked, this, &frmNutTargets::OnDelete);
}

void frmNutTargets::AddFields(QVBoxLayout *layout) {
  const QSize screenRoom = screen()->availableSize() - QSize(80, 240);
  layout->addWidget(ScrolledNutrients(session_, TargetNutrientFields(), screenRoom, this, &fields_), 1);
  for (int id = 1; id <= typedTargets; ++id) {
    connect(&fields_->Of(id), &QLineEdit::textEdited, this, [this] { edited_ = true; });
    connect(&fields_->Of(id), &QLineEdit::editingFinished, this, [this, id] { OnFieldLeft(id); });
  }
}

QPushButton *frmNutTargets::AddButton(QHBoxLayout *row, const QString &name, const QString &caption,
                                      const QString &tip) {
  auto *button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setAutoDefault(false);
  row->addWidget(button);
  return button;
}

void frmNutTargets::AddButtons(QVBoxLayout *layout) {
  auto *row = new QHBoxLayout;
  layout->addLayout(row);
  QPushButton *cmdAllNutrients = AddButton(row, QStringLiteral("cmdAllNutrients"), QStringLiteral("&All Nutrients..."),
                                           QStringLiteral("Chooses the nutrients that are shown."));
  row->addStretch();
  QPushButton *cmdHelp = AddButton(row, QStringLiteral("cmdHelp"), QStringLiteral("&Help"), {});
  QPushButton *cmdOK = AddButton(row, QStringLiteral("cmdOK"), QStringLiteral("&Close"), {});
  cmdOK->setDefault(true);
  NeedsDoor(*cmdAllNutrients, navigator_.OpenNutrientSelection);
  NeedsDoor(*cmdHelp, navigator_.ShowHelp);
  connect(cmdAllNutrients, &QPushButton::clicked, this, [this] { navigator_.OpenNutrientSelection(this); });
  connect(cmdHelp, &QPushButton::clicked, this, [this] { navigator_.ShowHelp(QStringLiteral("targets")); });
  connect(cmdOK, &QPushButton::clicked, this, &frmNutTargets::accept);
}

void frmNutTargets::FillSets() {
  const QSignalBlocker quiet(cboNutTargetID);
  cboNutTargetID->clear();
  cboNutTargetID->addItem(QStringLiteral("(no targets)"), noTargetSet);
  for (const TargetSet &set : TargetSets(session_)) cboNutTargetID->addItem(set.TargetDesc, set.TargetID);
}

void frmNutTargets::Select(int targetID) {
  const QSignalBlocker quiet(cboNutTargetID);
  cboNutTargetID->setCurrentIndex(std::max(0, cboNutTargetID->findData(targetID)));
  ShowTargets(cboNutTargetID->currentData().toInt());
}

void frmNutTargets::ShowTargets(int targetID) {
  stored_ = targetID == noTargetSet ? TargetTexts() : LoadTargetFields(session_, targetID);
  shown_ = targetID;
  for (int id = 1; id <= typedTargets; ++id) fields_->SetText(id, stored_[static_cast<std::size_t>(id - 1)]);
  edited_ = false;
  fields_->setEnabled(targetID != noTargetSet);
  cmdDeleteTarget->setEnabled(targetID != noTargetSet);
}

void frmNutTargets::OnChosen() {
  const int wanted = cboNutTargetID->currentData().toInt();
  if (wanted == shown_) return;
  const bool shown = SaveTargets() && Guarded(session_, LoadingTargetsFailure(), [&] { ShowTargets(wanted); });
  if (shown) return;
  const QSignalBlocker quiet(cboNutTargetID);
  cboNutTargetID->setCurrentIndex(cboNutTargetID->findData(shown_));
}

void frmNutTargets::OnNew() {
  if (!SaveTargets()) return;
  Guarded(session_, LoadingTargetsFailure(), [&] {
    AddRec(
        this, [this](QWidget *parent) { return new TargetPage(session_, parent); },
        [this](AddRecPage &page) {
          FillSets();
          Select(static_cast<TargetPage &>(page).TargetID());
          fields_->Of(nutrient_id::calories).setFocus();
        });
  });
}

void frmNutTargets::OnDelete() {
  if (!session_.boxes.Ask(QStringLiteral("Delete Targets?"),
                          QStringLiteral("Are you sure that you want to delete the current set of Target values?"),
                          BoxButton::No)) {
    return;
  }
  Guarded(session_, DeletingTargetsFailure(), [&] {
    DeleteTargetSet(session_, shown_);
    FillSets();
    Select(noTargetSet);
  });
  cboNutTargetID->setFocus();
}

// A target can be changed but not taken away: what is no number stands for what is stored, and shows it.
void frmNutTargets::OnFieldLeft(int nutrientID) {
  if (!IsNumeric(fields_->TextOf(nutrientID), session_.locale)) {
    fields_->SetText(nutrientID, stored_[static_cast<std::size_t>(nutrientID - 1)]);
  }
}

TargetTexts frmNutTargets::Typed() const {
  TargetTexts typed;
  for (int id = 1; id <= typedTargets; ++id) typed[static_cast<std::size_t>(id - 1)] = fields_->TextOf(id);
  return typed;
}

bool frmNutTargets::CheckTargets() {
  for (int id = 1; id <= typedTargets; ++id) {
    const QString refusal = RefusedTargetField(session_, id, fields_->TextOf(id));
    if (refusal.isEmpty()) continue;
    session_.boxes.Critical(QStringLiteral("Invalid Value"), refusal);
    fields_->Of(id).setFocus();
    fields_->Of(id).selectAll();
    return false;
  }
  return true;
}

bool frmNutTargets::SaveTargets() {
  if (!edited_ || shown_ == noTargetSet) return true;
  if (!CheckTargets()) return false;
  return Guarded(session_, SavingTargetsFailure(), [&] {
    SaveTargetFields(session_, shown_, Typed());
    ShowTargets(shown_);
  });
}

void frmNutTargets::done(int result) {
  std::optional<TargetTexts> typed;
  if (edited_ && shown_ != noTargetSet) {
    if (!CheckTargets()) return;
    typed = Typed();
  }
  const bool saved = Guarded(session_, SavingTargetsFailure(), [&] { SaveAndChooseTargets(session_, shown_, typed); });
  const auto giveUp = [this] {
    return session_.boxes.Ask(QStringLiteral("Close Without Saving?"),
                              QStringLiteral("These targets could not be saved.  Would you like to close this window "
                                             "without saving them?"),
                              BoxButton::No);
  };
  if (saved || giveUp()) QDialog::done(result);
}

void OpenNutTargets(Session &session, const Navigator &navigator, QWidget *owner) {
  std::unique_ptr<frmNutTargets> window;
  const bool read = Guarded(session, LoadingTargetsFailure(),
                            [&] { window = std::make_unique<frmNutTargets>(session, navigator, owner); });
  if (read) window->exec();
}

}  // namespace trimlog
