#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "core/windows/profiles/frmEditPassword.h"
#include "core/windows/profiles/frmPassword.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class PasswordWindows : public ::testing::Test {
 protected:
  PasswordWindows() {
    session.AddProfile(2, QStringLiteral("Ann"));
    session.AddProfile(3, QStringLiteral("Bob"));
    Protect(2, QStringLiteral("Secret"));
  }
  void Protect(int personID, const QString &password) {
    session.Data().Execute(QStringLiteral("UPDATE people SET Password = ? WHERE PersonID = ?;"), {password, personID});
  }
  static void Type(QWidget &window, const char *field, const QString &text) {
    QTest::keyClicks(&Find<QLineEdit>(window, QString::fromLatin1(field)), text);
  }
  static void Press(QWidget &window, const char *button) {
    QTest::mouseClick(&Find<QPushButton>(window, QString::fromLatin1(button)), Qt::LeftButton);
  }
  bool Check(const char *personID, bool atStartup) {
    return CheckProfilePassword(*session, QString::fromLatin1(personID), atStartup, nullptr);
  }

  TestSession session;
};

TEST_F(PasswordWindows, NothingIsAskedWithoutAPassword) {
  Protect(-1, QStringLiteral("x"));
  for (const char *personID : {"1", "-1", "-2", "0", "77"})
    EXPECT_TRUE(Check(personID, false)) << personID;  // a window would hang here
}

TEST_F(PasswordWindows, CapitalsAreAcceptedAndNothingElseChanges) {
  WhenModal([](QWidget &window) {
    EXPECT_EQ(Find<QLabel>(window, QStringLiteral("lblPersonName")).text().toStdString(), "Ann");
    EXPECT_TRUE(Find<QComboBox>(window, QStringLiteral("cboPassword")).isHidden());
    EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    auto &field = Find<QLineEdit>(window, QStringLiteral("txtPassword"));
    EXPECT_EQ(field.echoMode(), QLineEdit::Password);
    EXPECT_EQ(field.maxLength(), 25);
    QTest::keyClicks(&field, QStringLiteral("SECRET"));
    QTest::keyClick(&field, Qt::Key_Return);
  });
  EXPECT_TRUE(Check("2", false));
  EXPECT_EQ(session->profile.CurrentPersonID.toStdString(), "1") << "LoadData switches, not the password window";
}

TEST_F(PasswordWindows, AWrongPasswordClearsTheFieldAndStays) {
  session.boxes.Expect(QStringLiteral("Invalid Password"),
                       QStringLiteral("The password that you entered is invalid.  Please try again."));
  WhenModal([](QWidget &window) {
    Type(window, "txtPassword", QStringLiteral("secre"));
    Press(window, "cmdOK");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Find<QLineEdit>(window, QStringLiteral("txtPassword")).text().toStdString(), "");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_FALSE(Check("2", false));
}

TEST_F(PasswordWindows, AtStartAnotherProfileCanBeChosen) {
  Protect(3, QStringLiteral("other"));
  WhenModal([](QWidget &window) {
    EXPECT_EQ(Find<QLabel>(window, QStringLiteral("lblMessage")).text().toStdString(),
              "Please choose a profile from the list and enter the password (if any).  Click <OK> to continue or "
              "<Cancel> to load a sample profile instead.");
    auto &list = Find<QComboBox>(window, QStringLiteral("cboPassword"));
    EXPECT_EQ(list.currentText().toStdString(), "Ann");
    EXPECT_EQ(list.count(), 3);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentText().toStdString(), "Bob");
    Type(window, "txtPassword", QStringLiteral("other"));
    Press(window, "cmdOK");
  });
  EXPECT_TRUE(Check("2", true));
  EXPECT_EQ(session->profile.CurrentPersonID.toStdString(), "3");
  EXPECT_EQ(session->profile.LastRealPersonID.toStdString(), "3");
}

TEST_F(PasswordWindows, AtStartAProfileWithoutPasswordOpensOnActivation) {
  WhenModal([](QWidget &window) {
    auto &list = Find<QComboBox>(window, QStringLiteral("cboPassword"));
    list.setCurrentIndex(list.findText(QStringLiteral("Test Person")));
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &activation);
    EXPECT_TRUE(QTest::qWaitFor([&window] { return !window.isVisible(); }, 2000));
  });
  EXPECT_TRUE(Check("2", true));
  EXPECT_EQ(session->profile.CurrentPersonID.toStdString(), "1");
}

TEST_F(PasswordWindows, ACancelledSignInKeepsTheLastRealProfile) {
  session->profile.CurrentPersonID = session->profile.LastRealPersonID = QStringLiteral("2");
  WhenModal([](QWidget &window) { Press(window, "cmdCancel"); });
  EXPECT_FALSE(Check("2", true));
  EXPECT_EQ(session->profile.LastRealPersonID.toStdString(), "2");
}

TEST_F(PasswordWindows, EditingStaysOpenUntilThePasswordIsTaken) {
  frmEditPassword window(*session, QStringLiteral("2"), QStringLiteral("Ann"), nullptr);
  window.show();
  for (const char *field : {"txtOldPassword", "txtNewPassword", "txtConfirmPassword"}) {
    Type(window, field, QString(30, QLatin1Char('z')));
    EXPECT_EQ(Find<QLineEdit>(window, QString::fromLatin1(field)).text().size(), 25) << field;
  }
  session.boxes.Expect(QStringLiteral("Incorrect Password"), QStringLiteral("The Old Password that you typed"));
  Press(window, "cmdOK");
  EXPECT_TRUE(window.isVisible());

  auto &old = Find<QLineEdit>(window, QStringLiteral("txtOldPassword"));
  EXPECT_EQ(old.selectedText().size(), 25) << "ready to be typed again";
  Type(window, "txtOldPassword", QStringLiteral("secret"));
  Find<QLineEdit>(window, QStringLiteral("txtConfirmPassword")).selectAll();
  Type(window, "txtConfirmPassword", QStringLiteral("q"));
  session.boxes.Expect(QStringLiteral("New Passwords Do Not Match"), QStringLiteral("do not match"));
  Press(window, "cmdOK");
  EXPECT_EQ(Find<QLineEdit>(window, QStringLiteral("txtNewPassword")).text().toStdString(), "");

  Type(window, "txtNewPassword", QStringLiteral("fresh"));
  Type(window, "txtConfirmPassword", QStringLiteral("FRESH"));
  session.boxes.Expect(QStringLiteral("Password Changed"), QStringLiteral("Your password has been changed."));
  Press(window, "cmdOK");
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(
      session.ValueOf(QStringLiteral("Password"), QStringLiteral("people"), QStringLiteral("PersonID=2")).toStdString(),
      "fresh");
}

}  // namespace
}  // namespace trimlog
