#include "core/windows/controls/frmCalendar.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/windows/controls/art.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/date_field.h"

namespace trimlog {

namespace {

constexpr int yearsListed = 100;  // before and after today; others join the list when they are shown

QPushButton *AddButton(QLayout *layout, const char *name, const QString &caption, const QString &spoken = {}) {
  auto *button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  if (caption.isEmpty()) button->setAccessibleName(spoken);
  button->setAutoDefault(false);
  layout->addWidget(button);
  return button;
}

}  // namespace

bool ShowCalendar(Session &session, QLineEdit &textBox) {
  const QDate typed = ParseDate(textBox.text(), session.locale);
  frmCalendar calendar(session, typed.isValid() ? typed : session.Today(), textBox.window());
  const bool chosen = calendar.exec() == QDialog::Accepted;
  textBox.setFocus(Qt::OtherFocusReason);
  if (!chosen) return false;
  const QString text = ShortDate(calendar.Chosen(), session.locale);
  textBox.setText(text);
  textBox.setModified(true);
  textBox.selectAll();
  Q_EMIT textBox.textEdited(text);
  Q_EMIT textBox.editingFinished();
  return true;
}

QAbstractButton *AttachCalendar(Session &session, DateField &field, const QString &buttonName,
                                QAbstractButton *button) {
  if (!button) button = new QToolButton(field.parentWidget());
  button->setObjectName(buttonName);
  if (button->icon().isNull() && button->text().isEmpty()) {
    button->setIcon(ArtIcon(QStringLiteral("calendar")));
    button->setToolTip(frmCalendar::tr("Choose the date from a calendar (F4)"));
  }
  button->setAccessibleName(frmCalendar::tr("%1, calendar").arg(field.accessibleName()));
  const auto open = [&session, &field] {
    if (field.isEnabled() && !field.isReadOnly()) ShowCalendar(session, field);
  };
  QObject::connect(button, &QAbstractButton::clicked, &field, open);
  QObject::connect(&field, &DateField::CalendarWanted, &field, open);
  return button;
}

frmCalendar::frmCalendar(Session &session, const QDate &initial, QWidget *owner)
    : QDialog(owner), session_(session), calDate(new QCalendarWidget(this)), lblChosen(new QLabel(this)) {
  setObjectName(QStringLiteral("frmCalendar"));
  setWindowTitle(tr("Calendar"));
  setWindowFlag(Qt::WindowStaysOnTopHint);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto *layout = new QVBoxLayout(this);
  calDate->setObjectName(QStringLiteral("calDate"));
  calDate->setAccessibleName(tr("Days of the month"));
  calDate->setLocale(session.locale);
  calDate->setFirstDayOfWeek(Qt::Sunday);
  calDate->setNavigationBarVisible(false);
  calDate->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calDate->setDateEditEnabled(false);
  calDate->setMinimumDate(QDate(100, 1, 1));
  calDate->setMaximumDate(QDate(9999, 12, 31));
  // A free day is a day like any other; today stands out.
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) calDate->setWeekdayTextFormat(day, {});
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  bold.setFontUnderline(true);
  calDate->setDateTextFormat(session.Today(), bold);
  AddLists();
  layout->addWidget(calDate);
  lblChosen->setObjectName(QStringLiteral("lblChosen"));
  lblChosen->setAlignment(Qt::AlignCenter);
  layout->addWidget(lblChosen);
  AddButtons();
  connect(calDate, &QCalendarWidget::currentPageChanged, this, &frmCalendar::ShowPage);
  connect(calDate, &QCalendarWidget::activated, this, &QDialog::accept);
  connect(calDate, &QCalendarWidget::selectionChanged, this, &frmCalendar::ShowChosen);
  calDate->setSelectedDate(initial);
  ShowChosen();
  ShowPage(initial.year(), initial.month());
  calDate->setFocus();
}

void frmCalendar::AddLists() {
  auto *row = new QHBoxLayout;
  static_cast<QVBoxLayout *>(layout())->addLayout(row);
  QPushButton *const cmdPrevMonth = AddButton(row, "cmdPrevMonth", {}, tr("Previous month"));
  cmdPrevMonth->setIcon(ArtIcon(QStringLiteral("previous")));
  cmdPrevMonth->setToolTip(tr("Previous month (Page Up)"));
  cboMonth = new QComboBox(this);
  cboMonth->setObjectName(QStringLiteral("cboMonth"));
  SpeakAs(cboMonth, tr("Month"));
  for (int month = 1; month <= 12; ++month) {
    cboMonth->addItem(FormatDate(QDate(2000, month, 1), QStringLiteral("mmmm"), session_.locale), month);
  }
  row->addWidget(cboMonth, 1);
  cboYear = new QComboBox(this);
  cboYear->setObjectName(QStringLiteral("cboYear"));
  SpeakAs(cboYear, tr("Year"));
  const int today = session_.Today().year();
  for (int year = today - yearsListed; year <= today + yearsListed; ++year) {
    cboYear->addItem(QString::number(year), year);
  }
  row->addWidget(cboYear);
  QPushButton *const cmdNextMonth = AddButton(row, "cmdNextMonth", {}, tr("Next month"));
  cmdNextMonth->setIcon(ArtIcon(QStringLiteral("next")));
  cmdNextMonth->setToolTip(tr("Next month (Page Down)"));
  const auto shown = [this] { return QDate(calDate->yearShown(), calDate->monthShown(), 1); };
  connect(cmdPrevMonth, &QPushButton::clicked, this,
          [this, shown] { GoToMonth(DateAdd(QStringLiteral("m"), -1, shown())); });
  connect(cmdNextMonth, &QPushButton::clicked, this,
          [this, shown] { GoToMonth(DateAdd(QStringLiteral("m"), 1, shown())); });
  const auto choose = [this] { GoToMonth(QDate(cboYear->currentData().toInt(), cboMonth->currentData().toInt(), 1)); };
  connect(cboMonth, &QComboBox::activated, this, choose);
  connect(cboYear, &QComboBox::activated, this, choose);
}

void frmCalendar::AddButtons() {
  auto *row = new QHBoxLayout;
  static_cast<QVBoxLayout *>(layout())->addLayout(row);
  QPushButton *const cmdToday = AddButton(row, "cmdToday", tr("&Today"));
  row->addStretch();
  QPushButton *const cmdOK = AddButton(row, "cmdOK", tr("&OK"));
  QPushButton *const cmdCancel = AddButton(row, "cmdCancel", tr("&Cancel"));
  cmdOK->setDefault(true);
  connect(cmdToday, &QPushButton::clicked, this, [this] {
    calDate->setSelectedDate(session_.Today());
    calDate->setFocus();
  });
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

// The chosen day moves along with the month, clipped to its last day.
void frmCalendar::GoToMonth(const QDate &month) {
  if (!month.isValid()) return;
  const int day = std::min(calDate->selectedDate().day(), month.daysInMonth());
  calDate->setSelectedDate(QDate(month.year(), month.month(), day));
}

void frmCalendar::ShowPage(int year, int month) {
  cboMonth->setCurrentIndex(month - 1);
  if (cboYear->findData(year) < 0) {
    const int place = year < cboYear->itemData(0).toInt() ? 0 : cboYear->count();
    cboYear->insertItem(place, QString::number(year), year);
  }
  cboYear->setCurrentIndex(cboYear->findData(year));
}

void frmCalendar::ShowChosen() {
  const QString day = session_.locale.toString(Chosen(), QLocale::LongFormat);
  lblChosen->setText(day);
  // The cells are numbers without month and year; the name of what has the focus is spoken when it changes.
  if (auto *days = calDate->findChild<QAbstractItemView *>()) days->setAccessibleName(day);
}

QDate frmCalendar::Chosen() const { return calDate->selectedDate(); }

}  // namespace trimlog
