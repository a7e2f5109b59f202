#include "core/windows/frame/frmMain.h"

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "core/windows/controls/art.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

constexpr int pictureSize = 32;
constexpr int margin = 5;
constexpr int smallestPicture = 16;

struct Destination {
  const char *name;
  const char *caption;
  const char *picture;
  const char *tip;
  bool suppressesReward;
};
constexpr Destination destinations[] = {
    {"cmdData", "C&alendar", "calendar", "Your weights, day by day", false},
    {"cmdDiary", "&Journal", "journal", "Meals, exercises, measurements and notes", false},
    {"cmdPlanner", "Pla&nner", "planner", "Meals and exercises for coming days", true},
    {"cmdGraphs", "Cha&rts", "charts", "Charts of your progress", true},
    {"cmdLinks", "Lin&ks", "links", "Web sites worth a visit", true},
    {"cmdTools", "T&ools", "tools", "Goal planner and calculators", true},
    {"cmdExit", "E&xit", "exit", "Close the program", true},
};

QString TipOf(const QString &buttonName) {
  for (const Destination &destination : destinations) {
    if (buttonName == QLatin1String(destination.name)) return QString::fromLatin1(destination.tip);
  }
  return {};
}

}  // namespace

QSize NavigationButton::sizeHint() const {
  const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
  return {std::max(pictureSize, textWidth) + 4 * margin, pictureSize + fontMetrics().height() + 3 * margin};
}

QSize NavigationButton::minimumSizeHint() const {
  return {sizeHint().width(), smallestPicture + fontMetrics().height() + margin};
}

void NavigationButton::SetCurrent(bool current) {
  current_ = current;
  update();
}

void NavigationButton::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton) Q_EMIT MousePressed();
  QToolButton::mousePressEvent(event);
}

void NavigationButton::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor text = palette().color(QPalette::Active, QPalette::WindowText);
  const bool highlighted = isEnabled() && (underMouse() || hasFocus());
  if (highlighted || current_) {
    QColor fill = text;
    fill.setAlphaF(isDown() ? 0.20F : current_ ? 0.12F : 0.05F);
    QColor outline = text;
    outline.setAlphaF(highlighted ? 0.75F : 0.0F);
    painter.setPen(QPen(outline, hasFocus() ? 2 : 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 5, 5);
  }
  const int lineHeight = fontMetrics().height();
  const int side = std::clamp(height() - lineHeight - 2 * margin, smallestPicture, pictureSize);
  const int top = (height() - side - lineHeight) / 2;
  icon().paint(&painter, QRect((width() - side) / 2, top, side, side), Qt::AlignCenter,
               isEnabled() ? QIcon::Normal : QIcon::Disabled);
  QColor ink = text;
  if (!isEnabled()) ink.setAlphaF(0.55F);
  painter.setPen(ink);
  painter.drawText(QRect(0, top + side, width(), lineHeight), Qt::AlignCenter | Qt::TextShowMnemonic, this->text());
}

frmMain::frmMain(Session &session, QWidget *parent) : QWidget(parent), session_(session) {
  setObjectName(QStringLiteral("frmMain"));
  setAccessibleName(QStringLiteral("Navigation"));
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(spacing::tight, spacing::tight, spacing::tight, spacing::tight);
  layout->setSpacing(2);
  for (const Destination &destination : destinations) {
    auto *button = new NavigationButton(this);
    button->setObjectName(QString::fromLatin1(destination.name));
    button->setText(QString::fromLatin1(destination.caption));
    button->setIcon(ArtIcon(QString::fromLatin1(destination.picture)));
    button->setToolTip(QString::fromLatin1(destination.tip));
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    button->setEnabled(false);
    if (destination.suppressesReward) {
      connect(button, &NavigationButton::MousePressed, this, [this] { session_.windows.SuppressReward = true; });
    }
    if (button->objectName() == QStringLiteral("cmdExit")) layout->addStretch(1);
    layout->addWidget(button);
  }
}

void frmMain::Refresh() { PaintPanel(this, session_.profile.BackColor); }

void frmMain::SetCommand(const QString &buttonName, const std::function<void()> &command, const QString &whyNot) {
  NavigationButton *button = Button(buttonName);
  disconnect(button, &QToolButton::clicked, this, nullptr);
  connect(button, &QToolButton::clicked, this, command);
  button->setEnabled(whyNot.isEmpty());
  button->setAccessibleDescription(whyNot);
  const QString tip = TipOf(buttonName);
  button->setToolTip(whyNot.isEmpty() ? tip : tip + QLatin1Char('\n') + whyNot);
}

void frmMain::ShowCurrent(const QString &buttonName) {
  for (NavigationButton *button : findChildren<NavigationButton *>()) {
    button->SetCurrent(button->objectName() == buttonName);
  }
}

NavigationButton *frmMain::Button(const QString &name) const { return findChild<NavigationButton *>(name); }

}  // namespace trimlog
