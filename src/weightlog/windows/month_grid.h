#pragma once

#include <QWidget>
#include <array>

#include "weightlog/windows/calendar_cell.h"

namespace trimlog {

/// The month as it is seen: day headers, 42 cells, the column of weekly totals. Knows how to show a CalendarMonth, and
/// nothing about where it comes from.
class MonthGrid : public QWidget {
  Q_OBJECT
 public:
  MonthGrid(const QLocale &locale, QWidget *parent);

  QLineEdit *Field(int i) const { return cells_[static_cast<size_t>(i - 1)]->Field(); }
  /// The index of a field, 0 when it is none of the grid's.
  int IndexOf(const QObject *field) const;

  /// Shows the month in the profile's colour. `keepText` is the cell whose text is being typed, 0 for none.
  void Show(const CalendarMonth &month, quint32 BackColor, const QDate &today, int keepText);
  /// Shows colours for paper instead of the desktop's.
  void SetPaper(bool paper) { paper_ = paper; }
  QPalette DesktopPalette() const;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }
  /// The width of the totals column, for what stands below it.
  int TotalsWidth() const;

 protected:
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  void ShowTotals(const CalendarMonth &month);
  void ShowHeaders(quint32 BackColor);
  void ShowFonts();
  void Arrange();
  int HeaderHeight() const;

  std::array<FitLabel *, 7> lblDay_{};
  FitLabel *lblTotal1;
  std::array<CalendarCellView *, calendarCells> cells_{};
  std::array<FitLabel *, calendarRows> lblTotal_{};
  std::array<FitLabel *, calendarRows> txtTotal_{};
  int rows_ = calendarRows;
  int fontHeight_ = 0;
  bool paper_ = false;
};

}  // namespace trimlog
