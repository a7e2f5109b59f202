#include "core/windows/controls/figure_field.h"

#include "core/windows/controls/fitting_font.h"

namespace trimlog {

namespace {

constexpr int ownMargins = 6;  ///< what a line edit keeps free at its ends

}  // namespace

FigureField::FigureField(const QString &name, Qt::Alignment alignment, QWidget *parent)
    : QLineEdit(parent), roomy_(font()) {
  setObjectName(name);
  setReadOnly(true);
  setFrame(false);
  setAlignment(alignment);
  ShowColor(palette().color(QPalette::WindowText));
}

void FigureField::ShowText(const QString &text) {
  if (text == this->text()) return;
  setText(text);
  setCursorPosition(0);
  Fit();
}

void FigureField::ShowColor(const QColor &color) {
  QPalette own;
  own.setColor(QPalette::Base, Qt::transparent);
  own.setColor(QPalette::Text, color);
  if (palette().color(QPalette::Base).alpha() != 0 || palette().color(QPalette::Text) != color) setPalette(own);
}

void FigureField::UseFont(const QFont &font) {
  roomy_ = font;
  Fit();
}

// Before it is shown it has no width to go by, and every size tried on the way down would load a font.
void FigureField::Fit() {
  const QFont fitting = isVisible() ? FittingFont(roomy_, text(), width() - ownMargins) : roomy_;
  if (fitting != font()) setFont(fitting);
}

void FigureField::resizeEvent(QResizeEvent *event) {
  QLineEdit::resizeEvent(event);
  Fit();
}

void FigureField::showEvent(QShowEvent *event) {
  QLineEdit::showEvent(event);
  Fit();
}

// Where a text is too long even so, its beginning is to be seen: the field would stay at the end of what it selected.
void FigureField::focusInEvent(QFocusEvent *event) {
  QLineEdit::focusInEvent(event);
  const int length = static_cast<int>(text().size());
  if (hasSelectedText()) setSelection(length, -length);
}

void FigureField::focusOutEvent(QFocusEvent *event) {
  QLineEdit::focusOutEvent(event);
  setCursorPosition(0);
}

}  // namespace trimlog
