#include "weightlog/windows/frmData.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "core/session/session.h"
#include "core/windows/controls/theme.h"
#include "core/windows/frame/print_window.h"
#include "platform/text/text_format.h"
#include "weightlog/calendar_speech.h"
#include "weightlog/windows/calendar_footer.h"
#include "weightlog/windows/calendar_header.h"
#include "weightlog/windows/fit_label.h"
#include "weightlog/windows/frmReward.h"
#include "weightlog/windows/weight_entry.h"

namespace trimlog {

frmData::frmData(Session &session, const Navigator &navigator, QWidget *parent)
    : ContentWindow(parent), session_(session), navigator_(navigator), model_(session) {
  setObjectName(QStringLiteral("frmData"));
  setAccessibleName(tr("Data Calendar"));
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  header_ = new CalendarHeader(navigator_, this);
  layout->addWidget(header_);
  lblNewcomer = new FitLabel(QStringLiteral("lblNewcomer"), Qt::AlignCenter, this);
  lblNewcomer->setText(tr("Type your weight into today's cell and press Enter: that is all it takes."));
  lblNewcomer->setMinimumHeight(fontMetrics().height() + 8);
  layout->addWidget(lblNewcomer);
  grid_ = new MonthGrid(session_.locale, this);
  layout->addWidget(grid_, 1);
  footer_ = new CalendarFooter(this);
  layout->addWidget(footer_);
  for (QLabel **hidden : {&txtCurrentIndex, &txtCurrentDate}) {
    *hidden = new QLabel(this);
    (*hidden)->hide();
  }
  txtCurrentIndex->setObjectName(QStringLiteral("txtCurrentIndex"));
  txtCurrentDate->setObjectName(QStringLiteral("txtCurrentDate"));
  entry_ = std::make_unique<WeightEntry>(session_, model_, *grid_);
  footer_->FillFigures(session_.nutrients);
  model_.Load();
  ShowSettings();
  ShowMonth();
  Connect();
}

frmData::~frmData() = default;

void frmData::Connect() {
  connect(grid_, &MonthGrid::Arranged, footer_,
          [this] { footer_->AlignTotal(grid_->TotalsFont(), grid_->TotalsWidth()); });
  connect(entry_.get(), &WeightEntry::Entered, this, &frmData::ShowMonth);
  connect(entry_.get(), &WeightEntry::Saved, this, &frmData::OnSaved);
  connect(entry_.get(), &WeightEntry::MonthWanted, this, &frmData::GotoMonth);
  connect(entry_.get(), &WeightEntry::NextWanted, this, [this] { focusNextChild(); });
  connect(header_, &CalendarHeader::MonthWanted, this, &frmData::GotoMonth);
  connect(header_, &CalendarHeader::TodayWanted, this, &frmData::GotoToday);
  connect(header_, &CalendarHeader::JournalWanted, this, &frmData::OpenQuickJournal);
  connect(header_, &CalendarHeader::TipsWanted, this, [this] { navigator_.ShowHelp(QStringLiteral("calendar")); });
  connect(footer_, &CalendarFooter::LossWanted, this, [this](bool show) {
    model_.SetShowLoss(show);
    ShowMonth();
  });
  connect(footer_, &CalendarFooter::CaloriesWanted, this, [this](bool show) {
    model_.SetShowCalories(show);
    ShowMonth();
  });
  connect(footer_, &CalendarFooter::FigureWanted, this, [this](int NutrientID) {
    model_.SetNutrientID(NutrientID);
    ShowMonth();
  });
  connect(&session_.changes, &DataChanges::Changed, this, &frmData::OnData);
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &frmData::OnSettings);
}

bool frmData::ValidateFields() { return entry_->TryLeave(); }

EditOutcome frmData::SaveOpenEdit() {
  const EditOutcome outcome = entry_->Leave();
  if (outcome == EditOutcome::Saved) ShowReward();
  return outcome;
}

void frmData::DropOpenEdit() { entry_->Restore(); }

void frmData::Activated() {
  const CalendarMonth &month = model_.Month();
  const int first = month.IndexOf(month.firstDate);
  entry_->Enter(month.CanEnter(month.currentIndex) ? month.currentIndex : first);
}

void frmData::GotoDate(const QDate &date) {
  Navigate([this, &date] { model_.GotoCalendarDate(date); });
}

WindowCommands frmData::Commands() {
  return {{QStringLiteral("mnuFilePrint"), [this] { PrintContents(); }},
          {QStringLiteral("mnuEditDeleteWeight"), [this] { DeleteWeight(); }},
          {QStringLiteral("mnuEditGotoPrevious"), [this] { GotoMonth(-1); }},
          {QStringLiteral("mnuEditGotoNext"), [this] { GotoMonth(1); }},
          {QStringLiteral("mnuEditGotoToday"), [this] { GotoToday(); }}};
}

void frmData::Navigate(const std::function<void()> &move) {
  if (!entry_->TryLeave()) return;
  const bool inField = entry_->HasFocus();
  move();
  entry_->Forget();
  // For who listens: the days get their names, then the focus tells which one it is on, then the figures follow.
  ShowDays();
  if (inField && model_.Month().currentIndex != 0) {
    entry_->Enter(model_.Month().currentIndex);  // shows the figures
  } else {
    ShowTexts();
  }
}

void frmData::GotoMonth(int months) {
  Navigate([this, months] { months > 0 ? model_.GotoNextMonth() : model_.GotoPreviousMonth(); });
}

void frmData::GotoToday() {
  Navigate([this] { model_.GotoToday(); });
}

void frmData::OpenQuickJournal() {
  if (SaveOpenEdit() == EditOutcome::Saved) navigator_.OpenQuickJournal(this);
}

void frmData::DeleteWeight() {
  const int i = model_.Month().currentIndex;
  if (i == 0 || grid_->Field(i)->text().isEmpty()) return;
  const QString question = tr("Delete weight recorded for %1?").arg(model_.Month().Cell(i).dateValue);
  if (!session_.boxes.Ask(tr("Delete Weight?"), question)) return;
  if (entry_->PendingCell() != i) entry_->Enter(i);
  grid_->Field(i)->clear();
  if (entry_->TryLeave()) ShowMonth();
}

void frmData::OnData(const DataChange &change) {
  if (change.table == Table::SelectedNutrients) {  // a custom nutrient may have got another name
    footer_->FillFigures(session_.nutrients);
    ShowSettings();
    return;
  }
  if (change.origin == &model_ || !change.Concerns(session_.profile.CurrentPersonID)) return;
  switch (change.table) {
    case Table::WeightLoss:
      model_.Refresh();
      return ShowMonth();
    case Table::Meals:
    case Table::Activities:
      model_.FillCalendarNutrients(change.date);
      return ShowTexts();
    case Table::People:  // the basal rate is theirs
      model_.FillCalendarNutrients();
      return ShowTexts();
    default:
      return;
  }
}

void frmData::OnSettings() {
  model_.Refresh();
  ShowSettings();
  ShowMonth();
}

void frmData::OnSaved() {
  reward_ = model_.TakeReward();
  ShowMonth();
  if (reward_) QTimer::singleShot(0, this, &frmData::ShowReward);
}

void frmData::ShowReward() {
  if (!reward_) return;
  // Not between a button's press and its release, which would then go astray.
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    QTimer::singleShot(50, this, &frmData::ShowReward);
    return;
  }
  const RewardNotice notice = *std::exchange(reward_, std::nullopt);
  if (session_.windows.SuppressReward) return;
  frmReward window(session_, notice, this->window());
  window.exec();
}

MonthGrid::Setting frmData::GridSetting() const {
  return {session_.settings, session_.profile.BackColor, session_.Today(), footer_->ChosenFigure(),
          !model_.IsNewcomer()};
}

void frmData::ShowMonth() {
  ShowDays();
  ShowTexts();
}

void frmData::ShowDays() {
  // The focus of a field that is switched off wanders to its neighbour; nobody enters that one.
  entry_->Suspend(true);
  grid_->ShowDays(model_.Month(), GridSetting());
  entry_->Suspend(false);
  header_->ShowTitle(model_.Month().title);
  lblNewcomer->setVisible(model_.IsNewcomer());
  ShowCurrent();
}

void frmData::ShowTexts() {
  entry_->Suspend(true);
  grid_->ShowTexts(model_.Month(), GridSetting(), entry_->PendingCell());
  entry_->Suspend(false);
  footer_->ShowTotal(model_.Month().monthTotal, SpokenMonth(model_.Month()), grid_->DesktopPalette());
  footer_->ShowTotalAtAll(!model_.IsNewcomer());
}

void frmData::ShowCurrent() {
  const CalendarMonth &month = model_.Month();
  txtCurrentIndex->setText(month.currentIndex == 0 ? QString() : QString::number(month.currentIndex));
  txtCurrentDate->setText(ShortDate(month.currentDate, session_.locale));
}

void frmData::ShowSettings() {
  const quint32 panel = printing_ ? calendar_colour::white : session_.profile.BackColor;
  const QPalette desktop = grid_->DesktopPalette();
  header_->Paint(panel, desktop);
  footer_->Paint(panel, desktop);
  PaintPanel(lblNewcomer, panel, desktop);
  footer_->ShowSettings(session_.settings);
}

void frmData::changeEvent(QEvent *event) {
  ContentWindow::changeEvent(event);
  if (!entry_ || event->type() != QEvent::PaletteChange) return;
  ShowSettings();
  ShowMonth();
}

void frmData::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
    GotoMonth(event->key() == Qt::Key_PageUp ? -1 : 1);
  } else {
    ContentWindow::keyPressEvent(event);
  }
}

void frmData::PrintContents() {
  if (SaveOpenEdit() != EditOutcome::Saved) return;  // a reward comes now, not above the question
  if (!session_.boxes.Ask(tr("Print Window?"),
                          tr("This will print the current calendar month to your default printer.  "
                             "Would you like to continue?"))) {
    return;
  }
  PrintForm(session_, *this);
}

void frmData::PrepareForPrinting(bool printing) {
  printing_ = printing;
  grid_->SetPaper(printing);
  setPalette(printing ? grid_->DesktopPalette() : QPalette());
  setAutoFillBackground(printing);
  if (const int i = model_.Month().currentIndex) {
    grid_->Field(i)->deselect();
    grid_->Field(i)->setReadOnly(printing);  // shows no cursor then
  }
  header_->ShowButtons(!printing);
  footer_->ShowChoices(!printing);
  ShowSettings();
  ShowMonth();
}

}  // namespace trimlog
