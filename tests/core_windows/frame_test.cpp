#include "frame_fixture.h"

namespace trimlog {
namespace {

using Frame = FrameTest;

TEST_F(Frame, StartsOnTheCalendarUnderItsTitle) {
  Load();
  EXPECT_TRUE(loaded);
  EXPECT_EQ(frame->windowTitle(), "Trimlog Pro 2.7");
  EXPECT_EQ(frame->CurrentFormName(), "frmData");
  EXPECT_EQ(Find<QLineEdit>("txtPersonName")->text(), "Test Person");
  EXPECT_EQ(Find<QLineEdit>("txtGoal")->text(), "150");
}

TEST_F(Frame, CannotRunWithoutItsDataFile) {
  QFile::remove(session->DataFilePath());
  session.boxes.Expect("Trimlog", "The program was unable to find the data file: ");
  Load();
  EXPECT_FALSE(loaded);
  EXPECT_EQ(session.boxes.Shown()[0].text,
            QStringLiteral("The program was unable to find the data file: %1.  The program cannot start without this "
                           "file.")
                .arg(QDir::toNativeSeparators(session->DataFilePath())));
}

TEST_F(Frame, EachFormBringsItsMenus) {
  Offer("frmPlanner");
  Offer("frmLinks");
  Load();
  const struct {
    const char *form;
    bool weight, undoRow, print;
  } rows[] = {{"frmDiary", false, true, true},
              {"frmGraphs", false, false, false},
              {"frmPlanner", false, true, true},
              {"frmLinks", false, false, false},
              {"frmData", true, false, true}};
  for (const auto &row : rows) {
    frame->ShowForm(row.form);
    EXPECT_EQ(frame->CurrentFormName(), row.form);
    EXPECT_EQ(Visible("mnuEditDeleteWeight"), row.weight) << row.form;
    EXPECT_EQ(Visible("mnuEditGoto"), row.weight) << row.form;
    EXPECT_EQ(Visible("mnuEditUndoRow"), row.undoRow) << row.form;
    EXPECT_EQ(Visible("mnuFilePrint"), row.print) << row.form;
  }
}

TEST_F(Frame, ARefusalLeavesWindowAndMenusAsTheyAre) {
  Load();
  const ContentWindow *before = frame->CurrentForm();
  behaviour.leaves = false;
  frame->ShowForm("frmGraphs");
  behaviour.leaves = true;
  behaviour.saves = false;
  frame->ShowForm("frmGraphs");
  EXPECT_EQ(frame->CurrentForm(), before);
  EXPECT_TRUE(before->isVisible());
  EXPECT_TRUE(Visible("mnuFilePrint"));
  EXPECT_TRUE(Visible("mnuEditGoto"));
}

TEST_F(Frame, SwitchingSavesShowsTheNewAndDropsTheOld) {
  Load();
  Choose("mnuViewGraphs");
  EXPECT_EQ(behaviour.calls.join(QLatin1Char(' ')), "frmData:save frmGraphs:made frmGraphs:activated frmData:gone");
  behaviour.calls.clear();
  Choose("mnuViewGraphs");  // the window already shown stays the same one
  EXPECT_TRUE(behaviour.calls.isEmpty());
}

TEST_F(Frame, QuickJournalLivesOverTheCalendarOnly) {
  Load();
  ContentWindow quickJournal(frame.get(), Qt::Tool);
  quickJournal.setObjectName("frmQuickDiary");
  quickJournal.show();
  session->windows.QuickJournalOpen = true;
  frame->ShowForm("frmGraphs");
  EXPECT_FALSE(quickJournal.isVisible());
  frame->ShowForm("frmData");
  EXPECT_TRUE(quickJournal.isVisible());
}

TEST_F(Frame, KeepsItsLeastSizeAndStandsOnTheScreen) {
  session->windows.framePlace = {-90000, -90000, 100, 100};
  Load();
  EXPECT_EQ(frame->size(), QSize(635, 473));
  EXPECT_TRUE(QApplication::screenAt(frame->geometry().center()));
  frame->resize(10, 10);
  QApplication::processEvents();
  EXPECT_EQ(frame->size(), QSize(635, 473));

  frame->resize(1000, 700);
  QApplication::processEvents();
  EXPECT_EQ(Find<QWidget>("frmMain1")->width(), 1000);
  EXPECT_EQ(Find<QWidget>("frmMain")->geometry().bottom(), Find<QWidget>("pnlContent")->geometry().bottom());
  EXPECT_EQ(frame->CurrentForm()->mapTo(frame.get(), QPoint(frame->CurrentForm()->width(), 0)).x(), 1000);
  frame->ReadPlace();
  EXPECT_EQ(session->windows.framePlace.Width, 15000);
  EXPECT_EQ(session->windows.framePlace.Height, 10500);
}

TEST_F(Frame, MarksASampleAndLeadsFromItToTheOwnProfile) {
  session->profile.CurrentPersonID = "-1";
  Load();
  EXPECT_TRUE(Find<QWidget>("pnlSample")->isVisible());
  QTest::mouseClick(Find<QWidget>("cmdOwnProfile"), Qt::LeftButton);
  EXPECT_EQ(session->profile.CurrentPersonID, "1");
  EXPECT_FALSE(Find<QWidget>("pnlSample")->isVisible());

  frame->LoadData("-1");
  session.Data().Execute("DELETE people.* FROM people WHERE PersonID > 0;");
  bool made = false;
  navigator.StartWiz = [&made](bool) { return made = true; };
  QTest::mouseClick(Find<QWidget>("cmdOwnProfile"), Qt::LeftButton);
  EXPECT_TRUE(made) << "without one, it is made";
}

TEST_F(Frame, TheStatisticsAreReachedByKeyboardAndHeard) {
  session->profile.statistics = {"8", "1.9", "10.2", "38", "12/7/2026", 0.439};
  Load();
  Find<QWidget>("txtPersonName")->setFocus();
  for (const auto &[field, name, text] : {std::tuple{"txtPersonName", "Name", "Test Person"},
                                          {"txtGoal", "Goal (Lbs)", "150"},
                                          {"txtLbsLost", "Lbs Lost", "8"},
                                          {"txtLbsPerWeek", "Lbs/Week", "1.9"},
                                          {"txtLbsLeft", "Lbs Left", "10.2"},
                                          {"txtDaysLeft", "Days Left", "38"},
                                          {"txtProjDate", "Proj. Date", "12/7/2026"}}) {
    auto *figure = Find<QLineEdit>(field);
    EXPECT_EQ(frame->focusWidget(), figure) << field;
    EXPECT_EQ(figure->accessibleName(), name);
    EXPECT_EQ(figure->text(), text);
    EXPECT_TRUE(figure->isReadOnly());
    QTest::keyClick(figure, Qt::Key_Tab);
  }
  EXPECT_EQ(Find<QProgressBar>("pnlProgress")->value(), 43) << "not more than is done";
}

TEST_F(Frame, GrowsWithTheDesktopsFont) {
  const QFont former = QApplication::font();
  QFont large = former;
  large.setPointSizeF(former.pointSizeF() * 1.4);
  QApplication::setFont(large);
  Load();
  EXPECT_GT(frame->width(), 635);
  EXPECT_TRUE(frame->centralWidget()->size().expandedTo(frame->centralWidget()->minimumSizeHint()) ==
              frame->centralWidget()->size());
  for (const char *panel : {"frmMain", "frmMain1"}) {
    const QWidget *shown = Find<QWidget>(panel);
    EXPECT_EQ(shown->size(), shown->size().expandedTo(shown->minimumSizeHint())) << panel;
  }
  QApplication::setFont(former);
}

TEST_F(Frame, StandsInItsPlaceBeforeAnythingComesOverIt) {
  session->settings.ShowSplash = true;
  session->windows.framePlace = {3000, 1500, 9525, 7095};
  QPoint splash;
  navigator.StartWiz = [](bool) { return false; };
  forms.insert("frmData", [&](QWidget *parent) {
    for (const QWidget *window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "frmSplash" && window->isVisible()) {
        splash = window->frameGeometry().center();
      }
    }
    return new TestForm("frmData", behaviour, parent);
  });
  Load();
  EXPECT_EQ(frame->pos(), QPoint(200, 100));
  EXPECT_LE((splash - frame->frameGeometry().center()).manhattanLength(), 4);
  frame->ReadPlace();
  EXPECT_EQ(session->windows.framePlace.Top, 1500);
}

TEST_F(Frame, WindowStateFollowsAndMinimisedIsNoState) {
  Load();
  frame->setWindowState(Qt::WindowMaximized);
  QApplication::processEvents();
  EXPECT_EQ(session->windows.frameWindowState, 2);
  frame->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
  QApplication::processEvents();
  EXPECT_EQ(session->windows.frameWindowState, 2);
  frame->setWindowState(Qt::WindowNoState);
  QApplication::processEvents();
  EXPECT_EQ(session->windows.frameWindowState, 0);
}

TEST_F(Frame, ClosesOnlyWhenTheShutdownLetsIt) {
  int asked = 0;
  bool may = false;
  QueryUnload = [&] {
    ++asked;
    return may;
  };
  Load();
  Choose("mnuFileExit");
  EXPECT_TRUE(frame->isVisible());
  may = true;
  QTest::mouseClick(Find<QWidget>("cmdExit"), Qt::LeftButton);
  EXPECT_FALSE(frame->isVisible());
  EXPECT_EQ(asked, 2);
}

TEST_F(Frame, PressingAwayFromTheCalendarHoldsRewardsBack) {
  navigator.OpenTools = [](ToolsPanel) {};
  Load();
  for (const char *name : {"cmdGraphs", "cmdTools", "cmdExit"}) {
    session->windows.SuppressReward = false;
    QTest::mousePress(Find<QWidget>(name), Qt::LeftButton);
    EXPECT_TRUE(session->windows.SuppressReward) << name;
  }
  for (const char *name : {"cmdData", "cmdDiary"}) {
    session->windows.SuppressReward = false;
    QTest::mousePress(Find<QWidget>(name), Qt::LeftButton);
    EXPECT_FALSE(session->windows.SuppressReward) << name;
  }
}

TEST_F(Frame, PanelShowsFiguresUnitsAndTheirChanges) {
  Load();
  EXPECT_EQ(Find<QLabel>("lblGoal")->text(), "Goal (Lbs)");
  EXPECT_EQ(Find<QLabel>("lblLbsPerWeek")->text(), "Lbs/Week");
  session->profile.statistics = {"8.5", "1.2", "20", "117", "6/26/2026", {}};
  session->changes.AnnounceStatistics();
  EXPECT_EQ(Find<QLineEdit>("txtLbsLost")->text(), "8.5");
  EXPECT_EQ(Find<QLineEdit>("txtProjDate")->text(), "6/26/2026");
  session->UomDisplay = "Kg";
  session->changes.AnnounceSettings();
  EXPECT_EQ(Find<QLabel>("lblLbsLost")->text(), "Kg Lost");
  session.Data().Execute("UPDATE people SET people.Goal = \"145.5\" WHERE (people.PersonID=1);");
  session.Announce({.table = Table::People, .keys = {1}});
  EXPECT_EQ(Find<QLineEdit>("txtGoal")->text(), "145.5");
}

TEST_F(Frame, SamplesAreLoadedWelcomedAndMarked) {
  Load();
  session.boxes.Expect("Welcome to Sample Profile 2", "7 month period");
  ProfileEntry("Sample Profile 2")->trigger();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(session->profile.CurrentPersonID, "-1");
  EXPECT_EQ(session->profile.LastRealPersonID, "1");
  EXPECT_TRUE(Visible("mnuEditReset"));
  EXPECT_TRUE(ProfileEntry("Sample Profile 2")->isChecked());
  EXPECT_FALSE(ProfileEntry("Test Person")->isChecked());
  EXPECT_EQ(behaviour.calls.join(QLatin1Char(' ')), "frmData:save frmData:made frmData:activated frmData:gone");

  ProfileEntry("Test Person")->trigger();
  EXPECT_FALSE(Visible("mnuEditReset"));
  EXPECT_EQ(Find<QLineEdit>("txtPersonName")->text(), "Test Person");
}

TEST_F(Frame, ASwitchThatCannotSaveChangesNothing) {
  Load();
  behaviour.saves = false;
  ProfileEntry("Sample Profile 1")->trigger();
  EXPECT_EQ(session->profile.CurrentPersonID, "1");
  EXPECT_TRUE(ProfileEntry("Test Person")->isChecked());
  EXPECT_FALSE(ProfileEntry("Sample Profile 1")->isChecked());
}

TEST_F(Frame, NewProfilesAreOfferedOnlyWhereTheyCanBeMade) {
  Load();
  const QString create = "&Create a New Profile...";
  EXPECT_FALSE(ProfileEntry(create)->isEnabled());
  navigator.StartWiz = [](bool) { return false; };  // the wizard only makes the first profile
  frame->LoadProfilesMenu();
  EXPECT_FALSE(ProfileEntry(create)->isEnabled());
  bool added = false;
  navigator.AddProfile = [&](QWidget *) { return added = true; };
  frame->LoadProfilesMenu();
  ProfileEntry(create)->trigger();
  EXPECT_TRUE(added);

  session.Data().Execute("DELETE people.* FROM people WHERE (people.PersonID>0);");
  navigator.AddProfile = nullptr;
  session->profile.CurrentPersonID = "-1";
  for (const char *left : {"1", "-2"}) {  // closed before its end, and skipped for a sample
    navigator.StartWiz = [this, left](bool) {
      session->profile.CurrentPersonID = left;
      return false;
    };
    frame->LoadProfilesMenu();
    ProfileEntry(create)->trigger();
    EXPECT_EQ(session->profile.CurrentPersonID, QString(left) == "1" ? "-1" : "-2");
  }
  bool forced = false;
  navigator.StartWiz = [&](bool force) {
    forced = force;
    session.AddProfile(1, "Newcomer");
    return true;
  };
  frame->LoadProfilesMenu();
  ProfileEntry(create)->trigger();
  EXPECT_TRUE(forced);
  EXPECT_EQ(session->profile.CurrentPersonID, "1");
  EXPECT_TRUE(ProfileEntry("Newcomer")->isChecked());
}

TEST_F(Frame, WizardComesByItselfOnlyForTheFirstProfile) {
  QStringList runs;
  navigator.StartWiz = [&](bool force) {
    runs.append(force ? "forced" : "offered");
    return false;
  };
  Load();
  EXPECT_EQ(runs, QStringList{"offered"});
  session->ReloadInProgress = true;
  Load();
  session->ReloadInProgress = false;
  session.AddProfile(2, "Bob");
  session->profile.CurrentPersonID = "2";
  Load();
  EXPECT_EQ(runs.size(), 1);
}

TEST_F(Frame, NobodyIsLoadedForWhomNothingCouldBeSaved) {
  session.Data().Execute("DELETE people.* FROM people WHERE (people.PersonID>0);");
  navigator.StartWiz = [](bool) { return false; };  // closed before its end
  for (bool reload : {false, true}) {
    session->profile.CurrentPersonID = "1";
    session->ReloadInProgress = reload;
    Load();
    EXPECT_EQ(session->profile.CurrentPersonID, "-2");
    EXPECT_TRUE(ProfileEntry("Sample Profile 1")->isChecked());
    EXPECT_TRUE(Visible("mnuEditReset"));
  }
  session.boxes.Expect("Reset Weight Loss Data", "cannot get it back", BoxButton::Yes);
  session.boxes.Expect({}, "All weight loss data has been deleted successfully.");
  Choose("mnuEditOtherReset");
  EXPECT_EQ(session->profile.CurrentPersonID, "-2");
}

TEST_F(Frame, ResettingWeightsLoadsTheProfileThatWasReset) {
  session.AddProfile(2, "Bob");
  for (const int person : {1, 2}) session.Weigh(session->Today(), 180, person);
  session->profile.CurrentPersonID = "2";
  Load();
  for (const bool sure : {false, true}) {
    session.boxes.Expect("Reset Weight Loss Data", "cannot get it back", sure ? BoxButton::Yes : BoxButton::No);
    session.boxes.Expect({}, sure ? "All weight loss data has been deleted successfully." : "No data was deleted.");
    Choose("mnuEditOtherReset");
    EXPECT_EQ(session->profile.CurrentPersonID, sure ? "1" : "2");
  }
}
TEST_F(Frame, EachProfileCommandThatFailsSaysSo) {
  session.AddProfile(2, "Bob");
  bool broken = false;
  hooks.LoadRewardSettings = [&broken] {
    if (broken) throw Error(error_number::other, "broken");
  };
  navigator.AddProfile = [](QWidget *) -> bool { throw Error(error_number::other, "broken"); };
  navigator.OpenSetup = [](SetupTab) { throw Error(error_number::other, "broken"); };
  Load();
  broken = true;
  for (const auto &[entry, title, text] :
       {std::tuple{"Bob", "Error Loading Data", "An error occurred while loading the data for this profile."},
        {"&Create a New Profile...", "Error Loading Data", "An error occurred while loading the data"},
        {"&Edit Profiles...", "", "An error occurred while carrying out this command."}}) {
    const qsizetype lines = session.LogLines().size();
    session.boxes.Expect(title, text);
    ProfileEntry(entry)->trigger();
    EXPECT_EQ(session.LogLines().size(), lines + 1) << entry;
  }
}

TEST_F(Frame, ALoadThatFailsSaysSoAndIsLogged) {
  forms.insert("frmData", [](QWidget *) -> ContentWindow * { throw Error(error_number::other, "broken"); });
  session.boxes.Expect("Error Loading Program", "An error occurred while loading the program.");
  Load();
  EXPECT_TRUE(session.Logged("frmMDI, MDIForm_Load, broken"));
}

}  // namespace
}  // namespace trimlog
