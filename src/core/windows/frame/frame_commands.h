#pragma once

#include <functional>
#include <vector>

#include "core/session/failure_guard.h"
#include "core/session/navigator.h"
#include "core/session/room_hooks.h"
#include "core/session/session.h"

namespace trimlog {

class frmMDI;

/// One thing that a person can do from the menus, and from the navigation panel where it has a button.
struct FrameCommand {
  const char *menu = "";            ///< the entry's name
  const char *button = "";          ///< the navigation button with the same effect
  std::function<QString()> whyNot;  ///< a sentence shows entry and button disabled, with it as their tip; empty: never
  std::function<void()> run;

  QString WhyNot() const { return whyNot ? whyNot() : QString(); }
};

/// The failure exit of a menu entry: for what its window does not already tell by a box of its own.
FailureExit CommandFailure(const QString &menu);

/// Everything that the frame's menus and buttons do, in the order of the menus. An entry of the tree that is not in
/// this table belongs to a room that is not built, and is shown disabled.
std::vector<FrameCommand> FrameCommands(frmMDI &frame, Session &session, const Navigator &navigator,
                                        const RoomHooks &hooks);

}  // namespace trimlog
