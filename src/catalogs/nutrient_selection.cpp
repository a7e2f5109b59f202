#include "catalogs/nutrient_selection.h"

#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"

namespace trimlog {

QList<NutrientChoice> SelectableNutrients(Session &session) {
  QList<NutrientChoice> choices;
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT nutrients.* FROM nutrients ORDER BY nutrients.NutSortOrder;"));
  for (; !rows.Eof(); rows.MoveNext()) {
    choices.append({rows.Integer(QStringLiteral("NutrientID")), rows.Text(QStringLiteral("NutDescPlusUoM")),
                    rows.Text(QStringLiteral("NutShortDescription"))});
  }
  return choices;
}

NutrientSelection ReadNutrientSelection(Session &session) {
  Nutrients nutrients;
  FillSelectedNutrientsArray(nutrients, session.Data());
  return nutrients.SelectedNutrients;
}

void SaveNutrientSelection(Session &session, const NutrientSelection &selection) {
  Change change(session);
  QStringList assignments;
  Params params;
  for (int position = 1; position <= shownNutrients; ++position) {
    const SelectedNutrient &shown = selection[static_cast<std::size_t>(position - 1)];
    assignments.append(QStringLiteral("selected_nutrients.NutrientID%1 = ?, selected_nutrients.NutDescription%1 = ?, "
                                      "selected_nutrients.NutTotal%1 = ?")
                           .arg(position));
    params << shown.NutrientID << shown.description << shown.NutTotal;
  }
  const qint64 stored =
      session.Data().Execute(QStringLiteral("UPDATE selected_nutrients SET ") + assignments.join(QStringLiteral(", ")) +
                                 QStringLiteral(" WHERE ((selected_nutrients.PersonID) = 1);"),
                             params);
  if (stored == 0) throw Error(error_number::noCurrentRecord, QStringLiteral("There is no selection to change."));
  change.Afterwards([&session] { FillSelectedNutrientsArray(session.nutrients, session.Data()); });
  change.Announce({.table = Table::SelectedNutrients, .keys = {1}});
  change.Commit();
}

bool HandheldHoldsFoods(Session &session) {
  return !GetDataValue(session.Data(), QStringLiteral("MealID"), QStringLiteral("palm_selected_meals")).isEmpty();
}

}  // namespace trimlog
