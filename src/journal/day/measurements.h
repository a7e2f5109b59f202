#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <array>
#include <optional>

namespace trimlog {

class Session;

/// The eight measurements of a day, in the order in which they are shown. Sizes are in inches or centimetres, the body
/// fat in percent.
struct MeasurementField {
  const char *column;  ///< of the table, and the stem of the control names: txtChest1, txtChest2, pnlChest2
  const char *name;    ///< as messages call it
};
inline constexpr std::array<MeasurementField, 8> measurementFields = {{{"Chest", "Chest Size"},
                                                                       {"Waist", "Waist Size"},
                                                                       {"Hips", "Hips Size"},
                                                                       {"Biceps", "Bicep Size"},
                                                                       {"Forearm", "Forearm Size"},
                                                                       {"Thigh", "Thigh Size"},
                                                                       {"Calf", "Calf Size"},
                                                                       {"BodyFat", "Body Fat Percentage"}}};
inline constexpr std::size_t waistField = 1;
inline constexpr std::size_t bodyFatField = 7;

template <typename Item>
using PerMeasurement = std::array<Item, measurementFields.size()>;

/// The latest set of measurements before a day.
struct PreviousMeasurements {
  QString heading;  ///< "Previous (11/3/2026)", "Previous (none)"
  PerMeasurement<double> values{};
};
PreviousMeasurements LoadPreviousMeasurements(const Session &session, const QDate &date);

/// Previous minus current, in two decimals for inches and one for centimetres; body fat always in two. A box that holds
/// no number ends the comparison: it and those behind it show "--".
PerMeasurement<QString> MeasurementDifferences(const PreviousMeasurements &previous,
                                               const PerMeasurement<QString> &typed, int UomID, const QLocale &locale);

/// What was lost between the oldest set of measurements and another: "1.25 ". Cells that hold no number count as 0.
PerMeasurement<QString> MeasurementTotals(const PerMeasurement<QString> &oldest, const PerMeasurement<QString> &current,
                                          const QLocale &locale);

/// The body fat in percent, two decimals, that a waist and the latest weight on or before the date give; no value when
/// it cannot be told.
std::optional<QString> BodyFatFromWaist(const Session &session, const QString &waist, const QDate &date);

}  // namespace trimlog
