#include "journal/day/journal_day.h"

#include "core/session/session.h"

namespace trimlog {

JournalDay::JournalDay(Session &session, const JournalKind &kind, const QDate &date, QObject *parent)
    : QObject(parent), session_(session), kind_(kind), date_(date.isValid() ? date : session.Today()) {
  if (kind.viewSetting && session.settings.*kind.viewSetting == static_cast<int>(JournalView::AllDates)) {
    view_ = JournalView::AllDates;
  }
}

DayScope JournalDay::Scope() const { return {session_.profile.CurrentPersonID.toInt(), view_, date_}; }

bool JournalDay::ShowView(JournalView view) {
  if (view == view_ || !kind_.viewSetting) return true;
  if (mayLeave && !mayLeave()) return false;
  view_ = view;
  StoreView();
  Q_EMIT ScopeChanged();
  return true;
}

bool JournalDay::GoToDate(const QDate &date) {
  if (!date.isValid()) return false;
  if (date == date_ && IsSingleDate()) return true;
  if (mayLeave && !mayLeave()) return false;
  const bool otherDay = date != date_;
  date_ = date;
  if (!IsSingleDate()) {
    view_ = JournalView::SingleDate;
    StoreView();
  }
  if (otherDay) Q_EMIT DateChanged();
  Q_EMIT ScopeChanged();
  return true;
}

void JournalDay::FollowRow(const QDate &date) {
  if (IsSingleDate() || !date.isValid() || date == date_) return;
  date_ = date;
  Q_EMIT DateChanged();
}

void JournalDay::FollowAdded(const QDate &date) {
  if (IsSingleDate()) GoToDate(date);
}

void JournalDay::StoreView() {
  session_.settings.*kind_.viewSetting = static_cast<int>(view_);
  SaveSetting(session_.settings, session_.store, kind_.viewSettingName);
}

}  // namespace trimlog
