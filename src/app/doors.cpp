// Which room's window stands behind which door. A door that is not filled here belongs to a window that does not exist
// yet: what would open it is shown disabled.
#include <QFile>

#include "core/help.h"
#include "program.h"
#include "tools/windows/frmTools.h"
#if __has_include("core/windows/frmSetup.h")
#include "core/windows/frmSetup.h"
#define HAS_SETUP
#endif
#if __has_include("weightlog/windows/frmData.h")
#include "weightlog/rewards.h"
#include "weightlog/weight_statistics.h"
#include "weightlog/windows/frmData.h"
#include "weightlog/windows/rewards_page.h"
#define HAS_DATA
#endif

namespace trimlog {

void Program::FillHooks() {
#ifdef HAS_DATA
  hooks_.LoadRewardSettings = [this] { LoadRewardSettings(session_); };
  hooks_.UpdateStats = [this] { UpdateStats(session_); };
  // A goal changed in the options changes what is left and when it is reached.
  QObject::connect(&session_.changes, &DataChanges::Changed, &instance_, [this](const DataChange &change) {
    if (change.table == QStringLiteral("people") && change.personID == session_.CurrentPersonID) UpdateStats(session_);
  });
#endif
  hooks_.CloseToolsWindow = [] { CloseToolsWindow(); };
  const QString tutorial = session_.programDirectory + QStringLiteral("/tutorsel.exe");
  if (QFile::exists(tutorial))
    hooks_.StartTutorialSelector = [this, tutorial] { session_.machine.Start(tutorial, {}); };
}

void Program::FillNavigator() {
  navigator_.ShowForm = [this](const QString &name) { frame_->ShowForm(name); };
  navigator_.CanShowForm = [this](const QString &name) { return frame_->CanShowForm(name); };
  navigator_.LoadData = [this](const QString &personID) { frame_->LoadData(personID); };
  navigator_.ExitProgram = [this] { frame_->close(); };
  navigator_.ResetMainWindow = [this] { frame_->ResetPlace(); };
  navigator_.ShowHelp = [this](const QString &topic) { ShowHelp(session_, topic); };
  navigator_.OpenTools = [this](ToolsPanel panel) { OpenTools(session_, navigator_, panel, frame_.get()); };
#ifdef HAS_SETUP
  navigator_.OpenSetup = [this](SetupTab tab) {
    frmSetup setup(session_, navigator_, {RewardsTab()}, frame_.get());
    setup.ShowTab(tab);
    setup.exec();
  };
#endif
}

ContentForms Program::Forms() {
  ContentForms forms;
#ifdef HAS_DATA
  forms.insert(QStringLiteral("frmData"),
               [this](QWidget *parent) { return new frmData(session_, navigator_, parent); });
#endif
  return forms;
}

}  // namespace trimlog
