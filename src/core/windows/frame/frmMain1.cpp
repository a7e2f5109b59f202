#include "core/windows/frame/frmMain1.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "core/frame/frame_data.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/figure_field.h"
#include "core/windows/controls/theme.h"
#include "core/windows/frame/goal_progress.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

constexpr int figureMargins = 7;
constexpr double captionShare = 0.85;

}  // namespace

/// One column of the panel: a caption above its figure.
FigureField *frmMain1::AddFigure(const QString &name, const QString &label, const QString &tip) {
  auto *layout = static_cast<QGridLayout *>(this->layout());
  auto *field = new FigureField(QStringLiteral("txt") + name, Qt::AlignCenter, this);
  field->setToolTip(tip);
  auto *caption = new QLabel(label, this);
  caption->setObjectName(QStringLiteral("lbl") + name);
  caption->setTextFormat(Qt::PlainText);
  caption->setAlignment(Qt::AlignCenter);
  caption->setToolTip(tip);
  caption->setBuddy(field);
  field->setAccessibleName(label);
  QFont small = font();
  small.setPointSizeF(QFontInfo(small).pointSizeF() * captionShare);
  caption->setFont(small);
  QFont strong = font();
  strong.setWeight(QFont::DemiBold);
  field->UseFont(strong);
  const int column = columns_++;
  layout->addWidget(caption, 0, column);
  layout->addWidget(field, 1, column);
  layout->setColumnStretch(column, 2);
  return field;
}

frmMain1::frmMain1(Session &session, QWidget *parent) : QWidget(parent), session_(session) {
  setObjectName(QStringLiteral("frmMain1"));
  setAccessibleName(QStringLiteral("Statistics"));
  auto *layout = new QGridLayout(this);
  layout->setContentsMargins(spacing::between, spacing::tight, spacing::between, spacing::tight);
  layout->setHorizontalSpacing(spacing::between);
  layout->setVerticalSpacing(1);
  txtPersonName = AddFigure(QStringLiteral("PersonName"), QStringLiteral("Name"), {});
  layout->setColumnStretch(0, 3);
  txtGoal =
      AddFigure(QStringLiteral("Goal"), {}, QStringLiteral("This is your weight loss goal as defined in the Setup"));
  txtLbsLost =
      AddFigure(QStringLiteral("LbsLost"), {}, QStringLiteral("This is the total weight that you have lost to date."));
  txtLbsPerWeek = AddFigure(QStringLiteral("LbsPerWeek"), {},
                            QStringLiteral("This is your current pace (the average weight you will lose in a week)"));
  txtLbsLeft = AddFigure(
      QStringLiteral("LbsLeft"), {},
      QStringLiteral("According to the goal that you have entered, this is the weight that you need to lose."));
  txtDaysLeft =
      AddFigure(QStringLiteral("DaysLeft"), QStringLiteral("Days Left"),
                QStringLiteral("This is the projected number of days that you have left to reach your goal."));
  txtProjDate = AddFigure(QStringLiteral("ProjDate"), QStringLiteral("Proj. Date"),
                          QStringLiteral("This is the projected date at which you will reach your goal."));
  // One width for all figures: that of the longest of them.
  const int widest = txtProjDate->fontMetrics().horizontalAdvance(ShortDate(QDate(2028, 12, 28), session_.locale));
  for (int column = 1; column < columns_; ++column) layout->setColumnMinimumWidth(column, widest + figureMargins);
  progress_ = new GoalProgress(this);
  layout->addWidget(progress_, 2, 0, 1, columns_);
  layout->addWidget(MakeSampleMark(), 3, 0, 1, columns_);

  connect(&session_.changes, &DataChanges::StatisticsChanged, this, &frmMain1::ShowStatistics);
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &frmMain1::Refresh);
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    if (change.table == Table::People) ShowPerson();
  });
}

QWidget *frmMain1::MakeSampleMark() {
  pnlSample = new QWidget(this);
  pnlSample->setObjectName(QStringLiteral("pnlSample"));
  auto *row = new QHBoxLayout(pnlSample);
  row->setContentsMargins(0, 2, 0, 0);
  auto *lblSample =
      new QLabel(tr("You are looking at sample data: what you change here is undone at exit."), pnlSample);
  lblSample->setObjectName(QStringLiteral("lblSample"));
  auto *cmdOwnProfile = new QToolButton(pnlSample);
  cmdOwnProfile->setObjectName(QStringLiteral("cmdOwnProfile"));
  cmdOwnProfile->setText(tr("My Own Profile"));
  cmdOwnProfile->setToolTip(tr("Goes to your own profile, or makes one"));
  cmdOwnProfile->setFocusPolicy(Qt::TabFocus);
  row->addWidget(lblSample, 1);
  row->addWidget(cmdOwnProfile);
  connect(cmdOwnProfile, &QToolButton::clicked, this, &frmMain1::OwnProfileWanted);
  return pnlSample;
}

void frmMain1::Refresh() {
  PaintPanel(this, session_.profile.BackColor);
  pnlSample->setVisible(session_.profile.IsSample());
  ShowUnits();
  ShowPerson();
  ShowStatistics();
}

// Figures stand on the panel's own colour, which follows the desktop.
void frmMain1::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  for (FigureField *figure : findChildren<FigureField *>()) {
    figure->ShowColor(palette().color(QPalette::WindowText));
  }
}

void frmMain1::ShowPerson() {
  GuardedQuietly([this] {
    const PersonFigures figures = ReadPersonFigures(session_);
    txtPersonName->ShowText(figures.PersonName);
    txtPersonName->setToolTip(figures.PersonName);
    txtGoal->ShowText(figures.Goal);
  });
}

void frmMain1::ShowStatistics() {
  const Statistics &statistics = session_.profile.statistics;
  txtLbsLost->ShowText(statistics.LbsLost);
  txtLbsPerWeek->ShowText(statistics.LbsPerWeek);
  txtLbsLeft->ShowText(statistics.LbsLeft);
  txtDaysLeft->ShowText(statistics.DaysLeft);
  txtProjDate->ShowText(statistics.ProjDate);
  progress_->ShowProgress(statistics.Progress);
}

void frmMain1::ShowUnits() {
  const QString unit = session_.UomDisplay;
  const auto relabel = [this](FigureField *field, const QString &text) {
    field->setAccessibleName(text);
    findChild<QLabel *>(QStringLiteral("lbl") + field->objectName().mid(3))->setText(text);
  };
  relabel(txtGoal, QStringLiteral("Goal (%1)").arg(unit));
  relabel(txtLbsLost, QStringLiteral("%1 Lost").arg(unit));
  relabel(txtLbsPerWeek, QStringLiteral("%1/Week").arg(unit));
  relabel(txtLbsLeft, QStringLiteral("%1 Left").arg(unit));
}

}  // namespace trimlog
