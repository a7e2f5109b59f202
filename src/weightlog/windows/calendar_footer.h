#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;

namespace trimlog {

class FigureField;
struct CalendarTotal;
struct Nutrients;
struct Settings;

/// The line below the calendar: what it shows of each day, and the month's total, which stands under its column.
class CalendarFooter : public QWidget {
  Q_OBJECT
 public:
  explicit CalendarFooter(QWidget *parent);

  void FillFigures(const Nutrients &nutrients);
  void ShowSettings(const Settings &settings);
  QString ChosenFigure() const;  ///< as it stands in the list
  void ShowTotal(const CalendarTotal &total, const QString &spoken, const QPalette &desktop);
  void ShowTotalAtAll(bool show);  ///< a newcomer has none
  void AlignTotal(const QFont &font, int width);
  void Paint(quint32 colour, const QPalette &desktop);
  void ShowChoices(bool show);  ///< a printed calendar has none

 Q_SIGNALS:
  void LossWanted(bool show);
  void CaloriesWanted(bool show);
  void FigureWanted(int NutrientID);

 private:
  QCheckBox *chkShowLoss;
  QCheckBox *chkShowCalories;
  QComboBox *cboNutrientID;
  QLabel *lblTotal2;
  FigureField *txtTotalMonth;
};

}  // namespace trimlog
