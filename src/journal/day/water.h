#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

namespace trimlog {

class Session;

/// A day's glasses of water, by the key of its row.
struct WaterRecord {
  int RecordID = 0;
  double WaterConsumed = 0;  ///< glasses, never below 0
  QDate ThisDate = {};       ///< the day that they belong to
};

/// The water of a day. A day without a row gets an empty one, so that visiting a day is enough to have it: one
/// transaction. The row then given stands on `dateShown`, also where the day looked for is that of another row in the
/// list; it is a new one only where that day has none.
WaterRecord LoadWaterRecord(Session &session, const QDate &date, const QDate &dateShown);

/// Stores a day's glasses. One transaction.
void SaveWater(Session &session, const WaterRecord &record, const QDate &date);

/// What a typed number of glasses counts as: 0 for text that is no number or lies below 0.
double GlassesOf(const QString &text, const QLocale &locale);
/// One glass more or less than the text says, never below 0.
double StepWater(const QString &text, bool more, const QLocale &locale);

}  // namespace trimlog
