#include "journal/windows/meal_totals.h"

#include <QVBoxLayout>

#include "core/session/failure_guard.h"
#include "journal/day/meal_columns.h"
#include "journal/windows/grid_day_rows.h"
#include "journal/windows/net_calories_line.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/totals_strip.h"

namespace trimlog {

namespace {

QString TotalName(int position) { return QStringLiteral("Total%1").arg(position); }

/// The first total takes the room of the servings too; a small window has a narrow column of its own under them.
QList<TotalsColumn> TotalsUnder(bool small) {
  const QString servings = QStringLiteral("Amount");
  QList<TotalsColumn> totals;
  if (small) totals.append({TotalName(0), {servings}});
  int position = 0;
  for (const QString &nutrient : NutrientColumnNames()) {
    QStringList under = {nutrient};
    if (++position == 1 && !small) under.prepend(servings);
    totals.append({TotalName(position), under});
  }
  return totals;
}

void ShowFigures(TotalsStrip &strip, const ShownCells &figures) {
  for (int position = 1; position <= shownNutrients; ++position) {
    strip.SetText(TotalName(position), figures[static_cast<std::size_t>(position - 1)]);
  }
}

}  // namespace

MealTotals::MealTotals(const JournalParts &parts, BoundGrid &grid, QWidget *parent)
    : QWidget(parent),
      parts_(parts),
      grid_(grid),
      grdMealTotals(new TotalsStrip(QStringLiteral("grdMealTotals"), QStringLiteral("Daily totals"), grid, this)) {
  const JournalKind &kind = parts.day.Kind();
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(grdMealTotals);
  grdMealTotals->Label().setObjectName(QStringLiteral("lblTotalsMeals"));
  if (kind.hasTargets) {
    grdMealTargets =
        new TotalsStrip(QStringLiteral("grdMealTargets"), QStringLiteral("Over or under target"), grid, this);
    grdMealTargets->Label().setObjectName(QStringLiteral("lblTotalsMeals1"));
    grdMealTargets->SetLabel(TargetsCaption());
    layout->addWidget(grdMealTargets);
  }
  if (kind.hasNetCalories) {
    netCalories_ = new NetCaloriesLine(parts.session, QStringLiteral("lblTotalsMeals2"), this);
    layout->addSpacing(spacing::tight);
    layout->addWidget(netCalories_);
  }
  Arrange();
}

void MealTotals::Arrange() {
  const QList<TotalsColumn> totals = TotalsUnder(parts_.day.Kind().isSmall);
  grdMealTotals->SetTotals(totals);
  if (grdMealTargets) grdMealTargets->SetTotals(totals);
}

void MealTotals::Update() {
  GuardedQuietly([this] {
    const JournalKind &kind = parts_.day.Kind();
    const GridDayRows rows(grid_);
    const DayTotals day = UpdateGridTotals(parts_.session, {rows, parts_.day.Date(), kind.entries, targets_});
    date_ = DayOf(rows, parts_.day.Date());
    totals_ = day.totals;
    targets_ = day.targets;
    ShowFigures(*grdMealTotals, totals_);
    grdMealTotals->SetLabel(DailyTotalsCaption(kind, parts_.day.View(), date_, parts_.session.locale));
    if (grdMealTargets) {
      ShowFigures(*grdMealTargets, targets_);
      grdMealTargets->setVisible(parts_.session.profile.NutTargetID != 0);
    }
    if (netCalories_) netCalories_->Tell(NetCalories(day.sums));
  });
}

QString MealTotals::NetCalories(const NutrientSums &sums) {
  const std::optional<std::size_t> calories = CaloriesPosition(parts_.session.nutrients);
  if (!calories) return {};
  if (!day_ || day_->date != date_) {
    const std::vector<NetCaloriesDay> days = ReadNetCalories(parts_.session, date_, date_);
    day_ = days.empty() ? NetCaloriesDay() : days.front();
    day_->date = date_;
  }
  return MealsNetCalories(parts_.session, *day_, sums[*calories]);
}

MealsClosing MealTotals::Closing() const {
  MealsClosing closing{.date = date_, .totals = totals_};
  if (grdMealTargets && !grdMealTargets->isHidden()) closing.targets = targets_;
  if (netCalories_) closing.netCalories = netCalories_->Text();
  return closing;
}

}  // namespace trimlog
