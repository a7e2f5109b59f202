#include "journal/windows/exercise_totals_row.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <algorithm>

#include "core/windows/controls/figure_field.h"
#include "journal/day/exercise_totals.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

constexpr int widestFigure = 8;  ///< digits that have room where a column has less

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
  connect(grid.horizontalScrollBar(), &QScrollBar::valueChanged, this, align);
  connect(&grid.Model(), &QAbstractItemModel::modelReset, this, align, Qt::QueuedConnection);
}

void ExerciseTotalsRow::Tell(const ExerciseTotalsText &totals) {
  lblTotalsActivities->setText(totals.caption);
  lblMinutes->ShowText(totals.minutes);
  lblCaloriesActivities->ShowText(totals.calories);
}

// A column that is scrolled away or narrow leaves its total in sight, at the edge.
void ExerciseTotalsRow::PutUnder(const QString &column, QWidget &figure) {
  const int at = grid_.Model().ColumnByName(column);
  if (at < 0) return;
  const int heads = grid_.viewport()->mapTo(grid_.parentWidget(), QPoint()).x() - x();
  const int right = heads + grid_.columnViewportPosition(at) + grid_.columnWidth(at);
  const int least = fontMetrics().averageCharWidth() * widestFigure + heads;
  const int figureWidth = std::max(grid_.columnWidth(at), fontMetrics().averageCharWidth() * widestFigure);
  const int end = std::clamp(right, least, std::max(least, width()));
  figure.setGeometry(end - figureWidth, 0, figureWidth, height());
}

void ExerciseTotalsRow::Align() {
  PutUnder(QStringLiteral("Duration"), *lblMinutes);
  PutUnder(QStringLiteral("Calories"), *lblCaloriesActivities);
  lblTotalsActivities->setGeometry(0, 0, std::max(0, lblMinutes->x()), height());
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
