#include "journal/windows/exercise_totals_row.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <algorithm>

#include "core/windows/controls/figure_field.h"
#include "journal/day/exercise_totals.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

constexpr int widestFigure = 12;  ///< digits that have room where a column has less

FigureField *MakeTotal(const QString &name, const QString &spoken, QWidget *parent) {
  auto *figure = new FigureField(name, Qt::AlignRight | Qt::AlignVCenter, parent);
  figure->setAccessibleName(spoken);
  MakeBold(figure);
  figure->UseFont(figure->font());
  return figure;
}

}  // namespace

ExerciseTotalsRow::ExerciseTotalsRow(BoundGrid &grid, QWidget *parent)
    : QWidget(parent),
      grid_(grid),
      lblTotalsActivities(MakeLabel(QStringLiteral("lblTotalsActivities"), {})),
      lblMinutes(MakeTotal(QStringLiteral("lblMinutes"), tr("Minutes of the day"), this)),
      lblCaloriesActivities(MakeTotal(QStringLiteral("lblCaloriesActivities"), tr("Calories of the day"), this)) {
  lblTotalsActivities->setParent(this);
  lblTotalsActivities->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  MakeBold(lblTotalsActivities);
  setFixedHeight(lblMinutes->sizeHint().height());
  const auto align = [this] { Align(); };
  connect(grid.horizontalHeader(), &QHeaderView::sectionResized, this, align);
  connect(grid.horizontalHeader(), &QHeaderView::geometriesChanged, this, align);
  connect(&grid.Model(), &QAbstractItemModel::modelReset, this, align, Qt::QueuedConnection);
}

void ExerciseTotalsRow::Tell(const ExerciseTotalsText &totals) {
  lblTotalsActivities->setText(totals.caption);
  lblMinutes->ShowText(totals.minutes);
  lblCaloriesActivities->ShowText(totals.calories);
}

// The figures stay where their columns stand while nothing is scrolled, within the row and beside each other.
int ExerciseTotalsRow::PutUnder(const QString &column, QWidget &figure, int room) {
  const int at = grid_.Model().ColumnByName(column);
  if (at < 0) return room;
  const int heads = grid_.viewport()->mapTo(grid_.parentWidget(), QPoint()).x() - x();
  const int end = std::min(room, heads + grid_.horizontalHeader()->sectionPosition(at) + grid_.columnWidth(at));
  const int figureWidth = std::max(grid_.columnWidth(at), fontMetrics().averageCharWidth() * widestFigure);
  figure.setGeometry(end - figureWidth, 0, figureWidth, height());
  return end - figureWidth;
}

void ExerciseTotalsRow::Align() {
  const int left = PutUnder(QStringLiteral("Calories"), *lblCaloriesActivities, width());
  lblTotalsActivities->setGeometry(0, 0, std::max(0, PutUnder(QStringLiteral("Duration"), *lblMinutes, left)),
                                   height());
}

void ExerciseTotalsRow::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  Align();
}

void ExerciseTotalsRow::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    for (FigureField *figure : {lblMinutes, lblCaloriesActivities}) {
      figure->ShowColor(palette().color(QPalette::WindowText));
    }
  }
  if (event->type() == QEvent::FontChange) setFixedHeight(lblMinutes->sizeHint().height());
}

}  // namespace trimlog
