#include "companions/windows/wizard_banner.h"

#include <QPainter>

#include "core/windows/controls/art.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

constexpr int margin = spacing::roomy;
constexpr int bannerPictureSide = 64;
constexpr int dotSide = 12;
constexpr int textGap = 10;

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

}  // namespace

WizardBanner::WizardBanner(const QStringList &steps, QWidget *parent) : QWidget(parent), steps_(steps) {
  setObjectName(QStringLiteral("pnlBanner"));
  setAccessibleName(QStringLiteral("The steps of this wizard"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void WizardBanner::ShowStep(int number) {
  current_ = number;
  setAccessibleDescription(steps_[number - 1]);
  update();
}

int WizardBanner::StepHeight() const { return fontMetrics().height() * 2; }

QSize WizardBanner::sizeHint() const {
  int width = bannerPictureSide;
  const QFontMetrics metrics(Bold(font()));
  for (const QString &step : steps_) width = std::max(width, dotSide + textGap + metrics.horizontalAdvance(step));
  return {width + 2 * margin, 3 * margin + bannerPictureSide + StepHeight() * static_cast<int>(steps_.size())};
}

void WizardBanner::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QSize side(bannerPictureSide, bannerPictureSide);
  painter.drawPixmap(QRect(QPoint(margin, margin), side),
                     ArtIcon(QStringLiteral("wizard")).pixmap(side, devicePixelRatioF()));
  const int top = 2 * margin + bannerPictureSide;
  const int lineX = margin + dotSide / 2;
  QColor line = palette().color(QPalette::WindowText);
  line.setAlphaF(0.35f);
  painter.setPen(QPen(line, 1));
  const int first = top + StepHeight() / 2;
  painter.drawLine(lineX, first, lineX, first + StepHeight() * static_cast<int>(steps_.size() - 1));
  for (int number = 1; number <= steps_.size(); ++number) {
    PaintStep(painter, number, top + StepHeight() * (number - 1));
  }
}

// Steps behind are filled, the current one is filled and its name bold, those ahead are rings.
void WizardBanner::PaintStep(QPainter &painter, int number, int top) const {
  const QColor text = palette().color(QPalette::WindowText);
  const QRect dot(margin, top + (StepHeight() - dotSide) / 2, dotSide, dotSide);
  painter.setPen(QPen(text, 1.5));
  painter.setBrush(number <= current_ ? text : palette().color(QPalette::Window));
  painter.drawEllipse(dot);
  painter.setFont(number == current_ ? Bold(font()) : font());
  painter.drawText(QRect(dot.right() + textGap, top, width(), StepHeight()), Qt::AlignLeft | Qt::AlignVCenter,
                   steps_[number - 1]);
}

}  // namespace trimlog
