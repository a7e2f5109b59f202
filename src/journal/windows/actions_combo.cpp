#include "journal/windows/actions_combo.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QStylePainter>
#include <QTimer>

#include "platform/windows/controls/named_controls.h"

namespace trimlog {

ActionsCombo::ActionsCombo(const QString &objectName, const QString &prompt, QWidget *parent) : QComboBox(parent) {
  setObjectName(objectName);
  setPlaceholderText(prompt);
  SpeakAs(this, prompt);
  connect(this, &QComboBox::activated, this, [this](int index) {
    setCurrentIndex(-1);
    // Once the list is closed: what opens now may be a window.
    QTimer::singleShot(0, this, [this, index] { work_[static_cast<std::size_t>(index)](); });
  });
}

void ActionsCombo::AddAction(const QString &caption, const QString &whyNot, std::function<void()> run) {
  addItem(caption);
  work_.push_back(std::move(run));
  if (!whyNot.isEmpty()) {
    qobject_cast<QStandardItemModel *>(model())->item(count() - 1)->setEnabled(false);
    setItemData(count() - 1, whyNot, Qt::ToolTipRole);
  }
  setCurrentIndex(-1);
}

QSize ActionsCombo::sizeHint() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QSize text(fontMetrics().horizontalAdvance(placeholderText()), QComboBox::sizeHint().height());
  return {style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this).width(), text.height()};
}

void ActionsCombo::showPopup() {
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + 2 * view()->frameWidth());
  QComboBox::showPopup();
}

// In the colour of a text: in that of a prompt it would look switched off.
void ActionsCombo::paintEvent(QPaintEvent *) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = placeholderText();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ActionsCombo::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F4:
      showPopup();
      return;
    default:
      event->ignore();
  }
}

}  // namespace trimlog
