#pragma once

#include <QDate>
#include <QWidget>
#include <functional>

#include "core/frame/edit_outcome.h"
#include "journal/day/water.h"

class QLabel;

namespace trimlog {

class GlassPicture;
class JournalDay;
class NumberField;
class Session;
class StepBar;

/// pnlWater: the day's glasses of water, typed or counted up and down. Following a day is enough to make its record.
class WaterPanel : public QWidget {
  Q_OBJECT
 public:
  WaterPanel(Session &session, JournalDay &day, QWidget *parent);

  /// Among all dates the day whose glasses are shown: that of the list's current row. An invalid one changes
  /// nothing. Call Follow() when it is another.
  std::function<QDate()> rowDate;
  /// Reads the glasses of the day meant.
  void Follow();
  EditOutcome SaveOpenEdit();
  void DropOpenEdit();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void Step(bool more);
  void OnSpinner(int value);
  EditOutcome Save(double glasses);
  void Show();

  Session &session_;
  JournalDay &day_;
  WaterRecord record_;
  QLabel *lblWater1;
  GlassPicture *picWater;
  NumberField *txtWater;
  StepBar *sclWater;
  int lastSpinner_ = 0;
  bool saving_ = false;
};

}  // namespace trimlog
