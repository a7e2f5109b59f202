#pragma once

#include <QString>

namespace trimlog {

/// What a clipboard text puts into one cell. Cells copied from a spreadsheet (tabs between them): the first one of the
/// first line. Any other text becomes one line, its line ends blanks, without blanks at both ends.
QString PastedCell(const QString &clipboard);

}  // namespace trimlog
