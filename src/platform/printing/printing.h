#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QWidget;

namespace trimlog {

struct PrintedColumn {
  QString caption;
  double width = 1440;      ///< wished, in twips
  bool toTheRight = false;  ///< numbers: the column is made wide enough for all of them
};

/// A list to print. Rows are asked for as they are laid out and drawn.
struct PrintedList {
  QString heading;  ///< at the head of every page
  std::vector<PrintedColumn> columns;
  int rows = 0;
  std::function<QString(int row, int column)> cell;
  std::vector<QStringList> closing;  ///< bold rows at the end, e.g. totals; one text a column
};

/// A text to print: its title heads the first page, "<title> (Continued)" every other.
struct PrintedText {
  QString title;
  QStringList paragraphs;  ///< each may hold line ends; an empty line stands between two
};

/// The one way to paper, beside the boxes. Each call shows that it works, can be cancelled while it does, and offers a
/// PDF file where the machine has no printer. False when the person cancelled it. All throw an Error on failure; a room
/// prints through core/session/print.h, which has the one box for that. A test stands in its place.
class Printing {
 public:
  virtual ~Printing() = default;
  virtual bool PrintList(const PrintedList &list) = 0;  ///< with a preview before
  virtual bool PrintText(const PrintedText &text) = 0;  ///< at once
  /// The picture of a window, at once.
  virtual bool PrintPicture(QWidget &form) = 0;
};

}  // namespace trimlog
