#include "platform/windows/machine/qt_boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace trimlog {

namespace {

QWidget *Owner() {
  if (QWidget *modal = QApplication::activeModalWidget()) return modal;
  return QApplication::activeWindow();
}

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Critical:
      return QMessageBox::Critical;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Warning:
      return QMessageBox::Warning;
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButton StandardButtonOf(BoxButton button) {
  switch (button) {
    case BoxButton::Ok:
      return QMessageBox::Ok;
    case BoxButton::Cancel:
      return QMessageBox::Cancel;
    case BoxButton::Yes:
      return QMessageBox::Yes;
    case BoxButton::No:
      break;
  }
  return QMessageBox::No;
}

/// The answer of a box that is closed without a button: what changes nothing.
BoxButton ClosedBox(const Box &box) {
  return box.buttons.contains(BoxButton::Cancel) ? BoxButton::Cancel : box.buttons.last();
}

}  // namespace

QString QtBoxes::TitleOf(const QString &title) const { return title.isEmpty() ? programTitle : title; }

BoxButton QtBoxes::Show(const Box &box) {
  if (silent) return ClosedBox(box);
  QMessageBox message(Owner());
  message.setIcon(IconOf(box.icon));
  message.setWindowTitle(TitleOf(box.title));
  message.setTextFormat(Qt::PlainText);  // a name such as "<b>" is a name
  message.setText(box.text);
  for (const BoxButton button : box.buttons) message.addButton(StandardButtonOf(button));
  const BoxButton preset = box.buttons.contains(box.defaultButton) ? box.defaultButton : box.buttons.first();
  message.setDefaultButton(StandardButtonOf(preset));
  if (box.help) {
    QPushButton *helpButton = message.addButton(QMessageBox::Help);
    helpButton->disconnect();  // of the box itself, which would close
    QObject::connect(helpButton, &QPushButton::clicked, &message, box.help);
  }

  const auto pressed = static_cast<QMessageBox::StandardButton>(message.exec());
  for (const BoxButton button : box.buttons) {
    if (StandardButtonOf(button) == pressed) return button;
  }
  return ClosedBox(box);
}

std::optional<QString> QtBoxes::AskText(const QString &title, const QString &prompt, const QString &initial) {
  if (silent) return std::nullopt;
  QInputDialog dialog(Owner());
  dialog.setWindowTitle(TitleOf(title));
  dialog.setLabelText(prompt);
  // A prompt that says "click <OK>" is no markup.
  for (QLabel *label : dialog.findChildren<QLabel *>()) label->setTextFormat(Qt::PlainText);
  dialog.setTextValue(initial);
  return dialog.exec() == QDialog::Accepted ? std::optional(dialog.textValue()) : std::nullopt;
}

QString QtBoxes::ChooseOpenFile(const QString &title, const QStringList &filters, const QString &folder) {
  if (silent) return {};
  return QFileDialog::getOpenFileName(Owner(), TitleOf(title), folder, filters.join(QLatin1String(";;")));
}

QString QtBoxes::ChooseSaveFile(const QString &title, const QStringList &filters, const QString &proposed) {
  if (silent) return {};
  return QFileDialog::getSaveFileName(Owner(), TitleOf(title), proposed, filters.join(QLatin1String(";;")));
}

QString QtBoxes::ChooseFolder(const QString &title, const QString &folder) {
  if (silent) return {};
  return QFileDialog::getExistingDirectory(Owner(), TitleOf(title), folder);
}

}  // namespace trimlog
