#include "catalogs/windows/servings_selector.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include "platform/windows/controls/member_name.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

ServingsSelector::ServingsSelector(const QLocale &locale, QWidget *parent)
    : QFrame(parent, Qt::Popup), locale_(locale) {
  setObjectName(QStringLiteral("fraServings"));
  setWindowTitle(QStringLiteral("Serving Selector"));
  setAccessibleName(windowTitle());
  setFrameShape(QFrame::StyledPanel);
  auto *layout = new QGridLayout(this);
  layout->setSpacing(spacing::tight);
  layout->addWidget(new QLabel(QStringLiteral("Fraction:"), this), 0, 0);
  layout->addWidget(new QLabel(QStringLiteral("Whole:"), this), 1, 0);
  for (int toggle = 0; toggle < servingToggleCount; ++toggle) {
    const bool whole = toggle >= servingFractionCount;
    layout->addWidget(MakeToggle(toggle), whole ? 1 : 0, 1 + toggle % servingFractionCount);
  }
  auto *pnlServingsClose = new QPushButton(QStringLiteral("&Close"), this);
  pnlServingsClose->setObjectName(QStringLiteral("pnlServingsClose"));
  layout->addWidget(pnlServingsClose, 2, 1, 1, servingFractionCount, Qt::AlignRight);
  connect(pnlServingsClose, &QPushButton::clicked, this, &ServingsSelector::hide);
}

QPushButton *ServingsSelector::MakeToggle(int toggle) {
  auto *button = new QPushButton(ServingToggleCaption(toggle), this);
  button->setObjectName(MemberName("pshServings", toggle));
  button->setCheckable(true);
  button->setFixedWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("  3/4  ")) + 12);
  connect(button, &QPushButton::clicked, this, [this, toggle] { OnPressed(toggle); });
  pshServings.at(static_cast<std::size_t>(toggle)) = button;
  return button;
}

void ServingsSelector::OpenFor(NumberField &field) {
  field_ = &field;
  ShowToggles();
  adjustSize();
  move(PlaceBeside(field));
  show();
  const ServingToggles down = TogglesOf(field.text(), locale_);
  pshServings.at(static_cast<std::size_t>(down.whole.value_or(down.fraction.value_or(0))))->setFocus();
}

QPoint ServingsSelector::PlaceBeside(const QWidget &field) const {
  const QRect room = field.screen()->availableGeometry();
  QPoint place = field.mapToGlobal(QPoint(0, field.height()));
  if (place.y() + height() > room.bottom()) place = field.mapToGlobal(QPoint(0, -height()));
  return {std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())), place.y()};
}

void ServingsSelector::OnPressed(int toggle) {
  field_->setText(ServingsAfter(field_->text(), toggle, locale_));
  ShowToggles();
}

void ServingsSelector::ShowToggles() {
  const ServingToggles down = TogglesOf(field_->text(), locale_);
  for (int toggle = 0; toggle < servingToggleCount; ++toggle) {
    pshServings.at(static_cast<std::size_t>(toggle))->setChecked(down.fraction == toggle || down.whole == toggle);
  }
}

void ServingsSelector::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    hide();
  } else {
    QFrame::keyPressEvent(event);
  }
}

void ServingsSelector::hideEvent(QHideEvent *event) {
  QFrame::hideEvent(event);
  if (!field_) return;
  field_->setFocus();
  field_->selectAll();
}

}  // namespace trimlog
