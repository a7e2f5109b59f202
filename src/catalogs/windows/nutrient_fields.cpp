#include "catalogs/windows/nutrient_fields.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "catalogs/food_catalog.h"
#include "catalogs/nutrient_groups.h"
#include "catalogs/target_sets.h"
#include "platform/windows/controls/member_name.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

constexpr int mostColumns = 4;

double HighestAmount(int nutrientID, const QString &) {
  return nutrientID == nutrient_id::netCarbs ? highestNetCarbs : highestNutrient;
}

double HighestTarget(int, const QString &fieldName) { return LargestTarget(fieldName); }

}  // namespace

const NutrientFieldsKind &FoodNutrientFields() {
  static const NutrientFieldsKind kind{"txtAddRec0", nutrientCount, HighestAmount};
  return kind;
}

const NutrientFieldsKind &TargetNutrientFields() {
  static const NutrientFieldsKind kind{"txtTarget", typedTargets, HighestTarget};
  return kind;
}

NutrientFields::NutrientFields(const Session &session, const NutrientFieldsKind &kind, int room, QWidget *parent)
    : QWidget(parent), session_(session), kind_(kind) {
  QList<QWidget *> groups;
  for (const NutrientGroup &group : NutrientGroups()) groups.append(MakeGroup(group.title, group.nutrientIDs));
  Arrange(groups, room);
}

QWidget *NutrientFields::MakeGroup(const QString &title, const QList<int> &nutrientIDs) {
  auto *group = new QGroupBox(title, this);
  auto *grid = new QGridLayout(group);
  grid->setColumnStretch(0, 1);
  grid->setVerticalSpacing(spacing::tight);
  for (const int id : nutrientIDs) {
    if (id <= kind_.count) AddField(id, group);
  }
  if (nutrientIDs.contains(nutrient_id::netCarbs)) {
    auto *note = new QLabel(QStringLiteral("* Carbs less fiber and sugar alcohols"), group);
    note->setWordWrap(true);
    grid->addWidget(note, grid->rowCount(), 0, 1, 2);
  }
  return group;
}

void NutrientFields::AddField(int nutrientID, QWidget *group) {
  const QString label = NutrientLabel(session_.nutrients, nutrientID);
  const QString &fieldName = Definition(session_.nutrients, nutrientID).fieldName;
  auto *field = new NumberField(MemberName(kind_.name, nutrientID), label, session_.locale, group);
  field->setProperty("DataField", fieldName);
  field->SetRange(0, kind_.highest(nutrientID, fieldName));
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("1,000,000.000")));
  auto *caption = new QLabel(label, group);
  caption->setTextFormat(Qt::PlainText);
  caption->setBuddy(field);
  auto *grid = static_cast<QGridLayout *>(group->layout());
  const int row = grid->rowCount();
  grid->addWidget(caption, row, 0);
  grid->addWidget(field, row, 1);
  fields_.insert(nutrientID, field);
  captions_.insert(nutrientID, caption);
}

void NutrientFields::NutrientsChanged() {
  for (auto caption = captions_.cbegin(); caption != captions_.cend(); ++caption) {
    const QString label = NutrientLabel(session_.nutrients, caption.key());
    caption.value()->setText(label);
    fields_[caption.key()]->setAccessibleName(label);
  }
}

void NutrientFields::Arrange(const QList<QWidget *> &groups, int room) {
  int width = 0;
  for (const QWidget *group : groups) width = std::max(width, group->sizeHint().width());
  auto *columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  const int count = std::clamp(room / (width + std::max(0, columns->spacing())), 1, mostColumns);
  QList<QVBoxLayout *> stacks;
  for (int column = 0; column < count; ++column) {
    stacks.append(new QVBoxLayout);
    columns->addLayout(stacks.last(), 1);
  }
  const QList<int> places = ColumnsOfGroups(NutrientGroups(), count);
  for (qsizetype i = 0; i < groups.size(); ++i) stacks[places[i]]->addWidget(groups[i]);
  for (QVBoxLayout *stack : stacks) stack->addStretch();
}

QString NutrientFields::TextOf(int nutrientID) const { return fields_[nutrientID]->text(); }

void NutrientFields::SetText(int nutrientID, const QString &text) { fields_[nutrientID]->setText(text); }

void NutrientFields::Show(const FoodValues &values) {
  for (auto field = fields_.cbegin(); field != fields_.cend(); ++field) {
    if (const auto value = values.At(field.key())) {
      field.value()->SetNumber(*value, GetNutrientFormat(Definition(session_.nutrients, field.key()).fieldName));
    }
  }
}

FoodValues NutrientFields::Typed() const {
  FoodValues values;
  for (auto field = fields_.cbegin(); field != fields_.cend(); ++field)
    values.Set(field.key(), field.value()->Number());
  return values;
}

NumberField *NutrientFields::FirstWrong() const {
  for (const NutrientGroup &group : NutrientGroups()) {
    for (const int id : group.nutrientIDs) {
      NumberField *field = fields_.value(id);
      if (field && !field->Complaint().isEmpty()) return field;
    }
  }
  return nullptr;
}

QScrollArea *ScrolledNutrients(const Session &session, const NutrientFieldsKind &kind, const QSize &room,
                               QWidget *parent, NutrientFields **fields) {
  auto *scroll = new QScrollArea(parent);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);  // Tab goes from field to field
  *fields = new NutrientFields(session, kind, room.width(), scroll);
  scroll->setWidget(*fields);
  scroll->setMinimumSize(((*fields)->sizeHint() + QSize(24, 4)).boundedTo(room));
  return scroll;
}

}  // namespace trimlog
