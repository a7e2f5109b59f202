#pragma once

#include <QDate>
#include <map>
#include <memory>

#include "platform/store/recordset.h"
#include "platform/text/text_format.h"
#include "support/test_session.h"
#include "weightlog/calendar_model.h"

namespace trimlog {

inline QDate Day(const char *iso) { return QDate::fromString(iso, Qt::ISODate); }

/// A calendar on which weights are typed by date, as a person does who goes to the day, types and leaves the cell.
class TypedCalendar {
 public:
  explicit TypedCalendar(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates)) : session(locale) {
    session->profile.rewards.type = RewardType::Never;
    model = std::make_unique<CalendarModel>(*session);
  }

  void Load() {
    model = std::make_unique<CalendarModel>(*session);
    model->Load();
  }
  bool Type(const QDate &date, const QString &text) {
    model->GotoCalendarDate(date);
    model->EnterCell(model->Month().currentIndex);
    return model->ValidateWeight(text) && model->SaveWeight(text);
  }
  bool Type(const char *date, const char *text) { return Type(Day(date), QString::fromUtf8(text)); }

  /// Types one after the other what stands as "01-05 200, 01-06 199.5" for days of 2026, nothing for a removed weight.
  bool TypeAll(const char *entries) {
    bool all = true;
    for (const QString &entry : QString(entries).split(", ")) {
      all = Type(Day(qPrintable("2026-" + entry.section(u' ', 0, 0))), entry.section(u' ', 1)) && all;
    }
    return all;
  }

  const CalendarCell &Cell(const char *date) const { return model->Month().Cell(model->Month().IndexOf(Day(date))); }

  /// The profile's rows as "2026-01-01 200/0, ...".
  std::string Rows() {
    Recordset rows = session.Data().OpenRecordset(
        "SELECT weight_loss.ThisDate, weight_loss.ThisWeight, weight_loss.ThisLoss FROM weight_loss "
        "WHERE (weight_loss.PersonID=?) ORDER BY weight_loss.ThisDate;",
        {session->profile.CurrentPersonID.toInt()});
    QStringList found;
    for (; !rows.Eof(); rows.MoveNext()) {
      found.append(QStringLiteral("%1 %2/%3")
                       .arg(rows.Field(0).toDate().toString("MM-dd"), PlainText(rows.Number("ThisWeight")),
                            PlainText(rows.Number("ThisLoss"))));
    }
    return found.join(", ").toStdString();
  }

  TestSession session;
  std::unique_ptr<CalendarModel> model;
};

}  // namespace trimlog
