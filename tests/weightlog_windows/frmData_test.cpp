#include "weightlog/windows/frmData.h"

#include "platform/store/recordset.h"
#include "platform/text/text_format.h"
#include "support/test_session.h"
#include "support/windows/controls.h"
#include "weightlog/weight_log.h"
#include "weightlog/windows/fit_label.h"
#include "weightlog/windows/frmReward.h"

namespace trimlog {
namespace {

/// The calendar in a window of its own, in March 2026: the 1st is cell 1, and today.
class Calendar {
 public:
  explicit Calendar(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates)) : session(locale) {
    session->profile.rewards.type = RewardType::Never;
    session->DecimalComma = locale.decimalPoint() == ",";
    FillNutrientDefinitions(session->nutrients, session.Data());
  }

  void Open() {
    form = std::make_unique<frmData>(*session, navigator);
    form->resize(560, 400);
    form->show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    form->Activated();
  }
  template <class Control>
  Control *Find(const char *name) {
    auto *control = form->findChild<Control *>(name);
    EXPECT_NE(control, nullptr) << name;
    return control;
  }
  QLineEdit *Field(int i) { return Find<QLineEdit>(qPrintable(QStringLiteral("txtData(%1)").arg(i))); }
  /// Of a label or a field.
  std::string Text(const char *name) { return Find<QWidget>(name)->property("text").toString().toStdString(); }
  QWidget *Focus() { return QApplication::focusWidget(); }
  void Type(const char *text) { QTest::keyClicks(Focus(), QString::fromUtf8(text)); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Focus(), key, modifiers);
    QApplication::processEvents();
  }
  void Click(QWidget *widget) {
    QTest::mouseClick(widget, Qt::LeftButton);
    QApplication::processEvents();
  }
  std::string Weight(const QDate &date) {
    return session
        .ValueOf("ThisWeight", "weight_loss", QStringLiteral("(PersonID=1) AND (ThisDate=%1)").arg(SQLDate(date)))
        .toStdString();
  }

  TestSession session;
  Navigator navigator;
  std::unique_ptr<frmData> form;
};

const char *const notNumeric = "The weight that you entered is invalid.  Please enter a numeric value for your weight.";

TEST(FrmData, AWeekIsTypedCorrectedAndMovedThroughWithoutTheMouse) {
  Calendar c;
  c.Open();
  ASSERT_EQ(c.Focus(), c.Field(1));
  c.Type("200");
  c.Press(Qt::Key_Tab);
  ASSERT_EQ(c.Focus(), c.Field(2));
  c.Type("199");
  c.Press(Qt::Key_Return);
  ASSERT_EQ(c.Focus(), c.Field(3));
  c.Type("198.5");
  c.Press(Qt::Key_Right);
  ASSERT_EQ(c.Focus(), c.Field(4));
  c.Press(Qt::Key_Up);  // nothing above
  ASSERT_EQ(c.Focus(), c.Field(4));
  c.Type("197");
  c.Press(Qt::Key_Down);
  ASSERT_EQ(c.Focus(), c.Field(11));
  c.Press(Qt::Key_Up, Qt::ControlModifier);
  c.Press(Qt::Key_Left, Qt::AltModifier);
  ASSERT_EQ(c.Focus(), c.Field(3));
  EXPECT_EQ(c.Field(3)->selectedText(), "198.5");  // typing corrects the whole weight
  c.Type("198");
  c.Press(Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_EQ(c.Focus(), c.Field(2));
  EXPECT_EQ(c.Weight(QDate(2026, 3, 3)), "198");
  EXPECT_EQ(c.Text("txtLoss(4)"), "1.0");
  EXPECT_EQ(c.Text("txtTotal(1)"), "3.0");
  EXPECT_EQ(c.Text("txtTotalMonth"), "3.0");
  EXPECT_EQ(c.Text("txtCurrentIndex"), "2");
  EXPECT_EQ(c.session->profile.statistics.LbsLost, "3");
}

TEST(FrmData, ShiftArrowsSelectAndEscapeRestores) {
  Calendar c;
  c.Open();
  c.Type("200");
  c.Press(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(c.Field(1)->selectedText(), "0");
  c.Press(Qt::Key_Tab);
  c.Press(Qt::Key_Left);
  c.Type("7");
  EXPECT_EQ(c.Field(1)->text(), "7");
  c.Press(Qt::Key_Escape);
  EXPECT_EQ(c.Field(1)->text(), "200");
  const qint64 before = c.session.Data().Counts().commits;
  c.Press(Qt::Key_Tab);
  EXPECT_EQ(c.session.Data().Counts().commits, before);
}

TEST(FrmData, AnInvalidWeightHoldsEveryWayOut) {
  Calendar c;
  QString opened;
  c.navigator.OpenQuickJournal = [&](QWidget *) { opened = "journal"; };
  c.Open();
  QLineEdit other;
  const std::vector<std::pair<const char *, std::function<void()>>> waysOut{
      {"Tab", [&] { c.Press(Qt::Key_Tab); }},
      {"Enter", [&] { c.Press(Qt::Key_Return); }},
      {"arrow", [&] { c.Press(Qt::Key_Down); }},
      {"Page Down", [&] { c.Press(Qt::Key_PageDown); }},
      {"click on another day", [&] { c.Click(c.Field(9)); }},
      {"next month", [&] { c.Click(c.Find<QToolButton>("cmdNextMonth")); }},
      {"today", [&] { c.Click(c.Find<QToolButton>("cmdToday")); }},
      {"Quick Journal", [&] { c.Click(c.Find<QToolButton>("cmdDiary")); }},
      {"focus taken elsewhere",
       [&] {
         c.Find<QCheckBox>("chkShowLoss")->setFocus(Qt::MouseFocusReason);
         QApplication::processEvents();
       }},
      {"another window or the program's end",
       [&] {
         EXPECT_EQ(c.form->SaveOpenEdit(), EditOutcome::Refused);
         QApplication::processEvents();
       }},
      {"another form", [&] {
         EXPECT_FALSE(c.form->ValidateFields());
         QApplication::processEvents();
       }}};
  for (const auto &[name, leave] : waysOut) {
    SCOPED_TRACE(name);
    c.Type("12.3.4");
    c.session.boxes.Expect("Invalid Weight", notNumeric);
    leave();
    ASSERT_EQ(c.Focus(), c.Field(1));
    EXPECT_EQ(c.Field(1)->selectedText(), "12.3.4");
    EXPECT_EQ(c.Text("txtMonth"), "March, 2026");
  }
  EXPECT_TRUE(opened.isEmpty());
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "");
  c.Type("190");
  EXPECT_EQ(c.form->SaveOpenEdit(), EditOutcome::Saved);
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "190");
}

TEST(FrmData, TheFocusMaySeeAMenuOrAnotherProgramWithoutSaving) {
  Calendar c;
  c.Open();
  c.Type("abc");
  for (const auto reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::ActiveWindowFocusReason}) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QApplication::sendEvent(c.Field(1), &out);
    QFocusEvent in(QEvent::FocusIn, reason);
    QApplication::sendEvent(c.Field(1), &in);
  }
  EXPECT_EQ(c.Field(1)->text(), "abc");
  c.Press(Qt::Key_Escape);
  EXPECT_EQ(c.Field(1)->text(), QString());
}

TEST(FrmData, SwitchesMonthsAndLeavesNeighboursDaysAlone) {
  Calendar c;
  WeightLog(*c.session).Insert({QDate(2026, 2, 28), 201, 0});
  c.Open();
  c.Type("200");
  c.Click(c.Find<QToolButton>("cmdPrevMonth"));
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "200");
  EXPECT_EQ(c.Text("txtMonth"), "February, 2026");
  ASSERT_EQ(c.Focus(), c.Field(1));
  EXPECT_EQ(c.Text("txtCurrentDate"), ShortDate(QDate(2026, 2, 1), c.session->locale).toStdString());
  EXPECT_EQ(c.Field(29)->text(), "200");  // the 1st of March, to be seen only
  EXPECT_FALSE(c.Field(29)->isEnabled());
  EXPECT_FALSE(c.Field(36)->isVisible());
  c.Click(c.Field(28));
  EXPECT_EQ(c.Field(28)->selectedText(), "201");
  c.Press(Qt::Key_Right);
  ASSERT_EQ(c.Focus(), c.Field(28));
  c.Press(Qt::Key_PageDown);
  c.Press(Qt::Key_PageDown);  // April begins on a Wednesday: its 28th is cell 31
  EXPECT_EQ(c.Text("txtMonth"), "April, 2026");
  ASSERT_EQ(c.Focus(), c.Field(31));
  EXPECT_FALSE(c.Field(3)->isEnabled());
  c.Click(c.Find<QToolButton>("cmdToday"));
  ASSERT_EQ(c.Focus(), c.Field(1));
  EXPECT_EQ(c.session->windows.RememberedDate, QDate(2026, 3, 1));
}

TEST(FrmData, DeletesAWeightAfterAsking) {
  Calendar c;
  WeightLog(*c.session).Insert({QDate(2026, 3, 1), 201, 0});
  WeightLog(*c.session).Insert({QDate(2026, 3, 2), 200, 1});
  c.Open();
  const QString question =
      QStringLiteral("Delete weight recorded for %1?").arg(ShortDate(QDate(2026, 3, 1), c.session->locale));
  c.session.boxes.Expect("Delete Weight?", question, BoxButton::No);
  c.form->Commands()["mnuEditDeleteWeight"]();
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "201");
  c.session.boxes.Expect("Delete Weight?", question, BoxButton::Yes);
  c.form->Commands()["mnuEditDeleteWeight"]();
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "");
  EXPECT_EQ(c.Field(1)->text(), QString());
  EXPECT_EQ(c.Text("txtLoss(2)"), "0.0");
  c.form->Commands()["mnuEditDeleteWeight"]();  // nothing there: nothing asked
}

TEST(FrmData, KeepsTheTypedTextWhenTheFileCannotBeWritten) {
  Calendar c;
  c.Open();
  c.session->database.reset();
  c.session->database = Database::OpenReadOnly(c.session->DataFilePath());
  c.Type("195.5");
  c.session.boxes.Expect("Error Saving Data", "An error occurred while saving your data");
  c.Press(Qt::Key_Tab);
  ASSERT_EQ(c.Focus(), c.Field(1));
  EXPECT_EQ(c.Field(1)->text(), "195.5");
  c.session.boxes.Expect("Error Saving Data", {});
  EXPECT_EQ(c.form->SaveOpenEdit(), EditOutcome::Failed);
  QApplication::processEvents();
  c.form->DropOpenEdit();
  EXPECT_EQ(c.Field(1)->text(), QString());
  EXPECT_EQ(c.form->SaveOpenEdit(), EditOutcome::Saved) << "nothing is left to save";
  c.Type("195.5");
  c.session->database.reset();
  c.session->database = Database::Open(c.session->DataFilePath());
  c.Press(Qt::Key_Tab);
  ASSERT_EQ(c.Focus(), c.Field(2));
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "195.5");
}

TEST(FrmData, TypesTheDecimalCommaFromTheKeypad) {
  Calendar c(QLocale(QLocale::German, QLocale::Germany));
  c.Open();
  c.Type("93");
  QTest::keyClick(c.Focus(), Qt::Key_Period, Qt::KeypadModifier);
  c.Type("5");
  EXPECT_EQ(c.Field(1)->text(), "93,5");
  c.Press(Qt::Key_Tab);
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "93.5");
  EXPECT_EQ(c.Field(1)->text(), "93,5");
}

TEST(FrmData, StoresWhatIsShownAtOnce) {
  Calendar c;
  c.Open();
  const auto stored = [&](const char *name) {
    return c.session->store.GetSettingString(settingsRoot, name).toStdString();
  };
  EXPECT_FALSE(c.Find<QLabel>("txtLoss(3)")->isVisible());
  c.Find<QCheckBox>("chkShowLoss")->click();
  EXPECT_TRUE(c.Find<QLabel>("txtLoss(3)")->isVisible());
  EXPECT_EQ(stored("ShowLoss"), "-1");
  c.Find<QCheckBox>("chkShowCalories")->click();
  EXPECT_FALSE(c.Find<QLabel>("txtCalories(3)")->isVisible());
  EXPECT_EQ(stored("ShowCalories"), "0");
  auto *cboNutrientID = c.Find<QComboBox>("cboNutrientID");
  EXPECT_EQ(cboNutrientID->currentText(), "Net Calories (kcal)");
  cboNutrientID->setFocus();
  QTest::keyClick(cboNutrientID, Qt::Key_Up);
  EXPECT_EQ(stored("NutrientID"), "101");
}

// What the window announces itself must not make it read the month again: the next loss would lose its second decimal,
// and every typed weight would cost another month.
TEST(FrmData, ShowsWhatTypingAWeightComputed) {
  Calendar c;
  c.session->settings.UomID = 2;
  c.session->settings.ShowLoss = true;
  WeightLog(*c.session).Insert({QDate(2026, 2, 28), 90, 0});
  WeightLog(*c.session).Insert({QDate(2026, 3, 3), 88, 2});
  c.Open();
  c.Type("89.35");
  c.Press(Qt::Key_Tab);
  EXPECT_EQ(c.Text("txtLoss(1)"), "0.7");
  EXPECT_EQ(c.Text("txtLoss(3)"), "1.35");
  EXPECT_EQ(c.Text("txtTotal(1)"), "2.05");
  EXPECT_EQ(c.Text("txtTotalMonth"), "2.05");
}

TEST(FrmData, FollowsWhatOthersChangeAndKeepsWhatIsBeingTyped) {
  Calendar c;
  c.Open();
  c.Type("19");
  WeightLog(*c.session).Insert({QDate(2026, 3, 5), 190, -4});
  c.session->settings.LossFactor = -1;
  c.session->settings.ShowLoss = true;
  c.session.Announce({.table = Table::WeightLoss, .personID = "1", .date = QDate(2026, 3, 5)});
  c.session->changes.AnnounceSettings();
  EXPECT_EQ(c.Field(5)->text(), "190");
  EXPECT_EQ(c.Text("txtLoss(5)"), "4.0");
  EXPECT_TRUE(c.Find<QCheckBox>("chkShowLoss")->isChecked());
  EXPECT_EQ(c.Field(1)->text(), "19");
  c.Type("5");
  c.Press(Qt::Key_Tab);
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "195");
}

TEST(FrmData, CongratulatesOnceTheWeightIsSaved) {
  Calendar c;
  WeightLog(*c.session).Insert({QDate(2026, 2, 28), 201, 0});
  c.session->profile.rewards = {RewardType::Daily, 1, "Well done", "/tada.wav"};
  c.Open();
  c.Type("199");
  bool seen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto *reward = qobject_cast<frmReward *>(QApplication::activeModalWidget());
    if (!reward || c.session.machine.played.isEmpty()) return;  // nor before its sound
    look.stop();
    seen = true;
    EXPECT_EQ(reward->windowTitle(), "Daily Reward");
    EXPECT_EQ(reward->findChild<QLabel *>("lblRewardLost")->text(),
              "You have lost 2 pounds since you last weighed-in!");
    EXPECT_EQ(reward->findChild<QLabel *>("lblRewardMessage")->text(), "Well done");
    EXPECT_EQ(reward->findChild<QLabel *>("lblPersonName")->text(), "Test Person");
    EXPECT_EQ(reward->findChild<QLabel *>("lblLbsLeft")->text(), "49 pounds to go!");
    QTest::keyClick(reward, Qt::Key_Escape);
  });
  look.start();
  QTest::keyClick(c.Focus(), Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([&] { return seen && !QApplication::activeModalWidget(); }, patience));
  EXPECT_EQ(c.session.machine.played, QStringList("/tada.wav"));
  c.form->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(c.form.get()));
  ASSERT_EQ(c.Focus(), c.Field(2));

  c.Type("190");
  c.session->windows.SuppressReward = true;  // a navigation button was pressed
  EXPECT_EQ(c.form->SaveOpenEdit(), EditOutcome::Saved);
  QCoreApplication::processEvents();  // in which the reward would come
  QCoreApplication::processEvents();  // and its sound
  EXPECT_EQ(c.session.machine.played.size(), 1);
}

TEST(FrmData, ARewardComesBeforeTheQuestionOfWhatWasChosenNext) {
  Calendar c;
  WeightLog(*c.session).Insert({QDate(2026, 2, 28), 201, 0});
  c.session->profile.rewards = {RewardType::Daily, 1, "Well done", {}};
  c.Open();
  c.Type("199");
  bool seen = false;
  QTimer::singleShot(0, c.form.get(), [&] {
    auto *reward = qobject_cast<frmReward *>(QApplication::activeModalWidget());
    ASSERT_NE(reward, nullptr);
    seen = c.session.boxes.Shown().empty();
    reward->close();
  });
  c.session.boxes.Expect("Print Window?", {}, BoxButton::No);
  c.form->Commands()["mnuFilePrint"]();
  EXPECT_TRUE(seen);
}

TEST(FrmData, SaysWhatToDoUntilTheFirstWeightIsThere) {
  Calendar c;
  c.Open();
  EXPECT_TRUE(c.Find<QLabel>("lblNewcomer")->isVisible());
  const auto totals = [&c](bool shown) {
    for (const char *name : {"txtTotal(1)", "txtTotalMonth", "lblTotal2"}) {
      EXPECT_EQ(c.Find<QWidget>(name)->isVisible(), shown) << name;
    }
  };
  totals(false);
  c.Type("200");
  c.Press(Qt::Key_Tab);
  EXPECT_FALSE(c.Find<QLabel>("lblNewcomer")->isVisible());
  totals(true);
  EXPECT_EQ(c.Text("txtTotalMonth"), "0.0");
}

/// Calls back when the focus comes to a field: what a screen reader would ask then.
class FocusWatch : public QObject {
 public:
  FocusWatch(QObject *field, std::function<void()> arrived) : arrived_(std::move(arrived)) {
    field->installEventFilter(this);
  }
  bool eventFilter(QObject *, QEvent *event) override {
    if (event->type() == QEvent::FocusIn) arrived_();
    return false;
  }

 private:
  std::function<void()> arrived_;
};

TEST(FrmData, AMonthMoveIsHeardAsNamesFocusAndFigures) {
  Calendar c;
  WeightLog(*c.session).Insert({QDate(2026, 2, 28), 201, 0});
  WeightLog(*c.session).Insert({QDate(2026, 4, 2), 199, 2});
  c.Open();
  QString last, later;
  const FocusWatch watch(c.Field(4), [&] {
    last = c.Field(42)->accessibleName();
    later = c.Field(5)->text();
  });
  c.Press(Qt::Key_PageDown);
  ASSERT_EQ(c.Focus(), c.Field(4));
  EXPECT_EQ(last, "Weight for Saturday, 5/9/2026") << "all names stand before the focus comes";
  EXPECT_EQ(later, QString()) << "the figures follow";
  EXPECT_EQ(c.Field(5)->text(), "199");
  EXPECT_EQ(c.Field(4)->accessibleName(), "Weight for Wednesday, 4/1/2026");
  EXPECT_EQ(c.Find<QWidget>("txtTotal(1)")->accessibleName(), "Loss in the week from 3/29/2026 to 4/4/2026");
  EXPECT_EQ(c.Find<QWidget>("txtTotalMonth")->accessibleName(), "Loss in April, 2026");
}

// The text of the month before must not pass for something typed into the day of the new one.
TEST(FrmData, AMonthMoveShowsTheWeightOfTheDayItLandsOn) {
  Calendar c;
  WeightLog(*c.session).Insert({QDate(2026, 3, 1), 200, 0});
  WeightLog(*c.session).Insert({QDate(2026, 2, 1), 201, 0});
  c.Open();
  c.Press(Qt::Key_PageUp);
  ASSERT_EQ(c.Focus(), c.Field(1));
  EXPECT_EQ(c.Field(1)->selectedText(), "201");
  const qint64 before = c.session.Data().Counts().commits;
  c.Press(Qt::Key_PageDown);
  EXPECT_EQ(c.Field(1)->selectedText(), "200");
  EXPECT_EQ(c.session.Data().Counts().commits, before);
  c.Find<QCheckBox>("chkShowLoss")->setFocus();
  c.Click(c.Find<QToolButton>("cmdPrevMonth"));
  EXPECT_EQ(c.Field(1)->text(), "201") << "also when the focus is in no day";
}

TEST(FrmData, FiguresExplainThemselvesAndCarryTheirColours) {
  Calendar c;
  c.session->settings.ShowLoss = true;
  c.session->settings.NetCaloriesBMR = false;
  WeightLog(*c.session).Insert({QDate(2026, 3, 1), 200, 0});
  WeightLog(*c.session).Insert({QDate(2026, 3, 2), 199, 1});
  WeightLog(*c.session).Insert({QDate(2026, 3, 3), 201.5, -2.5});
  c.session.Data().Execute(
      "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, IsPlanned ) "
      "SELECT 1, 1, #3/2/2026#, 1, 1, \"1\", 500, 0;");
  c.Open();
  EXPECT_EQ(c.Find<QLabel>("txtCalories(2)")->toolTip(), "500 eaten - 0 burned = 500 Cal");
  EXPECT_EQ(c.Field(2)->accessibleDescription(), "Lost 1.0. Net Calories (kcal): 500 eaten - 0 burned = 500 Cal");
  const auto colour = [&c](const char *name) { return c.Find<QLabel>(name)->palette().color(QPalette::WindowText); };
  EXPECT_EQ(colour("txtLoss(2)"), QColor(0, 128, 0));
  EXPECT_EQ(colour("txtLoss(3)"), QColor(255, 0, 0));
  EXPECT_EQ(c.Find<QLineEdit>("txtTotal(1)")->palette().color(QPalette::Text), QColor(255, 0, 0));
  EXPECT_EQ(c.Find<QLineEdit>("txtTotalMonth")->palette().color(QPalette::Text), QColor(255, 0, 0));
  auto *figures = c.Find<QComboBox>("cboNutrientID");
  figures->setFocus();
  QTest::keyClick(figures, Qt::Key_Up);
  EXPECT_EQ(c.Text("txtCalories(2)"), "") << "nothing burned on that day";
}

TEST(FrmData, WeightsGrowWithTheirCellsAndStayUncut) {
  Calendar c;
  c.Open();
  c.Type("1234.56");
  const auto fits = [&c] { return c.Field(1)->fontMetrics().horizontalAdvance("1234.56") <= c.Field(1)->width() - 4; };
  EXPECT_TRUE(fits());
  c.Press(Qt::Key_Tab);
  const double before = c.Field(1)->font().pointSizeF();
  c.form->resize(1500, 1000);
  QApplication::processEvents();
  EXPECT_TRUE(fits());
  EXPECT_GT(c.Field(1)->font().pointSizeF(), 1.8 * before);
  EXPECT_GT(c.Find<FitLabel>("txtDateGrid(1)")->DrawnFont().pointSizeF(), 1.4 * before * 0.75);
  const auto centre = [&c](const char *name) {
    const auto *widget = c.Find<QWidget>(name);
    return widget->mapTo(c.form.get(), widget->rect().center()).x();
  };
  EXPECT_NEAR(centre("txtTotalMonth"), centre("txtTotal(1)"), 2) << "the month's total stands under its column";
}

TEST(FrmData, TheWeeksOfEveryMonthShareTheWholeGrid) {
  Calendar c;
  c.Open();
  // From March 2026 with five weeks back to February with four, and on to May with six.
  for (const int months : {0, -1, 3}) {
    for (int step = 0; step < std::abs(months); ++step)
      c.Click(c.Find<QToolButton>(months < 0 ? "cmdPrevMonth" : "cmdNextMonth"));
    const QWidget *last = nullptr;
    for (int i = 1; i <= 42; ++i) {
      const QWidget *cell = c.Field(i)->parentWidget();
      if (cell->isVisible()) last = cell;
    }
    ASSERT_TRUE(last);
    EXPECT_NEAR(last->geometry().bottom(), last->parentWidget()->rect().bottom(), 2) << months;
  }
}

TEST(FrmData, IsPrintedWithoutColoursAndButtonsAndComesBackAsItWas) {
  Calendar c;
  c.Open();
  c.Type("200");
  const QImage before = c.form->grab().toImage();
  c.form->PrepareForPrinting(true);
  const QImage paper = c.form->grab().toImage();
  EXPECT_FALSE(c.Find<QToolButton>("cmdToday")->isVisible());
  EXPECT_FALSE(c.Find<QComboBox>("cboNutrientID")->isVisible());
  EXPECT_EQ(paper.pixelColor(c.Find<QWidget>("lblMonth")->mapTo(c.form.get(), QPoint(1, 1))), QColor(Qt::white));
  EXPECT_EQ(paper.pixelColor(c.Find<QWidget>("lblGrid(1)")->mapTo(c.form.get(), QPoint(1, 6))), QColor(Qt::white));
  c.form->PrepareForPrinting(false);
  EXPECT_TRUE(c.Find<QToolButton>("cmdToday")->isVisible());
  EXPECT_EQ(c.Field(1)->text(), "200");
  c.Type("5");
  EXPECT_EQ(c.Field(1)->text(), "2005");

  const QString question =
      "This will print the current calendar month to your default printer.  Would you like to continue?";
  c.session.boxes.Expect("Print Window?", question, BoxButton::No);
  c.form->Commands()["mnuFilePrint"]();
  EXPECT_EQ(c.Weight(QDate(2026, 3, 1)), "2005");  // what is printed is saved
  EXPECT_EQ(before.size(), c.form->grab().size());
}

TEST(FrmData, OffersACustomNutrientUnderTheNameItWasGiven) {
  Calendar c;
  c.Open();
  auto *figures = c.Find<QComboBox>("cboNutrientID");
  const int chosen = figures->currentData().toInt();
  c.session->nutrients.SelectedNutrients[0] = {nutrient_id::firstCustom, "Caffeine", true, {}};
  c.session.Announce({.table = Table::SelectedNutrients});
  EXPECT_EQ(figures->itemText(figures->findData(nutrient_id::firstCustom)), "Caffeine");
  EXPECT_EQ(figures->currentData().toInt(), chosen);
}

TEST(FrmData, ShowsEverythingUncutAtItsSmallestSize) {
  Calendar c;
  WeightLog(*c.session).Insert({QDate(2026, 3, 1), 188.88, 0});
  c.session->settings.ShowLoss = true;
  c.Open();
  c.form->resize(c.form->minimumSizeHint());
  QApplication::processEvents();
  for (const char *name : {"txtLoss(1)", "txtCalories(1)", "txtDateGrid(1)", "txtMonth"}) {
    const auto *label = c.Find<FitLabel>(name);
    EXPECT_GE(label->height(), QFontMetrics(label->DrawnFont()).height()) << name;
    EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry())) << name;
    EXPECT_FALSE(label->geometry().intersects(c.Field(1)->geometry()) && label->parent() == c.Field(1)->parent())
        << name;
  }
  EXPECT_GE(c.Field(1)->height(), c.Field(1)->fontMetrics().height());
  EXPECT_GE(c.Field(1)->width(), c.Field(1)->fontMetrics().horizontalAdvance("188.88"));
}

}  // namespace
}  // namespace trimlog
