#include "core/session/navigator.h"
#include "core/windows/controls/theme.h"
#include "support/test_session.h"
#include "support/windows/controls.h"
#include "tools/body_fat.h"
#include "tools/windows/frmTools.h"
#include "tools/windows/tool_colours.h"

namespace trimlog {
namespace {

class ToolsWindow : public testing::Test {
 protected:
  ToolsWindow() {
    session->settings.MedicalDisclaimer = true;
    navigator.ShowForm.leads = [](const QString &) { return true; };
    navigator.ShowForm.show = [this](const QString &name, const FormOpening &) { opened.append(name); };
    navigator.OpenSetup = [this](SetupTab tab) {
      opened.append(QStringLiteral("setup %1").arg(static_cast<int>(tab)));
    };
    navigator.ShowHelp = [this](const QString &topic) { opened.append("help " + topic); };
  }

  void Measure(const QDate &date, double waist) {
    session.Data().Execute("INSERT INTO measurements ( PersonID, RecordID, ThisDate, Waist ) VALUES ( 1, 1, ?, ? );",
                           {date, waist});
  }
  /// A profile that has all that the calculators ask for.
  void FillProfile() {
    session.Weigh(QDate(2026, 1, 5), 180);
    session.Weigh(QDate(2026, 2, 2), 170);
    Measure(QDate(2026, 2, 2), 33);
    session.Data().Execute(
        "UPDATE people SET GoalMethodID=1, GoalMethodLbsWeek=2, GoalMethodDate=#6/1/2026#, Goal=\"150\" "
        "WHERE PersonID=1;");
  }

  frmTools &Open(ToolsPanel panel = ToolsPanel::GoalPlanner) {
    window = std::make_unique<frmTools>(*session, navigator, panel);
    window->show();
    QApplication::setActiveWindow(window.get());
    QTest::qWait(0);  // the notices come behind the first showing
    QCoreApplication::processEvents();
    return *window;
  }
  QString TextOf(const char *name) {
    QWidget &control = Find<QWidget>(*window, name);
    return control.property("text").toString();
  }
  bool Enabled(const char *name) { return Find<QWidget>(*window, name).isEnabled(); }
  bool Shown(const char *name) { return Find<QWidget>(*window, name).isVisible(); }
  void Click(const char *name) {
    QTest::mouseClick(&Find<QWidget>(*window, name), Qt::LeftButton);
    QCoreApplication::processEvents();
  }
  /// Clicks on an option's mark: a wide option is not sensitive behind its caption.
  void Choose(const char *name) {
    QTest::mouseClick(&Find<QRadioButton>(*window, name), Qt::LeftButton, {}, QPoint(8, 8));
    QCoreApplication::processEvents();
  }
  void Type(const char *name, const char *text) {
    auto &field = Find<QLineEdit>(*window, name);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
    if (*text == 0) QTest::keyClick(&field, Qt::Key_Delete);
  }
  /// Which of the three colours a control is painted in at a place: the nearest.
  int ColourAt(const char *name, const QPoint &place) {
    const QColor painted = Find<QWidget>(*window, name).grab().toImage().pixelColor(place);
    const auto distance = [&painted](const QColor &colour) {
      return std::abs(painted.red() - colour.red()) + std::abs(painted.green() - colour.green()) +
             std::abs(painted.blue() - colour.blue());
    };
    const auto colours = ToolColours(*session);
    return static_cast<int>(std::ranges::min_element(colours, {}, distance) - colours.begin());
  }
  /// Acts on the reminder as soon as it stands above the window, which is modal itself.
  static void WhenReminded(const std::function<void(QWidget &)> &act) {
    QTimer::singleShot(0, qApp, [act] {
      QWidget *modal = QApplication::activeModalWidget();
      if (!modal || modal->objectName() != "frmMedicalDisclaimer") return WhenReminded(act);
      act(*modal);
    });
  }

  TestSession session;
  Navigator navigator;
  QStringList opened;
  std::unique_ptr<frmTools> window;
};

const char *const prompt = "Click the <Calculate Plan> button\n to see your results.";

TEST_F(ToolsWindow, OpensWithTheStoredPlanCalculated) {
  FillProfile();
  Open();
  EXPECT_EQ(window->windowTitle(), "Tools and Calculators");
  EXPECT_EQ(TextOf("txtGoal"), "150");
  EXPECT_EQ(TextOf("optInitialWeight"), "Use My Initial Weight of 180 Lbs");
  EXPECT_EQ(TextOf("optCurrentWeight"), "Use My Current Weight of 170 Lbs");
  EXPECT_EQ(TextOf("lblGoalMethodLbsWeek2"), "lbs/week");
  // 20 lbs at 2 a week are 10 weeks from the 2nd of February
  EXPECT_TRUE(TextOf("txtGoalConstraint")
                  .startsWith("If you can lose 2 lbs/week, you will reach your goal weight on "
                              "4/13/2026.  Your goal weight's BMI is 24"));
  EXPECT_TRUE(Enabled("txtGoalMethodLbsWeek") && Enabled("lblGoalMethodLbsWeek2"));
  EXPECT_FALSE(Enabled("txtGoalMethodDate") || Enabled("cmdCalendar") || Enabled("lblGoalMethodDate"));
  EXPECT_TRUE(Find<QWidget>(*window, "txtGoal").hasFocus());
}

TEST_F(ToolsWindow, EveryEditAsksToCalculateAgain) {
  FillProfile();
  Open();
  Type("txtGoal", "155");
  EXPECT_EQ(TextOf("txtGoalConstraint"), prompt);
  QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
  WaitForPressedButtons();
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith("If you can lose 2 lbs/week"));
  Choose("optGoalDate");
  EXPECT_EQ(TextOf("txtGoalConstraint"), prompt);
  EXPECT_FALSE(Enabled("txtGoalMethodLbsWeek") || Enabled("lblGoalMethodLbsWeek2"));
  EXPECT_TRUE(Enabled("txtGoalMethodDate") && Enabled("cmdCalendar") && Enabled("lblGoalMethodDate"));
  Choose("optInitialWeight");
  Click("cmdCalculate");
  // 25 lbs from the 5th of January to the 1st of June: 21 Sundays
  EXPECT_TRUE(TextOf("txtGoalConstraint")
                  .startsWith("In order to reach your goal weight by 6/1/2026, you will need to lose 1.2 lbs/week."));
  Choose("optCurrentWeight");
  EXPECT_EQ(TextOf("txtGoalConstraint"), prompt);
}

TEST_F(ToolsWindow, AnEmptyDateBecomesToday) {
  FillProfile();
  session.Data().Execute("UPDATE people SET GoalMethodID=2, GoalMethodDate=Null WHERE PersonID=1;");
  Open();
  EXPECT_EQ(TextOf("txtGoalMethodDate"), "3/1/2026");
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith("In order to reach your goal weight by 3/1/2026"));
}

TEST_F(ToolsWindow, ARefusedFieldKeepsTheFocusAndItsTextSelected) {
  FillProfile();
  Open();
  struct Case {
    const char *field, *text, *title;
  };
  for (const Case &c : {Case{"txtGoal", "12.3.4", "Invalid Goal"}, Case{"txtGoal", "-3", "Invalid Goal"},
                        Case{"txtGoalMethodLbsWeek", "0", "Invalid lbs/week"}}) {
    Type(c.field, c.text);
    session.boxes.Expect(c.title, QString());
    QTest::keyClick(window.get()->focusWidget(), Qt::Key_Tab);
    QCoreApplication::processEvents();
    auto &field = Find<QLineEdit>(*window, c.field);
    EXPECT_TRUE(field.hasFocus()) << c.field;
    EXPECT_EQ(field.selectedText(), c.text);
    Type(c.field, "2");
  }
  // By its access key a command can be given without leaving the field; it must not use what the field refuses.
  Type("txtGoal", "0");
  session.boxes.Expect("Invalid Goal", "positive value");
  QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
  WaitForPressedButtons();
  EXPECT_EQ(TextOf("txtGoalConstraint"), prompt);
  Type("txtGoal", "0");
  session.boxes.Expect("Invalid Goal", "positive value");
  Click("cmdClose");
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ToolsWindow, AGoalThatNobodyTypedTrapsNobody) {
  FillProfile();
  for (const char *goal : {"", "0"}) {
    session.Data().Execute("UPDATE people SET Goal=? WHERE PersonID=1;", {goal});
    Open();
    EXPECT_EQ(TextOf("txtGoal"), goal);
    EXPECT_TRUE(Find<QWidget>(*window, "txtGoal").hasFocus());
    Click("optInitialWeight");
    Find<QWidget>(*window, "cboTools").setFocus();
    QCoreApplication::processEvents();
    session.boxes.Expect("Invalid Goal", QString());
    Click("cmdCalculate");
    Click("cmdClose");
    EXPECT_FALSE(window->isVisible());
  }
  Open();
  Type("txtGoal", "1e300");
  session.boxes.Expect("Invalid Goal", "Please enter a numeric value");
  Click("cmdCalculate");
}

TEST_F(ToolsWindow, OpensWithoutScrollBarsAndStaysOnTheScreen) {
  for (const double weight : {170.0, 175.25, 1234.75}) {
    session.Data().Execute("DELETE weight_loss.* FROM weight_loss;");
    session.Data().Execute("DELETE measurements.* FROM measurements;");
    FillProfile();
    session.Weigh(QDate(2026, 2, 3), weight);
    for (const ToolsPanel panel : {ToolsPanel::GoalPlanner, ToolsPanel::CaloricNeeds, ToolsPanel::BodyFat}) {
      Open(panel);
      const auto *scroll = window->findChild<QScrollArea *>();
      EXPECT_FALSE(scroll->verticalScrollBar()->isVisible() || scroll->horizontalScrollBar()->isVisible()) << weight;
      EXPECT_TRUE(scroll->widget()->height() >= scroll->widget()->heightForWidth(scroll->widget()->width())) << weight;
    }
  }
  // A bar that a smaller window needed goes with the need.
  const QSize roomy = window->size();
  window->resize(roomy.width(), roomy.height() / 2);
  QCoreApplication::processEvents();
  ASSERT_TRUE(window->findChild<QScrollArea *>()->verticalScrollBar()->isVisible());
  for (const int tool : {1, 0}) Find<QComboBox>(*window, "cboTools").setCurrentIndex(tool);
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->findChild<QScrollArea *>()->verticalScrollBar()->isVisible());
  window->move(600, 500);
  Find<QComboBox>(*window, "cboTools").setCurrentIndex(1);
  EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()))
      << "no title bar above the screen and no button below it";
}

TEST_F(ToolsWindow, ItsResultsAreReadAsTheyStandAndCanBeReachedByTab) {
  FillProfile();
  session.Data().Execute("UPDATE people SET BirthDate=#6/1/1990# WHERE PersonID=1;");
  Open(ToolsPanel::CaloricNeeds);
  Click("optBMRActivity(1)");
  Click("cmdBMRCalculate");
  for (const char *name : {"txtGoalConstraint", "pnlBMRValue", "pnlBMRSummary", "pnlBodyFatSummary"}) {
    EXPECT_TRUE(Find<QLabel>(*window, name).focusPolicy() & Qt::TabFocus) << name;
  }
  EXPECT_TRUE(Find<QWidget>(*window, "optBMRActivity(1)")
                  .accessibleDescription()
                  .startsWith(TextOf("pnlBMRActivity(1)") + ", Biking"));
}

TEST_F(ToolsWindow, WithoutAMeasurementAnotherOneIsAsked) {
  session.Weigh(QDate(2026, 1, 5), 180);
  Open(ToolsPanel::BodyFat);
  EXPECT_TRUE(Find<QRadioButton>(*window, "optBodyFatOtherWaist").isChecked());
  EXPECT_TRUE(Find<QWidget>(*window, "txtBodyFatWaist").hasFocus());
}

TEST_F(ToolsWindow, ClosingKeepsTheMethodAndNotTheGoal) {
  FillProfile();
  const auto stored = [this] {
    return session.Rows("SELECT Goal, GoalMethodID, GoalMethodDate, GoalMethodLbsWeek FROM people WHERE PersonID=1;");
  };
  Open();
  Type("txtGoal", "140");
  Choose("optGoalDate");
  Type("txtGoalMethodDate", "7/4/2026");
  Click("cmdClose");
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(stored(), "150|2|2026-07-04|2");
  Open();
  Choose("optGoalLbs");
  Type("txtGoalMethodLbsWeek", "1.5");
  CloseToolsWindow();  // as the program's end does
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(stored(), "150|1|2026-07-04|1.5");
  Open();
  Type("txtGoalMethodLbsWeek", "0");
  QTest::keyClick(window.get(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(stored(), "150|1|2026-07-04|1") << "never a refused rate";
}
TEST_F(ToolsWindow, WithoutAWeightTheCalendarIsOfferedOrAllIsLocked) {
  const auto expect = [this](BoxButton answer) {
    session.boxes.Expect("Plan Feature Unavailable",
                         "To use this feature, you need to have a starting weight recorded in the Data Calendar.  "
                         "Would you like to do this now?",
                         answer);
  };
  expect(BoxButton::Yes);
  Open();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(opened, QStringList{"frmData"});
  ASSERT_TRUE(session.boxes.Shown().back().help);
  session.boxes.Shown().back().help();
  EXPECT_EQ(opened.last(), "help 12");
  expect(BoxButton::No);
  Open();
  for (const char *name : {"cboTools", "txtGoal", "cmdCalculate", "optCurrentWeight", "cmdPrint", "cmdHelp"}) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  Click("cmdClose");
  EXPECT_FALSE(window->isVisible());
}

TEST_F(ToolsWindow, WithoutABirthDateTheSetupIsOffered) {
  FillProfile();
  session.Data().Execute("UPDATE people SET BirthDate=Null, GenderID=Null WHERE PersonID=1;");
  for (const BoxButton answer : {BoxButton::Yes, BoxButton::No}) {
    session.boxes.Expect("Gender and Birth Date Required",
                         "Some of these tools require that you have entered your Gender and Birth Date into your "
                         "Profile setup.  Would you like to do this now?",
                         answer);
    Open(ToolsPanel::CaloricNeeds);
    EXPECT_EQ(window->isVisible(), answer == BoxButton::No);
  }
  EXPECT_EQ(opened, QStringList{"setup 0"});
  EXPECT_EQ(TextOf("txtBMRAge"), "0");
  session.boxes.Expect("Unable to Calculate", "Your caloric needs cannot be calculated.  Please enter your birth date");
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue"), "");
}

TEST_F(ToolsWindow, ASampleIsToldApartAndNoReminderComes) {
  FillProfile();
  session.Data().Execute("UPDATE weight_loss SET PersonID=-1 WHERE PersonID=1;");
  session->profile.CurrentPersonID = "-1";
  session->settings.MedicalDisclaimer = false;
  session.boxes.Expect("Sample Profile Loaded",
                       "get started.\n\nIf you are currently using the Interactive Tutorial, please take");
  Open();
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ToolsWindow, TheMedicalReminderComesUntilItIsTurnedOff) {
  FillProfile();
  session->settings.MedicalDisclaimer = false;
  const auto remind = [this](bool comesAgain) {
    bool came = false;
    WhenReminded([&](QWidget &reminder) {
      came = true;
      EXPECT_EQ(reminder.windowTitle(), "Please Remember...");
      auto &box = Find<QCheckBox>(reminder, "chkDisplay");
      EXPECT_EQ(box.text(), " Do not display this message again.");
      EXPECT_TRUE(box.isChecked());
      box.setChecked(!comesAgain);
      QTest::keyClick(&reminder, Qt::Key_Return);
    });
    Open();
    return came;
  };
  EXPECT_TRUE(remind(true));
  EXPECT_FALSE(session->settings.MedicalDisclaimer);
  EXPECT_TRUE(remind(false));
  EXPECT_EQ(session.store->GetSettingString(settingsRoot, "MedicalDisclaimer"), "-1");
  Open();  // and comes no more: nothing would answer it
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ToolsWindow, CaloricNeedsFromTheFieldsToTheAdvice) {
  FillProfile();
  session.Data().Execute("UPDATE people SET BirthDate=#6/1/1990# WHERE PersonID=1;");
  Open(ToolsPanel::CaloricNeeds);
  EXPECT_TRUE(Shown("pnlBMR") && !Shown("pnlPlanner") && !Shown("pnlBodyFat"));
  EXPECT_EQ(TextOf("pnlBMRGender"), "Female");
  for (const char *caption : {"Gender:", "Height:"}) {
    const QList<QLabel *> labels = Find<QWidget>(*window, "pnlBMR").findChildren<QLabel *>();
    EXPECT_EQ(std::ranges::count(labels, QString(caption), &QLabel::text), 1) << caption;
  }
  EXPECT_EQ(TextOf("pnlBMRHeight"), "66 Inches");
  EXPECT_EQ(TextOf("optBMRCurrentWeight"), "Use My Current Weight of 170 Lbs");
  EXPECT_EQ(TextOf("txtBMRAge"), "35");
  EXPECT_TRUE(Find<QRadioButton>(*window, "optBMRCurrentAge").isChecked());
  EXPECT_FALSE(Enabled("txtBMRAge")) << "until another age is chosen";
  EXPECT_EQ(TextOf("pnlBMRResults1"), "Click the <Calculate Now> button to see your results.");
  EXPECT_FALSE(Shown("pnlBMRResults2") || Shown("shpBMRActivity") || Shown("shpCell"));

  Click("pnlBMRActivityDesc(1)");
  EXPECT_TRUE(Find<QRadioButton>(*window, "optBMRActivity(1)").isChecked());
  EXPECT_TRUE(Shown("shpBMRActivity") && Shown("shpCell"));
  EXPECT_EQ(TextOf("pnlBMRSummary"), "") << "nothing calculated yet";

  Click("cmdBMRCalculate");
  // 170 x 9.563 / 2.2046 = 737.4173; + 655.1 + 310.134 - 36 x 4.676 = 1534.3153: 36 by the calendar years
  EXPECT_EQ(TextOf("pnlBMRResults1"), "So, if you did nothing but lie awake in bed all day, you would burn");
  EXPECT_EQ(TextOf("pnlBMRValue"), "1534 calories.");
  EXPECT_EQ(TextOf("pnlBMRActivity(1)"), "2424 calories");
  for (int i = 0, lower = 0; i < 3; ++i) {  // the more one moves, the higher the column
    const std::string name = QStringLiteral("pnlBMRActivity(%1)").arg(i).toStdString();
    const char *cell = name.c_str();
    EXPECT_EQ(ColourAt(cell, {6, 6}), i);
    EXPECT_LT(lower, Find<QWidget>(*window, cell).height());
    lower = Find<QWidget>(*window, cell).height();
  }
  EXPECT_TRUE(Shown("pnlBMRResults2") && Shown("pnlBMRResults3"));
  EXPECT_TRUE(TextOf("pnlBMRSummary")
                  .startsWith("With a moderate level of activity you will need to consume 2424 calories per day"));
  Click("pnlBMRActivity(2)");
  EXPECT_TRUE(TextOf("pnlBMRSummary").startsWith("If you can maintain a heavy activity level"));

  Choose("optBMRGoalWeight");
  EXPECT_TRUE(Enabled("txtBMRGoal"));
  EXPECT_EQ(TextOf("pnlBMRValue"), "");
  EXPECT_EQ(TextOf("pnlBMRActivity(0)"), "");
  EXPECT_EQ(TextOf("pnlBMRSummary"), "");
  Choose("optBMROtherAge");
  Type("txtBMRAge", "");
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue"), "") << "an empty age does nothing";
  Type("txtBMRAge", "36");
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue"), "1448 calories.");
  Click("txtBMRGoal");
  EXPECT_EQ(TextOf("pnlBMRValue"), "") << "a new weight is about to come";
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue"), "1448 calories.");
  Type("txtBMRAge", "37");
  EXPECT_EQ(TextOf("pnlBMRValue"), "");
}

TEST_F(ToolsWindow, BodyFatFromTheFieldsToTheBar) {
  FillProfile();
  Open(ToolsPanel::BodyFat);
  EXPECT_EQ(TextOf("optBodyFatCurrentWaist"), "Use My Most Recent Measurement of 33 Inches");
  EXPECT_EQ(TextOf("txtBodyFatWaist"), "33");
  EXPECT_EQ(TextOf("txtBodyFatGoal"), "150");
  EXPECT_TRUE(Find<QWidget>(*window, "cmdBodyFatCalculate").hasFocus());
  EXPECT_FALSE(Shown("pnlBodyFatChart"));

  QTest::keyClick(window->focusWidget(), Qt::Key_Space);
  // (-76.76 + 136.95 - 13.94) / 170 = 27.206 %
  EXPECT_TRUE(Shown("pnlBodyFatChart"));
  EXPECT_EQ(TextOf("pnlBodyFatValue"), "Your Body Fat = 27.21%");
  EXPECT_EQ(TextOf("pnlBodyFatPercent0"), "16%");
  EXPECT_EQ(TextOf("pnlBodyFatPercent2"), "29%");
  EXPECT_EQ(TextOf("pnlBodyFatChart3"), "Obese -->");
  // The marker stands at its place in proportion, and the value is centred on it.
  const double x = PlaceBodyFatMarker(46.25 / 170, 2).x;
  const auto place = [this](const char *name) { return Find<QWidget>(*window, name).geometry(); };
  const double scale = static_cast<double>(place("pnlBodyFatChart2").width()) / 3000;
  const double expected = place("pnlBodyFatChart2").left() + (x - 2400) * scale;
  EXPECT_NEAR(place("Line7").center().x(), expected, 2);
  EXPECT_NEAR(place("Line8").center().x(), expected, 2);
  EXPECT_NEAR(place("pnlBodyFatValue").center().x(), expected, 2);
  EXPECT_LT(place("pnlBodyFatValue").bottom(), place("Line7").top() + 1);
  EXPECT_EQ(place("Line7").bottom() + 1, place("Line8").top()) << "one line from the value into the bar";
  for (int i = 0; i < 3; ++i) {
    const QRect segment = place(qPrintable(QStringLiteral("pnlBodyFatChart%1").arg(i + 1)));
    EXPECT_EQ(ColourAt("pnlBodyFatChart", segment.bottomLeft() + QPoint(4, -4)), i);
    const QRect bound = place(qPrintable(QStringLiteral("pnlBodyFatPercent%1").arg(i)));
    EXPECT_NEAR(bound.center().x(), segment.left(), 2);
    EXPECT_GT(bound.top(), segment.bottom());
  }
  EXPECT_FALSE(TextOf("pnlBodyFatSummary").isEmpty());

  Choose("optBodyFatGoalWeight");
  EXPECT_TRUE(Enabled("txtBodyFatGoal"));
  EXPECT_TRUE(Find<QRadioButton>(*window, "optBodyFatCurrentWaist").isChecked()) << "a choice of its own";
  Choose("optBodyFatOtherWaist");
  EXPECT_TRUE(Find<QRadioButton>(*window, "optBodyFatGoalWeight").isChecked());
  EXPECT_EQ(TextOf("pnlBodyFatSummary"), "");
  EXPECT_TRUE(Enabled("txtBodyFatWaist"));
  Type("txtBodyFatWaist", "");
  session.boxes.Expect("Unable to Calculate", "numeric value for your waist");
  Click("cmdBodyFatCalculate");
  EXPECT_EQ(TextOf("pnlBodyFatValue"), "Your Body Fat = 27.21%") << "the panel stays as it was";
}

TEST_F(ToolsWindow, FollowsTheDataWhileItIsOpen) {
  FillProfile();
  session.Data().Execute("DELETE weight_loss.* FROM weight_loss WHERE ThisDate=#1/5/2026#;");
  Open();
  session.Data().Execute("DELETE weight_loss.* FROM weight_loss WHERE PersonID=1;");
  session.Announce({.table = Table::WeightLoss, .personID = "1", .date = QDate(2026, 2, 2)});
  EXPECT_EQ(TextOf("optCurrentWeight"), "Use My Current Weight");
  EXPECT_EQ(TextOf("txtGoalConstraint"), prompt);
  Click("cmdCalculate");
  EXPECT_TRUE(
      TextOf("txtGoalConstraint").startsWith("Unable to calculate without a weight recorded in the Data Calendar."));
  Find<QComboBox>(*window, "cboTools").setCurrentIndex(2);
  session.boxes.Expect("Unable to Calculate", "Please record a weight in the Data Calendar first.");
  Click("cmdBodyFatCalculate");
  session.Weigh(QDate(2026, 2, 3), 165);
  session.Announce({.table = Table::WeightLoss, .personID = "1", .date = QDate(2026, 2, 3)});
  EXPECT_EQ(TextOf("optBodyFatCurrentWeight"), "Use My Current Weight of 165 Lbs");
}

TEST_F(ToolsWindow, AHeightOfNothingIsSaidAndLogged) {
  FillProfile();
  session.Data().Execute("UPDATE people SET HeightFeet=0, HeightInches=0 WHERE PersonID=1;");
  Open();
  EXPECT_TRUE(
      TextOf("txtGoalConstraint")
          .endsWith("Your goal weight's BMI cannot be calculated from this weight and the height in your profile."));
  EXPECT_TRUE(session.Logged("frmPlan, UpdateGoalText, Values: 1:[150] 2a:[2] 2b:[6/1/2026] 3a:[0] 3b:[-1] Error:"));
}

TEST_F(ToolsWindow, EnterCalculatesInEveryPanel) {
  FillProfile();
  session.Data().Execute("UPDATE people SET BirthDate=#6/1/1990# WHERE PersonID=1;");
  for (const auto &[panel, field, text, result] :
       {std::tuple{ToolsPanel::GoalPlanner, "txtGoal", "160", "txtGoalConstraint"},
        {ToolsPanel::CaloricNeeds, "txtBMRAge", "36", "pnlBMRValue"}}) {
    Open(panel);
    if (panel == ToolsPanel::CaloricNeeds) Choose("optBMROtherAge");
    Type(field, text);
    const QString before = TextOf(result);
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_NE(TextOf(result), before) << field;
  }
}
TEST_F(ToolsWindow, ADateFromTheCalendarIsCalculatedAtOnce) {
  FillProfile();
  Open();
  Choose("optGoalDate");
  WhenModal([](QWidget &calendar) { QTest::mouseClick(&Find<QPushButton>(calendar, "cmdOK"), Qt::LeftButton); });
  Click("cmdCalendar");
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith("In order to reach your goal weight by 6/1/2026"));
  Type("txtGoalMethodDate", "7/4/2026");
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(TextOf("txtGoalConstraint"), prompt) << "leaving the field calculates nothing";
  Type("txtGoalMethodDate", "7/4/2026");
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith("In order to reach your goal weight by 7/4/2026"));
}

TEST_F(ToolsWindow, IsWhiteWhereTheScreenHasFewColours) {
  FillProfile();
  session.machine.colors = 256;
  Open();
  EXPECT_EQ(window->palette().color(QPalette::Window), QColor(Qt::white));
}

TEST_F(ToolsWindow, TheStepInUseStandsOut) {
  FillProfile();
  Open();
  const auto colour = [this](const char *panel) {
    return Find<QWidget>(*window, panel).palette().color(QPalette::Window);
  };
  const QColor accent(0xC0, 0xE0, 0xFF);  // the scheme FFE0C0, blue first
  EXPECT_EQ(colour("pnlStep1"), accent) << "the focus is in the goal";
  EXPECT_NE(colour("pnlStep3"), accent);
  Click("cmdCalculate");
  EXPECT_EQ(colour("pnlStep3"), accent);
  for (const char *panel : {"pnlStep1", "pnlStep2", "Picture1"}) EXPECT_NE(colour(panel), accent) << panel;
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(0x2A, 0x2E, 0x32)));  // the desktop turns dark under the open window
  QCoreApplication::processEvents();
  EXPECT_TRUE(IsDark(Find<QWidget>(*window, "pnlStep3").palette()));
  EXPECT_NE(colour("pnlStep3"), colour("pnlStep1")) << "it still stands out";
  QApplication::setPalette(before);
}

TEST_F(ToolsWindow, MetricUnitsInEveryPanel) {
  FillProfile();
  session.Data().Execute("UPDATE people SET HeightFeet=1, HeightInches=70, Goal=\"62.5\" WHERE PersonID=1;");
  session->settings.UomID = 2;
  session->UomDisplay = "Kg";
  Open();
  EXPECT_EQ(TextOf("lblGoalUOM"), "Kg");
  EXPECT_EQ(TextOf("lblGoalMethodLbsWeek2"), "kg/week");
  EXPECT_TRUE(TextOf("txtGoalConstraint").contains("BMI is 22,")) << "62.5 / 2.89 = 21.63";
  Find<QComboBox>(*window, "cboTools").setCurrentIndex(1);
  EXPECT_EQ(TextOf("pnlBMRHeight"), "170 Cm");
  EXPECT_EQ(TextOf("pnlBMRUOM"), "Kg");
  Find<QComboBox>(*window, "cboTools").setCurrentIndex(2);
  EXPECT_EQ(TextOf("optBodyFatCurrentWaist"), "Use My Most Recent Measurement of 33 Cm");
  EXPECT_EQ(TextOf("lblBodyFatUOMInches"), "Cm");
}

TEST_F(ToolsWindow, PrintsItsPictureAfterAsking) {
  FillProfile();
  Open();
  const QString title = "Print Results?";
  const QString text =
      "Print the currently displayed results to your default printer?\n\nNote: After clicking OK, there will be a "
      "momentary delay while your printer processes the data, and then the page will be printed.  This is completely "
      "normal.";
  session.boxes.Expect(title, text, BoxButton::Cancel);
  Click("cmdPrint");
  EXPECT_TRUE(session.printing.printed.isEmpty());
  session.boxes.Expect(title, text, BoxButton::Ok);
  Click("cmdPrint");
  EXPECT_EQ(session.printing.printed, QStringList{"picture"});
  session.printing.broken = true;
  session.boxes.Expect(title, text, BoxButton::Ok);
  session.boxes.Expect("Printer Error",
                       "An error occurred while printing to your default printer.  Unable to print at this time.");
  Click("cmdPrint");
}

TEST_F(ToolsWindow, HelpFollowsTheTool) {
  FillProfile();
  Open();
  for (int tool = 0; tool < 3; ++tool) {
    Find<QComboBox>(*window, "cboTools").setCurrentIndex(tool);
    Click("cmdHelp");
  }
  EXPECT_EQ(opened.join(u',').toStdString(), "help 35,help 63,help 65");
}

}  // namespace
}  // namespace trimlog
