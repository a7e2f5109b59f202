#include "platform/windows/grid/empty_note.h"

#include <QAbstractItemView>
#include <QPainter>

namespace trimlog {

void EmptyNote::SetText(const QString &text) {
  text_ = text;
  list_.setAccessibleDescription(text);
  list_.viewport()->update();
}

void EmptyNote::Draw() const {
  if (text_.isEmpty() || !list_.model() || list_.model()->rowCount() > 0) return;
  QPainter painter(list_.viewport());
  painter.setPen(list_.palette().color(QPalette::PlaceholderText));
  const int margin = list_.fontMetrics().height();
  painter.drawText(list_.viewport()->rect().adjusted(margin, margin, -margin, -margin),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text_);
}

}  // namespace trimlog
