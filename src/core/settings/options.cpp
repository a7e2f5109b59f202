#include "core/settings/options.h"

#include "core/data/data_access.h"
#include "core/settings/unit_system.h"
#include "core/settings/window_position.h"
#include "platform/store/recordset.h"

namespace trimlog {

const QList<OptionChoice> &LineWidths() {
  static const QList<OptionChoice> widths = {{1, QStringLiteral("Very Fine (default)")},
                                             {2, QStringLiteral("Fine")},
                                             {3, QStringLiteral("Medium")},
                                             {4, QStringLiteral("Thick")},
                                             {6, QStringLiteral("Very Thick")},
                                             {8, QStringLiteral("Huge")}};
  return widths;
}

const QList<OptionChoice> &DiaryTabs() {
  static const QList<OptionChoice> tabs = {{0, QStringLiteral("Notes")},
                                           {1, QStringLiteral("Meals/Snacks")},
                                           {2, QStringLiteral("Exercises/Workouts")},
                                           {3, QStringLiteral("Body Measurements")}};
  return tabs;
}

const QList<OptionChoice> &BodyTypes() {
  static const QList<OptionChoice> types = {{1, QStringLiteral("Chest")},   {2, QStringLiteral("Waist")},
                                            {3, QStringLiteral("Hips")},    {4, QStringLiteral("Biceps")},
                                            {5, QStringLiteral("Forearm")}, {6, QStringLiteral("Thigh")},
                                            {7, QStringLiteral("Calf")},    {8, QStringLiteral("Body Fat %")}};
  return types;
}

const QList<QString> &ChartNames() {
  static const QList<QString> names = {QStringLiteral("Weight Lost by Week"), QStringLiteral("Your Weight"),
                                       QStringLiteral("Nutrients and Calories"),
                                       QStringLiteral("Your Body Measurements")};
  return names;
}

QList<OptionChoice> UnitChoices(Session &session) {
  QList<OptionChoice> units;
  Recordset rows = session.Data().OpenRecordset(QStringLiteral("SELECT uom.* FROM uom ORDER BY uom.UomID;"));
  for (; !rows.Eof(); rows.MoveNext()) {
    units.append({rows.Integer(QStringLiteral("UomID")), rows.Text(QStringLiteral("UomDescription"))});
  }
  return units;
}

QList<OptionChoice> NutrientChoices(const Nutrients &nutrients) {
  QList<OptionChoice> choices = {{nutrient_id::calories, QStringLiteral("Calories Consumed (kcal)")},
                                 {nutrient_id::caloriesBurned, QStringLiteral("Calories Burned (kcal)")},
                                 {nutrient_id::netCalories, QStringLiteral("Net Calories (kcal)")}};
  for (int id = nutrient_id::calories + 1; id <= nutrientCount; ++id) {
    const QString given = CustomNutrientName(nutrients, id);
    const QString name = given.isEmpty() ? Definition(nutrients, id).descriptionPlusUnit : given;
    if (!name.isEmpty()) choices.append({id, name});
  }
  return choices;
}

UnitLabels LabelsOf(int uomID) {
  if (uomID == poundsSystem) {
    return {QStringLiteral("lbs."), QStringLiteral("Ht (ft.)"), QStringLiteral("Ht (in.)"),
            QStringLiteral("Goal (lbs.)")};
  }
  return {QStringLiteral("kg."), QStringLiteral("Ht (m.)"), QStringLiteral("Ht (cm.)"), QStringLiteral("Goal (kg.)")};
}

void RereadNutrientID(Session &session) {
  session.settings.NutrientID =
      session.store.GetSettingLong(settingsRoot, QStringLiteral("NutrientID"), session.settings.NutrientID);
}

void StoreOptions(Session &session, const Settings &edited) {
  session.settings = edited;
  session.UomDisplay = GetDataValue(session.Data(), QStringLiteral("UomDisplay"), QStringLiteral("uom"),
                                    QStringLiteral("((uom.UomID)=?)"), {}, {edited.UomID});
  SaveControlValues(session.settings, session.store);
  session.changes.AnnounceSettings();
}

void StoreLossFactor(Session &session, int lossFactor) {
  session.settings.LossFactor = lossFactor;
  SaveSetting(session.settings, session.store, QStringLiteral("LossFactor"));
  session.changes.AnnounceSettings();
}

void ResetQuickJournalPlace(Session &session) {
  session.windows.quickJournalPlace = DefaultQuickJournalPlace(session.windows.framePlace);
  WindowPosition(session, true, WindowGroup::QuickJournalPosition);
  WindowPosition(session, true, WindowGroup::QuickJournalSize);
}

}  // namespace trimlog
