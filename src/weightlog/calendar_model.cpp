#include "weightlog/calendar_model.h"

#include "core/session/change.h"
#include "core/session/failure_guard.h"
#include "core/session/session.h"
#include "platform/text/text_format.h"
#include "weightlog/calendar_nutrients.h"
#include "weightlog/weight_log.h"
#include "weightlog/weight_statistics.h"

namespace trimlog {

namespace {

FailureExit LossFailure() {
  return {QStringLiteral("basMain"), QStringLiteral("UpdateLoss"), QStringLiteral("Error Saving Daily Loss"),
          QStringLiteral("An error occurred while saving daily loss information.")};
}

FailureExit SaveFailure() {
  return {QStringLiteral("frmData"), QStringLiteral("txtData_LostFocus"), QStringLiteral("Error Saving Data"),
          QStringLiteral("An error occurred while saving your data for this day.")};
}

FailureExit FindFailure() {
  return {QStringLiteral("frmData"), QStringLiteral("FindRecords"), QStringLiteral("Error Finding Data"),
          QStringLiteral("An error occurred while trying to find data for this month.")};
}

FailureExit MonthFailure(const QString &procedure) {
  return {QStringLiteral("frmData"), procedure, QStringLiteral("Error Changing Months"),
          QStringLiteral("An error occurred while changing months.")};
}

/// Both the rows and the cells go by date, so one walk brings them together.
void ShowWeights(CalendarMonth &month, const std::vector<WeightRow> &rows, int LossFactor, const QLocale &locale) {
  auto row = rows.begin();
  for (CalendarCell &cell : month.cells) {
    if (row != rows.end() && row->date == cell.date) {
      cell.data = WeightText(row->weight, locale);
      cell.loss = Format(row->loss * LossFactor, QStringLiteral("0.0"), locale);
      ++row;
    } else {
      cell.data.clear();
      cell.loss.clear();
    }
  }
}

}  // namespace

CalendarModel::CalendarModel(Session &session) : session_(session) {}

bool CalendarModel::IsNewcomer() const { return !session_.profile.LastWeightDate.isValid(); }

void CalendarModel::Load() {
  UpdateStats(session_);
  const QDate remembered = session_.windows.RememberedDate;
  const bool sample = session_.profile.IsSample();
  const bool today = !sample && !remembered.isValid() && session_.settings.OpenToday;
  BuildMonth(today ? session_.Today() : GetFirstDay());
  if (today) {
    SetActiveDate(month_.IndexOf(session_.Today()));
  } else if (sample || !remembered.isValid()) {
    GotoNextDate();
  } else {
    GotoCalendarDate(remembered);
  }
}

QDate CalendarModel::GetFirstDay() const {
  QDate day = session_.Today();
  if (session_.profile.LastWeightDate.isValid()) {
    day = session_.windows.RememberedDate.isValid() ? session_.windows.RememberedDate : session_.profile.LastWeightDate;
  }
  return QDate(day.year(), day.month(), 1);
}

bool CalendarModel::BuildMonth(const QDate &anyDay) {
  const CalendarMonth before = month_;
  month_.currentIndex = 0;
  month_.currentDate = {};
  FillCalendarDates(month_, anyDay, session_.locale);
  HideDays(month_, session_.settings, session_.profile.BackColor);
  if (!FindRecords()) {
    // Weights under the days of another month would be worse than the month before.
    if (before.firstDate.isValid()) month_ = before;
    return false;
  }
  FillCalendarNutrients();
  return true;
}

bool CalendarModel::FindRecords() {
  return Guarded(session_, FindFailure(), [this] {
    const std::vector<WeightRow> rows =
        WeightLog(session_).Between(month_.Cell(1).date, month_.Cell(calendarCells).date);
    ShowWeights(month_, rows, session_.settings.LossFactor, session_.locale);
    UpdateWeeklyTotals(month_, session_.settings, session_.locale);
    ColorLossCells(month_, session_.settings, session_.locale);
  });
}

void CalendarModel::FillCalendarNutrients(const QDate &day) {
  if (!session_.settings.ShowCalories) return;
  const QDate first = day.isValid() ? day : month_.Cell(1).date;
  const QDate last = day.isValid() ? day : month_.Cell(calendarCells).date;
  if (month_.IndexOf(first) == 0) return;
  for (QDate date = first; date <= last; date = date.addDays(1)) {
    CalendarCell &cell = month_.Cell(month_.IndexOf(date));
    cell.calories.clear();
    cell.caloriesTip.clear();
  }
  GuardedQuietly([&] {
    for (const auto &[date, figure] : ReadCalendarNutrients(session_, first, last)) {
      CalendarCell &cell = month_.Cell(month_.IndexOf(date));
      cell.calories = figure.text;
      cell.caloriesTip = figure.tip;
    }
  });
}

void CalendarModel::Refresh() {
  HideDays(month_, session_.settings, session_.profile.BackColor);
  FindRecords();
  FillCalendarNutrients();
}

void CalendarModel::SetActiveDate(int i) {
  MarkActiveCell(month_, i, session_.profile.BackColor);
  const QDate before = std::exchange(session_.windows.RememberedDate, month_.currentDate);
  if (before != month_.currentDate) session_.changes.AnnounceActiveDate();
}

void CalendarModel::GotoNextDate() {
  if (const int i = NextDateCell(month_)) SetActiveDate(i);
}

void CalendarModel::ShowMonthOf(const QDate &date) {
  if (!month_.CanEnter(month_.IndexOf(date)) && !BuildMonth(date)) return;
  SetActiveDate(month_.IndexOf(date));
}

void CalendarModel::GotoCalendarDate(const QDate &date) {
  Guarded(session_, MonthFailure(QStringLiteral("GotoCalendarDate")), [&] { ShowMonthOf(date); });
}

void CalendarModel::GotoMonth(int months) {
  const QString procedure = months > 0 ? QStringLiteral("cmdNextMonth_Click") : QStringLiteral("cmdPrevMonth_Click");
  Guarded(session_, MonthFailure(procedure), [&] {
    const QDate from = month_.currentDate.isValid() ? month_.currentDate : month_.firstDate;
    ShowMonthOf(DateAdd(QStringLiteral("m"), months, from));
  });
}

void CalendarModel::GotoToday() {
  Guarded(session_, MonthFailure(QStringLiteral("cmdToday_Click")), [this] { ShowMonthOf(session_.Today()); });
}

void CalendarModel::SetShowLoss(bool show) {
  session_.settings.ShowLoss = show;
  SaveSetting(session_.settings, session_.store, QStringLiteral("ShowLoss"));
  HideDays(month_, session_.settings, session_.profile.BackColor);
}

void CalendarModel::SetShowCalories(bool show) {
  session_.settings.ShowCalories = show;
  SaveSetting(session_.settings, session_.store, QStringLiteral("ShowCalories"));
  HideDays(month_, session_.settings, session_.profile.BackColor);
  FillCalendarNutrients();
}

void CalendarModel::SetNutrientID(int NutrientID) {
  session_.settings.NutrientID = NutrientID;
  SaveSetting(session_.settings, session_.store, QStringLiteral("NutrientID"));
  FillCalendarNutrients();
}

bool CalendarModel::EnterCell(int i) {
  session_.windows.SuppressReward = false;
  const bool another = month_.Cell(i).date != enteredDate_;
  entryText_ = month_.Cell(i).data;
  enteredDate_ = month_.Cell(i).date;
  SetActiveDate(i);
  return another;
}

bool CalendarModel::ValidateWeight(const QString &text) {
  const TypedWeight typed = ReadTypedWeight(text, session_.locale);
  if (typed.check == TypedWeight::Check::Fine) return true;
  const QString asked =
      typed.check == TypedWeight::Check::NotNumeric ? QStringLiteral("numeric") : QStringLiteral("positive");
  session_.boxes.Critical(QStringLiteral("Invalid Weight"),
                          QStringLiteral("The weight that you entered is invalid.  Please enter a %1 value for your "
                                         "weight.")
                              .arg(asked));
  return false;
}

bool CalendarModel::SaveWeight(const QString &text) {
  if (month_.currentIndex == 0 || text == entryText_) return true;
  const TypedWeight typed = ReadTypedWeight(text, session_.locale);
  if (typed.check != TypedWeight::Check::Fine) return false;
  const CalendarMonth before = month_;
  CalendarCell &cell = month_.Cell(month_.currentIndex);
  cell.data = typed.text;
  if (typed.text == entryText_) return true;
  if (!WriteWeight(typed.weight)) {
    month_ = before;
    cell.data = text;
    return false;
  }
  reward_ = EvaluateReward(session_, month_, month_.currentIndex);
  entryText_ = cell.data;
  // The basal rate goes by the latest weight, so the net calories of the days behind may follow.
  if (session_.settings.NutrientID == nutrient_id::netCalories && session_.settings.NetCaloriesBMR)
    FillCalendarNutrients();
  return true;
}

bool CalendarModel::WriteWeight(const std::optional<double> &weight) {
  FailureExit failure = SaveFailure();
  return Guarded(session_, failure, [&] {
    Change change(session_, this);
    failure = LossFailure();
    UpdateLoss(weight);
    failure = SaveFailure();
    const CalendarCell &cell = month_.Cell(month_.currentIndex);
    WeightLog log(session_);
    log.Delete(cell.date);
    if (weight) {
      log.Insert({cell.date, *weight, ValueOrZero(cell.loss, session_.locale) * session_.settings.LossFactor});
    }
    change.Afterwards([this] { UpdateStats(session_); });
    change.Announce({.table = Table::WeightLoss, .personID = session_.profile.CurrentPersonID, .date = cell.date});
    change.Commit();
  });
}

void CalendarModel::UpdateLoss(const std::optional<double> &weight) {
  WeightLog log(session_);
  CalendarCell &cell = month_.Cell(month_.currentIndex);
  const std::optional<WeightRow> previous = log.Before(cell.date);
  if (!weight) {
    cell.loss.clear();
  } else if (!previous) {
    cell.loss = QStringLiteral("0");
  } else {
    const double loss = LossBetween(previous->weight, *weight) * session_.settings.LossFactor;
    cell.loss = Format(loss, QStringLiteral("0.0"), session_.locale);
  }
  if (const std::optional<WeightRow> next = log.After(cell.date)) {
    const double loss = NextLoss(weight, previous, *next);
    log.StoreLoss(next->date, loss);
    ShowNextLoss(loss);
  }
  UpdateWeeklyTotals(month_, session_.settings, session_.locale);
  ColorLossCells(month_, session_.settings, session_.locale);
}

void CalendarModel::ShowNextLoss(double loss) {
  const QString pattern = LossPattern(session_.settings);
  for (int i = month_.currentIndex + 1; i <= calendarCells; ++i) {
    CalendarCell &cell = month_.Cell(i);
    if (cell.data.isEmpty()) continue;
    cell.loss = Format(loss * session_.settings.LossFactor, pattern, session_.locale);
    return;
  }
}

std::optional<RewardNotice> CalendarModel::TakeReward() { return std::exchange(reward_, std::nullopt); }

}  // namespace trimlog
