#include "catalogs/windows/nutrient_fields.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "catalogs/food_catalog.h"
#include "catalogs/nutrient_groups.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

constexpr int mostColumns = 4;

}  // namespace

NutrientFields::NutrientFields(const Session &session, int room, QWidget *parent) : QWidget(parent), session_(session) {
  QList<QWidget *> groups;
  for (const NutrientGroup &group : NutrientGroups()) groups.append(MakeGroup(group.title, group.nutrientIDs));
  Arrange(groups, room);
}

QWidget *NutrientFields::MakeGroup(const QString &title, const QList<int> &nutrientIDs) {
  auto *group = new QGroupBox(title, this);
  auto *grid = new QGridLayout(group);
  grid->setColumnStretch(0, 1);
  grid->setVerticalSpacing(4);
  for (const int id : nutrientIDs) AddField(id, group);
  if (nutrientIDs.contains(nutrient_id::netCarbs)) {
    auto *note = new QLabel(QStringLiteral("* Carbs less fiber and sugar alcohols"), group);
    note->setWordWrap(true);
    grid->addWidget(note, grid->rowCount(), 0, 1, 2);
  }
  return group;
}

void NutrientFields::AddField(int nutrientID, QWidget *group) {
  const QString label = NutrientLabel(session_.nutrients, nutrientID);
  auto *field = new NumberField(QStringLiteral("txtAddRec0(%1)").arg(nutrientID), label, session_.locale, group);
  field->setProperty("DataField", Definition(session_.nutrients, nutrientID).fieldName);
  field->SetRange(0, nutrientID == nutrient_id::netCarbs ? highestNetCarbs : highestNutrient);
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("1,000,000.000")));
  auto *caption = new QLabel(label, group);
  caption->setTextFormat(Qt::PlainText);
  caption->setBuddy(field);
  auto *grid = static_cast<QGridLayout *>(group->layout());
  const int row = grid->rowCount();
  grid->addWidget(caption, row, 0);
  grid->addWidget(field, row, 1);
  fields_.insert(nutrientID, field);
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
      if (!fields_[id]->Complaint().isEmpty()) return fields_[id];
    }
  }
  return nullptr;
}

}  // namespace trimlog
