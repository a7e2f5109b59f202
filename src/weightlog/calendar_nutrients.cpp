#include "weightlog/calendar_nutrients.h"

#include "core/session/session.h"
#include "health/net_calories.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// Sums of one day, of entries that count: planned ones do not.
QString SumsByDay(const QString &table, const QString &sums) {
  return QStringLiteral(
             "SELECT %1.PersonID, %1.ThisDate, %2 From %1 WHERE (((%1.IsPlanned)=False)) GROUP BY %1.PersonID, "
             "%1.ThisDate HAVING (((%1.PersonID)=?) AND ((%1.ThisDate) Between ? And ?));")
      .arg(table, sums);
}

QString StatementFor(const Nutrients &nutrients, int NutrientID) {
  if (NutrientID == nutrient_id::caloriesBurned) {
    return SumsByDay(QStringLiteral("activities"), QStringLiteral("Sum(activities.Calories) AS NutrientSum"));
  }
  if (IsPercentOfCalories(NutrientID)) {
    return SumsByDay(QStringLiteral("meals"),
                     QStringLiteral("Sum(meals.Calories) AS SumCalories, Sum(meals.CalFromFat) AS SumCFF, "
                                    "Sum(meals.CalFromProtein) AS SumCFP, Sum(meals.CalFromCarb) AS SumCFC"));
  }
  return SumsByDay(QStringLiteral("meals"),
                   QStringLiteral("Sum(meals.%1) AS NutrientSum").arg(Definition(nutrients, NutrientID).fieldName));
}

QString PercentText(const Recordset &day, int NutrientID) {
  const double calories = day.Number(QStringLiteral("SumCalories"));
  const QString part = NutrientID == nutrient_id::calFromFatPct       ? QStringLiteral("SumCFF")
                       : NutrientID == nutrient_id::calFromProteinPct ? QStringLiteral("SumCFP")
                                                                      : QStringLiteral("SumCFC");
  const int percent = calories == 0 ? 0 : WholeLong(day.Number(part) / calories * 100);
  return QString::number(percent) + QStringLiteral(" %");
}

QString SumText(const Session &session, double sum, int NutrientID) {
  const NutrientDef &shown =
      Definition(session.nutrients, NutrientID == nutrient_id::caloriesBurned ? nutrient_id::calories : NutrientID);
  const QString number = Format(sum, GetNutrientFormat(shown.fieldName), session.locale);
  return IsCustomNutrient(NutrientID) ? number : number + u' ' + shown.shortUnit;
}

QString CaloriesText(double calories, const QLocale &locale) {
  return Format(RoundHalfAway(calories, 2), QStringLiteral("General Number"), locale);
}

/// How a day's net calories come about: "1200 eaten - 103 burned - 1448 basal rate = -351 Cal".
QString NetCaloriesTip(const NetCaloriesDay &day, const QLocale &locale) {
  QString tip = CaloriesText(day.eaten.value_or(0), locale) + QStringLiteral(" eaten - ") +
                CaloriesText(day.burned.value_or(0), locale) + QStringLiteral(" burned");
  if (day.basal != 0) tip += QStringLiteral(" - %1 basal rate").arg(day.basal);
  return tip + QStringLiteral(" = %1 Cal").arg(CaloriesText(*day.Net(), locale));
}

std::map<QDate, DayFigure> NetCaloriesFigures(const Session &session, const QDate &first, const QDate &last) {
  std::map<QDate, DayFigure> figures;
  for (const NetCaloriesDay &day : ReadNetCalories(session, first, last)) {
    if (const std::optional<double> net = day.Net()) {
      figures[day.date] = {CaloriesText(*net, session.locale) + QStringLiteral(" Cal"),
                           NetCaloriesTip(day, session.locale)};
    }
  }
  return figures;
}

}  // namespace

std::map<QDate, DayFigure> ReadCalendarNutrients(const Session &session, const QDate &first, const QDate &last) {
  const int NutrientID = session.settings.NutrientID;
  if (NutrientID == nutrient_id::netCalories) return NetCaloriesFigures(session, first, last);
  std::map<QDate, DayFigure> figures;
  Recordset days =
      session.Data().OpenRecordset(StatementFor(session.nutrients, NutrientID),
                                   {session.profile.CurrentPersonID.toInt(), first, last}, RecordsetKind::Forward);
  for (; !days.Eof(); days.MoveNext()) {
    figures[days.Field(QStringLiteral("ThisDate")).toDate()].text =
        IsPercentOfCalories(NutrientID) ? PercentText(days, NutrientID)
                                        : SumText(session, days.Number(QStringLiteral("NutrientSum")), NutrientID);
  }
  return figures;
}

}  // namespace trimlog
