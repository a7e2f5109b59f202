#pragma once

#include <QWidget>

class QLabel;
class QRadioButton;
class QToolButton;

namespace trimlog {

class DateField;
class JournalDay;
class Session;

/// The bar above the pages: all dates or one, which one, and the steps from day to day. Page Up and Page Down in the
/// date box step, too, and Alt+Left and Alt+Right do so wherever the focus is in the window that the bar stands in:
/// lists keep their own Page keys and arrows.
class DayBar : public QWidget {
  Q_OBJECT
 public:
  /// `window` is where the keys are heard.
  DayBar(Session &session, JournalDay &day, QWidget *window);

 Q_SIGNALS:
  void DayChosen();  ///< a person went to a day here: the focus goes to where that day is written

 protected:
  bool event(QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void MakeControls();
  QToolButton *MakeStep(const char *name, const char *picture, const QString &tip, int days);
  void Connect();
  void Show();
  void ShowColours();
  void ShowDayName();
  void ShowView();
  void ApplyTyped();
  /// From the date in the box, whether it was applied already or not. False when there is none or it was not left.
  bool Step(int days);
  bool Apply(const QDate &date);

  Session &session_;
  JournalDay &day_;
  QRadioButton *optViewAll = nullptr;
  QRadioButton *optViewSingle = nullptr;
  DateField *txtDate = nullptr;
  QToolButton *cmdDate = nullptr;
  QToolButton *cmdPrev = nullptr;
  QToolButton *cmdNext = nullptr;
  QLabel *lblDate = nullptr;
};

}  // namespace trimlog
