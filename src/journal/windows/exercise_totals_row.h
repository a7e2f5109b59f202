#pragma once

#include <QWidget>

class QLabel;

namespace trimlog {

class BoundGrid;
class FigureField;
struct ExerciseTotalsText;

/// The day's minutes and calories below the list of exercises, each under its column, and before them what they are.
class ExerciseTotalsRow : public QWidget {
  Q_OBJECT
 public:
  ExerciseTotalsRow(BoundGrid &grid, QWidget *parent);
  void Tell(const ExerciseTotalsText &totals);

 protected:
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  void Align();
  int PutUnder(const QString &column, QWidget &figure, int room);  ///< returns where it begins

  BoundGrid &grid_;
  QLabel *lblTotalsActivities;
  FigureField *lblMinutes;
  FigureField *lblCaloriesActivities;
};

}  // namespace trimlog
