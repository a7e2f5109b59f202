#include "core/windows/frame/goal_progress.h"

#include <QPainter>
#include <cmath>

namespace trimlog {

namespace {

constexpr int thickness = 4;

}  // namespace

GoalProgress::GoalProgress(QWidget *parent) : QProgressBar(parent) {
  setObjectName(QStringLiteral("pnlProgress"));
  setAccessibleName(tr("Way to the goal"));
  setRange(0, 100);
  setTextVisible(false);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
}

void GoalProgress::ShowProgress(const std::optional<double> &part) {
  setVisible(part.has_value());
  if (!part) return;
  setValue(static_cast<int>(std::floor(*part * 100)));  // all of the way only when it is all gone
  setToolTip(tr("%1 percent of the way to your goal").arg(value()));
}

QSize GoalProgress::sizeHint() const { return {thickness * 10, thickness}; }

void GoalProgress::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor groove = palette().color(QPalette::WindowText);
  QColor done = groove;
  groove.setAlphaF(0.15F);
  done.setAlphaF(0.6F);
  const double radius = height() / 2.0;
  painter.setPen(Qt::NoPen);
  painter.setBrush(groove);
  painter.drawRoundedRect(rect(), radius, radius);
  const double reached = static_cast<double>(width()) * value() / maximum();
  if (reached < 1) return;
  painter.setBrush(done);
  painter.drawRoundedRect(QRectF(0, 0, std::max<double>(reached, height()), height()), radius, radius);
}

}  // namespace trimlog
