#include "platform/windows/controls/named_controls.h"

#include <QBoxLayout>
#include <QButtonGroup>

#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

constexpr double headingScale = 1.3;
constexpr int digitsOfANumber = 9;

}  // namespace

QLabel *MakeLabel(const QString &name, const QString &text) {
  auto *label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QLabel *AddLabel(QLayout *layout, const QString &name, const QString &text) {
  QLabel *label = MakeLabel(name, text);
  layout->addWidget(label);
  return label;
}

QLabel *AddNote(QLayout *layout, const QString &name, const QString &text) {
  QLabel *note = AddLabel(layout, name, text);
  note->setWordWrap(true);
  return note;
}

QLabel *AddHeading(QLayout *layout, const QString &name, const QString &text) {
  QLabel *heading = AddLabel(layout, name, text);
  QFont font = heading->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * headingScale);
  heading->setFont(font);
  return heading;
}

void MakeBold(QWidget *control) {
  QFont font = control->font();
  font.setBold(true);
  control->setFont(font);
}

QHBoxLayout *AddRow(QLayout *layout) {
  auto *row = new QHBoxLayout;
  qobject_cast<QBoxLayout *>(layout)->addLayout(row);
  return row;
}

NumberField *AddNumber(QLayout *layout, const QString &name, const QString &spoken, const QLocale &locale) {
  auto *field = new NumberField(name, spoken, locale);
  field->setMaximumWidth(FieldWidth(field, digitsOfANumber));
  layout->addWidget(field);
  return field;
}

int FieldWidth(const QLineEdit *field, int characters) {
  return field->fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + 16;
}

void GroupOptions(QWidget *owner, const QList<QRadioButton *> &options) {
  auto *group = new QButtonGroup(owner);
  for (QRadioButton *option : options) group->addButton(option);
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

void SpeakAs(QWidget *control, const QString &text) {
  control->setAccessibleName(text);
  auto *label = new QLabel(text, control->parentWidget());
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(control);
  label->hide();
}

}  // namespace trimlog
