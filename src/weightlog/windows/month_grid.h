#pragma once

#include <QWidget>
#include <array>

#include "weightlog/windows/calendar_cell.h"

namespace trimlog {

class FigureField;

/// The month as it is seen: day headers, 42 cells, the column of weekly totals. Knows how to show a CalendarMonth, and
/// nothing about where it comes from.
class MonthGrid : public QWidget {
  Q_OBJECT
 public:
  MonthGrid(const QLocale &locale, QWidget *parent);

  QLineEdit *Field(int i) const { return cells_[static_cast<size_t>(i - 1)]->Field(); }
  /// The index of a field, 0 when it is none of the grid's.
  int IndexOf(const QObject *field) const;

  /// What stands around the month's own figures.
  struct Setting {
    const Settings &settings;
    quint32 BackColor = 0;  ///< the profile's colour
    QDate today;
    QString figure;          ///< the name of the nutrient figure shown
    bool showTotals = true;  ///< false while there is nothing to add up
  };
  /// Shows which days the fields stand for, and which can be typed into.
  void ShowDays(const CalendarMonth &month, const Setting &setting);
  /// Shows weights, losses, figures and totals. `keepText` is the cell whose text is being typed, 0 for none.
  void ShowTexts(const CalendarMonth &month, const Setting &setting, int keepText);
  /// Shows colours for paper instead of the desktop's.
  void SetPaper(bool paper) { paper_ = paper; }
  QPalette DesktopPalette() const;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }
  /// The width of the totals column, for what stands below it.
  int TotalsWidth() const;
  /// The font of totals at the size the grid has.
  const QFont &TotalsFont() const { return totalsFont_; }

 Q_SIGNALS:
  void Arranged();  ///< the columns have another width or the fonts another size

 protected:
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  CalendarLook Look(quint32 BackColor) const;
  void KeepFocus(const CalendarMonth &month);
  void ShowTotals(const CalendarMonth &month, bool visible);
  void ShowHeaders(quint32 BackColor);
  void ShowFonts();
  void Arrange();
  int HeaderHeight() const;

  std::array<FitLabel *, 7> lblDay_{};
  FitLabel *lblTotal1;
  std::array<CalendarCellView *, calendarCells> cells_{};
  std::array<FitLabel *, calendarRows> lblTotal_{};
  std::array<FigureField *, calendarRows> txtTotal_{};
  const QLocale locale_;
  int rows_ = calendarRows;
  QSize fontCell_;  ///< the size of cell that the fonts are for
  QFont totalsFont_;
  bool paper_ = false;
};

}  // namespace trimlog
