#include "core/windows/profiles/frmEditPassword.h"
#include "core/windows/profiles/frmPassword.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class PasswordWindows : public ::testing::Test {
 protected:
  PasswordWindows() {
    session.AddProfile(2, "Ann");
    session.AddProfile(3, "Bob");
    Protect(2, "Secret");
  }
  void Protect(int personID, const QString &password) {
    session.Data().Execute("UPDATE people SET Password = ? WHERE PersonID = ?;", {password, personID});
  }
  static void Type(QWidget &window, const char *field, const QString &text) {
    QTest::keyClicks(&Find<QLineEdit>(window, field), text);
  }
  static void Press(QWidget &window, const char *button) {
    QTest::mouseClick(&Find<QPushButton>(window, button), Qt::LeftButton);
  }
  bool Check(const char *personID, bool atStartup) {
    return CheckProfilePassword(*session, personID, atStartup, nullptr);
  }

  TestSession session;
};

TEST_F(PasswordWindows, NothingIsAskedWithoutAPassword) {
  Protect(-1, "x");
  for (const char *personID : {"1", "-1", "-2", "0", "77"})
    EXPECT_TRUE(Check(personID, false)) << personID;  // a window would hang here
}

TEST_F(PasswordWindows, CapitalsAreAcceptedAndNothingElseChanges) {
  WhenModal([](QWidget &window) {
    EXPECT_EQ(Find<QLabel>(window, "lblPersonName").text(), "Ann");
    EXPECT_TRUE(Find<QComboBox>(window, "cboPassword").isHidden());
    EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    auto &field = Find<QLineEdit>(window, "txtPassword");
    EXPECT_EQ(field.echoMode(), QLineEdit::Password);
    EXPECT_EQ(field.maxLength(), 25);
    QTest::keyClicks(&field, "SECRET");
    QTest::keyClick(&field, Qt::Key_Return);
  });
  EXPECT_TRUE(Check("2", false));
  EXPECT_EQ(session->profile.CurrentPersonID, "1") << "LoadData switches, not the password window";
}

TEST_F(PasswordWindows, AWrongPasswordClearsTheFieldAndStays) {
  session.boxes.Expect("Invalid Password", "The password that you entered is invalid.  Please try again.");
  WhenModal([](QWidget &window) {
    Type(window, "txtPassword", "secre");
    Press(window, "cmdOK");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Find<QLineEdit>(window, "txtPassword").text(), "");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_FALSE(Check("2", false));
}

TEST_F(PasswordWindows, AtStartAnotherProfileCanBeChosen) {
  Protect(3, "other");
  WhenModal([](QWidget &window) {
    EXPECT_EQ(Find<QLabel>(window, "lblMessage").text(),
              "Please choose a profile from the list and enter the password (if any).  Click <OK> to continue or "
              "<Cancel> to load a sample profile instead.");
    auto &list = Find<QComboBox>(window, "cboPassword");
    EXPECT_EQ(list.currentText(), "Ann");
    EXPECT_EQ(list.count(), 3);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentText(), "Bob");
    Type(window, "txtPassword", "other");
    Press(window, "cmdOK");
  });
  EXPECT_TRUE(Check("2", true));
  EXPECT_EQ(session->profile.CurrentPersonID, "3");
  EXPECT_EQ(session->profile.LastRealPersonID, "3");
}

TEST_F(PasswordWindows, AtStartAProfileWithoutPasswordOpensOnActivation) {
  WhenModal([](QWidget &window) {
    auto &list = Find<QComboBox>(window, "cboPassword");
    list.setCurrentIndex(list.findText("Test Person"));
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &activation);
    EXPECT_TRUE(QTest::qWaitFor([&window] { return !window.isVisible(); }, 2000));
  });
  EXPECT_TRUE(Check("2", true));
  EXPECT_EQ(session->profile.CurrentPersonID, "1");
}

TEST_F(PasswordWindows, ACancelledSignInKeepsTheLastRealProfile) {
  session->profile.CurrentPersonID = session->profile.LastRealPersonID = "2";
  WhenModal([](QWidget &window) { Press(window, "cmdCancel"); });
  EXPECT_FALSE(Check("2", true));
  EXPECT_EQ(session->profile.LastRealPersonID, "2");
}

TEST_F(PasswordWindows, EditingStaysOpenUntilThePasswordIsTaken) {
  frmEditPassword window(*session, "2", "Ann", nullptr);
  window.show();
  for (const char *field : {"txtOldPassword", "txtNewPassword", "txtConfirmPassword"}) {
    Type(window, field, QString(30, QLatin1Char('z')));
    EXPECT_EQ(Find<QLineEdit>(window, field).text().size(), 25) << field;
  }
  session.boxes.Expect("Incorrect Password", "The Old Password that you typed");
  Press(window, "cmdOK");
  EXPECT_TRUE(window.isVisible());

  auto &old = Find<QLineEdit>(window, "txtOldPassword");
  EXPECT_EQ(old.selectedText().size(), 25) << "ready to be typed again";
  Type(window, "txtOldPassword", "secret");
  Find<QLineEdit>(window, "txtConfirmPassword").selectAll();
  Type(window, "txtConfirmPassword", "q");
  session.boxes.Expect("New Passwords Do Not Match", "do not match");
  Press(window, "cmdOK");
  EXPECT_EQ(Find<QLineEdit>(window, "txtNewPassword").text(), "");

  Type(window, "txtNewPassword", "fresh");
  Type(window, "txtConfirmPassword", "FRESH");
  session.boxes.Expect("Password Changed", "Your password has been changed.");
  Press(window, "cmdOK");
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(session.ValueOf("Password", "people", "PersonID=2"), "fresh");
}

}  // namespace
}  // namespace trimlog
