// The data file, table by table. What a column means and how it is kept is told in docs/data-file.md.
#include "core/data/schema.h"

namespace trimlog {

namespace {

using Columns = QList<SchemaColumn>;

/// Columns of one type by name: Of(ColumnType::Double, "Carbs Fat Protein").
Columns Of(ColumnType type, const char *names) {
  Columns columns;
  for (const QString &name : QString::fromLatin1(names).split(QLatin1Char(' '))) columns.append({name, type, 0});
  return columns;
}
Columns Text(int length, const char *names) {
  Columns columns = Of(ColumnType::Text, names);
  for (SchemaColumn &column : columns) column.length = length;
  return columns;
}
Columns Flags(const char *names) { return Of(ColumnType::Boolean, names); }
Columns Bytes(const char *names) { return Of(ColumnType::Byte, names); }
Columns Integers(const char *names) { return Of(ColumnType::Integer, names); }
Columns Longs(const char *names) { return Of(ColumnType::Long, names); }
Columns Singles(const char *names) { return Of(ColumnType::Single, names); }
Columns Numbers(const char *names) { return Of(ColumnType::Double, names); }
Columns Weights(const char *names) { return Of(ColumnType::Decimal2, names); }
Columns Dates(const char *names) { return Of(ColumnType::Date, names); }
Columns Memos(const char *names) { return Of(ColumnType::Memo, names); }

/// The columns of one kind counted through: Numbered(ColumnType::Memo, "Question", 10).
Columns Numbered(ColumnType type, const QString &name, int count) {
  Columns columns;
  for (int i = 1; i <= count; ++i) columns.append({name + QString::number(i), type, 0});
  return columns;
}

QStringList Key(const char *names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); }

/// Descriptions and names that a person types; what feeds a menu or a grid cell.
constexpr int nameLength = 255;

Columns FirstNutrients() { return Numbers("Calories Carbs Fat"); }
Columns MoreNutrients() {
  return Numbers(
      "Protein Fiber Calcium Iron Sodium Potassium Zinc VitaminA VitaminE VitaminB6 VitaminB12 VitaminC SatFat MonoFat "
      "PolyFat Cholesterol Sugar Alcohol CalFromFat CalFromFatPct CalFromProtein CalFromProteinPct CalFromCarb "
      "CalFromCarbPct Custom1 Custom2 Custom3 Custom4 Custom5");
}
/// These three came with a later release, which is why they stand last everywhere.
Columns LastNutrients() { return Integers("NetCarbs") + Numbers("SugarAlcohols TransFat"); }
Columns AllNutrients() { return FirstNutrients() + MoreNutrients() + LastNutrients(); }

SchemaRelation OfPerson() { return {QStringLiteral("PersonID"), QStringLiteral("people"), QStringLiteral("PersonID")}; }
SchemaRelation OfFood() { return {QStringLiteral("MealID"), QStringLiteral("meals_list"), QStringLiteral("MealID")}; }
SchemaRelation OfRecipe() {
  return {QStringLiteral("RecipeID"), QStringLiteral("meals_list"), QStringLiteral("MealID")};
}
SchemaRelation OfExercise() {
  return {QStringLiteral("ActivityID"), QStringLiteral("activities_list"), QStringLiteral("ActivityID")};
}

SchemaIndex PersonDate() { return {QStringLiteral("PersonDate"), QStringLiteral("PersonID, ThisDate")}; }

SchemaTable WeightLoss(const QString &name) {
  return {name,
          Integers("PersonID") + Dates("ThisDate") + Weights("ThisWeight ThisLoss"),
          Key("PersonID ThisDate"),
          {OfPerson()},
          {}};
}

SchemaTable Notes(const QString &name) {
  return {name,
          Integers("PersonID") + Longs("RecordID") + Dates("ThisDate") + Memos("Notes"),
          Key("PersonID RecordID"),
          {OfPerson()},
          {PersonDate()}};
}

SchemaTable Measurements(const QString &name) {
  return {name,
          Integers("PersonID") + Longs("RecordID") + Dates("ThisDate") +
              Numbers("Biceps Forearm Thigh Calf Chest Waist Hips BodyFat"),
          Key("PersonID RecordID"),
          {OfPerson()},
          {PersonDate()}};
}

/// The index Journal gives a day's or a profile's entries in the order in which the journal shows them, and a day's
/// calories without touching the rows themselves.
SchemaTable Meals(const QString &name) {
  return {name,
          Integers("PersonID") + Longs("RecordID") + Dates("ThisDate") + Integers("MealTypeID") + Longs("MealID") +
              Text(nameLength, "Amount") + Numbers("GIValue") + Memos("Notes") + FirstNutrients() + MoreNutrients() +
              Flags("IsPlanned") + LastNutrients(),
          Key("PersonID RecordID"),
          {OfPerson(), OfFood()},
          {{QStringLiteral("Journal"),
            QStringLiteral("PersonID, IsPlanned, ThisDate DESC, MealTypeID, RecordID, Calories")},
           {QStringLiteral("PersonDate"), QStringLiteral("PersonID, ThisDate, MealID")},
           {QStringLiteral("Food"), QStringLiteral("MealID")}}};
}

SchemaTable Activities(const QString &name) {
  return {name,
          Integers("PersonID") + Longs("RecordID") + Dates("ThisDate") + Longs("ActivityID") +
              Text(nameLength, "Duration Amount Pace") + Integers("Sets Reps") + Numbers("Calories") + Memos("Notes") +
              Flags("IsPlanned"),
          Key("PersonID RecordID"),
          {OfPerson(), OfExercise()},
          {{QStringLiteral("Journal"), QStringLiteral("PersonID, IsPlanned, ThisDate DESC, RecordID, Calories")},
           PersonDate(),
           {QStringLiteral("Exercise"), QStringLiteral("ActivityID")}}};
}

QList<SchemaTable> Catalogs() {
  Columns selection;
  for (int i = 1; i <= 10; ++i) {
    const QString number = QString::number(i);
    selection += {{QStringLiteral("NutrientID") + number, ColumnType::Integer, 0},
                  {QStringLiteral("NutDescription") + number, ColumnType::Text, nameLength},
                  {QStringLiteral("NutTotal") + number, ColumnType::Boolean, 0}};
  }
  return {
      {QStringLiteral("people"),
       Integers("PersonID") + Text(nameLength, "PersonName") + Text(50, "Goal") +
           Integers("TrackingMethodID GoalMethodID") + Numbers("GoalMethodLbsWeek") +
           Dates("GoalMethodDate BirthDate") + Numbers("HeightFeet HeightInches") + Integers("GenderID") +
           Text(25, "Password") + Longs("BackColor") + Text(25, "UserID") + Bytes("NutTargetID"),
       Key("PersonID"),
       {},
       {}},
      {QStringLiteral("meals_list"),
       Longs("MealID") + Text(nameLength, "MealDesc Amount") + FirstNutrients() + Numbers("GIValue") +
           Text(20, "USDANum") + Integers("RecordTypeID MealGroupID") + MoreNutrients() + Flags("IsModified") +
           LastNutrients(),
       Key("MealID"),
       {},
       {{QStringLiteral("Name"), QStringLiteral("lower(MealDesc)")},
        {QStringLiteral("OwnFirst"), QStringLiteral("RecordTypeID DESC, lower(MealDesc), MealGroupID")},
        {QStringLiteral("RecordType"), QStringLiteral("RecordTypeID, MealGroupID")},
        {QStringLiteral("MealGroup"), QStringLiteral("MealGroupID, RecordTypeID")}}},
      {QStringLiteral("activities_list"),
       Longs("ActivityID") + Text(nameLength, "ActivityDesc Duration Amount Pace") + Integers("Sets Reps") +
           Numbers("Calories") + Integers("RecordTypeID") + Flags("IsModified"),
       Key("ActivityID"),
       {},
       {}},
      {QStringLiteral("meal_types"),
       Integers("MealTypeID") + Text(nameLength, "MealTypeDesc"),
       Key("MealTypeID"),
       {},
       {}},
      {QStringLiteral("meal_groups"),
       Integers("MealGroupID") + Text(nameLength, "MealGroupDescription"),
       Key("MealGroupID"),
       {},
       {}},
      {QStringLiteral("nutrients"),
       Integers("NutrientID") + Text(nameLength, "NutDescription NutShortDescription NutFieldName NutFormat") +
           Integers("NutSortOrder") + Text(nameLength, "NutUoMShort NutUoMLong NutDescPlusUoM"),
       Key("NutrientID"),
       {},
       {}},
      {QStringLiteral("nutrition_targets"),
       Bytes("TargetID") + Text(nameLength, "TargetDesc") + Bytes("TargetType") + Integers("Calories CalFromFat") +
           Singles(
               "Fat SatFat PolyFat MonoFat Cholesterol Sodium Potassium Carbs Fiber Sugar Protein VitaminA VitaminC "
               "Calcium Iron VitaminE VitaminB6 VitaminB12 Zinc Alcohol") +
           Integers("CalFromCarb CalFromProtein") + Bytes("CalFromFatPct CalFromCarbPct CalFromProteinPct") +
           Numbered(ColumnType::Single, QStringLiteral("Custom"), 5) + LastNutrients(),
       Key("TargetID"),
       {},
       {}},
      {QStringLiteral("selected_nutrients"), selection + Integers("PersonID"), Key("PersonID"), {}, {}},
      {QStringLiteral("recipes"), Longs("RecipeID"), Key("RecipeID"), {}, {}},
      {QStringLiteral("recipe_detail"),
       Longs("RecipeID MealID") + Numbers("Servings"),
       Key("RecipeID MealID"),
       {OfRecipe(), OfFood()},
       {{QStringLiteral("Food"), QStringLiteral("MealID")}}},
      {QStringLiteral("links"),
       Longs("LinkID") + Text(nameLength, "Description") + Memos("Address") + Integers("Rank"),
       Key("LinkID"),
       {},
       {}},
      {QStringLiteral("uom"), Integers("UomID") + Text(nameLength, "UomDescription UomDisplay"), Key("UomID"), {}, {}},
      {QStringLiteral("bmi"),
       Integers("UomID") + Numbers("Height") + Integers("Weight bmi"),
       Key("UomID Height Weight"),
       {},
       {}},
      {QStringLiteral("version_info"), Numbers("Version"), {}, {}, {}},
      {QStringLiteral("palm_selected_meals"), Longs("MealID"), {}, {}, {}},
  };
}

QList<SchemaTable> PersonTables() {
  // A session without any profile yet stores reward settings for the profile that is about to be made.
  SchemaRelation rewardOfPerson = OfPerson();
  rewardOfPerson.parentNeeded = false;
  return {
      WeightLoss(QStringLiteral("weight_loss")),
      Notes(QStringLiteral("notes")),
      Measurements(QStringLiteral("measurements")),
      Meals(QStringLiteral("meals")),
      Activities(QStringLiteral("activities")),
      {QStringLiteral("other_daily_data"),
       Integers("PersonID") + Longs("RecordID") + Dates("ThisDate") + Singles("WaterConsumed"),
       Key("PersonID RecordID"),
       {OfPerson()},
       {PersonDate()}},
      {QStringLiteral("rewards"),
       Integers("PersonID RewardType") + Numbers("RewardWeight") + Memos("RewardMessage RewardSound"),
       Key("PersonID"),
       {rewardOfPerson},
       {}},
      {QStringLiteral("serava_journal"),
       Integers("PersonID") + Dates("ThisDate") + Integers("Light") + Flags("Exercise Supplements") +
           Numbered(ColumnType::Memo, QStringLiteral("Question"), 10) +
           Numbered(ColumnType::Integer, QStringLiteral("Inventory"), 20),
       Key("PersonID ThisDate"),
       {OfPerson()},
       {}},
      WeightLoss(QStringLiteral("weight_loss_sample")),
      Notes(QStringLiteral("notes_sample")),
      Measurements(QStringLiteral("measurements_sample")),
      Meals(QStringLiteral("meals_sample")),
      Activities(QStringLiteral("activities_sample")),
  };
}

QList<SchemaTable> WorkTables() {
  return {
      {QStringLiteral("temp_alldates"), Dates("ThisDate") + Integers("PersonID") + Longs("ThisIndex"), {}, {}, {}},
      {QStringLiteral("temp_graph1"), Text(nameLength, "ThisWeek"), {}, {}, {}},
      {QStringLiteral("temp_export"), Dates("ThisDate") + Weights("ThisWeight ThisLoss") + Memos("Notes"), {}, {}, {}},
      {QStringLiteral("temp_recipes"), Longs("RecipeID") + AllNutrients(), Key("RecipeID"), {}, {}},
      {QStringLiteral("temp_meals_search"),
       Longs("MealID") + Text(nameLength, "MealDesc") + Integers("MealGroupID") + Text(nameLength, "Amount") +
           AllNutrients() + Numbers("GIValue") + Text(20, "USDANum") + Integers("RecordTypeID") + Flags("IsModified"),
       Key("MealID"),
       {},
       {}},
      {QStringLiteral("temp_recent_meals"), Longs("MealID"), {}, {}, {}},
      {QStringLiteral("temp_planned_meals"),
       Integers("PersonID") + Longs("RecordID") + Integers("MealTypeID") +
           Text(nameLength, "MealTypeDesc MealDesc Amount") + Flags("IsSelected"),
       Key("PersonID RecordID"),
       {},
       {}},
      {QStringLiteral("temp_planned_activities"),
       Integers("PersonID") + Longs("RecordID") + Text(nameLength, "ActivityDesc Duration Amount Pace") +
           Integers("Sets Reps") + Flags("IsSelected"),
       Key("PersonID RecordID"),
       {},
       {}},
  };
}

/// One row a person and day, with the day's sum over its eaten or burned entries. Written as the day's first entry plus
/// a sum, not as GROUP BY: a grouped query inside a join is computed for all people and years first, this one only for
/// the days asked for. The "+ 0" keeps SQLite from looking for the day's first entry along the record numbers, from the
/// person's first day on, in place of the index by date.
SchemaView CalorieSum(const QString &name, const QString &table, const QString &sum) {
  return {name,
          {QStringLiteral("PersonID"), QStringLiteral("ThisDate"), sum},
          QStringLiteral("SELECT opening.PersonID, opening.ThisDate, "
                         "(SELECT Sum(entry.Calories) FROM %1 AS entry WHERE entry.PersonID = opening.PersonID "
                         "AND entry.IsPlanned = 0 AND entry.ThisDate = opening.ThisDate) AS %2 "
                         "FROM %1 AS opening WHERE opening.IsPlanned = 0 AND opening.RecordID = "
                         "(SELECT Min(entry.RecordID + 0) FROM %1 AS entry WHERE entry.PersonID = opening.PersonID "
                         "AND entry.IsPlanned = 0 AND entry.ThisDate = opening.ThisDate)")
              .arg(table, sum)};
}

}  // namespace

const QList<SchemaTable> &SchemaTables() {
  static const QList<SchemaTable> tables = Catalogs() + PersonTables() + WorkTables();
  return tables;
}

const QList<SchemaView> &SchemaViews() {
  static const QList<SchemaView> views = {
      CalorieSum(QStringLiteral("qryCalorieSumMeals"), QStringLiteral("meals"), QStringLiteral("CaloriesEaten")),
      CalorieSum(QStringLiteral("qryCalorieSumActivities"), QStringLiteral("activities"),
                 QStringLiteral("CaloriesBurned")),
  };
  return views;
}

}  // namespace trimlog
