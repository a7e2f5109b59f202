#include "platform/windows/fields/memo_text.h"

#include <QPlainTextEdit>
#include <QTextDocument>

namespace trimlog {

// Not toPlainText(), which makes a common blank of each one that does not break.
QString MemoText(const QPlainTextEdit &box, const QString &stored) {
  const QString lineEnd = stored.contains(QStringLiteral("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
  QString text = box.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, lineEnd).replace(QChar::LineSeparator, lineEnd);
}

}  // namespace trimlog
