#pragma once

#include <QDate>
#include <QString>

#include "platform/store/database.h"

namespace trimlog {

/// Refills the work table temp_alldates: emptied, then with `addRows` one row for each day from `first` to `last`, both
/// included, ThisIndex counting from 1. One transaction. A table that holds exactly these rows already is left alone,
/// so that showing the same days again writes nothing.
void FillAllDates(Database &database, const QString &personID, const QDate &first, const QDate &last,
                  bool addRows = true);

}  // namespace trimlog
