#pragma once

#include <QDate>

#include "core/settings/settings.h"
#include "platform/grid/grid_clipboard.h"

namespace trimlog {

/// What windows leave for each other and for the next run.
struct WindowState {
  WindowPlace framePlace;
  int frameWindowState = 0;  ///< 0 normal, 2 maximised
  WindowPlace quickJournalPlace;
  bool QuickJournalOpen = false;
  bool SuppressReward = false;  ///< set when a navigation button is pressed, cleared when a weight cell gets the focus
  QDate RememberedDate;         ///< the calendar's last active date; cleared by LoadData; told by ActiveDateChanged
  GridClipboard rowClipboard;   ///< rows last copied from a grid
  QString pickedFoodSort;       ///< how foods stood when one was last picked; "" for by name
};

}  // namespace trimlog
