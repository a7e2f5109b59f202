#include "platform/windows/grid/empty_note.h"

#include <QAbstractItemView>
#include <QPainter>

#include "platform/windows/controls/quiet_text.h"

namespace trimlog {

void EmptyNote::SetText(const QString &text) {
  text_ = text;
  Follow();
  list_.viewport()->update();
}

bool EmptyNote::IsShown() const { return !text_.isEmpty() && list_.model() && list_.model()->rowCount() == 0; }

void EmptyNote::Follow() {
  const QString spoken = IsShown() ? text_ : QString();
  if (list_.accessibleDescription() != spoken) list_.setAccessibleDescription(spoken);
}

void EmptyNote::Draw() const {
  if (!IsShown()) return;
  QPainter painter(list_.viewport());
  painter.setPen(QuietText(list_.palette(), QPalette::Text));
  const int margin = list_.fontMetrics().height();
  painter.drawText(list_.viewport()->rect().adjusted(margin, margin, -margin, -margin),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text_);
}

}  // namespace trimlog
