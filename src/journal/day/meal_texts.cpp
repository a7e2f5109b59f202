#include "journal/day/meal_texts.h"

#include "core/session/session.h"
#include "journal/day/meal_columns.h"
#include "journal/day/net_calories_text.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// A row of the columns with a caption under the food and figures under the nutrients.
QStringList ClosingRow(const QStringList &columns, const QString &caption, const ShownCells &figures) {
  static const QStringList names = NutrientColumnNames();
  QStringList row;
  for (const QString &column : columns) {
    const qsizetype position = names.indexOf(column);
    row.append(position < 0 ? QString() : figures[static_cast<std::size_t>(position)]);
  }
  const qsizetype food = columns.indexOf(QStringLiteral("MealID"));
  if (food >= 0) row[food] = caption;
  return row;
}

}  // namespace

QString DailyTotalsCaption(const JournalKind &kind, JournalView view, const QDate &date, const QLocale &locale) {
  if (kind.isSmall) return QStringLiteral("Daily Totals:");
  if (view == JournalView::SingleDate) return QStringLiteral("Daily Totals  ");
  return QStringLiteral("Daily Totals (%1)  ").arg(ShortDate(date, locale));
}

QString TargetsCaption() { return QStringLiteral("Over (+) or Under (-) Target:"); }

std::optional<std::size_t> CaloriesPosition(const Nutrients &nutrients) {
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    if (nutrients.SelectedNutrients[i].NutrientID == nutrient_id::calories) return i;
  }
  return std::nullopt;
}

QString MealsNetCalories(const Session &session, NetCaloriesDay day, double eaten) {
  day.eaten = eaten;
  return NetCaloriesText(day, session.settings.NetCaloriesBMR, session.locale);
}

std::vector<QStringList> MealsClosingRows(const JournalKind &kind, const MealsClosing &closing,
                                          const QStringList &columns, const QLocale &locale) {
  const QString date = ShortDate(closing.date, locale);
  std::vector<QStringList> rows = {ClosingRow(columns, {}, {}),
                                   ClosingRow(columns, kind.printedTotals.arg(date), closing.totals)};
  if (closing.targets) rows.push_back(ClosingRow(columns, TargetsCaption(), *closing.targets));
  if (!closing.netCalories.isEmpty()) {
    const auto [figure, formula] = SplitNetCaloriesText(closing.netCalories);
    rows.push_back(ClosingRow(columns, figure, {}));
    rows.push_back(ClosingRow(columns, formula, {}));
  }
  return rows;
}

QString MealsPrintTitle(const JournalKind &kind, JournalView view, const QDate &date, const QLocale &locale) {
  return view == JournalView::AllDates ? kind.mealsAllDates : kind.mealsOnDate.arg(ShortDate(date, locale));
}

}  // namespace trimlog
