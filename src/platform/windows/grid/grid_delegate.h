#pragma once

#include <QStyledItemDelegate>

namespace trimlog {

class BoundGrid;

/// Paints a grid's cells with their states and makes the editor that fits the column: a field for text, number or date,
/// or a drop-down list.
class GridDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  explicit GridDelegate(BoundGrid *grid);

  QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
  void setEditorData(QWidget *editor, const QModelIndex &index) const override;
  void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
  void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const override;
  void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
  bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                 const QModelIndex &index) override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  BoundGrid *grid_;
};

/// The colour that frames what is refused, readable on light and dark backgrounds.
QColor RefusalColor(const QPalette &palette);

}  // namespace trimlog
