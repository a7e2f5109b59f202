#include "companions/wizard_finish.h"

#include "catalogs/nutrient_selection.h"
#include "companions/wizard_nutrients.h"
#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr int userTargetType = 4;  // beside 1 labels, 2 recommended allowances, 3 example diets
constexpr int lastNumberedTargetSet = 10;

QString NewPersonID(Session &session, bool addingProfile) {
  const QString next = GetNextID(session.Data(), QStringLiteral("people"));
  // With nobody but the samples the next key is below 1: the first profile takes the key the session started with.
  return addingProfile || next.toInt() >= 1 ? next : QStringLiteral("1");
}

void InsertPerson(Session &session, const WizardAnswers &answers, const QString &personID, const QString &targetID) {
  session.Data().Execute(
      QStringLiteral(
          "INSERT INTO people ( PersonID, PersonName, Goal, HeightFeet, "
          "HeightInches, BackColor, GenderID, BirthDate, NutTargetID ) "
          "SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, ? AS Expr4, ? AS Expr5, ? AS Expr6, ? AS Expr7, ? AS Expr8, "
          "? AS Expr9;"),
      {personID.toInt(), WithoutDoubleQuotes(answers.PersonName), PlainText(answers.goal), answers.height1,
       answers.height2, static_cast<int>(answers.backColor), answers.genderMale ? 1 : 2, answers.birthDate,
       targetID.toInt()});
}

void InsertFirstWeight(Session &session, const WizardAnswers &answers, const QString &personID) {
  session.Data().Execute(
      QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) SELECT ") + personID +
      QStringLiteral(" AS Expr1, ") + SQLDate(answers.startingDate) + QStringLiteral(" AS Expr2, ") +
      PlainText(answers.startingWeight) + QStringLiteral(" AS Expr3, 0 As Expr4; "));
}

/// The ticked nutrients in their order.
struct TickedNutrient {
  int NutrientID = 0;
  QString fieldName;
  QString shortName;
  QString target;
};
QList<TickedNutrient> ReadTicked(Session &session) {
  QList<TickedNutrient> ticked;
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT temp_meals_search.MealID, temp_meals_search.Amount, nutrients.NutFieldName, "
                     "nutrients.NutShortDescription FROM temp_meals_search INNER JOIN nutrients "
                     "ON temp_meals_search.MealID = nutrients.NutrientID WHERE ((temp_meals_search.IsModified)=True) "
                     "ORDER BY temp_meals_search.MealGroupID, temp_meals_search.MealID;"));
  for (; !rows.Eof(); rows.MoveNext()) {
    ticked.append({rows.Integer(QStringLiteral("MealID")), rows.Text(QStringLiteral("NutFieldName")),
                   rows.Text(QStringLiteral("NutShortDescription")), rows.Text(QStringLiteral("Amount"))});
  }
  return ticked;
}

QString TargetSetName(Session &session, int targetID) {
  const QString name = QStringLiteral("My Targets");
  const int sets =
      GetDataValue(session.Data(), QStringLiteral("Count(*) AS SetCount"), QStringLiteral("nutrition_targets"),
                   QStringLiteral("TargetType=%1").arg(userTargetType), QStringLiteral("SetCount"))
          .toInt();
  return sets == 0 || targetID > lastNumberedTargetSet ? name : name + QStringLiteral(" %1").arg(sets + 1);
}

void InsertTargets(Session &session, const QString &targetID, const QList<TickedNutrient> &ticked) {
  QString columns = QStringLiteral("INSERT INTO nutrition_targets ( TargetID, TargetDesc, TargetType");
  QString values = QStringLiteral(" ) SELECT ? AS TargetID1, ? AS TargetDesc1, ? AS TargetType1");
  Params params = {targetID.toInt(), TargetSetName(session, targetID.toInt()), userTargetType};
  for (const TickedNutrient &nutrient : ticked) {
    const std::optional<double> target = ParseNumber(nutrient.target, session.locale);
    if (!target) continue;
    columns += QStringLiteral(", ") + nutrient.fieldName;
    values += QStringLiteral(", ? AS ") + nutrient.fieldName + QStringLiteral("1");
    params.append(*target);
  }
  session.Data().Execute(columns + values + QStringLiteral(";"), params);
}

NutrientSelection SelectionOf(const QList<TickedNutrient> &ticked) {
  NutrientSelection selection;
  for (qsizetype i = 0; i < std::min<qsizetype>(ticked.size(), shownNutrients); ++i) {
    SelectedNutrient &position = selection[static_cast<std::size_t>(i)];
    position.NutrientID = ticked[i].NutrientID;
    position.description = ticked[i].shortName;
    position.NutTotal = true;
  }
  return selection;
}

}  // namespace

QString FinishWizard(Session &session, const WizardAnswers &answers, bool addingProfile) {
  Change change(session);
  const QString personID = NewPersonID(session, addingProfile);
  const QString targetID = GetNextID(session.Data(), QStringLiteral("nutrition_targets"));
  InsertPerson(session, answers, personID, targetID);
  InsertFirstWeight(session, answers, personID);
  if (!addingProfile) {
    const QList<TickedNutrient> ticked = ReadTicked(session);
    InsertTargets(session, targetID, ticked);
    change.Announce({.table = Table::NutritionTargets, .keys = {targetID.toInt()}});
    SaveNutrientSelection(session, SelectionOf(ticked));
  }
  if (!addingProfile && answers.diet == DietPlans().last().key) {
    change.Afterwards([&session, nutrientID = answers.nutrientID] {
      session.settings.NutrientID = nutrientID;
      SaveSetting(session.settings, session.store, QStringLiteral("NutrientID"));
    });
  }
  change.Announce({.table = Table::People, .keys = {personID.toInt()}});
  change.Announce({.table = Table::WeightLoss, .personID = personID, .date = answers.startingDate});
  change.Commit();
  return personID;
}

bool NeedsWizard(Session &session) {
  const QString goal = GetDataValue(session.Data(), QStringLiteral("Goal"), QStringLiteral("people"),
                                    QStringLiteral("PersonID=?"), {}, {session.profile.CurrentPersonID.toInt()});
  const QString firstWeight = GetDataValue(session.Data(), QStringLiteral("Min(ThisDate) AS FirstDate"),
                                           QStringLiteral("weight_loss"), QStringLiteral("PersonID=?"),
                                           QStringLiteral("FirstDate"), {session.profile.CurrentPersonID.toInt()});
  return goal.isEmpty() || firstWeight.isEmpty();
}

QString ProposedPersonName(const Session &session) { return session.machine.AccountName(); }

}  // namespace trimlog
