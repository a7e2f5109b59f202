#pragma once

#include <QDate>
#include <QLineEdit>
#include <QLocale>

namespace trimlog {

/// A field for a date in the person's short form. F4 and Alt+Down ask for the calendar; AttachCalendar
/// (core/windows/show_calendar.h) answers, and makes the button beside the field.
class DateField : public QLineEdit {
  Q_OBJECT
 public:
  /// `label` is what a screen reader says.
  DateField(const QString &objectName, const QString &label, const QLocale &locale, QWidget *parent = nullptr);

  /// The typed date; an invalid one when the text is none.
  QDate Date() const;
  void SetDate(const QDate &date);  ///< an invalid date empties the field
  const QLocale &Locale() const { return locale_; }

 Q_SIGNALS:
  void CalendarWanted();

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  QLocale locale_;
};

}  // namespace trimlog
