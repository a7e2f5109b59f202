#pragma once

#include <QDate>
#include <QString>
#include <map>

namespace trimlog {

class Session;

/// A day's figure as it is shown.
struct DayFigure {
  QString text;
  QString tip;  ///< how it comes about; "" where the text says it all
};

/// The figures of the setting NutrientID for the current profile, by day. Days without any entry are left out. Reads
/// the rows of the range only. Throws what the store throws.
std::map<QDate, DayFigure> ReadCalendarNutrients(const Session &session, const QDate &first, const QDate &last);

}  // namespace trimlog
