#include "core/windows/frame/frame_menus.h"

#include "core/session/calculator.h"
#include "core/session/product.h"
#include "frame_fixture.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

TEST(FrameMenus, NoTwoEntriesShareAKeyOrAnAccessKeyOfTheBar) {
  QMenuBar bar;
  FrameMenus menus(&bar);
  QSet<QString> keys;
  for (const QString &name : menus.CommandNames()) {
    const QString key = menus.Action(name)->shortcut().toString();
    if (key.isEmpty()) continue;
    EXPECT_FALSE(keys.contains(key)) << key.toStdString();
    keys.insert(key);
  }
  QSet<QChar> letters;
  for (const QAction *action : bar.actions()) {
    const QString text = action->text();
    const QChar letter = text[text.indexOf(QLatin1Char('&')) + 1].toUpper();
    EXPECT_FALSE(letters.contains(letter)) << text.toStdString();
    letters.insert(letter);
  }
}

using FrameCommandsTest = FrameTest;

TEST_F(FrameCommandsTest, WhatCannotBeChosenSaysWhyAndNothingElseDoes) {
  Load();
  const char *const lists = "Click on a row of a list first.";
  const char *const version = "This is not part of this version.";
  for (const auto &[name, reason] : std::initializer_list<std::pair<const char *, const char *>>{
           {"mnuFileBackup", version},
           {"mnuFileConfigWizard", version},
           {"mnuToolsGoalPlanner", version},
           {"mnuViewPlan", version},
           {"mnuFileOther", version},
           {"mnuHelpTutorial", "The tutorials are not installed."},
           {"mnuEditGotoToday", "The window that is shown has nothing of this kind."},
           {"mnuEditDeleteRow", lists},
           {"mnuEditCopyRow", lists},
           {"mnuEditCut", "Click into a field or cell that can be changed first."},
           {"mnuFilePrint", ""},
           {"mnuViewGraphs", ""},
           {"mnuEditOther", ""},
           {"mnuEditGoto", ""},
           {"mnuHelpAbout", ""},
           {"mnuHelpSupport", ""}}) {
    EXPECT_EQ(Action(name)->isEnabled(), !*reason) << name;
    if (!*reason) continue;  // an entry without a tip of its own gives its caption
    EXPECT_EQ(Action(name)->toolTip(), reason) << name;
    EXPECT_TRUE(Action(name)->menu() || Action(name)->statusTip() == reason) << name;
  }
  EXPECT_TRUE(Action("mnuFile")->menu()->toolTipsVisible());
  EXPECT_FALSE(Find<QWidget>("cmdTools")->isEnabled());
  EXPECT_TRUE(Find<QWidget>("cmdTools")->toolTip().endsWith(version));
  EXPECT_TRUE(Find<QWidget>("cmdGraphs")->isEnabled());
  EXPECT_FALSE(Find<QWidget>("cmdGraphs")->toolTip().contains(version));

  Choose("mnuViewGraphs");  // what a window hands over goes with it
  EXPECT_FALSE(Action("mnuEditGotoNext")->isEnabled());
  EXPECT_FALSE(Action("mnuEditGoto")->isEnabled());
}

/// All doors and hooks filled with what notes their use, or with what fails.
class EveryCommand : public FrameTest {
 protected:
  EveryCommand() {
    const auto note = [this](const QString &what) {
      done.append(what);
      if (broken) throw Error(error_number::other, "broken");
    };
    navigator.OpenTools = [note](ToolsPanel panel) { note(QStringLiteral("tools %1").arg(static_cast<int>(panel))); };
    navigator.OpenSetup = [note](SetupTab tab) { note(QStringLiteral("setup %1").arg(static_cast<int>(tab))); };
    navigator.OpenFoodSetup = [note](QWidget *) { note("foods"); };
    navigator.OpenRecipes = [note](QWidget *) { note("recipes"); };
    navigator.OpenTargets = [note](QWidget *) { note("targets"); };
    navigator.OpenNutrientSelection = [note](QWidget *) { note("nutrients"); };
    navigator.OpenExercises = [note](QWidget *) { note("exercises"); };
    navigator.ShowHelp = [note](const QString &topic) { note("help " + topic); };
    navigator.StartWiz = [note](bool force) {
      if (force) note("wizard");
      return false;
    };
    hooks.RunHandheldSync = [note](bool) { note("handheld"); };
    navigator.StartTutorialSelector = [note] { note("tutorial"); };
    Load();
  }

  bool broken = false;
  QStringList done;
};

TEST_F(EveryCommand, OpensItsOwnAndAFailureIsShownAndLogged) {
  const struct {
    const char *menu, *opens;
    bool saves = true;  ///< what is being typed first
  } rows[] = {{"mnuToolsGoalPlanner", "tools 0"},
              {"mnuToolsCaloricNeeds", "tools 1"},
              {"mnuToolsBodyFat", "tools 2"},
              {"mnuSettingsOptions", "setup 0"},
              {"mnuSettingsFoods", "foods"},
              {"mnuSettingsRecipes", "recipes"},
              {"mnuSettingsTargets", "targets"},
              {"mnuSettingsNutrients", "nutrients"},
              {"mnuSettingExercises", "exercises"},
              {"mnuFileConfigWizard", "wizard"},
              {"mnuPPCSync", "handheld"},
              {"mnuHelpHelp", "help ", false},
              {"mnuHelpHowTo", "help howto", false},
              {"mnuHelpTools", "help tools", false},
              {"mnuHelpTutorial", "tutorial", false}};
  for (const auto &row : rows) {
    broken = false;
    done.clear();
    Choose(row.menu);
    EXPECT_EQ(done, QStringList{row.opens}) << row.menu;
    behaviour.saves = false;  // a refused weight must not be left unsaved behind a window that computes with it
    Choose(row.menu);
    EXPECT_EQ(done.size(), row.saves ? 1 : 2) << row.menu;
    behaviour.saves = true;
    broken = true;
    session.boxes.Expect({}, "An error occurred while carrying out this command.");
    Choose(row.menu);
    EXPECT_TRUE(session.Logged(QStringLiteral("frmMDI, %1_Click, broken").arg(row.menu))) << row.menu;
  }
}

TEST_F(EveryCommand, ButtonsDoWhatTheirEntriesDo) {
  Offer("frmPlanner");
  Offer("frmLinks");
  Load();
  done.clear();
  for (const auto &[button, form] :
       std::initializer_list<std::pair<const char *, const char *>>{{"cmdDiary", "frmDiary"},
                                                                    {"cmdPlanner", "frmPlanner"},
                                                                    {"cmdGraphs", "frmGraphs"},
                                                                    {"cmdLinks", "frmLinks"},
                                                                    {"cmdTools", "frmLinks"},
                                                                    {"cmdData", "frmData"}}) {
    QTest::mouseClick(Find<QWidget>(button), Qt::LeftButton);
    EXPECT_EQ(frame->CurrentFormName(), form) << button;
  }
  EXPECT_EQ(done, QStringList{"tools 0"});
}

TEST_F(FrameCommandsTest, PagesOfTheWebAndTheDoorWithADate) {
  Load();
  for (const char *name : {"mnuHelpUsersGuide", "mnuHelpSupport", "mnuHelpMobile"}) Choose(name);
  EXPECT_EQ(session.machine.opened, QStringList({product::usersGuidePage, product::supportPage, product::mobilePage}));
  frame->ShowForm("frmDiary", {QDate(2026, 2, 3)});
  EXPECT_TRUE(behaviour.calls.contains("frmDiary:2026-02-03"));
  const FormDoor nowhere{[](const QString &) { return false; }, [](const QString &, const FormOpening &) { FAIL(); }};
  nowhere("frmDiary");
}

TEST_F(FrameCommandsTest, TheRestOfTheEntriesDoWhatTheySay) {
  session->profile.CurrentPersonID = "-1";
  Load();
  const auto weights = [this] { return session.Rows("SELECT Count(*) AS N FROM weight_loss WHERE PersonID=-1;"); };
  const QString before = weights();
  session.Data().Execute("DELETE weight_loss.* FROM weight_loss WHERE PersonID=-1;");
  for (const BoxButton answer : {BoxButton::No, BoxButton::Yes}) {
    session.boxes.Expect("Reset Sample Profile", "Reset all data for this sample profile?", answer);
    Choose("mnuEditReset");
    EXPECT_EQ(weights(), answer == BoxButton::Yes ? before : "0");
  }
  EXPECT_TRUE(behaviour.calls.contains("frmData:made")) << "the calendar shows what is there again";
  bool about = false;
  WhenModal([&about](QWidget &window) { about = window.objectName() == "frmSplash"; });
  Choose("mnuHelpAbout");
  EXPECT_TRUE(about);
  EXPECT_EQ(Action("mnuToolsCalculator")->isEnabled(), !FindCalculator().isEmpty());
}

TEST_F(FrameCommandsTest, ReachTheContentWindow) {
  Load();
  QString calls;
  for (const char *name : {"mnuFilePrint", "mnuEditGotoPrevious", "mnuEditGotoNext", "mnuEditDeleteWeight"}) {
    Choose(name);
    calls += QStringLiteral(" frmData:") + name;
  }
  EXPECT_EQ(behaviour.calls.join(QLatin1Char(' ')), calls.mid(1));
}

TEST_F(FrameCommandsTest, EditActsOnTheFieldThatLastHadTheFocus) {
  Load();
  auto *first = Find<QLineEdit>("txtData(1)");
  auto *second = Find<QLineEdit>("txtData(2)");
  first->setText("182");
  second->setFocus();
  QTest::keyClicks(second, "181");
  QApplication::clipboard()->setText("180");
  for (const auto &[entry, text, copied] : {std::tuple{"mnuEditCopy", "181", "181"},
                                            {"mnuEditCut", "", "181"},
                                            {"mnuEditUndo", "181", "181"},
                                            {"mnuEditPaste", "181181", "181"}}) {
    if (QString(entry) != "mnuEditPaste") second->selectAll();
    if (QString(entry) == "mnuEditPaste") second->end(false);
    QMetaObject::invokeMethod(Action("mnuEdit")->menu(), "aboutToShow");
    Choose(entry);
    EXPECT_EQ(second->text(), text) << entry;
    EXPECT_EQ(QApplication::clipboard()->text(), copied) << entry;
  }
  EXPECT_EQ(first->text(), "182");
}
TEST_F(FrameCommandsTest, RowCommandsActOnTheGridInUse) {
  Load();
  session.AddProfile(2, "Bob");
  auto *grid = new BoundGrid("grdPeople", "Profiles", session->locale, frame->CurrentForm());
  grid->recordSource = "datPeople";
  grid->SetColumns({{.name = "PersonName", .field = "PersonName", .editable = true}});
  ASSERT_TRUE(grid->Open(session.Data(), {.table = "people", .key = "PersonID", .where = "(people.PersonID > 0)"}));
  grid->show();
  QMetaObject::invokeMethod(Action("mnuEdit")->menu(), "aboutToShow");
  EXPECT_FALSE(Action("mnuEditCopyRowNormal")->isEnabled());

  grid->setFocus();
  grid->GoToKey(2);
  QMetaObject::invokeMethod(Action("mnuEdit")->menu(), "aboutToShow");
  Choose("mnuEditCopyRowNormal");
  EXPECT_EQ(session->windows.rowClipboard.kind, "datPeople");
  ASSERT_EQ(session->windows.rowClipboard.rows.size(), 1);
  Choose("mnuEditCopyRowExternal");
  EXPECT_EQ(QApplication::clipboard()->text(), "Bob");
  bool pasted = false;
  grid->Hooks().pasteRows = [&pasted](const GridClipboard &) { return pasted = true, std::vector<qint64>{}; };
  Choose("mnuEditPasteRow");
  EXPECT_TRUE(pasted);
  grid->Model().setData(grid->Model().index(grid->Model().RowOfKey(2), 0), "Bo");
  Choose("mnuEditUndoRow");
  EXPECT_FALSE(grid->Model().IsChanging());
  Choose("mnuEditDeleteRow");
  EXPECT_EQ(session.ValueOf("PersonName", "people", "PersonID=2"), QString());
}

TEST_F(FrameCommandsTest, PrintingDressesTheWindowAndUndressesItWhateverHappens) {
  Load();
  const QString question = "Print the currently displayed window to your default printer?";
  const QString note = "Note: After clicking OK, there will be a momentary delay";
  session.boxes.Expect("Print Window?", question, BoxButton::No);
  Choose("mnuFilePrintWindow");
  EXPECT_EQ(behaviour.calls, QStringList{"frmData:save"});

  session.printing.onPicture = [this](QWidget &form) { behaviour.calls.append("picture of " + form.objectName()); };
  for (const bool broken : {false, true}) {
    session.printing.broken = broken;
    behaviour.calls.clear();
    session.boxes.Expect("Print Window?", question, BoxButton::Yes);
    session.boxes.Expect("Print Window?", note);
    if (broken) {
      session.boxes.Expect("Printer Error",
                           "An error occurred while printing to your default printer.  Unable to print at this time.");
    }
    Choose("mnuFilePrintWindow");
    EXPECT_EQ(behaviour.calls.join(QLatin1Char(' ')), "frmData:save frmData:paper picture of frmData frmData:screen");
  }
  EXPECT_EQ(session.printing.printed, QStringList{"picture"});
}

}  // namespace
}  // namespace trimlog
