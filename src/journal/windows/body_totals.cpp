#include "journal/windows/body_totals.h"

#include <QHeaderView>
#include <QScrollBar>

#include "core/windows/controls/figure_field.h"
#include "journal/windows/grid_day_rows.h"
#include "platform/windows/controls/member_name.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

BodyTotals::BodyTotals(BoundGrid &grid, QWidget *parent) : QWidget(parent), grid_(grid) {
  setObjectName(QStringLiteral("pnlBodyTotals2"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    auto *figure =
        new FigureField(MemberName("lblBodyTotals", static_cast<int>(field)), Qt::AlignRight | Qt::AlignVCenter, this);
    figure->setAccessibleName(QStringLiteral("Lost so far, ") + QLatin1String(measurementFields[field].name));
    lblBodyTotals_[field] = figure;
  }
  const auto align = [this] { Align(); };
  connect(grid.horizontalHeader(), &QHeaderView::sectionResized, this, align);
  connect(grid.horizontalHeader(), &QHeaderView::geometriesChanged, this, align);
  connect(grid.horizontalScrollBar(), &QScrollBar::valueChanged, this, align);
  connect(&grid.Model(), &QAbstractItemModel::modelReset, this, align, Qt::QueuedConnection);
}

void BodyTotals::ShowTotals() {
  const GridDayRows rows(grid_);
  const int current = rows.CurrentRow();
  PerMeasurement<QString> totals;
  if (current >= 0) {
    PerMeasurement<QString> oldest;
    PerMeasurement<QString> shown;
    for (std::size_t field = 0; field < measurementFields.size(); ++field) {
      const QString column = QLatin1String(measurementFields[field].column);
      oldest[field] = rows.CellText(rows.RowCount() - 1, column);
      shown[field] = rows.CellText(current, column);
    }
    totals = MeasurementTotals(oldest, shown, grid_.Model().Locale());
  }
  for (std::size_t field = 0; field < totals.size(); ++field) lblBodyTotals_[field]->ShowText(totals[field]);
}

QSize BodyTotals::sizeHint() const { return {0, lblBodyTotals_.front()->sizeHint().height()}; }

void BodyTotals::resizeEvent(QResizeEvent *) { Align(); }

void BodyTotals::Align() {
  // Only what stands under the columns that can be seen: no figure stands under the row heads.
  const int heads = grid_.viewport()->x();
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    const int column = grid_.Model().ColumnByName(QLatin1String(measurementFields[field].column));
    const int left = column < 0 ? 0 : grid_.columnViewportPosition(column);
    FigureField *const figure = lblBodyTotals_[field];
    figure->setVisible(column >= 0 && left >= 0);
    figure->setGeometry(heads + left, 0, column < 0 ? 0 : grid_.columnWidth(column), height());
  }
}

}  // namespace trimlog
