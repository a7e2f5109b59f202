#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "platform/grid/grid_source.h"
#include "platform/printing/printing.h"

namespace trimlog {

class Session;

/// The one note of a day, as a text box shows it.
struct DayNote {
  std::optional<int> RecordID;  ///< none: the day has no note
  QString text;
};
DayNote ReadDayNote(const Session &session, const QDate &date);

/// Stores a text into the note shown. A note that somebody deleted meanwhile is made anew for the day: what was
/// typed is never lost. One transaction.
DayNote StoreDayNote(Session &session, const QDate &date, const DayNote &shown, const QString &text);

/// The notes of a list, in its order, as a text to print; among several each begins with its day.
PrintedText NotesToPrint(const Session &session, const GridSource &source, const QDate &singleDate);

}  // namespace trimlog
