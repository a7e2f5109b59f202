#include <gtest/gtest.h>

#include "core/data/data_access.h"
#include "core/session/product.h"
#include "core/start/conflict_checks.h"
#include "core/start_bench.h"

namespace trimlog {
namespace {

class Stop : public ::testing::Test {
 protected:
  Stop() {
    bench.Prepare("INSERT INTO people ( PersonID, PersonName ) SELECT 4 AS Expr1, \"P\" AS Expr2;");
    EXPECT_EQ(bench.application.Main(), Application::Outcome::Running);
    bench.calls.clear();
    bench.session.settings.LastRecordTypeMeals = 2;
    bench.session.Data().Execute("DELETE weight_loss.* FROM weight_loss WHERE (weight_loss.PersonID) < 0;");
  }
  int SampleWeights() const {
    return GetDataValue(bench.session.Data(), "Count(*) AS Rows", "weight_loss", "(weight_loss.PersonID) < 0", "Rows")
        .toInt();
  }

  StartBench bench;
};

TEST_F(Stop, StoresTheSessionAndRestoresTheSamples) {
  EXPECT_TRUE(bench.application.QueryUnload());
  EXPECT_EQ(bench.Setting("PersonID"), "4");
  EXPECT_EQ(bench.Setting("LastRecordTypeMeals"), "2");
  EXPECT_EQ(bench.Setting("Left"), "100");
  EXPECT_EQ(bench.Setting("Width"), "9600");
  EXPECT_EQ(bench.Setting("QDWidth"), "none") << "the Quick Journal is not open";
  EXPECT_GT(SampleWeights(), 30);
  const QStringList expected = {"tools closed", "edit saved"};
  EXPECT_EQ(bench.calls, expected);
}

TEST_F(Stop, TheQuickJournalsPlaceIsKeptWhileItIsOpen) {
  bench.session.windows.QuickJournalOpen = true;
  bench.session.windows.quickJournalPlace = {1, 2, 8400, 2900};
  EXPECT_TRUE(bench.application.QueryUnload());
  EXPECT_EQ(bench.Setting("QDWidth"), "8400");
  EXPECT_EQ(bench.Setting("QDHeight"), "2900");
  EXPECT_EQ(bench.Setting("QDTop"), "2");
}

TEST_F(Stop, ASampleIsNeverTheProfileOfTheNextRun) {
  for (const char *person : {"", "-1", "-2", "-3", "-4"}) {
    bench.session.profile.LastRealPersonID = person;
    bench.Put("PersonID", "9");
    EXPECT_TRUE(bench.application.QueryUnload());
    EXPECT_EQ(bench.Setting("PersonID"), "9") << person;
  }
  bench.session.profile.CurrentPersonID = "-2";
  bench.session.profile.LastRealPersonID = "4";
  EXPECT_TRUE(bench.application.QueryUnload());
  EXPECT_EQ(bench.Setting("PersonID"), "4");
}

TEST_F(Stop, AfterARestoreNothingIsStoredAndNothingReset) {
  bench.store->SaveSettingString(settingsRoot + "\\PPC", "DaysHistory", "7");
  bench.Put("PersonID", "9");
  bench.session.ReloadInProgress = true;
  EXPECT_TRUE(bench.application.QueryUnload());
  bench.session.database.reset();
  bench.calls.clear();

  EXPECT_EQ(bench.application.Main(), Application::Outcome::Running) << "the same process starts again";
  EXPECT_TRUE(bench.session.ReloadInProgress);
  bench.calls.clear();
  EXPECT_TRUE(bench.application.QueryUnload());
  EXPECT_EQ(bench.Setting("PersonID"), "9");
  EXPECT_EQ(bench.Setting("Left"), "none");
  EXPECT_EQ(bench.Setting("LastRecordTypeMeals"), "-1");
  EXPECT_EQ(SampleWeights(), 0);
  EXPECT_EQ(bench.calls, QStringList{"tools closed"});
}

TEST_F(Stop, WhatCannotBeSavedKeepsAPersonsProgramOpenAndNoOther) {
  const struct {
    const char *what;
    EditOutcome edit;
    EndedBy endedBy;
    std::optional<BoxButton> answer;
    bool ends;
  } cases[] = {{"refused", EditOutcome::Refused, EndedBy::Person, {}, false},
               {"failed, kept", EditOutcome::Failed, EndedBy::Person, BoxButton::No, false},
               {"refused, ended by the machine", EditOutcome::Refused, EndedBy::Machine, {}, true},
               {"failed, ended by the machine", EditOutcome::Failed, EndedBy::Machine, {}, true},
               {"failed, given up", EditOutcome::Failed, EndedBy::Person, BoxButton::Yes, true}};
  for (const auto &c : cases) {
    bench.calls.clear();
    bench.store->DeleteKey(settingsRoot);
    QFile::remove(bench.directory.filePath("errorlog.txt"));
    bench.edit = c.edit;
    if (c.answer) bench.boxes.Expect("Close Without Saving?", "this weight", *c.answer);
    EXPECT_EQ(bench.application.QueryUnload(c.endedBy), c.ends) << c.what;
    EXPECT_EQ(bench.Setting("Left"), c.ends ? "100" : "none") << c.what;
    EXPECT_EQ(bench.calls.contains("edit dropped"), c.ends) << c.what;
    EXPECT_EQ(bench.Log().contains("ended from outside"), c.endedBy == EndedBy::Machine) << c.what;
  }
  for (const Box &box : bench.boxes.Shown()) EXPECT_EQ(box.defaultButton, BoxButton::No);
  EXPECT_GT(SampleWeights(), 30);
}

TEST_F(Stop, TheHandheldComesLast) {
  bench.session.edition.HandheldSupport = true;
  EXPECT_TRUE(bench.application.QueryUnload());
  EXPECT_EQ(bench.calls.last(), "handheld 1");
  bench.store->SaveSettingString(settingsRoot + "\\PPC", "ActiveSyncOnExit", "0");
  EXPECT_TRUE(bench.application.QueryUnload());
  EXPECT_EQ(bench.calls.last(), "handheld 0");
}

class Conflicts : public ::testing::Test {
 protected:
  void HaveDriver(const char *device, const char *provider, const char *version, const char *date) {
    const QString key = QStringLiteral("System\\CurrentControlSet\\Services\\Class\\Display\\") + device;
    bench.system.values = {{key + "|ProviderName", provider}, {key + "|Ver", version}, {key + "|DriverDate", date}};
  }
  bool GoesOn() { return CheckForConflicts(bench.session, bench.system); }
  QString Marker(int check) const { return bench.Setting(QStringLiteral("CheckForConflicts%1").arg(check)); }

  StartBench bench;
  const QString driverTitle = "Possible Video Driver Problem";
  const QString dogTitle = "Internet Guard Dog Conflict";
};

TEST_F(Conflicts, WithoutAProblemBothAreSettledForGood) {
  EXPECT_TRUE(GoesOn());
  EXPECT_EQ(Marker(1), "0");
  EXPECT_EQ(Marker(2), "0");
  bench.machine.windows = {"Internet Guard Dog"};
  EXPECT_TRUE(GoesOn()) << "settled is settled";
}

TEST_F(Conflicts, OnlyTheDriverInQuestionCounts) {
  struct Case {
    int system;
    const char *device, *provider, *version, *date;
    bool problem;
  };
  const Case cases[] = {
      {4, "0000", "NVIDIA", "4.0", "4-29-1999", true},  {3, "0002", "nVidia", "4.0", "1-1-1999", true},
      {5, "0001", "nvidia", "4.0", "5/31/1999", true},  {4, "0003", "NVIDIA", "4.0", "4-29-1999", false},
      {4, "0000", "NVIDIA", "4.1", "4-29-1999", false}, {4, "0000", "ATI", "4.0", "4-29-1999", false},
      {4, "0000", "NVIDIA", "4.0", "6-1-1999", false},  {4, "0000", "NVIDIA", "4.0", "12-31-1998", false},
      {4, "0000", "NVIDIA", "4.0", "spring", false},    {34, "0000", "NVIDIA", "4.0", "4-29-1999", false}};
  for (const Case &c : cases) {
    bench.store->DeleteKey(settingsRoot);
    bench.system.version.code = c.system;
    HaveDriver(c.device, c.provider, c.version, c.date);
    if (c.problem) bench.boxes.Expect(driverTitle, QString(), BoxButton::Yes);
    EXPECT_EQ(GoesOn(), !c.problem) << c.device << ' ' << c.provider << ' ' << c.date;
  }
}

TEST_F(Conflicts, NoTellsTheAddressAndNeverAsksAgain) {
  bench.system.version.code = 4;
  HaveDriver("0000", "NVIDIA", "4.0", "4-29-1999");
  bench.boxes.Expect(driverTitle,
                     "It appears that you have an \"nVidia TNT\" compatible video card in your computer "
                     "with older drivers.  This is a "
                     "specific scenerio, which we have found to cause problems with Trimlog Pro.\n\nTo "
                     "resolve this problem just go to the "
                     "\"Support\" area of our web site where we have provided a way for you to update "
                     "your video drivers.  We have made "
                     "every attempt to make this as quick and easy as possible.\n\nWould you like to go "
                     "to there now to learn more and "
                     "update your drivers?",
                     BoxButton::No);
  bench.boxes.Expect(
      driverTitle,
      QStringLiteral(
          "Please write down the following address to our web site, where you can go if you happen to experience a "
          "problem:\n\n%1\n\nYou will not receive this message again.  Thank you and remember -- if you have any "
          "questions or "
          "problems, feel free to contact us at %2 and we will be happy to help.")
          .arg(product::videoDriverPage, product::supportMail));
  EXPECT_TRUE(GoesOn());
  EXPECT_EQ(bench.boxes.Shown()[0].icon, BoxIcon::Warning);
  EXPECT_EQ(bench.boxes.Shown()[1].icon, BoxIcon::Information);
  EXPECT_EQ(Marker(1), "0");
  EXPECT_TRUE(GoesOn());
}

TEST_F(Conflicts, YesOpensThePageEndsAndAsksAgain) {
  bench.machine.windows = {"Internet Guard Dog 2", "Internet Guard Dog"};
  const QString question =
      "It appears that McAfee Internet Guard Dog is currently running.  This specific application has been known "
      "interfere "
      "with Trimlog Pro, causing problems when trying to close the program.\n\nWe suggest that you go to the Trimlog "
      "Pro web "
      "site now to learn more about this known problem.  Would you like to do this now?";
  bench.boxes.Expect(dogTitle, question, BoxButton::Yes);
  EXPECT_EQ(bench.application.Main(), Application::Outcome::Ended);
  EXPECT_EQ(bench.machine.opened, QStringList{product::guardDogPage});
  EXPECT_EQ(Marker(2), "none");
  EXPECT_FALSE(bench.session.database);

  bench.machine.browserWorks = false;
  bench.boxes.Expect(dogTitle, question, BoxButton::Yes);
  bench.boxes.Expect("Problem Opening Web Browser",
                     "There was a problem opening your default web browser.  Please open your web "
                     "browser and go to the following web site "
                     "now, where you can learn more about the Internet Guard Dog conflict:\n\n" +
                         product::guardDogPage);
  EXPECT_EQ(bench.application.Main(), Application::Outcome::Ended);
}

}  // namespace
}  // namespace trimlog
