#include "tools/windows/body_fat_bar.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPainter>

#include "tools/windows/tool_colours.h"

namespace trimlog {

namespace {

QLabel *NewLabel(const QString &name, QWidget *parent) {
  auto *label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  return label;
}

QFrame *NewLine(const QString &name, QWidget *parent) {
  auto *line = new QFrame(parent);
  line->setObjectName(name);
  line->setFrameShape(QFrame::VLine);
  line->setFrameShadow(QFrame::Plain);
  line->setLineWidth(2);
  return line;
}

/// The panel that the places belong to is as wide on the right of the bar as on its left.
int PanelWidth() {
  const auto &segments = BodyFatSegments();
  return segments.front().Left + segments.back().Left + segments.back().Width;
}

}  // namespace

BodyFatBar::BodyFatBar(const Session &session, QWidget *parent) : QWidget(parent), session_(session) {
  setObjectName(QStringLiteral("pnlBodyFatChart"));
  QPalette onBar;
  onBar.setColor(QPalette::WindowText, Qt::black);  // the segments are light on every desktop
  for (int i = 0; i < bodyFatSegments; ++i) {
    pnlBodyFatChart_[i] = NewLabel(QStringLiteral("pnlBodyFatChart%1").arg(i + 1), this);
    pnlBodyFatChart_[i]->setText(BodyFatSegments()[i].caption);
    pnlBodyFatChart_[i]->setPalette(onBar);
    pnlBodyFatPercent_[i] = NewLabel(QStringLiteral("pnlBodyFatPercent%1").arg(i), this);
  }
  pnlBodyFatValue = NewLabel(QStringLiteral("pnlBodyFatValue"), this);
  QFont bold = font();
  bold.setBold(true);
  pnlBodyFatValue->setFont(bold);
  Line7 = NewLine(QStringLiteral("Line7"), this);
  Line8 = NewLine(QStringLiteral("Line8"), this);
  Line8->setPalette(onBar);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BodyFatBar::ShowAssessment(const BodyFatAssessment &assessment) {
  marker_ = assessment.marker;
  pnlBodyFatValue->setText(assessment.value);
  for (int i = 0; i < bodyFatSegments; ++i) pnlBodyFatPercent_[i]->setText(assessment.bounds.labels[i]);
  setAccessibleName(assessment.value);
  PlaceLabels();
  update();
}

QSize BodyFatBar::sizeHint() const { return minimumSizeHint(); }

QSize BodyFatBar::minimumSizeHint() const {
  // Wide enough for the value to be centred on either end of the bar.
  const QFontMetrics metrics(pnlBodyFatValue->font());
  const int value = metrics.horizontalAdvance(QStringLiteral("Your Body Fat = 100.00%")) + 8;
  const int width = std::max(value * PanelWidth() / (2 * BodyFatSegments().front().Left),
                             metrics.horizontalAdvance(BodyFatSegments()[0].caption + QStringLiteral("  ")) *
                                 PanelWidth() / BodyFatSegments()[0].Width);
  return {width, BarTop() + BarHeight() + metrics.lineSpacing() + 6};
}

double BodyFatBar::PixelOf(int twips) const { return static_cast<double>(twips) * width() / PanelWidth(); }

int BodyFatBar::BarTop() const { return fontMetrics().lineSpacing() * 2; }
int BodyFatBar::BarHeight() const { return fontMetrics().lineSpacing() * 2; }

QRectF BodyFatBar::SegmentRect(int segment) const {
  const BodyFatSegment &place = BodyFatSegments()[segment];
  const int end = segment + 1 < bodyFatSegments ? BodyFatSegments()[segment + 1].Left : place.Left + place.Width;
  return QRectF(QPointF(PixelOf(place.Left), BarTop()), QPointF(PixelOf(end), BarTop() + BarHeight()));
}

void BodyFatBar::PlaceLabels() {
  const int line = fontMetrics().lineSpacing();
  for (int i = 0; i < bodyFatSegments; ++i) {
    pnlBodyFatChart_[i]->setGeometry(SegmentRect(i).toRect());
    const int width = pnlBodyFatPercent_[i]->sizeHint().width() + 4;
    pnlBodyFatPercent_[i]->setGeometry(qRound(PixelOf(BodyFatSegments()[i].Left) - width / 2.0),
                                       BarTop() + BarHeight() + 2, width, line + 2);
  }
  const double x = PixelOf(marker_.x);
  const int valueWidth = pnlBodyFatValue->sizeHint().width() + 4;
  pnlBodyFatValue->setGeometry(qRound(x - valueWidth / 2.0), 0, valueWidth, line + 2);
  Line7->setGeometry(qRound(x) - 1, line + 2, 2, BarTop() - line - 2);
  Line8->setGeometry(qRound(x) - 1, BarTop(), 2, BarHeight());
}

void BodyFatBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const auto colours = ToolColours(session_);
  for (int i = 0; i < bodyFatSegments; ++i) {
    const QRectF segment = SegmentRect(i);
    QLinearGradient gradient(segment.topLeft(), segment.bottomLeft());
    gradient.setColorAt(0, colours[i].lighter(104));
    gradient.setColorAt(1, colours[i].darker(110));
    painter.setPen(QPen(colours[i].darker(180), 1));
    painter.setBrush(gradient);
    painter.drawRect(segment.adjusted(0.5, 0.5, -0.5, -0.5));
  }
  // The marker points down at its place on the bar and takes the colour of the segment it stands in.
  const double x = PixelOf(marker_.x);
  const double side = fontMetrics().lineSpacing() * 0.5;
  const QPolygonF arrow(
      {{x - side, BarTop() - 1.2 * side}, {x + side, BarTop() - 1.2 * side}, {x, BarTop() + 0.3 * side}});
  painter.setPen(QPen(palette().color(QPalette::WindowText), 1.5));
  painter.setBrush(colours[marker_.Segment()]);
  painter.drawPolygon(arrow);
}

void BodyFatBar::resizeEvent(QResizeEvent *) { PlaceLabels(); }

void BodyFatBar::changeEvent(QEvent *event) {
  if (event->type() == QEvent::FontChange) {
    updateGeometry();
    PlaceLabels();
  }
  QWidget::changeEvent(event);
}

}  // namespace trimlog
