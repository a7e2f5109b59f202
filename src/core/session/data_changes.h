#pragma once

#include <QDate>
#include <QObject>
#include <QString>

namespace trimlog {

/// What a save changed. An empty person or an invalid date means "any".
struct DataChange {
  QString table;
  QString personID;
  QDate date;
};

/// Writers change data, data announces, views listen: after a save the writer announces once, and every open grid,
/// chart and total refreshes from that.
class DataChanges : public QObject {
  Q_OBJECT
 public:
  void Announce(const DataChange &change) { Q_EMIT Changed(change); }
  void AnnounceStatistics() { Q_EMIT StatisticsChanged(); }
  void AnnounceSettings() { Q_EMIT SettingsChanged(); }
  void AnnounceProfiles() { Q_EMIT ProfilesChanged(); }

 Q_SIGNALS:
  void Changed(const trimlog::DataChange &change);
  void StatisticsChanged();
  void SettingsChanged();  ///< options were stored: units, signs, colours may differ
  void ProfilesChanged();  ///< a profile was added, renamed or deleted
};

}  // namespace trimlog
