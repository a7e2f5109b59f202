#include "platform/windows/controls/result_text.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

#include "platform/windows/controls/quiet_text.h"

namespace trimlog {

namespace {

constexpr int textMargin = 4;
constexpr int frameHeight = 12;  // the frame and the margins above and below

}  // namespace

ResultText::ResultText(const QString &name, QWidget *parent) : QLabel(parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFocusPolicy(Qt::StrongFocus);
}

void ResultText::MakeFrame(int lines) {
  setWordWrap(true);
  setFrameShape(QFrame::StyledPanel);
  setMargin(textMargin);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setMinimumHeight(fontMetrics().lineSpacing() * lines + frameHeight);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
}

void ResultText::SetHint(const QString &hint) {
  hint_ = hint;
  setAccessibleDescription(hint);
}

void ResultText::paintEvent(QPaintEvent *event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  if (text().isEmpty() && !hint_.isEmpty()) {
    painter.setPen(QuietText(palette(), foregroundRole()));
    painter.drawText(contentsRect().adjusted(textMargin, textMargin, -textMargin, -textMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, hint_);
  }
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  option.rect = rect().adjusted(1, 1, -1, -1);
  option.backgroundColor = palette().color(backgroundRole());
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

}  // namespace trimlog
