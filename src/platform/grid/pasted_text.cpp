#include "platform/grid/pasted_text.h"

namespace trimlog {

QString PastedCell(const QString &clipboard) {
  QString text = clipboard;
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (text.contains(QLatin1Char('\t'))) {
    text = text.section(QLatin1Char('\n'), 0, 0).section(QLatin1Char('\t'), 0, 0);
  }
  for (QChar &character : text) {
    const QChar::Category category = character.category();
    const bool breaks = category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
    if (breaks || category == QChar::Other_Control) character = QLatin1Char(' ');
  }
  return text.trimmed();
}

}  // namespace trimlog
