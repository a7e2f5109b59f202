#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

namespace trimlog {

/// The colours of a help page on a desktop: each of the four reads well on the page, the desktop's field colour, and on
/// the face of a key.
struct HelpColours {
  QColor page;
  QColor key;  ///< behind the name of a key
  QColor text;
  QColor heading;
  QColor link;
};
HelpColours HelpColoursOf(const QPalette &desktop);

/// The style sheet of all help pages.
QString HelpStyleSheet(const HelpColours &colours, const QFont &font);

}  // namespace trimlog
