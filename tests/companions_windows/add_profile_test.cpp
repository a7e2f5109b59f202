#include "core/windows/profiles/add_profile_page.h"
#include "support/heard_changes.h"
#include "wizard_fixture.h"

namespace trimlog {
namespace {

class AddProfile : public WizardTest {
 protected:
  bool Add(const std::function<void(QWidget &dialog, Keyboard &keys)> &act) {
    WhenModal([&act](QWidget &dialog) {
      Keyboard keys(dialog);
      act(dialog, keys);
    });
    return AddRec(nullptr, [this](QWidget *parent) { return new AddProfilePage(*session, parent); });
  }
};

TEST_F(AddProfile, StoresWhatWasTypedByKeys) {
  HeardChanges heard(*session);
  EXPECT_TRUE(Add([&](QWidget &dialog, Keyboard &keys) {
    EXPECT_EQ(dialog.windowTitle(), "Add a New User or Profile");
    EXPECT_EQ(keys.FocusName(), "txtPersonName");
    EXPECT_EQ(dialog.findChild<QWidget *>("txtUserID"), nullptr);
    keys.FillStep({"Ann \"A\"", "150.5", "5", "6"});
  }));
  EXPECT_EQ(Person("PersonName", 2) + Person("Goal", 2) + Person("HeightFeet", 2), "Ann ''A''150.55");
  EXPECT_EQ(Person("BirthDate", 2) + Person("GenderID", 2), "2") << "nothing told of the birth date";
  EXPECT_EQ(session->profile.CurrentPersonID, "1") << "the profile in use stays";
  EXPECT_EQ(heard.Take(), "people 2");
}

TEST_F(AddProfile, SaysWhatIsWrongAndGoesThere) {
  session->edition.BizEd = true;
  session.Data().Execute("UPDATE people SET UserID = \"taken\" WHERE (PersonID=1);");
  struct Case {
    const char *field, *typed, *title, *corrected;
  };
  const Case cases[] = {{"txtPersonName", "", "Name Required", "Ann"},
                        {"txtHeight1", "tall", "Invalid Height", "5"},
                        {"txtHeight2", "-1", "Invalid Height", ""},
                        {"txtBirthDate", "soon", "Invalid Birth Date", "3/2/1996"},
                        {"txtUserID", "TAKEN", "Profile ID Already Exists", "an\"n"},
                        {"txtPassword", "12345678901234567890123456", "Password Too Long", "se\"cret"},
                        {"txtGoal", "1e300", "Invalid Goal", "150"}};
  EXPECT_TRUE(Add([&](QWidget &dialog, Keyboard &keys) {
    Find<QLineEdit>(dialog, "txtPersonName").setText("Ann");
    Find<QLineEdit>(dialog, "txtUserID").setText("ann");
    Find<QLineEdit>(dialog, "txtGoal").setText("150");
    for (const Case &c : cases) {
      auto &field = Find<QLineEdit>(dialog, c.field);
      field.setText(c.typed);
      session.boxes.Expect(c.title, "");
      keys.Enter();
      EXPECT_EQ(keys.FocusName(), c.field) << c.title;
      field.setText(c.corrected);
    }
    Find<QLineEdit>(dialog, "txtGoal").clear();
    session.boxes.Expect("Invalid Goal", "Are you sure", BoxButton::No);
    keys.Enter();
    EXPECT_EQ(keys.FocusName(), "txtGoal");
    keys.Type("140");
    keys.Enter();
  }));
  EXPECT_EQ(session.Rows("SELECT UserID, Password, Goal, BirthDate FROM people WHERE PersonID=2;"),
            "an\"n|se\"cret|140|1996-03-02");
}

TEST_F(AddProfile, AFailureSaysSoAndKeepsWhatWasTyped) {
  EXPECT_FALSE(Add([&](QWidget &dialog, Keyboard &keys) {
    session.Data().Execute("ALTER TABLE people RENAME COLUMN HeightFeet TO Hidden;");
    session.boxes.Expect("Error Adding Profile", "An error occurred while adding this profile.  ");
    keys.FillStep({"Ann", "150", "5", "6"});
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(TextOf(dialog, "txtPersonName"), "Ann");
  }));
  EXPECT_TRUE(session.Logged("basMain, AddRec, "));
  EXPECT_EQ(Count("people", "PersonID > 0"), "1");
}

TEST_F(AddProfile, EscapeAddsNothing) {
  EXPECT_FALSE(Add([&](QWidget &, Keyboard &keys) {
    keys.Type("Ann");
    keys.Press(Qt::Key_Escape);
  }));
  EXPECT_EQ(Count("people", "PersonID > 0"), "1");
}

}  // namespace
}  // namespace trimlog
