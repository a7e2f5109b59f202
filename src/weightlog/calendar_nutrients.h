#pragma once

#include <QDate>
#include <QString>
#include <map>

namespace trimlog {

class Session;

/// The figures of the setting NutrientID for the current profile, by day, as the text shown. Days without any entry are
/// left out. Reads the rows of the range only. Throws what the store throws.
std::map<QDate, QString> ReadCalendarNutrients(const Session &session, const QDate &first, const QDate &last);

}  // namespace trimlog
