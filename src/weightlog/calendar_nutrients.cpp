#include "weightlog/calendar_nutrients.h"

#include "core/session.h"
#include "health/net_calories.h"
#include "platform/error.h"
#include "platform/recordset.h"
#include "platform/rounding.h"
#include "platform/text_format.h"

namespace trimlog {

namespace {

constexpr int caloriesID = 1;
constexpr int fatPercentID = 23;
constexpr int proteinPercentID = 25;
constexpr int carbPercentID = 27;
constexpr int firstCustomID = 28;
constexpr int lastCustomID = 32;

bool IsPercent(int NutrientID) {
  return NutrientID == fatPercentID || NutrientID == proteinPercentID || NutrientID == carbPercentID;
}

bool IsCustom(int NutrientID) { return NutrientID >= firstCustomID && NutrientID <= lastCustomID; }

const NutrientDef &Definition(const Nutrients &nutrients, int NutrientID) {
  if (NutrientID < 1 || NutrientID > nutrientCount) {
    throw Error(error_number::outOfBounds, QStringLiteral("There is no nutrient %1").arg(NutrientID));
  }
  return nutrients.NutrientDefs[static_cast<size_t>(NutrientID - 1)];
}

/// A custom nutrient goes by the name that the person gave it where it is shown.
QString Description(const Nutrients &nutrients, int NutrientID) {
  if (IsCustom(NutrientID)) {
    for (const SelectedNutrient &selected : nutrients.SelectedNutrients) {
      if (selected.NutrientID == NutrientID && !selected.description.isEmpty()) return selected.description;
    }
  }
  const NutrientDef &nutrient = Definition(nutrients, NutrientID);
  return nutrient.descriptionPlusUnit.isEmpty() ? nutrient.description : nutrient.descriptionPlusUnit;
}

/// Sums of one day, of entries that count: planned ones do not.
QString SumsByDay(const QString &table, const QString &sums) {
  return QStringLiteral(
             "SELECT %1.PersonID, %1.ThisDate, %2 From %1 WHERE (((%1.IsPlanned)=False)) GROUP BY %1.PersonID, "
             "%1.ThisDate HAVING (((%1.PersonID)=?) AND ((%1.ThisDate) Between ? And ?));")
      .arg(table, sums);
}

QString StatementFor(const Nutrients &nutrients, int NutrientID) {
  if (NutrientID == caloriesBurnedID) {
    return SumsByDay(QStringLiteral("activities"), QStringLiteral("Sum(activities.Calories) AS NutrientSum"));
  }
  if (IsPercent(NutrientID)) {
    return SumsByDay(QStringLiteral("meals"),
                     QStringLiteral("Sum(meals.Calories) AS SumCalories, Sum(meals.CalFromFat) AS SumCFF, "
                                    "Sum(meals.CalFromProtein) AS SumCFP, Sum(meals.CalFromCarb) AS SumCFC"));
  }
  return SumsByDay(QStringLiteral("meals"),
                   QStringLiteral("Sum(meals.%1) AS NutrientSum").arg(Definition(nutrients, NutrientID).fieldName));
}

QString PercentText(const Recordset &day, int NutrientID) {
  const double calories = day.Number(QStringLiteral("SumCalories"));
  const QString part = NutrientID == fatPercentID       ? QStringLiteral("SumCFF")
                       : NutrientID == proteinPercentID ? QStringLiteral("SumCFP")
                                                        : QStringLiteral("SumCFC");
  const int percent = calories == 0 ? 0 : WholeLong(day.Number(part) / calories * 100);
  return QString::number(percent) + QStringLiteral(" %");
}

QString SumText(const Session &session, double sum, int NutrientID) {
  const NutrientDef &shown = Definition(session.nutrients, NutrientID == caloriesBurnedID ? caloriesID : NutrientID);
  const QString number = Format(sum, GetNutrientFormat(shown.fieldName), session.locale);
  return IsCustom(NutrientID) ? number : number + u' ' + shown.shortUnit;
}

std::map<QDate, QString> NetCaloriesTexts(const Session &session, const QDate &first, const QDate &last) {
  std::map<QDate, QString> texts;
  for (const NetCaloriesDay &day : ReadNetCalories(session, first, last)) {
    if (day.net) {
      texts[day.date] =
          Format(RoundHalfAway(*day.net, 2), QStringLiteral("General Number"), session.locale) + QStringLiteral(" Cal");
    }
  }
  return texts;
}

}  // namespace

std::vector<CalendarNutrient> CalendarNutrientChoices(const Nutrients &nutrients) {
  std::vector<CalendarNutrient> choices{{caloriesID, QStringLiteral("Calories Consumed (kcal)")},
                                        {caloriesBurnedID, QStringLiteral("Calories Burned (kcal)")},
                                        {netCaloriesID, QStringLiteral("Net Calories (kcal)")}};
  for (int id = caloriesID + 1; id <= nutrientCount; ++id) {
    const QString description = Description(nutrients, id);
    if (!description.isEmpty()) choices.push_back({id, description});
  }
  return choices;
}

std::map<QDate, QString> ReadCalendarNutrients(const Session &session, const QDate &first, const QDate &last) {
  const int NutrientID = session.settings.NutrientID;
  if (NutrientID == netCaloriesID) return NetCaloriesTexts(session, first, last);
  std::map<QDate, QString> texts;
  Recordset days = session.Data().OpenRecordset(StatementFor(session.nutrients, NutrientID),
                                                {session.CurrentPersonID.toInt(), first, last}, RecordsetKind::Forward);
  for (; !days.Eof(); days.MoveNext()) {
    texts[days.Field(QStringLiteral("ThisDate")).toDate()] =
        IsPercent(NutrientID) ? PercentText(days, NutrientID)
                              : SumText(session, days.Number(QStringLiteral("NutrientSum")), NutrientID);
  }
  return texts;
}

}  // namespace trimlog
