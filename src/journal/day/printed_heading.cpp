#include "journal/day/printed_heading.h"

#include "core/data/data_access.h"
#include "core/session/session.h"

namespace trimlog {

QString PrintedHeading(const Session &session, const QString &title) {
  return GetDataValue(session.Data(), QStringLiteral("PersonName"), QStringLiteral("people"),
                      QStringLiteral("PersonID = %1").arg(session.profile.CurrentPersonID.toInt())) +
         title;
}

}  // namespace trimlog
