#include "core/frame/frame_data.h"

#include "core/data/data_access.h"
#include "core/profiles/goal.h"
#include "platform/store/recordset.h"

namespace trimlog {

PersonFigures ReadPersonFigures(Session &session) {
  const Recordset datPeople = session.Data().OpenRecordset(
      QStringLiteral("SELECT people.* from people WHERE PersonID=?"), {session.profile.CurrentPersonID.toInt()});
  if (datPeople.Eof()) return {};
  return {datPeople.Text(QStringLiteral("PersonName")),
          GoalToShow(datPeople.Text(QStringLiteral("Goal")), session.locale)};
}

bool HasHandheldMeals(Session &session) {
  return !GetDataValue(session.Data(), QStringLiteral("MealID"), QStringLiteral("palm_selected_meals")).isEmpty();
}

}  // namespace trimlog
