// Which room's window stands behind which door. A door that is not filled here belongs to a window that does not exist
// yet: what would open it is shown disabled.
#include <QApplication>
#include <QFile>

#include "catalogs/windows/frmAddActivity.h"
#include "catalogs/windows/frmAddMeal.h"
#include "catalogs/windows/frmNutTargets.h"
#include "catalogs/windows/frmSelectedNutrients.h"
#include "catalogs/windows/frmSetupFoods.h"
#include "companions/windows/frmWizard.h"
#include "core/windows/profiles/add_profile_page.h"
#include "core/windows/setup/frmSetup.h"
#include "journal/windows/frmDiary.h"
#include "journal/windows/frmQuickDiary.h"
#include "program.h"
#include "tools/windows/frmTools.h"
#include "weightlog/rewards.h"
#include "weightlog/weight_statistics.h"
#include "weightlog/windows/frmData.h"
#include "weightlog/windows/rewards_page.h"

namespace trimlog {

void Program::FillHooks() {
  hooks_.LoadRewardSettings = [this] { LoadRewardSettings(session_); };
  hooks_.UpdateStats = [this] { UpdateStats(session_); };
  // A goal changed in the options changes what is left and when it is reached.
  QObject::connect(&session_.changes, &DataChanges::Changed, &instance_, [this](const DataChange &change) {
    if (change.table == Table::People && change.Concerns(session_.profile.CurrentPersonID)) UpdateStats(session_);
  });
  hooks_.CloseToolsWindow = [] { CloseToolsWindow(); };
}

void Program::FillNavigator() {
  navigator_.ShowForm.leads = [this](const QString &name) { return frame_->HasForm(name); };
  navigator_.ShowForm.show = [this](const QString &name, const FormOpening &opening) {
    frame_->ShowForm(name, opening);
  };
  navigator_.LoadData = [this](const QString &personID) { frame_->LoadData(personID); };
  navigator_.ExitProgram = [this] { frame_->close(); };
  navigator_.ResetMainWindow = [this] { frame_->ResetPlace(); };
  navigator_.ShowHelp = [this](const QString &topic) { help_.Show(topic); };
  const QString tutorial = session_.programDirectory + QStringLiteral("/tutorsel.exe");
  if (QFile::exists(tutorial))
    navigator_.StartTutorialSelector = [this, tutorial] { session_.machine.Start(tutorial, {}); };
  navigator_.OpenTools = [this](ToolsPanel panel) { OpenTools(session_, navigator_, panel, frame_.get()); };
  navigator_.OpenFoodSetup = [this](QWidget *owner) {
    frmSetupFoods(session_, navigator_, owner ? owner : frame_.get()).exec();
  };
  journalDoors_.AddActivity = [this](QWidget *owner, const EntryOpening &opening) {
    frmAddActivity(session_, navigator_, opening, owner ? owner : frame_.get()).exec();
  };
  navigator_.OpenQuickJournal = [this](QWidget *) {
    trimlog::OpenQuickJournal(session_, navigator_, journalDoors_, frame_.get());
  };
  navigator_.ResetQuickJournal = [this] { trimlog::ResetQuickJournal(frame_.get()); };
  navigator_.OpenNutrientSelection = [this](QWidget *owner) {
    trimlog::OpenNutrientSelection(session_, navigator_, owner ? owner : frame_.get());
  };
  journalDoors_.AddMeal = [this](QWidget *owner, const EntryOpening &opening) {
    frmAddMeal(session_, navigator_, PickingForDay(session_, opening), owner).exec();
  };
  navigator_.OpenTargets = [this](QWidget *owner) {
    OpenNutTargets(session_, navigator_, owner ? owner : frame_.get());
  };
  navigator_.StartWiz = [this](bool force) {
    QWidget *above = QApplication::activeModalWidget();  // the options can start it too
    return StartWiz(session_, navigator_, force, above ? above : frame_.get());
  };
  navigator_.CreateProfile = [this](QWidget *owner) { return frame_->CreateProfile(owner); };
  navigator_.AddProfile = [this](QWidget *owner) {
    return AddRec(owner ? owner : frame_.get(),
                  [this](QWidget *parent) { return new AddProfilePage(session_, parent); });
  };
  navigator_.OpenSetup = [this](SetupTab tab) {
    frmSetup setup(session_, navigator_, {RewardsTab()}, frame_.get());
    setup.ShowTab(tab);
    setup.exec();
  };
}

ContentForms Program::Forms() {
  ContentForms forms;
  forms.insert(QStringLiteral("frmData"),
               [this](QWidget *parent) { return new frmData(session_, navigator_, parent); });
  forms.insert(QStringLiteral("frmDiary"),
               [this](QWidget *parent) { return new frmDiary(session_, navigator_, journalDoors_, parent); });
  return forms;
}

}  // namespace trimlog
