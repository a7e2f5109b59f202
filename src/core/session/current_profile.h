#pragma once

#include <QDate>
#include <QString>

#include "core/frame/statistics.h"
#include "core/settings/reward_settings.h"

namespace trimlog {

/// The nutrition targets of a person who has chosen none.
inline constexpr int defaultTargetSet = 30;

/// The person whose data the windows show, and what is kept in memory of that person.
struct CurrentProfile {
  QString CurrentPersonID = QStringLiteral("1");  ///< "-1", "-2" samples; "0" nobody
  QString LastRealPersonID;                       ///< survives into the next run; never a sample
  quint32 BackColor = 0xFFE0C0;                   ///< colour scheme, blue-green-red byte order
  int NutTargetID = defaultTargetSet;             ///< the current target set; 0 for none
  RewardSettings rewards;
  Statistics statistics;  ///< what UpdateStats last found
  QDate FirstWeightDate;  ///< invalid: no weights
  QDate LastWeightDate;

  bool IsSample() const;  ///< one of "-1" to "-4"
};

/// "-1" to "-4": the numbers kept for sample profiles.
bool IsSampleProfile(const QString &personID);

}  // namespace trimlog
