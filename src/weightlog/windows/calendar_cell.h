#pragma once

#include <QLineEdit>
#include <QWidget>

#include "weightlog/calendar_month.h"
#include "weightlog/windows/fit_label.h"

namespace trimlog {

/// How cells are coloured on this desktop, worked out once for all 42.
struct CalendarLook {
  QPalette day;        ///< a day of the month
  QPalette neighbour;  ///< a day of the month before or behind
  QPalette active;
  QColor line;            ///< between the cells
  QColor accent;          ///< marks today
  quint32 backColor = 0;  ///< what the active cell's background is in the model

  CalendarLook(const QPalette &desktop, quint32 BackColor);
  const QPalette &PaletteOf(const CalendarCell &cell) const;
};

struct CalendarFonts {
  QFont small;  ///< day, loss, nutrient figure
  QFont weight;
  bool operator==(const CalendarFonts &) const = default;

  /// The sizes that grow with the cells, on the base of the desktop's font.
  CalendarFonts(const QFont &base, const QSize &cell);
  /// The least height in which three lines stand uncut, and the least width for usual weights and figures.
  static QSize LeastCell(const QFont &base);

 private:
  CalendarFonts() = default;
  static CalendarFonts Grown(const QFont &base, double growth);
};

/// One day, lblGrid(i): it paints the background and holds the weight field and the texts around it.
class CalendarCellView : public QWidget {
  Q_OBJECT
 public:
  CalendarCellView(int i, QWidget *parent);

  QLineEdit *Field() const { return txtData; }
  /// Shows which day it is. A day that can be typed into opens; Close shuts the others.
  void ShowDay(const CalendarCell &cell, const CalendarLook &look, const QString &spokenDay, bool today);
  void Close(const CalendarCell &cell);
  /// Shows the weight and what stands around it. `keepText` leaves what is being typed alone.
  void ShowTexts(const CalendarCell &cell, const CalendarLook &look, const QString &spokenDetails, bool keepText);
  void SetFonts(const CalendarFonts &fonts);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;

 private:
  QFont DayFont() const;
  void Arrange();
  void FitWeight();

  QLineEdit *txtData;
  FitLabel *txtLoss;
  FitLabel *txtCalories;
  FitLabel *txtDateGrid;
  FitLabel *txtDateGridValue;
  QColor line_;
  QColor accent_;
  QFont small_;
  QFont weight_;
  bool today_ = false;
};

}  // namespace trimlog
