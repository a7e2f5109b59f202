#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <optional>
#include <vector>

#include "platform/store/database.h"

namespace trimlog {

class Session;

struct WeightRow {
  QDate date;
  double weight = 0;
  double loss = 0;  ///< the previous dated weight minus this one
};

/// The dated weights of the current profile, in the unit system in force when they were typed. Each reader takes as
/// many rows as it answers with, however long the history. Everything throws what the store throws.
class WeightLog {
 public:
  explicit WeightLog(const Session &session);

  std::optional<WeightRow> Before(const QDate &date) const;
  std::optional<WeightRow> After(const QDate &date) const;
  /// By date, both ends included.
  std::vector<WeightRow> Between(const QDate &first, const QDate &last) const;
  std::optional<double> LowestBetween(const QDate &first, const QDate &last) const;

  /// Gives an existing row a new loss.
  void StoreLoss(const QDate &date, double loss);
  void Delete(const QDate &date);
  void Insert(const WeightRow &row);

 private:
  std::optional<WeightRow> FirstOf(const QString &condition, const QString &order, const Params &params = {}) const;

  Database &database_;
  const int personID_;
};

/// A loss without the dust that subtracting decimals in binary leaves: 200.1 - 190.05 is 10.05.
double LossBetween(double previous, double next);

/// The new loss of the row behind a changed date. `weight` is what now stands on that date, nothing for a removed
/// weight; then the loss reaches back to the previous weight, and a row that becomes the first of all has lost nothing.
double NextLoss(const std::optional<double> &weight, const std::optional<WeightRow> &previous, const WeightRow &next);

/// A typed weight. Blanks around it are ignored, and what the file's two decimals cannot tell from nothing is not
/// positive.
struct TypedWeight {
  enum class Check { Fine, NotNumeric, NotPositive };
  Check check = Check::Fine;
  std::optional<double> weight;  ///< rounded to two decimals, as the file keeps it; nothing for an empty text
  QString text;                  ///< what the cell shows for it; the text itself when it is refused
};
TypedWeight ReadTypedWeight(const QString &text, const QLocale &locale);

/// A weight as text in the person's locale, with the file's two decimals at most: "182.5", "93,5".
QString WeightText(double weight, const QLocale &locale);

}  // namespace trimlog
