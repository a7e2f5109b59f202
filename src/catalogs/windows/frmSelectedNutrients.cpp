#include "catalogs/windows/frmSelectedNutrients.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/session/failure_guard.h"
#include "core/windows/controls/door_control.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/ok_cancel.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int shortNameLength = 255;

QString Numbered(const QString &name, int position) { return QStringLiteral("%1(%2)").arg(name).arg(position); }

}  // namespace

frmSelectedNutrients::frmSelectedNutrients(Session &session, const Navigator &navigator, QWidget *owner)
    : QDialog(owner), session_(session), choices_(SelectableNutrients(session)) {
  const NutrientSelection selection = ReadNutrientSelection(session_);
  setObjectName(QStringLiteral("frmSelectedNutrients"));
  setWindowTitle(QStringLiteral("Trimlog Pro Nutrient Selections"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);

  auto *layout = new QVBoxLayout(this);
  AddNote(layout, QStringLiteral("lblNote"),
          QStringLiteral("Choose up to ten nutrients.  They are shown wherever foods are listed, in this order.  The "
                         "custom nutrients take any short name that you type."));
  auto *grid = new QGridLayout;
  grid->setColumnStretch(1, 2);
  grid->setColumnStretch(2, 1);
  layout->addLayout(grid);

  AddHeadings(grid);
  for (int position = 1; position <= shownNutrients; ++position) AddRow(grid, position);
  ShowSelection(selection);

  QDialogButtonBox *const buttons = AddOkCancel(
      *this, layout, [this] { OnOk(); }, QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
  NeedsDoor(*buttons->button(QDialogButtonBox::Help), navigator.ShowHelp);
  connect(buttons, &QDialogButtonBox::helpRequested, this,
          [&navigator] { navigator.ShowHelp(QStringLiteral("nutrients")); });
}

void frmSelectedNutrients::AddHeadings(QGridLayout *grid) {
  grid->addWidget(new QLabel(QStringLiteral("Nutrient"), this), 0, 1);
  grid->addWidget(new QLabel(QStringLiteral("Short name"), this), 0, 2);
  grid->addWidget(new QLabel(QStringLiteral("Calculate Daily Totals?"), this), 0, 3);
}

void frmSelectedNutrients::AddRow(QGridLayout *grid, int position) {
  PositionRow &row = Row(position);
  // The label is what a screen reader says of the list beside it.
  const QString number = position < shownNutrients ? QStringLiteral("&%1").arg(position) : QStringLiteral("1&0");
  auto *label = new QLabel(QStringLiteral("Nutrient %1:").arg(number), this);
  row.cboNutrient = new QComboBox(this);
  row.cboNutrient->setObjectName(Numbered(QStringLiteral("cboNutrient"), position));
  for (const NutrientChoice &choice : choices_) row.cboNutrient->addItem(choice.descriptionPlusUnit, choice.NutrientID);
  label->setBuddy(row.cboNutrient);
  row.txtNutrient = new TextField(Numbered(QStringLiteral("txtNutrient"), position),
                                  QStringLiteral("Short name of nutrient %1").arg(position), shortNameLength, this);
  row.chkNutTotal = new QCheckBox(this);
  row.chkNutTotal->setObjectName(Numbered(QStringLiteral("chkNutTotal"), position));
  row.chkNutTotal->setAccessibleName(QStringLiteral("Calculate daily totals of nutrient %1").arg(position));
  grid->addWidget(label, position, 0);
  grid->addWidget(row.cboNutrient, position, 1);
  grid->addWidget(row.txtNutrient, position, 2);
  grid->addWidget(row.chkNutTotal, position, 3, Qt::AlignHCenter);
  connect(row.cboNutrient, &QComboBox::activated, this, [this, position] { OnChosen(position); });
}

void frmSelectedNutrients::ShowSelection(const NutrientSelection &selection) {
  for (int position = 1; position <= shownNutrients; ++position) {
    const SelectedNutrient &shown = selection[static_cast<std::size_t>(position - 1)];
    PositionRow &row = Row(position);
    row.cboNutrient->setCurrentIndex(std::max(0, row.cboNutrient->findData(shown.NutrientID)));
    row.txtNutrient->setText(shown.description);
    row.chkNutTotal->setChecked(shown.NutTotal);
  }
}

void frmSelectedNutrients::OnChosen(int position) {
  PositionRow &row = Row(position);
  row.txtNutrient->setText(choices_.at(row.cboNutrient->currentIndex()).shortDescription);
}

NutrientSelection frmSelectedNutrients::Chosen() const {
  NutrientSelection selection;
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    selection[i].NutrientID = rows_[i].cboNutrient->currentData().toInt();
    selection[i].description = rows_[i].txtNutrient->text();
    selection[i].NutTotal = rows_[i].chkNutTotal->isChecked();
  }
  return selection;
}

void frmSelectedNutrients::OnOk() {
  if (HandheldHoldsFoods(session_)) {
    session_.boxes.Inform(
        QStringLiteral("Important!"),
        QStringLiteral("IMPORTANT: If you changed anything regarding the nutrient selections, you will "
                       "need to re-install the food databases on your handheld.\n\nTo do this, choose "
                       "\"Configure\" from the \"Mobile\" menu, and then click the \"Re-install Foods\" "
                       "button."));
  }
  const FailureExit failure{QStringLiteral("frmSelectedNutrients"), QStringLiteral("cmdOK_Click"),
                            QStringLiteral("Error Saving Nutrients"),
                            QStringLiteral("An error occurred while saving your nutrient selections.")};
  if (Guarded(session_, failure, [&] { SaveNutrientSelection(session_, Chosen()); })) accept();
}

void OpenNutrientSelection(Session &session, const Navigator &navigator, QWidget *owner) {
  const FailureExit failure{QStringLiteral("frmSelectedNutrients"), QStringLiteral("Form_Load"),
                            QStringLiteral("Error Loading Setup Info"),
                            QStringLiteral("An error occurred while loading your setup information.")};
  std::unique_ptr<frmSelectedNutrients> window;
  if (Guarded(session, failure, [&] { window = std::make_unique<frmSelectedNutrients>(session, navigator, owner); })) {
    window->exec();
  }
}

}  // namespace trimlog
