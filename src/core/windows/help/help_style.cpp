#include "core/windows/help/help_style.h"

#include "core/windows/controls/theme.h"

namespace trimlog {

HelpColours HelpColoursOf(const QPalette &desktop) {
  HelpColours colours;
  colours.page = desktop.color(QPalette::Base);
  const bool dark = ContrastText(colours.page) == QColor(Qt::white);
  colours.key = dark ? colours.page.lighter(180) : colours.page.darker(110);
  if (dark && colours.page.lightness() < 24) colours.key = QColor(0x30, 0x30, 0x30);
  const QColor text = desktop.color(QPalette::Text);
  colours.text = ContrastRatio(text, colours.page) >= 7 ? text : ContrastText(colours.page);
  colours.heading = MeaningColor(QColor(0x1F, 0x5F, 0x9C), colours.key);
  colours.link = MeaningColor(QColor(0x1A, 0x5F, 0xB4), colours.key);
  return colours;
}

QString HelpStyleSheet(const HelpColours &colours, const QFont &font) {
  return QStringLiteral(
             "body { color: %1; }"
             "h1 { font-size: x-large; color: %2; margin-bottom: 10px; }"
             "h2 { font-size: large; color: %2; margin-top: 18px; margin-bottom: 4px; }"
             "p, li { margin-bottom: 6px; line-height: 130%; }"
             "td, th { padding: 3px 18px 3px 0px; text-align: left; }"
             "kbd { font-family: '%5'; background-color: %4; white-space: nowrap; }"
             "code { font-family: '%5'; }"
             "a { color: %3; }")
      .arg(colours.text.name(), colours.heading.name(), colours.link.name(), colours.key.name(), font.family());
}

}  // namespace trimlog
