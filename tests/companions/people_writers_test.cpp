#include <gtest/gtest.h>

#include "companions/wizard_finish.h"
#include "companions/wizard_nutrients.h"
#include "core/profiles/colour_scheme.h"
#include "core/profiles/goal.h"
#include "core/profiles/passwords.h"
#include "core/profiles/profiles.h"
#include "core/session/change.h"
#include "core/settings/options.h"
#include "support/test_session.h"
#include "tools/tools_profile.h"
#include "weightlog/reward_form.h"
#include "weightlog/weight_statistics.h"

namespace trimlog {
namespace {

/// What is announced while a test acts: "people 1", "weight_loss of 1", "settings".
class Listener {
 public:
  explicit Listener(Session &session) {
    QObject::connect(&session.changes, &DataChanges::Changed, &here_, [this](const DataChange &change) {
      QString line = TableName(change.table);
      for (const qint64 key : change.keys) line += QStringLiteral(" %1").arg(key);
      if (!change.personID.isEmpty()) line += QStringLiteral(" of ") + change.personID;
      heard_.append(line);
    });
    QObject::connect(&session.changes, &DataChanges::SettingsChanged, &here_,
                     [this] { heard_.append(QStringLiteral("settings")); });
  }
  std::string Heard() {
    heard_.sort();
    return heard_.join(QStringLiteral(", ")).toStdString();
  }

 private:
  QObject here_;
  QStringList heard_;
};

WizardAnswers NewcomersAnswers() {
  WizardAnswers answers;
  answers.person = {.PersonName = QStringLiteral("Bo"), .Goal = 140};
  answers.startingWeight = 180;
  answers.startingDate = QDate(2026, 3, 1);
  return answers;
}

/// Ann, number 2, with a weight and a note, as text: what no writer for number 1 may touch.
QString Ann(TestSession &session) {
  QString all;
  for (const char *field : {"PersonName", "Goal", "GoalMethodID", "BackColor", "Password", "NutTargetID"}) {
    all += session.ValueOf(QString::fromLatin1(field), QStringLiteral("people"), QStringLiteral("PersonID=2")) + u'|';
  }
  return all +
         session.ValueOf(QStringLiteral("ThisWeight"), QStringLiteral("weight_loss"), QStringLiteral("PersonID=2")) +
         u'|' + session.ValueOf(QStringLiteral("Notes"), QStringLiteral("notes"), QStringLiteral("PersonID=2"));
}

struct PeopleWriter {
  const char *name;
  std::function<void(TestSession &session)> act;
  const char *heard;
};

TEST(PeopleWriters, EachAnnouncesWhatItWroteAndTouchesNobodyElse) {
  const PeopleWriter writers[] = {
      {"add", [](TestSession &s) { AddPerson(*s, {.PersonName = QStringLiteral("Cid")}); }, "people 3"},
      {"update", [](TestSession &s) { UpdatePerson(*s, QStringLiteral("1"), {.PersonName = QStringLiteral("Bo")}); },
       "people 1"},
      {"colour",
       [](TestSession &s) {
         s.boxes.Expect(QStringLiteral("Color Scheme Changed."), {});
         StoreBackColor(*s, QStringLiteral("1"), 5);
       },
       "people 1, settings"},
      {"password",
       [](TestSession &s) {
         s.boxes.Expect(QStringLiteral("Password Changed"), {});
         ChangePassword(*s, QStringLiteral("1"), {{}, QStringLiteral("x"), QStringLiteral("x")});
       },
       "people 1"},
      {"reset",
       [](TestSession &s) {
         s.boxes.Expect(QStringLiteral("Reset Weight Loss Data"), {}, BoxButton::Yes);
         s.boxes.Expect({}, QStringLiteral("All weight loss data has been deleted successfully."));
         ResetWeightLossData(*s);
       },
       "notes of 1, weight_loss of 1"},
      {"goal method",
       [](TestSession &s) { SaveGoalMethod(*s, GoalMethod::ByRate, QDate(2026, 6, 1), QStringLiteral("2")); },
       "people 1"},
      {"goal method as it was",
       [](TestSession &s) {
         const ToolsProfile stored = ReadToolsProfile(*s);
         SaveGoalMethod(*s, stored.method, stored.GoalMethodDate, stored.GoalMethodLbsWeek);
       },
       ""},
      {"completed", [](TestSession &s) { FinishWizard(*s, NewcomersAnswers(), WizardMode::CompletingProfile); },
       "people 1, weight_loss of 1"},
      {"added by the wizard", [](TestSession &s) { FinishWizard(*s, NewcomersAnswers(), WizardMode::AddingProfile); },
       "people 3, weight_loss of 3"},
      {"options", [](TestSession &s) { StoreOptions(*s, s->settings); }, "settings"},
      {"sign of losses", [](TestSession &s) { StoreLossFactor(*s, -1); }, "settings"},
  };
  for (const PeopleWriter &writer : writers) {
    SCOPED_TRACE(writer.name);
    TestSession session;
    session.AddProfile(2, QStringLiteral("Ann"));
    session.Data().Execute(
        "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) "
        "VALUES ( 2, #3/1/2026#, 160, 0 );");
    session.Data().Execute(
        "INSERT INTO notes ( PersonID, RecordID, ThisDate, Notes ) VALUES ( 2, 1, #3/1/2026#, \"n\" );");
    const QString before = Ann(session);
    Listener listener(*session);
    writer.act(session);
    EXPECT_EQ(listener.Heard(), writer.heard);
    EXPECT_EQ(Ann(session), before);
  }
}

TEST(PeopleWriters, AFailureIsToldAndNothingIsWrittenOrAnnounced) {
  struct Case {
    const char *breaks;
    std::function<void(TestSession &session)> act;
    const char *title;
    const char *text;
  };
  const Case cases[] = {
      {"DROP TABLE notes;",
       [](TestSession &s) {
         s.boxes.Expect(QStringLiteral("Reset Weight Loss Data"), QStringLiteral("cannot get it back"), BoxButton::Yes);
         s.boxes.Expect(QStringLiteral("Reset Weight Loss Data"), QStringLiteral("An error occurred while deleting"));
         EXPECT_FALSE(ResetWeightLossData(*s));
         EXPECT_EQ(s.ValueOf("ThisWeight", "weight_loss", "PersonID=1"), "180") << "all or nothing";
       },
       nullptr, nullptr},
      {"ALTER TABLE people DROP COLUMN BackColor;", [](TestSession &s) { StoreBackColor(*s, QStringLiteral("1"), 5); },
       "Error Saving Data", "An error occurred while saving your color scheme."},
      {"DROP TABLE rewards;",
       [](TestSession &s) {
         RewardForm form{RewardType::Daily, QStringLiteral("0.5"), {}, {}, QStringLiteral("m"), {}};
         EXPECT_FALSE(SaveRewardForm(*s, form));
       },
       "Error Saving Data", "An error occurred while saving your reward settings."},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.breaks);
    TestSession session;
    session.Data().Execute(
        "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) "
        "VALUES ( 1, #3/1/2026#, 180, 0 );");
    session.Data().Execute(QString::fromLatin1(c.breaks));
    const quint32 colour = session->profile.BackColor;
    Listener listener(*session);
    if (c.title) session.boxes.Expect(QString::fromLatin1(c.title), QString::fromLatin1(c.text));
    c.act(session);
    EXPECT_EQ(listener.Heard(), "");
    EXPECT_EQ(session->profile.BackColor, colour);
  }
}

TEST(PeopleWriters, TheWizardsEndReachesMemoryOnlyWithTheCommit) {
  TestSession session;
  session.Data().Execute("DELETE people.*, people.PersonID FROM people WHERE (people.PersonID > 0);");
  WizardAnswers answers = NewcomersAnswers();
  answers.diet = QStringLiteral("108");
  answers.nutrientID = 15;
  FillWizardNutrients(*session, answers);
  FillSelectedNutrientsArray(session->nutrients, session.Data());
  const int shown = session->nutrients.SelectedNutrients[0].NutrientID;
  Listener listener(*session);
  {
    Change outer(*session);
    FinishWizard(*session, answers, WizardMode::FirstRun);
    EXPECT_EQ(listener.Heard(), "");
  }  // taken back
  EXPECT_EQ(session->nutrients.SelectedNutrients[0].NutrientID, shown);
  EXPECT_EQ(session->settings.NutrientID, 102);
  EXPECT_EQ(listener.Heard(), "");
  FinishWizard(*session, answers, WizardMode::FirstRun);
  EXPECT_EQ(session->nutrients.SelectedNutrients[0].NutrientID, 15);
  EXPECT_EQ(session->settings.NutrientID, 15);
  EXPECT_TRUE(QString::fromStdString(listener.Heard()).contains(QStringLiteral("people 1, selected_nutrients")));
}

TEST(KeptGoal, CountsAsItIsShown) {
  TestSession session;
  session.Data().Execute("UPDATE people SET Goal=\"150,5\" WHERE (PersonID=1);");
  session.Data().Execute(
      "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) "
      "VALUES ( 1, #3/1/2026#, 180, 0 );");
  UpdateStats(*session);
  EXPECT_EQ(session->profile.statistics.LbsLeft, "29.5");
  for (const QString &shown : {ReadGoalText(*session), ReadToolsProfile(*session).Goal,
                               ProposedAmount(*session, RewardType::PersonalWeight, 1)}) {
    EXPECT_EQ(shown, "150.5");
  }
}

}  // namespace
}  // namespace trimlog
