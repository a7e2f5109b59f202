#include "core/windows/frame/frame_menus.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QSet>
#include <QTest>

#include "core/session/product.h"
#include "frame_fixture.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {
namespace {

/// The visible tree as text: "&File[&Print Print &Window - ...]", a leading ~ for what is hidden.
QString Shape(const QMenu *menu) {
  QStringList parts;
  for (const QAction *action : menu->actions()) {
    QString part = action->isSeparator() ? QStringLiteral("-") : action->text();
    if (action->menu()) part += QLatin1Char('[') + Shape(action->menu()) + QLatin1Char(']');
    parts.append((action->isVisible() ? QString() : QStringLiteral("~")) + part);
  }
  return parts.join(QStringLiteral(" | "));
}

TEST(FrameMenus, TheTreeStandsInItsOrder) {
  QMenuBar bar;
  FrameMenus menus(&bar);
  const QMap<QString, QString> expected = {
      {QStringLiteral("mnuFile"),
       QStringLiteral(
           "&Print | Print &Window | - | &Backup Data... | &Restore Data... | - | &Config. Wizard... | Program "
           "&Updates... | Other Tools[&Import Previous Data... | Export &Weight Loss and Notes Data... | Export "
           "Current &Meals Data... | Export Current &Exercise Data...] | - | ~Profile Administrator... | ~Log "
           "Off | ~- | E&xit")},
      {QStringLiteral("mnuEdit"),
       QStringLiteral(
           "&Undo Field | ~Undo &Row | - | Cu&t | &Copy | &Paste | De&lete Weight | - | C&opy Row(s)[&Normal "
           "Copy | &For External Use] | P&aste Row(s) | &Delete Row(s) | - | GoTo[Pre&vious Month | Ne&xt "
           "Month | &Today] | Other Functions[&Reset Weight Loss Data] | ~Re&set Sample Profile")},
      {QStringLiteral("mnuView"), QStringLiteral("&Calendar... | &Journal... | &Planner... | &Charts... | &Links...")},
      {QStringLiteral("mnuTools"),
       QStringLiteral("&Goal Planner... | &Body Fat Assessment... | Caloric &Needs Estimator... | &Calculator...")},
      {QStringLiteral("mnuSettings"),
       QStringLiteral("&Program Options... | &Foods and Meals... | &Recipes... | Nutritional &Targets... | &Nutrient "
                      "Selections... | &Exercises and Activities... | &Links to Web Sites...")},
      {QStringLiteral("mnuHelp"),
       QStringLiteral(
           "&Trimlog Pro Help | Quick &Tutorials... | How To... | About the &Tools... | - | &User's Guide... | "
           "&Support... | &Mobile Devices... | - | &About Trimlog Pro...")},
  };
  for (auto menu = expected.cbegin(); menu != expected.cend(); ++menu) {
    EXPECT_EQ(Shape(menus.Action(menu.key())->menu()), menu.value()) << menu.key().toStdString();
  }
  QStringList order;
  for (const QAction *action : bar.actions()) order.append(action->menu()->objectName());
  EXPECT_EQ(order.join(QLatin1Char(' ')),
            QStringLiteral("mnuFile mnuProfiles mnuEdit mnuView mnuTools mnuSettings mnuPPC mnuPalm mnuHelp"));
  EXPECT_FALSE(menus.Action(QStringLiteral("mnuPPC"))->isVisible());
  EXPECT_FALSE(menus.Action(QStringLiteral("mnuPalm"))->isVisible());
}

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
    EXPECT_EQ(Action(name)->toolTip(), QLatin1String(reason)) << name;
    EXPECT_TRUE(Action(name)->menu() || Action(name)->statusTip() == QLatin1String(reason)) << name;
  }
  EXPECT_TRUE(Action("mnuFile")->menu()->toolTipsVisible());
  EXPECT_FALSE(Find<QWidget>("cmdTools")->isEnabled());
  EXPECT_TRUE(Find<QWidget>("cmdTools")->toolTip().endsWith(QLatin1String(version)));
  EXPECT_TRUE(Find<QWidget>("cmdGraphs")->isEnabled());
  EXPECT_FALSE(Find<QWidget>("cmdGraphs")->toolTip().contains(QLatin1String(version)));

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
      if (broken) throw Error(error_number::other, QStringLiteral("broken"));
    };
    navigator.OpenTools = [note](ToolsPanel panel) { note(QStringLiteral("tools %1").arg(static_cast<int>(panel))); };
    navigator.OpenSetup = [note](SetupTab tab) { note(QStringLiteral("setup %1").arg(static_cast<int>(tab))); };
    navigator.OpenFoodSetup = [note](QWidget *) { note(QStringLiteral("foods")); };
    navigator.OpenRecipes = [note](QWidget *) { note(QStringLiteral("recipes")); };
    navigator.OpenTargets = [note](QWidget *) { note(QStringLiteral("targets")); };
    navigator.OpenNutrientSelection = [note](QWidget *) { note(QStringLiteral("nutrients")); };
    navigator.OpenExercises = [note](QWidget *) { note(QStringLiteral("exercises")); };
    navigator.ShowHelp = [note](const QString &topic) { note(QStringLiteral("help ") + topic); };
    navigator.StartWiz = [note](bool force) {
      if (force) note(QStringLiteral("wizard"));
      return false;
    };
    hooks.RunHandheldSync = [note](bool) { note(QStringLiteral("handheld")); };
    navigator.StartTutorialSelector = [note] { note(QStringLiteral("tutorial")); };
    Load();
  }

  bool broken = false;
  QStringList done;
};

TEST_F(EveryCommand, OpensItsOwnAndAFailureIsShownAndLogged) {
  const struct {
    const char *menu;
    const char *opens;
    bool saves = true;  ///< what is being typed first
  } rows[] = {
      {"mnuToolsGoalPlanner", "tools 0"},
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
      {"mnuHelpTutorial", "tutorial", false},
  };
  for (const auto &row : rows) {
    broken = false;
    done.clear();
    Choose(row.menu);
    EXPECT_EQ(done, QStringList{QLatin1String(row.opens)}) << row.menu;
    behaviour.saves = false;  // a refused weight must not be left unsaved behind a window that computes with it
    Choose(row.menu);
    EXPECT_EQ(done.size(), row.saves ? 1 : 2) << row.menu;
    behaviour.saves = true;
    broken = true;
    session.boxes.Expect({}, QStringLiteral("An error occurred while carrying out this command."));
    Choose(row.menu);
    QFile log(session.directory.filePath(QStringLiteral("errorlog.txt")));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().contains(QByteArray("frmMDI, ") + row.menu + "_Click, broken")) << row.menu;
  }
}

TEST_F(EveryCommand, ButtonsDoWhatTheirEntriesDo) {
  Offer(QStringLiteral("frmPlanner"));
  Offer(QStringLiteral("frmLinks"));
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
    EXPECT_EQ(frame->CurrentFormName(), QLatin1String(form)) << button;
  }
  EXPECT_EQ(done, QStringList{QStringLiteral("tools 0")});
}

TEST_F(FrameCommandsTest, PagesOfTheWebAndTheDoorWithADate) {
  Load();
  for (const char *name : {"mnuHelpUsersGuide", "mnuHelpSupport", "mnuHelpMobile"}) Choose(name);
  EXPECT_EQ(session.machine.opened, QStringList({product::usersGuidePage, product::supportPage, product::mobilePage}));
  frame->ShowForm(QStringLiteral("frmDiary"), {QDate(2026, 2, 3)});
  EXPECT_TRUE(behaviour.calls.contains(QStringLiteral("frmDiary:2026-02-03")));
  const FormDoor nowhere{[](const QString &) { return false; }, [](const QString &, const FormOpening &) { FAIL(); }};
  nowhere(QStringLiteral("frmDiary"));
}

TEST_F(FrameCommandsTest, ReachTheContentWindow) {
  Load();
  QString calls;
  for (const char *name : {"mnuFilePrint", "mnuEditGotoPrevious", "mnuEditGotoNext", "mnuEditDeleteWeight"}) {
    Choose(name);
    calls += QStringLiteral(" frmData:") + QLatin1String(name);
  }
  EXPECT_EQ(behaviour.calls.join(QLatin1Char(' ')), calls.mid(1));
}

TEST_F(FrameCommandsTest, EditActsOnTheFieldThatLastHadTheFocus) {
  Load();
  auto *first = Find<QLineEdit>("txtData(1)");
  auto *second = Find<QLineEdit>("txtData(2)");
  first->setText(QStringLiteral("182"));
  second->setText(QStringLiteral("181"));
  second->setFocus();
  second->selectAll();
  QApplication::clipboard()->setText(QStringLiteral("180"));
  QMetaObject::invokeMethod(Action("mnuEdit")->menu(), "aboutToShow");
  Choose("mnuEditPaste");
  EXPECT_EQ(second->text(), QStringLiteral("180"));
  EXPECT_EQ(first->text(), QStringLiteral("182"));
}

TEST_F(FrameCommandsTest, RowCommandsActOnTheGridInUse) {
  Load();
  session.AddProfile(2, QStringLiteral("Bob"));
  auto *grid =
      new BoundGrid(QStringLiteral("grdPeople"), QStringLiteral("Profiles"), session->locale, frame->CurrentForm());
  grid->recordSource = QStringLiteral("datPeople");
  grid->SetColumns({{.name = QStringLiteral("PersonName"), .field = QStringLiteral("PersonName"), .editable = true}});
  ASSERT_TRUE(grid->Open(session.Data(), {.table = QStringLiteral("people"),
                                          .key = QStringLiteral("PersonID"),
                                          .where = QStringLiteral("(people.PersonID > 0)")}));
  grid->show();
  QMetaObject::invokeMethod(Action("mnuEdit")->menu(), "aboutToShow");
  EXPECT_FALSE(Action("mnuEditCopyRowNormal")->isEnabled());

  grid->setFocus();
  grid->GoToKey(2);
  QMetaObject::invokeMethod(Action("mnuEdit")->menu(), "aboutToShow");
  Choose("mnuEditCopyRowNormal");
  EXPECT_EQ(session->windows.rowClipboard.kind, QStringLiteral("datPeople"));
  ASSERT_EQ(session->windows.rowClipboard.rows.size(), 1);
  Choose("mnuEditCopyRowExternal");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Bob"));
  Choose("mnuEditDeleteRow");
  EXPECT_EQ(session.ValueOf(QStringLiteral("PersonName"), QStringLiteral("people"), QStringLiteral("PersonID=2")),
            QString());
}

TEST_F(FrameCommandsTest, PrintingDressesTheWindowAndUndressesItWhateverHappens) {
  Load();
  const QString question = QStringLiteral("Print the currently displayed window to your default printer?");
  const QString note = QStringLiteral("Note: After clicking OK, there will be a momentary delay");
  session.boxes.Expect(QStringLiteral("Print Window?"), question, BoxButton::No);
  Choose("mnuFilePrintWindow");
  EXPECT_EQ(behaviour.calls, QStringList{QStringLiteral("frmData:save")});

  session.printing.onPicture = [this](QWidget &form) {
    behaviour.calls.append(QStringLiteral("picture of ") + form.objectName());
  };
  for (const bool broken : {false, true}) {
    session.printing.broken = broken;
    behaviour.calls.clear();
    session.boxes.Expect(QStringLiteral("Print Window?"), question, BoxButton::Yes);
    session.boxes.Expect(QStringLiteral("Print Window?"), note);
    if (broken) {
      session.boxes.Expect(
          QStringLiteral("Printer Error"),
          QStringLiteral("An error occurred while printing to your default printer.  Unable to print at this time."));
    }
    Choose("mnuFilePrintWindow");
    EXPECT_EQ(behaviour.calls.join(QLatin1Char(' ')),
              QStringLiteral("frmData:save frmData:paper picture of frmData frmData:screen"));
  }
  EXPECT_EQ(session.printing.printed, QStringList{QStringLiteral("picture")});
}

}  // namespace
}  // namespace trimlog
