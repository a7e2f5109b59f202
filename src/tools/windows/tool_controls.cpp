#include "tools/windows/tool_controls.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>

#include "platform/windows/fields/number_field.h"

namespace trimlog {

QHBoxLayout *AddRow(QLayout *layout) {
  auto *row = new QHBoxLayout;
  qobject_cast<QBoxLayout *>(layout)->addLayout(row);
  return row;
}

QLabel *AddLabel(QLayout *layout, const QString &name, const QString &text) {
  auto *label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  layout->addWidget(label);
  return label;
}

QLabel *AddHeading(QLayout *layout, const QString &name, const QString &text) {
  QLabel *heading = AddLabel(layout, name, text);
  QFont font = heading->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * 1.3);
  heading->setFont(font);
  return heading;
}

QLabel *AddStepCaption(QLayout *layout, const QString &text) {
  QLabel *caption = AddLabel(layout, {}, text);
  QFont font = caption->font();
  font.setBold(true);
  caption->setFont(font);
  return caption;
}

QLabel *AddResultText(QLayout *layout, const QString &name, const QString &spokenName, int lines) {
  QLabel *text = AddLabel(layout, name, {});
  text->setAccessibleName(spokenName);
  text->setWordWrap(true);
  text->setFrameShape(QFrame::StyledPanel);
  text->setMargin(4);
  text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  text->setMinimumHeight(text->fontMetrics().lineSpacing() * lines + 12);
  text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return text;
}

NumberField *AddNumber(QLayout *layout, const QString &name, const QString &spokenName, const QLocale &locale) {
  auto *field = new NumberField(name, spokenName, locale);
  field->setMaximumWidth(FieldWidth(field, 9));
  layout->addWidget(field);
  return field;
}

int FieldWidth(const QLineEdit *field, int characters) {
  return field->fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + 16;
}

void GroupOptions(QWidget *owner, const QList<QRadioButton *> &options) {
  auto *group = new QButtonGroup(owner);
  for (QRadioButton *option : options) group->addButton(option);
  // Tab goes to the chosen option, arrows to the others.
  QObject::connect(group, &QButtonGroup::buttonToggled, group, [options](const QAbstractButton *button, bool on) {
    if (!on) return;
    for (QRadioButton *option : options) option->setFocusPolicy(option == button ? Qt::StrongFocus : Qt::ClickFocus);
  });
}

void AlignOptions(const QList<QRadioButton *> &options) {
  int width = 0;
  for (const QRadioButton *option : options) width = std::max(width, option->sizeHint().width());
  for (QRadioButton *option : options) option->setMinimumWidth(width);
}

}  // namespace trimlog
