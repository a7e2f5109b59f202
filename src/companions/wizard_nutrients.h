#pragma once

#include <QList>
#include <QString>

#include "companions/wizard_answers.h"
#include "core/session/session.h"
#include "core/settings/options.h"
#include "platform/grid/grid_row_edit.h"

namespace trimlog {

/// One diet plan of the wizard; the key names its preset row in selected_nutrients.
struct DietPlan {
  QString key;
  QString name;
};
/// In the order of the list.
const QList<DietPlan> &DietPlans();

/// The target set recommended for a person's age on `today` and gender. Ages under 11 take the adult band.
QString GetRDATargetID(const QDate &birthDate, bool genderMale, const QDate &today);

/// Fills the work table temp_meals_search with the nutrients to choose from: MealID the nutrient, MealDesc its name,
/// IsModified the tick, MealGroupID the order, Amount the target. The diet's preset is ticked and stands on top. One
/// transaction.
void FillWizardNutrients(Session &session, const WizardAnswers &answers);

/// The nutrients of which one can be the most important to a diet: all but the custom ones.
QList<OptionChoice> WizardNutrientChoices(Session &session);

/// The texts of a target: none told, and what a ticked row shows until one is typed.
inline const QString noTarget = QStringLiteral("None");
inline const QString targetPrompt = QStringLiteral("(type a value)");
/// Why a typed target is refused, or "". A number that is not negative, or none, is fine.
QString RefusedTarget(const QString &typed, const QLocale &locale);
/// The same for a number that the nutrient's place in a target set cannot hold.
QString RefusedTargetOf(const Session &session, int nutrientID, const QString &typed);
/// Before a changed row of the list is stored: a nutrient that is ticked without a target asks for one, and one that is
/// given a target is ticked.
void MatchTickAndTarget(GridRowEdit &row);

/// The note above the list: where its first targets come from.
QString WizardTargetsNote(const QString &diet);

/// How many nutrients are ticked.
int CountWizardNutrients(Session &session);
/// "<count> Nutrients Selected So Far".
QString WizardCountText(int count);
/// Shows why the nutrient step cannot be left; true when it can.
bool CheckWizardNutrients(Session &session);

}  // namespace trimlog
