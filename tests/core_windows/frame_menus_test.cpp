#include "core/windows/frame/frame_menus.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QSet>

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
           "Month] | Other Functions[&Reset Weight Loss Data] | ~Re&set Sample Profile")},
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

TEST_F(FrameCommandsTest, WhatLeadsNowhereIsDisabledAndNothingElse) {
  Load();
  for (const char *name : {"mnuFileBackup", "mnuFileConfigWizard", "mnuToolsGoalPlanner", "mnuSettingsOptions",
                           "mnuSettingsFoods", "mnuViewPlan", "mnuViewLinks", "mnuHelpTutorial", "mnuFileImport"}) {
    EXPECT_FALSE(Action(name)->isEnabled()) << name;
  }
  for (const char *name : {"mnuFilePrint", "mnuFileExit", "mnuViewData", "mnuViewGraphs", "mnuEditOtherReset",
                           "mnuHelpAbout", "mnuHelpSupport"}) {
    EXPECT_TRUE(Action(name)->isEnabled()) << name;
  }
  EXPECT_FALSE(Find<QWidget>("cmdTools")->isEnabled());
  EXPECT_FALSE(Find<QWidget>("cmdPlanner")->isEnabled());
  EXPECT_TRUE(Find<QWidget>("cmdGraphs")->isEnabled());
}

TEST_F(FrameCommandsTest, AFilledDoorEnablesItsEntries) {
  QList<ToolsPanel> opened;
  navigator.OpenTools = [&](ToolsPanel panel) { opened.append(panel); };
  Load();
  EXPECT_TRUE(Find<QWidget>("cmdTools")->isEnabled());
  Choose("mnuToolsBodyFat");
  Choose("mnuToolsCaloricNeeds");
  Choose("mnuToolsGoalPlanner");
  EXPECT_EQ(opened, QList<ToolsPanel>({ToolsPanel::BodyFat, ToolsPanel::CaloricNeeds, ToolsPanel::GoalPlanner}));
  behaviour.saves = false;  // a refused weight must not be left unsaved behind a window that computes with it
  Choose("mnuToolsGoalPlanner");
  EXPECT_EQ(opened.size(), 3);
}

TEST_F(FrameCommandsTest, ReachTheContentWindow) {
  Load();
  for (const char *name : {"mnuFilePrint", "mnuEditGotoPrevious", "mnuEditGotoNext", "mnuEditDeleteWeight"})
    Choose(name);
  EXPECT_EQ(behaviour.calls.join(QLatin1Char(' ')),
            QStringLiteral("frmData:print frmData:previous frmData:next frmData:delete"));
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
