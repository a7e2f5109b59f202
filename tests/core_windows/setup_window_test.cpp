#include "core/profiles/profiles.h"
#include "core/windows/controls/choice_combo.h"
#include "core/windows/controls/colour_combo.h"
#include "core/windows/setup/frmSetup.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/heard_changes.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class SetupWindow : public ::testing::Test {
 protected:
  SetupWindow() {
    navigator.LoadData = [this](const QString &personID) {
      loaded.append(personID);
      if (!refused.contains(personID)) ApplyProfile(*session, {}, personID);
    };
    navigator.ResetMainWindow = [this] { ++framesReset; };
  }

  frmSetup &Open(SetupTab tab) {
    window = std::make_unique<frmSetup>(*session, navigator, QList<SetupPageMaker>(), nullptr);
    window->ShowTab(tab);
    window->show();
    return *window;
  }
  template <typename Control>
  Control &The(const QString &name) {
    return Find<Control>(*window, name);
  }
  void Click(const QString &name) {
    auto &button = The<QAbstractButton>(name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(5, button.height() / 2));
  }
  void Press(const char *name) { QTest::mouseClick(&The<QPushButton>(name), Qt::LeftButton); }
  std::string Stored(const QString &valueName) {
    return session.store->GetSettingString(settingsRoot, valueName).toStdString();
  }
  QMap<QString, QString> AllStored() {
    QMap<QString, QString> all;
    for (const SettingRow &row : SettingRows()) {
      all.insert(row.name, session.store->GetSettingString(settingsRoot, row.name));
    }
    return all;
  }
  std::string Person(const char *field, int personID) {
    return session.ValueOf(field, "people", QStringLiteral("PersonID=%1").arg(personID)).toStdString();
  }
  /// Types into a cell of the current row and leaves the cell.
  void TypeCell(const char *column, const QString &text) {
    auto &grid = The<BoundGrid>("grdPeople");
    const int place = grid.Model().ColumnByName(column);
    grid.setCurrentIndex(grid.Model().index(grid.currentIndex().row(), place));
    QTest::keyClick(&grid, Qt::Key_F2);
    auto *editor = grid.viewport()->findChild<QLineEdit *>();
    ASSERT_TRUE(editor);
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  TestSession session;
  Navigator navigator;
  QStringList loaded;
  QStringList refused;  ///< profiles whose password is not given
  int framesReset = 0;
  std::unique_ptr<frmSetup> window;
};

// Each control is tried alone, so that one wired to another's setting shows.
TEST_F(SetupWindow, EveryTickLoadsAndStoresItsOwnSetting) {
  std::vector<std::pair<SetupTab, QString>> ticks = {{SetupTab::Other, "ShowSplash"}};
  for (const char *name : {"OpenToday", "ShowLoss", "ColorCoding", "ShowCalories"}) {
    ticks.push_back({SetupTab::Calendar, name});
  }
  for (const char *name : {"ConfirmDeletes", "SmartDates", "BodyFat", "NetCaloriesBMR"}) {
    ticks.push_back({SetupTab::Journal, name});
  }
  for (int chart = 1; chart <= 4; ++chart) {
    for (const char *name : {"ShowGridlines", "ShowDataLabels", "PlotPoints"}) {
      ticks.push_back({SetupTab::Charts, name + QString::number(chart)});
    }
  }
  for (const auto &[tab, name] : ticks) {
    SCOPED_TRACE(name.toStdString());
    const QString control =
        tab == SetupTab::Charts ? QStringLiteral("chk%1(%2)").arg(name.chopped(1), name.right(1)) : "chk" + name;
    const QMap<QString, QString> before = AllStored();
    QMap<QString, QString> expected = before;
    for (const char *leave : {"cmdCancel", "cmdOK"}) {
      Open(tab);
      EXPECT_EQ(The<QCheckBox>(control).isChecked(), before[name] == "-1");
      Click(control);
      if (QString(leave) == "cmdOK") expected[name] = before[name] == "-1" ? "0" : "-1";
      Press(leave);
      EXPECT_FALSE(window->isVisible());
      EXPECT_EQ(AllStored(), expected);
      EXPECT_EQ(StoredValue(session->settings, name), expected[name]);
    }
  }
}

TEST_F(SetupWindow, EveryChoiceStoresItsOwnSetting) {
  struct Case {
    SetupTab tab;
    QString control;
    QString entry;  // "" for an option button
    QString valueName, stored;
  };
  QList<Case> cases = {{SetupTab::Calendar, "cboNutrientID", "Protein (g)", "NutrientID", "4"},
                       {SetupTab::Calendar, "cboNutrientID", "Calories Burned (kcal)", "NutrientID", "101"},
                       {SetupTab::Calendar, "cboUomID", "Metric (Kilograms and Meters)", "UomID", "2"},
                       {SetupTab::Journal, "cboDefaultDiaryTab", "Body Measurements", "DefaultDiaryTab", "3"}};
  for (int chart = 1; chart <= 4; ++chart) {
    const QString of = QStringLiteral("(%1)").arg(chart);
    const QString n = QString::number(chart);
    cases.append({SetupTab::Charts, "cboLineWidth" + of, "Huge", "LineWidth" + n, "8"});
    cases.append({SetupTab::Charts, "cboLineColor" + of, "Red", "LineColor" + n, "255"});
    cases.append({SetupTab::Charts, "cboPointColor" + of, "Green", "PointColor" + n, QString::number(0x00C000)});
  }
  for (int type = 8; type >= 1; --type) {
    cases.append({SetupTab::Charts,
                  QStringLiteral("optBodyType(%1)").arg(type - 1),
                  {},
                  "BodyMeasDefault",
                  QString::number(type)});
  }
  for (int answer = 0; answer <= 2; ++answer) {
    const QString n = QString::number(answer);
    cases.append({SetupTab::Journal, "optConfirmMealUpdates" + n, {}, "ConfirmMealsUpdates", n});
    cases.append({SetupTab::Journal, "optConfirmExerciseUpdates" + n, {}, "ConfirmExerciseUpdates", n});
  }
  for (const Case &row : cases) {
    SCOPED_TRACE(row.control.toStdString());
    QMap<QString, QString> expected = AllStored();
    Open(row.tab);
    if (row.entry.isEmpty()) {
      Click(row.control);
    } else {
      auto &list = The<QComboBox>(row.control);
      ASSERT_GE(list.findText(row.entry), 0);
      list.setCurrentIndex(list.findText(row.entry));
    }
    Press("cmdOK");
    expected[row.valueName] = row.stored;
    EXPECT_EQ(AllStored(), expected);

    Open(row.tab);  // and what was stored is what the next visit shows
    if (row.entry.isEmpty()) {
      EXPECT_TRUE(The<QRadioButton>(row.control).isChecked());
    } else {
      EXPECT_EQ(The<QComboBox>(row.control).currentText(), row.entry);
    }
    Press("cmdCancel");
  }
}

TEST_F(SetupWindow, ValuesThatNoListKnowsSurviveOk) {
  session->settings.LineWidth[0] = 15;
  session->settings.LineColor[1] = 0x123456;
  Open(SetupTab::Charts);
  Press("cmdOK");
  EXPECT_EQ(session->settings.LineWidth[0], 15);
  EXPECT_EQ(session->settings.LineColor[1], 0x123456);
}

TEST_F(SetupWindow, TheCalendarsLastNutrientIsReadFromTheStore) {
  session.store->SaveSettingString(settingsRoot, "NutrientID", "5");
  Open(SetupTab::Calendar);
  EXPECT_EQ(The<ChoiceCombo>("cboNutrientID").ChosenValue(), 5);
}

TEST_F(SetupWindow, AnotherUnitSystemRenamesTheProfileColumnsAtOnce) {
  Open(SetupTab::Calendar);
  const auto caption = [this](const char *column) {
    const GridModel &model = The<BoundGrid>("grdPeople").Model();
    return model.headerData(model.ColumnByName(column), Qt::Horizontal).toString().toStdString();
  };
  EXPECT_EQ(caption("Goal"), "Goal (lbs.)");
  The<ChoiceCombo>("cboUomID").SetValue(2);
  EXPECT_EQ(caption("Goal"), "Goal (kg.)");
  EXPECT_EQ(caption("HeightFeet"), "Ht (m.)");
  EXPECT_EQ(caption("HeightInches"), "Ht (cm.)");
  Press("cmdOK");
  EXPECT_EQ(session->UomDisplay, "Kg");
  EXPECT_EQ(Person("Goal", 1), "150") << "nothing stored is converted";
}

TEST_F(SetupWindow, AProfileIsChangedInPlaceAndCancelKeepsIt) {
  session.AddProfile(2, "Ann");
  HeardChanges heard(*session);
  Open(SetupTab::Profiles);
  auto &grid = The<BoundGrid>("grdPeople");
  EXPECT_EQ(grid.CurrentKey(), 1) << "the loaded profile is the current row";
  TypeCell("PersonName", "O'Brien \"Bob\"");
  TypeCell("Goal", "142.5");
  EXPECT_TRUE(grid.CommitRow());
  Press("cmdCancel");
  EXPECT_EQ(Person("PersonName", 1), "O'Brien \"Bob\"");
  EXPECT_EQ(Person("Goal", 1), "142.5");
  EXPECT_EQ(Person("PersonName", 2), "Ann");
  EXPECT_EQ(heard.Take(), "people 1");
}

TEST_F(SetupWindow, TheGenderIsChosenFromItsList) {
  Open(SetupTab::Profiles);
  auto &grid = The<BoundGrid>("grdPeople");
  grid.setCurrentIndex(grid.Model().index(0, grid.Model().ColumnByName("Gender")));
  EXPECT_EQ(grid.currentIndex().data().toString(), "Female");
  QTest::keyClick(&grid, Qt::Key_F2);
  QTest::keyClick(&The<QComboBox>("ddnGenders"), Qt::Key_Up);
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(Person("GenderID", 1), "1");
}

TEST_F(SetupWindow, RefusedValuesStayInViewAndKeepTheWindowOpen) {
  struct Case {
    const char *column, *typed, *sentence;
  };
  for (const Case &row : {Case{"BirthDate", "4/1/2026", "Please enter a birth date that is not in the future."},
                          {"BirthDate", "1/1/1800", "Please enter a valid birth date."},
                          {"BirthDate", "yesterday", ""},
                          {"HeightFeet", "-1", "Please enter a valid height."},
                          {"HeightFeet", "170", "Please enter a valid height."},
                          {"Goal", "1e300", "Please enter a numeric value for your goal."},
                          {"HeightInches", "tall", ""}}) {
    SCOPED_TRACE(row.typed);
    const std::string before = Person(row.column, 1);
    Open(SetupTab::Profiles);
    TypeCell(row.column, row.typed);
    session.boxes.Expect("Invalid Profile", row.sentence);
    Press("cmdOK");
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(session.boxes.Shown().back().text.isEmpty());
    auto &grid = The<BoundGrid>("grdPeople");
    const int column = grid.Model().ColumnByName(row.column);
    const QModelIndex cell = grid.Model().index(grid.currentIndex().row(), column);
    EXPECT_EQ(cell.data().toString().toDouble(), QString::fromLatin1(row.typed).toDouble());
    EXPECT_FALSE(cell.data(GridModel::SentenceRole).toString().isEmpty());
    Press("cmdCancel");
    EXPECT_EQ(Person(row.column, 1), before);
  }
}

TEST_F(SetupWindow, AnInvalidGoalIsAskedAboutBeforeTheWindowIsLeft) {
  const QString title = "Invalid Goal";
  const QString text = "The goal that you entered is invalid.  Are you sure that you want to continue?";
  for (const char *goal : {"0", "-3", "abc"}) {
    SCOPED_TRACE(goal);
    session.Data().Execute("UPDATE people SET Goal=\"150\" WHERE PersonID=1;");
    Open(SetupTab::Profiles);
    TypeCell("Goal", goal);
    window->ShowTab(SetupTab::Journal);
    session.boxes.Expect(title, text, BoxButton::No);
    Press("cmdOK");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(The<QTabWidget>("SSTab1").currentIndex(), 0) << "the field comes into view";
    session.boxes.Expect(title, text, BoxButton::Yes);
    Press("cmdOK");
    EXPECT_FALSE(window->isVisible());
  }
}

TEST_F(SetupWindow, DeletingAsksInItsOwnWordsAndStandsOnWhatIsLeft) {
  session.AddProfile(2, "Ann");
  session.AddProfile(3, "Bob");
  session.AddProfile(4, "Cid");
  session.Weigh(QDate(2026, 2, 1), 180);
  const QString title = "Warning: Delete Profile?";
  const QString one =
      "When you delete this profile from the list, all data and journal entries for this profile will also be deleted. "
      " "
      "Are you sure you want to continue?";
  const QString several =
      "When you delete these profiles from the list, all data and journal entries for these profiles will also be "
      "deleted.  Are you sure you want to continue?";
  Open(SetupTab::Profiles);
  auto &grid = The<BoundGrid>("grdPeople");
  session.boxes.Expect(title, one, BoxButton::No);
  Press("cmdDeleteProfile");
  EXPECT_EQ(Person("PersonName", 1), "Test Person");

  session.boxes.Expect(title, one, BoxButton::Yes);
  refused = {"2"};  // Ann has a password and nobody gives it
  Press("cmdDeleteProfile");
  EXPECT_EQ(Person("PersonName", 1), "");
  EXPECT_EQ(session.ValueOf("ThisWeight", "weight_loss", "PersonID=1"), "");
  EXPECT_EQ(loaded.join(u' ').toStdString(), "2 -2");
  EXPECT_EQ(session->profile.CurrentPersonID, "-2");

  loaded.clear();
  grid.MarkRows({3, 4});
  session.boxes.Expect(title, several, BoxButton::Yes);
  Press("cmdDeleteProfile");
  EXPECT_EQ(Person("PersonName", 3) + Person("PersonName", 4), "");
  EXPECT_EQ(Person("PersonName", 2), "Ann");
  EXPECT_TRUE(loaded.isEmpty()) << "a sample is loaded and still there";
  session.boxes.Expect(title, one, BoxButton::Yes);
  grid.GoToKey(2);
  Press("cmdDeleteProfile");
  EXPECT_FALSE(The<QPushButton>("cmdDeleteProfile").isEnabled());
  EXPECT_FALSE(The<QPushButton>("cmdPassword").isEnabled());
  Press("cmdOK");  // no profile, no goal to ask about
  EXPECT_FALSE(window->isVisible());
}

TEST_F(SetupWindow, NewProfileIsThereOnlyWithItsDoor) {
  Open(SetupTab::Profiles);
  EXPECT_FALSE(The<QPushButton>("cmdNewProfile").isEnabled());
  navigator.CreateProfile = [this](QWidget *owner) {
    EXPECT_TRUE(owner);
    session.AddProfile(8, "Zoe");
    session.Announce({.table = Table::People, .keys = {8}});
    return true;
  };
  Open(SetupTab::Profiles);
  Press("cmdNewProfile");
  EXPECT_EQ(The<BoundGrid>("grdPeople").Model().RecordCount(), 2);
  EXPECT_EQ(The<BoundGrid>("grdPeopleColors").Model().RecordCount(), 2);
}

TEST_F(SetupWindow, AColourIsStoredForTheProfileOfTheRow) {
  session.AddProfile(2, "Ann");
  Open(SetupTab::Colors);
  auto &list = The<ColourCombo>("cboBackColor");
  EXPECT_EQ(list.Colour(), 0xFFE0C0u);
  The<BoundGrid>("grdPeopleColors").GoToKey(2);
  session.boxes.Expect("Color Scheme Changed.", "the next time you log on.");
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(Person("BackColor", 2), std::to_string(0xE0FFFF));
  EXPECT_EQ(Person("BackColor", 1), "");
  EXPECT_EQ(The<BoundGrid>("grdPeopleColors").CurrentKey(), 2);
  session.machine.colors = 256;
  session.boxes.Expect("Color Scheme Changed.", "the next time you log on.");
  Press("cmdResetBackColor");
  EXPECT_EQ(Person("BackColor", 2), std::to_string(0xC0FFFF));
  EXPECT_EQ(list.Colour(), 0xC0FFFFu);
}

TEST_F(SetupWindow, TheSignOfLossesIsStoredAtOnce) {
  Open(SetupTab::Colors);
  EXPECT_TRUE(The<QRadioButton>("optShowPositive").isChecked());
  Click("optShowNegative");
  EXPECT_EQ(Stored("LossFactor"), "-1");
  Press("cmdCancel");
  EXPECT_EQ(session->settings.LossFactor, -1);
  Open(SetupTab::Colors);
  EXPECT_TRUE(The<QRadioButton>("optShowNegative").isChecked());
  EXPECT_EQ(The<QLabel>("lblLossFactorNote").text(),
            "This setting affects the calendar, weekly loss, monthly loss, and charts.");
  Click("optShowPositive");
  Press("cmdOK");
  EXPECT_EQ(Stored("LossFactor"), "1") << "OK keeps what the option stored";
}

TEST_F(SetupWindow, TabGoesThroughThePageBeforeOk) {
  for (const SetupTab tab : {SetupTab::Calendar, SetupTab::Charts, SetupTab::Colors, SetupTab::Journal}) {
    Open(tab);
    QApplication::setActiveWindow(window.get());
    The<QTabWidget>("SSTab1").tabBar()->setFocus();
    QStringList visited;
    while (visited.size() < 60 && !visited.contains("cmdCancel")) {
      QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
      visited.append(window->focusWidget()->objectName());
    }
    EXPECT_GE(visited.size(), 5) << visited.join(u' ').toStdString();
    EXPECT_EQ(visited.mid(visited.size() - 2).join(u' ').toStdString(), "cmdOK cmdCancel");
  }
}

TEST_F(SetupWindow, EachFailedCommandSaysSoAndIsLogged) {
  const auto expect = [this](const char *title, const char *text) { session.boxes.Expect(title, text); };
  session.AddProfile(2, "Ann");
  Open(SetupTab::Profiles);
  TypeCell("PersonName", "Bo");
  session.Data().Execute("ALTER TABLE people RENAME COLUMN PersonName TO Hidden;");
  expect("Error Saving Data", "An error occurred while saving the profile.  ");
  EXPECT_FALSE(The<BoundGrid>("grdPeople").CommitRow());
  session.Data().Execute("ALTER TABLE people RENAME COLUMN Hidden TO PersonName;");
  The<BoundGrid>("grdPeople").UndoRow();
  The<BoundGrid>("grdPeople").GoToKey(2);
  session.Data().Execute("CREATE TABLE kept ( PersonID LONG REFERENCES people ( PersonID ) );");
  session.Data().Execute("INSERT INTO kept ( PersonID ) VALUES ( 2 );");
  session.boxes.Expect("Warning: Delete Profile?", "", BoxButton::Yes);
  expect("Error Deleting Profile", "An error occurred while deleting the profile.  ");
  Press("cmdDeleteProfile");
  EXPECT_EQ(Person("PersonName", 2), "Ann");
  window.reset();
  session.Data().Execute("ALTER TABLE people RENAME TO gone;");
  for (int grids = 0; grids < 2; ++grids) {
    expect("Error Loading Setup Info", "An error occurred while loading your setup information.");
  }
  Open(SetupTab::Profiles);
  for (const char *procedure : {"grdPeople_AfterUpdate", "cmdDeleteProfile_Click", "Form_Load"}) {
    EXPECT_TRUE(session.Logged(QStringLiteral("frmSetup, ") + procedure)) << procedure;
  }
}

TEST_F(SetupWindow, WindowsGoBackToTheirPlace) {
  Open(SetupTab::Other);
  Press("cmdResetMain");
  EXPECT_EQ(framesReset, 1);
  Press("cmdResetQJ");
  EXPECT_EQ(Stored("QDWidth"), "8235");
  EXPECT_EQ(Stored("QDHeight"), "2760");
}

}  // namespace
}  // namespace trimlog
