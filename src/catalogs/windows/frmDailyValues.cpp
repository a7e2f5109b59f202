#include "catalogs/windows/frmDailyValues.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "core/session/failure_guard.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/ok_cancel.h"
#include "platform/windows/controls/spacing.h"
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
  AddNote(layout, QStringLiteral("lblNote"),
          QStringLiteral("Enter the percentages of the daily value from the food label and click <OK>.  The amounts go "
                         "into the fields of the food; an empty field changes nothing."));
  auto *grid = new QGridLayout;
  grid->setHorizontalSpacing(spacing::around);
  layout->addLayout(grid);
  for (int index = 0; index < static_cast<int>(dailyValueNutrients.size()); ++index) AddField(grid, index);

  AddOkCancel(*this, layout, [this] { OnOk(); });
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
