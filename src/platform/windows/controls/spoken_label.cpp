#include "platform/windows/controls/spoken_label.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace trimlog {

namespace {

/// A notification is what screen readers read out when it appears.
class SpokenLabelInterface final : public QAccessibleWidget {
 public:
  explicit SpokenLabelInterface(SpokenLabel *label) : QAccessibleWidget(label, QAccessible::Notification) {}
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? static_cast<SpokenLabel *>(widget())->text().simplified() : QString();
  }
};

QAccessibleInterface *MakeSpokenLabelInterface(const QString &, QObject *object) {
  auto *label = qobject_cast<SpokenLabel *>(object);
  return label ? new SpokenLabelInterface(label) : nullptr;
}

}  // namespace

SpokenLabel::SpokenLabel(const QString &name, QWidget *parent) : QLabel(parent) {
  static const bool known = (QAccessible::installFactory(MakeSpokenLabelInterface), true);
  Q_UNUSED(known);
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

void SpokenLabel::Tell(const QString &text) {
  if (text == this->text()) return;
  setText(text);
  QAccessibleEvent appeared(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appeared);
}

}  // namespace trimlog
