#pragma once

#include <optional>

#include "core/session/navigator.h"
#include "core/windows/frame/content_window.h"
#include "weightlog/calendar_model.h"
#include "weightlog/windows/month_grid.h"

class QLabel;

namespace trimlog {

class CalendarFooter;
class CalendarHeader;
class FitLabel;
class Session;
class WeightEntry;
struct DataChange;

/// The Data Calendar, the program's first screen: a month in which a weight is typed for a date.
class frmData : public ContentWindow {
  Q_OBJECT
 public:
  frmData(Session &session, const Navigator &navigator, QWidget *parent = nullptr);
  ~frmData() override;

  bool ValidateFields() override;
  EditOutcome SaveOpenEdit() override;
  void DropOpenEdit() override;
  void Activated() override;
  void GotoDate(const QDate &date) override;
  QDate ActiveDate() const override { return model_.Month().currentDate; }
  WindowCommands Commands() override;
  void PrepareForPrinting(bool printing) override;

 protected:
  void changeEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void Connect();

  void GotoMonth(int months);
  void DeleteWeight();
  void PrintContents();
  void GotoToday();
  void OpenQuickJournal();
  void OnData(const DataChange &change);
  void OnSettings();
  void OnSaved();
  void ShowReward();

  /// Moves on the calendar after the open cell was left, and takes the focus along when it was in a cell.
  void Navigate(const std::function<void()> &move);
  void ShowMonth();
  void ShowDays();
  void ShowTexts();
  MonthGrid::Setting GridSetting() const;
  void ShowSettings();
  void ShowCurrent();

  Session &session_;
  const Navigator &navigator_;
  CalendarModel model_;
  CalendarHeader *header_ = nullptr;
  CalendarFooter *footer_ = nullptr;
  FitLabel *lblNewcomer = nullptr;
  QLabel *txtCurrentIndex = nullptr;
  QLabel *txtCurrentDate = nullptr;
  MonthGrid *grid_ = nullptr;
  std::unique_ptr<WeightEntry> entry_;
  std::optional<RewardNotice> reward_;
  bool printing_ = false;
};

}  // namespace trimlog
