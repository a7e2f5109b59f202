#include "catalogs/windows/frmDailyValues.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/session/failure_guard.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

constexpr int fieldsInAColumn = 8;

}  // namespace

frmDailyValues::frmDailyValues(Session &session, QWidget *owner) : QDialog(owner), session_(session) {
  setObjectName(QStringLiteral("frmDailyValues"));
  setWindowTitle(QStringLiteral("Convert from Percent of Daily Value"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);

  auto *layout = new QVBoxLayout(this);
  auto *note =
      new QLabel(QStringLiteral("Enter the percentages of the daily value from the food label and click <OK>.  The "
                                "amounts go into the fields of the food; an empty field changes nothing."),
                 this);
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  layout->addWidget(note);
  auto *grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  layout->addLayout(grid);
  for (int index = 0; index < static_cast<int>(dailyValueNutrients.size()); ++index) AddField(grid, index);

  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmDailyValues::OnOk);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmDailyValues::reject);
  layout->addWidget(buttons);
  txtAddRec0.front()->setFocus();
}

void frmDailyValues::AddField(QGridLayout *grid, int index) {
  const std::size_t at = static_cast<std::size_t>(index);
  const QString label = DailyValueLabel(session_.nutrients, dailyValueNutrients[at]);
  auto *field = new NumberField(QStringLiteral("txtAddRec0(%1)").arg(index), label, session_.locale, this);
  field->SetRange(0, highestPercent);
  txtAddRec0[at] = field;
  const int row = index % fieldsInAColumn;
  const int column = index / fieldsInAColumn * 2;
  auto *caption = new QLabel(label, this);
  caption->setBuddy(field);
  grid->addWidget(caption, row, column, Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(field, row, column + 1);
}

bool frmDailyValues::CheckPercents() {
  for (NumberField *field : txtAddRec0) {
    const QString complaint = field->Complaint();
    if (complaint.isEmpty()) continue;
    session_.boxes.Critical(QStringLiteral("Invalid Value"), complaint);
    field->setFocus();
    field->selectAll();
    return false;
  }
  return true;
}

void frmDailyValues::OnOk() {
  if (!CheckPercents()) return;
  const FailureExit failure{QStringLiteral("frmDailyValues"), QStringLiteral("cmdOK_Click"),
                            QStringLiteral("Error Converting Values"),
                            QStringLiteral("An error occurred while converting the percentages.")};
  const bool converted = Guarded(session_, failure, [&] {
    amounts_.clear();
    for (std::size_t i = 0; i < dailyValueNutrients.size(); ++i) {
      if (txtAddRec0[i]->text().trimmed().isEmpty()) continue;
      const int id = dailyValueNutrients[i];
      amounts_.insert(id, AmountFromDailyValue(session_, id, txtAddRec0[i]->ValueOrZero()));
    }
  });
  if (converted) accept();
}

}  // namespace trimlog
