#include "weightlog/windows/calendar_header.h"

#include <QHBoxLayout>
#include <QToolButton>

#include "core/session/navigator.h"
#include "core/windows/controls/art.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/spacing.h"
#include "weightlog/windows/fit_label.h"

namespace trimlog {

namespace {

constexpr double titleScale = 1.4;

}  // namespace

CalendarHeader::CalendarHeader(const Navigator &navigator, QWidget *parent) : QWidget(parent) {
  setObjectName(QStringLiteral("lblMonth"));
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(spacing::between, spacing::tight, spacing::between, spacing::tight);
  row->setSpacing(spacing::tight);
  const QToolButton *cmdPrevMonth = AddButton("cmdPrevMonth", "previous", {}, tr("Previous month (Page Up)"));
  const QToolButton *cmdNextMonth = AddButton("cmdNextMonth", "next", {}, tr("Next month (Page Down)"));
  txtMonth = new FitLabel(QStringLiteral("txtMonth"), Qt::AlignLeft | Qt::AlignVCenter, this);
  QFont large = font();
  large.setPointSizeF(QFontInfo(font()).pointSizeF() * titleScale);
  large.setWeight(QFont::DemiBold);
  txtMonth->setFont(large);
  txtMonth->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  row->addWidget(txtMonth, 1);
  const QToolButton *cmdToday = AddButton("cmdToday", "today", tr("To&day"), tr("Go to today"));
  QToolButton *cmdDiary =
      AddButton("cmdDiary", "journal", tr("&Quick Journal"), tr("Open the Quick Journal for this day"));
  QToolButton *cmdTips = AddButton("cmdTips", "tips", tr("T&ips"), tr("Tips for the calendar"));
  NeedsDoor(*cmdDiary, navigator.OpenQuickJournal);
  NeedsDoor(*cmdTips, navigator.ShowHelp);
  connect(cmdPrevMonth, &QToolButton::clicked, this, [this] { Q_EMIT MonthWanted(-1); });
  connect(cmdNextMonth, &QToolButton::clicked, this, [this] { Q_EMIT MonthWanted(1); });
  connect(cmdToday, &QToolButton::clicked, this, &CalendarHeader::TodayWanted);
  connect(cmdDiary, &QToolButton::clicked, this, &CalendarHeader::JournalWanted);
  connect(cmdTips, &QToolButton::clicked, this, &CalendarHeader::TipsWanted);
}

QToolButton *CalendarHeader::AddButton(const char *name, const char *picture, const QString &text, const QString &tip) {
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
  layout()->addWidget(button);
  buttons_.append(button);
  return button;
}

void CalendarHeader::ShowTitle(const QString &month) { txtMonth->ShowText(month); }

void CalendarHeader::Paint(quint32 colour, const QPalette &desktop) {
  PaintPanel(this, colour, desktop);
  const QPalette palette = PanelButtonPalette(PanelColor(colour, desktop));
  for (QToolButton *button : buttons_) button->setPalette(palette);
}

void CalendarHeader::ShowButtons(bool show) {
  for (QToolButton *button : buttons_) button->setVisible(show);
}

}  // namespace trimlog
