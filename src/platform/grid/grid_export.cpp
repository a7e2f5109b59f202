#include "platform/grid/grid_export.h"

#include "platform/grid/grid_model.h"

namespace trimlog {

namespace {

QString OneLine(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  for (QChar &character : text) {
    if (character == QLatin1Char('\t') || character == QLatin1Char('\n') || character == QLatin1Char('\r')) {
      character = QLatin1Char(' ');
    }
  }
  return text;
}

}  // namespace

QString CellAsText(const GridModel &model, int row, int column) {
  const QModelIndex cell = model.index(row, column);
  const QVariant tick = cell.data(Qt::CheckStateRole);
  if (tick.isValid()) return tick.toInt() == Qt::Checked ? GridModel::tr("Yes") : GridModel::tr("No");
  return OneLine(cell.data().toString());
}

std::vector<int> TextColumns(const GridModel &model) {
  std::vector<int> columns;
  for (size_t column = 0; column < model.Columns().size(); ++column) {
    const GridColumn &shown = model.Columns()[column];
    if (shown.visible && !shown.field.isEmpty()) columns.push_back(static_cast<int>(column));
  }
  return columns;
}

QString RowsAsText(const GridModel &model, const std::vector<int> &rows, bool withCaptions) {
  const std::vector<int> columns = TextColumns(model);
  QStringList lines;
  if (withCaptions) {
    QStringList captions;
    for (const int column : columns) captions.append(OneLine(model.Columns()[column].caption));
    lines.append(captions.join(QLatin1Char('\t')));
  }
  for (const int row : rows) {
    QStringList cells;
    for (const int column : columns) cells.append(CellAsText(model, row, column));
    lines.append(cells.join(QLatin1Char('\t')));
  }
  QString text = lines.join(QStringLiteral("\r\n"));
  while (!text.isEmpty() && text.back().isSpace()) text.chop(1);
  return text;
}

}  // namespace trimlog
