#include "platform/windows/printing/printed_lines.h"

#include <QTextLayout>

namespace trimlog {

QFont PrintFont(double size, bool bold) {
  QFont font(QStringLiteral("Sans Serif"));
  font.setStyleHint(QFont::SansSerif);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPixelSize(static_cast<int>(size));
  font.setBold(bold);
  return font;
}

QStringList WrappedLines(const QString &text, double width, const QFont &font, const QFontMetricsF &metrics) {
  QStringList lines;
  for (const QString &paragraph : text.split(QLatin1Char('\n'))) {
    if (metrics.horizontalAdvance(paragraph) <= width) {
      lines.append(paragraph);
      continue;
    }
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(width);
      lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
  }
  return lines;
}

}  // namespace trimlog
