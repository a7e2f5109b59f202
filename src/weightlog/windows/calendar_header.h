#pragma once

#include <QWidget>

class QPalette;
class QToolButton;

namespace trimlog {

class FitLabel;
struct Navigator;

/// The panel above the calendar, in the profile's colour: the month's title and the buttons that lead away from it.
class CalendarHeader : public QWidget {
  Q_OBJECT
 public:
  CalendarHeader(const Navigator &navigator, QWidget *parent);

  void ShowTitle(const QString &month);
  void Paint(quint32 colour, const QPalette &desktop);
  void ShowButtons(bool show);  ///< a printed calendar has none

 Q_SIGNALS:
  void MonthWanted(int months);
  void TodayWanted();
  void JournalWanted();
  void TipsWanted();

 private:
  QToolButton *AddButton(const char *name, const char *picture, const QString &text, const QString &tip);

  FitLabel *txtMonth;
  QList<QToolButton *> buttons_;
};

}  // namespace trimlog
