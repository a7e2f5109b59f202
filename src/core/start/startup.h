#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <memory>

#include "core/frame/edit_outcome.h"
#include "core/session/failure_guard.h"
#include "core/session/room_hooks.h"
#include "core/session/session.h"
#include "platform/machine/operating_system.h"

namespace trimlog {

/// The windows that start and stop need. The program fills them in; an empty one does nothing.
struct FrameDoors {
  std::function<bool()> ActivatePrevInstance;  ///< true: another copy runs here and was raised, this one ends
  std::function<QSize()> ScreenSize;           ///< in twips
  std::function<void()> CloseSplash;           ///< when it is shown
  /// Makes frmMDI, runs its load sequence and shows it. False: it cannot run, its box was shown, the program ends.
  std::function<bool()> ShowFrame;
  std::function<void()> MaximiseFrame;
  std::function<void()> LetEventsRun;
  std::function<void()> OpenSetup;            ///< frmSetup, modal, owned by the frame
  std::function<EditOutcome()> SaveOpenEdit;  ///< by the current content window
  std::function<void()> DropOpenEdit;         ///< gives up what could not be saved
  std::function<void()> ReadWindowPlaces;     ///< the frame's (and the Quick Journal's) geometry into the session
};

/// Who wants the program to end. The machine waits for no answer and takes no refusal.
enum class EndedBy { Person, Machine };

/// Start and stop of the program, each as one sequence.
class Application {
 public:
  /// Everything handed in must outlive it.
  Application(Session &session, const RoomHooks &hooks, const FrameDoors &doors, const OperatingSystem &system);

  enum class Outcome { Running, Ended };

  /// From process start to the first screen. Backup, restore and import set ReloadInProgress, close the frame and call
  /// it again. Ended: there is no window, the process is over.
  Outcome Main();

  /// The frame is asked to close. False: it stays open, because text being typed was refused, or could not be saved and
  /// the person does not give it up. True: everything is stored.
  bool QueryUnload(EndedBy endedBy = EndedBy::Person);

 private:
  bool OpenDataFile();
  void TellWhyTheStartEnds(const Failure &failure);
  void EnterSession(bool &frameShown);
  bool LeaveOpenEdit(EndedBy endedBy);
  void StoreSession();
  void ResetSamples();

  Session &session_;
  const RoomHooks &hooks_;
  const FrameDoors &doors_;
  const OperatingSystem &system_;
};

}  // namespace trimlog
