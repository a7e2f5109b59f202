#include "core/start/startup.h"

#include "core/profiles/profiles.h"
#include "core/profiles/sample_profiles.h"
#include "core/session/failure_guard.h"
#include "core/settings/window_position.h"
#include "core/start/conflict_checks.h"
#include "core/start/edition.h"
#include "core/start/session_start.h"
#include "core/start/start_boxes.h"

namespace trimlog {

namespace {

const QString module = QStringLiteral("basMain");
const QString procedure = QStringLiteral("Main");
constexpr int maximised = 2;

template <typename Door, typename... Arguments>
void Run(const Door &door, Arguments &&...arguments) {
  if (door) door(std::forward<Arguments>(arguments)...);
}

}  // namespace

Application::Application(Session &session, const RoomHooks &hooks, const FrameDoors &doors,
                         const OperatingSystem &system)
    : session_(session), hooks_(hooks), doors_(doors), system_(system) {}

Application::Outcome Application::Main() {
  if (doors_.ActivatePrevInstance && doors_.ActivatePrevInstance()) return Outcome::Ended;
  if (!CheckForConflicts(session_, system_)) return Outcome::Ended;
  LoadBizEdSettings(session_);
  LoadHandheldSettings(session_);
  LoadSeravaSetting(session_);
  if (session_.edition.HandheldSupport) Run(hooks_.RunHandheldSync, false);
  const QSize screen = doors_.ScreenSize ? doors_.ScreenSize() : QSize();
  WindowPosition(session_, false, WindowGroup::Frame, screen);
  WindowPosition(session_, false, WindowGroup::QuickJournalPosition, screen);
  if (!OpenDataFile()) return Outcome::Ended;

  bool frameShown = false;
  const std::optional<Failure> failure = FailureOf([this, &frameShown] { EnterSession(frameShown); });
  if (failure) {
    LogError(session_, module, procedure,
             QStringLiteral("Error %1 in basMain.Main: %2").arg(failure->number).arg(failure->description));
    if (!frameShown) TellWhyTheStartEnds(*failure);
  }
  return frameShown ? Outcome::Running : Outcome::Ended;
}

bool Application::OpenDataFile() {
  session_.database.reset();
  const std::optional<Failure> failure =
      FailureOf([this] { session_.database = Database::Open(session_.DataFilePath()); });
  if (!failure) return true;
  TellWhyTheStartEnds(*failure);
  LogError(
      session_, module, procedure,
      QStringLiteral("Error opening database.  ErrNum=%1 ErrDesc=%2").arg(failure->number).arg(failure->description));
  return false;
}

void Application::TellWhyTheStartEnds(const Failure &failure) {
  Run(doors_.CloseSplash);
  ShowOpenFailure(session_, failure);
}

void Application::EnterSession(bool &frameShown) {
  const QString oldVersion = hooks_.CheckDBVersionAndUpdate ? hooks_.CheckDBVersionAndUpdate() : QString();
  LoadControlValues(session_.settings, session_.store, true);
  LoadUnitLabel(session_);
  CreateAdminProfile(session_);
  if (session_.edition.SeravaEdition) Run(hooks_.MakeDatabaseChangesSerava);
  LoadDecimalComma(session_);
  NumberStrayProfile(session_);
  ChooseProfile(session_);
  RecreateDateTable(session_);
  LoadNutrients(session_);
  Run(hooks_.LoadRewardSettings);

  frameShown = !doors_.ShowFrame || doors_.ShowFrame();
  if (!frameShown) return;
  Run(doors_.LetEventsRun);
  if (session_.windows.frameWindowState == maximised) Run(doors_.MaximiseFrame);
  ShowUpgradeNotices(session_, oldVersion, doors_.OpenSetup);
}

bool Application::LeaveOpenEdit(EndedBy endedBy) {
  const EditOutcome outcome = doors_.SaveOpenEdit ? doors_.SaveOpenEdit() : EditOutcome::Saved;
  if (outcome == EditOutcome::Saved) return true;
  if (endedBy == EndedBy::Machine) {
    LogError(session_, module, QStringLiteral("QueryUnload"),
             QStringLiteral("The program was ended from outside; what was being typed could not be saved."));
  } else if (outcome == EditOutcome::Refused || !AskToCloseWithoutSaving(session_)) {
    return false;
  }
  Run(doors_.DropOpenEdit);
  return true;
}

bool Application::QueryUnload(EndedBy endedBy) {
  Run(hooks_.CloseToolsWindow);
  if (session_.ReloadInProgress) return true;
  if (!LeaveOpenEdit(endedBy)) return false;
  Guarded(session_, {module, QStringLiteral("QueryUnload"), {}, {}}, [this] { StoreSession(); });
  ResetSamples();
  if (session_.edition.BizEd) ResetSamples();
  if (session_.edition.HandheldSupport && hooks_.RunHandheldSync) {
    GuardedQuietly([this] { hooks_.RunHandheldSync(ActiveSyncOnExit(session_)); });
  }
  return true;
}

void Application::ResetSamples() {
  for (const QString &sample : {sampleProfile2, sampleProfile1}) {
    GuardedQuietly([this, &sample] { ResetSampleProfile(session_, sample); });
  }
}

void Application::StoreSession() {
  Run(doors_.ReadWindowPlaces);
  WindowPosition(session_, true, WindowGroup::Frame);
  if (session_.windows.QuickJournalOpen) {
    WindowPosition(session_, true, WindowGroup::QuickJournalPosition);
    WindowPosition(session_, true, WindowGroup::QuickJournalSize);
  }
  const QString &person = session_.profile.LastRealPersonID;
  if (!person.isEmpty() && !IsSampleProfile(person)) {
    session_.settings.PersonID = person;
    SaveSetting(session_.settings, session_.store, QStringLiteral("PersonID"));
  }
  SaveSetting(session_.settings, session_.store, QStringLiteral("LastRecordTypeMeals"));
}

}  // namespace trimlog
