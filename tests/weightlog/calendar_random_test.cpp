#include <gtest/gtest.h>

#include <random>

#include "typed_calendar.h"

namespace trimlog {
namespace {

/// The log kept by hand, in hundredths, so that every figure is exact.
using Hundredths = qint64;
struct KeptRow {
  Hundredths weight = 0;
  Hundredths loss = 0;
};
using KeptLog = std::map<QDate, KeptRow>;

/// Rounded to tenths, halves away from zero, as a loss is shown.
Hundredths Tenths(Hundredths value) { return (value >= 0 ? value + 5 : value - 5) / 10 * 10; }

void Keep(KeptLog &log, const QDate &date, std::optional<Hundredths> weight) {
  log.erase(date);
  auto next = log.upper_bound(date);
  std::optional<Hundredths> before;
  if (next != log.begin()) before = std::prev(next)->second.weight;
  if (next != log.end()) {
    const std::optional<Hundredths> reference = weight ? weight : before;
    next->second.loss = reference ? *reference - next->second.weight : 0;
  }
  if (weight) log[date] = {*weight, before ? Tenths(*before - *weight) : 0};
}

QString Decimal(Hundredths value, int decimals) {
  return QString::number(static_cast<double>(value) / 100, 'f', decimals);
}

class RandomLog : public testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(RandomLog, AgreesWithALogKeptByHand) {
  const auto [UomID, LossFactor] = GetParam();
  TypedCalendar calendar;
  calendar.session->settings.UomID = UomID;
  calendar.session->settings.LossFactor = LossFactor;
  calendar.session->settings.ShowCalories = false;
  std::mt19937 random(static_cast<unsigned>(UomID * 10 + LossFactor));
  const auto number = [&random](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  const QDate start(2025, 11, 20);
  KeptLog kept;
  for (int step = 0; step < 400; ++step) {
    const QDate date = start.addDays(number(100));
    const bool clears = number(4) == 0;
    const Hundredths weight = 18000 + number(2000);
    ASSERT_TRUE(calendar.Type(date, clears ? QString() : Decimal(weight, 2)));
    if (!(clears && kept.count(date) == 0) && !(!clears && kept.count(date) && kept[date].weight == weight)) {
      Keep(kept, date, clears ? std::nullopt : std::optional(weight));
    }

    QStringList rows;
    for (const auto &[day, row] : kept) {
      rows.append(QStringLiteral("%1 %2/%3")
                      .arg(day.toString("MM-dd"), PlainText(static_cast<double>(row.weight) / 100),
                           PlainText(static_cast<double>(row.loss) / 100)));
    }
    ASSERT_EQ(calendar.Rows(), rows.join(", ").toStdString()) << "step " << step;

    // Read afresh, the month shows each loss with one decimal, and the totals add up what is shown.
    calendar.model->Refresh();
    const CalendarMonth &month = calendar.model->Month();
    Hundredths whole = 0;
    for (int row = 1; row <= calendarRows; ++row) {
      Hundredths week = 0;
      for (int i = row * 7 - 6; i <= row * 7; ++i) {
        const CalendarCell &cell = month.Cell(i);
        const auto found = kept.find(cell.date);
        ASSERT_EQ(cell.data.isEmpty(), found == kept.end());
        if (found == kept.end() || !cell.visible) continue;
        const Hundredths shown = Tenths(found->second.loss * LossFactor);
        ASSERT_EQ(cell.loss, Decimal(shown, 1));
        week += shown;
        if (cell.date.month() == month.firstDate.month()) whole += shown;
      }
      ASSERT_EQ(month.Total(row).text, Decimal(week, UomID == 1 ? 1 : 2));
    }
    ASSERT_EQ(month.monthTotal.text, Decimal(whole, UomID == 1 ? 1 : 2));
    ASSERT_EQ(month.monthTotal.color, whole * LossFactor > 0   ? calendar_colour::loss
                                      : whole * LossFactor < 0 ? calendar_colour::gain
                                                               : calendar_colour::even);
    if (kept.empty()) continue;
    ASSERT_EQ(calendar.session->profile.FirstWeightDate, kept.begin()->first);
    ASSERT_EQ(calendar.session->profile.LastWeightDate, kept.rbegin()->first);
    const Hundredths lost = kept.begin()->second.weight - kept.rbegin()->second.weight;
    const QString shownLost = calendar.session->profile.statistics.LbsLost;
    if (lost < 0) {
      ASSERT_TRUE(shownLost.startsWith("Gained "));
    } else {
      ASSERT_EQ(shownLost, PlainText(static_cast<double>((lost + 5) / 10) / 10));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(UnitsAndSigns, RandomLog, testing::Combine(testing::Values(1, 2), testing::Values(1, -1)));

}  // namespace
}  // namespace trimlog
