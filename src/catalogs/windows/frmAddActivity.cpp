#include "catalogs/windows/frmAddActivity.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "catalogs/exercise_lists.h"
#include "catalogs/windows/exercise_grid.h"
#include "catalogs/windows/exercise_page.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/show_calendar.h"
#include "journal/day/calorie_rules.h"
#include "platform/windows/controls/field_left.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/controls/spoken_label.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

FailureExit AddingActivityFailure() {
  return {QStringLiteral("basMain"), QStringLiteral("AddRec"), QStringLiteral("Error Adding Exercise"),
          QStringLiteral("An error occurred while adding this exercise.  "), true};
}

}  // namespace

frmAddActivity::frmAddActivity(Session &session, const Navigator &navigator, const EntryOpening &opening,
                               QWidget *owner)
    : QDialog(owner), session_(session), navigator_(navigator), opening_(opening) {
  setObjectName(QStringLiteral("frmAddActivity"));
  setWindowTitle(opening_.kind.addActivityCaption);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setSizeGripEnabled(true);
  auto *layout = new QVBoxLayout(this);
  AddList(layout);
  AddFields(layout);
  AddButtons(layout);
  connect(grdActivitiesList, &BoundGrid::CurrentRowChanged, this, &frmAddActivity::OnRow);
  connect(grdActivitiesList, &BoundGrid::RowActivated, this, &frmAddActivity::OnOk);
  connect(txtMinutes, &QLineEdit::textChanged, this, &frmAddActivity::ShowBurned);
  connect(txtDate, &QLineEdit::textChanged, this, &frmAddActivity::ShowBurned);
  connect(chkRecalcCalories, &QCheckBox::toggled, this, &frmAddActivity::ShowBurned);
  resize(QSize(820, 520).boundedTo(screen()->availableSize() * 9 / 10));
  grdActivitiesList->Open(session_.Data(), ExercisesToPick());
  OnRow();
  grdActivitiesList->setFocus();
}

void frmAddActivity::AddList(QVBoxLayout *layout) {
  AddNote(
      layout, QStringLiteral("lblHeader"),
      QStringLiteral("Choose an exercise, change the minutes if you like, and click <OK>.  Typing the first letters "
                     "of an exercise goes to it."));
  grdActivitiesList = MakeExerciseGrid(session_, this);
  layout->addWidget(grdActivitiesList, 1);
}

void frmAddActivity::AddFields(QVBoxLayout *layout) {
  QHBoxLayout *row = AddRow(layout);
  QLabel *lblDate = AddLabel(row, QStringLiteral("lblDate"), QStringLiteral("&Date:"));
  txtDate = new DateField(QStringLiteral("txtDate"), QStringLiteral("Date"), session_.locale, this);
  txtDate->setFixedWidth(FieldWidth(txtDate, 12));
  txtDate->SetDate(opening_.date);
  lblDate->setBuddy(txtDate);
  row->addWidget(txtDate);
  QAbstractButton *cmdDate = AttachCalendar(session_, *txtDate, QStringLiteral("cmdDate"));
  row->addWidget(cmdDate);
  for (QWidget *control : {static_cast<QWidget *>(txtDate), static_cast<QWidget *>(cmdDate)}) {
    control->setEnabled(!opening_.kind.hasFixedDate);
  }
  row->addSpacing(spacing::apart);
  QLabel *lblMinutes = AddLabel(row, QStringLiteral("lblMinutes"), QStringLiteral("&Minutes:"));
  txtMinutes = AddNumber(row, QStringLiteral("txtMinutes"), QStringLiteral("Minutes"), session_.locale);
  txtMinutes->installEventFilter(this);
  lblMinutes->setBuddy(txtMinutes);
  row->addSpacing(spacing::apart);
  lblBurned = new SpokenLabel(QStringLiteral("lblBurned"), this);
  row->addWidget(lblBurned, 1);
  chkRecalcCalories = AddCheck(layout, QStringLiteral("chkRecalcCalories"),
                               QStringLiteral("Adjust the calories &burned, based on my weight in the calendar"));
  const bool byWeight = opening_.kind.scalesByWeight;
  chkRecalcCalories->setChecked(byWeight && session_.settings.RecalcCalories);
  chkRecalcCalories->setEnabled(byWeight);
  chkRecalcCalories->setToolTip(byWeight ? QStringLiteral("The list's calories are for a body of %1 %2.")
                                               .arg(ReferenceBodyWeight(session_.settings.UomID))
                                               .arg(session_.UomDisplay.toLower())
                                         : QStringLiteral("This is decided when you have done the exercise."));
}

void frmAddActivity::AddButtons(QVBoxLayout *layout) {
  QHBoxLayout *row = AddRow(layout);
  cmdNewActivity = AddCommand(row, QStringLiteral("cmdNewActivity"), QStringLiteral("&New Exercise..."),
                              QStringLiteral("Makes an exercise of your own and selects it."));
  row->addStretch();
  cmdOK = AddCommand(row, QStringLiteral("cmdOK"), QStringLiteral("&OK"),
                     QStringLiteral("Adds the selected exercise. (Enter)"));
  cmdOK->setDefault(true);
  QPushButton *const cmdCancel = AddCommand(row, QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"),
                                            QStringLiteral("Closes without adding. (Esc)"));
  QPushButton *const cmdHelp = AddCommand(row, QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
  NeedsDoor(*cmdHelp, navigator_.ShowHelp);
  connect(cmdNewActivity, &QPushButton::clicked, this, &frmAddActivity::OnNew);
  connect(cmdOK, &QPushButton::clicked, this, &frmAddActivity::OnOk);
  connect(cmdCancel, &QPushButton::clicked, this, &frmAddActivity::reject);
  connect(cmdHelp, &QPushButton::clicked, this, [this] { navigator_.ShowHelp(QStringLiteral("add_exercise")); });
}

void frmAddActivity::OnRow() {
  cmdOK->setEnabled(grdActivitiesList->CurrentKey().has_value());
  txtMinutes->setText(
      ProposedMinutes(grdActivitiesList->CurrentField(QStringLiteral("Duration")).toString(), session_.locale));
  ShowBurned();
}

ExercisePicked frmAddActivity::Picked() const {
  return {.ActivityID = static_cast<int>(grdActivitiesList->CurrentKey().value_or(0)),
          .date = txtDate->Date(),
          .minutes = txtMinutes->text(),
          .byWeight = chkRecalcCalories->isChecked()};
}

void frmAddActivity::ShowBurned() {
  QString burned;
  GuardedQuietly([&] {
    if (grdActivitiesList->CurrentKey()) burned = BurnedText(EntryOf(session_, Picked()), session_.locale);
  });
  lblBurned->Tell(burned);
}

bool frmAddActivity::eventFilter(QObject *watched, QEvent *event) {
  if (watched == txtMinutes && IsFieldLeft(*event)) MendMinutes();
  return QDialog::eventFilter(watched, event);
}

void frmAddActivity::MendMinutes() {
  if (IsMinutes(txtMinutes->text(), session_.locale)) return;
  txtMinutes->setText(
      ProposedMinutes(grdActivitiesList->CurrentField(QStringLiteral("Duration")).toString(), session_.locale));
}

bool frmAddActivity::CheckDate() {
  if (txtDate->Date().isValid()) return true;
  session_.boxes.Critical(QStringLiteral("Invalid Date"),
                          QStringLiteral("Please choose or enter a valid date for this exercise or workout."));
  txtDate->setFocus();
  txtDate->selectAll();
  return false;
}

// Minutes that were no minutes give way to the list's, and are seen before they are added.
void frmAddActivity::OnOk() {
  const QString typed = txtMinutes->text();
  MendMinutes();
  if (txtMinutes->text() != typed) return txtMinutes->selectAll();
  if (!grdActivitiesList->CurrentKey() || !CheckDate()) return;
  int recordID = 0;
  const ExercisePicked picked = Picked();
  const bool added = Guarded(session_, AddingActivityFailure(), [&] {
    recordID = AddActivity(session_, opening_.kind.entries, EntryOf(session_, picked));
  });
  if (!added) return;
  if (opening_.stored) opening_.stored(recordID, picked.date);
  accept();
}

void frmAddActivity::OnNew() {
  AddRec(
      this, [this](QWidget *parent) { return new ExercisePage(session_, parent); },
      [this](AddRecPage &page) { grdActivitiesList->GoToKey(static_cast<ExercisePage &>(page).ActivityID()); });
  grdActivitiesList->setFocus();
}

}  // namespace trimlog
