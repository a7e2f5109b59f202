#include "weightlog/windows/frmData.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/session/session.h"
#include "core/settings/options.h"
#include "core/windows/controls/art.h"
#include "core/windows/controls/figure_field.h"
#include "core/windows/controls/theme.h"
#include "core/windows/frame/print_window.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/named_controls.h"
#include "weightlog/calendar_speech.h"
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
  layout->addWidget(MakeHeader());
  lblNewcomer = new FitLabel(QStringLiteral("lblNewcomer"), Qt::AlignCenter, this);
  lblNewcomer->setText(tr("Type your weight into today's cell and press Enter: that is all it takes."));
  lblNewcomer->setMinimumHeight(fontMetrics().height() + 8);
  layout->addWidget(lblNewcomer);
  grid_ = new MonthGrid(session_.locale, this);
  layout->addWidget(grid_, 1);
  layout->addWidget(MakeFooter());
  for (QLabel **hidden : {&txtCurrentIndex, &txtCurrentDate}) {
    *hidden = new QLabel(this);
    (*hidden)->hide();
  }
  txtCurrentIndex->setObjectName(QStringLiteral("txtCurrentIndex"));
  txtCurrentDate->setObjectName(QStringLiteral("txtCurrentDate"));
  entry_ = std::make_unique<WeightEntry>(session_, model_, *grid_);
  FillNutrients();
  model_.Load();
  ShowSettings();
  ShowMonth();
  Connect();
}

frmData::~frmData() = default;

QToolButton *frmData::MakeButton(const char *name, const char *picture, const QString &text, const QString &tip,
                                 void (frmData::*clicked)()) {
  auto *button = new QToolButton(this);
  button->setObjectName(QString::fromLatin1(name));
  button->setIcon(ArtIcon(QString::fromLatin1(picture)));
  button->setText(text);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setAutoRaise(true);
  // A click leaves the focus in the weight field, so that typing goes on there.
  button->setFocusPolicy(Qt::TabFocus);
  if (!text.isEmpty()) button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  connect(button, &QToolButton::clicked, this, clicked);
  return button;
}

QWidget *frmData::MakeHeader() {
  lblMonth = new QWidget(this);
  lblMonth->setObjectName(QStringLiteral("lblMonth"));
  cmdPrevMonth =
      MakeButton("cmdPrevMonth", "previous", {}, tr("Previous month (Page Up)"), &frmData::GotoPreviousMonth);
  cmdNextMonth = MakeButton("cmdNextMonth", "next", {}, tr("Next month (Page Down)"), &frmData::GotoNextMonth);
  cmdToday = MakeButton("cmdToday", "today", tr("To&day"), tr("Go to today"), &frmData::GotoToday);
  cmdDiary = MakeButton("cmdDiary", "journal", tr("&Quick Journal"), tr("Open the Quick Journal for this day"),
                        &frmData::OpenQuickJournal);
  cmdDiary->setEnabled(static_cast<bool>(navigator_.OpenQuickJournal));
  if (!cmdDiary->isEnabled()) cmdDiary->setToolTip(leadsNowhere);
  cmdTips = MakeButton("cmdTips", "tips", tr("T&ips"), tr("Tips for the calendar"), &frmData::OpenTips);
  cmdTips->setEnabled(static_cast<bool>(navigator_.ShowHelp));
  txtMonth = new FitLabel(QStringLiteral("txtMonth"), Qt::AlignLeft | Qt::AlignVCenter, this);
  QFont large = font();
  large.setPointSizeF(QFontInfo(font()).pointSizeF() * 1.4);
  large.setWeight(QFont::DemiBold);
  txtMonth->setFont(large);
  txtMonth->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  auto *row = new QHBoxLayout(lblMonth);
  row->setContentsMargins(6, 3, 6, 3);
  row->setSpacing(4);
  row->addWidget(cmdPrevMonth);
  row->addWidget(cmdNextMonth);
  row->addWidget(txtMonth, 1);
  for (QToolButton *button : {cmdToday, cmdDiary, cmdTips}) row->addWidget(button);
  return lblMonth;
}

QWidget *frmData::MakeFooter() {
  auto *footer = new QWidget(this);
  chkShowLoss = new QCheckBox(tr("Show &Loss"), footer);
  chkShowLoss->setObjectName(QStringLiteral("chkShowLoss"));
  chkShowCalories = new QCheckBox(tr("Show &Calories"), footer);
  chkShowCalories->setObjectName(QStringLiteral("chkShowCalories"));
  cboNutrientID = new QComboBox(footer);
  cboNutrientID->setObjectName(QStringLiteral("cboNutrientID"));
  SpeakAs(cboNutrientID, tr("Figure shown below each day"));
  cboNutrientID->setToolTip(tr("What the calendar shows below each day"));
  cboNutrientID->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  cboNutrientID->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cboNutrientID->setMinimumContentsLength(18);
  lblTotal2 = new QLabel(tr("Month"), footer);
  lblTotal2->setObjectName(QStringLiteral("lblTotal2"));
  lblTotal2->setContentsMargins(8, 2, 8, 2);
  txtTotalMonth = new FigureField(QStringLiteral("txtTotalMonth"), Qt::AlignCenter, footer);
  txtTotalMonth->setToolTip(tr("The loss of this month"));
  auto *row = new QHBoxLayout(footer);
  row->setContentsMargins(8, 4, 0, 4);
  row->setSpacing(10);
  row->addWidget(chkShowLoss);
  row->addWidget(chkShowCalories);
  row->addWidget(cboNutrientID);
  row->addStretch(1);
  row->addWidget(lblTotal2);
  row->addWidget(txtTotalMonth);
  return footer;
}

void frmData::FillNutrients() {
  cboNutrientID->clear();
  for (const OptionChoice &choice : NutrientChoices(session_.nutrients)) {
    cboNutrientID->addItem(choice.text, choice.value);
  }
}

void frmData::Connect() {
  connect(grid_, &MonthGrid::Arranged, this, &frmData::AlignMonthTotal);
  connect(entry_.get(), &WeightEntry::Entered, this, &frmData::ShowMonth);
  connect(entry_.get(), &WeightEntry::Saved, this, &frmData::OnSaved);
  connect(entry_.get(), &WeightEntry::MonthWanted, this, &frmData::GotoMonth);
  connect(entry_.get(), &WeightEntry::NextWanted, this, [this] { focusNextChild(); });
  connect(chkShowLoss, &QCheckBox::clicked, this, [this](bool show) {
    model_.SetShowLoss(show);
    ShowMonth();
  });
  connect(chkShowCalories, &QCheckBox::clicked, this, [this](bool show) {
    model_.SetShowCalories(show);
    ShowMonth();
  });
  connect(cboNutrientID, &QComboBox::activated, this, [this](int index) {
    model_.SetNutrientID(cboNutrientID->itemData(index).toInt());
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
          {QStringLiteral("mnuEditGotoPrevious"), [this] { GotoPreviousMonth(); }},
          {QStringLiteral("mnuEditGotoNext"), [this] { GotoNextMonth(); }},
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

void frmData::OpenTips() { navigator_.ShowHelp(QStringLiteral("calendar")); }

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
    FillNutrients();
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
  return {session_.settings, session_.profile.BackColor, session_.Today(), cboNutrientID->currentText(),
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
  txtMonth->ShowText(model_.Month().title);
  txtTotalMonth->setAccessibleName(SpokenMonth(model_.Month()));
  lblNewcomer->setVisible(model_.IsNewcomer());
  ShowCurrent();
}

void frmData::ShowTexts() {
  entry_->Suspend(true);
  grid_->ShowTexts(model_.Month(), GridSetting(), entry_->PendingCell());
  entry_->Suspend(false);
  ShowMonthTotal();
}

void frmData::ShowMonthTotal() {
  const CalendarTotal &total = model_.Month().monthTotal;
  const QPalette desktop = grid_->DesktopPalette();
  txtTotalMonth->ShowText(total.text);
  txtTotalMonth->ShowColor(total.color == calendar_colour::even
                               ? desktop.color(QPalette::WindowText)
                               : MeaningColor(ColorFromBgr(total.color), desktop.color(QPalette::Window)));
  txtTotalMonth->setVisible(!model_.IsNewcomer());
  lblTotal2->setVisible(!model_.IsNewcomer());
}

void frmData::AlignMonthTotal() {
  QFont strong = grid_->TotalsFont();
  strong.setWeight(QFont::DemiBold);  // as the weights are
  txtTotalMonth->UseFont(strong);
  txtTotalMonth->setFixedWidth(grid_->TotalsWidth());
}

void frmData::ShowCurrent() {
  const CalendarMonth &month = model_.Month();
  txtCurrentIndex->setText(month.currentIndex == 0 ? QString() : QString::number(month.currentIndex));
  txtCurrentDate->setText(ShortDate(month.currentDate, session_.locale));
}

void frmData::ShowSettings() {
  const quint32 panel = printing_ ? calendar_colour::white : session_.profile.BackColor;
  const QPalette desktop = grid_->DesktopPalette();
  PaintPanel(lblMonth, panel, desktop);
  PaintPanel(lblTotal2, panel, desktop);
  PaintPanel(lblNewcomer, panel, desktop);
  const QPalette buttons = PanelButtonPalette(PanelColor(panel, desktop));
  for (QToolButton *button : {cmdPrevMonth, cmdNextMonth, cmdToday, cmdDiary, cmdTips}) button->setPalette(buttons);
  chkShowLoss->setChecked(session_.settings.ShowLoss);
  chkShowCalories->setChecked(session_.settings.ShowCalories);
  cboNutrientID->setCurrentIndex(cboNutrientID->findData(session_.settings.NutrientID));
}

void frmData::changeEvent(QEvent *event) {
  ContentWindow::changeEvent(event);
  if (entry_ && event->type() == QEvent::PaletteChange) ShowMonth();
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
  for (QWidget *control : std::initializer_list<QWidget *>{cmdPrevMonth, cmdNextMonth, cmdToday, cmdDiary, cmdTips,
                                                           chkShowLoss, chkShowCalories, cboNutrientID}) {
    control->setVisible(!printing);
  }
  ShowSettings();
  ShowMonth();
}

}  // namespace trimlog
