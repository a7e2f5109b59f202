#include "platform/windows/grid/totals_strip.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

TotalsStrip::TotalsStrip(const QString &objectName, const QString &label, BoundGrid &grid, QWidget *parent)
    : QTableView(parent), grid_(grid), label_(new QLabel(this)), cells_(1, 1) {
  setObjectName(objectName);
  setAccessibleName(label);
  setModel(&cells_);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::NoSelection);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setTabKeyNavigation(false);
  setWordWrap(false);
  horizontalHeader()->hide();
  horizontalHeader()->setMinimumSectionSize(1);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  label_->setAutoFillBackground(true);
  label_->setBackgroundRole(QPalette::Base);
  label_->setForegroundRole(QPalette::Text);
  label_->setContentsMargins(6, 0, 0, 0);
  const auto align = [this] { Align(); };
  connect(grid.horizontalHeader(), &QHeaderView::sectionResized, this, align);
  connect(grid.horizontalHeader(), &QHeaderView::geometriesChanged, this, align);
  connect(&grid.Model(), &QAbstractItemModel::modelReset, this, align, Qt::QueuedConnection);
  connect(grid.horizontalScrollBar(), &QScrollBar::valueChanged, this, align);
  connect(grid.horizontalScrollBar(), &QScrollBar::rangeChanged, this, align);
  Align();
}

void TotalsStrip::SetTotals(const QList<TotalsColumn> &totals) {
  totals_ = totals;
  cells_.setColumnCount(static_cast<int>(totals.size()) + 2);  // the label before them, what is left behind them
  for (int total = 0; total < totals.size(); ++total) {
    cells_.setHeaderData(total + 1, Qt::Horizontal, totals[total].name, Qt::UserRole);
    auto *cell = new QStandardItem;
    cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cells_.setItem(0, total + 1, cell);
  }
  Align();
}

int TotalsStrip::ColumnOf(const QString &total) const {
  const auto found = std::find_if(totals_.begin(), totals_.end(), [&](const auto &one) { return one.name == total; });
  return found == totals_.end() ? -1 : static_cast<int>(found - totals_.begin()) + 1;
}

// What is heard names the columns that the figure stands under.
void TotalsStrip::SetText(const QString &total, const QString &text) {
  const int column = ColumnOf(total);
  if (column < 0) return;
  const int under = grid_.Model().ColumnByName(totals_[column - 1].under.last());
  const QString caption = grid_.Model().headerData(under, Qt::Horizontal, Qt::AccessibleTextRole).toString();
  cells_.item(0, column)->setText(text);
  cells_.item(0, column)->setData(caption + QStringLiteral(": ") + text, Qt::AccessibleTextRole);
}

QString TotalsStrip::Text(const QString &total) const {
  const int column = ColumnOf(total);
  return column < 0 ? QString() : cells_.item(0, column)->text();
}

void TotalsStrip::Align() {
  const QHeaderView *const captions = grid_.horizontalHeader();
  int reached = 0;  // in the grid's own measure, from its first column
  const int heads = grid_.verticalHeader()->isHidden() ? 0 : grid_.verticalHeader()->width();
  for (int total = 0; total < totals_.size(); ++total) {
    int left = -1;
    int right = -1;
    for (const QString &name : totals_[total].under) {
      const int column = grid_.Model().ColumnByName(name);
      if (column < 0 || captions->sectionSize(column) == 0) continue;
      if (left < 0) left = captions->sectionPosition(column);
      right = captions->sectionPosition(column) + captions->sectionSize(column);
    }
    setColumnHidden(total + 1, left < 0);
    if (left < 0) continue;
    if (reached == 0) setColumnWidth(0, std::max(1, left + heads));
    setColumnWidth(total + 1, right - left);
    reached = right;
  }
  if (totals_.isEmpty()) return;
  // The last section lets the strip scroll as far as the grid does.
  const int behind = captions->length() - reached + grid_.width() - grid_.viewport()->width();
  setColumnWidth(static_cast<int>(totals_.size()) + 1, std::max(1, behind));
  setRowHeight(0, grid_.verticalHeader()->defaultSectionSize());
  horizontalScrollBar()->setValue(grid_.horizontalScrollBar()->value());
  PlaceLabel();
}

// Figures that would stand below what the grid keeps in sight are covered here as they are there.
void TotalsStrip::PlaceLabel() {
  const int heads = grid_.verticalHeader()->isHidden() ? 0 : grid_.verticalHeader()->width();
  const int held = grid_.WidthHeldInSight();
  const int right = std::max(columnViewportPosition(0) + columnWidth(0), held > 0 ? heads + held : 0);
  label_->setGeometry(frameWidth(), frameWidth(), std::max(0, right - 1), viewport()->height());
}

QSize TotalsStrip::sizeHint() const {
  return {QTableView::sizeHint().width(),
          fontMetrics().height() + std::max(6, fontMetrics().height() / 3) + 2 * frameWidth()};
}

void TotalsStrip::resizeEvent(QResizeEvent *event) {
  QTableView::resizeEvent(event);
  PlaceLabel();
}

void TotalsStrip::changeEvent(QEvent *event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Align();
}

}  // namespace trimlog
