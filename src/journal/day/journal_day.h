#pragma once

#include <QDate>
#include <QObject>
#include <functional>

#include "journal/day/day_source.h"
#include "journal/day/journal_kind.h"

namespace trimlog {

class Session;

/// What a journal window looks at: one day alone or all days of the profile, and the day that is meant. The pages of
/// the window share one of these; a date bar, the water and each list follow its signals.
class JournalDay : public QObject {
  Q_OBJECT
 public:
  /// Takes the view that the profile's window of this kind was left in; a kind without views looks at single days. An
  /// invalid date means today.
  JournalDay(Session &session, const JournalKind &kind, const QDate &date, QObject *parent = nullptr);

  const JournalKind &Kind() const { return kind_; }
  JournalView View() const { return view_; }
  bool IsSingleDate() const { return view_ == JournalView::SingleDate; }
  /// The single day, or, among all days, that of the row that is current.
  QDate Date() const { return date_; }
  DayScope Scope() const;

  /// Saves what is being typed in the window; false keeps everything as it is.
  std::function<bool()> mayLeave;

  /// Shows all dates or one, and remembers that at once. False when what is being typed could not be left.
  bool ShowView(JournalView view);
  /// Shows a day alone, whatever was shown. Nothing happens, and false, for a text that is no date.
  bool GoToDate(const QDate &date);
  bool Step(int days) { return GoToDate(date_.addDays(days)); }
  /// Another row of all dates became current: its day is meant now. The lists stay.
  void FollowRow(const QDate &date);
  /// A record was added: a single-date view goes to its day.
  void FollowAdded(const QDate &date);

 Q_SIGNALS:
  void ScopeChanged();  ///< other rows are to be shown
  void DateChanged();   ///< another day is meant; before ScopeChanged

 private:
  void StoreView();

  Session &session_;
  const JournalKind &kind_;
  JournalView view_ = JournalView::SingleDate;
  QDate date_;
};

}  // namespace trimlog
