#include "core/settings/settings.h"

#include <limits>
#include <variant>

#include "platform/error.h"

namespace trimlog {

namespace {

/// Whole numbers from first to last, and single ones beside them.
struct Allowed {
  int first = std::numeric_limits<qint16>::min();
  int last = std::numeric_limits<qint16>::max();
  QList<int> others = {};
  bool Takes(int value) const { return (value >= first && value <= last) || others.contains(value); }
};
constexpr int largestColor = 0xFFFFFF;

/// Where a value lives; the index counts the charts.
template <typename T>
struct OfChart {
  std::array<T, 4> Settings::*values;
  size_t chart;
};
using Place = std::variant<bool Settings::*, int Settings::*, QString Settings::*, OfChart<bool>, OfChart<int>>;

struct Row {
  QString name;
  Place place;
  QString fallback;
  Allowed allowed = {};
};

const QString storedTrue = QStringLiteral("-1");
const QString storedFalse = QStringLiteral("0");

QString Stored(bool value) { return value ? storedTrue : storedFalse; }
QString Stored(int value) { return QString::number(value); }
QString Stored(const QString &value) { return value; }

template <typename SettingsType, typename Member>
auto &At(SettingsType &settings, Member Settings::*place) {
  return settings.*place;
}
template <typename SettingsType, typename T>
auto &At(SettingsType &settings, const OfChart<T> &place) {
  return (settings.*place.values)[place.chart];
}

/// Takes a stored text over; false when it counts as missing.
bool TakeStored(bool &member, const QString &text, const Allowed &) {
  if (text != storedTrue && text != storedFalse) return false;
  member = text == storedTrue;
  return true;
}
bool TakeStored(int &member, const QString &text, const Allowed &allowed) {
  bool ok = false;
  const int value = text.trimmed().toInt(&ok);
  if (!ok || !allowed.Takes(value)) return false;
  member = value;
  return true;
}
bool TakeStored(QString &member, const QString &text, const Allowed &) {
  if (text.isEmpty()) return false;
  member = text;
  return true;
}

void AppendChartRows(QList<Row> &rows, const QString &name, std::array<bool, 4> Settings::*values, bool fallback) {
  for (size_t chart = 0; chart < 4; ++chart) {
    rows.append({name + QString::number(chart + 1), OfChart<bool>{values, chart}, Stored(fallback)});
  }
}
void AppendChartRows(QList<Row> &rows, const QString &name, std::array<int, 4> Settings::*values, int fallback,
                     const Allowed &allowed) {
  for (size_t chart = 0; chart < 4; ++chart) {
    rows.append({name + QString::number(chart + 1), OfChart<int>{values, chart}, Stored(fallback), allowed});
  }
}

/// The one table of the program's preferences.
QList<Row> DeclareRows() {
  const QString yes = storedTrue;
  const QString no = storedFalse;
  const Allowed askChoice{0, 2};  // never, always, ask
  const Allowed view{1, 2};       // all dates, one date
  const Allowed color{0, largestColor};
  constexpr int blue = 0xFF0000;  // blue-green-red byte order

  using S = Settings;
  QList<Row> rows = {
      {QStringLiteral("UomID"), &S::UomID, QStringLiteral("1"), {1, 2}},
      {QStringLiteral("OpenToday"), &S::OpenToday, yes},
      {QStringLiteral("ShowLoss"), &S::ShowLoss, no},
      {QStringLiteral("ColorCoding"), &S::ColorCoding, yes},
      {QStringLiteral("LossFactor"), &S::LossFactor, QStringLiteral("1"), {1, 1, {-1}}},
      {QStringLiteral("ShowCalories"), &S::ShowCalories, yes},
      {QStringLiteral("NutrientID"), &S::NutrientID, QStringLiteral("102"), {1, 35, {101, 102}}},
  };
  AppendChartRows(rows, QStringLiteral("ShowGridlines"), &S::ShowGridlines, true);
  AppendChartRows(rows, QStringLiteral("ShowDataLabels"), &S::ShowDataLabels, false);
  AppendChartRows(rows, QStringLiteral("PlotPoints"), &S::PlotPoints, true);
  AppendChartRows(rows, QStringLiteral("LineWidth"), &S::LineWidth, 1, {1, std::numeric_limits<qint16>::max()});
  AppendChartRows(rows, QStringLiteral("LineColor"), &S::LineColor, blue, color);
  AppendChartRows(rows, QStringLiteral("PointColor"), &S::PointColor, 0, color);
  rows.append({
      {QStringLiteral("BodyMeasDefault"), &S::BodyMeasDefault, QStringLiteral("1"), {1, 8}},
      {QStringLiteral("LinkDisclaimer"), &S::LinkDisclaimer, no},
      {QStringLiteral("RecalcCalories"), &S::RecalcCalories, yes},
      {QStringLiteral("ShowSplash"), &S::ShowSplash, yes},
      {QStringLiteral("ConfirmDeletes"), &S::ConfirmDeletes, yes},
      {QStringLiteral("ConfirmMealsUpdates"), &S::ConfirmMealsUpdates, QStringLiteral("2"), askChoice},
      {QStringLiteral("ConfirmExerciseUpdates"), &S::ConfirmExerciseUpdates, QStringLiteral("2"), askChoice},
      {QStringLiteral("SmartDates"), &S::SmartDates, yes},
      {QStringLiteral("BodyFat"), &S::BodyFat, yes},
      {QStringLiteral("NetCaloriesBMR"), &S::NetCaloriesBMR, yes},
      {QStringLiteral("PersonID"), &S::PersonID, QStringLiteral("1")},
      {QStringLiteral("NotesLines"), &S::NotesLines, QStringLiteral("3"), {1, 3, {5, 10}}},
      {QStringLiteral("DefaultDiaryTab"), &S::DefaultDiaryTab, QStringLiteral("1"), {0, 3}},
      {QStringLiteral("LastDiaryView"), &S::LastDiaryView, QStringLiteral("2"), view},
      {QStringLiteral("LastPlannerView"), &S::LastPlannerView, QStringLiteral("2"), view},
      {QStringLiteral("ShowTutorial"), &S::ShowTutorial, yes},
      {QStringLiteral("UserName"), &S::UserName, QStringLiteral("Unknown User")},
      {QStringLiteral("MedicalDisclaimer"), &S::MedicalDisclaimer, no},
      {QStringLiteral("FastFoodDisclaimer"), &S::FastFoodDisclaimer, no},
      {QStringLiteral("LastRecordTypeMeals"), &S::LastRecordTypeMeals, QStringLiteral("-1"), {-3, 3}},
  });
  return rows;
}

const QList<Row> &Rows() {
  static const QList<Row> rows = DeclareRows();
  return rows;
}

const Row &RowNamed(const QString &name) {
  for (const Row &row : Rows()) {
    if (row.name == name) return row;
  }
  throw Error(error_number::unknownColumn, QStringLiteral("There is no setting '%1'").arg(name));
}

bool Take(const Row &row, Settings &settings, const QString &text) {
  return std::visit([&](const auto &place) { return TakeStored(At(settings, place), text, row.allowed); }, row.place);
}

QString StoredOf(const Row &row, const Settings &settings) {
  return std::visit([&](const auto &place) { return Stored(At(settings, place)); }, row.place);
}

/// What the options window edits, in the order in which it is written.
QStringList SavedNames() {
  QStringList names = {QStringLiteral("UomID"),       QStringLiteral("OpenToday"),    QStringLiteral("ShowLoss"),
                       QStringLiteral("ColorCoding"), QStringLiteral("ShowCalories"), QStringLiteral("LossFactor"),
                       QStringLiteral("NutrientID")};
  for (int chart = 1; chart <= 4; ++chart) {
    for (const char *name : {"ShowGridlines", "ShowDataLabels", "PlotPoints", "LineWidth", "LineColor", "PointColor"}) {
      names.append(QLatin1String(name) + QString::number(chart));
    }
  }
  return names + QStringList{QStringLiteral("BodyMeasDefault"),
                             QStringLiteral("LinkDisclaimer"),
                             QStringLiteral("RecalcCalories"),
                             QStringLiteral("ShowSplash"),
                             QStringLiteral("ConfirmDeletes"),
                             QStringLiteral("ConfirmMealsUpdates"),
                             QStringLiteral("ConfirmExerciseUpdates"),
                             QStringLiteral("SmartDates"),
                             QStringLiteral("BodyFat"),
                             QStringLiteral("MedicalDisclaimer"),
                             QStringLiteral("NetCaloriesBMR"),
                             QStringLiteral("DefaultDiaryTab")};
}

}  // namespace

void LoadControlValues(Settings &settings, SettingsStore &store, bool writeDefaults) {
  const SettingsBatch batch(store);
  for (const Row &row : Rows()) {
    if (Take(row, settings, store.GetSettingString(settingsRoot, row.name)) || !writeDefaults) continue;
    Take(row, settings, row.fallback);
    store.SaveSettingString(settingsRoot, row.name, row.fallback);
  }
}

void SaveControlValues(const Settings &settings, SettingsStore &store) {
  const SettingsBatch batch(store);
  for (const QString &name : SavedNames()) SaveSetting(settings, store, name);
}

void SaveSetting(const Settings &settings, SettingsStore &store, const QString &valueName) {
  store.SaveSettingString(settingsRoot, valueName, StoredOf(RowNamed(valueName), settings));
}

QList<SettingRow> SettingRows() {
  QList<SettingRow> listed;
  for (const Row &row : Rows()) listed.append({row.name, row.fallback});
  return listed;
}

QString StoredValue(const Settings &settings, const QString &valueName) {
  return StoredOf(RowNamed(valueName), settings);
}

}  // namespace trimlog
