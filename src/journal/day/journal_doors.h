#pragma once

#include <QDate>
#include <functional>
#include <optional>

#include "journal/day/journal_kind.h"

class QWidget;

namespace trimlog {

/// What a dialog that adds entries is opened with.
struct EntryOpening {
  const JournalKind &kind;
  QDate date;                                                     ///< proposed; fixed where the kind says so
  int MealTypeID = 1;                                             ///< proposed
  std::function<void(int recordID, const QDate &date)> stored{};  ///< after each entry that was stored
};

/// Windows of the catalogs that the journal opens. The app fills them in; each returns when its window is closed.
struct JournalDoors {
  std::function<void(QWidget *owner, const EntryOpening &opening)> AddMeal;
  std::function<void(QWidget *owner, const EntryOpening &opening)> AddActivity;
};

}  // namespace trimlog
