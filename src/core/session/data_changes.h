#pragma once

#include <QDate>
#include <QObject>
#include <QString>
#include <vector>

#include "core/data/tables.h"

namespace trimlog {

/// What a save changed. What stays empty means "any".
struct DataChange {
  Table table = Table::People;
  std::vector<qint64> keys = {};  ///< of the rows changed, added or deleted, where the table has a key of one number
  QString personID = {};          ///< whose rows they are
  QDate date = {};
  const void *origin = nullptr;  ///< who did it, so that it can pass over its own doing; set by Change

  /// May rows of this person be among them? The keys of people are the persons.
  bool Concerns(const QString &person) const;
};

/// Writers change data, data announces, views listen: every open grid, chart and total refreshes from what is announced
/// after a save. What changes the data file is announced through a Change (core/session/change.h).
class DataChanges : public QObject {
  Q_OBJECT
 public:
  void AnnounceStatistics() { Q_EMIT StatisticsChanged(); }
  void AnnounceSettings() { Q_EMIT SettingsChanged(); }
  void AnnounceProfileLoaded() { Q_EMIT ProfileLoaded(); }
  void AnnounceActiveDate() { Q_EMIT ActiveDateChanged(); }

 Q_SIGNALS:
  void Changed(const trimlog::DataChange &change);
  void StatisticsChanged();
  void SettingsChanged();    ///< options were stored: units, signs, colours may differ
  void ProfileLoaded();      ///< another person is the current one
  void ActiveDateChanged();  ///< the calendar is on another day: the session's remembered date

 private:
  friend class Change;
  const void *origin_ = nullptr;  ///< who does what is being done
};

}  // namespace trimlog
