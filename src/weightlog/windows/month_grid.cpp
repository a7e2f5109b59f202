#include "weightlog/windows/month_grid.h"

#include <QApplication>
#include <QEvent>

#include "core/windows/controls/figure_field.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/member_name.h"
#include "weightlog/calendar_speech.h"

namespace trimlog {

namespace {

constexpr int days = 7;

/// Black on white, whatever the desktop.
QPalette PaperPalette() {
  QPalette palette(Qt::white);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Window, Qt::white);
  palette.setColor(QPalette::Button, Qt::white);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    palette.setColor(role, Qt::black);
  return palette;
}

}  // namespace

MonthGrid::MonthGrid(const QLocale &locale, QWidget *parent)
    : QWidget(parent), lblTotal1(new FitLabel(QStringLiteral("lblTotal1"), Qt::AlignCenter, this)), locale_(locale) {
  for (int day = 1; day <= days; ++day) {
    auto *header = new FitLabel(QStringLiteral("lblDay%1").arg(day), Qt::AlignCenter, this);
    header->setText(locale.dayName(day == 1 ? Qt::Sunday : day - 1, QLocale::ShortFormat));
    lblDay_[static_cast<size_t>(day - 1)] = header;
  }
  lblTotal1->setText(tr("Week"));
  for (int i = 1; i <= calendarCells; ++i) cells_[static_cast<size_t>(i - 1)] = new CalendarCellView(i, this);
  for (int row = 1; row <= calendarRows; ++row) {
    auto *box = new FitLabel(MemberName("lblTotal", row), Qt::AlignCenter, this);
    auto *total = new FigureField(MemberName("txtTotal", row), Qt::AlignCenter, box);
    total->setToolTip(tr("The loss of this week"));
    lblTotal_[static_cast<size_t>(row - 1)] = box;
    txtTotal_[static_cast<size_t>(row - 1)] = total;
  }
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

int MonthGrid::IndexOf(const QObject *field) const {
  for (int i = 1; i <= calendarCells; ++i) {
    if (Field(i) == field) return i;
  }
  return 0;
}

QPalette MonthGrid::DesktopPalette() const { return paper_ ? PaperPalette() : QApplication::palette(); }

CalendarLook MonthGrid::Look(quint32 BackColor) const {
  return CalendarLook(DesktopPalette(), paper_ ? calendar_colour::white : BackColor);
}

void MonthGrid::ShowDays(const CalendarMonth &month, const Setting &setting) {
  const CalendarLook look = Look(setting.BackColor);
  for (int i = 1; i <= calendarCells; ++i) {
    const CalendarCell &cell = month.Cell(i);
    cells_[static_cast<size_t>(i - 1)]->ShowDay(cell, look, SpokenDay(cell, locale_),
                                                cell.date == setting.today && cell.enabled);
  }
  KeepFocus(month);
  for (int i = 1; i <= calendarCells; ++i) cells_[static_cast<size_t>(i - 1)]->Close(month.Cell(i));
  for (int row = 1; row <= calendarRows; ++row) {
    FigureField *total = txtTotal_[static_cast<size_t>(row - 1)];
    const QString spoken = SpokenWeek(month, row);
    if (total->accessibleName() != spoken) total->setAccessibleName(spoken);
  }
  ShowHeaders(paper_ ? calendar_colour::white : setting.BackColor);
  const int rows = month.Total(calendarRows).visible ? calendarRows : calendarRows - 1;
  if (rows == rows_) return;
  rows_ = rows;
  Arrange();
}

// A field that closes under the focus would pass it to its neighbour, and that one would be heard.
void MonthGrid::KeepFocus(const CalendarMonth &month) {
  const int focused = IndexOf(QApplication::focusWidget());
  if (focused == 0 || month.CanEnter(focused) || !month.CanEnter(month.currentIndex)) return;
  Field(month.currentIndex)->setFocus(Qt::OtherFocusReason);
}

void MonthGrid::ShowTexts(const CalendarMonth &month, const Setting &setting, int keepText) {
  const CalendarLook look = Look(setting.BackColor);
  for (int i = 1; i <= calendarCells; ++i) {
    const CalendarCell &cell = month.Cell(i);
    cells_[static_cast<size_t>(i - 1)]->ShowTexts(
        cell, look, SpokenDetails(cell, setting.figure, setting.settings, locale_), i == keepText);
  }
  ShowTotals(month, setting.showTotals);
}

void MonthGrid::ShowHeaders(quint32 BackColor) {
  for (FitLabel *header : lblDay_) PaintPanel(header, BackColor, DesktopPalette());
  PaintPanel(lblTotal1, BackColor, DesktopPalette());
}

void MonthGrid::ShowTotals(const CalendarMonth &month, bool visible) {
  const QPalette desktop = DesktopPalette();
  const QColor background = desktop.color(QPalette::Window);
  for (int row = 1; row <= calendarRows; ++row) {
    FigureField *total = txtTotal_[static_cast<size_t>(row - 1)];
    const quint32 color = month.Total(row).color;
    total->ShowText(month.Total(row).text);
    total->ShowColor(color == calendar_colour::even ? desktop.color(QPalette::WindowText)
                                                    : MeaningColor(ColorFromBgr(color), background));
    total->setVisible(visible && month.Total(row).visible);
    lblTotal_[static_cast<size_t>(row - 1)]->setVisible(month.Total(row).visible);
  }
}

int MonthGrid::HeaderHeight() const { return fontMetrics().height() + 6; }

int MonthGrid::TotalsWidth() const { return width() - days * (width() * 10 / 78); }

QSize MonthGrid::minimumSizeHint() const {
  const QSize cell = CalendarFonts::LeastCell(font());
  return {cell.width() * 78 / 10, HeaderHeight() + calendarRows * cell.height()};
}

void MonthGrid::Arrange() {
  const int header = HeaderHeight();
  const int column = (width() - TotalsWidth()) / days;
  const int left = days * column;
  for (int day = 0; day < days; ++day) lblDay_[static_cast<size_t>(day)]->setGeometry(day * column, 0, column, header);
  lblTotal1->setGeometry(left, 0, width() - left, header);
  const int room = height() - header;
  for (int row = 0; row < calendarRows; ++row) {
    const int top = header + room * row / rows_;
    const int bottom = header + room * (row + 1) / rows_;
    for (int day = 0; day < days; ++day) {
      const int cell = row * days + day;
      cells_[static_cast<size_t>(cell)]->setGeometry(day * column, top, column, bottom - top);
    }
    FitLabel *box = lblTotal_[static_cast<size_t>(row)];
    box->setGeometry(left, top, width() - left, bottom - top);
    txtTotal_[static_cast<size_t>(row)]->setGeometry(2, 2, box->width() - 4, box->height() - 4);
  }
  Q_EMIT Arranged();
}

void MonthGrid::ShowFonts() {
  const QSize cell(width() * 10 / 78, (height() - HeaderHeight()) / calendarRows);
  if (cell == fontCell_) return;
  const CalendarFonts fonts(font(), cell);
  const bool same = fontCell_.isValid() && CalendarFonts(font(), fontCell_) == fonts;
  fontCell_ = cell;
  if (same) return;
  for (CalendarCellView *view : cells_) view->SetFonts(fonts);
  totalsFont_ = fonts.weight;
  totalsFont_.setWeight(QFont::Normal);
  for (FigureField *total : txtTotal_) total->UseFont(totalsFont_);
}

void MonthGrid::resizeEvent(QResizeEvent *) {
  ShowFonts();
  Arrange();
}

void MonthGrid::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  fontCell_ = {};
  ShowFonts();
  Arrange();
}

}  // namespace trimlog
