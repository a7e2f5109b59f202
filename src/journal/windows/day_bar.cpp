#include "journal/windows/day_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolButton>
#include <algorithm>

#include "core/session/session.h"
#include "core/windows/controls/art.h"
#include "core/windows/controls/show_calendar.h"
#include "core/windows/controls/theme.h"
#include "journal/day/journal_day.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/date_field.h"

namespace trimlog {

namespace {

constexpr int dateCharacters = 10;

QString Beside(const QString &weekday, qint64 days) {
  switch (days) {
    case -1:
      return DayBar::tr("%1, yesterday").arg(weekday);
    case 0:
      return DayBar::tr("%1, today").arg(weekday);
    case 1:
      return DayBar::tr("%1, tomorrow").arg(weekday);
    default:
      return weekday;
  }
}

/// The day in words, the longest first.
QStringList DayNames(const QDate &date, const QDate &today, const QLocale &locale) {
  const QString weekday = locale.dayName(date.dayOfWeek());
  return {Beside(weekday, today.daysTo(date)), weekday, locale.dayName(date.dayOfWeek(), QLocale::ShortFormat)};
}

}  // namespace

DayBar::DayBar(Session &session, JournalDay &day, QWidget *window) : QWidget(window), session_(session), day_(day) {
  setObjectName(QStringLiteral("DayBar"));
  MakeControls();
  Connect();
  for (const int days : {-1, 1}) {
    auto *keys = new QShortcut(QKeySequence(days < 0 ? Qt::ALT | Qt::Key_Left : Qt::ALT | Qt::Key_Right), window);
    keys->setContext(Qt::WidgetWithChildrenShortcut);
    connect(keys, &QShortcut::activated, this, [this, days] {
      if (Step(days)) Q_EMIT DayChosen();
    });
  }
  ShowView();
  Show();
  ShowColours();
}

void DayBar::MakeControls() {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(spacing::between, spacing::tight, 0, spacing::tight);
  row->setSpacing(spacing::tight);
  optViewAll = AddOption(row, QStringLiteral("optViewAll"), tr(" View All Dates"),
                         tr("Shows what was recorded on all days, the newest first"));
  optViewSingle =
      AddOption(row, QStringLiteral("optViewSingle"), tr(" View Single Date:"), tr("Shows one day by itself"));
  GroupOptions(this, {optViewAll, optViewSingle});
  txtDate = new DateField(QStringLiteral("txtDate"), tr("Date"), session_.locale, this);
  txtDate->setFixedWidth(FieldWidth(txtDate, dateCharacters));
  txtDate->setToolTip(tr("The day that is shown. Page Up and Page Down go to the day before and behind."));
  txtDate->installEventFilter(this);
  cmdDate = new QToolButton(this);
  AttachCalendar(session_, *txtDate, QStringLiteral("cmdDate"), cmdDate);
  cmdDate->setAutoRaise(true);
  cmdPrev = MakeStep("cmdPrev", "previous", tr("Previous day (Alt+Left)"), -1);
  cmdNext = MakeStep("cmdNext", "next", tr("Next day (Alt+Right)"), 1);
  lblDate = MakeLabel(QStringLiteral("lblDate"), {});
  lblDate->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  for (QWidget *control : std::initializer_list<QWidget *>{txtDate, cmdDate, cmdPrev, cmdNext}) row->addWidget(control);
  row->addWidget(lblDate, 1);
}

QToolButton *DayBar::MakeStep(const char *name, const char *picture, const QString &tip, int days) {
  auto *button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setIcon(ArtIcon(QLatin1String(picture)));
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setAutoRaise(true);
  connect(button, &QToolButton::clicked, this, [this, days] {
    if (Step(days)) Q_EMIT DayChosen();
  });
  return button;
}

void DayBar::Connect() {
  connect(optViewAll, &QRadioButton::clicked, this, [this] {
    day_.ShowView(JournalView::AllDates);
    ShowView();
  });
  connect(optViewSingle, &QRadioButton::clicked, this, [this] {
    day_.ShowView(JournalView::SingleDate);
    ShowView();
  });
  connect(txtDate, &DateField::editingFinished, this, &DayBar::ApplyTyped);
  connect(&day_, &JournalDay::DateChanged, this, &DayBar::Show);
  connect(&day_, &JournalDay::ScopeChanged, this, &DayBar::ShowView);
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &DayBar::ShowColours);
}

void DayBar::Show() {
  txtDate->SetDate(day_.Date());
  ShowDayName();
}

// As much as there is room for: the name of the day must not make the whole window wider.
void DayBar::ShowDayName() {
  const QStringList names = DayNames(day_.Date(), session_.Today(), session_.locale);
  const auto fits = [this](const QString &name) { return fontMetrics().horizontalAdvance(name) <= lblDate->width(); };
  const auto shown = std::ranges::find_if(names, fits);
  lblDate->setText(shown == names.end() ? QString() : *shown);
  lblDate->setToolTip(names.first());
}

void DayBar::ShowView() { (day_.IsSingleDate() ? optViewSingle : optViewAll)->setChecked(true); }

void DayBar::ShowColours() {
  PaintPanel(this, session_.profile.BackColor);
  const QPalette buttons = PanelButtonPalette(PanelColor(session_.profile.BackColor));
  for (QToolButton *button : {cmdDate, cmdPrev, cmdNext}) button->setPalette(buttons);
}

void DayBar::ApplyTyped() {
  // A box that was only passed through says nothing about which days are to be seen.
  if (txtDate->isModified() && Apply(txtDate->Date())) Q_EMIT DayChosen();
}

bool DayBar::Step(int days) {
  const QDate shown = txtDate->Date();
  return shown.isValid() && Apply(shown.addDays(days));
}

bool DayBar::Apply(const QDate &date) {
  if (!IsDate(ShortDate(date, session_.locale), session_.locale)) return false;  // none, or behind the last year
  const bool went = day_.GoToDate(date);
  Show();  // what was typed comes into its usual form, or gives way when the day could not be left
  return went;
}

void DayBar::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  layout()->activate();
  ShowDayName();
}

bool DayBar::event(QEvent *event) {
  if (event->type() == QEvent::WindowActivate) ShowDayName();  // midnight may have passed
  if (event->type() == QEvent::ApplicationPaletteChange) ShowColours();
  return QWidget::event(event);
}

bool DayBar::eventFilter(QObject *watched, QEvent *event) {
  if (watched == txtDate && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
      if (Step(key == Qt::Key_PageUp ? -1 : 1)) txtDate->selectAll();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace trimlog
