#include "core/session/current_profile.h"

namespace trimlog {

bool CurrentProfile::IsSample() const { return IsSampleProfile(CurrentPersonID); }

bool IsSampleProfile(const QString &personID) {
  return personID == QLatin1String("-1") || personID == QLatin1String("-2") || personID == QLatin1String("-3") ||
         personID == QLatin1String("-4");
}

}  // namespace trimlog
