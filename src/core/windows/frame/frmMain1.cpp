#include "core/windows/frame/frmMain1.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "core/frame/frame_data.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/theme.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr int fieldMargins = 14;

/// One column of the panel: a label above its read-only field, wide enough for `widest`.
QLineEdit *AddField(QGridLayout *layout, const QString &name, const QString &label, const QString &widest,
                    const QString &tip) {
  QWidget *panel = layout->parentWidget();
  auto *field = new QLineEdit(panel);
  field->setObjectName(QStringLiteral("txt") + name);
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::ClickFocus);  // to be read and copied from, not a stop on the keyboard's way
  field->setToolTip(tip);
  field->setMinimumWidth(field->fontMetrics().horizontalAdvance(widest) + fieldMargins);
  auto *caption = new QLabel(label, panel);
  caption->setObjectName(QStringLiteral("lbl") + name);
  caption->setToolTip(tip);
  caption->setBuddy(field);
  field->setAccessibleName(label);
  const int column = layout->columnCount();
  layout->addWidget(caption, 0, column);
  layout->addWidget(field, 1, column);
  layout->setColumnStretch(column, 1);
  return field;
}

}  // namespace

frmMain1::frmMain1(Session &session, QWidget *parent) : QWidget(parent), session_(session) {
  setObjectName(QStringLiteral("frmMain1"));
  setAccessibleName(QStringLiteral("Statistics"));
  auto *layout = new QGridLayout(this);
  layout->setContentsMargins(8, 4, 8, 6);
  layout->setHorizontalSpacing(6);
  layout->setVerticalSpacing(1);
  const QString weight = QStringLiteral("888.8");
  const QString longestDate = ShortDate(QDate(2028, 12, 28), session_.locale);
  txtPersonName =
      AddField(layout, QStringLiteral("PersonName"), QStringLiteral("Name"), QStringLiteral("Ann Smith"), {});
  layout->setColumnStretch(layout->columnCount() - 1, 3);
  txtGoal = AddField(layout, QStringLiteral("Goal"), {}, weight,
                     QStringLiteral("This is your weight loss goal as defined in the Setup"));
  txtLbsLost = AddField(layout, QStringLiteral("LbsLost"), {}, QStringLiteral("Gained 88.8"),
                        QStringLiteral("This is the total weight that you have lost to date."));
  txtLbsPerWeek = AddField(layout, QStringLiteral("LbsPerWeek"), {}, weight,
                           QStringLiteral("This is your current pace (the average weight you will lose in a week)"));
  txtLbsLeft = AddField(
      layout, QStringLiteral("LbsLeft"), {}, weight,
      QStringLiteral("According to the goal that you have entered, this is the weight that you need to lose."));
  txtDaysLeft = AddField(layout, QStringLiteral("DaysLeft"), QStringLiteral("Days Left"), weight,
                         QStringLiteral("This is the projected number of days that you have left to reach your goal."));
  txtProjDate = AddField(layout, QStringLiteral("ProjDate"), QStringLiteral("Proj. Date"), longestDate,
                         QStringLiteral("This is the projected date at which you will reach your goal."));
  for (QLineEdit *figure : {txtGoal, txtLbsLost, txtLbsPerWeek, txtLbsLeft, txtDaysLeft, txtProjDate}) {
    figure->setAlignment(Qt::AlignCenter);
  }

  connect(&session_.changes, &DataChanges::StatisticsChanged, this, &frmMain1::ShowStatistics);
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &frmMain1::Refresh);
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    if (change.table == Table::People) ShowPerson();
  });
}

void frmMain1::Refresh() {
  PaintPanel(this, session_.profile.BackColor);
  ShowUnits();
  ShowPerson();
  ShowStatistics();
}

void frmMain1::ShowPerson() {
  GuardedQuietly([this] {
    const PersonFigures figures = ReadPersonFigures(session_);
    txtPersonName->setText(figures.PersonName);
    txtPersonName->setCursorPosition(0);
    txtPersonName->setToolTip(figures.PersonName);
    txtGoal->setText(figures.Goal);
  });
}

void frmMain1::ShowStatistics() {
  const Statistics &statistics = session_.profile.statistics;
  txtLbsLost->setText(statistics.LbsLost);
  txtLbsPerWeek->setText(statistics.LbsPerWeek);
  txtLbsLeft->setText(statistics.LbsLeft);
  txtDaysLeft->setText(statistics.DaysLeft);
  txtProjDate->setText(statistics.ProjDate);
}

void frmMain1::ShowUnits() {
  const QString unit = session_.UomDisplay;
  const auto relabel = [this](QLineEdit *field, const QString &text) {
    field->setAccessibleName(text);
    findChild<QLabel *>(QStringLiteral("lbl") + field->objectName().mid(3))->setText(text);
  };
  relabel(txtGoal, QStringLiteral("Goal (%1)").arg(unit));
  relabel(txtLbsLost, QStringLiteral("%1 Lost").arg(unit));
  relabel(txtLbsPerWeek, QStringLiteral("%1/Week").arg(unit));
  relabel(txtLbsLeft, QStringLiteral("%1 Left").arg(unit));
}

}  // namespace trimlog
