#include "companions/wizard_nutrients.h"

#include <map>

#include "catalogs/nutrient_selection.h"
#include "catalogs/target_sets.h"
#include "core/data/data_access.h"
#include "health/body_formulas.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString atkins = QStringLiteral("101");
const QString zone = QStringLiteral("102");
const QString lowCarb = QStringLiteral("103");
const QString vitamins = QStringLiteral("106");
const QString customized = QStringLiteral("108");

bool IsTold(const QString &target) {
  const QString text = target.trimmed();
  return !text.isEmpty() && text != targetPrompt && text.compare(noTarget, Qt::CaseInsensitive) != 0;
}

/// Diets with figures of their own, by NutrientID; every other nutrient of theirs has none.
const std::map<QString, std::map<int, QString>> &OwnTargets() {
  static const std::map<QString, std::map<int, QString>> targets = {
      {atkins, {{33, QStringLiteral("20")}}},
      {zone,
       {{2, QStringLiteral("133")},
        {3, QStringLiteral("50")},
        {4, QStringLiteral("100")},
        {23, QStringLiteral("30")},
        {25, QStringLiteral("30")},
        {27, QStringLiteral("40")}}},
      {lowCarb, {{2, QStringLiteral("50")}, {4, QStringLiteral("120")}}},
  };
  return targets;
}

QString RecommendedTarget(Session &session, const WizardAnswers &answers, int nutrientID, const QString &fieldName) {
  const QString value =
      GetDataValue(session.Data(), fieldName, QStringLiteral("nutrition_targets"),
                   QStringLiteral("TargetID=") +
                       GetRDATargetID(answers.person.BirthDate, answers.person.GenderID == 1, session.Today()));
  if (value.isEmpty()) return noTarget;
  const bool keepsDecimals = answers.diet != vitamins || nutrientID == 13 || nutrientID == 14;
  const double number = Val(value);
  return Format(keepsDecimals ? number : WholeLong(number), QStringLiteral("General Number"), session.locale);
}

QString TargetOf(Session &session, const WizardAnswers &answers, int nutrientID, const QString &fieldName) {
  const auto own = OwnTargets().find(answers.diet);
  if (own == OwnTargets().end()) return RecommendedTarget(session, answers, nutrientID, fieldName);
  const auto target = own->second.find(nutrientID);
  return target == own->second.end() ? noTarget : target->second;
}

void TickNutrient(Session &session, const WizardAnswers &answers, int nutrientID, int order) {
  const QString fieldName = GetDataValue(session.Data(), QStringLiteral("NutFieldName"), QStringLiteral("nutrients"),
                                         QStringLiteral("NutrientID=%1").arg(nutrientID));
  session.Data().Execute(QStringLiteral("UPDATE temp_meals_search SET temp_meals_search.IsModified = True, "
                                        "temp_meals_search.MealGroupID = ?, temp_meals_search.Amount = ? "
                                        "WHERE ((temp_meals_search.MealID)=?);"),
                         {order, TargetOf(session, answers, nutrientID, fieldName), nutrientID});
}

void TickPreset(Session &session, const WizardAnswers &answers) {
  const Recordset preset = session.Data().OpenRecordset(
      QStringLiteral("SELECT selected_nutrients.* FROM selected_nutrients WHERE (PersonID=?);"),
      {answers.diet.toInt()});
  if (preset.Eof()) return;
  for (int position = 1; position <= shownNutrients; ++position) {
    const int nutrientID = preset.Integer(QStringLiteral("NutrientID%1").arg(position));
    const bool chosenAlready = answers.diet == customized && nutrientID == answers.nutrientID;
    if (nutrientID != 0 && !chosenAlready) TickNutrient(session, answers, nutrientID, position);
  }
}

/// The chosen nutrient leads the customized plan; the preset's last one makes room for it.
void TickChosenNutrient(Session &session, const WizardAnswers &answers) {
  TickNutrient(session, answers, answers.nutrientID, 0);
  if (CountWizardNutrients(session) <= shownNutrients) return;
  session.Data().Execute(
      QStringLiteral("UPDATE temp_meals_search SET temp_meals_search.IsModified = False, "
                     "temp_meals_search.Amount = \"None\" WHERE ((temp_meals_search.MealGroupID)=?);"),
      {shownNutrients});
}

}  // namespace

const QList<DietPlan> &DietPlans() {
  static const QList<DietPlan> plans = {
      {atkins, QStringLiteral("The Atkins Diet®")},
      {zone, QStringLiteral("The Zone")},
      {lowCarb, QStringLiteral("Low Carb Diets")},
      {QStringLiteral("104"), QStringLiteral("Calorie-Based Diets")},
      {QStringLiteral("105"), QStringLiteral("Low Fat Diets")},
      {QStringLiteral("107"), QStringLiteral("Low Sodium Diets")},
      {QStringLiteral("100"), QStringLiteral("Overall Health & Wellness")},
      {vitamins, QStringLiteral("Vitamins & Minerals Only")},
      {customized, QStringLiteral("Other/Customized Diet Plan")},
  };
  return plans;
}

QString GetRDATargetID(const QDate &birthDate, bool genderMale, const QDate &today) {
  const int age = AgeInYears(birthDate, today);
  int band = 3;
  if (age >= 11 && age <= 14) band = 0;
  if (age >= 15 && age <= 18) band = 1;
  if (age >= 19 && age <= 24) band = 2;
  if (age >= 51) band = 4;
  return QString::number((genderMale ? 10 : 20) + band);
}

void FillWizardNutrients(Session &session, const WizardAnswers &answers) {
  Transaction transaction(session.Data());
  session.Data().Execute(QStringLiteral("DELETE temp_meals_search.* FROM temp_meals_search; "));
  session.Data().Execute(QStringLiteral(
      "INSERT INTO temp_meals_search ( MealID, MealDesc, MealGroupID, IsModified, Amount ) "
      "SELECT nutrients.NutrientID, nutrients.NutDescPlusUoM, nutrients.NutSortOrder + 10, False AS Expr1, "
      "\"None\" As Expr2 From Nutrients Where (((Nutrients.NutrientID) <> 0 "
      "And (Nutrients.NutrientID) <> 28 And (Nutrients.NutrientID) <> 29 And (Nutrients.NutrientID) <> 30 "
      "And (Nutrients.NutrientID) <> 31 And (Nutrients.NutrientID) <> 32)) "
      "ORDER BY nutrients.NutSortOrder;"));
  TickPreset(session, answers);
  if (answers.diet == customized) TickChosenNutrient(session, answers);
  transaction.Commit();
}

QList<OptionChoice> WizardNutrientChoices(Session &session) {
  QList<OptionChoice> choices;
  for (const NutrientChoice &nutrient : SelectableNutrients(session)) {
    if (nutrient.NutrientID != 0 && !IsCustomNutrient(nutrient.NutrientID))
      choices.append({nutrient.NutrientID, nutrient.descriptionPlusUnit});
  }
  return choices;
}

QString RefusedTarget(const QString &typed, const QLocale &locale) {
  if (!IsTold(typed)) return {};
  const std::optional<double> number = ParseNumber(typed, locale);
  return number && *number >= 0 ? QString() : QStringLiteral("Please type a number, or leave the field blank.");
}

QString RefusedTargetOf(const Session &session, int nutrientID, const QString &typed) {
  return RefusedTargetField(session, nutrientID, typed);
}

void MatchTickAndTarget(GridRowEdit &row) {
  const QString tick = QStringLiteral("IsModified");
  const QString amount = QStringLiteral("Amount");
  const QString target = row.Get(amount).toString().trimmed();
  if (IsTold(target)) {
    if (row.IsChanged(amount) && !row.IsChanged(tick)) row.Set(tick, true);
    return;
  }
  if (!row.Get(tick).toBool()) {
    row.Set(amount, noTarget);
  } else if (row.IsChanged(tick) || target.isEmpty()) {
    row.Set(amount, targetPrompt);
  }
}

QString WizardTargetsNote(const QString &diet) {
  return OwnTargets().contains(diet) ? QStringLiteral("Note: The initial targets shown are just examples.")
                                     : QStringLiteral("Note: The initial targets shown are based on your RDA.");
}

int CountWizardNutrients(Session &session) {
  return GetDataValue(session.Data(), QStringLiteral("Count(*) AS TickCount"), QStringLiteral("temp_meals_search"),
                      QStringLiteral("(IsModified)=True"), QStringLiteral("TickCount"))
      .toInt();
}

QString WizardCountText(int count) { return QString::number(count) + QStringLiteral(" Nutrients Selected So Far"); }

bool CheckWizardNutrients(Session &session) {
  const int count = CountWizardNutrients(session);
  if (count > shownNutrients) {
    session.boxes.Critical(QStringLiteral("Too Many Nutrients"),
                           QStringLiteral("It appears that you have selected ") + QString::number(count) +
                               QStringLiteral(" nutrients.  Please select just 10 nutrients from the list."));
  } else if (count == 0) {
    session.boxes.Critical(
        QStringLiteral("Not Enough Nutrients"),
        QStringLiteral("It appears that you have not selected any nutrients.  Please select at least "
                       "one nutrient from the list."));
  }
  return count > 0 && count <= shownNutrients;
}

}  // namespace trimlog
