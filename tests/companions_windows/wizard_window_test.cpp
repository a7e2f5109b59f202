#include "wizard_fixture.h"

namespace trimlog {
namespace {

class FirstRun : public WizardTest {
 protected:
  explicit FirstRun(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates)) : WizardTest(locale) {
    ForgetProfiles();
  }
  /// Introduction and profile, with as few keys as a practised hand needs.
  static void PassProfile(Keyboard &keys) {
    keys.Enter();
    keys.Tab(2);
    keys.FillStep({"5", "6", "5/6/1990"});
  }
  static void GoToNutrients(Keyboard &keys) {
    PassProfile(keys);
    keys.FillStep({"185.5", "150"});
  }
  static BoundGrid &Grid(QWidget &wizard) { return Find<BoundGrid>(wizard, "grdNutrients"); }
  static QString Cell(QWidget &wizard, int row, int column) {
    return Grid(wizard).model()->index(row, column).data().toString();
  }
  static void GoToCell(QWidget &wizard, int row, int column) {
    Grid(wizard).setCurrentIndex(Grid(wizard).model()->index(row, column));
  }
};

constexpr int tickColumn = 0;
constexpr int targetColumn = 3;

TEST_F(FirstRun, TakesFiveStepsByKeysInPoundsAndInches) {
  QStringList titles;
  EXPECT_TRUE(Run(
      [&](QWidget &wizard, Keyboard &keys) {
        titles.append(Title(wizard));
        keys.Enter();
        titles.append(Title(wizard));
        EXPECT_EQ(keys.FocusName(), "txtPersonName");
        EXPECT_EQ(TextOf(wizard, "txtPersonName"), "Test Person");
        keys.Type("Dr. \"Bo\" O'Brien");
        keys.Tab(2);
        EXPECT_EQ(TextOf(wizard, "lblHeight1") + TextOf(wizard, "lblHeight2"), "FeetInches");
        keys.FillStep({"5", "6", "5/6/1990"});
        titles.append(Title(wizard));
        EXPECT_EQ(keys.FocusName(), "txtStartingWeight");
        EXPECT_EQ(TextOf(wizard, "lblGoalUom"), "lbs.");
        keys.FillStep({"185.5", "150"});
        titles.append(Title(wizard));
        EXPECT_EQ(TextOf(wizard, "lblNutrientCount"), "10 Nutrients Selected So Far");
        EXPECT_EQ(TextOf(wizard, "lblNote"), "Note: The initial targets shown are based on your RDA.");
        keys.Enter();
        titles.append(Title(wizard));
        EXPECT_EQ(TextOf(wizard, "cmdNext"), "&Finish");
        EXPECT_EQ(keys.FocusName(), "optBackColor3");
        keys.Press(Qt::Key_Down);
        keys.Enter();
      },
      false));
  EXPECT_EQ(titles, (QStringList{"Introduction to this Wizard (Step 1 of 5)", "Your Profile Information (Step 2 of 5)",
                                 "Your Weight and Diet Information (Step 3 of 5)",
                                 "Your Nutrient Selections (Step 4 of 5)", "Your Color Scheme (Step 5 of 5)"}));
  EXPECT_EQ(session->profile.CurrentPersonID, "1");
  EXPECT_EQ(
      session.Rows("SELECT PersonName, HeightFeet, HeightInches, Goal, GenderID, BackColor, BirthDate FROM people "
                   "WHERE PersonID=1;"),
      "Dr. ''Bo'' O'Brien|5|6|150|2|14745599|1990-05-06");
  EXPECT_EQ(session.Rows("SELECT ThisDate, ThisWeight, ThisLoss FROM weight_loss WHERE PersonID=1;"),
            "2026-03-01|185.5|0");
  EXPECT_EQ(session.ValueOf("Calories", "nutrition_targets", "TargetID=" + Person("NutTargetID", 1)), "2200");
  EXPECT_EQ(session->nutrients.SelectedNutrients[0].NutrientID, 1);
}

class FirstRunInGerman : public FirstRun {
 protected:
  FirstRunInGerman() : FirstRun(QLocale(QLocale::German, QLocale::Germany)) {}
};

TEST_F(FirstRunInGerman, TakesKilogramsMetresAndDecimalCommas) {
  EXPECT_TRUE(Run([&](QWidget &wizard, Keyboard &keys) {
    EXPECT_EQ(session->settings.UomID, 1);
    keys.Enter();
    keys.Alt(Qt::Key_U);  // the country's units are proposed
    EXPECT_EQ(TextOf(wizard, "lblHeight1") + TextOf(wizard, "lblHeight2"), "MetersCentimeters");
    keys.Tab();
    keys.FillStep({"1", "78,5", "6.5.1990", "", ""});
    EXPECT_EQ(TextOf(wizard, "lblStartingWeightUom"), "kg.");
    keys.Type("93,55");
    keys.Tab();
    keys.Type("80,5");
    keys.Alt(Qt::Key_P);
    keys.Type("Low");
    keys.Enter();
    GoToCell(wizard, 0, targetColumn);
    keys.Type("47,5");
    keys.Enter();  // leaves the target
    keys.Enter();  // goes on
    keys.Enter();
  }));
  EXPECT_EQ(session->settings.UomID, 2);
  EXPECT_EQ(session.store->GetSettingString(settingsRoot, "UomID", ""), "2");
  EXPECT_EQ(session->UomDisplay, "Kg");
  EXPECT_EQ(session.Rows("SELECT HeightFeet, HeightInches, Goal FROM people WHERE PersonID=1;"), "1|78.5|80.5");
  EXPECT_EQ(Count("weight_loss", "PersonID=1 AND ThisWeight=93.55"), "1");
  EXPECT_EQ(session.ValueOf("Carbs", "nutrition_targets", "TargetID=" + Person("NutTargetID", 1)), "47.5");
  EXPECT_EQ(session.ValueOf("NutrientID1", "selected_nutrients", "PersonID=1"), "2");
}

TEST_F(FirstRun, HasFourStepsWithoutTheColorsOfALargerScreen) {
  session.machine.colors = 256;
  EXPECT_TRUE(Run([&](QWidget &wizard, Keyboard &keys) {
    EXPECT_EQ(Title(wizard), "Introduction to this Wizard (Step 1 of 4)");
    GoToNutrients(keys);
    EXPECT_EQ(TextOf(wizard, "cmdNext"), "&Finish");
    keys.Enter();
  }));
  EXPECT_EQ(Person("BackColor", 1), QString::number(0xC0FFFF));
}

TEST_F(FirstRun, MendsFieldsThatAreLeft) {
  struct Case {
    const char *field, *typed, *left;
  };
  const Case cases[] = {{"txtPersonName", " ", "New Profile"},
                        {"txtHeight1", "abc", "0"},
                        {"txtHeight2", "12", "11"},
                        {"txtHeight1", "5", "5"},
                        {"txtBirthDate", "2/30/1990", "3/1/1996"}};
  Run([&](QWidget &wizard, Keyboard &keys) {
    keys.Enter();
    for (const Case &c : cases) {
      auto &field = Find<QLineEdit>(wizard, c.field);
      field.setFocus();
      field.selectAll();
      keys.Type(c.typed);
      keys.Tab();
      EXPECT_EQ(field.text(), c.left) << c.field << " " << c.typed;
    }
    Find<QLineEdit>(wizard, "txtPersonName").setFocus();
    keys.Enter();
    for (const char *name : {"txtStartingWeight", "txtGoal"}) {
      auto &field = Find<QLineEdit>(wizard, name);
      field.setFocus();
      keys.Type("12.3.4");
      keys.Tab();
      EXPECT_EQ(field.text(), "0") << name;
    }
    auto &date = Find<QLineEdit>(wizard, "txtStartingDate");
    date.setFocus();
    date.clear();
    keys.Tab();
    EXPECT_EQ(date.text(), "3/1/2026");
  });
}

TEST_F(FirstRun, RefusesWhatNoProfileCanKeep) {
  struct Case {
    const char *field, *typed, *title, *sentence;
  };
  const Case profile[] = {
      {"txtHeight1", "170", "Invalid Height", "Please enter a valid height."},
      {"txtBirthDate", "3/2/2026", "Invalid Birth Date", "Please enter a birth date that is not in the future."}};
  const Case weight[] = {{"txtStartingWeight", "x", "Invalid Weight", "positive value"},
                         {"txtStartingWeight", "1e300", "Invalid Weight", "numeric value"},
                         {"txtGoal", "1e300", "Invalid Goal", "Please enter a numeric value for your goal."}};
  Run([&](QWidget &wizard, Keyboard &keys) {
    const auto refuse = [&](const Case &c, const QString &step) {
      auto &field = Find<QLineEdit>(wizard, c.field);
      const QString before = field.text();
      field.setFocus();
      field.selectAll();
      keys.Type(c.typed);
      session.boxes.Expect(c.title, c.sentence);
      keys.Enter();
      EXPECT_EQ(keys.FocusName(), c.field) << c.typed;
      EXPECT_EQ(Title(wizard), step) << c.field << " " << c.typed;
      field.setText(before);
    };
    keys.Enter();
    Find<QLineEdit>(wizard, "txtPersonName").setText(QString(10000, u'n'));
    Find<QLineEdit>(wizard, "txtBirthDate").setText("1/1/1990");
    for (const Case &c : profile) refuse(c, "Your Profile Information (Step 2 of 5)");
    Find<QLineEdit>(wizard, "txtHeight1").setText("5");
    Find<QLineEdit>(wizard, "txtHeight2").setText("1e6");
    keys.Enter();
    EXPECT_EQ(TextOf(wizard, "txtHeight2"), "11") << "Enter mends the field that it leaves";
    Find<QLineEdit>(wizard, "txtStartingWeight").setText("185");
    Find<QLineEdit>(wizard, "txtGoal").setText("150");
    for (const Case &c : weight) refuse(c, "Your Weight and Diet Information (Step 3 of 5)");

    Find<QLineEdit>(wizard, "txtGoal").clear();
    session.boxes.Expect("Invalid Goal", "Are you sure that you want to continue?", BoxButton::No);
    keys.Enter();
    EXPECT_EQ(keys.FocusName(), "txtGoal");
    session.boxes.Expect("Invalid Goal", "Are you sure that you want to continue?", BoxButton::Yes);
    keys.Enter();
    keys.Enter();
    keys.Enter();
  });
  EXPECT_EQ(Person("PersonName", 1).size(), 255);
  EXPECT_EQ(Person("Goal", 1), "0");
}

TEST_F(FirstRun, TellsTheHealthyWeightOfTheEnteredHeight) {
  Run([&](QWidget &wizard, Keyboard &keys) {
    keys.Enter();
    keys.Enter();
    session.boxes.Expect("Your Healthy Weight", "Please go back and enter your height first.");
    keys.Alt(Qt::Key_T);
    keys.Alt(Qt::Key_B);
    Find<QLineEdit>(wizard, "txtHeight1").setText("5");
    Find<QLineEdit>(wizard, "txtHeight2").setText("6");
    keys.Enter();
    session.boxes.Expect("Your Healthy Weight", "between 130 and 143 Lbs.");
    keys.Alt(Qt::Key_T);
  });
}
TEST_F(FirstRun, CountsTicksAtOnceAndRefusesTheEleventhAtNext) {
  Run([&](QWidget &wizard, Keyboard &keys) {
    GoToNutrients(keys);
    GoToCell(wizard, 10, tickColumn);
    keys.Press(Qt::Key_Space);
    EXPECT_EQ(TextOf(wizard, "lblNutrientCount"), "11 Nutrients Selected So Far");
    EXPECT_EQ(Cell(wizard, 10, targetColumn), "(type a value)");
    session.boxes.Expect("Too Many Nutrients", "11 nutrients");
    keys.Enter();
    EXPECT_EQ(Title(wizard), "Your Nutrient Selections (Step 4 of 5)");
    keys.Press(Qt::Key_Space);
    EXPECT_EQ(Cell(wizard, 10, targetColumn), "None");
    for (int row = 0; row < 10; ++row) {
      GoToCell(wizard, row, tickColumn);
      keys.Press(Qt::Key_Space);
    }
    EXPECT_EQ(TextOf(wizard, "lblNutrientCount"), "0 Nutrients Selected So Far");
    session.boxes.Expect("Not Enough Nutrients", "at least one nutrient");
    keys.Enter();
    GoToCell(wizard, 12, targetColumn);
    keys.Type("lots");
    keys.Enter();
    keys.Enter();
    EXPECT_EQ(Title(wizard), "Your Nutrient Selections (Step 4 of 5)") << "no target";
    Grid(wizard).UndoRow();
    Grid(wizard).MarkRows({5});
    keys.Press(Qt::Key_Delete);
    EXPECT_EQ(Grid(wizard).Model().RecordCount(), 30) << "no nutrient can be deleted";
    GoToCell(wizard, 12, targetColumn);
    keys.Type("42");
    keys.Enter();
    keys.Enter();
    EXPECT_EQ(TextOf(wizard, "lblNutrientCount"), "1 Nutrients Selected So Far") << "a target ticks its nutrient";
    EXPECT_EQ(Title(wizard), "Your Color Scheme (Step 5 of 5)");
  });
}

TEST_F(FirstRun, LosesNothingGoingBackAndForth) {
  Run([&](QWidget &wizard, Keyboard &keys) {
    GoToNutrients(keys);
    GoToCell(wizard, 1, targetColumn);
    keys.Type("61");
    keys.Enter();
    keys.Enter();
    keys.Press(Qt::Key_Down);
    for (int step = 5; step > 1; --step) keys.Alt(Qt::Key_B);
    EXPECT_EQ(Title(wizard), "Introduction to this Wizard (Step 1 of 5)");
    EXPECT_FALSE(Find<QPushButton>(wizard, "cmdBack").isEnabled());
    keys.Enter();
    EXPECT_EQ(TextOf(wizard, "txtHeight1") + TextOf(wizard, "txtBirthDate"), "55/6/1990");
    keys.Enter();
    EXPECT_EQ(TextOf(wizard, "txtStartingWeight") + TextOf(wizard, "txtGoal"), "185.5150");
    keys.Enter();
    EXPECT_EQ(Cell(wizard, 1, targetColumn), "61");
    keys.Enter();
    EXPECT_TRUE(Find<QRadioButton>(wizard, "optBackColor1").isChecked());

    keys.Alt(Qt::Key_B);
    keys.Alt(Qt::Key_B);
    auto &diet = Find<QComboBox>(wizard, "cboDiet");
    EXPECT_FALSE(Find<QComboBox>(wizard, "cboNutrientID").isEnabled());
    diet.setCurrentIndex(diet.findData("101"));
    keys.Enter();
    EXPECT_TRUE(Cell(wizard, 0, 1).startsWith("Net Carbs")) << "another diet, another proposal";
    EXPECT_EQ(Cell(wizard, 0, targetColumn), "20");
    EXPECT_EQ(TextOf(wizard, "lblNote"), "Note: The initial targets shown are just examples.");
    keys.Alt(Qt::Key_B);
    diet.setCurrentIndex(diet.findData("108"));
    EXPECT_TRUE(Find<QComboBox>(wizard, "cboNutrientID").isEnabled());
  });
}

TEST_F(FirstRun, AGoalThatIsStillWrongDoesNotHoldTheStepBeforeIt) {
  Run([&](QWidget &wizard, Keyboard &keys) {
    PassProfile(keys);
    const QString title = Title(wizard);
    keys.Type("185");
    keys.Tab();
    keys.Type("99999");
    keys.Alt(Qt::Key_B);
    EXPECT_NE(Title(wizard), title);
    keys.Enter();
    EXPECT_EQ(Title(wizard), title);
  });
}

TEST_F(FirstRun, SkippedLoadsASampleAndComesBack) {
  session.boxes.Expect("Skipping the Configuration Wizard...",
                       "A sample profile will now be loaded, which will help you get familiar with Trimlog Pro and all "
                       "of the program's features.  This wizard will reappear the next time you start the program.");
  EXPECT_FALSE(Run([&](QWidget &wizard, Keyboard &keys) {
    EXPECT_FALSE(Find<QPushButton>(wizard, "cmdImport").isEnabled());
    keys.Alt(Qt::Key_S);
  }));
  EXPECT_EQ(loaded, QStringList{"-2"});
  EXPECT_EQ(Count("people", "PersonID > 0"), "0");
  EXPECT_TRUE(Run(
      [&](QWidget &, Keyboard &keys) {
        GoToNutrients(keys);
        keys.Enter();
        keys.Enter();
      },
      false));
}

TEST_F(FirstRun, IsNotLeftWithAnswersWithoutAQuestion) {
  navigator.ImportData = [](QWidget *) { ADD_FAILURE(); };
  EXPECT_FALSE(Run([&](QWidget &wizard, Keyboard &keys) {
    GoToNutrients(keys);
    for (int step = 4; step > 1; --step) keys.Alt(Qt::Key_B);
    ExpectLeaveQuestion(BoxButton::No);
    keys.Alt(Qt::Key_I);
    EXPECT_TRUE(wizard.isVisible());
    ExpectLeaveQuestion(BoxButton::No);
    keys.Press(Qt::Key_Escape);
    EXPECT_EQ(session.boxes.Shown().back().defaultButton, BoxButton::No);
    ExpectLeaveQuestion(BoxButton::No);
    keys.Alt(Qt::Key_S);
    EXPECT_TRUE(wizard.isVisible());
    ExpectLeaveQuestion(BoxButton::Yes);
    keys.Press(Qt::Key_Escape);
    EXPECT_FALSE(wizard.isVisible());
  }));
  EXPECT_EQ(Count("people", "PersonID > 0") + Count("weight_loss", "PersonID > 0"), "00");
  EXPECT_TRUE(loaded.isEmpty());
}

TEST_F(FirstRun, AFailedFinishLeavesTheWizardOpenAndTheFileAsItWas) {
  session.Data().Execute("ALTER TABLE selected_nutrients RENAME TO gone;");
  Run([&](QWidget &wizard, Keyboard &keys) {
    session.boxes.Expect("Your Nutrient Selections", "An error occurred while reading the nutrients.");
    GoToNutrients(keys);
    session.Data().Execute("ALTER TABLE gone RENAME TO selected_nutrients;");
    keys.Alt(Qt::Key_B);
    keys.Enter();
    keys.Enter();
    session.Data().Execute("ALTER TABLE temp_meals_search RENAME TO gone_too;");
    keys.Alt(Qt::Key_B);
    GoToCell(wizard, 12, targetColumn);
    keys.Type("42");
    session.boxes.Expect("Your Nutrient Selections", "An error occurred while saving the nutrients.  ");
    EXPECT_FALSE(Grid(wizard).CommitRow());
    Grid(wizard).UndoRow();
    session.Data().Execute("ALTER TABLE gone_too RENAME TO temp_meals_search;");
    keys.Enter();
    session.Data().Execute("ALTER TABLE selected_nutrients RENAME TO gone;");
    session.boxes.Expect("Error Saving Profile", "An error occurred while saving your profile.");
    keys.Enter();
    EXPECT_TRUE(wizard.isVisible());
    EXPECT_EQ(Count("people", "PersonID > 0") + Count("weight_loss", "PersonID > 0"), "00");
    session.Data().Execute("ALTER TABLE gone RENAME TO selected_nutrients;");
    keys.Enter();
  });
  EXPECT_EQ(Person("PersonName", 1), "Test Person");
  for (const char *procedure : {"FillWizardNutrients", "grdNutrients_AfterUpdate", "cmdNext_Click"}) {
    EXPECT_TRUE(session.Logged(QStringLiteral("frmWizard, ") + procedure)) << procedure;
  }
}

/// The access keys that a person sees on a page.
QStringList AccessKeys(QWidget &wizard) {
  QStringList keys;
  const auto add = [&keys](const QString &caption) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    if (!key.isEmpty()) keys.append(key.toString());
  };
  for (const QLabel *label : wizard.findChildren<QLabel *>()) {
    if (label->isVisible() && label->buddy()) add(label->text());
  }
  for (const QAbstractButton *button : wizard.findChildren<QAbstractButton *>()) {
    if (button->isVisible()) add(button->text());
  }
  return keys;
}

TEST_F(FirstRun, NoTwoControlsOfAPageShareAnAccessKey) {
  Run([&](QWidget &wizard, Keyboard &keys) {
    for (int step = 1; step <= 5; ++step) {
      QStringList found = AccessKeys(wizard);
      const qsizetype all = found.size();
      EXPECT_EQ(all, (found.removeDuplicates(), found.size()))
          << Title(wizard).toStdString() << found.join(' ').toStdString();
      EXPECT_GE(all, 3);
      if (step == 1) PassProfile(keys), keys.Alt(Qt::Key_B);
      if (step == 2)
        keys.Enter(), Find<QLineEdit>(wizard, "txtStartingWeight").setText("185"),
            Find<QLineEdit>(wizard, "txtGoal").setText("150");
      if (step > 2) keys.Enter();
    }
  });
}

TEST_F(FirstRun, AHeightIsAskedAboutAgainAfterTheUnitsChanged) {
  Run([&](QWidget &wizard, Keyboard &keys) {
    keys.Enter();
    Find<QLineEdit>(wizard, "txtHeight1").setText("5");
    Find<QLineEdit>(wizard, "txtHeight2").setText("6");
    keys.Alt(Qt::Key_U);
    keys.Press(Qt::Key_Down);
    session.boxes.Expect("Invalid Height", "Please enter a valid height.");
    keys.Enter();
    EXPECT_EQ(keys.FocusName(), "txtHeight1") << "five metres and six";
  });
}

TEST_F(FirstRun, ATargetBeyondItsColumnIsRefusedAtItsOwnStep) {
  EXPECT_TRUE(Run([&](QWidget &wizard, Keyboard &keys) {
    GoToNutrients(keys);
    const QString calories = Cell(wizard, 0, targetColumn);
    GoToCell(wizard, 0, targetColumn);
    keys.Type("99999");
    session.boxes.Expect("Invalid Target", "Please type a number from 0 to 32767.");
    keys.Alt(Qt::Key_N);
    EXPECT_EQ(Title(wizard), "Your Nutrient Selections (Step 4 of 5)");
    Grid(wizard).UndoRow();
    EXPECT_EQ(Cell(wizard, 0, targetColumn), calories);
    keys.Enter();
    keys.Enter();
  }));
}

class AddingProfile : public WizardTest {
 protected:
  AddingProfile() { Weigh(180); }
};

TEST_F(AddingProfile, TakesTwoStepsAndLeavesSelectionTargetsAndUnitsAlone) {
  const auto kept = [this] {
    return session.Rows("SELECT NutrientID1 FROM selected_nutrients WHERE PersonID=1;") + Count("nutrition_targets");
  };
  for (const int uomID : {1, 2}) {
    session->profile.CurrentPersonID = "1";
    session->settings.UomID = uomID;
    const QString before = kept();
    EXPECT_TRUE(Run([&](QWidget &wizard, Keyboard &keys) {
      EXPECT_EQ(Title(wizard), "Your Profile Information (Step 1 of 2)");
      EXPECT_EQ(TextOf(wizard, "lblHeight1"), uomID == 1 ? "Feet" : "Meters");
      Find<QRadioButton>(wizard, uomID == 1 ? "optGenderMale" : "optGenderFemale").click();
      keys.FillStep({"Ann", uomID == 1 ? "5" : "1", uomID == 1 ? "9.5" : "76", "12/31/1980"});
      EXPECT_EQ(Title(wizard), "Your Weight Information (Step 2 of 2)");
      for (const char *absent : {"cboUomID", "cmdSkip", "cboDiet"}) {
        EXPECT_EQ(wizard.findChild<QWidget *>(absent), nullptr) << absent;
      }
      keys.FillStep({"81", "72.5"});
    }));
    const QString added = QString::number(uomID + 1);
    EXPECT_EQ(session->profile.CurrentPersonID, added);
    EXPECT_EQ(session.Rows(
                  "SELECT PersonName, HeightInches, GenderID, Goal, ThisWeight FROM people INNER JOIN weight_loss ON "
                  "people.PersonID = weight_loss.PersonID WHERE people.PersonID=?;",
                  {added.toInt()}),
              uomID == 1 ? "Ann|9.5|1|72.5|81" : "Ann|76|2|72.5|81");
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(session->settings.UomID, uomID);
  }
}
TEST_F(AddingProfile, CancelLeavesTheProfileInUse) {
  EXPECT_FALSE(StartWiz(*session, navigator, false, nullptr)) << "nothing is missing: a window would hang here";
  EXPECT_FALSE(Run([&](QWidget &wizard, Keyboard &keys) {
    keys.Type("Ann");
    ExpectLeaveQuestion(BoxButton::Yes);
    Find<QPushButton>(wizard, "cmdCancel").click();
  }));
  EXPECT_EQ(session->profile.CurrentPersonID, "1");
  EXPECT_EQ(Count("people", "PersonID > 0"), "1");
}

class CompletingProfile : public WizardTest {};

TEST_F(CompletingProfile, FillsInWhatIsKnownAndAddsTheWeight) {
  session.Data().Execute(
      "UPDATE people SET HeightFeet=5, HeightInches=6.5, BirthDate=#5/6/1990#, GenderID=1 "
      "WHERE (PersonID=1);");
  EXPECT_TRUE(Run(
      [&](QWidget &wizard, Keyboard &keys) {
        EXPECT_EQ(Title(wizard), "Your Profile Information (Step 1 of 2)");
        EXPECT_EQ(TextOf(wizard, "txtPersonName") + TextOf(wizard, "txtHeight1") + TextOf(wizard, "txtHeight2"),
                  "Test Person56.5");
        EXPECT_EQ(TextOf(wizard, "txtBirthDate"), "5/6/1990");
        EXPECT_TRUE(Find<QRadioButton>(wizard, "optGenderMale").isChecked());
        keys.Type("Bo");
        keys.Enter();
        EXPECT_EQ(Title(wizard), "Your Weight Information (Step 2 of 2)");
        EXPECT_EQ(TextOf(wizard, "txtGoal"), "150");
        keys.FillStep({"181.5"});
      },
      false));
  EXPECT_EQ(Count("people", "PersonID > 0"), "1") << "no second person";
  EXPECT_EQ(session->profile.CurrentPersonID, "1");
  EXPECT_EQ(session.Rows("SELECT PersonName, HeightInches, Goal, ThisWeight FROM people INNER JOIN weight_loss ON "
                         "people.PersonID = weight_loss.PersonID WHERE people.PersonID=1;"),
            "Bo|6.5|150|181.5");
}

TEST_F(CompletingProfile, WithoutAGoalTheWeightsStayAsTheyAre) {
  Weigh(180);
  session.Data().Execute("UPDATE people SET Goal=Null WHERE (PersonID=1);");
  EXPECT_TRUE(Run(
      [&](QWidget &wizard, Keyboard &keys) {
        keys.Enter();
        EXPECT_EQ(TextOf(wizard, "txtStartingWeight"), "180");
        EXPECT_FALSE(Find<QWidget>(wizard, "txtStartingWeight").isEnabled());
        EXPECT_EQ(keys.FocusName(), "txtGoal");
        keys.FillStep({"150"});
      },
      false));
  EXPECT_EQ(Person("Goal", 1) + Count("weight_loss", "PersonID=1"), "1501");
}

TEST_F(AddingProfile, AWizardThatCannotStartSaysSo) {
  session.Data().Execute("ALTER TABLE people RENAME TO gone;");
  session.boxes.Expect("", "An error occurred while trying to start the configuration wizard.");
  EXPECT_FALSE(StartWiz(*session, navigator, true, nullptr));
}

}  // namespace
}  // namespace trimlog
