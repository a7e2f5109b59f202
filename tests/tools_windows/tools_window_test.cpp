#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "core/session/navigator.h"
#include "support/test_session.h"
#include "support/windows/controls.h"
#include "tools/body_fat.h"
#include "tools/windows/frmTools.h"

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
    navigator.ShowHelp = [this](const QString &topic) { opened.append(QStringLiteral("help ") + topic); };
  }

  void Weigh(const QDate &date, double weight) {
    session.Data().Execute(
        QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( 1, ?, ?, 0 );"),
        {date, weight});
  }
  void Measure(const QDate &date, double waist) {
    session.Data().Execute(
        QStringLiteral("INSERT INTO measurements ( PersonID, RecordID, ThisDate, Waist ) VALUES ( 1, 1, ?, ? );"),
        {date, waist});
  }
  /// A profile that has all that the calculators ask for.
  void FillProfile() {
    Weigh(QDate(2026, 1, 5), 180);
    Weigh(QDate(2026, 2, 2), 170);
    Measure(QDate(2026, 2, 2), 33);
    session.Data().Execute(
        QStringLiteral("UPDATE people SET GoalMethodID=1, GoalMethodLbsWeek=2, GoalMethodDate=#6/1/2026#, Goal=\"150\" "
                       "WHERE PersonID=1;"));
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
    QWidget &control = Find<QWidget>(*window, QString::fromLatin1(name));
    return control.property("text").toString();
  }
  bool Enabled(const char *name) { return Find<QWidget>(*window, QString::fromLatin1(name)).isEnabled(); }
  bool Shown(const char *name) { return Find<QWidget>(*window, QString::fromLatin1(name)).isVisible(); }
  void Click(const char *name) {
    QTest::mouseClick(&Find<QWidget>(*window, QString::fromLatin1(name)), Qt::LeftButton);
    QCoreApplication::processEvents();
  }
  /// Clicks on an option's mark: a wide option is not sensitive behind its caption.
  void Choose(const char *name) {
    QTest::mouseClick(&Find<QRadioButton>(*window, QString::fromLatin1(name)), Qt::LeftButton, {}, QPoint(8, 8));
    QCoreApplication::processEvents();
  }
  void Type(const char *name, const char *text) {
    auto &field = Find<QLineEdit>(*window, QString::fromLatin1(name));
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(text));
    if (*text == 0) QTest::keyClick(&field, Qt::Key_Delete);
  }
  /// Acts on a modal window as soon as it is there.
  void WhenShown(const QString &name, const std::function<void(QWidget &)> &act) {
    auto *watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, watch, [watch, name, act] {
      QWidget *modal = QApplication::activeModalWidget();
      if (!modal || modal->objectName() != name) return;
      watch->deleteLater();
      watch->stop();
      act(*modal);
    });
    watch->start(5);
  }
  QString Stored(const char *column) {
    return session.ValueOf(QString::fromLatin1(column), QStringLiteral("people"), QStringLiteral("PersonID=1"));
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
  EXPECT_EQ(window->windowTitle().toStdString(), "Tools and Calculators");
  EXPECT_EQ(TextOf("txtGoal").toStdString(), "150");
  EXPECT_EQ(TextOf("optInitialWeight").toStdString(), "Use My Initial Weight of 180 Lbs");
  EXPECT_EQ(TextOf("optCurrentWeight").toStdString(), "Use My Current Weight of 170 Lbs");
  EXPECT_EQ(TextOf("lblGoalMethodLbsWeek2").toStdString(), "lbs/week");
  // 20 lbs at 2 a week are 10 weeks from the 2nd of February
  EXPECT_TRUE(TextOf("txtGoalConstraint")
                  .startsWith(QStringLiteral("If you can lose 2 lbs/week, you will reach your goal weight on "
                                             "4/13/2026.  Your goal weight's BMI is 24")));
  EXPECT_TRUE(Enabled("txtGoalMethodLbsWeek") && Enabled("lblGoalMethodLbsWeek2"));
  EXPECT_FALSE(Enabled("txtGoalMethodDate") || Enabled("cmdCalendar") || Enabled("lblGoalMethodDate"));
  EXPECT_TRUE(Find<QWidget>(*window, QStringLiteral("txtGoal")).hasFocus());
}

TEST_F(ToolsWindow, EveryEditAsksToCalculateAgain) {
  FillProfile();
  Open();
  Type("txtGoal", "155");
  EXPECT_EQ(TextOf("txtGoalConstraint").toStdString(), prompt);
  QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
  WaitForPressedButtons();
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith(QStringLiteral("If you can lose 2 lbs/week")));
  Choose("optGoalDate");
  EXPECT_EQ(TextOf("txtGoalConstraint").toStdString(), prompt);
  EXPECT_FALSE(Enabled("txtGoalMethodLbsWeek") || Enabled("lblGoalMethodLbsWeek2"));
  EXPECT_TRUE(Enabled("txtGoalMethodDate") && Enabled("cmdCalendar") && Enabled("lblGoalMethodDate"));
  Choose("optInitialWeight");
  Click("cmdCalculate");
  // 25 lbs from the 5th of January to the 1st of June: 21 Sundays
  EXPECT_TRUE(TextOf("txtGoalConstraint")
                  .startsWith(QStringLiteral(
                      "In order to reach your goal weight by 6/1/2026, you will need to lose 1.2 lbs/week.")));
  Choose("optCurrentWeight");
  EXPECT_EQ(TextOf("txtGoalConstraint").toStdString(), prompt);
}

TEST_F(ToolsWindow, AnEmptyDateBecomesToday) {
  FillProfile();
  session.Data().Execute(QStringLiteral("UPDATE people SET GoalMethodID=2, GoalMethodDate=Null WHERE PersonID=1;"));
  Open();
  EXPECT_EQ(TextOf("txtGoalMethodDate").toStdString(), "3/1/2026");
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith(QStringLiteral("In order to reach your goal weight by 3/1/2026")));
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
    session.boxes.Expect(QString::fromLatin1(c.title), QString());
    QTest::keyClick(window.get()->focusWidget(), Qt::Key_Tab);
    QCoreApplication::processEvents();
    auto &field = Find<QLineEdit>(*window, QString::fromLatin1(c.field));
    EXPECT_TRUE(field.hasFocus()) << c.field;
    EXPECT_EQ(field.selectedText().toStdString(), c.text);
    Type(c.field, "2");
  }
  // By its access key a command can be given without leaving the field; it must not use what the field refuses.
  Type("txtGoal", "0");
  session.boxes.Expect(QStringLiteral("Invalid Goal"), QStringLiteral("positive value"));
  QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
  WaitForPressedButtons();
  EXPECT_EQ(TextOf("txtGoalConstraint").toStdString(), prompt);
  Type("txtGoal", "0");
  session.boxes.Expect(QStringLiteral("Invalid Goal"), QStringLiteral("positive value"));
  Click("cmdClose");
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ToolsWindow, AGoalThatNobodyTypedTrapsNobody) {
  FillProfile();
  for (const char *goal : {"", "0"}) {
    session.Data().Execute(QStringLiteral("UPDATE people SET Goal=? WHERE PersonID=1;"), {QString::fromLatin1(goal)});
    Open();
    EXPECT_EQ(TextOf("txtGoal").toStdString(), goal);
    EXPECT_TRUE(Find<QWidget>(*window, QStringLiteral("txtGoal")).hasFocus());
    Click("optInitialWeight");
    Find<QWidget>(*window, QStringLiteral("cboTools")).setFocus();
    QCoreApplication::processEvents();
    session.boxes.Expect(QStringLiteral("Invalid Goal"), QString());
    Click("cmdCalculate");
    Click("cmdClose");
    EXPECT_FALSE(window->isVisible());
  }
  Open();
  Type("txtGoal", "1e300");
  session.boxes.Expect(QStringLiteral("Invalid Goal"), QStringLiteral("Please enter a numeric value"));
  Click("cmdCalculate");
}

TEST_F(ToolsWindow, OpensWithoutScrollBarsAndStaysOnTheScreen) {
  for (const double weight : {170.0, 175.25, 1234.75}) {
    session.Data().Execute(QStringLiteral("DELETE weight_loss.* FROM weight_loss;"));
    session.Data().Execute(QStringLiteral("DELETE measurements.* FROM measurements;"));
    FillProfile();
    Weigh(QDate(2026, 2, 3), weight);
    for (const ToolsPanel panel : {ToolsPanel::GoalPlanner, ToolsPanel::CaloricNeeds, ToolsPanel::BodyFat}) {
      Open(panel);
      const auto *scroll = window->findChild<QScrollArea *>();
      EXPECT_FALSE(scroll->verticalScrollBar()->isVisible() || scroll->horizontalScrollBar()->isVisible()) << weight;
      EXPECT_TRUE(scroll->widget()->height() >= scroll->widget()->heightForWidth(scroll->widget()->width())) << weight;
    }
  }
  window->move(600, 500);
  Find<QComboBox>(*window, QStringLiteral("cboTools")).setCurrentIndex(0);
  EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()))
      << "no title bar above the screen and no button below it";
}

TEST_F(ToolsWindow, ItsResultsAreReadAsTheyStandAndCanBeReachedByTab) {
  FillProfile();
  session.Data().Execute(QStringLiteral("UPDATE people SET BirthDate=#6/1/1990# WHERE PersonID=1;"));
  Open(ToolsPanel::CaloricNeeds);
  Click("optBMRActivity(1)");
  Click("cmdBMRCalculate");
  for (QLabel *label : window->findChildren<QLabel *>()) {
    const QString spoken = QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name);
    EXPECT_EQ(spoken.toStdString(), label->text().remove(QLatin1Char('&')).toStdString())
        << label->objectName().toStdString();
  }
  for (const char *name : {"txtGoalConstraint", "pnlBMRValue", "pnlBMRSummary", "pnlBodyFatSummary"}) {
    EXPECT_TRUE(Find<QLabel>(*window, QString::fromLatin1(name)).focusPolicy() & Qt::TabFocus) << name;
  }
  EXPECT_TRUE(Find<QWidget>(*window, QStringLiteral("optBMRActivity(1)"))
                  .accessibleDescription()
                  .startsWith(TextOf("pnlBMRActivity(1)") + QStringLiteral(", Biking")));
}

TEST_F(ToolsWindow, WithoutAMeasurementAnotherOneIsAsked) {
  Weigh(QDate(2026, 1, 5), 180);
  Open(ToolsPanel::BodyFat);
  EXPECT_TRUE(Find<QRadioButton>(*window, QStringLiteral("optBodyFatOtherWaist")).isChecked());
  EXPECT_TRUE(Find<QWidget>(*window, QStringLiteral("txtBodyFatWaist")).hasFocus());
}

TEST_F(ToolsWindow, ClosingKeepsTheMethodAndNotTheGoal) {
  FillProfile();
  Open();
  Type("txtGoal", "140");
  Choose("optGoalDate");
  Type("txtGoalMethodDate", "7/4/2026");
  Click("cmdClose");
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Stored("Goal").toStdString(), "150");
  EXPECT_EQ(Stored("GoalMethodID").toStdString(), "2");
  EXPECT_EQ(Stored("GoalMethodDate").toStdString(), "2026-07-04");
  EXPECT_EQ(Stored("GoalMethodLbsWeek").toStdString(), "2");
}

TEST_F(ToolsWindow, EscapeNeverStoresARefusedRate) {
  FillProfile();
  Open();
  Type("txtGoalMethodLbsWeek", "0");
  QTest::keyClick(window.get(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Stored("GoalMethodLbsWeek").toStdString(), "1");
}

TEST_F(ToolsWindow, WithoutAWeightTheCalendarIsOfferedOrAllIsLocked) {
  const QString title = QStringLiteral("Plan Feature Unavailable");
  const QString text = QStringLiteral(
      "To use this feature, you need to have a starting weight recorded in the Data Calendar.  Would you like to do "
      "this now?");
  session.boxes.Expect(title, text, BoxButton::Yes);
  Open();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(opened.join(u' ').toStdString(), "frmData");
  ASSERT_TRUE(session.boxes.Shown().back().help);
  session.boxes.Shown().back().help();
  EXPECT_EQ(opened.last().toStdString(), "help 12");

  session.boxes.Expect(title, text, BoxButton::No);
  Open();
  EXPECT_TRUE(window->isVisible());
  for (const char *name : {"cboTools", "txtGoal", "cmdCalculate", "optCurrentWeight", "cmdPrint", "cmdHelp"}) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  EXPECT_TRUE(Enabled("cmdClose") && Enabled("pnlButtons"));
  Click("cmdClose");
  EXPECT_FALSE(window->isVisible());
}

TEST_F(ToolsWindow, WithoutABirthDateTheSetupIsOffered) {
  FillProfile();
  session.Data().Execute(QStringLiteral("UPDATE people SET BirthDate=Null, GenderID=Null WHERE PersonID=1;"));
  const QString title = QStringLiteral("Gender and Birth Date Required");
  const QString text = QStringLiteral(
      "Some of these tools require that you have entered your Gender and Birth Date into your Profile setup.  Would "
      "you like to do this now?");
  session.boxes.Expect(title, text, BoxButton::Yes);
  Open();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(opened.join(u' ').toStdString(), "setup 0");

  session.boxes.Expect(title, text, BoxButton::No);
  Open(ToolsPanel::CaloricNeeds);
  EXPECT_EQ(TextOf("txtBMRAge").toStdString(), "0");
  session.boxes.Expect(QStringLiteral("Unable to Calculate"),
                       QStringLiteral("Your caloric needs cannot be calculated.  Please enter your birth date"));
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "");
}

TEST_F(ToolsWindow, ASampleIsToldApartAndNoReminderComes) {
  FillProfile();
  session.Data().Execute(QStringLiteral("UPDATE weight_loss SET PersonID=-1 WHERE PersonID=1;"));
  session->profile.CurrentPersonID = QStringLiteral("-1");
  session->settings.MedicalDisclaimer = false;
  session.boxes.Expect(
      QStringLiteral("Sample Profile Loaded"),
      QStringLiteral("get started.\n\nIf you are currently using the Interactive Tutorial, please take"));
  Open();
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ToolsWindow, TheMedicalReminderComesUntilItIsTurnedOff) {
  FillProfile();
  session->settings.MedicalDisclaimer = false;
  const auto remind = [this](bool comesAgain) {
    bool came = false;
    WhenShown(QStringLiteral("frmMedicalDisclaimer"), [&](QWidget &reminder) {
      came = true;
      EXPECT_EQ(reminder.windowTitle().toStdString(), "Please Remember...");
      auto &box = Find<QCheckBox>(reminder, QStringLiteral("chkDisplay"));
      EXPECT_EQ(box.text().toStdString(), " Do not display this message again.");
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
  EXPECT_EQ(session.store->GetSettingString(settingsRoot, QStringLiteral("MedicalDisclaimer")).toStdString(), "-1");
  Open();  // and comes no more: nothing would answer it
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ToolsWindow, CaloricNeedsFromTheFieldsToTheAdvice) {
  FillProfile();
  session.Data().Execute(QStringLiteral("UPDATE people SET BirthDate=#6/1/1990# WHERE PersonID=1;"));
  Open(ToolsPanel::CaloricNeeds);
  EXPECT_TRUE(Shown("pnlBMR") && !Shown("pnlPlanner") && !Shown("pnlBodyFat"));
  EXPECT_EQ(TextOf("pnlBMRGender").toStdString(), "Female");
  EXPECT_EQ(TextOf("pnlBMRHeight").toStdString(), "66 Inches");
  EXPECT_EQ(TextOf("optBMRCurrentWeight").toStdString(), "Use My Current Weight of 170 Lbs");
  EXPECT_EQ(TextOf("txtBMRAge").toStdString(), "35");
  EXPECT_EQ(TextOf("pnlBMRResults1").toStdString(), "Click the <Calculate Now> button to see your results.");
  EXPECT_FALSE(Shown("pnlBMRResults2") || Shown("shpBMRActivity") || Shown("shpCell"));

  Click("pnlBMRActivityDesc(1)");
  EXPECT_TRUE(Find<QRadioButton>(*window, QStringLiteral("optBMRActivity(1)")).isChecked());
  EXPECT_TRUE(Shown("shpBMRActivity") && Shown("shpCell"));
  EXPECT_EQ(TextOf("pnlBMRSummary").toStdString(), "") << "nothing calculated yet";

  Click("cmdBMRCalculate");
  // 170 x 9.563 / 2.2046 = 737.4173; + 655.1 + 310.134 - 36 x 4.676 = 1534.3153: 36 by the calendar years
  EXPECT_EQ(TextOf("pnlBMRResults1").toStdString(),
            "So, if you did nothing but lie awake in bed all day, you would burn");
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "1534 calories.");
  EXPECT_EQ(TextOf("pnlBMRActivity(1)").toStdString(), "2424 calories");
  EXPECT_TRUE(Shown("pnlBMRResults2") && Shown("pnlBMRResults3"));
  EXPECT_TRUE(TextOf("pnlBMRSummary")
                  .startsWith(QStringLiteral(
                      "With a moderate level of activity you will need to consume 2424 calories per day")));
  Click("pnlBMRActivity(2)");
  EXPECT_TRUE(TextOf("pnlBMRSummary").startsWith(QStringLiteral("If you can maintain a heavy activity level")));

  Choose("optBMRGoalWeight");
  EXPECT_TRUE(Enabled("txtBMRGoal"));
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "");
  EXPECT_EQ(TextOf("pnlBMRActivity(0)").toStdString(), "");
  EXPECT_EQ(TextOf("pnlBMRSummary").toStdString(), "");
  Choose("optBMROtherAge");
  Type("txtBMRAge", "");
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "") << "an empty age does nothing";
  Type("txtBMRAge", "36");
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "1448 calories.");
  Click("txtBMRGoal");
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "") << "a new weight is about to come";
  Click("cmdBMRCalculate");
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "1448 calories.");
  Type("txtBMRAge", "37");
  EXPECT_EQ(TextOf("pnlBMRValue").toStdString(), "");
}

TEST_F(ToolsWindow, BodyFatFromTheFieldsToTheBar) {
  FillProfile();
  Open(ToolsPanel::BodyFat);
  EXPECT_EQ(TextOf("optBodyFatCurrentWaist").toStdString(), "Use My Most Recent Measurement of 33 Inches");
  EXPECT_EQ(TextOf("txtBodyFatWaist").toStdString(), "33");
  EXPECT_EQ(TextOf("txtBodyFatGoal").toStdString(), "150");
  EXPECT_TRUE(Find<QWidget>(*window, QStringLiteral("cmdBodyFatCalculate")).hasFocus());
  EXPECT_FALSE(Shown("pnlBodyFatChart"));

  QTest::keyClick(window->focusWidget(), Qt::Key_Space);
  // (-76.76 + 136.95 - 13.94) / 170 = 27.206 %
  EXPECT_TRUE(Shown("pnlBodyFatChart"));
  EXPECT_EQ(TextOf("pnlBodyFatValue").toStdString(), "Your Body Fat = 27.21%");
  EXPECT_EQ(TextOf("pnlBodyFatPercent0").toStdString(), "16%");
  EXPECT_EQ(TextOf("pnlBodyFatPercent2").toStdString(), "29%");
  EXPECT_EQ(TextOf("pnlBodyFatChart3").toStdString(), "Obese -->");
  // The marker stands at its place in proportion, and the value is centred on it.
  const double x = PlaceBodyFatMarker(46.25 / 170, 2).x;
  const auto place = [this](const char *name) { return Find<QWidget>(*window, QString::fromLatin1(name)).geometry(); };
  const double scale = static_cast<double>(place("pnlBodyFatChart2").width()) / 3000;
  const double expected = place("pnlBodyFatChart2").left() + (x - 2400) * scale;
  EXPECT_NEAR(place("Line7").center().x(), expected, 2);
  EXPECT_NEAR(place("Line8").center().x(), expected, 2);
  EXPECT_NEAR(place("pnlBodyFatValue").center().x(), expected, 2);
  EXPECT_FALSE(TextOf("pnlBodyFatSummary").isEmpty());

  Choose("optBodyFatOtherWaist");
  EXPECT_EQ(TextOf("pnlBodyFatSummary").toStdString(), "");
  EXPECT_TRUE(Enabled("txtBodyFatWaist"));
  Type("txtBodyFatWaist", "");
  session.boxes.Expect(QStringLiteral("Unable to Calculate"), QStringLiteral("numeric value for your waist"));
  Click("cmdBodyFatCalculate");
  EXPECT_EQ(TextOf("pnlBodyFatValue").toStdString(), "Your Body Fat = 27.21%") << "the panel stays as it was";
}

TEST_F(ToolsWindow, FollowsTheDataWhileItIsOpen) {
  FillProfile();
  session.Data().Execute(QStringLiteral("DELETE weight_loss.* FROM weight_loss WHERE ThisDate=#1/5/2026#;"));
  Open();
  session.Data().Execute(QStringLiteral("DELETE weight_loss.* FROM weight_loss WHERE PersonID=1;"));
  session.Announce({.table = Table::WeightLoss, .personID = QStringLiteral("1"), .date = QDate(2026, 2, 2)});
  EXPECT_EQ(TextOf("optCurrentWeight").toStdString(), "Use My Current Weight");
  EXPECT_EQ(TextOf("txtGoalConstraint").toStdString(), prompt);
  Click("cmdCalculate");
  EXPECT_TRUE(TextOf("txtGoalConstraint")
                  .startsWith(QStringLiteral("Unable to calculate without a weight recorded in the Data Calendar.")));
  Find<QComboBox>(*window, QStringLiteral("cboTools")).setCurrentIndex(2);
  session.boxes.Expect(QStringLiteral("Unable to Calculate"),
                       QStringLiteral("Please record a weight in the Data Calendar first."));
  Click("cmdBodyFatCalculate");
  Weigh(QDate(2026, 2, 3), 165);
  session.Announce({.table = Table::WeightLoss, .personID = QStringLiteral("1"), .date = QDate(2026, 2, 3)});
  EXPECT_EQ(TextOf("optBodyFatCurrentWeight").toStdString(), "Use My Current Weight of 165 Lbs");
}

TEST_F(ToolsWindow, AHeightOfNothingIsSaidAndLogged) {
  FillProfile();
  session.Data().Execute(QStringLiteral("UPDATE people SET HeightFeet=0, HeightInches=0 WHERE PersonID=1;"));
  Open();
  EXPECT_TRUE(TextOf("txtGoalConstraint")
                  .endsWith(QStringLiteral(
                      "Your goal weight's BMI cannot be calculated from this weight and the height in your profile.")));
  QFile log(session.directory.filePath(QStringLiteral("errorlog.txt")));
  ASSERT_TRUE(log.open(QIODevice::ReadOnly));
  EXPECT_TRUE(QString::fromUtf8(log.readAll())
                  .contains(QStringLiteral(
                      "frmPlan, UpdateGoalText, Values: 1:[150] 2a:[2] 2b:[6/1/2026] 3a:[0] 3b:[-1] Error:")));
}

TEST_F(ToolsWindow, EnterCalculatesInEveryPanel) {
  FillProfile();
  Open();
  Type("txtGoal", "160");
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith(QStringLiteral("If you can lose 2 lbs/week")));
  Find<QComboBox>(*window, QStringLiteral("cboTools")).setCurrentIndex(1);
  Choose("optBMROtherAge");
  Type("txtBMRAge", "36");
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(TextOf("pnlBMRValue").isEmpty());
}

TEST_F(ToolsWindow, ADateFromTheCalendarIsCalculatedAtOnce) {
  FillProfile();
  Open();
  Choose("optGoalDate");
  WhenShown(QStringLiteral("frmCalendar"), [](QWidget &calendar) {
    QTest::mouseClick(&Find<QPushButton>(calendar, QStringLiteral("cmdOK")), Qt::LeftButton);
  });
  Click("cmdCalendar");
  EXPECT_TRUE(TextOf("txtGoalConstraint").startsWith(QStringLiteral("In order to reach your goal weight by 6/1/2026")));
}

TEST_F(ToolsWindow, TheStepInUseStandsOut) {
  FillProfile();
  Open();
  const auto colour = [this](const char *panel) {
    return Find<QWidget>(*window, QString::fromLatin1(panel)).palette().color(QPalette::Window);
  };
  const QColor accent(0xC0, 0xE0, 0xFF);  // the scheme FFE0C0, blue first
  EXPECT_EQ(colour("pnlStep1"), accent) << "the focus is in the goal";
  EXPECT_NE(colour("pnlStep3"), accent);
  Click("cmdCalculate");
  EXPECT_EQ(colour("pnlStep3"), accent);
  for (const char *panel : {"pnlStep1", "pnlStep2", "Picture1"}) EXPECT_NE(colour(panel), accent) << panel;
}

TEST_F(ToolsWindow, MetricUnitsInEveryPanel) {
  FillProfile();
  session.Data().Execute(
      QStringLiteral("UPDATE people SET HeightFeet=1, HeightInches=70, Goal=\"62.5\" WHERE PersonID=1;"));
  session->settings.UomID = 2;
  session->UomDisplay = QStringLiteral("Kg");
  Open();
  EXPECT_EQ(TextOf("lblGoalUOM").toStdString(), "Kg");
  EXPECT_EQ(TextOf("lblGoalMethodLbsWeek2").toStdString(), "kg/week");
  EXPECT_TRUE(TextOf("txtGoalConstraint").contains(QStringLiteral("BMI is 22,"))) << "62.5 / 2.89 = 21.63";
  Find<QComboBox>(*window, QStringLiteral("cboTools")).setCurrentIndex(1);
  EXPECT_EQ(TextOf("pnlBMRHeight").toStdString(), "170 Cm");
  EXPECT_EQ(TextOf("pnlBMRUOM").toStdString(), "Kg");
  Find<QComboBox>(*window, QStringLiteral("cboTools")).setCurrentIndex(2);
  EXPECT_EQ(TextOf("optBodyFatCurrentWaist").toStdString(), "Use My Most Recent Measurement of 33 Cm");
  EXPECT_EQ(TextOf("lblBodyFatUOMInches").toStdString(), "Cm");
}

TEST_F(ToolsWindow, PrintsItsPictureAfterAsking) {
  FillProfile();
  Open();
  const QString title = QStringLiteral("Print Results?");
  const QString text = QStringLiteral(
      "Print the currently displayed results to your default printer?\n\nNote: After clicking OK, there will be a "
      "momentary delay while your printer processes the data, and then the page will be printed.  This is completely "
      "normal.");
  session.boxes.Expect(title, text, BoxButton::Cancel);
  Click("cmdPrint");
  EXPECT_TRUE(session.printing.printed.isEmpty());
  session.boxes.Expect(title, text, BoxButton::Ok);
  Click("cmdPrint");
  EXPECT_EQ(session.printing.printed, QStringList{QStringLiteral("picture")});
  session.printing.broken = true;
  session.boxes.Expect(title, text, BoxButton::Ok);
  session.boxes.Expect(
      QStringLiteral("Printer Error"),
      QStringLiteral("An error occurred while printing to your default printer.  Unable to print at this time."));
  Click("cmdPrint");
}

TEST_F(ToolsWindow, TheProgramsEndClosesItAndKeepsThePlan) {
  FillProfile();
  Open();
  Type("txtGoalMethodLbsWeek", "1.5");
  CloseToolsWindow();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Stored("GoalMethodLbsWeek").toStdString(), "1.5");
}

TEST_F(ToolsWindow, HelpFollowsTheTool) {
  FillProfile();
  Open();
  for (int tool = 0; tool < 3; ++tool) {
    Find<QComboBox>(*window, QStringLiteral("cboTools")).setCurrentIndex(tool);
    Click("cmdHelp");
  }
  EXPECT_EQ(opened.join(u',').toStdString(), "help 35,help 63,help 65");
}

}  // namespace
}  // namespace trimlog
