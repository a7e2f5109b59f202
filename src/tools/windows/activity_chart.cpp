#include "tools/windows/activity_chart.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>

#include "platform/windows/controls/member_name.h"
#include "platform/windows/controls/named_controls.h"
#include "tools/windows/tool_colours.h"

namespace trimlog {

/// A frame drawn over other controls, which keep the mouse.
class HighlightFrame : public QWidget {
 public:
  HighlightFrame(const QString &name, qreal penWidth, QWidget *parent) : QWidget(parent), penWidth_(penWidth) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }
  void SetColour(const QColor &colour) {
    colour_ = colour;
    update();
  }

 protected:
  void paintEvent(QPaintEvent *) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal inset = penWidth_ / 2 + 0.5;
    const QRectF frame = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    // A darker line on both sides keeps a light colour visible on a light panel.
    painter.setPen(QPen(colour_.darker(220), penWidth_ + 1));
    painter.drawRoundedRect(frame, 5, 5);
    painter.setPen(QPen(colour_, penWidth_ - 1));
    painter.drawRoundedRect(frame, 5, 5);
  }

 private:
  qreal penWidth_;
  QColor colour_;
};

namespace {

/// A cell of the chart: black text on its own colour, whatever the desktop's colours are.
class ActivityCell : public QLabel {
 public:
  ActivityCell(const Session &session, int level, QWidget *parent) : QLabel(parent), session_(session), level_(level) {
    setAlignment(Qt::AlignCenter);
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::black);
    setPalette(palette);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
  }

 protected:
  void paintEvent(QPaintEvent *event) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(0, 0, 0, height());
    const QColor colour = ToolColours(session_)[level_];
    gradient.setColorAt(0, colour.lighter(104));
    gradient.setColorAt(1, colour.darker(108));
    painter.setPen(QPen(colour.darker(170), 1));
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    QLabel::paintEvent(event);
  }

 private:
  const Session &session_;
  int level_;
};

constexpr int frameMargin = 6;  // pixels between a column and the frame around it

}  // namespace

ActivityChart::ActivityChart(const Session &session, QWidget *parent) : QWidget(parent), session_(session) {
  setObjectName(QStringLiteral("pnlBMRActivityChart"));
  auto *grid = new QGridLayout(this);
  grid->setContentsMargins(frameMargin + 2, frameMargin, frameMargin + 2, frameMargin);
  grid->setHorizontalSpacing(3 * frameMargin);
  for (int i = 0; i < activityLevels; ++i) {
    const ActivityLevel &level = ActivityLevels()[i];
    optBMRActivity_[i] = new QRadioButton(level.caption, this);
    optBMRActivity_[i]->setObjectName(MemberName("optBMRActivity", i));
    pnlBMRActivity_[i] = new ActivityCell(session, i, this);
    pnlBMRActivity_[i]->setObjectName(MemberName("pnlBMRActivity", i));
    pnlBMRActivity_[i]->setFixedHeight(qRound(fontMetrics().lineSpacing() * (2 * level.multiplier - 0.5)));
    pnlBMRActivityDesc_[i] = new QLabel(level.description, this);
    pnlBMRActivityDesc_[i]->setObjectName(MemberName("pnlBMRActivityDesc", i));
    pnlBMRActivityDesc_[i]->setWordWrap(true);
    pnlBMRActivityDesc_[i]->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    grid->addWidget(optBMRActivity_[i], 0, i, Qt::AlignHCenter);
    grid->addWidget(pnlBMRActivity_[i], 1, i, Qt::AlignBottom);
    grid->addWidget(pnlBMRActivityDesc_[i], 2, i);
    grid->setColumnStretch(i, 1);
    for (QLabel *label : {pnlBMRActivity_[i], pnlBMRActivityDesc_[i]}) {
      label->installEventFilter(this);
      label->setCursor(Qt::PointingHandCursor);
    }
    connect(optBMRActivity_[i], &QRadioButton::toggled, this, [this](bool on) {
      if (!on) return;
      PlaceHighlight();
      Q_EMIT ChoiceMade();
    });
  }
  GroupOptions(this, {optBMRActivity_.begin(), optBMRActivity_.end()});
  shpBMRActivity_ = new HighlightFrame(QStringLiteral("shpBMRActivity"), 3, this);
  shpCell_ = new HighlightFrame(QStringLiteral("shpCell"), 2, this);
}

void ActivityChart::ShowAmounts(const std::array<QString, activityLevels> &amounts) {
  for (int i = 0; i < activityLevels; ++i) {
    pnlBMRActivity_[i]->setText(amounts[i]);
    // Whoever goes through the levels by ear hears what each comes to.
    optBMRActivity_[i]->setAccessibleDescription(amounts[i].isEmpty() ? ActivityLevels()[i].description
                                                                      : amounts[i] + QStringLiteral(", ") +
                                                                            ActivityLevels()[i].description);
  }
}

int ActivityChart::Chosen() const {
  for (int i = 0; i < activityLevels; ++i) {
    if (optBMRActivity_[i]->isChecked()) return i;
  }
  return -1;
}

void ActivityChart::PlaceHighlight() {
  const int chosen = Chosen();
  for (HighlightFrame *frame : {shpBMRActivity_, shpCell_}) {
    frame->setVisible(chosen >= 0);
    if (chosen >= 0) frame->SetColour(ToolColours(session_)[chosen]);
  }
  if (chosen < 0) return;
  const QRect cell = pnlBMRActivity_[chosen]->geometry();
  const QRect column = cell | optBMRActivity_[chosen]->geometry() | pnlBMRActivityDesc_[chosen]->geometry();
  shpCell_->setGeometry(cell);
  shpBMRActivity_->setGeometry(column.adjusted(-frameMargin, 1 - frameMargin, frameMargin, frameMargin - 1));
}

bool ActivityChart::event(QEvent *event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize || event->type() == QEvent::Show ||
      event->type() == QEvent::PaletteChange) {
    PlaceHighlight();
  }
  return handled;
}

bool ActivityChart::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::MouseButtonPress && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
    for (int i = 0; i < activityLevels; ++i) {
      if (watched != pnlBMRActivity_[i] && watched != pnlBMRActivityDesc_[i]) continue;
      optBMRActivity_[i]->setFocus();
      optBMRActivity_[i]->setChecked(true);
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace trimlog
