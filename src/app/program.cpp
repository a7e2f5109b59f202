#include "program.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include "platform/twips.h"
#include "platform/windows/machine/window_stacking.h"

namespace trimlog {

Program::Program(Session &session, const OperatingSystem &system)
    : session_(session),
      system_(system),
      instance_(session.programDirectory),
      help_(session),
      application_(session, hooks_, doors_, system) {
  FillHooks();
  FillNavigator();
  FillDoors();
  QObject::connect(&instance_, &SingleInstance::RaiseRequested, &instance_, [this] { ComeForward(); });
  QObject::connect(&endSignals_, &EndSignals::EndRequested, &instance_, [this] { EndForMachine(); });
}

bool Program::Start() { return application_.Main() == Application::Outcome::Running && !ended_; }

void Program::FillDoors() {
  doors_.ActivatePrevInstance = [this] { return instance_.ActivatePrevInstance(); };
  doors_.ScreenSize = [] {
    const QSize size = QApplication::primaryScreen()->size();
    return QSize(TwipsFromPixels(size.width()), TwipsFromPixels(size.height()));
  };
  doors_.CloseSplash = [this] {
    if (frame_) frame_->CloseSplash();
  };
  doors_.ShowFrame = [this] { return ShowFrame(); };
  doors_.MaximiseFrame = [this] { frame_->showMaximized(); };
  doors_.LetEventsRun = [] { QApplication::processEvents(); };
  doors_.OpenSetup = [this] {
    if (navigator_.OpenSetup) navigator_.OpenSetup(SetupTab::Profiles);
  };
  doors_.SaveOpenEdit = [this] { return frame_ ? frame_->LeaveOpenEdit() : EditOutcome::Saved; };
  doors_.DropOpenEdit = [this] {
    if (frame_) frame_->DropOpenEdit();
  };
  doors_.ReadWindowPlaces = [this] {
    if (frame_) frame_->ReadPlace();
  };
}

bool Program::ShowFrame() {
  frame_ =
      std::make_unique<frmMDI>(FrameParts{session_, navigator_, hooks_, system_, Forms(), [this] { return Close(); }});
  return frame_->MDIForm_Load();
}

bool Program::Close() {
  if (!application_.QueryUnload(endedBy_)) return false;
  ended_ = true;
  QCoreApplication::exit();
  return true;
}

void Program::ComeForward() {
  // Not before the frame is filled: until then a password window or a box may stand there alone.
  if (frame_ && frame_->isVisible()) RaiseWindow(frame_.get());
  if (QWidget *modal = QApplication::activeModalWidget()) RaiseWindow(modal);
}

void Program::EndForMachine() {
  if (ended_) return;
  // What is being written and lets events run meanwhile is one piece: the end waits for it.
  if (session_.database && session_.database->InTransaction()) {
    constexpr int look = 20;  // milliseconds
    QTimer::singleShot(look, &instance_, [this] { EndForMachine(); });
    return;
  }
  endedBy_ = EndedBy::Machine;
  session_.boxes.silent = true;
  session_.windows.SuppressReward = true;
  CloseModalWindows();
  if (frame_ && frame_->isVisible()) {
    frame_->close();
  } else {  // still starting: there is nothing to save yet
    ended_ = true;
    QCoreApplication::exit();
  }
}

}  // namespace trimlog
