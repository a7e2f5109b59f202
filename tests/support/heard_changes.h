#pragma once

#include <QStringList>

#include "core/session/session.h"

namespace trimlog {

/// What a session announces from now on, a line each in the order of the telling: the table, then the keys, the person
/// and the date as far as they were told: "weight_loss person 1 2026-03-01", "meals_list 8801", "profile loaded".
class HeardChanges : public QObject {
 public:
  explicit HeardChanges(Session &session);
  QStringList lines;
  /// The lines since the last call, joined by "; ".
  std::string Take();
};

}  // namespace trimlog
