#pragma once

#include <QDate>
#include <QDialog>
#include <QString>

#include "core/session/session.h"
#include "core/windows/controls/show_calendar.h"

class QCalendarWidget;
class QComboBox;
class QLabel;

namespace trimlog {

/// The date picker: a month with lists for month and year. Arrows move by day and week, PgUp and PgDn by month, Enter
/// or a double click chooses, Esc cancels. The chosen day stands below the month with its weekday, and is what a screen
/// reader says of the month.
class frmCalendar : public QDialog {
  Q_OBJECT
 public:
  frmCalendar(Session &session, const QDate &initial, QWidget *owner);
  QDate Chosen() const;

 private:
  void AddLists();
  void AddButtons();
  void ShowPage(int year, int month);
  void GoToMonth(const QDate &month);
  void ShowChosen();

  Session &session_;
  QCalendarWidget *calDate;
  QLabel *lblChosen;
  QComboBox *cboMonth = nullptr;
  QComboBox *cboYear = nullptr;
};

}  // namespace trimlog
