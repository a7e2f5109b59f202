#include "weightlog/windows/rewards_page.h"

#include "core/windows/controls/choice_combo.h"
#include "core/windows/setup/frmSetup.h"
#include "platform/windows/fields/number_field.h"
#include "support/test_session.h"
#include "support/windows/controls.h"
#include "weightlog/rewards.h"

namespace trimlog {
namespace {

class RewardsTabTest : public ::testing::Test {
 protected:
  RewardsTabTest() { LoadRewardSettings(*session); }
  void Open() {
    window = std::make_unique<frmSetup>(*session, navigator, QList<SetupPageMaker>{RewardsTab()}, nullptr);
    window->ShowTab(SetupTab::Rewards);
    window->show();
  }
  template <typename Control>
  Control &The(const char *name) {
    return Find<Control>(*window, name);
  }
  void Choose(const char *option) { The<QRadioButton>(option).click(); }
  void Press(const char *name) { QTest::mouseClick(&The<QPushButton>(name), Qt::LeftButton); }
  std::string Text(const char *field) { return The<QLineEdit>(field).text().toStdString(); }
  std::string Reward(const char *field) { return session.ValueOf(field, "rewards", "PersonID=1").toStdString(); }

  TestSession session;
  Navigator navigator;
  std::unique_ptr<frmSetup> window;
};

TEST_F(RewardsTabTest, NamesTheProfileWhoseRuleItIs) {
  session.Data().Execute("UPDATE people SET PersonName=\"Tom & Ann\" WHERE PersonID=1;");
  Open();
  EXPECT_EQ(The<QGroupBox>("fraRewards").title(), "Reward Settings for: Tom && Ann");
  EXPECT_EQ(The<QLabel>("pnlRewardNote").text(),
            "Note: This setting only affects rewards for Tom & Ann.  To change rewards for someone else, load their "
            "profile from the Profiles menu and return to this window.");
}

TEST_F(RewardsTabTest, ChosenTypesStartFromDefaultsAndFollowTheUnits) {
  Open();
  EXPECT_TRUE(The<QRadioButton>("optRewardWeekly").isChecked());
  EXPECT_EQ(Text("txtRewardWeekly"), "2.0");
  Choose("optRewardDaily");
  EXPECT_EQ(Text("txtRewardDaily"), "0.5");
  Choose("optRewardWeight");
  EXPECT_EQ(Text("txtRewardWeight"), "150");
  EXPECT_EQ(The<QLabel>("lblRewardWeight").text(), "lbs.");
  The<ChoiceCombo>("cboUomID").SetValue(2);
  EXPECT_EQ(Text("txtRewardWeekly"), "0.9");
  EXPECT_EQ(Text("txtRewardDaily"), "0.25");
  EXPECT_EQ(Text("txtRewardWeight"), "150");
  EXPECT_EQ(The<QLabel>("lblRewardDaily").text(), "kg.");
  The<ChoiceCombo>("cboUomID").SetValue(1);
  EXPECT_EQ(Text("txtRewardWeekly"), "2.0");
}

TEST_F(RewardsTabTest, ARuleWrittenInPoundsIsNotRewrittenByOpeningInKilograms) {
  session->settings.UomID = 2;
  Open();
  EXPECT_EQ(Text("txtRewardWeekly"), "2.0");
}

TEST_F(RewardsTabTest, OkStoresTheRuleAndCancelDoesNot) {
  Open();
  Choose("optRewardDaily");
  The<QLineEdit>("txtRewardMessage").setText("Say \"hurray\"");
  Press("cmdCancel");
  EXPECT_EQ(Reward("RewardType"), "3");

  Open();
  const std::string sound = Text("txtRewardSound");
  EXPECT_FALSE(sound.empty());
  Choose("optRewardDaily");
  The<QLineEdit>("txtRewardDaily").clear();
  QTest::keyClicks(&The<QLineEdit>("txtRewardDaily"), "1.25");
  The<QLineEdit>("txtRewardMessage").setText("Say \"hurray\"");
  Press("cmdOK");
  EXPECT_EQ(Reward("RewardType"), "2");
  EXPECT_EQ(Reward("RewardWeight"), "1.25");
  EXPECT_EQ(Reward("RewardMessage"), "Say ''hurray''");
  EXPECT_EQ(Reward("RewardSound"), sound);
  EXPECT_EQ(session->profile.rewards.type, RewardType::Daily);
}

TEST_F(RewardsTabTest, ABadAmountKeepsTheWindowAndStoresNothing) {
  Open();
  The<QLineEdit>("txtRewardWeekly").setText("lots");
  Find<QAbstractButton>(*window, "chkShowLoss").setChecked(true);
  session.boxes.Expect("Invalid Reward Amount", "positive number");
  Press("cmdOK");
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(session->settings.ShowLoss);
  EXPECT_EQ(Reward("RewardWeight"), "2");
  Choose("optRewardNone");
  Press("cmdOK");
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Reward("RewardType"), "0");
}

TEST_F(RewardsTabTest, DeletingTheLoadedProfileShowsTheNextOnesRule) {
  session.AddProfile(2, "Ann");
  session.Data().Execute(
      "INSERT INTO rewards ( PersonID, RewardType, RewardWeight, RewardMessage, RewardSound ) VALUES ( "
      "2, 1, 140, \"Well done, Ann\", \"\" );");
  navigator.LoadData = [this](const QString &personID) {
    session->profile.CurrentPersonID = personID;
    LoadRewardSettings(*session);
    session->changes.AnnounceProfileLoaded();
  };
  Open();
  window->ShowTab(SetupTab::Profiles);
  session.boxes.Expect("Warning: Delete Profile?", "this profile", BoxButton::Yes);
  Press("cmdDeleteProfile");
  EXPECT_EQ(Text("txtRewardMessage"), "Well done, Ann");
  EXPECT_EQ(The<QGroupBox>("fraRewards").title(), "Reward Settings for: Ann");
  Press("cmdOK");
  EXPECT_EQ(session.ValueOf("RewardWeight", "rewards", "PersonID=2"), "140");
}

TEST_F(RewardsTabTest, BrowseTakesAFileAndCancelledBrowsingKeepsTheOldOne) {
  Open();
  const std::string before = Text("txtRewardSound");
  session.boxes.ExpectInput("Select a Sound File", std::nullopt);
  Press("cmdBrowse");
  EXPECT_EQ(Text("txtRewardSound"), before);
  session.boxes.ExpectInput("Select a Sound File", "/sounds/bell.wav");
  Press("cmdBrowse");
  EXPECT_EQ(Text("txtRewardSound"), "/sounds/bell.wav");
}

TEST_F(RewardsTabTest, TestShowsWhatIsTypedAndStoresNothing) {
  Open();
  The<QLineEdit>("txtRewardMessage").setText("Just trying");
  The<QLineEdit>("txtRewardSound").setText("/sounds/bell.wav");
  WhenModal([](QWidget &reward) {
    EXPECT_EQ(reward.objectName(), "frmReward");
    EXPECT_EQ(reward.windowTitle(), "Weekly Reward");
    EXPECT_EQ(Find<QLabel>(reward, "lblRewardMessage").text(), "Just trying");
    QTest::mouseClick(&Find<QPushButton>(reward, "cmdOK"), Qt::LeftButton);
  });
  Press("cmdTest");
  EXPECT_EQ(session.machine.played.join(u' ').toStdString(), "/sounds/bell.wav");
  EXPECT_NE(session->profile.rewards.message, "Just trying");
  Choose("optRewardNone");
  EXPECT_FALSE(The<QPushButton>("cmdTest").isEnabled());
}

}  // namespace
}  // namespace trimlog
