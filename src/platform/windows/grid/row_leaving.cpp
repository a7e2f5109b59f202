#include "platform/windows/grid/row_leaving.h"

#include <algorithm>

#include "platform/grid/grid_guard.h"
#include "platform/windows/controls/spoken_label.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/grid_delegate.h"

namespace trimlog {

RowLeaving::RowLeaving(BoundGrid &grid) : grid_(grid), sentence_(new SpokenLabel(QStringLiteral("lblRefused"), &grid)) {
  sentence_->setWordWrap(true);
  sentence_->setMargin(4);
  sentence_->setAutoFillBackground(true);
  sentence_->setFrameShape(QFrame::Box);
  sentence_->setAttribute(Qt::WA_TransparentForMouseEvents);
  sentence_->hide();
}

bool RowLeaving::Commit() {
  if (underWay_) return false;
  grid_.CloseOpenEditor(true);
  return Save();
}

bool RowLeaving::Save() {
  if (underWay_) return false;
  if (!grid_.Model().IsChanging()) return true;
  underWay_ = true;
  bool saved = false;
  const bool ran = RunGuarded(grid_.Model(), GridAction::Save, [&] { saved = grid_.Model().SaveRow(); });
  underWay_ = false;
  if (ran && saved) return true;
  ShowRefusal();
  return false;
}

void RowLeaving::AfterCell(const QString &column) {
  const GridModel &model = grid_.Model();
  const int edited = model.ColumnByName(column);
  if (edited < 0) return;
  Say(model.index(model.ChangingRow(), edited).data(GridModel::SentenceRole).toString());
  if (model.Columns()[edited].savesAtOnce && model.RefusalOfRow().isEmpty()) Save();
}

// Again where it is the same sentence: it tells of another attempt.
void RowLeaving::Say(const QString &sentence) {
  if (sentence.isEmpty()) return;
  sentence_->clear();
  sentence_->Tell(sentence);
  PlaceSentence();
}

void RowLeaving::ShowRefusal() {
  const GridModel &model = grid_.Model();
  const int row = model.ChangingRow();
  if (row < 0) return;
  QModelIndex cell = model.index(row, std::max(0, grid_.currentIndex().column()));
  for (int column = 0; column < model.columnCount(); ++column) {
    const QModelIndex candidate = model.index(row, column);
    if (!candidate.data(GridModel::SentenceRole).toString().isEmpty()) {
      cell = candidate;
      break;
    }
  }
  if (cell != grid_.currentIndex()) grid_.Selection().GoTo(cell);
  grid_.scrollTo(cell);
  refused_ = true;
  Say(model.RefusalOfRow());
}

void RowLeaving::PlaceSentence() {
  const int row = grid_.Model().ChangingRow();
  const QString sentence = row < 0 ? QString() : grid_.Model().RefusalOfRow();
  refused_ = refused_ && !sentence.isEmpty();
  const QRect cell = refused_ ? grid_.visualRect(grid_.Model().index(row, grid_.FirstColumn())) : QRect();
  const QRect seen = grid_.viewport()->geometry();
  if (!refused_ || cell.bottom() < 0 || cell.top() > seen.height()) return sentence_->hide();
  const QColor color = RefusalColor(grid_.palette());
  QPalette palette = grid_.palette();
  palette.setColor(QPalette::Window, grid_.palette().color(QPalette::Base));
  palette.setColor(QPalette::WindowText, color);
  sentence_->setPalette(palette);
  sentence_->setText(sentence);
  const int width = std::min(seen.width(), std::max(260, sentence_->fontMetrics().horizontalAdvance(sentence) + 24));
  const int height = sentence_->heightForWidth(width);
  const bool below = cell.bottom() + height < seen.height();
  sentence_->setGeometry(seen.left(), seen.top() + (below ? cell.bottom() + 1 : cell.top() - height), width, height);
  sentence_->show();
  sentence_->raise();
}

// Rows may move while one is saved: the row to go to is told by its key.
QModelIndex RowLeaving::LeaveFor(const QModelIndex &target) {
  const GridModel &model = grid_.Model();
  if (target.isValid() && target.row() != grid_.currentIndex().row()) grid_.CloseOpenEditor(true);
  if (!target.isValid() || !model.IsChanging() || model.ChangingRow() == target.row()) return target;
  const std::optional<qint64> key = model.KeyOfRow(target.row());
  const int column = target.column();
  if (!Commit()) return {};
  const int row = key ? model.RowOfKey(*key) : model.rowCount() - 1;
  return row < 0 ? grid_.currentIndex() : model.index(row, column);
}

}  // namespace trimlog
