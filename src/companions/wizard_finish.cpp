#include "companions/wizard_finish.h"

#include "catalogs/nutrient_selection.h"
#include "catalogs/target_sets.h"
#include "companions/wizard_nutrients.h"
#include "core/data/data_access.h"
#include "core/profiles/colour_scheme.h"
#include "core/profiles/profiles.h"
#include "core/session/change.h"
#include "health/weight_ends.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr int lastNumberedTargetSet = 10;

void InsertFirstWeight(Session &session, const WizardAnswers &answers, const QString &personID) {
  Change change(session);
  session.Data().Execute(QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) "
                                        "SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, 0 As Expr4; "),
                         {personID.toInt(), answers.startingDate, answers.startingWeight});
  change.Announce({.table = Table::WeightLoss, .personID = personID, .date = answers.startingDate});
  change.Commit();
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

void InsertTargets(Session &session, int targetID, const QList<TickedNutrient> &ticked) {
  Change change(session);
  QString columns = QStringLiteral("INSERT INTO nutrition_targets ( TargetID, TargetDesc, TargetType");
  QString values = QStringLiteral(" ) SELECT ? AS TargetID1, ? AS TargetDesc1, ? AS TargetType1");
  Params params = {targetID, TargetSetName(session, targetID), userTargetType};
  for (const TickedNutrient &nutrient : ticked) {
    const std::optional<double> target = ParseNumber(nutrient.target, session.locale);
    if (!target) continue;
    columns += QStringLiteral(", ") + nutrient.fieldName;
    values += QStringLiteral(", ? AS ") + nutrient.fieldName + QStringLiteral("1");
    params.append(*target);
  }
  session.Data().Execute(columns + values + QStringLiteral(";"), params);
  change.Announce({.table = Table::NutritionTargets, .keys = {targetID}});
  change.Commit();
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

QString CompleteProfile(Session &session, const WizardAnswers &answers) {
  const QString personID = session.profile.CurrentPersonID;
  UpdatePerson(session, personID, answers.person);
  if (!ReadWeightEnds(session)) InsertFirstWeight(session, answers, personID);
  return personID;
}

QString MakeProfile(Session &session, const WizardAnswers &answers, bool withTargets) {
  const QString personID = NextPersonID(session);
  Person person = answers.person;
  person.NutTargetID = GetNextID(session.Data(), QStringLiteral("nutrition_targets")).toInt();
  InsertPerson(session, personID, person);
  InsertFirstWeight(session, answers, personID);
  if (withTargets) {
    const QList<TickedNutrient> ticked = ReadTicked(session);
    InsertTargets(session, person.NutTargetID, ticked);
    SaveNutrientSelection(session, SelectionOf(ticked));
  }
  return personID;
}

}  // namespace

bool NeedsWizard(Session &session) {
  const QString goal = GetDataValue(session.Data(), QStringLiteral("Goal"), QStringLiteral("people"),
                                    QStringLiteral("PersonID=?"), {}, {session.profile.CurrentPersonID.toInt()});
  return goal.isEmpty() || !ReadWeightEnds(session);
}

WizardMode WizardModeNow(Session &session) {
  if (HasNoProfiles(session)) return WizardMode::FirstRun;
  const bool ordinary =
      session.profile.CurrentPersonID.toInt() > 0 && ProfileExists(session, session.profile.CurrentPersonID);
  return ordinary && NeedsWizard(session) ? WizardMode::CompletingProfile : WizardMode::AddingProfile;
}

WizardStart StartingAnswers(Session &session, WizardMode mode) {
  WizardStart start;
  start.answers.UomID = session.settings.UomID;
  start.answers.startingDate = session.Today();
  start.answers.person.BackColor = DefaultBackColor(session);
  if (mode == WizardMode::FirstRun) {
    start.answers.person.PersonName = session.machine.AccountName();
    start.answers.UomID = ProposedUomID(session.settings.UomID, session.locale);
  }
  if (mode != WizardMode::CompletingProfile) return start;
  if (const auto person = ReadPerson(session, session.profile.CurrentPersonID)) start.answers.person = *person;
  if (const std::optional<WeightEnds> ends = ReadWeightEnds(session)) {
    start.hasWeights = true;
    start.answers.startingDate = ends->first.ThisDate;
    start.answers.startingWeight = ends->first.ThisWeight;
  }
  return start;
}

QString FinishWizard(Session &session, const WizardAnswers &answers, WizardMode mode) {
  Change change(session);
  const QString personID = mode == WizardMode::CompletingProfile
                               ? CompleteProfile(session, answers)
                               : MakeProfile(session, answers, mode == WizardMode::FirstRun);
  if (mode == WizardMode::FirstRun && answers.diet == DietPlans().last().key) {
    change.Afterwards([&session, nutrientID = answers.nutrientID] {
      session.settings.NutrientID = nutrientID;
      SaveSetting(session.settings, session.store, QStringLiteral("NutrientID"));
    });
  }
  change.Commit();
  return personID;
}

}  // namespace trimlog
