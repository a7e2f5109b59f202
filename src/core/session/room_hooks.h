#pragma once

#include <QString>
#include <functional>

namespace trimlog {

/// What core calls of the rooms above it, in the places where start, profile switch and stop need them. The app fills
/// them in; an empty one is a room that is not there, and its step does nothing.
struct RoomHooks {
  std::function<void()> LoadRewardSettings;                   ///< weightlog
  std::function<void()> UpdateStats;                          ///< weightlog
  std::function<QString()> CheckDBVersionAndUpdate;           ///< maintenance: the file's previous version
  std::function<void(bool activeSyncAfter)> RunHandheldSync;  ///< companions
  std::function<void()> MakeDatabaseChangesSerava;            ///< companions
  std::function<void()> CloseToolsWindow;                     ///< tools: at exit, when it is open
};

}  // namespace trimlog
