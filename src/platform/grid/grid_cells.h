#pragma once

#include <QLocale>
#include <QString>

#include "platform/grid/grid_columns.h"

namespace trimlog {

/// A typed text as the value that a column stores, or the sentence that says why it is none.
struct TypedCell {
  Value value;
  QString sentence;  ///< empty: accepted
};

/// Reads what a person typed, in the locale's form, and runs the column's own check.
TypedCell ReadTyped(const GridColumn &column, const QString &text, const QLocale &locale);
/// The same for a value chosen, not typed: a list entry, a tick.
TypedCell CheckValue(const GridColumn &column, const Value &value);

/// What was read, or what the column puts in its place when it was empty or refused and `stood` in the cell before.
TypedCell Mended(const GridColumn &column, const QString &text, const TypedCell &typed, const Value &stood);

/// A stored value as a person reads it.
QString ShowCell(const GridColumn &column, const Value &value, const QLocale &locale);
/// A stored value as it stands in the cell's editor: in the locale, not rounded by the display pattern.
QString TypedForm(const GridColumn &column, const Value &value, const QLocale &locale);

bool IsNumberType(GridType type);
Qt::Alignment AlignmentOf(const GridColumn &column);

}  // namespace trimlog
