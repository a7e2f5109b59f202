#include "platform/windows/fields/text_field.h"

namespace trimlog {

TextField::TextField(const QString &objectName, const QString &label, int maxLength, QWidget *parent)
    : QLineEdit(parent) {
  setObjectName(objectName);
  setAccessibleName(label);
  home(false);  // without a first place of the cursor a screen reader is silent on the first Tab
  if (maxLength > 0) setMaxLength(maxLength);
  connect(this, &QLineEdit::textEdited, this, [this](const QString &typed) {
    QString oneLine = typed;
    for (QChar &character : oneLine) {
      if (character.category() == QChar::Separator_Line || character.category() == QChar::Separator_Paragraph ||
          character.category() == QChar::Other_Control) {
        character = QLatin1Char(' ');
      }
    }
    if (oneLine == typed) return;
    const int cursor = cursorPosition();
    setText(oneLine);
    setModified(true);
    setCursorPosition(cursor);
  });
}

}  // namespace trimlog
