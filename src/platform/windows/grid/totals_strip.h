#pragma once

#include <QLabel>
#include <QStandardItemModel>
#include <QTableView>

namespace trimlog {

class BoundGrid;

/// One total, under one column of a grid or under several that stand side by side.
struct TotalsColumn {
  QString name;       ///< given under Qt::UserRole of the header, e.g. "Total1"
  QStringList under;  ///< the grid's column names, from left to right
};

/// A row of totals below a grid: its cells stand under the grid's columns, whatever their widths, and scroll with them.
/// Before them stands a label, which stays in sight beside what the grid keeps in sight. A text is given for each
/// total; a total under columns that are all hidden is hidden.
class TotalsStrip : public QTableView {
  Q_OBJECT
 public:
  /// `label` is what a screen reader says of the strip.
  TotalsStrip(const QString &objectName, const QString &label, BoundGrid &grid, QWidget *parent = nullptr);

  void SetTotals(const QList<TotalsColumn> &totals);
  QLabel &Label() { return *label_; }  ///< its name is for the window to give
  void SetLabel(const QString &text) { label_->setText(text); }
  void SetText(const QString &total, const QString &text);
  QString Text(const QString &total) const;
  void Align();  ///< widths and scroll place of the grid; done by itself when they change

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void changeEvent(QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  int ColumnOf(const QString &total) const;
  void PlaceLabel();

  BoundGrid &grid_;
  QLabel *label_;
  QStandardItemModel cells_;
  QList<TotalsColumn> totals_;
};

}  // namespace trimlog
