#include "catalogs/windows/servings_field.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

#include "catalogs/windows/servings_selector.h"
#include "platform/windows/controls/member_name.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

constexpr int longestServings = 50;

}  // namespace

ServingsField::ServingsField(int index, const QLocale &locale, ServingsSelector &selector, QWidget *parent)
    : QWidget(parent), selector_(selector) {
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto *label = new QLabel(QStringLiteral("Ser&vings:"), this);
  txtServ = new NumberField(MemberName("txtServ", index), QStringLiteral("Servings"), locale, this);
  txtServ->setMaxLength(longestServings);
  txtServ->setText(QStringLiteral("1"));
  txtServ->setFixedWidth(FieldWidth(txtServ, 8));
  txtServ->installEventFilter(this);
  label->setBuddy(txtServ);
  cmdServ = new QToolButton(this);
  cmdServ->setObjectName(MemberName("cmdServ", index));
  cmdServ->setText(QStringLiteral("..."));
  cmdServ->setToolTip(QStringLiteral("Serving Selector (F4)"));
  cmdServ->setAccessibleName(QStringLiteral("Serving Selector"));
  cmdServ->setFocusPolicy(Qt::TabFocus);
  layout->addWidget(label);
  layout->addWidget(txtServ);
  layout->addWidget(cmdServ);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  connect(cmdServ, &QToolButton::clicked, this, [this] { selector_.OpenFor(*txtServ); });
}

bool ServingsField::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::KeyPress) {
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool f4 = key->key() == Qt::Key_F4 && key->modifiers() == Qt::NoModifier;
    if (f4 || (key->key() == Qt::Key_Down && key->modifiers().testFlag(Qt::AltModifier))) {
      selector_.OpenFor(*txtServ);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace trimlog
