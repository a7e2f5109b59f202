#pragma once

#include <QList>
#include <QString>

class QGridLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

namespace trimlog {

/// Captions to the left, fields to the right, one grid for a whole page. Fills itself row by row with AddFormRow.
QGridLayout *MakeFormGrid();
/// One row: its caption, with the access key of `buddy` where there is one, and what stands behind it. Returns the
/// caption's label.
QLabel *AddFormRow(QGridLayout *grid, const QString &caption, QWidget *buddy, const QList<QWidget *> &controls);

}  // namespace trimlog
